#include "register/SplitTable.h"

#include <QAbstractSpinBox>
#include <QFocusEvent>

SplitTable::SplitTable(QWidget *parent)
    : QTableWidget(parent)
{
    setEditTriggers(editTriggers() | QAbstractItemView::CurrentChanged);
}

void SplitTable::setBox(int row, int column, QWidget *box)
{
    setCellWidget(row, column, box);
    box->installEventFilter(this);
}

bool SplitTable::eventFilter(QObject *watched, QEvent *event)
{
    auto *amount = qobject_cast<QAbstractSpinBox *>(watched);
    if (amount && event->type() == QEvent::FocusIn
        && static_cast<QFocusEvent *>(event)->reason() != Qt::MouseFocusReason)
        amount->selectAll(); // what is typed takes the place of what stands there
    return QTableWidget::eventFilter(watched, event);
}

bool SplitTable::focusNextPrevChild(bool next)
{
    return isAtEnd(next) ? leave(next) : QTableWidget::focusNextPrevChild(next);
}

void SplitTable::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool next = hint == QAbstractItemDelegate::EditNextItem;
    const bool leaves = (next || hint == QAbstractItemDelegate::EditPreviousItem) && isAtEnd(next);
    QTableWidget::closeEditor(editor, leaves ? QAbstractItemDelegate::NoHint : hint);
    if (leaves)
        leave(next);
}

bool SplitTable::isAtEnd(bool next) const
{
    const int place = currentRow() * columnCount() + currentColumn();
    return next ? place == rowCount() * columnCount() - 1 : place <= 0;
}

// The base class would go round in the table for ever.
bool SplitTable::leave(bool next)
{
    setTabKeyNavigation(false);
    const bool left = QTableWidget::focusNextPrevChild(next);
    setTabKeyNavigation(true);
    return left;
}
