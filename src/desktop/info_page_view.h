#pragma once

#include <QWidget>

namespace zolv {

class Binding;

/// The page that describes the selected car: its figures, its picture, and its engine as a plot.
class InfoPageView : public QWidget {
public:
    explicit InfoPageView(Binding& binding, QWidget* parent = nullptr);
};

}  // namespace zolv
