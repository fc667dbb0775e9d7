#include "register/SmartAmountField.h"

#include <QKeyEvent>
#include <QLineEdit>

SmartAmountField::SmartAmountField(QWidget *parent)
    : QDoubleSpinBox(parent)
{
    setDecimals(2);
    setAlignment(Qt::AlignRight);
}

void SmartAmountField::keyPressEvent(QKeyEvent *event)
{
    const QString point =
        locale().decimalPoint().isEmpty() ? QString(u'.') : locale().decimalPoint().left(1);
    const QString typed = event->text().left(1);
    // Either point jumps to the cents: the one on the number pad need not be the locale's.
    if (typed == point || typed == u'.' || typed == u',') {
        const qsizetype at = lineEdit()->text().indexOf(point);
        if (at >= 0) {
            lineEdit()->deselect();
            lineEdit()->setCursorPosition(static_cast<int>(at) + 1);
            event->accept();
            return;
        }
    }
    QDoubleSpinBox::keyPressEvent(event);
}
