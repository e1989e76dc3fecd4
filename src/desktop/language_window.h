#pragma once

#include "desktop/secondary_window.h"

namespace zolv {

/// The window that chooses the language.
class LanguageWindow : public SecondaryWindow {
public:
    explicit LanguageWindow(Binding& binding, QWidget* parent = nullptr);
};

}  // namespace zolv
