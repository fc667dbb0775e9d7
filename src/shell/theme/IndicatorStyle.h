#pragma once

#include <QProxyStyle>

// The desktop's style, with check boxes and radio buttons whose edges show on a dark palette too.
class IndicatorStyle : public QProxyStyle
{
    Q_OBJECT

public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
};
