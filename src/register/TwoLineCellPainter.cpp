#include "register/TwoLineCellPainter.h"

#include "register/RegisterColumn.h"
#include "register/RegisterDelegate.h"
#include "shell/theme/MoneyColors.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextInset = 4; // pixels

Qt::Alignment textAlignment(int column)
{
    switch (column) {
    case RegisterColumn::Payment:
    case RegisterColumn::Deposit:
    case RegisterColumn::Balance:
        return Qt::AlignRight | Qt::AlignVCenter;
    case RegisterColumn::Clr:
        return Qt::AlignCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

// Also catches a balance written in parentheses, as some statements have it.
bool readsNegative(const QString &balanceText)
{
    QString digits = balanceText;
    for (const QChar sign : {u'$', u',', u'(', u')'})
        digits.remove(sign);
    bool isNumber = false;
    const double value = digits.toDouble(&isNumber);
    return isNumber && (value < 0 || balanceText.contains(u'('));
}

QColor textColor(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (index.column() == RegisterColumn::Balance
        && readsNegative(index.data(Qt::DisplayRole).toString()))
        return negativeColor();
    if (option.state & QStyle::State_Selected)
        return option.palette.color(QPalette::HighlightedText);
    const QVariant foreground = index.data(Qt::ForegroundRole);
    return foreground.isValid() ? foreground.value<QColor>() : option.palette.color(QPalette::Text);
}

QStyle *styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? option.widget->style() : QApplication::style();
}

// The lower band stays neutral beside the payee, so that a selected cell reads as one line high.
void paintFrame(QPainter *painter, QStyleOptionViewItem option, const QModelIndex &index)
{
    const QRect cell = option.rect;
    option.text.clear();
    if (index.column() == RegisterColumn::Payee) {
        styleOf(option)->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
        return;
    }
    option.rect.setHeight(RegisterDelegate::kRowHeight);
    styleOf(option)->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    const QPalette::ColorRole base = index.row() % 2 ? QPalette::AlternateBase : QPalette::Base;
    painter->fillRect(cell.adjusted(0, RegisterDelegate::kRowHeight, 0, 0),
                      option.palette.color(base));
}

QRect memoRect(const QStyleOptionViewItem &option, const QModelIndex &index)
{
    QRect rect = option.rect.adjusted(kTextInset, 0, -kTextInset, 0);
    rect.setTop(option.rect.top() + RegisterDelegate::kRowHeight);
    const auto *table = qobject_cast<const QTableView *>(option.widget);
    if (index.column() == RegisterColumn::Category && table) {
        const QHeaderView *header = table->horizontalHeader();
        // From the payee's left edge: each of the two cells paints its part of one long line.
        const int payeeLeft = option.rect.left()
            - (header->sectionPosition(RegisterColumn::Category)
               - header->sectionPosition(RegisterColumn::Payee));
        rect.setLeft(payeeLeft + kTextInset);
    }
    return rect;
}

void paintMemo(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString memo =
        index.siblingAtColumn(RegisterColumn::Memo).data(Qt::DisplayRole).toString();
    if (memo.isEmpty())
        return;
    QFont font = option.font;
    font.setItalic(true);
    font.setPointSize(qMax(option.font.pointSize() - 1, 7));
    painter->setFont(font);
    painter->setPen(option.state & QStyle::State_Selected
                        ? option.palette.color(QPalette::HighlightedText)
                        : mutedColor());
    const QRect rect = memoRect(option, index);
    // The payee's part runs on into the category's, so only the latter may end in an ellipsis.
    const QString shown = index.column() == RegisterColumn::Category
        ? QFontMetrics(font).elidedText(memo, Qt::ElideRight, rect.width())
        : memo;
    painter->drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, shown);
}

} // namespace

void TwoLineCellPainter::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index)
{
    painter->save();
    painter->setClipRect(option.rect, Qt::IntersectClip);
    paintFrame(painter, option, index);

    QRect firstLine = option.rect.adjusted(kTextInset, 0, -kTextInset, 0);
    firstLine.setHeight(RegisterDelegate::kRowHeight);
    painter->setFont(option.font);
    painter->setPen(textColor(option, index));
    painter->drawText(firstLine, static_cast<int>(textAlignment(index.column())),
                      option.fontMetrics.elidedText(index.data(Qt::DisplayRole).toString(),
                                                    Qt::ElideRight, firstLine.width()));

    if (index.column() == RegisterColumn::Payee || index.column() == RegisterColumn::Category)
        paintMemo(painter, option, index);
    painter->restore();
}
