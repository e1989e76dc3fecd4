#include "text/nearest_name.h"

#include <algorithm>
#include <limits>

namespace zolv {
namespace {

constexpr int kChange = 2;
constexpr int kChangeOfCase = 1;

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

int CostOf(char a, char b) {
    if (a == b) return 0;
    return Lower(a) == Lower(b) ? kChangeOfCase : kChange;
}

/// Edit distance, a row of the table at a time.
int Distance(std::string_view a, std::string_view b) {
    std::vector<int> row(b.size() + 1);
    for (std::size_t j = 0; j < row.size(); ++j) row[j] = static_cast<int>(j) * kChange;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        int diagonal = row[0];
        row[0] = static_cast<int>(i) * kChange;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const int changed = diagonal + CostOf(a[i - 1], b[j - 1]);
            diagonal = row[j];
            row[j] = std::min({row[j] + kChange, row[j - 1] + kChange, changed});
        }
    }
    return row.back();
}

}  // namespace

std::string NearestName(std::string_view name, const std::vector<std::string>& names) {
    // Of a field or a row: the time grows with the length, and a line of a script can be long.
    constexpr std::size_t kLongestName = 100;
    name = name.substr(0, kLongestName);
    std::string nearest;
    int least = std::numeric_limits<int>::max();
    for (const std::string& candidate : names) {
        const int distance = Distance(name, candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

}  // namespace zolv
