#include "desktop/converter_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include "desktop/page_parts.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"

namespace zolv {
namespace {

/// A result reads on from what stands in front of it, so that it is not at the right edge as other figures are.
ValueLabel* MakeResult(Binding& binding, Label& field, QWidget* parent, const QString& widest) {
    ValueLabel* const result = MakeFigure(binding, field, parent, {widest});
    result->setContentsMargins(0, 0, 0, 0);
    result->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return result;
}

}  // namespace

ConverterWindow::ConverterWindow(Binding& binding, QWidget* parent) : SecondaryWindow(binding, UnitConv, parent) {
    auto* const layout = new QVBoxLayout(Body());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kSection);
    layout->addWidget(MakeTitle(binding, UnitConv.UC_Title, Body()));
    layout->addWidget(MakeUnitRows());
    layout->addWidget(MakeTyreRow());
    layout->addStretch();
    AddButtons({}, {&UnitConv.CloseConv});
    Complete();
}

QGroupBox* ConverterWindow::MakeUnitRows() {
    QGroupBox* const group = MakeGroup(Fields(), UnitConv.ConvertFrame[0], Body());
    QGridLayout* const grid = MakeRows(group);
    int line = 0;
    for (ConverterRow* row : {&UnitConv.Distance, &UnitConv.Mass, &UnitConv.Power, &UnitConv.Torque}) {
        grid->addWidget(MakeWords(Fields(), row->Caption, group), line, 0);
        grid->addWidget(MakeNumberBox(row->Input, group, row->Caption, 7), line, 1);
        grid->addWidget(MakeList(row->Select, group, row->Caption), line, 2);
        grid->addWidget(MakeResult(Fields(), row->Output, group, QStringLiteral("is 101604691 kg")), line, 3);
        ++line;
    }
    grid->setColumnStretch(3, 1);
    return group;
}

QGroupBox* ConverterWindow::MakeTyreRow() {
    Panel& frame = UnitConv.ConvertFrame[1];
    QGroupBox* const group = MakeGroup(Fields(), frame, Body());
    auto* const row = new QHBoxLayout(group);
    SetGroupMargins(*row);
    row->setSpacing(kGap);
    const auto addBox = [&](TextBox& field) { row->addWidget(MakeNumberBox(field, group, frame, 5)); };
    addBox(UnitConv.TyreWidthInput);
    row->addWidget(MakeWords(Fields(), UnitConv.InputSlash, group));
    addBox(UnitConv.TyreHeightInput);
    row->addWidget(MakeWords(Fields(), UnitConv.InputR, group));
    addBox(UnitConv.RimSizeInput);
    row->addWidget(new QLabel(QStringLiteral("mm"), group));
    row->addSpacing(kSection);
    row->addWidget(MakeResult(Fields(), UnitConv.TyreOutput, group, QStringLiteral("9999 / -999 R999")), 1);
    return group;
}

}  // namespace zolv
