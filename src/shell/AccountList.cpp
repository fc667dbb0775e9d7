#include "shell/AccountList.h"

#include "core/Money.h"
#include "data/Account.h"
#include "shell/AccountListRow.h"
#include "shell/theme/FontRoles.h"

#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMinWidth = 260;
constexpr int kRowPadding = 10;

// Gives the row widget the whole height of its item: the style's padding above and below is more
// than the item has to spare, and the names would lose their descenders.
class FullHeightDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override
    {
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
        QRect geometry = editor->geometry();
        geometry.setTop(option.rect.top());
        geometry.setBottom(option.rect.bottom());
        editor->setGeometry(geometry);
    }
};

} // namespace

// The sidebar is dark in both themes, so the palette is not asked.
QString accountListStyle()
{
    return u"QListWidget {  background-color: %1;  border: none;  outline: none;"
           "  padding: 6px 0;  font-size: %7pt;}"
           "QListWidget::item {  color: %2;  padding: 7px 14px;  border: none;}"
           "QListWidget::item:hover {  background-color: %3;  color: %4;}"
           "QListWidget::item:selected {  background-color: %5;  color: %4;}"
           "QListWidget::item:disabled {  color: %6;  padding: 10px 14px 4px 14px;"
           "  background: transparent;}"_s.arg(u"#152420"_s, u"#8FAF9F"_s, u"#1E3530"_s,
                                               u"#FFFFFF"_s, u"#26574A"_s, u"#5A7A6E"_s,
                                               QString::number(scaledPointSize()));
}

AccountList::AccountList(QWidget *parent)
    : QListWidget(parent)
{
    setAccessibleName(tr("Accounts"));
    setMinimumWidth(kMinWidth);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setDragDropMode(QAbstractItemView::InternalMove);
    setDefaultDropAction(Qt::MoveAction);
    setItemDelegate(new FullHeightDelegate(this));
    setStyleSheet(accountListStyle());
}

void AccountList::addAccount(const Account &account, qint64 balance)
{
    auto *row = new AccountListRow(account, balance);
    auto *item = new QListWidgetItem;
    item->setData(Qt::UserRole, account.id);
    // The item itself has no text: the row widget lies over it.
    item->setData(Qt::AccessibleTextRole,
                  u"%1, %2"_s.arg(account.name, formatMoney(balance, account.currency)));
    item->setData(Qt::AccessibleDescriptionRole, AccountListRow::describe(account));
    item->setSizeHint({viewport()->width(), row->sizeHint().height() + kRowPadding});
    addItem(item);
    setItemWidget(item, row);
}

QString AccountList::accountIdAt(int row) const
{
    const QListWidgetItem *listed = item(row);
    return listed ? listed->data(Qt::UserRole).toString() : QString();
}

int AccountList::rowOf(const QString &accountId) const
{
    for (int row = 0; row < count(); ++row) {
        if (accountIdAt(row) == accountId)
            return row;
    }
    return -1;
}

void AccountList::fitRows()
{
    const int width = viewport()->width();
    if (width < 1)
        return;
    for (int row = 0; row < count(); ++row) {
        const QSize hint = item(row)->sizeHint();
        if (hint.width() != width)
            item(row)->setSizeHint({width, hint.height()});
    }
}

void AccountList::startDrag(Qt::DropActions actions)
{
    m_dragging = true;
    QListWidget::startDrag(actions);
    m_dragging = false;
    Q_EMIT dragFinished();
}
