#include "register/RegisterNavigator.h"

#include "register/PayeeMemoEditor.h"
#include "register/RegisterColumn.h"
#include "register/RegisterLineEdit.h"
#include "register/RegisterModel.h"
#include "register/RegisterTableView.h"

#include <QAbstractItemDelegate>
#include <QItemSelectionModel>
#include <QSignalBlocker>

RegisterNavigator::RegisterNavigator(RegisterTableView *view, RegisterModel *model)
    : m_view(view)
    , m_model(model)
{
}

void RegisterNavigator::commitActiveEditor()
{
    QWidget *editor = m_view->activeEditor();
    if (!editor)
        return;
    QAbstractItemDelegate *delegate = m_view->itemDelegate();
    delegate->setModelData(editor, m_model, m_view->currentIndex());
    if (qobject_cast<PayeeMemoEditor *>(editor)) {
        m_view->setFocus();
        Q_EMIT delegate->closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

bool RegisterNavigator::openNextField()
{
    const int next = columnAfter(m_view->currentIndex().column());
    commitActiveEditor();
    if (next >= 0)
        openField(next);
    return next >= 0;
}

bool RegisterNavigator::openPreviousField()
{
    const int previous = columnBefore(m_view->currentIndex().column());
    commitActiveEditor();
    if (previous < 0)
        return false;
    openField(previous);
    enterMemoLine();
    return true;
}

void RegisterNavigator::hopToNextField()
{
    const int next = columnAfter(m_view->currentIndex().column());
    commitActiveEditor();
    if (next >= 0)
        hopToField(next);
}

void RegisterNavigator::hopToPreviousField()
{
    const int previous = columnBefore(m_view->currentIndex().column());
    commitActiveEditor();
    if (previous < 0)
        return;
    hopToField(previous);
    enterMemoLine();
}

int RegisterNavigator::columnAfter(int column) const
{
    const int first =
        column == RegisterColumn::Balance ? RegisterColumn::kFirstNavigable : column + 1;
    for (int next = first; next <= RegisterColumn::kLastNavigable; ++next) {
        if (!m_view->isColumnHidden(next))
            return next;
    }
    return -1;
}

int RegisterNavigator::columnBefore(int column) const
{
    for (int next = column - 1; next >= RegisterColumn::kFirstNavigable; --next) {
        if (!m_view->isColumnHidden(next))
            return next;
    }
    return -1;
}

void RegisterNavigator::openField(int column)
{
    const QModelIndex target = m_view->currentIndex().siblingAtColumn(column);
    m_view->setCurrentIndex(target);
    if (target.flags() & Qt::ItemIsEditable)
        m_view->edit(target);
}

void RegisterNavigator::hopToField(int column)
{
    // The view does not hear of the move, so it would leave the old editor standing.
    m_view->dropActiveEditor();
    const QModelIndex target = m_view->currentIndex().siblingAtColumn(column);
    {
        const QSignalBlocker quiet(m_view->selectionModel());
        m_view->setCurrentIndex(target);
    }
    m_view->scrollTo(target);
    m_view->viewport()->update();
    if (target.flags() & Qt::ItemIsEditable)
        m_view->edit(target);
}

void RegisterNavigator::enterMemoLine()
{
    if (m_view->currentIndex().column() != RegisterColumn::Payee)
        return;
    if (const auto *editor = qobject_cast<PayeeMemoEditor *>(m_view->activeEditor()))
        editor->memoEdit()->setFocus();
}
