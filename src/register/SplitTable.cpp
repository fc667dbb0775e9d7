#include "register/SplitTable.h"

#include <QAbstractSpinBox>
#include <QFocusEvent>
#include <QStyledItemDelegate>

namespace {

// An editor that a screen reader names by its column.
class NamedEditorDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setAccessibleName(
            index.model()->headerData(index.column(), Qt::Horizontal).toString());
        return editor;
    }
};

} // namespace

SplitTable::SplitTable(QWidget *parent)
    : QTableWidget(parent)
{
    setEditTriggers(editTriggers() | QAbstractItemView::CurrentChanged);
    setItemDelegate(new NamedEditorDelegate(this));
}

void SplitTable::setBox(int row, int column, QWidget *box)
{
    box->setAccessibleName(horizontalHeaderItem(column)->text());
    setCellWidget(row, column, box);
    box->installEventFilter(this);
}

bool SplitTable::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn
        && static_cast<QFocusEvent *>(event)->reason() != Qt::MouseFocusReason) {
        window()->setAttribute(Qt::WA_KeyboardFocusChange); // the table's own Tab does not
        if (auto *amount = qobject_cast<QAbstractSpinBox *>(watched))
            amount->selectAll(); // what is typed takes the place of what stands there
    }
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
