#include "platform/data_folder.h"

#include <cstdlib>
#include <system_error>

#include "platform/system_text.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace zolv {
namespace {

namespace fs = std::filesystem;

constexpr const char* kList = "languages.lst";  // which each folder of the program's files has

bool HoldsList(const fs::path& folder) {
    std::error_code error;
    return fs::is_regular_file(folder / kList, error);
}

bool MayWriteIn(const fs::path& folder) {
#ifdef _WIN32
    // Two programs that start at once must not take each other's file for a lock.
    const fs::path probe = folder / ("zolv-" + std::to_string(GetCurrentProcessId()) + ".tmp");
    const HANDLE file = CreateFileW(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    if (file == INVALID_HANDLE_VALUE) return false;
    CloseHandle(file);
    return true;
#else
    return access(folder.c_str(), W_OK) == 0;
#endif
}

std::string Ended(const fs::path& folder) { return TextOf(folder.lexically_normal() / ""); }

std::string InstalledFor(const fs::path& programFolder) {
    for (const char* place : {"../share/zolv", "../data", "."}) {
        const fs::path folder = (programFolder / place).lexically_normal();
        if (HoldsList(folder)) return Ended(folder);
    }
    return {};
}

/// A variable of the environment that names a folder; one that is not absolute counts as none.
fs::path FolderIn(const char* variable) {
#ifdef _WIN32
    const wchar_t* const text = ::_wgetenv(WideOf(variable).c_str());
#else
    const char* const text = std::getenv(variable);
#endif
    const fs::path folder = text != nullptr ? fs::path(text) : fs::path();
    return folder.is_absolute() ? folder : fs::path();
}

bool IsOldLink(const fs::path& link, const fs::path& shared) {
    std::error_code error;
    if (!fs::is_symlink(link, error)) return false;
    if (!fs::exists(link, error)) return true;
    const fs::path target = fs::canonical(link, error).parent_path();
    return !shared.empty() && fs::equivalent(target, shared, error);
}

}  // namespace

DataFolders FindDataFolders(const fs::path& program, const fs::path& user) {
    std::error_code error;
    const fs::path current = fs::current_path(error);
    const fs::path unpacked = program.parent_path();
    if (HoldsList(current)) return {.own = Ended(current), .shared = {}};
    if (!unpacked.empty() && HoldsList(unpacked) && MayWriteIn(unpacked)) return {.own = Ended(unpacked), .shared = {}};
    return {.own = Ended(user.empty() ? current : user),
            .shared = unpacked.empty() ? std::string() : InstalledFor(unpacked)};
}

fs::path ThisProgram() {
#ifdef _WIN32
    std::wstring path(32768, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
#else
    std::error_code error;
    return fs::read_symlink("/proc/self/exe", error);
#endif
}

fs::path UserFolder() {
#if defined(_WIN32)
    const fs::path folder = FolderIn("APPDATA");
    return folder.empty() ? folder : folder / "Zolv";
#elif defined(__APPLE__)
    const fs::path home = FolderIn("HOME");
    return home.empty() ? home : home / "Library" / "Application Support" / "Zolv";
#else
    if (const fs::path data = FolderIn("XDG_DATA_HOME"); !data.empty()) return data / "zolv";
    const fs::path home = FolderIn("HOME");
    return home.empty() ? home : home / ".local" / "share" / "zolv";
#endif
}

std::string PrepareFolder(const DataFolders& folders) {
    std::error_code error;
    const fs::path own = PathOf(folders.own);
    fs::create_directories(own, error);
    if (!fs::is_directory(own)) return ReasonOf(error);
    std::error_code none;
    for (const fs::directory_entry& entry : fs::directory_iterator(own, none)) {
        if (IsOldLink(entry.path(), PathOf(folders.shared))) fs::remove(entry.path(), none);
    }
    return {};
}

}  // namespace zolv
