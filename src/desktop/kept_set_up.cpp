#include "desktop/kept_set_up.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

#include "desk/present.h"
#include "desktop/binding.h"
#include "desktop/texts_of_qt.h"
#include "fields/all_windows.h"
#include "files/file_state.h"
#include "files/settings_file.h"
#include "files/settings_text.h"
#include "platform/data_folder.h"
#include "platform/dialogs.h"
#include "text/words.h"
#include "vehicle/custom_presets.h"
#include "vehicle/vehicle_state.h"

namespace zolv {
namespace {

const QString kSettings = QStringLiteral("SetUp/Settings");
const QString kPreset = QStringLiteral("SetUp/Preset");  // figures of its car, where that is a custom preset
const QString kFile = QStringLiteral("SetUp/File");
const QString kFromSpeeds = QStringLiteral("SetUp/FromSpeeds");
const QString kTyres = QStringLiteral("SetUp/Tyres");
const QString kBlown = QStringLiteral("SetUp/Blown");
const QString kAirSpeed = QStringLiteral("SetUp/AirSpeed");  // [m/s]; none at the top speed

/// Whether a file that somebody may have written into has figures that a car can have: rows of tables are those of
/// some car that there is.
bool IsUsable(const CarFigures& figures) {
    constexpr float kMost = 1e6F;
    for (const CarField field : {CarField::DrivetrainType, CarField::NumGears, CarField::UndertrayType,
                                 CarField::FrontWingType, CarField::RearWingType}) {
        const auto at = static_cast<std::size_t>(field);
        bool known = false;
        for (int car = 0; car < static_cast<int>(kCars); ++car) known |= vehicle.FiguresOfCar(car)[at] == figures[at];
        if (!known) return false;
    }
    CarFigures sizes = figures;
    float& lift = sizes[static_cast<std::size_t>(CarField::Cl)];
    lift = std::abs(lift);  // a body may press down
    return std::ranges::all_of(sizes, [](float size) { return size >= 0 && size <= kMost; });
}

}  // namespace

KeptSetUp::KeptSetUp(const QString& file, Binding& binding) : settings_(file, QSettings::IniFormat) {
    constexpr int kPause_ms = 1000;
    pause_.setSingleShot(true);
    pause_.setInterval(kPause_ms);
    connect(&pause_, &QTimer::timeout, this, &KeptSetUp::Keep);
    binding.AfterEachAct([this] { Watch(); });
}

QString KeptSetUp::UsersFile() {
#ifdef Q_OS_WIN
    // A program that may write beside itself is carried from one machine to another with all that is its user's.
    return ToQt(FindDataFolders(ThisProgram(), UserFolder()).own) + QStringLiteral("set-up.ini");
#else
    return QString::fromStdU16String((UserFolder() / "set-up.ini").u16string());
#endif
}

/// A start has no presets but those of files that are loaded by hand.
void KeptSetUp::BringBackPreset(const std::string& car) {
    const QStringList kept = settings_.value(kPreset).toStringList();
    CarFigures figures{};
    if (kept.size() != static_cast<qsizetype>(figures.size()) || vehicle.RecordNamed(car)) return;
    std::ranges::transform(kept, figures.begin(), [](const QString& figure) { return figure.toFloat(); });
    if (IsUsable(figures) && vehicle.PresetsUsed < kMaxPresets) AddPresetOf(car, figures);
}

/// Choices take over what was there before, so that the numbers are laid out once more behind them.
void KeptSetUp::BringBack() {
    const std::string text = FromQt(settings_.value(kSettings).toString());
    const Parsed<SettingsFile> set = ParseSettings(text);
    if (!set) return;
    BringBackPreset(set->CarName);
    if (!LayOutSettingsText(text)) return ShowMessage(words.Sentence("CarIsGone", {set->CarName}));
    if (settings_.value(kFromSpeeds).toBool()) Zolv.Direction2.Choose();
    bool isNumber = false;
    if (const int tyres = settings_.value(kTyres).toInt(&isNumber); isNumber) Zolv.Select_Tyres.Pick(tyres);
    Zolv.BlowTyres.SetChecked(settings_.value(kBlown).toBool());
    if (const int speed = settings_.value(kAirSpeed).toInt(&isNumber); isNumber) {
        Zolv.Select_AeroSpeed.Drag(speed);
    } else {
        Zolv.UseFixedSpeed.Choose();
    }
    LayOutSettingsText(text);
    if (const std::string file = FromQt(settings_.value(kFile).toString()); !file.empty()) ResumeFile(file);
}

void KeptSetUp::KeepPreset(const std::string& car) {
    const int preset = vehicle.FindPreset(car);
    if (preset < 0) return settings_.remove(kPreset);
    QStringList figures;
    for (const float figure : vehicle.FiguresOfPreset(preset)) figures << QString::number(figure, 'g', 9);
    settings_.setValue(kPreset, figures);
}

void KeptSetUp::Watch() {
    SetUp present = PresentSetUp();
    if (kept_ == present) return;
    const bool first = !kept_.has_value();
    kept_ = std::move(present);
    if (!first) pause_.start();
}

void KeptSetUp::Keep() {
    pause_.stop();
    const SetUp present = PresentSetUp();
    settings_.setValue(kSettings, ToQt(PresentSettingsText()));
    KeepPreset(present.CarName);
    settings_.setValue(kFile, ToQt(files.CurrentFileName));
    settings_.setValue(kFromSpeeds, present.From == Direction::FromSpeeds);
    settings_.setValue(kTyres, present.TyreType);
    settings_.setValue(kBlown, present.Blown);
    if (present.AirSpeed) {
        settings_.setValue(kAirSpeed, *present.AirSpeed);
    } else {
        settings_.remove(kAirSpeed);
    }
    settings_.sync();
    kept_ = present;
}

}  // namespace zolv
