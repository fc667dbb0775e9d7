#include "register/RegisterDelegate.h"

#include "core/Dates.h"
#include "core/state/AppState.h"
#include "data/CategoryRepository.h"
#include "register/CategoryChoices.h"
#include "register/DateInput.h"
#include "register/PayeeFill.h"
#include "register/PayeeMemoEditor.h"
#include "register/RegisterColumn.h"
#include "register/RegisterComboBox.h"
#include "register/RegisterModel.h"
#include "register/SmartDateEdit.h"
#include "register/TabCompleter.h"
#include "register/TwoLineCellPainter.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStringListModel>

using namespace Qt::StringLiterals;

RegisterDelegate::RegisterDelegate(AppState *appState, RegisterModel *model, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_appState(appState)
    , m_model(model)
{
}

void RegisterDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    if (!m_twoLineMode) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem prepared = option;
    initStyleOption(&prepared, index);
    TwoLineCellPainter::paint(painter, prepared, index);
}

QSize RegisterDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    if (m_twoLineMode)
        size.setHeight(kTwoLineRowHeight);
    return size;
}

QWidget *RegisterDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &index) const
{
    QWidget *editor = nullptr;
    switch (index.column()) {
    case RegisterColumn::Date:
        editor = new SmartDateEdit(parent);
        break;
    case RegisterColumn::Payee:
        editor = createPayeeEditor(parent);
        break;
    case RegisterColumn::Category:
        editor = createCategoryEditor(parent);
        break;
    default: {
        auto *line = new RegisterLineEdit(parent);
        if (index.column() == RegisterColumn::Payment || index.column() == RegisterColumn::Deposit)
            line->setAlignment(Qt::AlignRight);
        if (index.column() == RegisterColumn::Clr) {
            line->setMaxLength(1);
            line->setAlignment(Qt::AlignCenter);
        }
        editor = line;
        break;
    }
    }
    editor->setAccessibleName(m_model->spokenColumnName(index.column()));
    // Tab must not wander into an editor by itself: the screen moves from cell to cell.
    editor->setFocusPolicy(Qt::ClickFocus);
    return editor;
}

QWidget *RegisterDelegate::createPayeeEditor(QWidget *parent) const
{
    if (!m_twoLineMode) {
        auto *line = new RegisterLineEdit(parent);
        completePayee(line);
        return line;
    }
    auto *both = new PayeeMemoEditor(parent);
    both->payeeEdit()->setAccessibleName(m_model->spokenColumnName(RegisterColumn::Payee));
    both->memoEdit()->setAccessibleName(m_model->spokenColumnName(RegisterColumn::Memo));
    completePayee(both->payeeEdit());
    return both;
}

void RegisterDelegate::completePayee(RegisterLineEdit *editor) const
{
    auto *model = new QStringListModel(payeeSuggestions(*m_appState, m_accountId), editor);
    auto *completer = new TabCompleter(model, editor);
    editor->setCompleter(completer);
    // Not the editor as context: when it loses the focus it drops every connection to itself.
    connect(completer, qOverload<const QString &>(&QCompleter::activated), completer,
            [this, editor](const QString &payee) { onPayeeCompleted(editor, payee); });
}

QWidget *RegisterDelegate::createCategoryEditor(QWidget *parent) const
{
    auto *combo = new RegisterComboBox(parent);
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->addItem(QString(), QString()); // no category
    CategoryChoices::addPaths(*combo, m_appState->categories()->listActive());
    auto *completer = new TabCompleter(combo->model(), combo);
    combo->setCompleter(completer);
    connect(completer, qOverload<const QString &>(&QCompleter::activated), combo,
            [combo](const QString &text) {
                if (const int found = CategoryChoices::find(*combo, text); found >= 0)
                    combo->setCurrentIndex(found);
            });
    connect(combo, &QComboBox::currentIndexChanged, combo,
            [combo] { combo->setProperty("_kestCategoryId", combo->currentData()); });
    return combo;
}

void RegisterDelegate::onPayeeCompleted(RegisterLineEdit *editor, const QString &payee) const
{
    if (m_model->editRow() >= 0)
        return; // a stored row keeps its own amount and category
    // What stands in the editor goes first, or the row's old texts would come back over it.
    QLineEdit *memo = PayeeMemoEditor::memoEditBeside(editor);
    m_model->buffers().payee = payee;
    if (memo)
        m_model->buffers().memo = memo->text();
    fillInsertionRow(payee);
    if (memo)
        memo->setText(m_model->buffers().memo);
    const int row = m_model->insertionRow();
    Q_EMIT m_model->dataChanged(m_model->index(row, 0),
                                m_model->index(row, RegisterColumn::kCount - 1));
}

void RegisterDelegate::fillInsertionRow(const QString &payee) const
{
    fillFromLastTransaction(*m_appState, m_accountId, payee, m_model->buffers());
}

void RegisterDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto *dateEdit = qobject_cast<SmartDateEdit *>(editor)) {
        const QDate date = dateFromText(text, u"M/d/yyyy"_s);
        if (date.isValid())
            dateEdit->setDate(date);
    } else if (auto *both = qobject_cast<PayeeMemoEditor *>(editor)) {
        both->payeeEdit()->setText(text);
        both->memoEdit()->setText(
            index.siblingAtColumn(RegisterColumn::Memo).data(Qt::EditRole).toString());
    } else if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        if (const int found = CategoryChoices::find(*combo, text); found >= 0)
            combo->setCurrentIndex(found);
        else
            combo->setCurrentText(text);
        combo->lineEdit()->selectAll();
    } else if (auto *line = qobject_cast<QLineEdit *>(editor)) {
        line->setText(text);
    }
}

void RegisterDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                    const QModelIndex &index) const
{
    // An editor that closes late must not write its text into the row entered meanwhile.
    if (!m_model->ownsBuffers(index.row()))
        return;
    const bool insertion = m_model->editRow() < 0;
    if (auto *dateEdit = qobject_cast<SmartDateEdit *>(editor)) {
        model->setData(index, DateInput::toText(dateEdit->date()), Qt::EditRole);
    } else if (auto *both = qobject_cast<PayeeMemoEditor *>(editor)) {
        m_model->buffers().memo = both->memoEdit()->text();
        m_model->buffers().payee = both->payeeEdit()->text();
        if (insertion)
            fillInsertionRow(both->payeeEdit()->text().trimmed());
    } else if (auto *combo = qobject_cast<QComboBox *>(editor)) {
        takeCategory(*combo, index);
    } else if (auto *line = qobject_cast<QLineEdit *>(editor)) {
        model->setData(index, line->text(), Qt::EditRole);
        if (insertion && index.column() == RegisterColumn::Payee)
            fillInsertionRow(line->text().trimmed());
    }
}

// The box keeps its last picked item while other words are typed over it, and a subcategory shows
// under its bare name, which is no item's or another category's. What is saved has to be what the
// cell shows: the category that stood there if its name was left alone, else the item of exactly
// this text, else none, and the name decides when the row is saved.
void RegisterDelegate::takeCategory(const QComboBox &combo, const QModelIndex &index) const
{
    RegisterEditBuffers &buffers = m_model->buffers();
    const QString text = combo.currentText();
    QString id;
    if (text == buffers.category && !buffers.category_id.isEmpty())
        id = buffers.category_id;
    else if (combo.itemText(combo.currentIndex()) == text)
        id = combo.currentData().toString();
    else if (const int found = CategoryChoices::find(combo, text); found >= 0)
        id = combo.itemData(found).toString();
    m_model->setData(index, text, Qt::EditRole);
    buffers.category_id = id;
}

void RegisterDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    if (!m_twoLineMode) {
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
        return;
    }
    QRect place = option.rect;
    if (index.column() != RegisterColumn::Payee)
        place.setHeight(kRowHeight);
    editor->setGeometry(place);
}

bool RegisterDelegate::eventFilter(QObject *watched, QEvent *event)
{
    // Enter belongs to the screen, which moves on to the next cell. The base class would close the
    // editor a second time from the event queue, when the next cell's is already open.
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return false;
        if (RegisterLineEdit::belongsToGrid(*static_cast<QKeyEvent *>(event))) {
            event->ignore();
            return true;
        }
    }
    // On X11 the activation of a completion list can arrive after the list has gone again. The
    // editor has lost nothing then: the keys that follow are still meant for it.
    if (event->type() == QEvent::FocusOut) {
        const QWidget *active = QApplication::activeWindow();
        if (active && active->windowType() == Qt::Popup)
            return false;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}
