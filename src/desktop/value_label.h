#pragma once

#include <QLabel>
#include <cstdint>
#include <optional>
#include <vector>

#include "drawing/colour.h"

namespace zolv {

/// How a figure stands to what is set on its page: it follows from it; it is older, and greyed; or it is not shown.
enum class FigureStanding : std::uint8_t { Follows, Older, NotShown };

/// Where the change of a figure against the held set-up stands; its room is always kept, so that nothing moves when it
/// comes or goes.
enum class ChangePlace : std::uint8_t { None, Beside, Below };

/// Whether a change is for the better.
enum class ChangeSide : std::uint8_t { Neutral, Better, Worse };

/// A figure on a page: right-aligned, in a column as wide as its widest text, so that nothing dances while a slider
/// moves. A coloured state is also told by a small mark in front of the figure: a triangle up for red, down for blue, a
/// dot for green.
class ValueLabel : public QLabel {
public:
    explicit ValueLabel(QWidget* parent = nullptr);

    /// Texts that the column must have room for.
    void ReserveFor(const std::vector<QString>& widest);

    /// Whether there is room for a mark in front of the figure, as there is at first.
    void SetMarkRoom(bool room);

    void SetChangePlace(ChangePlace place);

    /// "+1.4", or empty for none.
    void SetChange(const QString& change, ChangeSide side);
    const QString& Change() const { return change_; }

    void SetState(std::optional<Rgb> colour);
    void SetStanding(FigureStanding standing);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ApplyColour();
    void PlaceMargins();
    void PaintMark();
    void PaintChange();

    std::vector<QString> reserved_;
    std::optional<Rgb> state_;
    FigureStanding standing_ = FigureStanding::Follows;
    bool markRoom_ = true;
    ChangePlace changePlace_ = ChangePlace::None;
    QString change_;
    ChangeSide changeSide_ = ChangeSide::Neutral;
};

}  // namespace zolv
