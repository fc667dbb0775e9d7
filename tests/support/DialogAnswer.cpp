#include "support/DialogAnswer.h"

#include <QApplication>

DialogAnswer::DialogAnswer(const QString &dialogName, std::function<void(QDialog *)> answer)
    : m_dialogName(dialogName)
    , m_answer(std::move(answer))
{
    connect(&m_timer, &QTimer::timeout, this, &DialogAnswer::look);
    m_timer.start(10);
}

void DialogAnswer::look()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isActiveWindow())
        return;
    m_timer.stop();
    m_asked = dialog->objectName() == m_dialogName;
    if (m_asked)
        m_answer(dialog);
    if (dialog->isVisible())
        dialog->reject();
}
