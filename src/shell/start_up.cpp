#include "shell/start_up.h"

#include "aero/aero_page.h"
#include "desk/history.h"
#include "fields/all_windows.h"
#include "fields/guards.h"
#include "files/options_file.h"
#include "files/settings_file.h"
#include "language/language_list.h"
#include "language/language_state.h"
#include "platform/text_files.h"
#include "shell/shell_state.h"
#include "studies/finder_page.h"
#include "studies/sweep_page.h"
#include "text/texts.h"
#include "tyres/tyres_page.h"
#include "units/apply_units.h"
#include "vehicle/car_selection.h"
#include "vehicle/custom_presets.h"
#include "vehicle/info_page.h"
#include "vehicle/vehicle_state.h"

namespace zolv {

namespace {

void FillCarList() {
    for (const std::string& name : vehicle.CarName) Zolv.Select_Car.Add(name);
}

void FillGraphList() {
    for (const std::string& name : texts.GraphNames) Zolv.Select_Graphs.Add(name);
    Zolv.Select_Graphs.SetText(texts.GraphNames[0]);
}

/// Everything that is set up while guards.Loading keeps the handlers from calculating on half-built tables. Numbers
/// need no switch of the user's decimal separator: no number text asks for it.
void LoadTablesAndLists() {
    const Raised loading(guards.Loading);
    InitCatalogue();
    platform.AppPath = CurrentDirectory();
    FillCarList();
    Zolv.Select_Car.SetText("Pell S");
    CalcAeroCoefficients();
    FillUnitLists();
    FillGraphList();
    FillTyreLists();
    Zolv.Select_Tyres.SetText(texts.TyreTypeNames[0]);
    FillDrivetrainLists();
    CustomPresets.Load();
    UnitConv.Load();
}

void ShowIfThere(Picture& picture, const std::string& path) {
    if (FileExists(path) != 0) picture.SetPath(path);
}

/// On the very first run the language window stands in front. Without a language to choose it would only be in the way.
void OfferFirstLanguageChoice() {
    if (language.LanguageIndex != 0 || LanguageSelection.LanguageList.Rows().empty()) return;
    Zolv.SetVisible(false);
    LanguageSelection.SetVisible(true);
}

}  // namespace

void LoadZolv() {
    LoadTablesAndLists();
    CalcAeroForces();
    AnalyseTyres();
    LoadOptions();  // and with them the first full calculation
    ShowCarPicture();
    ShowIfThere(Zolv.TitleImage, DataFile("title.png"));
    ShowIfThere(Zolv.TarmaqLogo, DataFile("logo.png"));
    LoadFinder();
    LoadSweep();
    LoadLanguageList();
    StartHistory();
    NoteSaved();
    OfferFirstLanguageChoice();
}

void ShutDown() {
    if (shell.Ended) return;
    shell.Ended = true;
    finderWork.Abandon();
    sweepWork.Abandon();
    for (Window* window :
         {static_cast<Window*>(&SweepPanel), static_cast<Window*>(&Finder), static_cast<Window*>(&LanguageSelection),
          static_cast<Window*>(&UnitConv), static_cast<Window*>(&CustomPresets), static_cast<Window*>(&OptionsPanel),
          static_cast<Window*>(&Zolv)}) {
        window->SetVisible(false);
    }
    shellFollowUps.Ending();
}

}  // namespace zolv
