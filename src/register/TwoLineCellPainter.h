#pragma once

class QModelIndex;
class QPainter;
class QStyleOptionViewItem;

// Paints a register cell whose row has two lines: the values above, the memo under the payee and
// on under the category.
namespace TwoLineCellPainter {

// `option` is the view's, filled for the index.
void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index);

} // namespace TwoLineCellPainter
