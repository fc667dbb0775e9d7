#pragma once

#include <QList>
#include <QObject>

#include <chrono>

class QWidget;

// Waits until widgets have been painted anew, which is when a person sees what was asked for.
class PaintWatch : public QObject
{
    Q_OBJECT

public:
    explicit PaintWatch(const QList<QWidget *> &widgets);

    void start(); // forgets the paints so far
    void wait(); // ends the process when nothing is painted for ten seconds

    // When the last of them was painted; the event loop may have had more to do after that.
    std::chrono::steady_clock::time_point paintedAt() const { return m_paintedAt; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QWidget *> m_widgets;
    QList<QObject *> m_unpainted{};
    std::chrono::steady_clock::time_point m_paintedAt{};
};
