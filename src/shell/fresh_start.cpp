#include "shell/fresh_start.h"

#include "fields/all_windows.h"
#include "fields/guards.h"
#include "language/caption_table.h"
#include "language/field_words.h"
#include "shell/all_state.h"
#include "shell/wiring.h"
#include "studies/finder_page.h"
#include "studies/sweep_page.h"

namespace zolv {

void FreshStart() {
    finderWork.Abandon();
    sweepWork.Abandon();
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
