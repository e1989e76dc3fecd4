#pragma once

#include <QColor>
#include <QImage>

namespace zolv {

/// A picture of a car stands on a bright plate, which glares in a dark window. This lays the picture on another ground:
/// what is connected with the edge and nearly as bright as the plate takes the colour of the ground, with shadows and
/// lines on the plate a little darker than it. A picture without such a plate comes back as it was.
[[nodiscard]] QImage OnGround(const QImage& picture, const QColor& ground);

}  // namespace zolv
