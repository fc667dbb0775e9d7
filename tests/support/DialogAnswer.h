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
