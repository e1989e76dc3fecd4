#pragma once

#include <QWidget>

namespace zolv {

class Binding;

/// Names the set-up that is held, with buttons that swap it with the present one and let it go.
class HeldStrip : public QWidget {
public:
    HeldStrip(Binding& binding, QWidget* parent);
};

}  // namespace zolv
