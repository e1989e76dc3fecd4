#include "text/messages.h"

#include <optional>
#include <vector>

#include "text/words.h"

namespace zolv {
namespace {

constexpr WordName kSaid[] = {
    "CannotRead",          "CannotWrite",        "DistanceFathoms",   "DistanceFeet",
    "DistanceMile",        "DistanceNautical",   "DistanceQuarter",   "DistanceQuarterNautical",
    "FolderUnusable",      "InputOutputError",   "IsDirectory",       "LanguageFileCut",
    "LanguageFileMissing", "LanguageInvalid",    "LanguageLinesBare", "LanguageLinesEnded",
    "LanguageLinesMixed",  "LanguageLinesOther", "LanguageNotChosen", "LanguageNotSaved",
    "LineEndsChanged",     "LongerThan",         "NameTooLong",       "NoSpaceLeft",
    "NoSuchFile",          "NotADirectory",      "NotLanguageList",   "NotOptions",
    "NotPreset",           "NotRegularFile",     "NotSetUp",          "OptionOutOfRange",
    "PermissionDenied",    "PictureMissing",     "ReadOnlySystem",
};

/// The values in a text that is made like `pattern`, in the order of their places in it.
std::optional<std::vector<std::string_view>> ValuesIn(std::string_view text, std::string_view pattern) {
    constexpr std::size_t kPlaceSize = 3;  // of "{0}"
    std::vector<std::string_view> values;
    std::size_t place = pattern.find('{');
    if (place == std::string_view::npos) return text == pattern ? std::optional(values) : std::nullopt;
    if (!text.starts_with(pattern.substr(0, place))) return std::nullopt;
    text.remove_prefix(place);
    while (place != std::string_view::npos) {
        pattern.remove_prefix(place + kPlaceSize);
        place = pattern.find('{');
        const std::string_view next = pattern.substr(0, place);
        const bool isLast = place == std::string_view::npos;
        if (isLast && !text.ends_with(next)) return std::nullopt;
        const std::size_t end = isLast ? text.size() - next.size() : text.find(next);
        if (end == std::string_view::npos) return std::nullopt;
        values.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + next.size(), text.size()));
    }
    return values;
}

}  // namespace

std::string InWords(std::string_view english) {
    for (const WordName name : kSaid) {
        const auto values = ValuesIn(english, kWordTable[name.Row()].english);
        if (!values) continue;
        std::vector<std::string> said;
        for (const std::string_view value : *values) said.push_back(InWords(value));  // a reason is a sentence, too
        said.resize(4);
        return words.Sentence(name, {said[0], said[1], said[2], said[3]});
    }
    return std::string(english);
}

}  // namespace zolv
