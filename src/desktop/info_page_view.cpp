#include "desktop/info_page_view.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QVBoxLayout>

#include "desktop/canvas_view.h"
#include "desktop/page_parts.h"
#include "desktop/picture_view.h"
#include "desktop/texts_of_qt.h"
#include "desktop/theme.h"
#include "desktop/value_label.h"
#include "fields/all_windows.h"
#include "fields/label_names.h"
#include "text/texts.h"

namespace zolv {
namespace {

/// "86 kW @ 7033 rpm" with the unit of revs as the plots have it.
void SayRevs(Binding& binding, const Label& field, const QWidget& box) {
    auto* const figure = box.findChild<QLabel*>(ToQt(field.Name()));
    binding.OnChanged(field, [&field, figure] {
        QString text = ToQt(field.Caption());
        const QString rpm = QStringLiteral(" rpm");
        if (text.endsWith(rpm)) text.replace(text.size() - rpm.size(), rpm.size(), ToQt(texts.RpmSuffix));
        figure->setText(text);
        figure->setAccessibleName(text);
    });
}

/// Figures that are as wide as the car makes them; the commonest units have room without moving the page.
const WidestOf kPeak{QStringLiteral("888 kW @ 8888 rpm")};
const WidestOf kPressures{QStringLiteral("888-888 kPa")};

QWidget* MakeBody(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[kInfoBody], parent);
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
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[kInfoEngine], parent);
    auto& words = Zolv.InfoLabel;
    AddFigureRows(binding, *MakeRows(box),
                  {{words[5], Zolv.Info_Power, kPeak},
                   {words[6], Zolv.Info_Torque, kPeak},
                   {words[7], Zolv.Info_DT},
                   {words[8], Zolv.Info_Gears},
                   {words[9], Zolv.Info_Efficiency}});
    for (const Label* field : {&Zolv.Info_Power, &Zolv.Info_Torque}) SayRevs(binding, *field, *box);
    return box;
}

struct AxleRow {
    Label &words, &front, &rear;
    WidestOf widest = {};
};

QWidget* MakeWheels(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[kInfoWheels], parent);
    QGridLayout& grid = *MakeRows(box);
    auto& words = Zolv.InfoLabel;
    QLabel* const front = MakeTitle(binding, words[10], box);
    QLabel* const rear = MakeTitle(binding, words[11], box);
    grid.addWidget(front, 0, 1, Qt::AlignRight);
    grid.addWidget(rear, 0, 2, Qt::AlignRight);
    grid.setColumnStretch(0, 1);
    for (const AxleRow& row :
         {AxleRow{words[12], Zolv.Info_RimF, Zolv.Info_RimR}, AxleRow{words[13], Zolv.Info_TWF, Zolv.Info_TWR},
          AxleRow{words[14], Zolv.Info_TPF, Zolv.Info_TPR}, AxleRow{words[15], Zolv.Info_THF, Zolv.Info_THR},
          AxleRow{words[16], Zolv.Info_PRF, Zolv.Info_PRR, kPressures},
          AxleRow{words[17], Zolv.Info_TrackF, Zolv.Info_TrackR}}) {
        const int line = NextRow(grid);
        grid.addWidget(MakeWords(binding, row.words, box), line, 0);
        ValueLabel* const figure = MakeFigure(binding, row.front, box, row.widest);
        grid.addWidget(figure, line, 1);
        grid.addWidget(MakeFigure(binding, row.rear, box, row.widest), line, 2);
        // The titles stand above the figures, not above the room of their changes.
        for (QLabel* title : {front, rear}) title->setContentsMargins(0, 0, figure->contentsMargins().right(), 0);
    }
    return box;
}

/// A text that scrolls where it does not fit, with a frame while it has the focus.
class ScrolledText : public QScrollArea {
public:
    explicit ScrolledText(QWidget* parent) : QScrollArea(parent) {
        setFrameShape(QFrame::NoFrame);
        setViewportMargins(2, 2, 2, 2);
    }

    bool event(QEvent* event) override {
        const bool done = QScrollArea::event(event);
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
        if (event->type() == QEvent::Paint && hasFocus()) {
            QPainter painter(this);
            painter.setPen(palette().color(QPalette::Highlight));
            painter.drawRect(rect().adjusted(0, 0, -1, -1));
        }
        return done;
    }
};

/// The text may not decide how small the window gets.
QWidget* MakeAbout(Binding& binding, QWidget* parent) {
    QGroupBox* const box = MakeGroup(binding, Zolv.InfoPanel[kInfoAbout], parent);
    auto* const area = new ScrolledText(box);
    binding.OnChanged(Zolv.InfoPanel[kInfoAbout], [area, box] { area->setAccessibleName(box->accessibleName()); });
    QLabel* const text = MakeWords(binding, Zolv.AboutZolv, area);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    area->setWidget(text);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    for (QWidget* widget : {area->viewport(), static_cast<QWidget*>(text)}) widget->setAutoFillBackground(false);

    auto* const column = new QVBoxLayout(box);
    SetGroupMargins(*column);
    column->addWidget(area);
    return box;
}

QWidget* MakePicture(Binding& binding, QWidget* parent) {
    auto* const view = new PictureView(parent);
    view->SetSubstitute(QStringLiteral("unknown.jpg"));
    binding.Bind(Zolv.Info_CarPic, *view);
    return view;
}

QWidget* MakePlot(Binding& binding, QWidget* parent) {
    auto* const view = new CanvasView(Zolv.TorquePowerPlot, CanvasView::Shape::Stretched, parent);
    binding.Bind(Zolv.TorquePowerPlot, *view);
    return view;
}

/// The figures, and what is left of their column.
QLayout* MakeDescription(Binding& binding, QWidget* parent) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(kSection);
    column->addWidget(MakeBody(binding, parent));
    column->addWidget(MakeEngine(binding, parent));
    column->addWidget(MakeWheels(binding, parent));
    column->addWidget(MakeAbout(binding, parent), 1);
    return column;
}

/// The picture over the plot, which gets a little more of the height.
QLayout* MakeViews(Binding& binding, QWidget* parent) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(kSection);
    column->addWidget(MakePicture(binding, parent), 4);
    column->addWidget(MakePlot(binding, parent), 5);
    return column;
}

}  // namespace

InfoPageView::InfoPageView(Binding& binding, QWidget* parent) : QWidget(parent) {
    auto* const page = new QHBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    page->setSpacing(kSection);
    page->addLayout(MakeDescription(binding, this));
    page->addLayout(MakeViews(binding, this), 1);
}

}  // namespace zolv
