#include "desktop/desktop.h"

#include <QLocale>
#include <functional>
#include <utility>

#include "desktop/converter_window.h"
#include "desktop/finder_window.h"
#include "desktop/language_window.h"
#include "desktop/main_window.h"
#include "desktop/options_window.h"
#include "desktop/presets_window.h"
#include "desktop/sweep_window.h"
#include "desktop/texts_of_qt.h"
#include "fields/all_windows.h"
#include "studies/finder_page.h"
#include "studies/sweep_page.h"

namespace zolv {

Desktop::Desktop() {
    main_ = std::make_unique<MainWindow>(binding_);
    secondary_.push_back(std::make_unique<OptionsWindow>(binding_));
    SecondaryWindow& presets = *secondary_.emplace_back(std::make_unique<PresetsWindow>(binding_));
    SecondaryWindow& converter = *secondary_.emplace_back(std::make_unique<ConverterWindow>(binding_));
    secondary_.push_back(std::make_unique<LanguageWindow>(binding_));
    secondary_.push_back(std::make_unique<FinderView>(binding_));
    secondary_.push_back(std::make_unique<SweepView>(binding_));
    main_->winId();  // has its handle before a window is to stay above it
    for (const auto& window : secondary_) window->StayAbove(*main_);
    converter.StayAbove(*main_, &presets);
    binding_.OnChanged(LanguageSelection.LanguageList, [this] { qtWords_.Follow(); });
    postToFields = [this](std::function<void()> work) {
        QMetaObject::invokeMethod(
            &binding_,
            [this, work = std::move(work)] {
                work();
                binding_.PaintChanged();
            },
            Qt::QueuedConnection);
    };
}

Desktop::~Desktop() {
    finderWork.Abandon();
    sweepWork.Abandon();
    postToFields = {};
}

void Desktop::PreselectSystemLanguage() {
    if (Zolv.Visible() || !LanguageSelection.Visible()) return;
    const QLocale system(QLocale::system().uiLanguages().value(0));
    LanguageSelection.LanguageList.SetText(FromQt(QLocale::languageToString(system.language())));
}

void Desktop::Open() {
    PreselectSystemLanguage();
    binding_.Act([] {});  // what follows each act follows the start as well
    binding_.Bind(Zolv, *main_);
}

}  // namespace zolv
