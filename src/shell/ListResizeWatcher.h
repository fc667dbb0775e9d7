#pragma once

#include <QObject>

#include <functional>

// Calls a function whenever the widget whose event filter it is gets a new size or is shown.
class ListResizeWatcher : public QObject
{
    Q_OBJECT

public:
    explicit ListResizeWatcher(std::function<void()> onResize, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override; // always passes the event on

private:
    std::function<void()> m_onResize;
};
