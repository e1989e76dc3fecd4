#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>

/// The words that no line of a language file has: the 339 lines go by their number, which never changes, so whatever is
/// newer has its words here, by name, and a language gives its own in "words_NAME.txt".
namespace zolv {

/// One word, or sentence, and its built-in English. "{0}" and "{1}" stand where it carries a value.
struct WordRow {
    std::string_view name;
    std::string_view english;
};

/// In the order of their names. A name is
///     that of a field, for its caption (a window's, its title): "CustomPresets", "UnitConv.Select_MassUnits"
///     a field's and ".ToolTip", also of one tab of a strip: "GearR.ToolTip", "Select_Page(1).ToolTip"
///     any other, for a word that code uses: words["Degrees"]
// clang-format off
inline constexpr auto kWordTable = std::to_array<WordRow>({
    {"AboveHighestRatio", "Above the highest ratio, {0}"},
    {"AboveRevLimit", "Above the rev limiter, {0}"},
    {"AboveTopSpeed", "Above the car's top speed, {0}"},
    {"Aero_DragSplit.ToolTip", "Air Drag / Rolling Resistance"},
    {"Aero_TotalFriction.ToolTip", "Includes all aero drag and rolling resistance"},
    {"BelowLowestRatio", "Below the lowest ratio, {0}"},
    {"BelowPeakTorque", "Falls below peak torque, {0}"},
    {"CPA.ToolTip", "This is how much rubber is in contact with the road."},
    {"CPAR.ToolTip", "This is the shape of the tyre footprint on the road. Visualised above."},
    {"CPL.ToolTip", "This is how long the footprint of the tyre is on the road."},
    {"CPW.ToolTip", "This is the width of the tyre."},
    {"CannotRead", "Cannot read {0}: {1}"},
    {"CannotWrite", "Cannot write {0}: {1}"},
    {"ConvertedIs", "is {0}"},
    {"CopyEntry", "&Copy"},
    {"CopyPicture", "&Copy picture"},
    {"CopyRowEntry", "Copy &row"},
    {"CustomPresets", "Custom Presets"},
    {"Degrees", "degrees"},
    {"DistanceFathoms", "0-1000 fathoms:"},
    {"DistanceFeet", "0-1000 feet:"},
    {"DistanceMile", "Mile ET:"},
    {"DistanceNautical", "Nautical mile ET:"},
    {"DistanceQuarter", "Quarter mile ET:"},
    {"DistanceQuarterNautical", "¼ nautical mile ET:"},
    {"Downforce", "Downforce"},
    {"EngineCurve", "Engine"},
    {"EngineSpeed", "Engine speed"},
    {"ExportRun", "Export…"},
    {"ExportRunTitle", "Export the run"},
    {"FRCPR.ToolTip", "This shows the relative difference in sizes between the front and rear contact patches"},
    {"FolderUnusable", "The folder {0} cannot be used: {1}"},
    {"Force", "Force"},
    {"FrontLoad", "Front load"},
    {"GearR.ToolTip", "Tarmaq does not allow you to change the ratio for reverse, so neither does Zolv."},
    {"GearR2.ToolTip", "Tarmaq does not allow you to change the ratio for reverse, so neither does Zolv."},
    {"ImperialUnits", "Imperial"},
    {"IsDirectory", "Is a directory"},
    {"LanguageFileCut", "Language file does not have the correct number of lines. Loading failed. {0}"},
    {"LanguageFileMissing", "The language file cannot be found: {0}"},
    {"LanguageInvalid", "Invalid language selection."},
    {"LanguageLinesBare", "Its lines end in LF alone; they must end in CR LF."},
    {"LanguageLinesEnded", "It has {0} in place of {1}, the last one empty: behind the last line stands no line end."},
    {"LanguageLinesMixed", "It has {0} in place of {1}, as some end in LF alone and not in CR LF."},
    {"LanguageLinesOther", "It has {0} in place of {1}."},
    {"LanguageNotChosen", "The language list does not exist - the language cannot be changed."},
    {"LanguageNotSaved", "The language list does not exist - the language cannot be saved."},
    {"Limiter", "Limiter"},
    {"LineEndsChanged", "An editor has changed its line ends. Open it there and save it with Windows line ends"},
    {"LocaleCode", "en"},  // of the language, for the words of the system's own dialogs: "de", "pt_BR"
    {"LongerThan", "Longer than {0} bytes"},
    {"MU.ToolTip", "This affects how much grip the tyre has"},
    {"ManualMissing", "There is no file \"{0}\". The manual is to be had at https://example.org/zolv/, and scripts/manual builds it from the sources."},
    {"ManualUnreadable", "The manual is the file \"{0}\", but nothing on this system opens it."},
    {"MetricUnits", "Metric"},
    {"Neutral", "Neutral"},
    {"NoSpaceLeft", "No space left on device"},
    {"NoSuchFile", "No such file or directory"},
    {"NoWallLeft", "Nothing of the tyre's wall is left"},
    {"NotLanguageList", "Not a language list, whose lines from the second on name a language each and end in CR LF"},
    {"NotOptions", "{0} of the {1} lines of an options file, which end in CR LF"},
    {"NotPreset", "Not a custom preset saved by Zolv, or only a part of one: it has {0} of {1} lines"},
    {"NotRegularFile", "Not a regular file"},
    {"NotSetUp", "Not a set-up saved by Zolv, or only a part of one: it has {0} of {1} lines"},
    {"OptionOutOfRange", "Line {0} holds {1}, which is not from {2} to {3}"},
    {"OptionsSaved", "Options saved"},
    {"Oversteer", "Oversteer"},
    {"PatchLength", "Length"},
    {"PatchWidth", "Width"},
    {"PeakPower", "Peak power"},
    {"PeakTorque", "Peak torque"},
    {"PermissionDenied", "Permission denied"},
    {"PictureMissing", "Unknown car picture is missing."},
    {"PngPicture", "PNG picture"},
    {"ReadOnlySystem", "Read-only file system"},
    {"RearLoad", "Rear load"},
    {"RimDiameterTooSmall", "Rim Diameter cannot be less than 1mm"},
    {"RimSizeInput.ToolTip", "Input the rim height in mm"},
    {"SaveAsPng", "Save as PNG"},
    {"SaveAsPngEntry", "Save as &PNG..."},
    {"SaveAsSvg", "Save as SVG"},
    {"SaveAsSvgEntry", "Save as &SVG..."},
    {"SelectAllEntry", "Select &all"},
    {"SelectPresetFirst", "You must select a custom preset first."},
    {"Select_Page(0).ToolTip", "Displays various static information about the selected car"},
    {"Select_Page(1).ToolTip", "Anaylse how engine rpms and speeds, and acceleration changes depending on gearing"},
    {"Select_Page(2).ToolTip", "Analyser how the tyre deforms at different pressures and loads"},
    {"Select_Page(3).ToolTip", "Analyse all the forces on the car caused by the vehicles aerodynamic properties"},
    {"Select_PressureF.ToolTip", "Change the pressure to see how this affects deformation."},
    {"Select_PressureR.ToolTip", "Change the pressure to see how this affects deformation."},
    {"ShorterThanGearBelow", "Shorter than the gear below it"},
    {"StartedWithout", "Zolv started in the folder {0}, and not all that it needs is there:"},
    {"StillGaining", "Still gaining after {0}"},
    {"SvgPicture", "SVG picture"},
    {"TD.ToolTip", "How much the tyre has deformed vertically under load."},
    {"TRRC.ToolTip", "This is the effective rolling radius of the tyre after weight has been placed upon the wheel."},
    {"ThroughTheGears", "Through the gears"},
    {"TyreHeightInput.ToolTip", "Input the tyre height in mm"},
    {"TyreHeightTooSmall", "Tyre Height cannot be less than 1mm"},
    {"TyreWidthInput.ToolTip", "Input the tyre width in mm"},
    {"TyreWidthTooSmall", "Tyre Width cannot be less than 1mm"},
    {"Understeer", "Understeer"},
    {"ViewFullScreen", "&Full screen"},
    {"ViewMenu", "&View"},
    {"ViewNextPage", "&Next page"},
    {"ViewPreviousPage", "&Previous page"},
    {"WheelOrEngineSpeed", "Wheel or engine speed"},
    {"WheelSpeed", "Wheel speed"},
});
// clang-format on

/// The name of a row of the table; one that it lacks does not compile.
class WordName {
public:
    consteval WordName(const char* name) : row_(RowOf(name)) {}
    constexpr std::size_t Row() const { return row_; }

private:
    static consteval std::size_t RowOf(std::string_view name) {
        std::size_t row = 0;
        while (kWordTable.at(row).name != name) ++row;
        return row;
    }

    std::size_t row_;
};

/// The words in force.
class Words {
public:
    Words();  // in English

    const std::string& operator[](WordName name) const { return texts_[name.Row()]; }
    const std::string& OfRow(std::size_t row) const { return texts_[row]; }

    /// The sentence with `values` in place of "{0}", "{1}" ...
    [[nodiscard]] std::string Sentence(WordName name, std::initializer_list<std::string_view> values) const;

    /// Takes the words of a language from the text of its file: one "Name = text" a line, in any order, ended by LF or
    /// CR LF. Blanks around name and text do not count; a line that begins with "#" is a remark. What is missing reads
    /// English. A line that is none of these, is not UTF-8, names no row, or has other places for values than the
    /// English, is passed over.
    static Words Read(std::string_view file);

private:
    std::array<std::string, kWordTable.size()> texts_;
};
extern Words words;

/// The table as a file of words, where a translator starts.
[[nodiscard]] std::string BuiltInWords();

}  // namespace zolv
