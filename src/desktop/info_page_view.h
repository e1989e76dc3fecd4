#pragma once

#include <QWidget>

namespace zolv {

class Binding;

/// The page that describes the selected car: figures on the left, its picture and its engine on the right.
class InfoPageView : public QWidget {
public:
    explicit InfoPageView(Binding& binding, QWidget* parent = nullptr);
};

}  // namespace zolv
