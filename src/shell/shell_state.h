#pragma once

#include "platform/hook.h"

namespace zolv {

struct ShellState {
    bool Ended = false;  // the program has been shut down
};
inline ShellState shell;

/// What follows; the front end says what that is.
struct ShellFollowUps {
    Hook Ending;  // the front end is to leave its event loop, or its script
};
inline ShellFollowUps shellFollowUps;

}  // namespace zolv
