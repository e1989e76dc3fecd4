#include "units/unit_converter.h"

#include <cstdint>
#include <string>
#include <string_view>

#include "model/whole_number.h"
#include "platform/dialogs.h"
#include "text/number_text.h"

namespace zolv {
namespace {

constexpr double kInchesPerMetre = 39.37007874;  // not the 39.3900787 of the program's own lengths
constexpr double kFeetPerMetre = 3.280839895;
constexpr double kPoundsPerKg = 2.20462262;
constexpr double kPoundsPerSlug = 32.17404855630175;
constexpr double kGravity = 9.80665;  // newtons per kilogram-force
constexpr double kPoundFeetPerNm = 0.737310284547655;

/// Metric value = input * times / over / andOver, in that order.
struct Conversion {
    std::string_view unit;  // as the list has it; no two lists share one
    double times, over, andOver;
    int decimals;
    std::string_view suffix;
};

// clang-format off
constexpr Conversion kConversions[] = {
    {"cm",           1,              100,             1,  2, " m"},
    {"mm",           1,              1000,            1,  2, " m"},
    {"in",           1,              kInchesPerMetre, 1,  2, " m"},
    {"ft",           1,              kFeetPerMetre,   1,  2, " m"},
    {"t",            1000,           1,               1,  0, " kg"},
    {"lb",           1,              kPoundsPerKg,    1,  0, " kg"},
    {"Slug",         kPoundsPerSlug, kPoundsPerKg,    1,  0, " kg"},
    {"Tons (Short)", 2000,           kPoundsPerKg,    1,  0, " kg"},
    {"Tons (Long)",  2240,           kPoundsPerKg,    1,  0, " kg"},
    {"ps",           1,              1.35962,         1,  0, " kW"},
    {"hp",           1,              1.341,           1,  0, " kW"},
    {"ft lbf/s",     1,              737.55,          1,  0, " kW"},
    {"kgfm",         kGravity,       1,               1,  0, " Nm"},
    {"lbf ft",       1,              kPoundFeetPerNm, 1,  0, " Nm"},
    {"lbf in",       1,              kPoundFeetPerNm, 12, 0, " Nm"},
};
// clang-format on

struct TyreSizes {
    double width, height;  // [mm]; the height is the outer diameter
    std::int16_t rim;      // [mm]
};

/// What is wrong with the sizes; empty for sizes of a tyre.
std::string_view FaultOf(const TyreSizes& tyre) {
    if (tyre.width < 1) return "Tyre Width cannot be less than 1mm";
    if (tyre.height < 1) return "Tyre Height cannot be less than 1mm";
    if (tyre.rim < 1) return "Rim Diameter cannot be less than 1mm";
    return {};
}

}  // namespace

void ConvertUnits(ConverterRow& row) {
    for (const Conversion& conversion : kConversions) {
        if (conversion.unit != row.Select.Text()) continue;
        const double value = Val(row.Input.Text()) * conversion.times / conversion.over / conversion.andOver;
        row.Output.SetCaption("is " + WithUnit(value, conversion.decimals, conversion.suffix));
    }
}

void ConvertTyre() {
    const TyreSizes tyre{.width = Val(UnitConv.TyreWidthInput.Text()),
                         .height = Val(UnitConv.TyreHeightInput.Text()),
                         .rim = ToInt16(Val(UnitConv.RimSizeInput.Text()))};
    if (const std::string_view fault = FaultOf(tyre); !fault.empty()) {
        ShowMessage(std::string(fault));
        return;
    }
    const double profile = 100 * ((tyre.height - tyre.rim) / 2) / tyre.width;
    const double rim_in = tyre.rim / 1000.0 * kFeetPerMetre * 12;
    UnitConv.TyreOutput.SetCaption(NumberText(tyre.width) + " / " + RoundedText(profile, 0) + " R" +
                                   RoundedText(rim_in, 0));
}

}  // namespace zolv
