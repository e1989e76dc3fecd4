#include "started_program.h"

#include <filesystem>

#include "fields/all_windows.h"
#include "shell/fresh_start.h"
#include "shell/start_up.h"

namespace zolv {

void StartProgram(const char* folder) {
    const auto path = std::filesystem::temp_directory_path() / "zolv-bench" / folder;
    std::filesystem::create_directories(path);
    std::filesystem::current_path(path);
    FreshStart();
    LoadZolv();
    Zolv.Ratios.FinalDrive.Enter("2");
}

}  // namespace zolv
