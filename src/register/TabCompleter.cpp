#include "register/TabCompleter.h"

#include "register/PayeeMemoEditor.h"

#include <QAbstractItemDelegate>
#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

TabCompleter::TabCompleter(QAbstractItemModel *model, QWidget *editor)
    : QCompleter(model, editor)
{
    setCaseSensitivity(Qt::CaseInsensitive);
    setFilterMode(Qt::MatchContains);
    setCompletionMode(QCompleter::PopupCompletion);
}

bool TabCompleter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !widget() || !popup()->isVisible())
        return QCompleter::eventFilter(watched, event);
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (key.key() != Qt::Key_Tab && key.key() != Qt::Key_Backtab)
        return QCompleter::eventFilter(watched, event);

    takeHighlighted();
    popup()->hide();
    if (QLineEdit *memo = PayeeMemoEditor::memoEditBeside(widget()))
        memo->setFocus(); // also on Shift+Tab: the line above is the one just completed
    else
        leaveCell(key);
    return true;
}

void TabCompleter::takeHighlighted()
{
    const QString text = popup()->currentIndex().data(Qt::DisplayRole).toString();
    if (text.isEmpty())
        return;
    if (auto *line = qobject_cast<QLineEdit *>(widget())) {
        line->setText(text);
    } else if (auto *combo = qobject_cast<QComboBox *>(widget())) {
        const int found =
            combo->findData(text, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
        if (found >= 0)
            combo->setCurrentIndex(found);
        else
            combo->setCurrentText(text);
    }
    Q_EMIT activated(text);
}

void TabCompleter::leaveCell(const QKeyEvent &key)
{
    const bool back = key.key() == Qt::Key_Backtab || key.modifiers() & Qt::ShiftModifier;
    for (QWidget *parent = widget()->parentWidget(); parent; parent = parent->parentWidget()) {
        const auto *view = qobject_cast<QAbstractItemView *>(parent);
        if (!view)
            continue;
        QAbstractItemDelegate *delegate = view->itemDelegate();
        QWidget *editor = widget();
        Q_EMIT delegate->commitData(editor);
        Q_EMIT delegate->closeEditor(editor,
                                     back ? QAbstractItemDelegate::EditPreviousItem
                                          : QAbstractItemDelegate::EditNextItem);
        return;
    }
}
