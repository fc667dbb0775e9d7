#include "screens/TickDelegate.h"

void TickDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    // The style makes the frame from a darker window colour, which the dark rows swallow.
    option->palette.setColor(QPalette::Window, option->palette.color(QPalette::PlaceholderText));
}
