#include "shell/unit_converter.h"

#include <gtest/gtest.h>

#include <string>

#include "fields/windows.h"
#include "support/zolv_test.h"

namespace zolv {
namespace {

struct ConversionCase {
    const char* name;
    ConverterRow UnitConvWindow::*row;
    const char* unit;
    const char* input;
    const char* output;
};

void PrintTo(const ConversionCase& row, std::ostream* out) { *out << row.name; }

class UnitConverter : public ZolvTest {
protected:
    UnitConverter() { Start(); }
};

class Conversions : public UnitConverter, public testing::WithParamInterface<ConversionCase> {};

TEST_P(Conversions, AreMetric) {
    ConverterRow& row = UnitConv.*GetParam().row;
    row.Select.SetText(GetParam().unit);
    row.Input.Enter(GetParam().input);
    EXPECT_EQ(row.Output.Caption(), GetParam().output);
}

// Worked out with 40-digit decimals; the figure behind is the one before rounding.
const ConversionCase kConversions[] = {
    {"Centimetres", &UnitConvWindow::Distance, "cm", "250", "is 2.5 m"},
    {"HalfToEven", &UnitConvWindow::Distance, "cm", "12.5", "is 0.12 m"},  // 0.125
    {"Millimetres", &UnitConvWindow::Distance, "mm", "250", "is 0.25 m"},
    {"Inches", &UnitConvWindow::Distance, "in", "99999", "is 2539.97 m"},  // 2539.9746; 2538.68 with the wrong inch
    {"Feet", &UnitConvWindow::Distance, "ft", "250", "is 76.2 m"},
    {"Tonnes", &UnitConvWindow::Mass, "t", "1.25", "is 1250 kg"},
    {"Pounds", &UnitConvWindow::Mass, "lb", "250", "is 113 kg"},                    // 113.398
    {"Slugs", &UnitConvWindow::Mass, "Slug", "250", "is 3648 kg"},                  // 3648.476
    {"ShortTons", &UnitConvWindow::Mass, "Tons (Short)", "250", "is 226796 kg"},    // 226796.185
    {"LongTons", &UnitConvWindow::Mass, "Tons (Long)", "250", "is 254012 kg"},      // 254011.727
    {"MetricHorsepower", &UnitConvWindow::Power, "ps", "250", "is 184 kW"},         // 183.875
    {"Horsepower", &UnitConvWindow::Power, "hp", "250", "is 186 kW"},               // 186.428
    {"FootPounds", &UnitConvWindow::Power, "ft lbf/s", "9999", "is 14 kW"},         // 13.557
    {"KilogramForceMetres", &UnitConvWindow::Torque, "kgfm", "250", "is 2452 Nm"},  // 2451.66
    {"PoundFeet", &UnitConvWindow::Torque, "lbf ft", "250", "is 339 Nm"},           // 339.070
    {"PoundInches", &UnitConvWindow::Torque, "lbf in", "250", "is 28 Nm"},          // 28.256
    {"LeadingNumber", &UnitConvWindow::Mass, "t", "2x", "is 2000 kg"},
    {"NoNumber", &UnitConvWindow::Distance, "cm", "x", "is 0 m"},
    {"FiveCharacters", &UnitConvWindow::Distance, "cm", "1234567", "is 123.45 m"},
    {"BeyondEveryNumber", &UnitConvWindow::Mass, "t", "9e999", "is N/A"},
};
INSTANTIATE_TEST_SUITE_P(ByHand, Conversions, testing::ValuesIn(kConversions),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(UnitConverter, WithoutUnitTheOutputStays) {
    UnitConv.Torque.Input.Enter("12");
    EXPECT_EQ(UnitConv.Torque.Output.Caption(), "is ? Nm");
    UnitConv.Torque.Select.SetText("kgfm");
    EXPECT_EQ(UnitConv.Torque.Output.Caption(), "is 118 Nm");  // 117.68
}

TEST_F(UnitConverter, EmptyInputIsZero) {
    UnitConv.Distance.Select.SetText("ft");
    EXPECT_EQ(UnitConv.Distance.Output.Caption(), "is 0 m");
}

struct TyreCase {
    const char* name;
    const char *width, *height, *rim;
    const char* output;
    const char* message;
};

void PrintTo(const TyreCase& row, std::ostream* out) { *out << row.name; }

class TyreConversion : public UnitConverter, public testing::WithParamInterface<TyreCase> {};

TEST_P(TyreConversion, IsTheSizeOnTheSidewall) {
    const TyreCase& row = GetParam();
    UnitConv.TyreWidthInput.Enter(row.width);
    UnitConv.TyreHeightInput.Enter(row.height);
    UnitConv.RimSizeInput.Enter(row.rim);
    EXPECT_EQ(UnitConv.TyreOutput.Caption(), row.output);
    if (row.message != nullptr) ExpectMessage(row.message);
}

// 100 * (585 - 380) / 2 / 205 is exactly 50; 380 mm are 14.96 inches. Where a size is refused, the size before it
// stays.
const TyreCase kTyres[] = {
    {"AsBuiltIn", "205", "585", "380", "205 / 50 R15", nullptr},
    {"Racing", "335", "650", "457", "335 / 29 R18", nullptr},  // 28.8; 17.99
    {"RimAboveTyre", "200", "300", "380", "200 / -20 R15", nullptr},
    {"WidthAsNumber", "205x", "585", "380", "205 / 50 R15", nullptr},
    {"HalfRim", "205", "585", "0.5", "205 / 50 R15", "Rim Diameter cannot be less than 1mm"},
    {"NoWidth", "0.9", "585", "380", "205 / 50 R15", "Tyre Width cannot be less than 1mm"},
    {"NoHeight", "205", "", "380", "205 / 50 R15", "Tyre Height cannot be less than 1mm"},
};
INSTANTIATE_TEST_SUITE_P(ByHand, TyreConversion, testing::ValuesIn(kTyres),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zolv
