#pragma once

#include <stdexcept>

namespace zolv {

/// A line of a script that cannot be used. The text says what is wrong, without the place.
class ScriptError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace zolv
