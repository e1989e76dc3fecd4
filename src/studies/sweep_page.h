#pragma once

#include "studies/background.h"

/// The window that shows a result over the range of one input or of two.
namespace zolv {

/// The sweep that runs; beside the fields where there is a way back to them, or else within StartSweep.
inline Background sweepWork;

/// Behind the load of the program.
void LoadSweep();

/// Sweeps the present set-up and shows what comes out. A range that cannot be swept is told in a message. A sweep that
/// runs already is abandoned.
/// Writes: sweep.Swept, Run, Done, Status; Plot, Table, Progress, Status, Point, Point2, PointResult
void StartSweep();

/// Ends the sweep, which then shows nothing.
void StopSweep();

/// The user has clicked on the plot: the inputs of the nearest point come into the boxes of the point, and are taken
/// over.
///
/// @param x, y  as the axes read; y does not count for a curve
void ClickSweepPoint(double x, double y);

/// A point has been typed: the result at the nearest one of the sweep is shown.
void TakeSweepPoint();

/// Lays out the present set-up with the inputs of the point. Without a sweep, or where it was of another car or
/// direction, a message says so.
void TakeOverSweepPoint();

/// Ask for a file and write the table or the plot into it.
void SaveSweepCsv();
void SaveSweepSvg();

/// Writes all that depends on the language and the units in force anew.
void ShowSweep();

/// The set-up on the pages has changed: says whether the sweep was of another one, and marks it in the plot while that
/// is in view.
void FollowSetUpInSweep();

}  // namespace zolv
