#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "text/texts.h"
#include "units/unit_state.h"

namespace zolv {

/// Where a line of a language goes. A target is named as it is written: a field's name is its caption (a window's, its
/// title), a member of Texts is that text.
struct Target {
    enum class Kind : std::uint8_t {
        None,
        Caption,         // of a field
        ToolTip,         // of a field
        Tab,             // of a tab strip
        Text,            // a string of texts
        TyreTypeName,    // row of texts.TyreTypeNames
        SlickNames,      // rows 4 to 7 of texts.TyreTypeNames: the line and " R1" to " R4"
        GraphName,       // row of texts.GraphNames
        GearName,        // row of texts.GearNames
        UnitName,        // row of a quantity's UnitNames
        AboutParagraph,  // of AboutZolv
    };

    Kind kind = Kind::None;
    std::string_view field;
    std::string Texts::*text = nullptr;
    Quantity UnitState::*quantity = nullptr;
    int row = 0;
    std::string_view before;  // stands in front of the line

    constexpr Target() = default;
    constexpr Target(const char* name, std::string_view inFront = {})
        : kind(Kind::Caption), field(name), before(inFront) {}
    constexpr Target(std::string Texts::*member, std::string_view inFront = {})
        : kind(Kind::Text), text(member), before(inFront) {}
    constexpr Target(Kind kindOfTarget, int rowOfTarget, std::string_view name = {})
        : kind(kindOfTarget), field(name), row(rowOfTarget) {}
    constexpr Target(Quantity UnitState::*which, int rowOfTarget)
        : kind(Kind::UnitName), quantity(which), row(rowOfTarget) {}
};

/// Lists whose rows come from lines. Whoever assigns the lines rebuilds a list behind the line of its last row.
enum class LastRowOf : std::uint8_t {
    NoList,
    Drivetrains,
    TyreTypes,
    Graphs,
    Units,  // of the quantity that the line's first target names
};

/// One line of a language: its number, the built-in English text, and where it goes, in the order of assignment.
struct CaptionLine {
    int number;
    std::string_view builtIn;
    std::array<Target, 9> targets;
    LastRowOf list = LastRowOf::NoList;
};

/// Lines of a language file.
inline constexpr std::size_t kCaptionLines = 339;
const std::array<CaptionLine, kCaptionLines>& CaptionTable();

/// Assigns the text of one line to its targets. A list that shows the rows of texts or of units keeps its old rows:
/// whoever assigns the lines rebuilds it.
void AssignCaption(const CaptionLine& line, std::string_view text);

/// Assigns the built-in text of every line.
void AssignBuiltInCaptions();

/// The built-in texts as a complete language file: lines ended by CR LF, but the last.
[[nodiscard]] std::string BuiltInLanguage();

}  // namespace zolv
