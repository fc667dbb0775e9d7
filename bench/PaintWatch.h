#pragma once

#include <QList>
#include <QObject>

class QWidget;

// Waits until widgets have been painted anew, which is when a person sees what was asked for.
class PaintWatch : public QObject
{
    Q_OBJECT

public:
    explicit PaintWatch(const QList<QWidget *> &widgets);

    void start(); // forgets the paints so far
    void wait(); // ends the process when nothing is painted for ten seconds

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QList<QWidget *> m_widgets;
    QList<QObject *> m_unpainted{};
};
