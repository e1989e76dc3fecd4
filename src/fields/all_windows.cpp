#include "fields/all_windows.h"

#include "text/nearest_name.h"

namespace zolv {

ZolvWindow Zolv;
OptionsPanelWindow OptionsPanel;
CustomPresetsWindow CustomPresets;
UnitConvWindow UnitConv;
LanguageSelectionWindow LanguageSelection;
FinderWindow Finder;
SweepWindow SweepPanel;

const std::array<Window*, 7>& AllWindows() {
    static const std::array<Window*, 7> kAll{&Zolv,   &OptionsPanel, &CustomPresets, &UnitConv, &LanguageSelection,
                                             &Finder, &SweepPanel};
    return kAll;
}

std::vector<Field*> FindFields(std::string_view name) {
    std::vector<Field*> found;
    const auto point = name.find('.');
    for (Window* window : AllWindows()) {
        Field* field = nullptr;
        if (name == window->Name()) {
            field = window;
        } else if (point == std::string_view::npos) {
            field = window->Find(name);
        } else if (name.substr(0, point) == window->Name()) {
            field = window->Find(name.substr(point + 1));
        }
        if (field != nullptr) found.push_back(field);
    }
    return found;
}

std::string NearestFieldName(std::string_view name) {
    std::vector<std::string> names;
    for (const Window* window : AllWindows()) {
        names.push_back(window->Name());
        for (const Field* field : window->Fields()) {
            names.push_back(field->Name());
            if (name.find('.') != std::string_view::npos) names.push_back(window->Name() + '.' + field->Name());
        }
    }
    return NearestName(name, names);
}

void ResetWindows() {
    for (Window* window : AllWindows()) window->Reset();
}

}  // namespace zolv
