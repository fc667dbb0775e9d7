#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

// Greets a person when there is nothing to open and nobody is signed in. Someone who has signed in
// on this machine before gets a shorter form, in which signing in comes first.
class WelcomeScreen : public QWidget
{
    Q_OBJECT

public:
    explicit WelcomeScreen(QWidget *parent = nullptr);

    void setReturningUser(bool returning);
    void applyThemeColors(); // after each change of the palette

Q_SIGNALS:
    void createAccountRequested();
    void signInRequested();

private:
    void buildLayout();
    QWidget *buildHowItWorksCard();
    QLabel *addLabel(const QString &name, int fontRole);
    QPushButton *addButton(const QString &name);

    QLabel *m_titleLabel;
    QLabel *m_subtitleLabel;
    QLabel *m_sessionEndedLabel;
    QWidget *m_howItWorksCard;
    QPushButton *m_createAccountButton;
    QPushButton *m_signInButton;
};
