#pragma once

#include "studies/background.h"

/// The window that finds a gearbox: the search and what it finds.
namespace zolv {

/// The search that runs; beside the fields where there is a way back to them, or else within StartFinder.
inline Background finderWork;

/// Behind the load of the program.
void LoadFinder();

/// Searches for the present set-up, and shows what was found. What cannot be sought, or is out of reach, is told in a
/// message. A search that runs already is abandoned.
/// Writes: finder.Sought, Find, Done, Status; Present, Found, Table, Progress, Status
void StartFinder();

/// Ends the search with the best until now.
void StopFinder();

/// Lays the found set-up out, the car included; without one it says so.
void TakeOverFind();

/// Holds the set-up that the search was started for, beside what it found; before a search the present one.
void HoldSought();

/// Writes all that depends on the language, the units in force or the car anew.
void ShowFinder();

/// The set-up on the pages has changed: says whether a search was for another one, and drives the straights anew while
/// they are in view.
void FollowSetUpInFinder();

}  // namespace zolv
