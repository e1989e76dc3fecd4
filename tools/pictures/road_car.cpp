#include "pictures/road_car.h"

#include <QPainter>
#include <array>

#include "pictures/inks.h"
#include "pictures/wings.h"

namespace zolv::pictures {
namespace {

constexpr double kGapLine = 0.010;  // [m] a door gap, as drawn

class RoadCarPainter {
public:
    RoadCarPainter(QPainter& painter, const CarSize& size, const RoadStyle& style, const CarLook& look)
        : painter_(painter), size_(size), style_(style), look_(look), frame_(size), body_(frame_.Outline(style.body)) {
        if (!IsRacer()) return;
        body_.addPath(frame_.Outline(Apron()));  // united() would make a polygon of the curves
        body_.setFillRule(Qt::WindingFill);
    }

    void Paint() {
        if (!style_.hoop.empty()) PaintCockpit();
        if (size_.rearWing > 0) PaintWingStay();
        Fill(body_, look_.paint);
        painter_.save();
        painter_.setClipPath(body_);
        PaintFlank();
        if (IsRacer()) PaintStripe();
        PaintLamps();
        PaintArches();
        painter_.restore();
        PaintGlass();
        PaintDoors();
        if (IsRacer()) PaintRoundel();
        PaintSills();
        PaintFlares();
        PaintWheels();
        if (style_.cycleWings) PaintCycleWing();
        if (size_.rearWing > 0) PaintWing();
        if (!style_.frontDoor.empty()) PaintMirror();
    }

private:
    bool IsRacer() const { return look_.trim != RaceTrim::None; }

    /// What brings a racer's body down to its splitter and skirts.
    std::array<Corner, 4> Apron() const {
        const double nose = style_.body[1].u + 0.02, tail = style_.body.back().u + 0.06;
        return {{{nose, .10, .3}, {nose - .02, .30, .3}, {tail, .30, .3}, {tail, .14, .3}}};
    }

    void Fill(const QPainterPath& path, const QColor& colour) { painter_.fillPath(path, colour); }

    void Draw(const QPainterPath& path, const QColor& colour, double width) {
        painter_.strokePath(path, QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    /// A band over the whole length, between two heights given as shares of the car's.
    QRectF Band(double low, double high) const {
        const QRectF whole = body_.boundingRect();
        return {whole.left() - 1, low * size_.height, whole.width() + 2, (high - low) * size_.height};
    }

    QPointF FrontHub() const { return {0, size_.frontTyre}; }
    QPointF RearHub() const { return {size_.wheelbase, size_.rearTyre}; }

    /// The flank under the crease lies in shade, and the edge over it catches light.
    void PaintFlank() {
        const double crease = style_.crease;
        painter_.fillRect(Band(0, crease - 0.03), look_.paint.darker(112));
        painter_.fillRect(Band(0, 0.28), look_.paint.darker(126));
        painter_.fillRect(Band(crease - 0.03, crease - 0.015), look_.paint.lighter(125));
        Fill(frame_.Outline(style_.grille.empty() ? style_.tailLamp : style_.grille), kTrim);
    }

    void PaintLamps() {
        Fill(frame_.Outline(style_.tailLamp), kTailLamp);
        if (style_.cycleWings) return;  // its lamps stand free
        Fill(frame_.Outline(style_.headlamp), kHeadlamp);
        Draw(frame_.Outline(style_.headlamp), look_.paint.darker(150), kGapLine);
    }

    double ArchGap() const { return look_.trim == RaceTrim::WideBody ? 0.025 : 0.045; }

    void PaintArches() {
        QPainterPath arches;
        const double front = size_.frontTyre + ArchGap(), rear = size_.rearTyre + ArchGap();
        if (!style_.cycleWings) arches.addEllipse(FrontHub(), front, front);
        arches.addEllipse(RearHub(), rear, rear);
        Fill(arches, kArch);
    }

    void PaintGlass() {
        const QPainterPath glass = frame_.Outline(style_.glass);
        if (!style_.hoop.empty()) {
            Fill(glass, QColor(120, 146, 166, 120));
            Draw(glass, kTrim, 0.022);
            return;
        }
        Fill(glass, kGlass);
        painter_.save();
        painter_.setClipPath(glass);
        PaintReflections();
        for (const double pillar : {style_.pillar, style_.rearPillar}) {
            if (pillar <= 0) continue;
            const Corner post[] = {{pillar - .012, .6}, {pillar + .012, .6}, {pillar - .008, 1}, {pillar - .026, 1}};
            Fill(frame_.Outline(post), look_.paint.darker(112));
        }
        painter_.restore();
        Draw(glass, kTrim, 0.016);
    }

    void PaintReflections() {
        for (const double from : {0.44, 0.57, 0.86}) {
            const double width = from == 0.57 ? 0.025 : 0.08;
            const Corner light[] = {{from - .1, .6}, {from + width - .1, .6}, {from + width, 1}, {from, 1}};
            Fill(frame_.Outline(light), kGlassLight);
        }
    }

    void PaintDoors() {
        const QColor gap = look_.paint.darker(155);
        for (const Shape door : {style_.frontDoor, style_.rearDoor}) {
            if (door.empty()) continue;
            Draw(frame_.Line(door), gap, kGapLine);
            const QPointF handle = frame_.At(door.back().u, style_.crease + 0.065);
            painter_.setPen(Qt::NoPen);
            painter_.setBrush(gap);
            painter_.drawRoundedRect(QRectF(handle.x() - 0.19, handle.y() - 0.014, 0.14, 0.028), 0.014, 0.014);
        }
    }

    void PaintMirror() {
        const Corner& foot = style_.frontDoor.front();
        const QPointF at = frame_.At(foot.u, foot.v) + QPointF(0.10, 0.05);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(look_.accent);
        painter_.drawRoundedRect(QRectF(at.x() - 0.085, at.y() - 0.05, 0.17, 0.10), 0.045, 0.045);
    }

    void PaintStripe() {
        const Corner slash[] = {{.02, 0}, {.16, 0}, {.30, .67}, {.16, .67}};
        const Corner second[] = {{.19, 0}, {.23, 0}, {.37, .67}, {.33, .67}};
        Fill(frame_.Outline(slash), look_.accent);
        Fill(frame_.Outline(second), look_.accent);
    }

    void PaintRoundel() {
        const QPointF at = frame_.At(0.52, 0.44);
        const double radius = size_.height * 0.155;
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(kWhite);
        painter_.drawEllipse(at, radius, radius);
    }

    /// The sill between the wheels; on a racer a skirt, a splitter in front and a diffuser behind.
    void PaintSills() {
        const double low = IsRacer() ? 0.065 : 0.13, high = IsRacer() ? 0.125 : 0.175;
        const Corner sill[] = {{.10, low, .2}, {.90, low, .2}, {.90, high}, {.10, high}};
        Fill(frame_.Outline(sill), kTrim);
        if (!IsRacer()) return;
        const double nose = style_.body[2].u - (size_.frontWing > 0 ? 0.12 : 0.04);
        const Corner splitter[] = {{nose, .075, .4}, {-.30, .07}, {-.30, .12}, {nose, .105, .4}};
        Fill(frame_.Outline(splitter), kTrim);
        if (size_.undertray <= 0) return;
        const double tail = style_.body.back().u + 0.10;
        const Corner diffuser[] = {{1.30, .09}, {tail, .16}, {tail + .02, .25, .3}, {1.34, .25, .3}};
        Fill(frame_.Outline(diffuser), kTrim);
    }

    void PaintFlares() {
        if (!IsRacer()) return;
        const double width = look_.trim == RaceTrim::WideBody ? 0.085 : 0.05;
        for (const auto& [hub, tyre] : {std::pair{FrontHub(), size_.frontTyre}, std::pair{RearHub(), size_.rearTyre}}) {
            const double radius = tyre + ArchGap() + width / 2;
            QPainterPath arc;
            const QRectF box(hub.x() - radius, hub.y() - radius, 2 * radius, 2 * radius);
            arc.arcMoveTo(box, 18);
            arc.arcTo(box, 18, -216);
            painter_.strokePath(arc, QPen(look_.paint.darker(140), width, Qt::SolidLine, Qt::FlatCap));
        }
    }

    void PaintWheels() {
        PaintWheel(painter_, FrontHub(), size_.frontTyre, size_.frontRim, look_.wheel);
        PaintWheel(painter_, RearHub(), size_.rearTyre, size_.rearRim, look_.wheel);
    }

    void PaintCycleWing() {
        const double radius = size_.frontTyre + 0.06;
        QPainterPath wing;
        const QRectF box(-radius, size_.frontTyre - radius, 2 * radius, 2 * radius);
        wing.arcMoveTo(box, -25);
        wing.arcTo(box, -25, -130);
        painter_.strokePath(wing, QPen(look_.paint.darker(135), 0.05, Qt::SolidLine, Qt::RoundCap));
        Fill(frame_.Outline(style_.headlamp), kGunmetal);
        const Corner& lens = style_.headlamp.front();
        const Corner glass[] = {{lens.u, lens.v + .01}, {lens.u, style_.headlamp.back().v - .01}};
        Draw(frame_.Line(glass), kWhite, 0.03);
        const Corner pipe[] = {{.16, .36}, {.26, .25, .8}, {.80, .22}};
        Draw(frame_.Line(pipe), kGunmetal, 0.07);
    }

    /// What stands in an open car behind its flank.
    void PaintCockpit() {
        const double seat = style_.hoop.front().u - 0.025;
        const Corner headrest[] = {
            {seat - .055, .5, .5}, {seat - .03, .83, .8}, {seat + .02, .83, .8}, {seat + .03, .5, .5}};
        Fill(frame_.Outline(headrest), look_.accent);
        const double screen = style_.glass.back().u;
        const Corner wheel[] = {{screen + .045, .62}, {screen + .085, .80}};
        Draw(frame_.Line(wheel), kTrim, 0.035);
        Draw(frame_.Line(style_.hoop), kCarbon, 0.05);
    }

    QPointF WingFoot() const { return frame_.At(style_.body[style_.body.size() - 4].u - 0.22, 0.62); }

    void PaintWingStay() {
        QPainterPath stay(WingFoot());
        stay.lineTo(WingFoot() + QPointF(0.13, size_.height * 0.34));
        Draw(stay, kCarbon, 0.06);
    }

    void PaintWing() {
        const QPointF at = WingFoot() + QPointF(0.17, size_.height * 0.36);
        PaintRearWing(painter_, at, size_.rearWing, {.endPlate = look_.accent, .blade = kCarbon}, 0.78);
    }

    QPainter& painter_;
    const CarSize& size_;
    const RoadStyle& style_;
    const CarLook& look_;
    Frame frame_;
    QPainterPath body_;
};

}  // namespace

void PaintRoadCar(QPainter& painter, const CarSize& size, const RoadStyle& style, const CarLook& look) {
    RoadCarPainter(painter, size, style, look).Paint();
}

}  // namespace zolv::pictures
