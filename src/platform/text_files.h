#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zolv {

/// Where the program looks for its own files.
struct PlatformState {
    std::string AppPath;     // the current directory at start, ended by the platform's separator
    std::string SharedPath;  // ended so, too: where files lie that the other lacks; empty for nowhere
};
extern PlatformState platform;

/// The program's own file of that name, for reading: in AppPath, or where it is missing there and is in SharedPath, in
/// that. Writing goes to AppPath.
[[nodiscard]] std::string DataFile(const std::string& name);

/// For the start of a program: a file that grows beyond the user's limit is from then on a failed write with its
/// message, and no longer the end of the program.
void SurviveSizeLimit();

/// The current directory followed by the platform's own separator ("\" only where that is the separator).
std::string CurrentDirectory();

/// 1 for a file that holds something; 0 for an empty one, a missing one, a folder, or one that cannot be measured. An
/// empty file counts as missing everywhere in the program.
std::int16_t FileExists(const std::string& path);

/// A path without its folders, of either separator.
[[nodiscard]] std::string NameOfFile(const std::string& path);

struct FileText {
    bool readable = false;
    std::string text;      // the whole content, without a UTF-8 byte order mark
    std::string reason;    // why it cannot be read, as words for a message; empty when readable
    bool missing = false;  // there is nothing under that name
};

/// Reads a file whole. A file of more than `limit` bytes, a folder or a device is refused and not read.
FileText ReadTextFile(const std::string& path, std::size_t limit);

/// Writes a file so that there is always the old one or the new one and never a part: into a temporary file beside the
/// target, flushed and synced to disk, then renamed over it. A link is followed, and the file that it names replaced.
/// @return the reason as words for a message, empty when the file was written
[[nodiscard]] std::string WriteTextFile(const std::string& path, std::string_view text);

/// Takes a file away, if it is there and that is possible.
void RemoveFile(const std::string& path);

/// Messages about a file, with the file and the reason: "Cannot read set-up.zolv: No such file or directory".
[[nodiscard]] std::string CannotRead(const std::string& path, std::string_view reason);
[[nodiscard]] std::string CannotWrite(const std::string& path, std::string_view reason);

}  // namespace zolv
