#pragma once

#include <QWidget>

namespace zolv {

class Binding;

/// The page of the air: speed and wings on top, below them what the air does to each part of the car. The parts that a
/// car can be without stand last in their columns, so that those it lacks leave no holes.
class AeroPageView : public QWidget {
public:
    explicit AeroPageView(Binding& binding, QWidget* parent = nullptr);
};

}  // namespace zolv
