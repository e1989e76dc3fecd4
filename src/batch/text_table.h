#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zolv {

/// A table of text in columns as wide as their widest cell. The first column stands left, the others right, so that
/// numbers with their units line up.
class TextTable {
public:
    void Add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }

    /// The lines, each indented by `indent` blanks and without blanks at its end.
    [[nodiscard]] std::vector<std::string> Lines(std::size_t indent) const;

private:
    std::vector<std::vector<std::string>> rows_;
};

/// Characters of a UTF-8 text.
[[nodiscard]] std::size_t CharactersIn(std::string_view text);

}  // namespace zolv
