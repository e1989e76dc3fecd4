#pragma once

#include <cstdint>
#include <string>

#include "drawing/palette.h"
#include "drawing/plot_place.h"

namespace zolv {

/// Words at their place in a view.
struct PlacedWords {
    enum class Anchor : std::uint8_t { Left, Centre, Right };  // the side that stays where the words come out longer

    std::string text;
    Box box;  // as wide as the words are measured, and a line high
    Anchor anchor = Anchor::Left;
    bool onPlot = false;     // otherwise on what surrounds the ground
    bool veiled = false;     // with a veil of white under it, since it may lie on lines
    Rgb colour = kWordsInk;  // on the plot; around it words have the ink of the theme
};

}  // namespace zolv
