#include "register/RegisterLineEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>

bool RegisterLineEdit::event(QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !completer() || !completer()->popup()->isVisible())
        return QLineEdit::event(event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QLineEdit::event(event);

    QAbstractItemView *popup = completer()->popup();
    const QModelIndex highlighted = popup->currentIndex();
    if (highlighted.isValid())
        setText(highlighted.data(Qt::DisplayRole).toString());
    popup->hide();
    event->accept();
    return true;
}
