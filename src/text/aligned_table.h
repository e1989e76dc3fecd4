#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zolv {

/// A table of text in columns as wide as their widest cell. The first column stands left; the others stand right, so
/// that numbers with their units line up, or left where they are of many kinds.
class AlignedTable {
public:
    enum class Values : std::uint8_t { Left, Right };

    explicit AlignedTable(Values values = Values::Right) : values_(values) {}

    /// A row of cells, each of which stays on its line: a line end in it becomes a blank.
    void Add(std::vector<std::string> row);

    /// The lines, each indented by `indent` blanks and without blanks at its end.
    [[nodiscard]] std::vector<std::string> Lines(std::size_t indent) const;

private:
    Values values_;
    std::vector<std::vector<std::string>> rows_;
};

/// A text on one line: a line feed is a blank, a carriage return nothing.
[[nodiscard]] std::string Flat(std::string_view text);

/// Columns that a UTF-8 text takes on a terminal.
[[nodiscard]] std::size_t ColumnsOf(std::string_view text);

}  // namespace zolv
