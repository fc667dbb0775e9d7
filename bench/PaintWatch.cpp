#include "PaintWatch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QWidget>

PaintWatch::PaintWatch(const QList<QWidget *> &widgets)
    : m_widgets(widgets)
{
    for (QWidget *widget : m_widgets)
        widget->installEventFilter(this);
}

void PaintWatch::start()
{
    m_unpainted.clear();
    for (QWidget *widget : m_widgets)
        m_unpainted << widget;
}

void PaintWatch::wait()
{
    QElapsedTimer timer;
    timer.start();
    while (!m_unpainted.isEmpty()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        if (timer.elapsed() > 10000)
            qFatal("bench: a widget was not painted");
    }
}

bool PaintWatch::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && m_unpainted.removeAll(watched) > 0)
        m_paintedAt = std::chrono::steady_clock::now();
    return QObject::eventFilter(watched, event);
}
