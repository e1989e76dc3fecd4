#include "files/options_file.h"

#include <cstddef>
#include <string>

#include "files/file_state.h"
#include "files/options_text.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "text/texts.h"
#include "units/apply_units.h"
#include "units/option_state.h"
#include "units/unit_catalogue.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr std::size_t kLongestFile = 65536;  // a real one has some 500 bytes

constexpr const char* kName = "Options.ini";

std::string OptionsPath() { return platform.AppPath + kName; }

OptionsFile PresentOptions() {
    OptionsFile file{.Options = options};
    for (std::size_t i = 0; i < file.Units.size(); ++i) file.Units[i] = (units.*UnitCatalogue()[i].state).Unit;
    return file;
}

/// The message on a file that is not used; empty when its options are in force.
std::string ReadOptions() {
    const std::string path = DataFile(kName);
    const FileText file = ReadTextFile(path, kLongestFile);
    if (file.missing || (file.readable && file.text.empty())) return texts.TextOptionsMissing;
    const Parsed<OptionsFile> read = file.readable ? ParseOptions(file.text) : Refusal{file.reason};
    if (!read) return CannotRead(path, read.Reason());
    options = read->Options;
    for (int quantity = 0; quantity < kQuantities; ++quantity) {
        SelectUnit(units, quantity, read->Units[static_cast<std::size_t>(quantity)]);
    }
    return "";
}

}  // namespace

void SaveOptions() {
    const std::string reason = WriteTextFile(OptionsPath(), OptionsText(PresentOptions()));
    if (reason.empty()) {
        files.SavedOptions = PresentOptions();
    } else {
        ShowMessage(CannotWrite(OptionsPath(), reason));
    }
}

bool OptionsChanged() { return PresentOptions() != files.SavedOptions; }

void LoadOptions() {
    const std::string message = ReadOptions();
    if (!message.empty()) ShowMessage(message);
    ApplyOptions();
    files.SavedOptions = PresentOptions();
    fileFollowUps.OptionsLoaded();
}

}  // namespace zolv
