#include "studies/straights_page.h"

#include <optional>
#include <string>
#include <vector>

#include "desk/held.h"
#include "desk/present.h"
#include "fields/all_windows.h"
#include "model/sheet.h"
#include "platform/dialogs.h"
#include "platform/text_files.h"
#include "plots/plotted.h"
#include "studies/finder_messages.h"
#include "studies/finder_state.h"
#include "studies/study_text.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

constexpr const char* kPattern = "*.straights";
constexpr std::size_t kLongestFile = 1U << 20U;  // a thousand straights with long names

FileRequest RequestFor(bool saving) {
    return {.forSaving = saving,
            .title = saving ? words["SaveStraightsTitle"] : words["OpenStraightsTitle"],
            .filterLabel = words["StraightsFiles"] + " (" + kPattern + ")",
            .presetName = kPattern,
            .defaultExtension = saving ? "straights" : "",
            .proposedName = saving ? finder.TrackFileName : ""};
}

/// How a set-up drives the straights; none with gears in the wrong order.
std::optional<std::vector<StraightTime>> DrivenWith(const SetUp& setUp) {
    const Sheet still = EvaluateStill(setUp);
    if (!still.WrongOrder.empty()) return std::nullopt;
    return TimesAlong(finder.Track.File.Straights, StartOf(setUp, still));
}

/// What one set-up does on the straights, in two columns.
struct Driven {
    std::string TimeTitle, SpeedTitle;
    std::optional<std::vector<StraightTime>> Times;
};

/// The present set-up, then the held and the found one where there are such.
std::vector<Driven> DrivenWithAll() {
    std::vector<Driven> all{{words["ColumnTime"], words["ColumnEndSpeed"], DrivenWith(PresentSetUp())}};
    if (desk.Held != nullptr) {
        all.push_back({NameIn(Standing::Held, words["ColumnTime"]), NameIn(Standing::Held, words["ColumnEndSpeed"]),
                       DrivenWith(desk.Held->SetUp)});
    }
    if (finder.Find) {
        all.push_back({words["ColumnTimeFound"], words["ColumnEndSpeedFound"], DrivenWith(finder.Find->Result.Found)});
    }
    return all;
}

void AddDriven(TextRow& row, const Driven& driven, std::size_t i) {
    const bool reached = driven.Times && (*driven.Times)[i].Reached;
    row.push_back(reached ? SecondsText((*driven.Times)[i].Time) : "N/A");
    row.push_back(reached ? units.Speed.Text((*driven.Times)[i].Speed) : "N/A");
}

/// The sum of the times, where all straights are driven.
void AddSum(TextRow& row, const Driven& driven) {
    double sum = 0;
    bool reached = driven.Times.has_value();
    for (std::size_t i = 0; reached && i < driven.Times->size(); ++i) {
        reached = (*driven.Times)[i].Reached;
        sum += (*driven.Times)[i].Time;
    }
    row.push_back(reached ? SecondsText(sum) : "N/A");
    row.push_back("");
}

}  // namespace

void ReadTrack() {
    finder.Track = ReadStraights(Finder.Straights.Text());
    ShowTrackNote();
    ShowStraightTimes();
}

void ShowTrackNote() {
    const std::size_t count = finder.Track.File.Straights.size();
    if (Finder.Straights.Text().empty()) {
        Finder.StraightsNote.SetCaption("");
    } else if (finder.Track.Error) {
        Finder.StraightsNote.SetCaption(StraightsErrorText(*finder.Track.Error));
    } else {
        Finder.StraightsNote.SetCaption(
            words.Sentence("StraightsCount", {NumberText(static_cast<std::int32_t>(count))}));
    }
    Finder.StraightsNote.SetColour(finder.Track.Error && !Finder.Straights.Text().empty() ? std::optional(kRed)
                                                                                          : std::nullopt);
}

bool ExpectTrack() {
    if (!finder.Track.Error) return true;
    ShowMessage(Finder.Straights.Text().empty() ? words["GoalNoStraights"] : StraightsErrorText(*finder.Track.Error));
    return false;
}

void OpenStraights() {
    const std::string name = AskForFile(RequestFor(false));
    if (name.empty() || name == kPattern) return;
    const FileText file = ReadTextFile(name, kLongestFile);
    if (!file.readable) return ShowMessage(CannotRead(name, file.reason));
    const StraightsRead read = ReadStraights(file.text);
    if (read.Error) return ShowMessage(CannotRead(name, StraightsErrorText(*read.Error)));
    finder.TrackFileName = name;
    Finder.Straights.SetText(StraightsText(read.File));
}

void SaveStraightsAs() {
    if (!ExpectTrack()) return;
    const std::string name = AskForFile(RequestFor(true));
    if (name.empty() || name == kPattern) return;
    const std::string reason = WriteTextFile(name, StraightsText(finder.Track.File));
    if (!reason.empty()) return ShowMessage(CannotWrite(name, reason));
    finder.TrackFileName = name;
}

void ShowStraightTimes() {
    const std::vector<Straight>& straights = finder.Track.File.Straights;
    if (straights.empty()) return Finder.StraightTimes.SetText("");
    const std::vector<Driven> all = DrivenWithAll();
    std::vector<TextRow> rows{{words["ColumnStraight"], words["ColumnEntry"], words["ColumnLength"]}};
    for (const Driven& driven : all) rows.front().insert(rows.front().end(), {driven.TimeTitle, driven.SpeedTitle});
    for (std::size_t i = 0; i < straights.size(); ++i) {
        TextRow row{straights[i].Name, units.Speed.Text(straights[i].EntrySpeed),
                    RoundedText(straights[i].Length, 1) + " m"};
        for (const Driven& driven : all) AddDriven(row, driven, i);
        rows.push_back(row);
    }
    TextRow sum{words["AllStraights"], "", ""};
    for (const Driven& driven : all) AddSum(sum, driven);
    rows.push_back(sum);
    Finder.StraightTimes.SetText(TableText(rows));
}

}  // namespace zolv
