#include "shell/theme/ElidedLabel.h"

#include <QPainter>
#include <QStyle>

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void ElidedLabel::setFullText(const QString &text)
{
    m_fullText = text;
    setText(text); // for screen readers and style sheets
    updateGeometry();
    update();
}

QSize ElidedLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    return {metrics.horizontalAdvance(m_fullText), metrics.height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    if (width() <= 0)
        return;
    QPainter painter(this);
    const QString visible = fontMetrics().elidedText(m_fullText, Qt::ElideRight, width());
    const int flags = static_cast<int>(QStyle::visualAlignment(layoutDirection(), alignment()));
    painter.drawText(rect(), flags | Qt::TextSingleLine, visible);
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    update();
}
