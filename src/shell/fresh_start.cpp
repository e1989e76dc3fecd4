#include "shell/fresh_start.h"

#include "fields/guards.h"
#include "fields/windows.h"
#include "language/caption_table.h"
#include "language/field_words.h"
#include "shell/all_state.h"
#include "shell/wiring.h"

namespace zolv {

void FreshStart() {
    std::apply([](auto&... state) { ((state = {}), ...); }, AllState());
    guards = {};
    shellFollowUps = {};  // no wiring hangs these up anew
    presetFollowUps = {};
    ResetWindows();
    AssignBuiltInCaptions();
    AssignFieldWords();
    WireEvents();
}

}  // namespace zolv
