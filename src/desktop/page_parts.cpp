#include "desktop/page_parts.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "aero/aero_state.h"
#include "desk/held.h"
#include "desktop/state_mark.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "desktop/word_breaks.h"
#include "text/difference.h"
#include "units/unit_catalogue.h"

namespace zolv {
namespace {

constexpr int kRowGap = 6;           // between the lines of a table
constexpr int kShortestSlider = 96;  // still moves by a few units a pixel

/// The caption is bold, and no group is narrower than that.
class Group : public QGroupBox {
public:
    using QGroupBox::QGroupBox;

    QSize minimumSizeHint() const override {
        QFont bold = font();
        bold.setBold(true);
        return QGroupBox::minimumSizeHint().expandedTo({QFontMetrics(bold).horizontalAdvance(title()), 0});
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

void BreakBetweenWords(Binding& binding, const Label& field, QLabel& label) {
    label.setWordWrap(true);
    binding.OnChanged(field, [&label] {
        constexpr int kNarrowest = 70;
        constexpr int kAnyHeight = 1000;
        const QFontMetrics metrics = label.fontMetrics();
        label.setText(WithBreaks(label.text()));
        const int widest = std::max(kNarrowest, WidestPiece(metrics, label.text()));
        const int width = std::min(widest, metrics.horizontalAdvance(label.text()));
        const QRect column(0, 0, width + 1, kAnyHeight);
        label.setMinimumSize(width + 2, metrics.boundingRect(column, Qt::TextWordWrap, label.text()).height());
    });
}

QLabel* MakeColumnTitle(Binding& binding, Label& field, QWidget* parent) {
    QLabel* const title = MakeTitle(binding, field, parent);
    BreakBetweenWords(binding, field, *title);
    return title;
}

QLabel* MakeTitle(Binding& binding, Label& field, QWidget* parent) {
    QLabel* const label = MakeWords(binding, field, parent);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

void ShowChange(ValueLabel& label, const Label& field, std::string_view present, std::string_view held) {
    const std::string change = DifferenceText(present, held);
    const BetterWay better = BetterWayOf(field);
    ChangeSide side = ChangeSide::Neutral;
    if (!change.empty() && better != BetterWay::Neither) {
        side = (change.front() == '+') == (better == BetterWay::Up) ? ChangeSide::Better : ChangeSide::Worse;
    }
    label.SetChange(ToQt(change), side);
    label.setAccessibleName(change.empty() ? label.text() : label.text() + QStringLiteral(", ") + ToQt(change));
}

ValueLabel* MakeFigure(Binding& binding, Label& field, QWidget* parent, const WidestOf& widest, ChangePlace change) {
    auto* const label = new ValueLabel(parent);
    label->SetChangePlace(change);
    label->ReserveFor(widest);
    binding.Bind(field, *label);
    binding.OnChanged(field, [&field, label] { ShowChange(*label, field, field.Caption(), field.Held()); });
    return label;
}

void ExplainMark(Binding& binding, const Field& field, QWidget& widget, std::function<std::string()> reason) {
    const auto explain = [&field, &widget, reason = std::move(reason)] {
        const QString why = HasMark(field.Colour()) ? ToQt(reason()) : QString();
        widget.setToolTip(why.isEmpty() ? ToQt(field.ToolTip()) : why);
        widget.setAccessibleDescription(why);
    };
    binding.OnChanged(field, explain);
    // A limit can move and leave the figure as it is. The plot is drawn anew with each calculation.
    binding.OnChanged(Zolv.TorquePlot, explain);
}

QGroupBox* MakeGroup(Binding& binding, Panel& field, QWidget* parent) {
    QGroupBox* const box = new Group(parent);
    binding.Bind(field, *box);
    return box;
}

void SetGroupMargins(QLayout& layout) { layout.setContentsMargins(0, kGap / 2, 0, 0); }

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

QSlider* PlaceSliderRow(Binding& binding, QGridLayout& grid, int line, int column, const SliderRow& row) {
    QWidget* const parent = grid.parentWidget();
    auto* const slider = new QSlider(Qt::Horizontal, parent);
    slider->setMinimumWidth(kShortestSlider);
    grid.setColumnStretch(column + 1, 1);
    grid.addWidget(MakeWords(binding, row.words, parent), line, column);
    grid.addWidget(slider, line, column + 1);
    grid.addWidget(MakeFigure(binding, row.value, parent, row.widest), line, column + 2);
    binding.Bind(row.slider, *slider, &row.words);
    return slider;
}

void AddAirSpeedRow(Binding& binding, QGridLayout& grid, int line, int column, const SliderRow& row) {
    SliderRow place = row;
    place.widest = WidestTexts(&UnitState::Speed, 188.8);
    QSlider* const slider = PlaceSliderRow(binding, grid, line, column, place);
    auto* const figure = grid.itemAtPosition(line, column + 2)->widget();
    const auto show = [&row = row.value, &field = row.slider, slider, label = static_cast<ValueLabel*>(figure)] {
        const bool atTopSpeed = Zolv.UseFixedSpeed.Checked();
        const Label& shown = atTopSpeed ? Zolv.Aero_TopSpeed : row;
        label->setText(ToQt(shown.Caption()));
        ShowChange(*label, shown, shown.Caption(), row.Held());
        const QSignalBlocker quiet(slider);
        slider->setValue(atTopSpeed ? qRound(aero.TopSpeed) : field.Value());
    };
    const std::initializer_list<const Field*> follows{&row.value, &row.slider, &Zolv.UseFixedSpeed,
                                                      &Zolv.Aero_TopSpeed};
    for (const Field* field : follows) binding.OnChanged(*field, show);
}

}  // namespace zolv
