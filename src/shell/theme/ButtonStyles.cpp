#include "shell/theme/ButtonStyles.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

QString primaryButtonStyle()
{
    return u"QPushButton {  background-color: %1;  color: white;  border: none;"
           "  border-radius: 4px;  padding: 6px 16px;  font-weight: 600;  min-width: 80px;}"
           "QPushButton:hover {  background-color: #00796B;}"
           "QPushButton:pressed {  background-color: #004D40;}"_s.arg(u"#00897B"_s);
}

// The padding keeps the size.
QString primaryButtonFocusStyle()
{
    return u"QPushButton:focus {  border: 2px solid palette(window-text);  padding: 4px 14px;}"_s;
}

QString linkButtonStyle()
{
    return u"QPushButton { color: %1; border: none; background: transparent; }"_s.arg(u"#4DB6AC"_s);
}

void restyleButtons(QWidget *parent)
{
    for (QPushButton *button : parent->findChildren<QPushButton *>()) {
        if (!button->styleSheet().isEmpty())
            button->setStyleSheet(button->styleSheet());
    }
}
