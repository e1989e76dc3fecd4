#pragma once

#include <memory>
#include <vector>

#include "desktop_test.h"

namespace zolv {

/// A class of tests. CMakeLists.txt names the same ones.
struct Suite {
    const char* name;
    std::unique_ptr<DesktopTest> (*make)();
};

inline std::vector<Suite>& Suites() {
    static std::vector<Suite> suites;
    return suites;
}

/// `const bool added = AddSuite<Typing>("Typing");` beside a class makes the program run it.
template <class Tests>
bool AddSuite(const char* name) {
    Suites().push_back({name, [] { return std::unique_ptr<DesktopTest>(std::make_unique<Tests>()); }});
    return true;
}

}  // namespace zolv
