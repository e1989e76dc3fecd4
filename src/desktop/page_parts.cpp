#include "desktop/page_parts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSlider>
#include <QStyleOptionGroupBox>
#include <QStylePainter>
#include <QVBoxLayout>

#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "units/unit_catalogue.h"

namespace zolv {
namespace {

constexpr int kRowGap = 6;           // between the lines of a table
constexpr int kShortestSlider = 96;  // still moves by a few units a pixel

/// A frame whose caption alone is bold: a bold font of the box would go on to all that stands in it.
class Group : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOptionGroupBox option;
        initStyleOption(&option);
        QFont bold = font();
        bold.setBold(true);
        option.fontMetrics = QFontMetrics(bold);
        QStylePainter painter(this);
        painter.setFont(bold);
        painter.drawComplexControl(QStyle::CC_GroupBox, option);
    }
};

}  // namespace

WidestOf WidestTexts(Quantity UnitState::*kind, double base) {
    WidestOf texts;
    for (const std::string& text : TextsInAllUnits(kind, base)) texts.push_back(ToQt(text));
    return texts;
}

WidestOf WidestTexts(Quantity UnitState::*kind, double first, const QString& between, double second) {
    WidestOf texts = WidestTexts(kind, first);
    const WidestOf seconds = WidestTexts(kind, second);
    for (std::size_t i = 0; i < texts.size(); ++i) texts[i] += between + seconds[i];
    return texts;
}

QLabel* MakeWords(Binding& binding, Label& field, QWidget* parent) {
    auto* const label = new QLabel(parent);
    binding.Bind(field, *label);
    return label;
}

QLabel* MakeTitle(Binding& binding, Label& field, QWidget* parent) {
    QLabel* const label = MakeWords(binding, field, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

ValueLabel* MakeFigure(Binding& binding, Label& field, QWidget* parent, const WidestOf& widest) {
    auto* const label = new ValueLabel(parent);
    label->ReserveFor(widest);
    binding.Bind(field, *label);
    return label;
}

QGroupBox* MakeGroup(Binding& binding, Panel& field, QWidget* parent) {
    QGroupBox* const box = new Group(parent);
    binding.Bind(field, *box);
    return box;
}

void SetGroupMargins(QLayout& layout) { layout.setContentsMargins(kMargin, kGap, kMargin, kGap); }

QGridLayout* MakeRows(QWidget* owner) {
    auto* const column = new QVBoxLayout(owner);
    SetGroupMargins(*column);
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kRowGap);
    column->addLayout(grid);
    column->addStretch(1);
    return grid;
}

int NextRow(const QGridLayout& grid) { return grid.count() == 0 ? 0 : grid.rowCount(); }

void AddFigureRows(Binding& binding, QGridLayout& grid, const std::vector<FigureRow>& rows) {
    QWidget* const parent = grid.parentWidget();
    grid.setColumnStretch(0, 1);
    for (const FigureRow& row : rows) {
        const int line = NextRow(grid);
        grid.addWidget(MakeWords(binding, row.words, parent), line, 0);
        grid.addWidget(MakeFigure(binding, row.figure, parent, row.widest), line, 1);
    }
}

void AddSliderRow(Binding& binding, QGridLayout& grid, const SliderRow& row) {
    PlaceSliderRow(binding, grid, NextRow(grid), 0, row);
}

void PlaceSliderRow(Binding& binding, QGridLayout& grid, int line, int column, const SliderRow& row) {
    QWidget* const parent = grid.parentWidget();
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(kShortestSlider);
    grid.setColumnStretch(column + 1, 1);
    grid.addWidget(MakeWords(binding, row.words, parent), line, column);
    grid.addWidget(slider, line, column + 1);
    grid.addWidget(MakeFigure(binding, row.value, parent, row.widest), line, column + 2);
    binding.Bind(row.slider, *slider, &row.words);
}

}  // namespace zolv
