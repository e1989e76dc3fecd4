#pragma once

#include "platform/hook.h"

namespace zolv {

struct ShellState {
    bool Ended = false;  // the program has been shut down

    Hook Ending;  // the front end is to leave its event loop, or its script
};
extern ShellState shell;

}  // namespace zolv
