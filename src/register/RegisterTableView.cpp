#include "register/RegisterTableView.h"

#include "register/PayeeMemoEditor.h"
#include "register/RegisterColumn.h"
#include "register/RegisterDelegate.h"
#include "register/RegisterScreen.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTimer>

namespace {

bool isTabKey(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
}

bool goesBack(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Backtab || key.modifiers() & Qt::ShiftModifier;
}

} // namespace

RegisterTableView::RegisterTableView(RegisterScreen *screen, QWidget *parent)
    : QTableView(parent)
    , m_screen(screen)
{
    setAlternatingRowColors(true);
    setSelectionBehavior(QAbstractItemView::SelectItems);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setFocusPolicy(Qt::StrongFocus);
    setShowGrid(false);
    setWordWrap(false);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::DoubleClicked);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(RegisterDelegate::kRowHeight);
    verticalHeader()->setDefaultSectionSize(RegisterDelegate::kRowHeight);

    QHeaderView *header = horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setStretchLastSection(false);
    header->setMinimumSectionSize(24);
    header->setSortIndicatorShown(true);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
}

QWidget *RegisterTableView::activeEditor() const
{
    return isEditing() ? indexWidget(currentIndex()) : nullptr;
}

void RegisterTableView::dropActiveEditor()
{
    m_hop = Hop::None;
    if (QWidget *editor = activeEditor())
        closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
}

bool RegisterTableView::event(QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !isTabKey(*static_cast<QKeyEvent *>(event))
        || PayeeMemoEditor::around(QApplication::focusWidget()))
        return QTableView::event(event);

    // With no editor open, Tab walks like the arrow keys and opens the cell that it comes to.
    const auto &key = *static_cast<QKeyEvent *>(event);
    QKeyEvent step(QEvent::KeyPress, goesBack(key) ? Qt::Key_Left : Qt::Key_Right, Qt::NoModifier);
    QTableView::event(&step);
    if (currentIndex().isValid())
        edit(currentIndex());
    return true;
}

void RegisterTableView::keyPressEvent(QKeyEvent *event)
{
    if (isTabKey(*event)) {
        moveToField(!goesBack(*event));
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

bool RegisterTableView::focusNextPrevChild(bool next)
{
    if (!m_screen)
        return QTableView::focusNextPrevChild(next);
    if (PayeeMemoEditor::around(QApplication::focusWidget()))
        return m_screen->focusNextPrevChild(next);
    moveToField(next);
    return true;
}

void RegisterTableView::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool hops = hint == QAbstractItemDelegate::EditNextItem
        || hint == QAbstractItemDelegate::EditPreviousItem;
    // The view sees the focus of a plain editor only. One that hides with the focus inside it would
    // pass it on to the next field, and so open that.
    const QWidget *focused = QApplication::focusWidget();
    if (editor && focused != editor && editor->isAncestorOf(focused))
        setFocus();
    if (!hops || !m_screen) {
        QTableView::closeEditor(editor, hint);
        return;
    }
    m_hopFrom = currentIndex();
    QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
    // The view has to be done with the old editor before the next one opens.
    m_hop = hint == QAbstractItemDelegate::EditNextItem ? Hop::Next : Hop::Previous;
    QTimer::singleShot(0, this, &RegisterTableView::finishHop);
}

bool RegisterTableView::finishHop()
{
    const Hop hop = std::exchange(m_hop, Hop::None);
    if (hop == Hop::None || !m_hopFrom.isValid())
        return false;
    setCurrentIndex(m_hopFrom);
    moveToField(hop == Hop::Next);
    return true;
}

void RegisterTableView::moveToField(bool next)
{
    if (!m_screen)
        return;
    if (next)
        m_screen->moveToNextField();
    else
        m_screen->moveToPreviousField();
}

QModelIndex RegisterTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex index = QTableView::moveCursor(action, modifiers);
    if (index.column() != RegisterColumn::Balance)
        return index;
    int column = RegisterColumn::kLastNavigable;
    while (column > RegisterColumn::kFirstNavigable && isColumnHidden(column))
        --column;
    return index.siblingAtColumn(column);
}
