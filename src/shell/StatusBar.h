#pragma once

#include <QStatusBar>

class QLabel;
class QProgressBar;

// The main window's status bar: how many accounts there are and what is due on the left; a running
// update's progress and the word of the sync on the right.
class StatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusBar(QWidget *parent = nullptr);

    void setAccountCount(int count);
    void setRecurringDueCount(int count); // 0 and below: nothing is shown
    void setSyncStatus(const QString &text);

    void showProgress(const QString &text);
    void clearProgress();
    void showTimedMessage(const QString &text, int timeoutMs); // takes the place of a progress

    void applyThemeColors(); // after each change of the palette

private:
    QLabel *addLabel(const QString &name);
    void colorRecurringDue();
    void updateRecurringDue();

    QLabel *m_syncStatusLabel;
    QLabel *m_accountCountLabel;
    QLabel *m_recurringDueLabel;
    QLabel *m_progressLabel;
    QProgressBar *m_progressBar;
};
