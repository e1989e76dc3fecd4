// A preset file of any content, read and written without a program behind.

#include "files/preset_text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "support/parsing.h"

namespace zolv {
namespace {

/// As a table of cars would hold it.
CarFigures SingleFigures(const PresetFile& preset) {
    CarFigures figures{};
    std::ranges::transform(preset.Figures, figures.begin(), [](double figure) { return static_cast<float>(figure); });
    return figures;
}

std::string TextOf(const PresetFile& preset) { return PresetText(preset.Name, SingleFigures(preset)); }

void Read(std::string_view content) {
    const Parsed<PresetFile> preset = ParsePreset(content);
    Expect(static_cast<bool>(preset) == preset.Reason().empty(), "a value or a reason");
    if (!preset) return;
    const double drivetrain = (*preset)[CarField::DrivetrainType];
    Expect(drivetrain >= 0 && drivetrain <= kUnknownDrivetrain, "a drivetrain or none");
    if (!IsWrittenToo(content)) return;
    if (!std::ranges::all_of(SingleFigures(*preset), [](float figure) { return std::isfinite(figure); })) return;
    Expect(ExpectReadsBack(*preset, ParsePreset, TextOf).Name == preset->Name, "the name comes back", preset->Name);
}

}  // namespace
}  // namespace zolv

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    zolv::Read({reinterpret_cast<const char*>(data), size});
    return 0;
}
