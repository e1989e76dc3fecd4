#pragma once

#include <span>
#include <string>

#include "fields/kinds.h"
#include "model/tyre_sheet.h"
#include "tyres/tyre_state.h"

/// How the figures of a tyre are written.
namespace zolv {

/// The tyre of the axle that is analysed.
[[nodiscard]] const TyreSheet& AnalysedOf(const TyrePair& pair);

/// A figure of one tyre: the number of its name among the TyreLabels, where the page has it, and how it is written.
struct TyreFigure {
    int name;
    Label* value;
    std::string (*text)(const TyreSheet&);
};
[[nodiscard]] std::span<const TyreFigure> TyreFigures();

/// What a length or an area of the tyre shown, of the present or of the held set-up, reads in millimetres or square
/// centimetres, while the user's unit is the metre or the square metre, in which it would be cut to two decimals. Empty
/// in any other unit.
/// @param field  one of CPW, CPL, CPA, UTR, TD, TRRC, TWH
[[nodiscard]] std::string FinerTyreText(Showing which, const Label& field);

}  // namespace zolv
