#include "register/RegisterFixture.h"

#include "support/DialogAnswer.h"

#include <QLabel>
#include <QMetaProperty>
#include <QWindow>

using namespace Qt::StringLiterals;

void RegisterFixture::init()
{
    StateFixture::init();
    m_screen = keep<RegisterScreen>(&state());
    m_view = m_screen->findChild<RegisterTableView *>();
    m_model = m_screen->findChild<RegisterModel *>();
}

void RegisterFixture::openAccount(const QString &accountId)
{
    m_screen->setAccount(accountId.isEmpty() ? m_checking : accountId);
    showActive(m_screen, {1280, 600});
    m_view->setFocus();
}

void RegisterFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_screen->windowHandle(), key, modifiers);
    QCoreApplication::processEvents(); // the hop of Tab waits for the event loop
}

void RegisterFixture::type(const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(m_screen->windowHandle(), character.toLatin1());
}

void RegisterFixture::enter(const QString &text, Qt::Key key)
{
    type(text);
    if (key == Qt::Key_Return && QApplication::activePopupWidget())
        press(key); // the first only closes the completion list
    press(key);
}

void RegisterFixture::click(int row, int column)
{
    const QRect cell = m_view->visualRect(m_model->index(row, column));
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, cell.center());
}

void RegisterFixture::edit(int row, int column, const QString &text)
{
    goTo(row, column);
    press(Qt::Key_F2);
    type(text);
}

QString RegisterFixture::answering(QMessageBox::StandardButton button,
                                   const std::function<void()> &act)
{
    QString asked;
    const DialogAnswer answer(u"deleteTransactionQuestion"_s, [&](QDialog *question) {
        const auto *box = qobject_cast<QMessageBox *>(question);
        asked = box->text();
        box->button(button)->click();
    });
    act();
    return asked;
}

QString RegisterFixture::editorText()
{
    const QWidget *focused = QApplication::focusWidget();
    return focused ? focused->metaObject()->userProperty().read(focused).toString() : QString();
}

QString RegisterFixture::message()
{
    return m_screen->findChild<QLabel *>(u"messageLabel"_s)->text();
}
