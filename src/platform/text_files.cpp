#include "platform/text_files.h"

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "platform/system_text.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace zolv {

PlatformState platform;

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string ReasonOf(int error) { return zolv::ReasonOf({error, std::generic_category()}); }

/// An open file that closes itself. Every call sets errno like the system call behind it.
class OpenFile {
public:
#ifdef _WIN32
    static constexpr int kRead = _O_RDONLY | _O_BINARY | _O_NOINHERIT;
    static constexpr int kCreate = _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT;
    OpenFile(const fs::path& path, int flags) : handle_(::_wopen(path.c_str(), flags, _S_IREAD | _S_IWRITE)) {}
    long Read(char* to, std::size_t size) { return ::_read(handle_, to, static_cast<unsigned>(size)); }
    long Write(const char* from, std::size_t size) { return ::_write(handle_, from, static_cast<unsigned>(size)); }
    bool Sync() { return ::_commit(handle_) == 0; }
    bool Close() { return ::_close(std::exchange(handle_, -1)) == 0; }
#else
    // Without O_NONBLOCK the opening of a pipe would wait for its other end.
    static constexpr int kRead = O_RDONLY | O_CLOEXEC | O_NONBLOCK;
    static constexpr int kCreate = O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC;
    OpenFile(const fs::path& path, int flags) : handle_(::open(path.c_str(), flags, 0666)) {}
    long Read(char* to, std::size_t size) { return ::read(handle_, to, size); }
    long Write(const char* from, std::size_t size) { return ::write(handle_, from, size); }
    bool Sync() { return ::fsync(handle_) == 0; }
    bool Close() { return ::close(std::exchange(handle_, -1)) == 0; }
#endif
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (IsOpen()) Close();
    }
    bool IsOpen() const { return handle_ >= 0; }

private:
    int handle_;
};

/// Writes and syncs a file that must not exist yet; returns the error, 0 when all is well.
int WriteNewFile(const fs::path& path, std::string_view text) {
    OpenFile file(path, OpenFile::kCreate);
    if (!file.IsOpen()) return errno;
    while (!text.empty()) {
        const long written = file.Write(text.data(), text.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            return errno;
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    if (!file.Sync()) return errno;
    return file.Close() ? 0 : errno;
}

/// Puts the new file into the place of the old one.
std::error_code Replace(const fs::path& target, const fs::path& by) {
#ifdef _WIN32
    // Programs that look for viruses, or words, hold a new file for a moment.
    constexpr int kTries = 10;
    constexpr DWORD kPause_ms = 20;
    DWORD failure = 0;
    for (int i = 0; i < kTries; ++i) {
        if (MoveFileExW(by.c_str(), target.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) return {};
        failure = GetLastError();
        if (failure != ERROR_SHARING_VIOLATION && failure != ERROR_ACCESS_DENIED) break;
        Sleep(kPause_ms);
    }
    return {static_cast<int>(failure), std::system_category()};
#else
    std::error_code error;
    fs::rename(by, target, error);
    return error;
#endif
}

/// Makes the renaming itself last. Not every file system can sync a folder; the file's content is safe without it.
void SyncFolder([[maybe_unused]] const fs::path& folder) {
#ifndef _WIN32
    OpenFile file(folder, O_RDONLY | O_CLOEXEC | O_DIRECTORY);
    if (file.IsOpen()) file.Sync();
#endif
}

/// Why a file may not be written; 0 if it may.
int WriteBar(const fs::path& path) {
#ifdef _WIN32
    return ::_waccess(path.c_str(), 2) == 0 ? 0 : errno;
#else
    return ::access(path.c_str(), W_OK) == 0 ? 0 : errno;
#endif
}

}  // namespace

void SurviveSizeLimit() {
#ifdef SIGXFSZ
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

std::string CurrentDirectory() {
    std::error_code error;
    std::string path = TextOf(fs::current_path(error));
    if (path.empty()) path = ".";  // a folder that was removed: never the root of the file system in its place
    constexpr char kSeparator = static_cast<char>(fs::path::preferred_separator);
    if (path.back() != kSeparator) path += kSeparator;
    return path;
}

std::string DataFile(const std::string& name) {
    const bool isShared = !platform.SharedPath.empty() && FileExists(platform.AppPath + name) == 0 &&
                          FileExists(platform.SharedPath + name) != 0;
    return (isShared ? platform.SharedPath : platform.AppPath) + name;
}

std::int16_t FileExists(const std::string& path) {
    if (path.find('\0') != std::string::npos) return 0;
    std::error_code error;
    if (!fs::is_regular_file(PathOf(path), error)) return 0;
    const auto size = fs::file_size(PathOf(path), error);
    return !error && size > 0 ? 1 : 0;
}

std::string NameOfFile(const std::string& path) { return path.substr(path.find_last_of("/\\") + 1); }

FileText ReadTextFile(const std::string& path, std::size_t limit) {
    FileText result;
    std::error_code error;
    const fs::file_status status = fs::status(PathOf(path), error);
    if (!fs::exists(status)) {
        result.reason = error ? ReasonOf(error) : ReasonOf(ENOENT);
        result.missing = status.type() == fs::file_type::not_found;
        return result;
    }
    if (fs::is_directory(status)) {
        result.reason = ReasonOf(EISDIR);
        return result;
    }
    if (!fs::is_regular_file(status)) {
        result.reason = "Not a regular file";
        return result;
    }
    OpenFile file(PathOf(path), OpenFile::kRead);
    if (!file.IsOpen()) {
        result.reason = ReasonOf(errno);
        return result;
    }
    std::string text;
    char block[16384];
    while (true) {
        const long got = file.Read(block, sizeof block);
        if (got < 0) {
            if (errno == EINTR) continue;
            result.reason = ReasonOf(errno);
            return result;
        }
        if (got == 0) break;
        text.append(block, static_cast<std::size_t>(got));
        if (text.size() > limit) {
            result.reason = "Longer than " + std::to_string(limit) + " bytes";
            return result;
        }
    }
    if (text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
    result.text = std::move(text);
    result.readable = true;
    return result;
}

std::string WriteTextFile(const std::string& path, std::string_view text) {
    if (path.empty() || path.find('\0') != std::string::npos) return ReasonOf(EINVAL);
    std::error_code error;
    fs::path target = PathOf(path);
    // Link by link, so that a link to a file that is yet to be made is followed as well.
    for (int links = 0; fs::is_symlink(target, error); ++links) {
        constexpr int kMostLinks = 40;
        if (links == kMostLinks) return ReasonOf(ELOOP);
        target = target.parent_path() / fs::read_symlink(target, error);
    }
    const fs::file_status old = fs::status(target, error);
    if (fs::is_directory(old)) return ReasonOf(EISDIR);
    if (fs::exists(old) && !fs::is_regular_file(old)) return "Not a regular file";
    // Renaming asks the folder alone for permission; a file that its owner has locked must stay as it is all the same.
    if (const int bar = fs::exists(old) ? WriteBar(target) : 0; bar != 0) return ReasonOf(bar);

    // Names of one save never meet another's, also when two programs save into one folder. They do not grow with the
    // target's, which may be as long as a name can be.
    std::random_device random;
    const fs::path temporary = target.parent_path() / ("zolv-" + std::to_string(random()) + ".tmp");
    if (const int failure = WriteNewFile(temporary, text); failure != 0) {
        if (failure != EEXIST) fs::remove(temporary, error);
        return ReasonOf(failure);
    }
    if (fs::exists(old)) fs::permissions(temporary, old.permissions(), error);
    if (const std::error_code failure = Replace(target, temporary); failure) {
        fs::remove(temporary, error);
        return ReasonOf(failure);
    }
    SyncFolder(target.has_parent_path() ? target.parent_path() : fs::path("."));
    return {};
}

void RemoveFile(const std::string& path) {
    std::error_code none;
    fs::remove(PathOf(path), none);
}

std::string CannotRead(const std::string& path, std::string_view reason) {
    return "Cannot read " + path + ": " + std::string(reason);
}

std::string CannotWrite(const std::string& path, std::string_view reason) {
    return "Cannot write " + path + ": " + std::string(reason);
}

}  // namespace zolv
