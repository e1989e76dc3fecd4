#pragma once

#include "desktop/binding.h"

namespace zolv {

/// Words that come and go and wrap: they keep the room of `lines` lines, so that nothing below them moves, and never
/// make their window wider.
QLabel* MakeNoteLines(Binding& binding, Label& field, QWidget* parent, int lines);

}  // namespace zolv
