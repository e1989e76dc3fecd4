#pragma once

#include <QWidget>

namespace zolv {

class Binding;

/// The page of the tyres: what can be set on top, below it the figures and the drawings of the analysed tyre.
class TyresPageView : public QWidget {
public:
    explicit TyresPageView(Binding& binding, QWidget* parent = nullptr);
};

}  // namespace zolv
