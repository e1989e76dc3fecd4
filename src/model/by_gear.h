#pragma once

#include <array>
#include <concepts>
#include <cstddef>

namespace zolv {

inline constexpr int kGears = 6;

/// One value for each gear: 0 reverse, 1 to 6 the forward gears.
template <class Value>
struct PerGear {
    std::array<Value, kGears + 1> values{};

    constexpr Value& operator[](std::integral auto gear) { return values[static_cast<std::size_t>(gear)]; }
    constexpr const Value& operator[](std::integral auto gear) const { return values[static_cast<std::size_t>(gear)]; }

    bool operator==(const PerGear&) const = default;
};

/// Stored in single precision; later steps read the rounded value.
using ByGear = PerGear<float>;

}  // namespace zolv
