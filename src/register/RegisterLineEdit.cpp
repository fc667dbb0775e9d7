#include "register/RegisterLineEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

bool RegisterLineEdit::belongsToGrid(const QKeyEvent &key)
{
    return key.key() == Qt::Key_D && key.modifiers() & Qt::ControlModifier;
}

bool RegisterLineEdit::event(QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QLineEdit::event(event);
    const auto &key = *static_cast<QKeyEvent *>(event);
    if (belongsToGrid(key)) {
        event->ignore();
        return true;
    }
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (!enter || !completer() || !completer()->popup()->isVisible())
        return QLineEdit::event(event);

    QAbstractItemView *popup = completer()->popup();
    const QModelIndex highlighted = popup->currentIndex();
    if (highlighted.isValid())
        setText(highlighted.data(Qt::DisplayRole).toString());
    popup->hide();
    event->accept();
    return true;
}
