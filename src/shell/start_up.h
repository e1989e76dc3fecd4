#pragma once

namespace zolv {

/// The load of the main window, which is the start of the program: builds every table, fills every list, selects the
/// first car, then reads the options, which run the first full calculation, and the language list. The order matters:
/// each step relies on the ones before it.
void LoadZolv();

/// The end of the program, from the close box or FileExit: ends what is being worked out, and closes the windows.
/// Nothing is asked and nothing is saved. A second call does nothing more.
void ShutDown();

}  // namespace zolv
