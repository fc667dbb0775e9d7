#pragma once

#include <QDialog>
#include <QTimer>

#include <functional>

// Runs a function on the modal dialog of that name as soon as it is open. The dialog is closed
// afterwards, so that a test which fails in between does not hang.
class DialogAnswer : public QObject
{
public:
    DialogAnswer(const QString &dialogName, std::function<void(QDialog *)> answer);
    bool wasAsked() const { return m_asked; }

private:
    void look();

    QString m_dialogName;
    std::function<void(QDialog *)> m_answer;
    QTimer m_timer;
    bool m_asked = false;
};

// Answers.
void clickYes(QDialog *question);
std::function<void(QDialog *)> chooseFile(const QString &path); // replaces one that is there

// Opens a menu by the act and chooses the entry of that text, if any. Returns the texts of its
// entries, by whether they are enabled.
QMap<bool, QStringList> chooseInMenu(const std::function<void()> &act, const QString &entry = {});
