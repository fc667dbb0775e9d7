#include "register/RegisterScreen.h"

#include "core/state/AppState.h"
#include "data/AccountRepository.h"
#include "data/PreferencesRepository.h"
#include "data/TransactionRepository.h"
#include "register/PayeeMemoEditor.h"
#include "register/RegisterColumn.h"
#include "register/RegisterColumnLayout.h"
#include "register/RegisterDelegate.h"
#include "register/RegisterFooter.h"
#include "register/RegisterHeader.h"
#include "register/RegisterLineEdit.h"
#include "register/RegisterModel.h"
#include "register/RegisterPosition.h"
#include "register/RegisterRowActions.h"
#include "register/RegisterRowWriter.h"
#include "register/RegisterTableView.h"
#include "register/TransactionMemorizing.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 24; // pixels

QString nativeKeys(const QString &keys)
{
    return QKeySequence(keys).toString(QKeySequence::NativeText);
}

// The menu bar has another use for this key, which the grid takes only while it has the focus.
bool isInsertKey(const QKeyEvent &key)
{
    return key.key() == Qt::Key_I && key.modifiers() & Qt::ControlModifier
        && !(key.modifiers() & Qt::ShiftModifier);
}

} // namespace

RegisterScreen::RegisterScreen(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_model(new RegisterModel(this))
    , m_view(new RegisterTableView(this, this))
    , m_delegate(new RegisterDelegate(appState, m_model, this))
    , m_navigator(m_view, m_model)
    , m_rowActions(new RegisterRowActions(appState, m_model, this))
    , m_header(new RegisterHeader(this))
    , m_footer(new RegisterFooter(keyHints(), this))
{
    setUpView();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_header);
    layout->addSpacing(8);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_footer);
    connectView();
    connect(m_header, &RegisterHeader::reconcileClicked, this,
            [this] { Q_EMIT reconcileRequested(m_accountId); });
    m_columnLayout = new RegisterColumnLayout(appState, m_view, m_model, this);
    setFocusProxy(m_view);
}

QString RegisterScreen::keyHints()
{
    return tr("%1: save  |  Enter: next  |  %2: delete  |  %3: memorize  |  ': copy above")
        .arg(nativeKeys(u"Ctrl+Return"_s), nativeKeys(u"Ctrl+D"_s), nativeKeys(u"Ctrl+M"_s));
}

void RegisterScreen::setUpView()
{
    m_view->setObjectName(u"registerTable"_s);
    m_view->setModel(m_model);
    m_view->setItemDelegate(m_delegate);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    m_view->setSortingEnabled(true);
}

void RegisterScreen::connectView()
{
    connect(m_view->horizontalHeader(), &QWidget::customContextMenuRequested, this,
            &RegisterScreen::showHeaderContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &RegisterScreen::onContextMenu);
    connect(m_view, &QAbstractItemView::clicked, this, &RegisterScreen::onClicked);
    connect(m_view, &QAbstractItemView::doubleClicked, this, &RegisterScreen::onDoubleClicked);
    connect(m_rowActions, &RegisterRowActions::stored, this, &RegisterScreen::refreshAfterWrite);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current, const QModelIndex &previous) {
                if (current.isValid() && !(previous.isValid() && previous.row() == current.row()))
                    startEditingRow(current.row());
            });
    // A sort moves the rows under the number of the row being edited; saved then, its texts would
    // land in another transaction.
    connect(m_model, &RegisterModel::sortChanged, this, [this] {
        if (m_model->editRow() < 0)
            return;
        m_model->setEditRow(-1);
        m_model->resetInsertionBuffers();
    });
}

void RegisterScreen::setAccount(const QString &accountId)
{
    // A refresh spares an open editor; here it would leave the other account's rows in the grid.
    m_view->dropActiveEditor();
    m_accountId = accountId;
    m_delegate->setAccountId(accountId);
    refresh();
    goToInsertionRow();
}

void RegisterScreen::refresh()
{
    // A sync may end in the turn of the event loop between two editors of a row.
    if (m_accountId.isEmpty() || m_view->isEditing() || m_view->isHopping())
        return;
    const auto account = m_appState->accounts()->findById(m_accountId);
    if (!account)
        return;
    const RegisterPosition before = RegisterPosition::of(*m_view, *m_model);
    QList<RegisterRow> rows = m_appState->transactions()->registerRows(m_accountId);
    applyTwoLineMode();
    m_view->setAccessibleName(account->name);
    m_header->showAccount(*account,
                          rows.isEmpty() ? account->starting_balance : rows.last().balance);
    m_model->setRows(std::move(rows));
    before.restore(*m_view, *m_model);
}

void RegisterScreen::refreshAfterWrite()
{
    m_view->dropActiveEditor();
    refresh();
}

void RegisterScreen::applyTwoLineMode()
{
    const bool enabled = m_appState->preferences()->getBool(u"registerTwoLine"_s, false);
    const int height = enabled ? RegisterDelegate::kTwoLineRowHeight : RegisterDelegate::kRowHeight;
    m_delegate->setTwoLineMode(enabled);
    m_columnLayout->setTwoLineMode(enabled);
    m_model->setTwoLineMode(enabled);
    Q_EMIT m_model->headerDataChanged(Qt::Horizontal, RegisterColumn::Payee, RegisterColumn::Payee);
    if (m_view->verticalHeader()->defaultSectionSize() != height)
        m_view->verticalHeader()->setDefaultSectionSize(height);
    m_view->viewport()->update();
}

void RegisterScreen::goToInsertionRow()
{
    const int row = m_model->insertionRow();
    if (row == 0)
        m_view->scrollToTop();
    else
        m_view->scrollToBottom();
    m_view->setCurrentIndex(m_model->index(row, RegisterColumn::Date));
}

void RegisterScreen::showMessage(const QString &text, int milliseconds)
{
    m_footer->showMessage(text, milliseconds);
}

void RegisterScreen::startEditingRow(int row)
{
    if (row == m_model->insertionRow()) {
        if (m_model->editRow() >= 0)
            m_model->resetInsertionBuffers();
        m_model->setEditRow(-1);
    } else if (row != m_model->editRow()) {
        m_model->loadRowIntoBuffers(row);
        m_model->setEditRow(row);
    }
    m_view->viewport()->update(); // the insertion row looks different beside a row under edit
}

bool RegisterScreen::splitLinesOwn(const QModelIndex &index) const
{
    return m_model->isSplitRow(index.row()) && RegisterColumn::belongsToSplitLines(index.column());
}

void RegisterScreen::onClicked(const QModelIndex &index)
{
    if (!index.isValid())
        return;
    startEditingRow(index.row());
    if (index.column() != RegisterColumn::Balance && !splitLinesOwn(index))
        m_view->edit(index);
}

void RegisterScreen::onDoubleClicked(const QModelIndex &index)
{
    if (m_model->isSplitRow(index.row()))
        m_rowActions->editInDialog(index.row());
}

void RegisterScreen::commitCurrentRow()
{
    m_navigator.commitActiveEditor();
    m_view->setCurrentIndex({});
    const int editRow = m_model->editRow();
    const RegisterRow *stored = editRow < 0 ? nullptr : m_model->rowAt(editRow);
    RegisterRowWriter writer(*m_appState, m_accountId);
    const auto outcome = stored ? writer.saveChanges(*stored, m_model->buffers())
                                : writer.saveNew(m_model->buffers());
    switch (outcome) {
    case RegisterRowWriter::Outcome::Refused:
        showMessage(writer.message());
        return;
    case RegisterRowWriter::Outcome::CurrenciesDiffer:
        Q_EMIT errorMessage(writer.message());
        return;
    case RegisterRowWriter::Outcome::Saved:
        break;
    }
    if (!stored) {
        m_model->setLastEnteredDate(m_model->buffers().date);
        refresh();
        goToInsertionRow();
        return;
    }
    refresh();
    if (editRow + 1 < m_model->rowCount())
        m_view->setCurrentIndex(m_model->index(editRow + 1, RegisterColumn::Date));
}

void RegisterScreen::copyFromAbove()
{
    const QModelIndex index = m_view->currentIndex();
    if (!(index.flags() & Qt::ItemIsEditable) || index.row() == 0)
        return;
    const RegisterRow *above = m_model->rowAt(index.row() - 1);
    if (!above)
        return; // the insertion row on top shares its texts with this one
    const QVariant value = index.sibling(index.row() - 1, index.column()).data(Qt::EditRole);
    m_model->setData(index, value);
    if (index.column() == RegisterColumn::Category)
        m_model->buffers().category_id = above->category_id; // or the old one would be saved
    if (auto *line = qobject_cast<QLineEdit *>(m_view->activeEditor()))
        line->setText(value.toString());
}

void RegisterScreen::advanceToNextField()
{
    if (m_view->currentIndex().isValid() && !m_navigator.openNextField())
        commitCurrentRow();
}

void RegisterScreen::advanceToPreviousField()
{
    if (m_view->currentIndex().isValid())
        m_navigator.openPreviousField();
}

void RegisterScreen::moveToNextField()
{
    if (m_view->currentIndex().isValid())
        m_navigator.hopToNextField();
}

void RegisterScreen::moveToPreviousField()
{
    if (m_view->currentIndex().isValid())
        m_navigator.hopToPreviousField();
}

bool RegisterScreen::focusNextPrevChild(bool next)
{
    QWidget *focused = QApplication::focusWidget();
    if (focused && focused != m_view && !m_view->isAncestorOf(focused))
        return QWidget::focusNextPrevChild(next);
    const PayeeMemoEditor *both = PayeeMemoEditor::around(focused);
    if (both && next && focused == both->payeeEdit()) {
        both->memoEdit()->setFocus(Qt::OtherFocusReason);
    } else if (both && !next && focused == both->memoEdit()) {
        both->payeeEdit()->setFocus(Qt::OtherFocusReason);
    } else if (next) {
        moveToNextField();
    } else {
        moveToPreviousField();
    }
    return true;
}

bool RegisterScreen::eventFilter(QObject *watched, QEvent *event)
{
    // A key that overtakes Tab's move belongs to the cell that the move leads to.
    if (event->type() == QEvent::KeyPress && watched == m_view && m_view->finishHop()) {
        QWidget *focused = QApplication::focusWidget();
        if (focused && focused != m_view && m_view->isAncestorOf(focused))
            return QCoreApplication::sendEvent(focused, event);
    }
    if (event->type() == QEvent::ShortcutOverride
        && isInsertKey(*static_cast<QKeyEvent *>(event))) {
        event->accept();
        return true;
    }
    const auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() == QEvent::KeyPress && widget
        && (widget == m_view || m_view->isAncestorOf(widget))
        && handleKey(*static_cast<QKeyEvent *>(event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

bool RegisterScreen::handleKey(const QKeyEvent &key)
{
    const bool ctrl = key.modifiers() & Qt::ControlModifier;
    const QModelIndex current = m_view->currentIndex();
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (ctrl)
            commitCurrentRow();
        else if (!(key.modifiers() & Qt::AltModifier))
            onEnter();
        else if (current.isValid())
            m_rowActions->showDetails(current.row());
        return true;
    case Qt::Key_D:
        if (ctrl)
            deleteCurrentRow();
        return ctrl;
    case Qt::Key_I:
        if (isInsertKey(key))
            insertNew();
        return isInsertKey(key);
    case Qt::Key_N:
        if (ctrl)
            newTransactionDialog();
        return ctrl;
    case Qt::Key_M:
        if (ctrl)
            memorizeCurrentRow();
        return ctrl;
    case Qt::Key_Apostrophe: {
        const bool copy = !ctrl && current.isValid() && current.row() > 0;
        if (copy)
            copyFromAbove();
        return copy;
    }
    default:
        return false;
    }
}

void RegisterScreen::onEnter()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid() || m_view->activeEditor()) {
        advanceToNextField();
        return;
    }
    if (splitLinesOwn(current)) {
        m_rowActions->editInDialog(current.row());
        return;
    }
    startEditingRow(current.row());
    if (current.flags() & Qt::ItemIsEditable)
        m_view->edit(current);
    else if (splitLinesOwn(current))
        advanceToNextField();
}

void RegisterScreen::insertNew()
{
    m_view->dropActiveEditor();
    m_model->resetInsertionBuffers();
    m_model->setEditRow(-1);
    const QModelIndex target = m_model->index(m_model->insertionRow(), RegisterColumn::Date);
    m_view->scrollTo(target, QAbstractItemView::EnsureVisible);
    m_view->setCurrentIndex(target);
    m_view->edit(target);
}

void RegisterScreen::deleteCurrentRow()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid())
        return;
    if (current.row() != m_model->insertionRow()) {
        m_rowActions->deleteRow(current.row());
        return;
    }
    m_view->dropActiveEditor();
    m_model->resetInsertionBuffers();
    Q_EMIT m_model->dataChanged(current.siblingAtColumn(0),
                                current.siblingAtColumn(RegisterColumn::kCount - 1));
    const QModelIndex first = current.siblingAtColumn(RegisterColumn::Date);
    m_view->setCurrentIndex(first);
    m_view->edit(first);
    showMessage(tr("Fields cleared"));
}

void RegisterScreen::memorizeCurrentRow()
{
    const RegisterRow *stored = m_model->rowAt(m_view->currentIndex().row());
    if (!stored)
        return;
    if (!canBeMemorized(stored->date))
        showMessage(tr("Cannot memorize: source transaction has an invalid date"), 5000);
    else if (memorizeTransaction(*m_appState, m_accountId, *stored, this))
        showMessage(tr("Transaction memorized as recurring"));
}

void RegisterScreen::newTransactionDialog()
{
    if (m_rowActions->addInDialog(m_accountId))
        goToInsertionRow();
}

void RegisterScreen::onContextMenu(QPoint pos)
{
    QMenu menu(this);
    menu.setObjectName(u"registerMenu"_s);
    const auto add = [this, &menu](const QString &text, const QKeySequence &shortcut,
                                   const auto &act) {
        QAction *action = menu.addAction(text);
        action->setShortcut(shortcut);
        action->setShortcutVisibleInContextMenu(true); // shown only: the grid itself hears the key
        connect(action, &QAction::triggered, this, act);
    };
    add(tr("&Insert New"), QKeySequence(u"Ctrl+I"_s), [this] { insertNew(); });
    add(tr("&New Transaction..."), QKeySequence::New, [this] { newTransactionDialog(); });
    const int row = m_view->indexAt(pos).row();
    if (const RegisterRow *stored = m_model->rowAt(row)) {
        menu.addSeparator();
        add(tr("Show &Details..."), QKeySequence(u"Alt+Return"_s),
            [this, row] { m_rowActions->showDetails(row); });
        add(stored->is_split ? tr("Edit &Splits...") : tr("&Edit in Dialog..."), {},
            [this, row] { m_rowActions->editInDialog(row); });
        add(stored->cleared ? tr("Mark &Uncleared") : tr("Mark &Cleared"), {},
            [this, row] { m_rowActions->toggleCleared(row); });
        add(tr("&Delete"), QKeySequence(u"Ctrl+D"_s),
            [this, row] { m_rowActions->deleteRow(row); });
    }
    menu.exec(m_view->viewport()->mapToGlobal(pos));
}

void RegisterScreen::showHeaderContextMenu(QPoint pos)
{
    m_columnLayout->showHeaderMenu(pos);
}

void RegisterScreen::resetColumnLayout()
{
    m_columnLayout->reset();
}
