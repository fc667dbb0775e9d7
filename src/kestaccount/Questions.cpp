#include "kestaccount/Questions.h"

#include <QInputDialog>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace KestAccount {

namespace {

constexpr int kPromptWidth = 360; // an address fits, and so do the titles of all languages

QPointer<QMessageBox> makeBox(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                              const QString &text, QMessageBox::StandardButtons buttons)
{
    auto *box = new QMessageBox(icon, title, text, buttons, parent);
    box->setTextFormat(Qt::PlainText);
    return box;
}

} // namespace

std::optional<QString> askForText(QWidget *parent, const QString &title, const QString &prompt,
                                  const QString &text, QLineEdit::EchoMode echo)
{
    QPointer dialog = new QInputDialog(parent);
    dialog->setObjectName(u"accountPrompt"_s);
    dialog->setWindowTitle(title);
    dialog->setLabelText(prompt);
    dialog->setTextValue(text);
    dialog->setTextEchoMode(echo);
    dialog->resize(dialog->sizeHint().expandedTo({kPromptWidth, 0}));
    const bool accepted = dialog->exec() == QDialog::Accepted;
    std::optional<QString> answer{};
    if (accepted && dialog)
        answer = dialog->textValue();
    delete dialog;
    return answer;
}

bool confirm(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButton defaultButton)
{
    QPointer box =
        makeBox(parent, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No);
    box->setObjectName(u"accountQuestion"_s);
    box->setDefaultButton(defaultButton);
    const bool agreed = box->exec() == QMessageBox::Yes;
    delete box;
    return agreed;
}

bool inform(QWidget *parent, const QString &title, const QString &text)
{
    QPointer box = makeBox(parent, QMessageBox::Information, title, text, QMessageBox::Ok);
    box->setObjectName(u"accountNotice"_s);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->exec();
    const bool parentStands = !box.isNull();
    delete box;
    return parentStands;
}

} // namespace KestAccount
