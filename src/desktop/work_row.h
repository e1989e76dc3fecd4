#pragma once

#include <functional>

#include "desktop/binding.h"

class QHBoxLayout;
class QPushButton;

namespace zolv {

/// A piece of work that runs beside the window.
struct WorkRow {
    QPushButton& start;
    QPushButton& stop;
    Label& progress;
    std::function<bool()> running;
    std::function<double()> done;  // share of the work
};

/// Start, stop and a bar of the progress in one row; stop can be pressed while the work runs.
void FillWorkRow(Binding& binding, QHBoxLayout& row, const WorkRow& work);

}  // namespace zolv
