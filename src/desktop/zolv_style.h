#pragma once

#include <QProxyStyle>

namespace zolv {

/// Fusion, with check boxes and option buttons that can be told on a dark ground, too: a clear outline, and filled with
/// the accent when chosen.
class ZolvStyle : public QProxyStyle {
public:
    ZolvStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

}  // namespace zolv
