#include "reports/sheet_file.h"

#include <algorithm>
#include <string_view>

#include "fields/all_windows.h"
#include "gearing/gearing_state.h"
#include "gearing/run_columns.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "reports/sheet_document.h"
#include "text/words.h"
#include "units/option_state.h"

namespace zolv {
namespace {

constexpr std::size_t kLongestRun = 1U << 24U;

bool EndsWith(const std::string& path, std::string_view ending) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return path.size() > ending.size() &&
           std::ranges::equal(path.substr(path.size() - ending.size()), ending, {}, lower);
}

std::string Write(const std::string& path, std::string_view text) {
    const std::string reason = WriteTextFile(path, text);
    return reason.empty() ? reason : CannotWrite(path, reason);
}

/// The rows first: a sheet that is there has them beside it. Where the sheet cannot be written, the rows are again what
/// they were.
std::string WriteCsv(const std::string& path) {
    const std::string runFile = RunFileBeside(path);
    const bool hasRun = options.AccelerationOn && RowsOfRun() > 0 && gearing.WrongOrder.empty();
    const FileText before = hasRun ? ReadTextFile(runFile, kLongestRun) : FileText{};
    if (hasRun) {
        const std::string failed = Write(runFile, RunAsCsv());
        if (!failed.empty()) return failed;
    }
    const Document sheet = SetUpSheet();
    const std::string failed =
        Write(path, CsvOf(sheet, {words["SheetSection"], words["SheetName"], words["SheetNumber"], words["SheetUnit"],
                                  words["SheetHeld"]}));
    if (!failed.empty() && before.missing) RemoveFile(runFile);
    if (!failed.empty() && before.readable) (void)Write(runFile, before.text);
    return failed;
}

}  // namespace

std::string RunFileBeside(const std::string& path) {
    constexpr std::size_t kEnding = 4;  // ".csv"
    return path.substr(0, path.size() - kEnding) + "-run" + path.substr(path.size() - kEnding);
}

std::string WriteSheet(const std::string& path) {
    if (EndsWith(path, ".html")) return Write(path, HtmlOf(SetUpSheet()));
    if (EndsWith(path, ".csv")) return WriteCsv(path);
    if (EndsWith(path, ".txt")) return Write(path, TextOf(SetUpSheet()));
    return CannotWrite(path, words["SheetEnding"]);
}

void SaveSheet() {
    const FileRequest request{.forSaving = true,
                              .title = words["SaveSheet"],
                              .filterLabel = words["SheetFilter"],
                              .presetName = "*.html",
                              .defaultExtension = "html",
                              .proposedName = Zolv.Select_Car.Text()};
    const std::string path = AskForFile(request);
    if (path.empty() || path == request.presetName) return;
    const std::string failed = WriteSheet(path);
    if (!failed.empty()) ShowMessage(failed);
}

void OpenSheet() {
    if (!ShowSheet()) SaveSheet();
}

}  // namespace zolv
