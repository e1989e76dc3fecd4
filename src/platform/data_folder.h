#pragma once

#include <filesystem>
#include <string>

namespace zolv {

/// Where an installed program keeps its own files, each ended by the platform's separator.
struct DataFolders {
    std::string own = {};     // read first, and written
    std::string shared = {};  // as installed, for what the other lacks; empty where there is none
};

/// The folders for a program that is started now. The current folder alone if it holds "languages.lst"; otherwise the
/// folder that the program was unpacked into, if that holds the list and may be written; otherwise the user's own
/// beside what is installed: in ../share/zolv or ../data as seen from the program, or beside it.
/// @param program  the program's own file
/// @param user     the user's folder; without one the current folder takes its place
[[nodiscard]] DataFolders FindDataFolders(const std::filesystem::path& program, const std::filesystem::path& user);

/// This program's own file, empty where the system does not tell.
[[nodiscard]] std::filesystem::path ThisProgram();

/// The system's place for what Zolv keeps for this user: under XDG_DATA_HOME or ~/.local/share, ~/Library/Application
/// Support or %APPDATA%. Empty where the user has no home.
[[nodiscard]] std::filesystem::path UserFolder();

/// Makes the own folder where it is missing and takes away the links of an older version, which filled it with links
/// to what was installed: those that lead there, and those that lead nowhere.
/// @return why it cannot be made, as words for a message; empty when it is there
[[nodiscard]] std::string PrepareFolder(const DataFolders& folders);

}  // namespace zolv
