#pragma once

#include <utility>

namespace zolv {

/// The two guards against chains of events. They guard against events that a procedure's own writes raise, within one
/// call; there is one thread.
struct Guards {
    /// True during the load. Handlers that look at it do their list work and calculate nothing, since the tables are
    /// not complete yet.
    bool Loading = false;

    /// True while a recalculation from a text box or a bulk rewrite of boxes runs. Boxes then only pass their value to
    /// their sliders, and the wing sliders start nothing.
    bool Busy = false;
};
inline Guards guards;

/// Raises a guard for as long as it lives, then puts back what stood there, so that a guarded call within a guarded one
/// lowers nothing too early.
class [[nodiscard]] Raised {
public:
    explicit Raised(bool& guard) : guard_(guard), before_(std::exchange(guard, true)) {}
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;
    ~Raised() { guard_ = before_; }

private:
    bool& guard_;
    bool before_;
};

}  // namespace zolv
