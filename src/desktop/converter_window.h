#pragma once

#include "desktop/secondary_window.h"

class QGroupBox;

namespace zolv {

/// The unit converter.
class ConverterWindow : public SecondaryWindow {
public:
    explicit ConverterWindow(Binding& binding, QWidget* parent = nullptr);

private:
    QGroupBox* MakeUnitRows();
    QGroupBox* MakeTyreRow();
};

}  // namespace zolv
