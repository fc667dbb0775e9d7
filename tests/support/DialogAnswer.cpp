#include "support/DialogAnswer.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

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

void clickYes(QDialog *question)
{
    qobject_cast<QMessageBox *>(question)->button(QMessageBox::Yes)->click();
}

std::function<void(QDialog *)> chooseFile(const QString &path)
{
    return [path](QDialog *dialog) {
        qobject_cast<QFileDialog *>(dialog)->setOption(QFileDialog::DontConfirmOverwrite);
        dialog->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(path);
        dialog->accept();
    };
}

QMap<bool, QStringList> chooseInMenu(const std::function<void()> &act, const QString &entry)
{
    QMap<bool, QStringList> entries;
    const QObject context;
    QTimer::singleShot(0, &context, [&] {
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QAction *chosen = nullptr;
        for (QAction *action : menu->actions()) {
            if (!action->isSeparator())
                entries[action->isEnabled()] << action->text();
            if (action->text() == entry)
                chosen = action;
        }
        menu->close();
        QVERIFY2(chosen || entry.isEmpty(), qPrintable(entry));
        if (chosen)
            chosen->trigger();
    });
    act();
    const auto hasCome = [&entries] { return !entries.isEmpty(); };
    return QTest::qWaitFor(hasCome) ? entries : decltype(entries)(); // not each menu blocks
}
