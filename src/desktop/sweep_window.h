#pragma once

#include "desktop/secondary_window.h"

class QLayout;

namespace zolv {

/// Shows a result over one input as a curve, or over two as a map. A sweep runs beside the window, which stays usable.
class SweepView : public SecondaryWindow {
public:
    explicit SweepView(Binding& binding, QWidget* parent = nullptr);

private:
    QLayout* MakeInputs();
    QLayout* MakeWork();
    QLayout* MakePoint();
    void AddSavePng(CanvasView& plot);
};

}  // namespace zolv
