#include "kestupdate/HeadingLabel.h"

#include <QApplication>
#include <QEvent>

using namespace Qt::StringLiterals;

namespace KestUpdate {

HeadingLabel::HeadingLabel(const QString &text, int morePoints, QWidget *parent)
    : QLabel(text, parent)
    , m_morePoints(morePoints)
{
    setObjectName(u"headingLabel"_s);
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    enlarge();
}

void HeadingLabel::enlarge()
{
    QFont larger = QApplication::font(this);
    larger.setWeight(QFont::Bold);
    if (larger.pointSizeF() > 0) // a font may have its size in pixels
        larger.setPointSizeF(larger.pointSizeF() + m_morePoints);
    setFont(larger);
}

bool HeadingLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        enlarge();
    return QLabel::event(event);
}

} // namespace KestUpdate
