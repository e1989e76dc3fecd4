#include "studies/study_text.h"

#include <algorithm>
#include <cmath>

#include "text/lines.h"
#include "text/number_text.h"
#include "text/words.h"

namespace zolv {
namespace {

template <class CellText>
std::string Joined(const std::vector<TextRow>& rows, char between, CellText textOf) {
    std::string text;
    for (const TextRow& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (i > 0) text += between;
            text += textOf(row[i]);
        }
        text += kLineEnd;
    }
    return text;
}

}  // namespace

std::string FixedText(double value, int decimals) {
    std::string text = RoundedText(value, decimals);
    if (!std::isfinite(value) || decimals == 0) return text;
    std::size_t point = text.find('.');
    if (point == std::string::npos) {
        point = text.size();
        text += '.';
    }
    text.resize(point + 1 + static_cast<std::size_t>(decimals), '0');
    return text;
}

std::string ChangeText(double change, int decimals) {
    const std::string text = FixedText(change, decimals);
    return std::isfinite(change) && Round(change, decimals) > 0 ? '+' + text : text;
}

bool IsNumber(std::string_view text) {
    return text.find_first_of("0123456789") != std::string_view::npos &&
           text.find_first_not_of("0123456789.,+- ") == std::string_view::npos;
}

std::string NotANumberText(const std::string& name, const std::string& text) {
    return IsNumber(text) ? std::string() : words.Sentence("NotANumber", {name, text});
}

std::string SecondsText(double seconds) {
    return std::isfinite(seconds) ? FixedText(seconds, 3) + " s" : FixedText(seconds, 3);
}

std::string ExactUnitText(const Quantity& quantity, double base) {
    const std::string number = FixedText(base * quantity.Factor, 3);
    return std::isfinite(base) ? number + std::string(quantity.Suffix) : number;
}

std::string RatioName(int gear) { return words.Sentence("RatioNumber", {NumberText(gear)}); }

std::string TableText(const std::vector<TextRow>& rows) {
    return Joined(rows, '\t', [](std::string cell) {
        std::ranges::replace_if(
            cell, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
        return cell;
    });
}

std::string CsvText(const std::vector<TextRow>& rows) {
    return Joined(rows, ',', [](const std::string& cell) {
        if (cell.find_first_of(",\"\r\n") == std::string::npos) return cell;
        std::string quoted = "\"";
        for (const char c : cell) quoted.append(c == '"' ? 2 : 1, c);
        return quoted + '"';
    });
}

}  // namespace zolv
