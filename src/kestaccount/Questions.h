#pragma once

#include <QLineEdit>
#include <QMessageBox>

#include <optional>

// Modal questions whose texts are plain: they may hold the names that people gave to things. Should
// the parent go while one is open, the question goes with it and counts as cancelled.
namespace KestAccount {

// Nothing: cancelled.
std::optional<QString> askForText(QWidget *parent, const QString &title, const QString &prompt,
                                  const QString &text = {},
                                  QLineEdit::EchoMode echo = QLineEdit::Normal);

// True: Yes.
bool confirm(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);

// Its text can be copied. False: the parent is gone.
bool inform(QWidget *parent, const QString &title, const QString &text);

} // namespace KestAccount
