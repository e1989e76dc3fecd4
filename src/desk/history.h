#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>

#include "desk/held.h"
#include "desk/present.h"
#include "fields/field.h"

/// Every step of the driver, back and forth. A front end notes what its user did; what that changed of the set-up is a
/// step. Procedures know nothing of it.
namespace zolv {

/// What the driver has given, at one moment: the value, and what the boxes read.
struct DeskMoment {
    SetUp Given;
    BoxTexts Boxes;
    std::shared_ptr<const HeldSetUp> Held;
};

/// One input of the driver. On the way back it holds what was before it, on the way forth what came of it.
struct HistoryStep {
    DeskMoment Moment;
    const Field* Input = nullptr;  // that it was given with
    std::string File;              // for one that was opened: its name without its folder
    int Gesture = 0;
};

struct HistoryState {
    int LastGesture = 0;
    std::deque<HistoryStep> Done;    // the last one at the end
    std::deque<HistoryStep> Undone;  // the next one to be done again at the end
    DeskMoment Present;              // as it was last noted
    std::string Opened;              // the file, without its folder, that what the user does has opened; empty for none
};
inline HistoryState history;

/// The user has done something with `input`. If it changed the set-up, that is a step, and nothing can be redone any
/// more. What he does in the windows of options, languages, presets and the converter is none; that it rewrites boxes
/// in another unit is taken as it comes.
/// @param gesture  inputs of one field with one number other than 0, as those of a drag, are one step
void NoteInput(const Field& input, int gesture = 0);

/// A number that no gesture had before.
[[nodiscard]] int NewGesture();

/// Takes the set-up as it lies on the pages for the start of everything, as after the load.
void StartHistory();

/// One step back, or forth again: lays the set-up out that was there. Where its car is not the same any more, a message
/// says so and nothing changes.
void Undo();
void Redo();

/// Undoes the last step where it is that of a gesture, so that nothing of it is left to be done again.
/// @return whether it was
bool TakeBack(int gesture);

/// Writes into the two menu entries what they would do, in the language in force.
void ShowHistory();

}  // namespace zolv
