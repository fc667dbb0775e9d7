#pragma once

#include <QLabel>

namespace KestAccount {

// A line of plain text in the application's font, some points larger or smaller and never below 7
// points.
class PageLabel : public QLabel
{
    Q_OBJECT

public:
    explicit PageLabel(const QString &text, int morePoints = 0,
                       QFont::Weight weight = QFont::Normal, QWidget *parent = nullptr);

    static PageLabel *muted(const QString &text, int morePoints); // in the palette's quiet colour

    void takeFont(); // anew, after the application's has changed: Qt tells only the windows
    void wrapWords(); // and gets narrower than its longest word where it must

private:
    int m_morePoints;
    QFont::Weight m_weight;
};

} // namespace KestAccount
