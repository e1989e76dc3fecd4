#pragma once

#include <array>
#include <optional>
#include <utility>
#include <vector>

#include "model/sheet.h"
#include "search/finder_task.h"

/// What the finder tries: gearboxes and wings within the bounds, and what each costs.
namespace zolv {

/// One choice of all inputs. Those that are free are whole numbers of steps; the others stand as they are.
using Choice = PerInput<double>;

/// Cost above every other, of a wish that is not met.
inline constexpr double kUnwished = 1e7;

/// A task made ready: the bounds as steps in the order of the gears, the pairs of wing angles that the wishes leave,
/// and all of the car that gears and wings do not touch. Constant behind its making, for any number of threads.
class Trial {
public:
    /// @param task  outlives the trial; its goal has no fault
    explicit Trial(const FinderTask& task);

    [[nodiscard]] FinderFault Fault() const { return fault_; }
    [[nodiscard]] FinderInput FaultInput() const { return faultInput_; }

    [[nodiscard]] const std::vector<FinderInput>& Free() const { return free_; }
    [[nodiscard]] const std::vector<std::pair<int, int>>& Wings() const { return wings_; }
    [[nodiscard]] const Choice& Present() const { return present_; }
    /// Whether the present choice lies within bounds, order and wishes of the wings.
    [[nodiscard]] bool PresentAllowed() const { return Allowed(present_); }
    /// Nothing reached where its gears are in the wrong order.
    [[nodiscard]] GoalValue PresentValue() const;

    /// Genes: what the search varies, each from 0 to 1 over its bounds.
    [[nodiscard]] std::size_t Genes() const { return genes_.size(); }
    [[nodiscard]] Choice ChoiceOf(const std::vector<double>& genes) const;
    [[nodiscard]] std::vector<double> GenesOf(const Choice& choice) const;
    /// Genes of a gearbox in even steps, with the wings anywhere.
    /// @param first   from 0 to 1: how fast first gear is; where the front wing stands
    /// @param second  from 0 to 1: how far the gears lie apart; where the rear wing stands
    [[nodiscard]] std::vector<double> EvenGenes(double first, double second) const;
    [[nodiscard]] FinderInput InputOf(std::size_t gene) const { return genes_[gene].input; }
    /// The free inputs that cannot be had by moving others: the final drive is none where all ratios are free.
    [[nodiscard]] std::vector<FinderInput> Independent() const;
    /// Width of a gene, in logarithms of a ratio; a wing's range counts as one.
    [[nodiscard]] double WidthOf(std::size_t gene) const { return genes_[gene].high - genes_[gene].low; }

    /// The choice with an input moved by steps; none where bounds, order or wishes of the wings forbid it.
    [[nodiscard]] std::optional<Choice> Moved(Choice choice, FinderInput input, int steps) const;
    [[nodiscard]] bool Allowed(const Choice& choice) const;

    [[nodiscard]] AccelerationSetup StartOf(const Choice& choice) const;
    [[nodiscard]] GoalValue ValueOf(const Choice& choice) const { return zolv::ValueOf(task_.Target, StartOf(choice)); }
    /// To be made small: CostOf the goal, or above kUnwished.
    [[nodiscard]] double CostOf(const Choice& choice) const;

    [[nodiscard]] SetUp SetUpOf(const Choice& choice) const;

private:
    struct Gene {
        FinderInput input;
        double low, high;
    };

    void TakePresent();
    void TakeBounds();
    void PutInOrder();
    void TakeWings();
    void TakeGenes();
    [[nodiscard]] bool WingsWished(int front, int rear) const;
    [[nodiscard]] bool IsFree(FinderInput input) const;
    void SettleProducts(const PerInput<double>& products, Choice& choice) const;
    void KeepOrder(Choice& choice) const;
    void KeepWings(Choice& choice) const;

    const FinderTask& task_;
    Sheet still_;
    AccelerationSetup start_;
    int gears_ = 0;
    bool inOrder_ = false;
    bool products_ = false;  // whether the genes of the gears are ratios times final drive
    Choice present_;
    PerInput<FinderRange> bounds_;  // whole steps; an input that is not free has its value twice
    std::vector<FinderInput> free_;
    std::vector<std::pair<int, int>> wings_;
    std::vector<Gene> genes_;
    FinderFault fault_ = FinderFault::None;
    FinderInput faultInput_{};
};

}  // namespace zolv
