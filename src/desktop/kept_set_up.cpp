#include "desktop/kept_set_up.h"

#include "desk/present.h"
#include "desktop/binding.h"
#include "desktop/texts_of_qt.h"
#include "fields/all_windows.h"
#include "files/file_state.h"
#include "files/settings_file.h"
#include "platform/data_folder.h"

namespace zolv {
namespace {

const QString kSettings = QStringLiteral("SetUp/Settings");
const QString kFile = QStringLiteral("SetUp/File");
const QString kFromSpeeds = QStringLiteral("SetUp/FromSpeeds");
const QString kTyres = QStringLiteral("SetUp/Tyres");
const QString kBlown = QStringLiteral("SetUp/Blown");
const QString kAirSpeed = QStringLiteral("SetUp/AirSpeed");  // [m/s]; none at the top speed

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

/// Choices take over what was there before, so that the numbers are laid out once more behind them.
void KeptSetUp::BringBack() {
    const std::string text = FromQt(settings_.value(kSettings).toString());
    if (!LayOutSettingsText(text)) return;
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
