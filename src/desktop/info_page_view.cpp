#include "desktop/info_page_view.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>

#include "desktop/canvas_view.h"
#include "desktop/page_parts.h"
#include "desktop/picture_view.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "fields/windows.h"

namespace zolv {
namespace {

/// Figures that are as wide as the car makes them; the commonest units have room without moving the page.
const WidestOf kPeak{QStringLiteral("888 kW @ 8888 rpm")};
const WidestOf kPressures{QStringLiteral("888-888 kPa")};

QWidget* MakeBody(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[0], parent);
    auto& words = Zolv.InfoLabel;
    AddFigureRows(binding, *MakeRows(box),
                  {{words[0], Zolv.Info_Mass},
                   {words[1], Zolv.Info_Weight},
                   {words[2], Zolv.Info_WD},
                   {words[3], Zolv.Info_P2W},
                   {words[4], Zolv.Info_T2W},
                   {words[18], Zolv.Info_WB}});
    return box;
}

QWidget* MakeEngine(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[1], parent);
    auto& words = Zolv.InfoLabel;
    AddFigureRows(binding, *MakeRows(box),
                  {{words[5], Zolv.Info_Power, kPeak},
                   {words[6], Zolv.Info_Torque, kPeak},
                   {words[7], Zolv.Info_DT},
                   {words[8], Zolv.Info_Gears},
                   {words[9], Zolv.Info_Efficiency}});
    return box;
}

struct AxleRow {
    Label &words, &front, &rear;
    WidestOf widest = {};
};

QWidget* MakeWheels(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[3], parent);
    QGridLayout& grid = *MakeRows(box);
    auto& words = Zolv.InfoLabel;
    grid.addWidget(MakeTitle(binding, words[10], box), 0, 1, Qt::AlignRight);
    grid.addWidget(MakeTitle(binding, words[11], box), 0, 2, Qt::AlignRight);
    grid.setColumnStretch(0, 1);
    for (const AxleRow& row :
         {AxleRow{words[12], Zolv.Info_RimF, Zolv.Info_RimR}, AxleRow{words[13], Zolv.Info_TWF, Zolv.Info_TWR},
          AxleRow{words[14], Zolv.Info_TPF, Zolv.Info_TPR}, AxleRow{words[15], Zolv.Info_THF, Zolv.Info_THR},
          AxleRow{words[16], Zolv.Info_PRF, Zolv.Info_PRR, kPressures},
          AxleRow{words[17], Zolv.Info_TrackF, Zolv.Info_TrackR}}) {
        const int line = NextRow(grid);
        grid.addWidget(MakeWords(binding, row.words, box), line, 0);
        grid.addWidget(MakeFigure(binding, row.front, box, row.widest), line, 1);
        grid.addWidget(MakeFigure(binding, row.rear, box, row.widest), line, 2);
    }
    return box;
}

/// The text scrolls where it does not fit: it may not decide how small the window gets.
QWidget* MakeAbout(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[2], parent);
    auto* const area = new QScrollArea(box);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->viewport()->setAutoFillBackground(false);

    QLabel* const text = MakeWords(binding, Zolv.AboutZolv, area);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    text->setAutoFillBackground(false);
    area->setWidget(text);
    MakeRows(box)->addWidget(area, 0, 0);
    return box;
}

QWidget* MakePicture(Binding& binding, QWidget* parent) {
    auto* const view = new PictureView(parent);
    binding.Bind(Zolv.Info_CarPic, *view);
    return view;
}

QWidget* MakePlot(Binding& binding, QWidget* parent) {
    auto* const view = new CanvasView(Zolv.TorquePowerPlot, CanvasView::Shape::Stretched, parent);
    binding.Bind(Zolv.TorquePowerPlot, *view);
    return view;
}

/// Column 2 with the picture and the plot gets the room, a little more of its height for the plot.
void ShareRoom(QGridLayout& grid) { grid.setColumnStretch(2, 1); }

}  // namespace

InfoPageView::InfoPageView(Binding& binding, QWidget* parent) : QWidget(parent) {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    grid->setSpacing(kSection);
    grid->addWidget(MakeBody(binding, this), 0, 0);
    grid->addWidget(MakeWheels(binding, this), 0, 1);
    grid->addWidget(MakeEngine(binding, this), 1, 0);
    grid->addWidget(MakeAbout(binding, this), 1, 1);
    grid->addWidget(MakePicture(binding, this), 0, 2);
    grid->addWidget(MakePlot(binding, this), 1, 2);
    ShareRoom(*grid);
}

}  // namespace zolv
