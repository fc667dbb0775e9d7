#pragma once

#include <QCompleter>

class QKeyEvent;

// A completer inside a grid cell: Tab takes the highlighted entry and moves on, where a plain
// completer would only close its list.
class TabCompleter : public QCompleter
{
    Q_OBJECT

public:
    // Offers every entry of the model that holds the typed letters anywhere.
    TabCompleter(QAbstractItemModel *model, QWidget *editor);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void takeHighlighted();
    void leaveCell(const QKeyEvent &key);
};
