#include "studies/finder_messages.h"

#include "model/sheet.h"
#include "studies/finder_inputs.h"
#include "studies/study_text.h"
#include "text/number_text.h"
#include "text/words.h"
#include "units/unit_state.h"

namespace zolv {
namespace {

std::string Metres(double metres) { return RoundedText(metres, 1) + " m"; }

std::string GoalFaultText(const Goal& goal) {
    switch (FaultOf(goal)) {
        case GoalFault::NoSpeed: return words["GoalNoSpeed"];
        case GoalFault::FromAboveTo: return words["GoalFromAboveTo"];
        case GoalFault::NoDistance: return words["GoalNoDistance"];
        case GoalFault::NoStraights: return words["GoalNoStraights"];
        case GoalFault::None: break;
    }
    return {};
}

}  // namespace

std::string GoalText(GoalKind kind, const GoalValue& value) {
    if (!value.Reached) return "N/A";
    return kind == GoalKind::TopSpeed ? ExactUnitText(units.Speed, value.Value) : SecondsText(value.Value);
}

std::string FaultText(const FinderTask& task, const FinderResult& result) {
    switch (result.Fault) {
        case FinderFault::Goal: return GoalFaultText(task.Target);
        case FinderFault::NothingFree: return words["FinderNothingFree"];
        case FinderFault::WishAtNoSpeed: return words["FinderWishAtNoSpeed"];
        case FinderFault::BoundsHoldNoStep:
            return words.Sentence("FinderBoundsHoldNoStep", {NameOf(result.FaultInput)});
        case FinderFault::BoundsLeaveNothing:
            return words.Sentence("FinderBoundsLeaveNothing", {NameOf(result.FaultInput)});
        case FinderFault::WishesLeaveNothing: return words["FinderWishesLeaveNothing"];
        case FinderFault::None: break;
    }
    return {};
}

std::string OutOfReachText(const Goal& goal, const GoalValue& best) {
    switch (goal.Kind) {
        case GoalKind::ToSpeed:
        case GoalKind::BetweenSpeeds:
            return words.Sentence("NoGearboxReaches", {units.Speed.Text(goal.ToSpeed), units.Speed.Text(best.Most)});
        case GoalKind::OverDistance:
            return words.Sentence("NoGearboxCovers", {Metres(goal.Distance), Metres(best.Most)});
        case GoalKind::TopSpeed: return words["NoGearboxMoves"];
        case GoalKind::AlongStraights: {
            double length = 0;
            for (const Straight& straight : goal.Straights) length += straight.Length;
            return words.Sentence("NoGearboxDrivesAll", {Metres(length), Metres(best.Most)});
        }
    }
    return {};
}

std::string WishText(const FinderTask& task, const FinderResult& result) {
    const double wished = task.Wishes.TopSpeed.value_or(0);
    const Goal wish{.Kind = GoalKind::ToSpeed, .ToSpeed = wished, .Straights = {}};
    const GoalValue most = ValueOf(wish, StartOf(result.Found, EvaluateStill(result.Found)));
    return words.Sentence("NoGearboxPasses", {units.Speed.Text(wished), units.Speed.Text(most.Most)});
}

std::string StraightsErrorText(const StraightsError& error) {
    const auto reason = [&]() -> std::string {
        switch (error.Fault) {
            case StraightsFault::NoHeader: return words["StraightsNoHeader"];
            case StraightsFault::UnknownUnit: return words.Sentence("StraightsUnknownUnit", {error.Text});
            case StraightsFault::WrongColumns: return words["StraightsWrongColumns"];
            case StraightsFault::UnclosedQuotes: return words["StraightsUnclosedQuotes"];
            case StraightsFault::NotANumber: return words.Sentence("StraightsNotANumber", {error.Text});
            case StraightsFault::EntryOutOfRange:
                return words.Sentence("StraightsEntryOutOfRange", {error.Text, units.Speed.Text(kFastestEntry)});
            case StraightsFault::LengthOutOfRange:
                return words.Sentence("StraightsLengthOutOfRange", {error.Text, RoundedText(kLongestStraight, 0)});
            case StraightsFault::TooMany:
                return words.Sentence("StraightsTooMany", {NumberText(static_cast<double>(kMostStraights))});
            case StraightsFault::None: return words["StraightsNone"];
        }
        return {};
    };
    return words.Sentence("StraightsLine", {NumberText(error.Line), reason()});
}

}  // namespace zolv
