#include "desktop/desktop.h"

#include "desktop/converter_window.h"
#include "desktop/language_window.h"
#include "desktop/main_window.h"
#include "desktop/options_window.h"
#include "desktop/presets_window.h"
#include "fields/windows.h"

namespace zolv {

Desktop::Desktop() {
    main_ = std::make_unique<MainWindow>(binding_);
    secondary_.push_back(std::make_unique<OptionsWindow>(binding_));
    secondary_.push_back(std::make_unique<PresetsWindow>(binding_));
    secondary_.push_back(std::make_unique<ConverterWindow>(binding_));
    secondary_.push_back(std::make_unique<LanguageWindow>(binding_));
    binding_.OnChanged(LanguageSelection.LanguageList, [this] { qtWords_.Follow(); });
}

Desktop::~Desktop() = default;

void Desktop::Open() {
    binding_.PaintChanged();
    binding_.Bind(Zolv, *main_);
}

}  // namespace zolv
