// The texts of the three files: what is read from them, and what is written.

#include <string>
#include <utility>

#include "files/options_text.h"
#include "files/preset_text.h"
#include "files/settings_text.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

using testing::HasSubstr;

// Every value another one, so that none can stand for its neighbour.
const std::string kSettings =
    "CarName: Series Lo\r\nFPressure: 131\r\nRPressure: 117\r\nGearF: 3.45\r\n"
    "Gear1: 2.65\r\nGear2: 2.05\r\nGear3: 1.66\r\nGear4: 1.41\r\nGear5: 1.23\r\nGear6: 1.12\r\nFinal: 3.6\r\n"
    "Speed1: 35\r\nSpeed2: 44\r\nSpeed3: 53\r\nSpeed4: 61\r\nSpeed5: 70\r\nSpeed6: 84\r\nFWing: 12\r\nRWing: 21\r\n";
const std::string kPreset =
    "Name: Ondo \u03B2 \r\nPower: 104\r\nPowerRPM: 6017\r\nTorque: 186\r\nTorqueRPM: 4531\r\nIdleRPM: 1000\r\n"
    "DrivetrainType: 1\r\nNumGears: 5\r\nMass: 1244\r\nWeightDist: 0.505\r\nCd: 0.38\r\nFTW: 185\r\nFTP: 0.55\r\n"
    "FWS: 16\r\nFTrack: 1.56\r\nRTW: 220\r\nRTP: 0.5\r\nRWS: 17\r\nRTrack: 1.55\r\nWheelbase: 2.453\r\n"
    "UnsprungMass: 60\r\nEfficiency: 0.82\r\nReverse: 3.6\r\nFrontalArea: 1.84\r\nCl: 0.01\r\nFMinPressure: 122\r\n"
    "FMaxPressure: 364\r\nRMinPressure: 112\r\nRMaxPressure: 334\r\n";
const std::string kOptions =
    "SpdUnits: 1\r\nDstUnits: 4\r\nAreUnits: 3\r\nPrsUnits: 4\r\nMasUnits: 5\r\nFrcUnits: 2\r\n"
    "StfUnits: 1\r\nAccUnits: 0\r\nPwrUnits: 3\r\nTrqUnits: 1\r\nP2WUnits: 6\r\nT2WUnits: 5\r\n"
    "SpeedPlotX: 35\r\nSpeedPlotY: 1500\r\nTorqueX: 1000\r\nTorqueY: 2500\r\nTractiveX: 5\r\nTractiveY: 5000\r\n"
    "SpeedGraphX: 15\r\nSpeedGraphY: 45\r\n"
    "PowerLine: False\r\nTorqueLine: True\r\nRedline: False\r\nAltGraphStyle: True\r\nEngineTorque: True\r\n"
    "VLoads: False\r\nRevsMax: True\r\nRevLimit: False\r\nAutoRevs: True\r\nCustomRevs: 7000\r\n"
    "Acceleration: False\r\n";

/// Reads a text and writes it again; the reason where it is refused.
std::string SettingsAgain(const std::string& text) {
    const auto read = ParseSettings(text);
    return read ? SettingsText(*read) : read.Reason();
}
std::string PresetAgain(const std::string& text) {
    const auto read = ParsePreset(text);
    if (!read) return read.Reason();
    CarFigures figures{};
    for (std::size_t i = 0; i < kPresetFileFigures; ++i) figures[i] = static_cast<float>(read->Figures[i]);
    return PresetText(read->Name, figures);
}
std::string OptionsAgain(const std::string& text) {
    const auto read = ParseOptions(text);
    return read ? OptionsText(*read) : read.Reason();
}

// One part of a good file in place of another, and what is written for it. Lines are read by position, not by key.
TEST(FileTexts, AreReadLineByLine) {
    struct {
        std::string (*again)(const std::string&);
        const std::string& good;
        const char *part, *other, *kept;
    } const kCases[] = {
        {SettingsAgain, kSettings, "", "", ""},
        {SettingsAgain, kSettings, "CarName: Series Lo", "CarName:  a b ", "CarName:  a b "},
        {SettingsAgain, kSettings, "Gear1: 2.65", "abcdef2.65 ", "Gear1: 2.65"},
        {SettingsAgain, kSettings, "FPressure: ", "12345678901", "FPressure: "},
        {SettingsAgain, kSettings, "Gear2: 2.05", "Gear2: 2,05", "Gear2: 2"},
        {SettingsAgain, kSettings, "FWing: 12", "FWing: x", "FWing: 0"},
        {SettingsAgain, kSettings, "Speed1: 35", "Sp", "Speed1: 0"},
        {SettingsAgain, kSettings, "RWing: 21\r\n", "RWing: 2e1", "RWing: 20\r\n"},
        {SettingsAgain, kSettings, "RWing: 21\r\n", "RWing: 21.5\r\nmore\r\n", "RWing: 21.5\r\n"},
        {PresetAgain, kPreset, "", "", ""},
        {PresetAgain, kPreset, "Power: 104", "Power? 77", "Power: 77"},
        {PresetAgain, kPreset, "PowerRPM: 6017", "PowerRPM:7000", "PowerRPM: 7000"},  // the blank may be missing
        {PresetAgain, kPreset, "Torque: 186", "Torque: 12,5 Nm", "Torque: 12"},
        {PresetAgain, kPreset, "TorqueRPM: 4531", "", "TorqueRPM: 0"},
        {PresetAgain, kPreset, "DrivetrainType: 1", "anything 2", "DrivetrainType: 2"},
        {PresetAgain, kPreset, "DrivetrainType: 1", "DrivetrainType: x", "DrivetrainType: 3"},  // none
        {PresetAgain, kPreset, "NumGears: 5", "NumGears: 14", "NumGears: 4"},
        {OptionsAgain, kOptions, "", "", ""},
        {OptionsAgain, kOptions, "AccUnits: 0", "whatever 13", "AccUnits: 3"},  // only the last digit counts
        {OptionsAgain, kOptions, "SpeedPlotY: 1500", "SpeedPlotY: 91600", "SpeedPlotY: 1600"},
        {OptionsAgain, kOptions, "CustomRevs: 7000", "CustomRevs: 900", "CustomRevs: 0"},  // takes the colon along
        {OptionsAgain, kOptions, "CustomRevs: 7000", "CustomRevs: 12345", "CustomRevs: 12345"},
        {OptionsAgain, kOptions, "TorqueLine: True", "TorqueLine: true", "TorqueLine: False"},
        {OptionsAgain, kOptions, "TorqueLine: True", "TorqueLine:  True", "TorqueLine: False"},
        {OptionsAgain, kOptions, "RevsMax: True", "Rev", "RevsMax: False"},
        {OptionsAgain, kOptions, "AltGraphStyle: True", "AltGraphStyle: ", "AltGraphStyle: "},  // never set
        {OptionsAgain, kOptions, "AltGraphStyle: True", "AltGraphStyle: Yes", "AltGraphStyle: False"},
    };
    for (const auto& [again, good, part, other, kept] : kCases) {
        const auto with = [&](const char* text) { return *part == '\0' ? good : Replaced(good, part, text); };
        EXPECT_EQ(again(with(other)), with(kept)) << other;
    }
}

TEST(FileTexts, AreRefusedWithTheReason) {
    const std::string rubbish("\x80\xFF\0\x01\r\n\r\n\xC3", 8);
    const std::pair<std::string, const char*> kCases[] = {
        {SettingsAgain(""), "Not a set-up saved by Zolv, or only a part of one: it has 0 of 19 lines"},
        {SettingsAgain(rubbish), "it has 2 of 19 lines"},
        {SettingsAgain(Replaced(kSettings, "RWing: 21\r\n", "")), "it has 18 of 19 lines"},
        {SettingsAgain(Replaced(kSettings, "\r\n", "\n")), "Windows line ends"},
        {SettingsAgain(Replaced(kSettings, "117\r\n", "117\n")), "Windows line ends"},
        {PresetAgain(kSettings), "Not a custom preset saved by Zolv, or only a part of one: it has 19 of 29 lines"},
        {PresetAgain(Replaced(kPreset, "\r\n", "\n")), "Windows line ends"},
        {OptionsAgain(Replaced(kOptions, "Acceleration: False\r\n", "")), "30 of the 31 lines"},
        {OptionsAgain(Replaced(kOptions, "StfUnits: 1", "StfUnits: 2")), "Line 7 holds 2, which is not from 0 to 1"},
        {OptionsAgain(Replaced(kOptions, "T2WUnits: 5", "T2WUnits: 6")), "Line 12 holds 6"},
        {OptionsAgain(Replaced(kOptions, "SpeedPlotX: 35", "SpeedPlotX: 9")),
         "Line 13 holds 9, which is not from 10 to 50"},
        {OptionsAgain(Replaced(kOptions, "TorqueY: 2500", "TorqueY: 2501")), "Line 16 holds 2501"},
    };
    for (const auto& [said, reason] : kCases) EXPECT_THAT(said, HasSubstr(reason));
}

}  // namespace
}  // namespace zolv
