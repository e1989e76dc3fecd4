#include "drawing/document.h"

#include <algorithm>
#include <utility>

#include "drawing/svg.h"
#include "text/aligned_table.h"
#include "text/xml_text.h"

namespace zolv {
namespace {

constexpr const char* kStyle =
    "body{font-family:sans-serif;font-size:10pt;color:#282d34;max-width:60em;margin:2em auto;padding:0 1em}"
    "h1{font-size:16pt;margin:0}h2{font-size:12pt;margin:1.2em 0 .3em;border-bottom:1px solid #969ca4}"
    "table{border-collapse:collapse}td,th{padding:1px 12px 1px 0;text-align:left;vertical-align:top}"
    ".short{white-space:nowrap}td.number{text-align:right}svg{width:100%;height:auto}"
    "table.columns{width:100%}table.columns>tbody>tr>td{width:50%}"
    // Figures on one page, plots on the next.
    "@media print{.new-page{page-break-before:always}@page{margin:12mm}h2,svg{page-break-inside:avoid}"
    "body{margin:0;padding:0;max-width:none;font-size:7pt}h2{font-size:9pt;margin-top:.6em}}";

std::string Escaped(const std::string& text) { return XmlText(text, "\n"); }

std::string WithUnit(const DocumentFigure& figure) {
    return figure.Unit.empty() ? figure.Number : figure.Number + ' ' + figure.Unit;
}

void AddCell(std::string& html, const char* tag, const std::string& text, const char* attributes = "") {
    html.append("<").append(tag).append(attributes).append(">").append(Escaped(text));
    html.append("</").append(tag).append(">");
}

bool HoldsAny(const DocumentSection& section) {
    return std::ranges::any_of(section.Figures, [](const DocumentFigure& figure) { return !figure.Held.empty(); });
}

/// What the held set-up has in a row of the table; empty where it has nothing.
std::vector<std::string> HeldRow(const DocumentSection& section, std::size_t row) {
    return row < section.Held.size() ? section.Held[row] : std::vector<std::string>();
}

constexpr const char* kShort = " class=\"short\"";

/// A figure, or a word or two.
bool IsShort(const std::string& cell) {
    constexpr std::size_t kWords = 12;
    return ColumnsOf(cell) <= kWords || !FigureOf("", cell).Unit.empty();
}

void AddFigures(std::string& html, const DocumentSection& section, const std::string& heldTitle) {
    if (section.Figures.empty()) return;
    html += "<table>\n";
    if (HoldsAny(section)) {
        html += "<tr><th></th><th></th><th></th>";
        AddCell(html, "th", heldTitle);
        html += "</tr>\n";
    }
    for (const DocumentFigure& figure : section.Figures) {
        html += "<tr>";
        AddCell(html, "td", figure.Name);
        AddCell(html, "td", figure.Number, " class=\"number\" align=\"right\"");
        AddCell(html, "td", figure.Unit, kShort);
        if (!figure.Held.empty()) AddCell(html, "td", figure.Held, IsShort(figure.Held) ? kShort : "");
        html += "</tr>\n";
    }
    html += "</table>\n";
}

/// What is short does not break over lines.
void AddRow(std::string& html, const char* tag, const std::vector<std::string>& row) {
    html += "<tr>";
    for (const std::string& cell : row) AddCell(html, tag, cell, IsShort(cell) ? kShort : "");
    html += "</tr>\n";
}

void AddTable(std::string& html, const DocumentSection& section) {
    if (section.Table.empty()) return;
    html += "<table>\n";
    for (std::size_t row = 0; row < section.Table.size(); ++row) {
        AddRow(html, row == 0 ? "th" : "td", section.Table[row]);
        if (const auto held = HeldRow(section, row); !held.empty()) AddRow(html, "td", held);
    }
    html += "</table>\n";
}

constexpr const char* kColumns = "<table class=\"columns\" width=\"100%\"><tbody><tr><td width=\"50%\">\n";
constexpr const char* kNextColumn = "</td><td width=\"50%\">\n";
constexpr const char* kColumnsEnd = "</td></tr></tbody></table>\n";

/// Two in a row.
void AddPictures(std::string& html, const DocumentSection& section, PictureMarkup markup, std::size_t& number) {
    for (std::size_t i = 0; i < section.Pictures.size(); ++i) {
        html += i % 2 == 0 ? kColumns : kNextColumn;
        html +=
            "<b>" + Escaped(section.PictureTitles[i]) + "</b><br/>\n" + markup(section.Pictures[i], number++) + '\n';
        if (i % 2 == 1) html += kColumnsEnd;
    }
    if (section.Pictures.size() % 2 == 1) html.append(kNextColumn).append(kColumnsEnd);
}

void AddSection(std::string& html, const Document& document, std::size_t number, PictureMarkup markup,
                std::size_t& pictures) {
    const DocumentSection& section = document.Sections[number];
    // The style of its own is for readers that know no media.
    html += section.OnNewPage ? "<h2 class=\"new-page\" style=\"page-break-before:always\">" : "<h2>";
    html += Escaped(section.Title) + "</h2>\n";
    AddFigures(html, section, document.HeldTitle);
    AddTable(html, section);
    AddPictures(html, section, markup, pictures);
}

/// The file of a picture without its declaration, which stands only at the start of a document.
std::string InlineSvg(const Canvas& picture, std::size_t /*number*/) {
    const std::string svg = SvgOf(picture);
    return svg.substr(svg.find("<svg"));
}

void AddCsvLine(std::string& csv, std::vector<std::string> cells, bool held) {
    cells.resize(held ? 5 : 4);
    for (std::size_t i = 0; i < cells.size(); ++i) csv += CsvCell(cells[i]) + (i + 1 < cells.size() ? "," : "\r\n");
}

/// The two figures of a line have one unit: a figure that is none ("N/A") has that of the held one.
void AddCsvNumber(std::string& csv, const std::string& section, const DocumentFigure& figure, bool held) {
    const DocumentFigure other = FigureOf("", figure.Held);
    const bool none = figure.Number.find_first_of("0123456789") == std::string::npos;
    const std::string& unit = figure.Unit.empty() && none ? other.Unit : figure.Unit;
    AddCsvLine(csv, {section, figure.Name, figure.Number, unit, other.Unit == unit ? other.Number : figure.Held}, held);
}

/// The numbers of a figure that has several, as "181 kW @ 6021 rpm" or "54.3% Front / 45.7% Rear", each with what
/// stands behind it; none of a text that is no such figure.
std::vector<DocumentFigure> NumbersOf(const std::string& text) {
    std::vector<DocumentFigure> numbers;
    std::string rest = text;
    while (!rest.empty()) {
        const std::size_t at = std::min(rest.find(" @ "), rest.find(" / "));
        const std::string piece = rest.substr(0, at);
        const std::size_t end = std::min(piece.find_first_not_of("-.0123456789"), piece.size());
        if (end == 0 || piece.find(" : ") != std::string::npos) return {};
        const std::size_t unit = std::min(piece.find_first_not_of(' ', end), piece.size());
        numbers.push_back({"", piece.substr(0, end), piece.substr(unit)});
        rest = at == std::string::npos ? std::string() : rest.substr(at + 3);
    }
    return numbers;
}

/// One number a line: what has several is "Power", "Power, 2". Where only one of the two set-ups has numbers, the text
/// of the other stands beside each.
void AddCsvFigure(std::string& csv, const std::string& section, const DocumentFigure& figure, bool held) {
    const std::string beside = Flat(figure.Held);
    const auto numbers = figure.Unit.empty() ? NumbersOf(figure.Number) : std::vector<DocumentFigure>();
    const auto others = figure.Unit.empty() ? NumbersOf(beside) : std::vector<DocumentFigure>();
    const std::size_t count = std::max(numbers.size(), others.size());
    if (count < 2) return AddCsvNumber(csv, section, figure, held);
    const bool has = numbers.size() == count;
    const bool othersHave = others.size() == count;
    for (std::size_t i = 0; i < count; ++i) {
        AddCsvLine(csv,
                   {section, i == 0 ? figure.Name : figure.Name + ", " + std::to_string(i + 1),
                    has ? numbers[i].Number : figure.Number, has ? numbers[i].Unit : others[i].Unit,
                    othersHave ? others[i].Number : beside},
                   held);
    }
}

bool HoldsAny(const Document& document) {
    return std::ranges::any_of(
        document.Sections, [](const DocumentSection& section) { return HoldsAny(section) || !section.Held.empty(); });
}

void AddLines(std::string& text, const AlignedTable& table) {
    for (const std::string& line : table.Lines(2)) text += line + '\n';
}

void AddUnderlined(std::string& text, const std::string& title, char line) {
    text += title + '\n' + std::string(ColumnsOf(title), line) + '\n';
}

}  // namespace

DocumentFigure FigureOf(std::string name, const std::string& text) {
    const std::string flat = Flat(text);
    const std::size_t end = std::min(flat.find_first_not_of(".0123456789", flat.starts_with('-') ? 1 : 0), flat.size());
    const std::size_t unit = std::min(flat.find_first_not_of(' ', end), flat.size());
    const bool whole = end == 0 || flat.substr(unit).starts_with('-') ||
                       flat.find_first_of(":@,", unit) != std::string::npos ||
                       flat.find(" / ", unit) != std::string::npos || flat.find("% ", unit) != std::string::npos;
    if (whole) return {std::move(name), flat};
    return {std::move(name), flat.substr(0, end), flat.substr(unit)};
}

std::string HtmlOf(const Document& document) { return HtmlOf(document, InlineSvg); }

std::string HtmlOf(const Document& document, PictureMarkup markup) {
    std::string html = "<!DOCTYPE html>\n<html lang=\"" + Escaped(document.LanguageCode) +
                       "\">\n<head>\n<meta charset=\"utf-8\"/>\n<title>" + Escaped(document.Title) +
                       "</title>\n<style>" + kStyle + "</style>\n</head>\n<body>\n<h1>" + Escaped(document.Title) +
                       "</h1>\n";
    if (!document.Subtitle.empty()) html += "<p>" + Escaped(document.Subtitle) + "</p>\n";
    std::size_t pictures = 0;
    for (std::size_t i = 0; i < document.Sections.size(); ++i) {
        const bool two = i + 1 < document.Sections.size() && document.Sections[i + 1].Beside;
        if (two) html += kColumns;
        AddSection(html, document, i, markup, pictures);
        if (!two) continue;
        html += kNextColumn;
        AddSection(html, document, ++i, markup, pictures);
        html += kColumnsEnd;
    }
    return html + "</body>\n</html>\n";
}

std::string CsvOf(const Document& document, const std::vector<std::string>& titles) {
    const bool held = HoldsAny(document);
    std::string csv;
    AddCsvLine(csv, titles, held);
    for (const DocumentSection& section : document.Sections) {
        for (const DocumentFigure& figure : section.Figures) {
            AddCsvFigure(csv, section.Title, figure, held);
        }
        for (std::size_t row = 1; row < section.Table.size(); ++row) {
            const auto& cells = section.Table[row];
            std::vector<std::string> heldCells = HeldRow(section, row);
            heldCells.resize(cells.size());
            for (std::size_t i = 1; i < cells.size(); ++i) {
                if (cells[i].empty() && heldCells[i].empty()) continue;
                DocumentFigure cell = FigureOf(cells.front() + ", " + section.Table.front()[i], cells[i]);
                cell.Held = heldCells[i];
                AddCsvFigure(csv, section.Title, cell, held);
            }
        }
    }
    return csv;
}

std::string TextOf(const Document& document) {
    std::string text;
    AddUnderlined(text, Flat(document.Title), '=');
    if (!document.Subtitle.empty()) text += Flat(document.Subtitle) + '\n';
    for (const DocumentSection& section : document.Sections) {
        if (section.Figures.empty() && section.Table.empty()) continue;
        text += '\n';
        AddUnderlined(text, Flat(section.Title), '-');
        AlignedTable figures(AlignedTable::Values::Left);
        if (HoldsAny(section)) figures.Add({"", "", document.HeldTitle});
        for (const DocumentFigure& figure : section.Figures) figures.Add({figure.Name, WithUnit(figure), figure.Held});
        AddLines(text, figures);
        if (!section.Figures.empty() && !section.Table.empty()) text += '\n';
        AlignedTable table;
        for (std::size_t row = 0; row < section.Table.size(); ++row) {
            table.Add(section.Table[row]);
            if (auto held = HeldRow(section, row); !held.empty()) table.Add(std::move(held));
        }
        AddLines(text, table);
    }
    return text;
}

std::string CsvCell(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char character : text) {
        if (character == '"') quoted += '"';
        quoted += character;
    }
    return quoted + '"';
}

}  // namespace zolv
