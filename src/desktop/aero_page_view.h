#pragma once

#include <QWidget>

#include "drawing/canvas.h"

namespace zolv {

class Binding;

/// The page of the air: speed and wings on top, below them what the air does to each part of the car. The parts that a
/// car can be without stand last in their columns, so that those it lacks leave no holes. At the bottom drag and
/// downforce over the speed.
class AeroPageView : public QWidget {
public:
    explicit AeroPageView(Binding& binding, QWidget* parent = nullptr);

private:
    Canvas plot_{4000, 1000};
};

}  // namespace zolv
