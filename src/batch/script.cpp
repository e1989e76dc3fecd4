#include "batch/script.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <vector>

#include "batch/field_access.h"
#include "batch/output.h"
#include "batch/report.h"
#include "batch/script_error.h"
#include "desk/history.h"
#include "drawing/svg.h"
#include "fields/all_windows.h"
#include "language/language_file.h"
#include "platform/text_files.h"
#include "reports/sheet_file.h"
#include "shell/shell_state.h"
#include "text/nearest_name.h"
#include "text/words.h"

namespace zolv {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

constexpr std::string_view kBlanks = " \t";

/// Takes the next word of a line and the one blank behind it; what is left is the rest as it stands.
std::string_view TakeWord(std::string_view& line) {
    line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
    const std::string_view word = line.substr(0, line.find_first_of(kBlanks));
    line.remove_prefix(word.size());
    if (!line.empty()) line.remove_prefix(1);
    return word;
}

bool IsBlank(std::string_view text) { return text.find_first_not_of(kBlanks) == std::string_view::npos; }

void ExpectNoMore(std::string_view rest) {
    if (!IsBlank(rest)) throw ScriptError("more words than the command takes: " + std::string(rest));
}

Field& TakeField(std::string_view& line, std::string_view& name) {
    name = TakeWord(line);
    if (name.empty()) throw ScriptError("the name of a field is missing");
    return FieldNamed(name);
}

void RunSet(std::string_view rest) {
    std::string_view name;
    Field& field = TakeField(rest, name);
    SetField(field, rest);
    NoteInput(field);
}

void RunClick(std::string_view rest) {
    std::string_view name;
    Field& field = TakeField(rest, name);
    ExpectNoMore(rest);
    ClickField(field);
    NoteInput(field);
}

void RunGet(std::string_view rest) {
    std::string_view name;
    const Field& field = TakeField(rest, name);
    const std::string_view property = TakeWord(rest);
    ExpectNoMore(rest);
    std::string line(name);
    if (property.empty()) {
        line += " = " + OneLine(TextOf(field));
    } else {
        line.append(" ").append(property).append(" = ").append(OneLine(PropertyOf(field, property)));
    }
    PrintLine(line);
}

const CanvasField& TakeCanvas(std::string_view& rest, std::string_view& name) {
    const Field& field = TakeField(rest, name);
    if (field.Kind() != FieldKind::Canvas) throw ScriptError(std::string(name) + " is not a canvas");
    return static_cast<const CanvasField&>(field);
}

void RunCanvas(std::string_view rest) {
    std::string_view name;
    const CanvasField& field = TakeCanvas(rest, name);
    ExpectNoMore(rest);
    PrintCanvas(name, field);
}

std::string TakePath(std::string_view rest) {
    if (IsBlank(rest)) throw ScriptError("the name of a file is missing");
    return std::string(rest);
}

void ExpectWritten(const std::string& path, const std::string& reason) {
    if (!reason.empty()) throw ScriptError(CannotWrite(path, reason));
}

void RunPicture(std::string_view rest) {
    std::string_view name;
    const CanvasField& field = TakeCanvas(rest, name);
    const std::string path = TakePath(rest);
    ExpectWritten(path, WriteTextFile(path, SvgOf(field.Drawing())));
}

void RunWriteLanguage(std::string_view rest) {
    const std::string path = TakePath(rest);
    ExpectWritten(path, WriteBuiltInLanguage(path));
}

void RunWriteWords(std::string_view rest) {
    const std::string path = TakePath(rest);
    ExpectWritten(path, WriteTextFile(path, BuiltInWords()));
}

void RunSheet(std::string_view rest) {
    const std::string failed = WriteSheet(TakePath(rest));
    if (!failed.empty()) throw ScriptError(failed);
}

void RunReport(std::string_view rest) {
    ExpectNoMore(rest);
    PrintReport();
}

struct Command {
    const char* name;
    void (*run)(std::string_view rest);
};
constexpr Command kCommands[] = {
    {"set", RunSet},         {"click", RunClick},
    {"get", RunGet},         {"canvas", RunCanvas},
    {"picture", RunPicture}, {"write-language", RunWriteLanguage},
    {"report", RunReport},   {"write-words", RunWriteWords},
    {"sheet", RunSheet},
};
constexpr const char* kAnswer = "answer";

/// The lines of a script, one after the other.
class LineReader {
public:
    explicit LineReader(std::istream& input) : input_(input) {}

    /// Takes the next line, without its line feed; false behind the last one, or where the input can be read no
    /// further. A line that no command can have is not read to its end: there may be none.
    bool Take(std::string_view& line) {
        input_.getline(buffer_.get(), kSize);
        const auto taken = static_cast<std::size_t>(input_.gcount());
        if (input_.bad() || (input_.eof() && taken == 0)) return false;
        if (input_.fail()) throw ScriptError("the line is longer than " + std::to_string(kSize - 1) + " bytes");
        line = {buffer_.get(), input_.eof() ? taken : taken - 1};
        return true;
    }

private:
    static constexpr std::size_t kSize = (std::size_t{1} << 20U) + 1;

    std::istream& input_;
    std::unique_ptr<char[]> buffer_ = std::make_unique_for_overwrite<char[]>(kSize);
};

[[noreturn]] void FailUnknown(std::string_view word) {
    std::vector<std::string> names{kAnswer};
    for (const Command& command : kCommands) names.emplace_back(command.name);
    throw ScriptError("unknown command " + std::string(word) + "; did you mean " + NearestName(word, names) + '?');
}

}  // namespace

void Script::RunLine(std::string_view line) {
    std::string_view rest = line;
    const std::string_view word = TakeWord(rest);
    if (word.empty() || word.front() == '#') return;
    if (word == kAnswer) return dialogs_.Answer(IsBlank(rest) ? std::string() : std::string(rest));
    const auto* const command = std::find_if(std::begin(kCommands), std::end(kCommands),
                                             [&](const Command& candidate) { return word == candidate.name; });
    if (command == std::end(kCommands)) FailUnknown(word);
    command->run(rest);
}

bool Script::Run(std::istream& input, const std::string& name) {
    LineReader lines(input);
    int number = 1;
    try {
        for (std::string_view line; !shell.Ended && lines.Take(line); ++number) {
            if (number == 1 && line.starts_with(kByteOrderMark)) line.remove_prefix(kByteOrderMark.size());
            if (line.ends_with('\r')) line.remove_suffix(1);
            RunLine(line);
            // Whoever waits for the answer before he writes the next line gets it now.
            if (input.rdbuf()->in_avail() <= 0) std::cout.flush();
        }
        if (input.bad()) throw ScriptError("cannot be read");
    } catch (const ScriptError& error) {
        std::cout.flush();
        std::cerr << "zolv-batch: " << name << ':' << number << ": " << OneLine(error.what()) << '\n';
        return false;
    }
    return true;
}

}  // namespace zolv
