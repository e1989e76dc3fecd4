#pragma once

#include <QLabel>
#include <optional>
#include <vector>

#include "drawing/colour.h"

namespace zolv {

/// A figure on a page: right-aligned, in a column as wide as its widest text, so that nothing dances while a slider
/// moves. A coloured state is also told by a small mark in front of the figure: a triangle up for red, down for blue, a
/// dot for green.
class ValueLabel : public QLabel {
public:
    explicit ValueLabel(QWidget* parent = nullptr);

    /// Texts that the column must have room for.
    void ReserveFor(const std::vector<QString>& widest);

    void SetState(std::optional<Rgb> colour);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ApplyColour();

    std::vector<QString> reserved_;
    std::optional<Rgb> state_;
};

}  // namespace zolv
