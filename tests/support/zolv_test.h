#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/resource.h>
#endif

#include <deque>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "fields/all_windows.h"
#include "model/car_record.h"
#include "platform/dialogs.h"

/// What the tests of the whole program share: a program that stands fresh in a folder of its own, with dialogs that
/// record what they are asked.
namespace zolv {

/// Dialogs that keep every message and request, and answer file dialogs from a queue.
class RecordingDialogs : public Dialogs {
public:
    void Message(const std::string& text) override { messages.push_back(text); }
    std::string AskForFile(const FileRequest& request) override;

    std::deque<std::string> messages;   // not looked at yet
    std::deque<std::string> answers;    // of the next file dialogs; without one a dialog counts as cancelled
    std::vector<FileRequest> requests;  // of all file dialogs
};

/// A folder of its own under the system's one for temporary files, as the current directory while it lives.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path before_;
    std::filesystem::path path_;
};

/// A path as the system itself writes it, with its own separators.
inline std::string Native(std::filesystem::path path) { return path.make_preferred().string(); }

/// Each test begins with a fresh start. A message that it did not expect, or an answer that no dialog took, fails it.
class ZolvTest : public testing::Test {
protected:
    ZolvTest();
    ~ZolvTest() override;
    void TearDown() override;

    /// The load of the program in the test's folder. What the folder lacks is said in messages at every such start;
    /// those count as expected. The folder has the picture of an unknown car, so that no choice of car gives one.
    void Start();

    /// The oldest message that has not been looked at yet. Without one the test fails.
    std::string TakeMessage();
    void ExpectMessage(const testing::Matcher<std::string>& text) { EXPECT_THAT(TakeMessage(), text); }

    /// The next file dialog is answered so.
    void Answer(const std::string& path) { dialogs_.answers.push_back(path); }
    const std::vector<FileRequest>& Requests() const { return dialogs_.requests; }

    /// A path in the test's folder.
    std::string InFolder(const std::string& name) const { return Native(folder_.Path() / name); }

private:
    TemporaryFolder folder_;
    RecordingDialogs dialogs_;
};

/// The program as it stands after its load.
class StartedTest : public ZolvTest {
protected:
    StartedTest() { Start(); }
};

/// What the field of that name shows: the text of a box or of the picked row, the number of a slider, "on" or "off",
/// the caption of anything else. The test fails if there is no such field.
std::string Shown(std::string_view name);

/// The same of several, each with "|" behind it.
std::string Shown(std::initializer_list<std::string_view> names);

/// What a user does at the field of that name, with the text as he would read it. The test fails if there is no such
/// field, or nothing that takes it.
void Set(std::string_view name, std::string_view value);

/// Takes a car of one's own into use, as a preset: a built-in one with some of its figures changed.
struct ChangedFigure {
    CarField field;
    double value;
};
void UseCustomCar(const std::string& base, const std::vector<ChangedFigure>& changes);

/// What every field of every window says and how it looks, with the numbers of all drawings: "Zolv.RPM1 = 7084 rpm".
std::vector<std::string> EverythingShown();

/// No field says nan or inf in any form, and no drawing has a coordinate that is not finite.
void ExpectOnlyNumbers();

/// A file's whole content; the test fails if it cannot be read.
std::string ContentOf(const std::string& path);
void WriteContent(const std::string& path, std::string_view content);

/// The text with another in place of each `what`.
std::string Replaced(std::string text, const std::string& what, const std::string& other);

#ifndef _WIN32
/// While it lives, no file of this process grows beyond that size, as on a disk that fills up.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes);
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;
    ~FullDisk();

private:
    void (*handler_)(int);
    rlimit before_{};
};
#endif

/// The name of a row of a parametrised table.
inline constexpr auto kRowName = [](const auto& row) { return std::string(row.param.name); };

}  // namespace zolv
