#pragma once

#include <QLabel>

namespace KestUpdate {

// The first line of a dialog: bold, and larger than the other text by some points.
class HeadingLabel : public QLabel
{
    Q_OBJECT

public:
    HeadingLabel(const QString &text, int morePoints, QWidget *parent = nullptr);

protected:
    bool event(QEvent *event) override;

private:
    void enlarge();

    int m_morePoints;
};

} // namespace KestUpdate
