#pragma once

#include "fields/field_row.h"
#include "fields/kinds.h"

namespace zolv {

/// The window that chooses the language, as a form.
class LanguageSelectionWindow : public Window {
public:
    LanguageSelectionWindow() : Window("LanguageSelection", "", false) {}

    FieldArray<Label, 3> LanguageLabel{*this, "LanguageLabel"};
    Label LanguageNow{*this, "LanguageNow"};
    PickList LanguageList{*this, "LanguageList"};
    Label LanguageAuthor{*this, "LanguageAuthor"};
    Button SaveLanguage{*this, "SaveLanguage"};
};
extern LanguageSelectionWindow LanguageSelection;

}  // namespace zolv
