#pragma once

#include <string>
#include <vector>

#include "drawing/canvas.h"

/// A document of figures as a value, and its written forms. Whoever gathers one decides what stands in it; nothing here
/// knows a car.
namespace zolv {

/// One figure: its name, its number as it is shown, its unit (empty for a number without one, and for words).
struct DocumentFigure {
    std::string Name;
    std::string Number;
    std::string Unit = {};
    std::string Held = {};  // the same of the held set-up, with its unit; empty where none is held
};

/// Figures, then a table, then pictures, each of which may be missing.
struct DocumentSection {
    std::string Title;
    std::vector<DocumentFigure> Figures = {};
    std::vector<std::vector<std::string>> Table = {};  // the first row is its head
    std::vector<std::vector<std::string>> Held = {};   // of the held set-up, a row for each of Table; may be empty
    std::vector<std::string> PictureTitles = {};       // as many as Pictures
    std::vector<Canvas> Pictures = {};
    bool OnNewPage = false;
    bool Beside = false;  // stands at the right of the section before it, where there are columns
};

struct Document {
    std::string Title;
    std::string Subtitle = {};      // a line below it; empty for none
    std::string LanguageCode = {};  // "en"
    std::string HeldTitle = {};     // "Held": over what is of the held set-up
    std::vector<DocumentSection> Sections = {};
};

/// A text of a page as a figure: "12.5 m/s" is 12.5 with the unit m/s. One that is more than a number and its unit, as
/// "0.98 : 1", stays whole.
[[nodiscard]] DocumentFigure FigureOf(std::string name, const std::string& text);

/// How the place of a picture is written into HTML.
/// @param number  from 0, through all sections
using PictureMarkup = std::string (*)(const Canvas& picture, std::size_t number);

/// As one HTML file that stands alone. The pictures are inside it, as SVG.
[[nodiscard]] std::string HtmlOf(const Document& document);

/// The same with the pictures as `markup` has them.
[[nodiscard]] std::string HtmlOf(const Document& document, PictureMarkup markup);

/// As comma-separated values, one number a line: section, name, number, unit, and where a set-up is held its number.
/// A table's rows are figures of the section, named by their first cell and the head of the column. Lines end in CR LF.
/// @param titles  of the columns, five of them
[[nodiscard]] std::string CsvOf(const Document& document, const std::vector<std::string>& titles);

/// As text in columns, for a forum or a chat: lines end in LF, pictures are left out.
[[nodiscard]] std::string TextOf(const Document& document);

/// One cell of a CSV file, in quotes where it has a character of the format in it.
[[nodiscard]] std::string CsvCell(const std::string& text);

}  // namespace zolv
