#pragma once

#include <QLabel>
#include <cstdint>
#include <optional>
#include <vector>

#include "drawing/colour.h"

namespace zolv {

/// How a figure stands to what is set on its page: it follows from it; it is older, and greyed; or it is not shown.
enum class FigureStanding : std::uint8_t { Follows, Older, NotShown };

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

    void SetState(std::optional<Rgb> colour);
    void SetStanding(FigureStanding standing);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ApplyColour();

    std::vector<QString> reserved_;
    std::optional<Rgb> state_;
    FigureStanding standing_ = FigureStanding::Follows;
};

}  // namespace zolv
