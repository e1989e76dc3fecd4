#include "pictures/formula_car.h"

#include <QPainter>

#include "pictures/inks.h"
#include "pictures/wings.h"

namespace zolv::pictures {
namespace {

// clang-format off
constexpr Corner kHull[] = {
    {-.84, .13, .5}, {-.90, .19, .7}, {-.50, .33, .8}, {0, .50, 1}, {.26, .60, .6}, {.33, .60, .4}, {.40, .56, .5},
    {.50, .56, .4}, {.525, .78, .5}, {.545, .95, .5}, {.60, .97, .5}, {.72, .82, 1}, {.92, .58, 1}, {1.16, .44, .5},
    {1.20, .30, .4}, {1.0, .12, .3}, {.20, .12, .6}, {-.10, .20, .9}};
constexpr Corner kSidePod[] = {
    {.36, .12, .2}, {.345, .40, .3}, {.42, .50, .7}, {.62, .50, .9}, {.86, .32, .9}, {1.02, .20, .4}, {1.02, .12, .2}};
constexpr Corner kInlet[] = {{.36, .17, .2}, {.347, .41, .3}, {.385, .47, .3}, {.385, .17, .2}};
constexpr Corner kScreen[] = {{.26, .585}, {.345, .68, .5}, {.36, .67, .3}, {.34, .585}};
constexpr Corner kAirBox[] = {{.524, .80, .2}, {.546, .955, .4}, {.566, .965, .3}, {.56, .80, .2}};

constexpr Corner kMidgetHull[] = {
    {-.40, .26, .6}, {-.48, .34, .8}, {-.26, .50, .9}, {.10, .60, .9}, {.30, .66, .5}, {.38, .58, .6}, {.58, .54, .5},
    {.64, .62, .5}, {.70, .52, .6}, {.72, .20, .4}, {.40, .14, .4}, {.05, .14, .6}};
constexpr Corner kMidgetPod[] = {{.20, .13, .4}, {.20, .32, .6}, {.34, .38, .8}, {.74, .32, .6}, {.76, .13, .4}};
constexpr Corner kMidgetDriver[] = {{.44, .55}, {.47, .66, .6}, {.52, .72, .5}, {.585, .72, .5}, {.62, .55}};
constexpr Corner kMidgetHoop[] = {{.60, .50}, {.635, 1.0, .5}, {.70, 1.0, .5}, {.98, .46}};
constexpr Corner kMidgetFrame[] = {{.70, .22}, {1.02, .30, .3}, {1.06, .50, .3}, {.66, .56}};
constexpr Corner kMidgetEngine[] = {{.69, .22, .2}, {.69, .50, .2}, {.80, .60, .4}, {.92, .52, .2}, {.94, .24, .2}};
constexpr Corner kMidgetPipe[] = {{.84, .50}, {.98, .62, .8}, {1.08, .56, .6}, {1.26, .56}};
constexpr Corner kMidgetBumper[] = {{-.10, .26}, {-.50, .24, .8}, {-.52, .40, .8}, {-.30, .40}};
// clang-format on

class FormulaPainter {
public:
    FormulaPainter(QPainter& painter, const CarSize& size, const CarLook& look)
        : painter_(painter), size_(size), look_(look), frame_(size) {}

    void PaintWinged() {
        PaintFloor();
        PaintRearWingAndStay();
        PaintHelmet(0.455, 0.66);
        PaintHull(kHull);
        Fill(kAirBox, kTrim);
        Fill(kScreen, kGlass);
        Fill(kSidePod, look_.paint.darker(109));
        Fill(kInlet, kTrim);
        PaintFlash();
        PaintNose();
        PaintWheels();
    }

    void PaintSmall() {
        Draw(kMidgetBumper, kGunmetal, 0.035);
        Draw(kMidgetFrame, kCarbon, 0.04);
        Fill(kMidgetEngine, kGunmetal);
        PaintCylinders();
        Draw(kMidgetPipe, kBrakeDisc, 0.06);
        Draw(kMidgetHoop, kCarbon, 0.045);
        Fill(kMidgetDriver, kRimWell);
        PaintHelmet(0.535, 0.79);
        PaintHull(kMidgetHull);
        Fill(kMidgetPod, look_.accent);
        PaintWheels();
    }

private:
    void Fill(Shape shape, const QColor& colour) { painter_.fillPath(frame_.Outline(shape), colour); }

    void Draw(Shape shape, const QColor& colour, double width) {
        painter_.strokePath(frame_.Line(shape), QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    /// The hull with its lower half in shade.
    void PaintHull(Shape shape) {
        const QPainterPath hull = frame_.Outline(shape);
        painter_.fillPath(hull, look_.paint);
        painter_.save();
        painter_.setClipPath(hull);
        const QRectF whole = hull.boundingRect();
        painter_.fillRect(QRectF(whole.left(), 0, whole.width(), size_.height * 0.36), look_.paint.darker(122));
        painter_.restore();
    }

    void PaintHelmet(double u, double v) {
        const QPointF at = frame_.At(u, v);
        const double radius = 0.135;
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(look_.accent);
        painter_.drawEllipse(at, radius, radius * 1.04);
        painter_.setBrush(kGlass);
        painter_.drawRoundedRect(QRectF(at.x() - radius * 1.02, at.y() - 0.025, radius * 1.15, 0.065), 0.03, 0.03);
    }

    /// The floor, which rises to the rear where an undertray is fitted, more so with a larger one.
    void PaintFloor() {
        const double rise = 0.075 * size_.undertray;
        const Corner floor[] = {{.16, .055, .3},   {.95, .055, .3}, {1.0 + .13 * size_.undertray, .07 + rise},
                                {1.0, .12 + rise}, {.95, .13},      {.16, .10, .3}};
        Fill(floor, kTrim);
        if (size_.undertray >= 3) {
            const Corner board[] = {{.20, .06}, {.17, .30, .5}, {.25, .30, .5}, {.30, .06}};
            Fill(board, kTrim);
        }
    }

    void PaintRearWingAndStay() {
        if (size_.rearWing <= 0) return;
        const QPointF at = frame_.At(1.30, 0.70 + 0.04 * size_.rearWing);
        QPainterPath stay(frame_.At(1.10, 0.34));
        stay.lineTo(frame_.At(1.28, 0.36));
        stay.lineTo(at);
        painter_.strokePath(stay, QPen(kCarbon, 0.06, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        PaintRearWing(painter_, at, size_.rearWing, {.endPlate = look_.accent, .blade = kCarbon}, 1);
    }

    void PaintNose() {
        if (size_.frontWing <= 0) return;
        const QPointF at(frame_.At(-0.72, 0).x(), 0.07);
        PaintFrontWing(painter_, at, size_.frontWing, {.endPlate = look_.accent, .blade = kCarbon});
    }

    /// A band of the accent along the hull, from the nose into the engine cover.
    void PaintFlash() {
        painter_.save();
        painter_.setClipPath(frame_.Outline(kHull));
        const Corner flash[] = {{-.95, .15}, {0, .42, .6}, {.30, .525, .4}, {.30, .56}, {0, .45, .6}, {-.95, .19}};
        Fill(flash, look_.accent);
        const Corner cover[] = {{.62, .62}, {.95, .50, .8}, {1.2, .36}, {1.2, .41}, {.95, .56, .8}, {.62, .74}};
        Fill(cover, look_.accent);
        painter_.restore();
    }

    void PaintCylinders() {
        for (const double v : {.30, .36, .42}) {
            const Corner fin[] = {{.76, v}, {.92, v}};
            Draw(fin, kRimWell, 0.018);
        }
    }

    void PaintWheels() {
        PaintWheel(painter_, {0, size_.frontTyre}, size_.frontTyre, size_.frontRim, look_.wheel);
        PaintWheel(painter_, {size_.wheelbase, size_.rearTyre}, size_.rearTyre, size_.rearRim, look_.wheel);
    }

    QPainter& painter_;
    const CarSize& size_;
    const CarLook& look_;
    Frame frame_;
};

}  // namespace

void PaintFormulaCar(QPainter& painter, const CarSize& size, const CarLook& look) {
    FormulaPainter(painter, size, look).PaintWinged();
}

void PaintMidget(QPainter& painter, const CarSize& size, const CarLook& look) {
    FormulaPainter(painter, size, look).PaintSmall();
}

}  // namespace zolv::pictures
