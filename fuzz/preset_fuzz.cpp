// A preset file of any content: read, added as a car, driven and saved again.

#include "files/preset_file.h"

#include "platform/text_files.h"
#include "support/expect.h"
#include "support/fuzzed_program.h"
#include "text/lines.h"

namespace zolv {
namespace {

constexpr std::size_t kLines = 29;

void AddAndSave(FuzzedProgram& program, std::string_view content) {
    CustomPresets.AddCar.Click();
    program.ExpectSound(content);
    if (vehicle.PresetsUsed == 0) return;
    Zolv.Select_Car.SetText(vehicle.CustomName[0]);
    program.ExpectSound(content);
    CustomPresets.EditName.SetText(vehicle.CustomName[0]);
    files.PresetFileName = "saved.cup";
    SavePresetFile();
    Expect(EndedLines(FileContent("saved.cup")).size() >= kLines, "a saved preset has its lines");
    LoadPresetFile();
    program.ExpectSound(content);
    Expect(CustomPresets.NewName.Text() == vehicle.CustomName[0], "the name comes back", vehicle.CustomName[0]);
}

void Load(std::string_view content) {
    static FuzzedProgram program(FilesOfStart());
    PutFile("input.cup", content);
    files.PresetFileName = "input.cup";
    LoadPresetFile();
    if (program.Said("Cannot read")) {
        program.ExpectAsStarted();
    } else {
        program.ExpectSound(content);
        AddAndSave(program, content);
    }
    program.PutBack();
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Load({reinterpret_cast<const char*>(data), size});
    return 0;
}
