#pragma once

#include <cstdint>
#include <random>

namespace zolv {

/// Random values that are the same on every machine for a seed, which the distributions of the standard library are
/// not.
class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    /// From `low` to `high`, both included.
    int Whole(int low, int high) {
        return low + static_cast<int>(engine_() % (static_cast<std::uint64_t>(high - low) + 1));
    }

    /// From `low` on, below `high`.
    double Real(double low, double high) {
        return low + (high - low) * (static_cast<double>(engine_() >> 11U) * 0x1p-53);
    }

    bool Coin() { return Whole(0, 1) == 1; }

    std::uint64_t Bits() { return engine_(); }

    template <class List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(Whole(0, static_cast<int>(std::size(list)) - 1))];
    }

private:
    std::mt19937_64 engine_;
};

}  // namespace zolv
