#include "units/unit_converter.h"

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "model/whole_number.h"
#include "platform/dialogs.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_constants.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

/// Metric value = input * times / over / andOver, in that order. One row a row of the list.
struct Conversion {
    double times, over, andOver;
};

// clang-format off
constexpr Conversion kDistance[] = {
    {1,                  100,                     1},   // cm
    {1,                  1000,                    1},   // mm
    {1,                  kStandardInchesPerMetre, 1},   // in
    {1,                  kFeetPerMetre,           1},   // ft
};
constexpr Conversion kMass[] = {
    {1000,               1,                       1},   // t
    {1,                  kPoundsPerKg,            1},   // lb
    {kPoundsPerSlug,     kPoundsPerKg,            1},   // slug
    {kPoundsPerShortTon, kPoundsPerKg,            1},   // short ton
    {kPoundsPerLongTon,  kPoundsPerKg,            1},   // long ton
};
constexpr Conversion kPower[] = {
    {1,                  kPsPerKw,                1},   // ps
    {1,                  kHpPerKw,                1},   // hp
    {1,                  kFootPoundsPerKw,        1},   // ft lbf/s
};
constexpr Conversion kTorque[] = {
    {kGravity,           1,                       1},   // kgfm
    {1,                  kPoundFeetPerNm,         1},   // lbf ft
    {1,                  kPoundFeetPerNm,         12},  // lbf in
};
// clang-format on

struct ConvertedQuantity {
    ConverterRow& row;
    std::span<const Conversion> conversions;
    int decimals;
    std::string_view suffix;  // of the metric unit
};

const std::array<ConvertedQuantity, 4>& ConvertedQuantities() {
    static const std::array<ConvertedQuantity, 4> kAll{{{UnitConv.Distance, kDistance, 2, " m"},
                                                        {UnitConv.Mass, kMass, 0, " kg"},
                                                        {UnitConv.Power, kPower, 0, " kW"},
                                                        {UnitConv.Torque, kTorque, 0, " Nm"}}};
    return kAll;
}

void ShowConverted(const ConvertedQuantity& quantity) {
    const int picked = quantity.row.Select.Picked();
    if (picked < 0) {
        quantity.row.Output.SetCaption(words.Sentence("ConvertedIs", {std::string("?").append(quantity.suffix)}));
        return;
    }
    const Conversion& conversion = quantity.conversions[static_cast<std::size_t>(picked)];
    const double value = Val(quantity.row.Input.Text()) * conversion.times / conversion.over / conversion.andOver;
    quantity.row.Output.SetCaption(
        words.Sentence("ConvertedIs", {WithUnit(value, quantity.decimals, quantity.suffix)}));
}

struct TyreSizes {
    double width, height;  // [mm]; the height is the outer diameter
    std::int16_t rim;      // [mm]
};

/// What is wrong with the sizes; empty for sizes of a tyre.
std::string FaultOf(const TyreSizes& tyre) {
    if (tyre.width < 1) return words["TyreWidthTooSmall"];
    if (tyre.height < 1) return words["TyreHeightTooSmall"];
    if (tyre.rim < 1) return words["RimDiameterTooSmall"];
    return {};
}

}  // namespace

void ConvertUnits(ConverterRow& row) {
    for (const ConvertedQuantity& quantity : ConvertedQuantities()) {
        if (&quantity.row == &row) ShowConverted(quantity);
    }
}

void ShowConverterWords() {
    constexpr int kFirstLongName = 2;  // of the list of masses; the others are short names, the same in every language
    for (int row = kFirstLongName; row < static_cast<int>(UnitConv.Mass.Select.Rows().size()); ++row) {
        UnitConv.Mass.Select.SetRow(row, units.Mass.UnitNames[static_cast<std::size_t>(row) + 1]);
    }
    for (const ConvertedQuantity& quantity : ConvertedQuantities()) ShowConverted(quantity);
}

void ConvertTyre() {
    const TyreSizes tyre{.width = Val(UnitConv.TyreWidthInput.Text()),
                         .height = Val(UnitConv.TyreHeightInput.Text()),
                         .rim = ToInt16(Val(UnitConv.RimSizeInput.Text()))};
    if (const std::string fault = FaultOf(tyre); !fault.empty()) {
        ShowMessage(fault);
        return;
    }
    const double profile = 100 * ((tyre.height - tyre.rim) / 2) / tyre.width;
    const double rim_in = tyre.rim / 1000.0 * kFeetPerMetre * 12;
    UnitConv.TyreOutput.SetCaption(NumberText(tyre.width) + " / " + RoundedText(profile, 0) + " R" +
                                   RoundedText(rim_in, 0));
}

}  // namespace zolv
