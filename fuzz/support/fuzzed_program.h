#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/script_dialogs.h"
#include "support/program_image.h"

namespace zolv {

/// A script's dialogs that keep what they say to themselves, and let nobody out of the current directory.
class ConfinedDialogs : public ScriptDialogs {
public:
    void Message(const std::string& text) override { messages.push_back(text); }
    std::string AskForFile(const FileRequest& request) override;

    std::vector<std::string> messages;
};

/// A path that stays in the current directory: separators become underscores.
std::string Confined(std::string path);

/// The program as a fuzz target drives it: started once in a folder of its own, and put back to that start before each
/// execution, so that every finding can be repeated from its input alone.
class FuzzedProgram {
public:
    /// @param contents  names and contents of what the folder holds at the start
    explicit FuzzedProgram(std::map<std::string, std::string> contents);
    FuzzedProgram(const FuzzedProgram&) = delete;
    FuzzedProgram& operator=(const FuzzedProgram&) = delete;
    ~FuzzedProgram();

    ConfinedDialogs& Dialog() { return *dialogs_; }

    /// Fields, state and folder as they were at the start.
    void PutBack();

    /// Whether a message that begins so was shown in this execution.
    [[nodiscard]] bool Said(std::string_view beginning) const;

    /// What must hold after every execution: no field and no text of a drawing shows a number that is none or has an
    /// exponent, unless the input has just that text; no guard is left set; each slider agrees with its box.
    /// @param printed  what was printed besides
    void ExpectSound(std::string_view input, std::string_view printed = {});

    /// Nothing differs from the start, but for the fields named.
    void ExpectAsStarted(const std::vector<std::string>& exceptFor = {});

private:
    void FillFolder();

    std::map<std::string, std::string> files_;
    std::filesystem::path before_;
    std::filesystem::path folder_;
    std::optional<ConfinedDialogs> dialogs_;  // new in each execution
    std::optional<ProgramImage> image_;
};

/// Writes a file in the current directory, without the care that the program itself takes.
void PutFile(const std::string& name, std::string_view content);
std::string FileContent(const std::string& name);

/// The options of a first start, but without the acceleration run, which takes longer than all the rest; and a list
/// with English alone.
std::map<std::string, std::string> FilesOfStart();

}  // namespace zolv
