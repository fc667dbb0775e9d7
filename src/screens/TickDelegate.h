#pragma once

#include <QStyledItemDelegate>

// Draws a tick box whose frame can be seen.
class TickDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};
