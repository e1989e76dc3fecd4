#pragma once

#include <concepts>
#include <functional>
#include <utility>

namespace zolv {

/// A place where one piece of work can be hung up: the event of a field, or the follow-up of a procedure. What hangs
/// there runs at once and to its end, inside the call. An empty hook runs nothing.
/// shell/wiring hangs up all that the program does, so that its chains can be read in one place; a front end hangs up
/// what it does itself when the program ends.
class Hook {
public:
    Hook() = default;

    template <std::invocable Work>
    Hook& operator=(Work work) {
        work_ = std::move(work);
        return *this;
    }

    void operator()() const {
        if (work_) work_();
    }

private:
    std::function<void()> work_;
};

}  // namespace zolv
