#include "language/caption_table.h"

#include <cassert>

#include "fields/all_windows.h"
#include "text/version.h"

namespace zolv {
namespace {

constexpr Target ToolTip(const char* field) { return {Target::Kind::ToolTip, 0, field}; }
constexpr Target Tab(const char* strip, int row) { return {Target::Kind::Tab, row, strip}; }
constexpr Target TyreTypeName(int row) { return {Target::Kind::TyreTypeName, row}; }
constexpr Target SlickNames() { return {Target::Kind::SlickNames, 4}; }
constexpr Target GraphName(int row) { return {Target::Kind::GraphName, row}; }
constexpr Target NameOfGear(int row) { return {Target::Kind::GearName, row}; }
constexpr Target UnitName(Quantity UnitState::*quantity, int row) { return {quantity, row}; }
constexpr Target AboutParagraph(int row) { return {Target::Kind::AboutParagraph, row}; }

// clang-format off
constexpr std::array<CaptionLine, kCaptionLines> kCaptionTable{{
    {0, "English", {"LanguageNow"}},
    {1, "the makers of Zolv", {"LanguageAuthor"}},
    {2, "&File", {"FileMenu"}},
    {3, "&Open", {"FileOpen"}},
    {4, "Open settings file...", {&Texts::TextOpenSettings}},
    {5, "Zolv Settings File (*.zolv)", {&Texts::TextSettingsFilter}},
    {6, "That car is not supported by Tarmaq Zolv.", {&Texts::TextCarNotSupported}},
    {7, "Try adding it from the Custom Presets panel.", {&Texts::TextTryAddingIt}},
    {8, "&Save", {"FileSave"}},
    {9, "Save &As", {"FileSaveAs"}},
    {10, "Save settings file as...", {&Texts::TextSaveSettings}},
    {11, "&Close", {"FileClose", "CloseCustom", "CloseConv", "CloseOptions"}},
    {12, "E&xit", {"FileExit"}},
    {13, "&Tools", {"ToolsMenu"}},
    {14, "Custom &Presets", {"ToolsCustom"}},
    {15, "&Options", {"ToolsOptions", "OptionsPanel"}},
    {16, "Select &Language", {"ToolsLanguage"}},
    {17, "Language Selection", {"LanguageSelection"}},
    {18, "Current language:", {"LanguageLabel(0)"}},
    {19, "Select your language:", {"LanguageLabel(1)"}},
    {20, "Author:", {"LanguageLabel(2)"}},
    {21, "Save && Close", {"SaveLanguage"}},
    {22, "&Help", {"HelpMenu"}},
    {23, "&Manual", {"HelpUsage"}},
    {24, "Full PDF manual available in the same folder as this program.", {&Texts::TextManualHint}},
    {25, "Select your car:", {"Label_Car"}},
    {26, "Info", {Tab("Select_Page", 0)}},
    {27, "Body", {"InfoPanel(0)"}},
    {28, "Mass:", {"InfoLabel(0)", "Label_Mass"}},
    {29, "Weight:", {"InfoLabel(1)"}},
    {30, "Weight Distribution:", {"InfoLabel(2)"}},
    {31, "Front", {&Texts::TextFront, "InfoLabel(10)"}},
    {32, "Rear", {&Texts::TextRear, "InfoLabel(11)"}},
    {33, "Power to weight:", {"InfoLabel(3)"}},
    {34, "Torque to weight:", {"InfoLabel(4)"}},
    {35, "Engine && Drivetrain", {"InfoPanel(1)"}},
    {36, "Power:", {"InfoLabel(5)", "Label_Power"}},
    {37, "Torque:", {"InfoLabel(6)", "Label_Torque"}},
    {38, "Drivetrain:", {"InfoLabel(7)"}},
    {39, "Front Wheel Drive", {&Texts::TextFWD}},
    {40, "Rear Wheel Drive", {&Texts::TextRWD}},
    {41, "All Wheel Drive", {&Texts::TextAWD}, LastRowOf::Drivetrains},
    {42, "No. of Gears:", {"InfoLabel(8)"}},
    {43, "Efficiency:", {"InfoLabel(9)"}},
    {44, "This graph shows both engine power and torque vs. engine rpm", {ToolTip("TorquePowerPlot")}},
    {45, "About Tarmaq Zolv", {"InfoPanel(2)"}},
    {46, "Tarmaq Zolv v{version}, made by drivers for drivers", {AboutParagraph(0)}},
    {47, "Built in C++ with Qt", {AboutParagraph(1)}},
    {48, "Made to try and take the guesswork out of gearing", {AboutParagraph(2)}},
    {49, "The latest version is at the place where you found this one", {AboutParagraph(3)}},
    {50, "Questions and ideas are welcome there, too", {AboutParagraph(4)}},
    {51, "With thanks to everybody who tested it", {AboutParagraph(5)}},
    {52, "Wheels && Tyres", {"InfoPanel(3)"}},
    {53, "Rim diameter:", {"InfoLabel(12)"}},
    {54, "Tyre width:", {"InfoLabel(13)"}},
    {55, "Tyre profile:", {"InfoLabel(14)"}},
    {56, "Tyre height:", {"InfoLabel(15)"}},
    {57, "Pressure range:", {"InfoLabel(16)"}},
    {58, "Track:", {"InfoLabel(17)"}},
    {59, "Wheelbase:", {"InfoLabel(18)", "CUPLabel(17)", "CUPLabel(34)"}},
    {60, "Gearing", {Tab("Select_Page", 1)}},
    {61, "Ratios ==> Speeds", {"Direction1"}},
    {62, "Speeds ==> Ratios", {"Direction2"}},
    {63, "Tyre Type:", {"GearingLabel(38)"}},
    {64, "Road Super", {TyreTypeName(0)}},
    {65, "Road Normal", {TyreTypeName(1)}},
    {66, "Hybrid", {TyreTypeName(2)}},
    {67, "Knobbly", {TyreTypeName(3)}},
    {68, "Slick", {SlickNames()}, LastRowOf::TyreTypes},
    {69, "Available Graphs/Data:", {"GearingLabel(39)"}},
    {70, "Speed/Torque vs RPM", {GraphName(0)}},
    {71, "Tractive Effort/Speed vs Time", {GraphName(1)}},
    {72, "Acceleration Data Table", {GraphName(2)}, LastRowOf::Graphs},
    {73, "Calculate Speeds from Gear Ratios", {"CalcSpeeds"}},
    {74, "Final Drive:", {"GearingLabel(0)", "GearingLabel(15)"}},
    {75, "Gear", {"GearingLabel(1)", "GearingLabel(16)"}},
    {76, "Ratio", {"GearingLabel(2)", "GearingLabel(17)"}},
    {77, "Speed", {"GearingLabel(3)", "GearingLabel(18)", &Texts::TextColSpeed, "SpeedPlot_XUnits", "SpeedTimeGraph_YUnits"}},
    {78, "Engine Speed...", {"GearingLabel(4)", "GearingLabel(19)"}},
    {79, "After", {"GearingLabel(5)", "GearingLabel(20)"}},
    {80, "Before", {"GearingLabel(6)", "GearingLabel(21)"}},
    {81, "Torque at Wheels", {"GearingLabel(7)", "GearingLabel(22)"}},
    {82, "1st", {"GearingLabel(8)", "GearingLabel(23)", NameOfGear(1)}},
    {83, "2nd", {"GearingLabel(9)", "GearingLabel(24)", NameOfGear(2)}},
    {84, "3rd", {"GearingLabel(10)", "GearingLabel(25)", NameOfGear(3)}},
    {85, "4th", {"GearingLabel(11)", "GearingLabel(26)", NameOfGear(4)}},
    {86, "5th", {"GearingLabel(12)", "GearingLabel(27)", NameOfGear(5)}},
    {87, "6th", {"GearingLabel(13)", "GearingLabel(28)", NameOfGear(6)}},
    {88, "Reverse", {"GearingLabel(14)", "GearingLabel(29)"}},
    {89, "rpm", {Target{&Texts::RpmSuffix, " "}, "SpeedPlot_YUnits", "TorquePlot_XUnits", "Label_rpm1", "Label_rpm2", "Label_rpm3", "Label_rpm4", "Label_rpm5", "Label_rpm6"}},
    {90, "Calculate Gear Ratios from Speeds", {"CalcRatios"}},
    {91, "Acceleration", {"ShowAcc"}},
    {92, "This graph shows engine speed vs. car speed for all available gears", {ToolTip("SpeedPlot")}},
    {93, "This graph shows wheel torque vs wheel rpm for all available gears", {ToolTip("TorquePlot")}},
    {94, "This graph shows all the forces acting on the car against time", {ToolTip("TractiveEffortPlot")}},
    {95, "This graph shows the car speed against time", {ToolTip("SpeedTimeGraph")}},
    {96, "Time", {&Texts::TextColTime, "TEPlot_XUnits", "SpeedTimeGraph_XUnits"}},
    {97, "Engine RPM", {&Texts::TextColEngineRpm}},
    {98, "Gear", {&Texts::TextColGear}},
    {99, "Driving Force", {&Texts::TextColDrivingForce}},
    {100, "Resistance", {&Texts::TextColResistance}},
    {101, "Net Force", {&Texts::TextColNetForce}},
    {102, "Acceleration", {&Texts::TextColAcceleration}},
    {103, "F/R Vert. Wheel Loads", {&Texts::TextColWheelLoads}},
    {104, "Speeds have NOT been updated", {&Texts::TextSpeedsNotUpdated}},
    {105, "because of the following", {&Texts::TextBecauseOfThe}},
    {106, "error(s):", {&Texts::TextErrors}},
    {107, "The ratio for", {&Texts::TextRatioFor}},
    {108, "cannot be shorter than the ratio for", {&Texts::TextCannotBeShorter}},
    {109, "Ratios have NOT been updated", {&Texts::TextRatiosNotUpdated}},
    {110, "The speed for", {&Texts::TextSpeedFor}},
    {111, "cannot be less than that of", {&Texts::TextCannotBeLess}},
    {112, "Tyres", {Tab("Select_Page", 2)}},
    {113, "Car Speed:", {"TyreLabel(0)", "AeroLabel(0)"}},
    {114, "Blow Tyres", {"BlowTyres"}},
    {115, "Front tyre pressure:", {"TyreLabel(1)"}},
    {116, "Rear tyre pressure:", {"TyreLabel(2)"}},
    {117, "Analyse Front Tyre", {"FrontTyreAnal"}},
    {118, "Analyse Rear Tyre", {"RearTyreAnal"}},
    {119, "Graphical Analysis", {"TyreGraphAnal"}},
    {120, "Shape of tyre contact patch:", {"TyreLabel(3)"}},
    {121, "Shape of deformed tyre (side view):", {"TyreLabel(4)"}},
    {122, "Zoom Picture", {"TyreLabel(5)", "TyreLabel(6)"}},
    {123, "Basic representation of the surface of rubber in contact with the ground.", {ToolTip("CPS")}},
    {124, "Side view of the tyre showing how deformation affects the rolling radius", {ToolTip("SV")}},
    {125, "Numerical Analysis", {"TyreNumAnal"}},
    {126, "Contact patch width:", {"TyreLabel(7)"}},
    {127, "", {ToolTip("TyreLabel(7)")}},
    {128, "Contact patch lenth:", {"TyreLabel(8)"}},
    {129, "", {ToolTip("TyreLabel(8)")}},
    {130, "Contact patch area:", {"TyreLabel(9)"}},
    {131, "", {ToolTip("TyreLabel(9)")}},
    {132, "Contact patch aspect ratio:", {"TyreLabel(10)"}},
    {133, "", {ToolTip("TyreLabel(10)")}},
    {134, "Front/rear contact patch ratio:", {"TyreLabel(11)"}},
    {135, "", {ToolTip("TyreLabel(11)")}},
    {136, "Coefficient of Grip (Mu):", {"TyreLabel(12)"}},
    {137, "", {ToolTip("TyreLabel(12)")}},
    {138, "Tyre stiffness:", {"TyreLabel(13)"}},
    {139, "Tyre frequency:", {"TyreLabel(14)"}},
    {140, "Unloaded tyre radius:", {"TyreLabel(15)"}},
    {141, "Tyre deformation:", {"TyreLabel(16)"}},
    {142, "", {ToolTip("TyreLabel(16)")}},
    {143, "Tyre rolling radius/circumference:", {"TyreLabel(17)"}},
    {144, "", {ToolTip("TyreLabel(17)")}},
    {145, "Tyre wall height remaining:", {"TyreLabel(18)"}},
    {146, "Aerodynamics", {Tab("Select_Page", 3)}},
    {147, "Front Wing Angle:", {"AeroLabel(1)"}},
    {148, "Rear Wing Angle:", {"AeroLabel(2)"}},
    {149, "Speed Selection", {"AeroPanel(0)"}},
    {150, "Slider Speed", {"UseSliderSpeed"}},
    {151, "Top Speed", {"UseFixedSpeed"}},
    {152, "Totals", {"AeroPanel(1)"}},
    {153, "Drag:", {"AeroLabel(3)", "AeroLabel(26)", "AeroLabel(31)", "AeroLabel(36)"}},
    {154, "Lift:", {"AeroLabel(4)", "AeroLabel(17)", "AeroLabel(27)", "AeroLabel(32)", "AeroLabel(37)"}},
    {155, "Lift/Drag Ratio:", {"AeroLabel(5)", "AeroLabel(18)", "AeroLabel(28)", "AeroLabel(33)", "AeroLabel(38)"}},
    {156, "Rolling Resistance:", {"AeroLabel(6)"}},
    {157, "Resistance Split:", {"AeroLabel(7)"}},
    {158, "Friction:", {"AeroLabel(8)"}},
    {159, "Misc Info", {"AeroPanel(2)"}},
    {160, "Top Speed:", {"AeroLabel(9)"}},
    {161, "Air Temperature:", {"AeroLabel(10)"}},
    {162, "Air Density:", {"AeroLabel(11)"}},
    {163, "Body Info", {"AeroPanel(3)"}},
    {164, "Frontal Area:", {"AeroLabel(14)"}},
    {165, "Air Drag:", {"AeroLabel(16)"}},
    {166, "Weight Multiple:", {"AeroLabel(19)"}},
    {167, "Force Distribution Info", {"AeroPanel(4)"}},
    {168, "Front Wheels:", {"AeroLabel(20)"}},
    {169, "Rear Wheels:", {"AeroLabel(21)"}},
    {170, "Force Distribution:", {"AeroLabel(22)"}},
    {171, "Aero Distribution:", {"AeroLabel(23)"}},
    {172, "Undertay Info", {"AeroPanel(5)"}},
    {173, "Front Wing Info", {"AeroPanel(6)"}},
    {174, "Rear Wing Info", {"AeroPanel(7)"}},
    {175, "Custom Presets are needed for using Zolv with cars created with Tarmaq Shimbox", {"CUPLabel(0)"}},
    {176, "Add a new custom preset", {"Frame_Add"}},
    {177, "Tweak Name:", {"CUPLabel(1)", "CUPLabel(19)"}},
    {178, "Based on Car:", {"CUPLabel(2)"}},
    {179, "Peak Power:", {"CUPLabel(3)", "CUPLabel(20)"}},
    {180, "Engine Speed at Peak Power:", {"CUPLabel(4)", "CUPLabel(21)"}},
    {181, "Peak Torque:", {"CUPLabel(5)", "CUPLabel(22)"}},
    {182, "Engine Speed at Peak Torque:", {"CUPLabel(6)", "CUPLabel(23)"}},
    {183, "Engine Speed at Idle:", {"CUPLabel(35)", "CUPLabel(36)"}},
    {184, "Drivetrain:", {"CUPLabel(7)", "CUPLabel(24)"}},
    {185, "Number of Gears:", {"CUPLabel(8)", "CUPLabel(25)"}},
    {186, "Vehicle Mass:", {"CUPLabel(9)", "CUPLabel(26)"}},
    {187, "Unsprung Mass:", {"CUPLabel(10)", "CUPLabel(27)"}},
    {188, "Weight Distribution:", {"CUPLabel(11)", "CUPLabel(28)"}},
    {189, "(front)", {Target{"Label_Perc1", "% "}, Target{"Label_Perc2", "% "}}},
    {190, "Front Wheel/Tyre Size:", {"CUPLabel(13)", "CUPLabel(30)", &Texts::TextFrontWheelSize}},
    {191, "Front Track:", {"CUPLabel(14)", "CUPLabel(31)"}},
    {192, "Rear Wheel/Tyre Size:", {"CUPLabel(15)", "CUPLabel(32)"}},
    {193, "Rear Track:", {"CUPLabel(16)", "CUPLabel(33)"}},
    {194, "Wheel/Tyre Size:", {&Texts::TextWheelSize}},
    {195, "Custom Presets used:", {"CUPLabel(18)"}},
    {196, "Load from file", {"CP_Load"}},
    {197, "Load custom preset...", {&Texts::TextLoadPreset}},
    {198, "Add Car", {"AddCar"}},
    {199, "You cannot give your preset a name that has already been used.", {&Texts::TextPresetNameUsed}},
    {200, "You can only add up to 10 custom presets.", {&Texts::TextPresetLimit}},
    {201, "You must enter a name for your preset.", {&Texts::TextPresetNoName}},
    {202, "You must select a car for the preset to be based upon.", {&Texts::TextPresetNoCar}},
    {203, "You did not enter a valid power figure. It must be at least 1kW.", {&Texts::TextBadPower}},
    {204, "You did not enter a valid engine speed for peak power. It must be at least 100rpm.", {&Texts::TextBadPowerRpm}},
    {205, "You did not enter a valid torque figure. It must be at least 1Nm.", {&Texts::TextBadTorque}},
    {206, "You did not enter a valid engine speed for peak torque. It must be at least 100rpm.", {&Texts::TextBadTorqueRpm}},
    {207, "The engine idle speed must be at least 100rpm.", {&Texts::TextBadIdle}},
    {208, "The engine idle speed cannot be more than one third of the engine speed for peak power.", {&Texts::TextIdleTooHigh}},
    {209, "You must select a drivetrain.", {&Texts::TextNoDrivetrain}},
    {210, "You must select the number of gears.", {&Texts::TextNoGears}},
    {211, "You did not enter a valid mass. It must be at least 1kg.", {&Texts::TextBadMass}},
    {212, "You did not enter a valid unsprung mass. It must be at least 1kg.", {&Texts::TextBadUnsprungMass}},
    {213, "You did not enter a valid weight distribution. It must be at least 5%.", {&Texts::TextBadWeightDistLow}},
    {214, "You did not enter a valid weight distribution. It must be not be more than 95%", {&Texts::TextBadWeightDistHigh}},
    {215, "You did not enter a coefficient of drag. It must be positive.", {&Texts::TextBadDrag}},
    {216, "You did not enter a valid front tyre width. It must be at least 1mm.", {&Texts::TextBadFrontTyreWidth}},
    {217, "You did not enter a valid front tyre profile. It must be at least 1%.", {&Texts::TextBadFrontTyreProfile}},
    {218, "You did not enter a valid front rim size. It must be at least 1 inch.", {&Texts::TextBadFrontRim}},
    {219, "You did not enter a valid rear tyre width. It must be at least 1mm.", {&Texts::TextBadRearTyreWidth}},
    {220, "You did not enter a valid rear tyre profile. It must be at least 1%.", {&Texts::TextBadRearTyreProfile}},
    {221, "You did not enter a valid rear rim size. It must be at least 1 inch.", {&Texts::TextBadRearRim}},
    {222, "You did not enter a valid front track width. It must be at least 0.5m.", {&Texts::TextBadFrontTrack}},
    {223, "You did not enter a valid rear track width. It must be at least 0.5m.", {&Texts::TextBadRearTrack}},
    {224, "You did not enter a valid wheelbase. It must be at least 0.5m.", {&Texts::TextBadWheelbase}},
    {225, "Added custom preset:", {&Texts::TextAddedPreset}},
    {226, "Edit exisiting custom preset", {"Frame_Edit"}},
    {227, "Save to file", {"CP_Save"}},
    {228, "Save custom preset as...", {&Texts::TextSavePreset}},
    {229, "Update", {"EditUpdate"}},
    {230, "Updated custom preset:", {&Texts::TextUpdatedPreset}},
    {231, "Unit Converter", {"LoadUnitConv"}},
    {232, "Quick Unit Converter", {"UnitConv"}},
    {233, "Quickly convert units...", {"UC_Title"}},
    {234, "Convert Units", {"ConvertFrame(0)"}},
    {235, "Distance:", {"Label_Distance"}},
    {236, "Convert Metric Tyre Sizes", {"ConvertFrame(1)"}},
    {237, "Customise Zolv", {"Title_Options"}},
    {238, "Units", {Tab("Select_Options", 0)}},
    {239, "Units of Speed:", {"OptionsLabel(0)"}},
    {240, "Units of Distance:", {"OptionsLabel(1)"}},
    {241, "Units of Area:", {"OptionsLabel(2)"}},
    {242, "Units of Pressure:", {"OptionsLabel(3)"}},
    {243, "Units of Mass:", {"OptionsLabel(4)"}},
    {244, "Units of Force:", {"OptionsLabel(5)"}},
    {245, "Units of Stiffness:", {"OptionsLabel(6)"}},
    {246, "Units of Acceleration:", {"OptionsLabel(7)"}},
    {247, "Units of Power:", {"OptionsLabel(8)"}},
    {248, "Units of Torque:", {"OptionsLabel(9)"}},
    {249, "Units of Power-to-weight:", {"OptionsLabel(10)"}},
    {250, "Units of Torque-to-weight:", {"OptionsLabel(11)"}},
    {251, "Meters per Second", {UnitName(&UnitState::Speed, 0)}},
    {252, "Kilometers per Hour", {UnitName(&UnitState::Speed, 1)}},
    {253, "Miles per Hour", {UnitName(&UnitState::Speed, 2)}},
    {254, "Nautical Miles per Hour (Knots)", {UnitName(&UnitState::Speed, 3)}},
    {255, "Feet per Second", {UnitName(&UnitState::Speed, 4)}, LastRowOf::Units},
    {256, "Meters", {UnitName(&UnitState::Distance, 0)}},
    {257, "Centimeters", {UnitName(&UnitState::Distance, 1)}},
    {258, "Millimeters", {UnitName(&UnitState::Distance, 2)}},
    {259, "Inches", {UnitName(&UnitState::Distance, 3)}},
    {260, "Feet", {UnitName(&UnitState::Distance, 4)}, LastRowOf::Units},
    {261, "Square Meters", {UnitName(&UnitState::Area, 0)}},
    {262, "Square Centimeters", {UnitName(&UnitState::Area, 1)}},
    {263, "Square Millimeters", {UnitName(&UnitState::Area, 2)}},
    {264, "Square Inches", {UnitName(&UnitState::Area, 3)}},
    {265, "Square Feet", {UnitName(&UnitState::Area, 4)}, LastRowOf::Units},
    {266, "Kilopascals", {UnitName(&UnitState::Pressure, 0)}},
    {267, "Kilograms per Square Centimeter", {UnitName(&UnitState::Pressure, 1)}},
    {268, "Bar", {UnitName(&UnitState::Pressure, 2)}},
    {269, "Atmospheres", {UnitName(&UnitState::Pressure, 3)}},
    {270, "Pounds per Square Inch", {UnitName(&UnitState::Pressure, 4)}, LastRowOf::Units},
    {271, "Kilograms", {UnitName(&UnitState::Mass, 0)}},
    {272, "Tonnes", {UnitName(&UnitState::Mass, 1)}},
    {273, "Pounds", {UnitName(&UnitState::Mass, 2)}},
    {274, "Slug", {UnitName(&UnitState::Mass, 3)}},
    {275, "Tons (Short)", {UnitName(&UnitState::Mass, 4)}},
    {276, "Tons (Long)", {UnitName(&UnitState::Mass, 5)}, LastRowOf::Units},
    {277, "Newtons", {UnitName(&UnitState::Force, 0)}},
    {278, "Sthenes (Kilonewtons)", {UnitName(&UnitState::Force, 1)}},
    {279, "Kiloponds", {UnitName(&UnitState::Force, 2)}},
    {280, "Poundals", {UnitName(&UnitState::Force, 3)}},
    {281, "Pounds-force", {UnitName(&UnitState::Force, 4)}, LastRowOf::Units},
    {282, "Sthenes per Meter", {UnitName(&UnitState::Stiffness, 0)}},
    {283, "Pounds per Inch", {UnitName(&UnitState::Stiffness, 1)}, LastRowOf::Units},
    {284, "Meters per Second Squared", {UnitName(&UnitState::Acc, 0)}},
    {285, "Gal", {UnitName(&UnitState::Acc, 1)}},
    {286, "Rate of free fall", {UnitName(&UnitState::Acc, 2)}},
    {287, "Feet per Second Squared", {UnitName(&UnitState::Acc, 3)}},
    {288, "Inches per Second Squared", {UnitName(&UnitState::Acc, 4)}, LastRowOf::Units},
    {289, "Kilowatts", {UnitName(&UnitState::Power, 0)}},
    {290, "Horsepower (Metric)", {UnitName(&UnitState::Power, 1)}},
    {291, "Horsepower (Original)", {UnitName(&UnitState::Power, 2)}},
    {292, "Feet Pound-force per Second", {UnitName(&UnitState::Power, 3)}, LastRowOf::Units},
    {293, "Newton Meters", {UnitName(&UnitState::Torque, 0)}},
    {294, "Kilogram-force Meters", {UnitName(&UnitState::Torque, 1)}},
    {295, "Pound-force Feet", {UnitName(&UnitState::Torque, 2)}},
    {296, "Pound-force Inches", {UnitName(&UnitState::Torque, 3)}, LastRowOf::Units},
    {297, "Kilowatts per Tonne", {UnitName(&UnitState::P2W, 0)}},
    {298, "Kilograms per Kilowatt", {UnitName(&UnitState::P2W, 1)}},
    {299, "Horsepower per Tonne", {UnitName(&UnitState::P2W, 2)}},
    {300, "Horsepower per Ton (Short)", {UnitName(&UnitState::P2W, 3)}},
    {301, "Horsepower per Ton (Long)", {UnitName(&UnitState::P2W, 4)}},
    {302, "Horsepower per Slug", {UnitName(&UnitState::P2W, 5)}},
    {303, "Pound per Horsepower", {UnitName(&UnitState::P2W, 6)}, LastRowOf::Units},
    {304, "Newton Meters per Tonne", {UnitName(&UnitState::T2W, 0)}},
    {305, "Newton Meters per Kilogram", {UnitName(&UnitState::T2W, 1)}},
    {306, "Pound Feet per Ton (Short)", {UnitName(&UnitState::T2W, 2)}},
    {307, "Pound Feet per Ton (Long)", {UnitName(&UnitState::T2W, 3)}},
    {308, "Inch Pounds per Slug", {UnitName(&UnitState::T2W, 4)}},
    {309, "Inch Pounds per Pound", {UnitName(&UnitState::T2W, 5)}, LastRowOf::Units},
    {310, "Graphs", {Tab("Select_Options", 1)}},
    {311, "Speed Plot Options", {"OptionsGroup(3)"}},
    {312, "Horizontal Scale:", {"Label_XScale(0)", "Label_XScale(1)", "Label_XScale(2)", "Label_XScale(3)"}},
    {313, "Vertical Scale:", {"Label_YScale(0)", "Label_YScale(1)", "Label_YScale(2)", "Label_YScale(3)"}},
    {314, "Show Peak Power Line", {"EnablePowerLine"}},
    {315, "Show Peak Torque Line", {"EnableTorqueLine"}},
    {316, "Show Rev Limiter Line", {"EnableRedline"}},
    {317, "Alternate Graph Style", {"EnableAltGraph"}},
    {318, "Torque Plot Options", {"OptionsGroup(4)"}},
    {319, "torque", {"TorquePlot_YUnits"}},
    {320, "Show Engine Torque", {"EnableEngineTorque"}},
    {321, "Tractive Effort Plot Options", {"OptionsGroup(5)"}},
    {322, "force", {"TEPlot_YUnits"}},
    {323, "Show Front/Rear Vertical Tyre Loads", {"EnableVLoads"}},
    {324, "Speed vs. Time Graph Options", {"OptionsGroup(6)"}},
    {325, "Misc", {Tab("Select_Options", 2)}},
    {326, "Top / Reverse Gear Max Revs", {"OptionsGroup(0)"}},
    {327, "Peak Power", {"RevsP"}},
    {328, "Redline", {"RevsR"}},
    {329, "Rev Limiter", {"OptionsGroup(1)"}},
    {330, "Enable Rev Limiter", {"RevLimitEnable"}},
    {331, "Rev Calculation", {"OptionsGroup(2)"}},
    {332, "Automatic", {"RC_Auto"}},
    {333, "Custom Fixed:", {"RC_Fixed"}},
    {334, "Performance Options", {"OptionsGroup(7)"}},
    {335, "Enable Acceleration Calculations (slow!)", {"AccelerationTestingEnable"}},
    {336, "Load Options", {"OptionsLoad"}},
    {337, "Error: Options.ini does not exist.", {&Texts::TextOptionsMissing}},
    {338, "Save Options", {"OptionsSave"}},
}};
// clang-format on

constexpr bool NumberedInOrder() {
    for (std::size_t i = 0; i < kCaptionLines; ++i) {
        if (kCaptionTable[i].number != static_cast<int>(i)) return false;
    }
    return true;
}
static_assert(NumberedInOrder());

Field& FieldOf(const Target& target) {
    const std::vector<Field*> found = FindFields(target.field);
    assert(found.size() == 1 && "a caption goes to a field that exists once");
    return *found.front();
}

/// The paragraphs in one text: the first two lines belong together, the others stand apart.
void ShowAbout() {
    std::string about;
    for (std::size_t i = 0; i < texts.AboutParagraphs.size(); ++i) {
        if (i > 0) about += i == 1 ? "\r\n" : "\r\n\r\n";
        about += texts.AboutParagraphs[i];
    }
    Zolv.AboutZolv.SetCaption(about);
}

void Assign(const Target& target, std::string_view line) {
    const auto row = static_cast<std::size_t>(target.row);
    const std::string text = std::string(target.before).append(line);
    switch (target.kind) {
        case Target::Kind::None: break;
        case Target::Kind::Caption: FieldOf(target).SetCaption(text); break;
        case Target::Kind::ToolTip: FieldOf(target).SetToolTip(text); break;
        case Target::Kind::Tab: static_cast<TabStrip&>(FieldOf(target)).SetRow(target.row, text); break;
        case Target::Kind::Text: texts.*target.text = text; break;
        case Target::Kind::TyreTypeName: texts.TyreTypeNames[row] = text; break;
        case Target::Kind::SlickNames:
            for (std::size_t r = 1; r <= 4; ++r) texts.TyreTypeNames[row + r - 1] = text + " R" + std::to_string(r);
            break;
        case Target::Kind::GraphName: texts.GraphNames[row] = text; break;
        case Target::Kind::GearName: texts.GearNames[row] = text; break;
        case Target::Kind::UnitName: (units.*target.quantity).UnitNames[row] = text; break;
        case Target::Kind::AboutParagraph:
            texts.AboutParagraphs[row] = WithVersion(text);
            if (row + 1 == texts.AboutParagraphs.size()) ShowAbout();
            break;
    }
}

}  // namespace

const std::array<CaptionLine, kCaptionLines>& CaptionTable() { return kCaptionTable; }

void AssignCaption(const CaptionLine& line, std::string_view text) {
    for (const Target& target : line.targets) Assign(target, text);
}

void AssignBuiltInCaptions() {
    for (const CaptionLine& line : kCaptionTable) AssignCaption(line, line.builtIn);
}

std::string BuiltInLanguage() {
    std::string text;
    for (const CaptionLine& line : kCaptionTable) {
        if (line.number > 0) text += "\r\n";
        text += WithVersion(line.builtIn);
    }
    return text;
}

}  // namespace zolv
