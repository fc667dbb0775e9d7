#include "shell/ListResizeWatcher.h"

#include <QEvent>

ListResizeWatcher::ListResizeWatcher(std::function<void()> onResize, QObject *parent)
    : QObject(parent)
    , m_onResize(std::move(onResize))
{
}

bool ListResizeWatcher::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        m_onResize();
    return QObject::eventFilter(watched, event);
}
