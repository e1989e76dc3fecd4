#include "search/straights.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace zolv {
namespace {

struct Unit {
    std::string_view name;
    double base;  // m/s or m in one
};
// By their definitions, for a file that other programs read; the units of the pages have factors of their own.
constexpr std::array<Unit, 5> kSpeedUnits{
    {{"m/s", 1}, {"km/h", 1 / 3.6}, {"mph", 0.44704}, {"knots", 1852.0 / 3600}, {"ft/s", 0.3048}}};
constexpr std::array<Unit, 5> kLengthUnits{{{"m", 1}, {"km", 1000}, {"ft", 0.3048}, {"yd", 0.9144}, {"mi", 1609.344}}};

using Units = std::array<Unit, 5>;

const Unit* Find(const Units& units, std::string_view name) {
    const auto found = std::ranges::find(units, name, &Unit::name);
    return found == units.end() ? nullptr : &*found;
}

std::string_view Trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r");
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string Lower(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return lower;
}

/// The cells of one line; none where quotes stay open.
std::optional<std::vector<std::string>> CellsOf(std::string_view line) {
    std::vector<std::string> cells;
    for (std::size_t at = 0; at <= line.size(); ++at) {
        const std::size_t begin = std::min(line.find_first_not_of(" \t", at), line.size());
        if (begin == line.size() || line[begin] != '"') {
            const std::size_t end = std::min(line.find(',', at), line.size());
            cells.emplace_back(Trimmed(line.substr(at, end - at)));
            at = end;
            continue;
        }
        std::string& cell = cells.emplace_back();
        std::size_t i = begin + 1;
        for (;; ++i) {
            if (i >= line.size()) return std::nullopt;
            if (line[i] == '"' && (++i >= line.size() || line[i] != '"')) break;
            cell += line[i];
        }
        at = std::min(line.find(',', i), line.size());
        cell += Trimmed(line.substr(i, at - i));
    }
    return cells;
}

std::optional<double> NumberOf(std::string_view cell) {
    if (cell.starts_with('+')) cell.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), number);
    if (error != std::errc{} || end != cell.data() + cell.size() || !std::isfinite(number)) return std::nullopt;
    return number;
}

/// Reads line by line; the first error ends it.
class Reader {
public:
    StraightsRead Read(std::string_view text) {
        if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
        while (!text.empty() && !read_.Error) {
            const std::size_t end = text.find('\n');
            ++line_;
            if (const std::string_view line = Trimmed(text.substr(0, end)); !line.empty()) TakeLine(line);
            text.remove_prefix(end == text.npos ? text.size() : end + 1);
        }
        if (!read_.Error && speed_ == nullptr) Fail(StraightsFault::NoHeader, "", 1);
        if (!read_.Error && read_.File.Straights.empty()) Fail(StraightsFault::None, "");
        if (read_.Error) read_.File = {};
        return std::move(read_);
    }

private:
    void Fail(StraightsFault fault, std::string_view text) { Fail(fault, text, line_); }
    void Fail(StraightsFault fault, std::string_view text, int line) { read_.Error = {fault, line, std::string(text)}; }

    void TakeLine(std::string_view line) {
        const auto cells = CellsOf(line);
        if (!cells) {
            Fail(StraightsFault::UnclosedQuotes, line);
        } else if (speed_ == nullptr) {
            TakeHeader(line, *cells);
        } else if (cells->size() != 3) {
            Fail(StraightsFault::WrongColumns, line);
        } else {
            TakeStraight(*cells);
        }
    }

    /// The unit behind a title; nullptr, with the error, for none that is known.
    const Unit* UnitBehind(const std::string& cell, std::string_view title, const Units& units) {
        std::string_view unit = Trimmed(std::string_view(cell).substr(title.size()));
        if (unit.empty()) return &units.front();
        if (unit.size() > 2 &&
            ((unit.front() == '[' && unit.back() == ']') || (unit.front() == '(' && unit.back() == ')'))) {
            unit = Trimmed(unit.substr(1, unit.size() - 2));
        }
        const Unit* found = Find(units, unit);
        if (found == nullptr) Fail(StraightsFault::UnknownUnit, unit);
        return found;
    }

    void TakeHeader(std::string_view line, const std::vector<std::string>& cells) {
        constexpr std::string_view kEntry = "entry speed";
        constexpr std::string_view kLength = "length";
        if (cells.size() != 3 || Lower(cells[0]) != "name" || !Lower(cells[1]).starts_with(kEntry) ||
            !Lower(cells[2]).starts_with(kLength)) {
            return Fail(StraightsFault::NoHeader, line);
        }
        speed_ = UnitBehind(Lower(cells[1]), kEntry, kSpeedUnits);
        if (speed_ != nullptr) length_ = UnitBehind(Lower(cells[2]), kLength, kLengthUnits);
        if (read_.Error) return;
        read_.File.SpeedUnit = speed_->name;
        read_.File.LengthUnit = length_->name;
    }

    void TakeStraight(const std::vector<std::string>& cells) {
        const auto entry = NumberOf(cells[1]);
        if (!entry) return Fail(StraightsFault::NotANumber, cells[1]);
        const auto length = NumberOf(cells[2]);
        if (!length) return Fail(StraightsFault::NotANumber, cells[2]);
        const Straight straight{cells[0], *entry * speed_->base, *length * length_->base};
        if (straight.EntrySpeed < 0 || straight.EntrySpeed > kFastestEntry) {
            return Fail(StraightsFault::EntryOutOfRange, cells[1]);
        }
        if (!(straight.Length > 0) || straight.Length > kLongestStraight) {
            return Fail(StraightsFault::LengthOutOfRange, cells[2]);
        }
        if (read_.File.Straights.size() == kMostStraights) return Fail(StraightsFault::TooMany, cells[0]);
        read_.File.Straights.push_back(straight);
    }

    StraightsRead read_;
    const Unit* speed_ = nullptr;  // of the header; nullptr before it
    const Unit* length_ = nullptr;
    int line_ = 0;
};

std::string CellOf(std::string name) {
    for (char& c : name) {
        if (c == '\n' || c == '\r') c = ' ';
    }
    if (name == Trimmed(name) && name.find_first_of(",\"") == name.npos) return name;
    std::string quoted = "\"";
    for (const char c : name) quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

std::string NumberText(double number) {
    std::array<char, 32> buffer{};
    const double rounded = std::nearbyint(number * 1e6) / 1e6;
    const auto end = std::to_chars(buffer.begin(), buffer.end(), rounded, std::chars_format::fixed).ptr;
    return {buffer.begin(), end};
}

}  // namespace

StraightsRead ReadStraights(std::string_view text) { return Reader().Read(text); }

std::string StraightsText(const StraightsFile& file) {
    const Unit* speed = Find(kSpeedUnits, file.SpeedUnit);
    const Unit* length = Find(kLengthUnits, file.LengthUnit);
    if (speed == nullptr) speed = &kSpeedUnits.front();
    if (length == nullptr) length = &kLengthUnits.front();
    std::string text =
        "name,entry speed [" + std::string(speed->name) + "],length [" + std::string(length->name) + "]\n";
    for (const Straight& straight : file.Straights) {
        text += CellOf(straight.Name) + ',' + NumberText(straight.EntrySpeed / speed->base) + ',' +
                NumberText(straight.Length / length->base) + '\n';
    }
    return text;
}

}  // namespace zolv
