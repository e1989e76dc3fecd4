#pragma once

#include <QProxyStyle>

namespace zolv {

/// Set on a box or a list whose content is to be mended: it gets a frame in the colour of a fault.
inline constexpr const char* kFaultyProperty = "faulty";

/// A plain look on top of Fusion: flat buttons, lists and tabs, sliders whose handle can be told on every ground,
/// indicators that are filled when chosen, and groups that are a bold caption over a thin rule instead of a box.
class ZolvStyle : public QProxyStyle {
public:
    ZolvStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
};

}  // namespace zolv
