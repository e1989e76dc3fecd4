#include "batch/output.h"

#include <iostream>

namespace zolv {

std::string OneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        switch (text[i]) {
            case '\\': line += "\\\\"; break;
            case '\t': line += "\\t"; break;
            case '\n': line += "\\n"; break;
            case '\r':
                if (i + 1 < text.size() && text[i + 1] == '\n') break;  // the line feed stands for both
                line += '\r';
                break;
            default: line += text[i];
        }
    }
    return line;
}

void PrintLine(std::string_view line) { std::cout << line << '\n'; }

}  // namespace zolv
