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
///     one tab of a strip, for its caption: "Select_RunView(1)"
///     a field's and ".ToolTip", also of one tab of a strip: "GearR.ToolTip", "Select_Page(1).ToolTip"
///     any other, for a word that code uses: words["Degrees"]
// clang-format off
inline constexpr auto kWordTable = std::to_array<WordRow>({
    {"AboveHighestRatio", "Above the highest ratio, {0}"},
    {"AboveRevLimit", "Above the rev limiter, {0}"},
    {"AboveTopSpeed", "Above the car's top speed, {0}"},
    {"AddStraight", "Add"},
    {"Aero_DragSplit.ToolTip", "Air Drag / Rolling Resistance"},
    {"Aero_TotalFriction.ToolTip", "Includes all aero drag and rolling resistance"},
    {"AirSpeedInput", "Air Speed"},
    {"AllStraights", "All straights"},
    {"BelowLowestRatio", "Below the lowest ratio, {0}"},
    {"BelowPeakTorque", "Falls below peak torque, {0}"},
    {"BestMark", "Best"},
    {"CPA.ToolTip", "This is how much rubber is in contact with the road."},
    {"CPAR.ToolTip", "This is the shape of the tyre footprint on the road. Visualised above."},
    {"CPL.ToolTip", "This is how long the footprint of the tyre is on the road."},
    {"CPW.ToolTip", "This is the width of the tyre."},
    {"CannotRead", "Cannot read {0}: {1}"},
    {"CannotWrite", "Cannot write {0}: {1}"},
    {"CarIsGone", "This car is no longer in the list."},
    {"ColumnChange", "Change"},
    {"ColumnEndSpeed", "End speed"},
    {"ColumnEndSpeedFound", "End speed found"},
    {"ColumnEntry", "Entry speed"},
    {"ColumnFlatFrom", "Flat from"},
    {"ColumnFlatTo", "Flat to"},
    {"ColumnFound", "Found"},
    {"ColumnInput", "Setting"},
    {"ColumnLength", "Length"},
    {"ColumnPresent", "Present"},
    {"ColumnStraight", "Straight"},
    {"ColumnTime", "Time"},
    {"ColumnTimeFound", "Time found"},
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
    {"DoesNotMoveOff", "The car does not move off"},
    {"Downforce", "Downforce"},
    {"EngineCurve", "Engine"},
    {"EngineSpeed", "Engine speed"},
    {"ExportRun", "Export…"},
    {"ExportRunTitle", "Export the run"},
    {"FRCPR.ToolTip", "This shows the relative difference in sizes between the front and rear contact patches"},
    {"FinalDriveInput", "Final Drive"},
    {"Finder", "Find a Gearbox"},
    {"Finder.CloseFinder", "Close"},
    {"Finder.DistanceCaption", "Run length:"},
    {"Finder.DownforceAt", "at"},
    {"Finder.FoundCaption", "Found:"},
    {"Finder.FreeFinalDrive", "Final Drive"},
    {"Finder.FreeFrame", "What may be changed"},
    {"Finder.FreeFrontWing", "Front Wing"},
    {"Finder.FreeRatios", "Ratios"},
    {"Finder.FreeRearWing", "Rear Wing"},
    {"Finder.FromSpeedCaption", "From:"},
    {"Finder.GoalCaption", "Goal:"},
    {"Finder.GoalFrame", "Goal"},
    {"Finder.HighCaption", "At most"},
    {"Finder.LowCaption", "At least"},
    {"Finder.PresentCaption", "Present:"},
    {"Finder.ResultFrame", "Result"},
    {"Finder.Start", "Start"},
    {"Finder.Stop", "Stop"},
    {"Finder.StraightsFrame", "Straights of a track"},
    {"Finder.StraightsOpen", "Open..."},
    {"Finder.StraightsSave", "Save As..."},
    {"Finder.Table.ToolTip", "From \"Flat from\" to \"Flat to\" a setting may be moved alone before it costs a hundredth of a second"},
    {"Finder.TakeOver", "Take over"},
    {"Finder.ToSpeedCaption", "To:"},
    {"Finder.WishBalance", "Neutral balance"},
    {"Finder.WishDownforce", "Downforce at least"},
    {"Finder.WishFrame", "Wishes"},
    {"Finder.WishTopSpeed", "Top speed at least"},
    {"FinderBoundsLeaveNothing", "The bounds of {0} leave nothing: no value lies between them in the order of the gears."},
    {"FinderNothingFree", "Nothing may be changed: tick the ratios, the final drive, or a wing that the car has."},
    {"FinderWishesLeaveNothing", "No angle of the wings gives the downforce and the balance that are wished for."},
    {"FolderUnusable", "The folder {0} cannot be used: {1}"},
    {"Force", "Force"},
    {"ForceGrip", "Limit of grip"},
    {"ForcePlot.ToolTip", "Discs: from here on the next gear pulls harder. Rings: here you change up."},
    {"ForceReached", "Reaches {0}"},
    {"ForceReachedAtLimiter", "Limiter at {0}"},
    {"FoundFor", "Found for {0} among {1} set-ups tried."},
    {"FrontLoad", "Front load"},
    {"FrontLoadResult", "Load on Front Wheels"},
    {"FrontPatchResult", "Front Contact Patch"},
    {"FrontPressureInput", "Front Pressure"},
    {"FrontWingInput", "Front Wing"},
    {"GearR.ToolTip", "Tarmaq does not allow you to change the ratio for reverse, so neither does Zolv."},
    {"GearR2.ToolTip", "Tarmaq does not allow you to change the ratio for reverse, so neither does Zolv."},
    {"GoalAlongStraights", "Quickest along Straights"},
    {"GoalBetweenSpeeds", "Quickest between Speeds"},
    {"GoalFromAboveTo", "The speed to start from must be 0 or more, and below the speed to reach."},
    {"GoalNoDistance", "The distance must be above 0 m."},
    {"GoalNoSpeed", "The speed to reach must be above 0."},
    {"GoalNoStraights", "There are no straights: open a file of straights, or add some."},
    {"GoalOverDistance", "Quickest over a Distance"},
    {"GoalToSpeed", "Quickest to a Speed"},
    {"GoalTopSpeed", "Highest Top Speed"},
    {"HighestRunSpeed", "Highest Speed of the Run"},
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
    {"LiftInFront", "Lift in Front"},
    {"Limiter", "Limiter"},
    {"LineEndsChanged", "An editor has changed its line ends. Open it there and save it with Windows line ends"},
    {"LoadInFront", "Load in Front"},
    {"LoadOverWeight", "Load over Weight"},
    {"LocaleCode", "en"},  // of the language, for the words of the system's own dialogs: "de", "pt_BR"
    {"LogChangeUp", "Change up, {0} to {1}"},
    {"LogClutchCloses", "Clutch closes"},
    {"LogCurveNotFitted", "The engine's curve could not be fitted"},
    {"LogDistance", "Distance driven"},
    {"LogEndNoGain", "End: no more gain"},
    {"LogEndTime", "End: 90 s are over"},
    {"LogEvent", "Event"},
    {"LogGripLeft", "Limit of grip left"},
    {"LogLargestAcceleration", "Largest acceleration"},
    {"LogNeverHarder", "{0} pulls no harder up to the limiter"},
    {"LogPullsHarder", "{0} pulls harder from {1}"},
    {"LogPullsHarderEarly", "{0} pulls harder from {1}, {2} early"},
    {"LogPullsHarderLate", "{0} pulls harder from {1}, {2} late"},
    {"LogRemark", "Remark"},
    {"LongerThan", "Longer than {0} bytes"},
    {"MU.ToolTip", "This affects how much grip the tyre has"},
    {"ManualMissing", "There is no file \"{0}\". The manual is to be had at https://example.org/zolv/, and scripts/manual builds it from the sources."},
    {"ManualUnreadable", "The manual is the file \"{0}\", but nothing on this system opens it."},
    {"MetricUnits", "Metric"},
    {"Neutral", "Neutral"},
    {"NoGearboxCovers", "No gearbox covers {0} within 90 s; the most is {1}."},
    {"NoGearboxDrivesAll", "No gearbox drives all straights, {0} together, each within 90 s; the most is {1}."},
    {"NoGearboxMoves", "No gearbox moves this car."},
    {"NoGearboxPasses", "No set-up within the bounds comes to the wished top speed of {0}; the most is {1}."},
    {"NoGearboxReaches", "No gearbox reaches {0}; the most is {1}."},
    {"NoInput", "None"},
    {"NoSpaceLeft", "No space left on device"},
    {"NoSuchFile", "No such file or directory"},
    {"NoWallLeft", "Nothing of the tyre's wall is left"},
    {"NotLanguageList", "Not a language list, whose lines from the second on name a language each and end in CR LF"},
    {"NotOptions", "{0} of the {1} lines of an options file, which end in CR LF"},
    {"NotPreset", "Not a custom preset saved by Zolv, or only a part of one: it has {0} of {1} lines"},
    {"NotRegularFile", "Not a regular file"},
    {"NotSetUp", "Not a set-up saved by Zolv, or only a part of one: it has {0} of {1} lines"},
    {"NothingBetterFor", "Nothing better was found for {0}."},
    {"NothingSwept", "There is nothing to be saved: start a sweep first."},
    {"NothingToTakeOver", "There is nothing to be taken over yet."},
    {"OpenStraightsTitle", "Open straights..."},
    {"OptionOutOfRange", "Line {0} holds {1}, which is not from {2} to {3}"},
    {"OptionsSaved", "Options saved"},
    {"Oversteer", "Oversteer"},
    {"PatchLength", "Length"},
    {"PatchRatioResult", "Front over Rear Patch"},
    {"PatchWidth", "Width"},
    {"PeakPower", "Peak power"},
    {"PeakTorque", "Peak torque"},
    {"PermissionDenied", "Permission denied"},
    {"PictureMissing", "Unknown car picture is missing."},
    {"PngPicture", "PNG picture"},
    {"PresentMark", "Present"},
    {"RatioNumber", "Ratio {0}"},
    {"ReadOnlySystem", "Read-only file system"},
    {"RearLoad", "Rear load"},
    {"RearLoadResult", "Load on Rear Wheels"},
    {"RearPatchResult", "Rear Contact Patch"},
    {"RearPressureInput", "Rear Pressure"},
    {"RearWingInput", "Rear Wing"},
    {"RemoveStraight", "Remove"},
    {"RimDiameterTooSmall", "Rim Diameter cannot be less than 1mm"},
    {"RimSizeInput.ToolTip", "Input the rim height in mm"},
    {"RollingResistanceResult", "Rolling Resistance"},
    {"RunLog.ToolTip", "What happens in the run, from the start to its end"},
    {"SaveAsCsv", "Save as CSV"},
    {"SaveAsPng", "Save as PNG"},
    {"SaveAsPngEntry", "Save as &PNG…"},
    {"SaveAsSvg", "Save as SVG"},
    {"SaveAsSvgEntry", "Save as &SVG…"},
    {"SavePng", "Save as PNG..."},
    {"SaveStraightsTitle", "Save straights as..."},
    {"SearchStoppedFor", "Stopped; this is the best until then for {0}."},
    {"SearchingFor", "Searching for {0}..."},
    {"SelectAllEntry", "Select &all"},
    {"SelectPresetFirst", "You must select a custom preset first."},
    {"Select_Page(0).ToolTip", "Displays various static information about the selected car"},
    {"Select_Page(1).ToolTip", "Anaylse how engine rpms and speeds, and acceleration changes depending on gearing"},
    {"Select_Page(2).ToolTip", "Analyser how the tyre deforms at different pressures and loads"},
    {"Select_Page(3).ToolTip", "Analyse all the forces on the car caused by the vehicles aerodynamic properties"},
    {"Select_PressureF.ToolTip", "Change the pressure to see how this affects deformation."},
    {"Select_PressureR.ToolTip", "Change the pressure to see how this affects deformation."},
    {"Select_RunView(0)", "Graphs"},
    {"Select_RunView(1)", "Force vs Speed"},
    {"Select_RunView(2)", "Log of the Run"},
    {"ShiftAdviceLoses", "These shift points lose {0} against changing up where the next gear begins to pull harder ({1})"},
    {"ShiftPointNumber", "Shift Point {0}"},
    {"ShiftSpeedNumber", "Shift Speed {0}"},
    {"ShorterThanGearBelow", "Shorter than the gear below it"},
    {"SoughtAnother", "It is for the set-up with which it was started, not for the one on the pages."},
    {"SpeedAtDistance", "Speed at {0}"},
    {"SpeedNumber", "Speed {0}"},
    {"StartedWithout", "Zolv started in the folder {0}, and not all that it needs is there:"},
    {"StillGaining", "Still gaining after {0}"},
    {"StraightsCount", "Straights: {0}"},
    {"StraightsEntryOutOfRange", "The entry speed {0} is not from 0 to {1}."},
    {"StraightsFiles", "Straights"},
    {"StraightsLengthOutOfRange", "The length {0} is not above 0 and up to {1} m."},
    {"StraightsLine", "Line {0}: {1}"},
    {"StraightsNoHeader", "The first line must be \"name,entry speed,length\"."},
    {"StraightsNone", "There is not one straight."},
    {"StraightsNotANumber", "\"{0}\" is not a number."},
    {"StraightsTooMany", "There are more than {0} straights."},
    {"StraightsUnclosedQuotes", "The quotes around a name do not end on their line."},
    {"StraightsUnknownUnit", "The unit \"{0}\" is unknown."},
    {"StraightsWrongColumns", "A line must have a name, an entry speed and a length."},
    {"SvgPicture", "SVG picture"},
    {"Sweep", "Sweep"},
    {"Sweep.CloseSweep", "Close"},
    {"Sweep.FromCaption", "From:"},
    {"Sweep.FromCaption2", "From:"},
    {"Sweep.InputCaption", "Input:"},
    {"Sweep.InputCaption2", "Second input:"},
    {"Sweep.ResultCaption", "Result:"},
    {"Sweep.SaveCsv", "Save as CSV..."},
    {"Sweep.SaveSvg", "Save as SVG..."},
    {"Sweep.Start", "Start"},
    {"Sweep.StepsCaption", "Steps:"},
    {"Sweep.StepsCaption2", "Steps:"},
    {"Sweep.Stop", "Stop"},
    {"Sweep.TakeOver", "Take over"},
    {"Sweep.ToCaption", "To:"},
    {"Sweep.ToCaption2", "To:"},
    {"SweepBestOf", "Best for {0}: {1} at {2}."},
    {"SweepFromAboveTo", "The range of {0} must go from a smaller to a larger number."},
    {"SweepNoSuchInput", "The present car has no such input."},
    {"SweepNothing", "There is no such result anywhere in this range."},
    {"SweepOfAnother", "The sweep is of {0} and its inputs; on the pages are others."},
    {"SweepOutOfRange", "The range of {0} must lie between {1} and {2}."},
    {"SweepSameTwice", "Both inputs are the same."},
    {"SweepStopped", "Stopped."},
    {"SweepWrongSteps", "There must be 2 to {0} steps, and no more than {1} points in all."},
    {"SweepingOf", "Working out {0}..."},
    {"SweptOf", "Worked out for {0}."},
    {"TD.ToolTip", "How much the tyre has deformed vertically under load."},
    {"TRRC.ToolTip", "This is the effective rolling radius of the tyre after weight has been placed upon the wheel."},
    {"ThroughTheGears", "Through the gears"},
    {"TimeOverDistance", "Time over {0}"},
    {"TimeToSpeed", "Time to {0}"},
    {"ToolsFinder", "&Find a Gearbox"},
    {"ToolsSweep", "&Sweep"},
    {"TopSpeedResult", "Top Speed"},
    {"TorqueInFirst", "Torque in Gear 1"},
    {"TotalDragResult", "Total Drag"},
    {"TotalFrictionResult", "Total Friction"},
    {"TotalLiftResult", "Total Lift"},
    {"TyreFrictionInput", "Tyre Friction"},
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
    {"WingsGoFlat", "Corners do not count here: without a wish for downforce a wing only goes flat, or to where its grip helps the start."},
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
