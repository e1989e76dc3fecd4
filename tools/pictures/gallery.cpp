#include "pictures/gallery.h"

#include <QPainter>
#include <algorithm>

#include "pictures/formula_car.h"
#include "pictures/inks.h"
#include "pictures/road_car.h"

namespace zolv::pictures {
namespace {

constexpr int kWidth = 900, kHeight = 450;  // [px]
constexpr double kPixelsPerMetre = 172;     // the longest car leaves a margin of a tenth
constexpr double kGround = 352;             // [px] from the top

enum class Class { Road, Midget, Formula };

struct Entry {
    std::string_view name;
    Class kind;
    const RoadStyle* style;
    CarLook look;
};

WheelLook Wheel(int spokes, bool paired, QColor rim, QColor caliper, QColor sidewall = QColor()) {
    return {.spokes = spokes, .paired = paired, .rim = rim, .caliper = caliper, .sidewall = sidewall};
}

const QColor kRed(0xd6453d), kYellow(0xefb32e), kBlue(0x2f72b8), kNavy(0x27446f), kMist(0xa9b6c1), kGreen(0x2f7f5e),
    kRacing(0x1f5b47), kOrange(0xe0701f), kTeal(0x1c8c95), kWine(0x8a3040), kLime(0x8fbf2b), kCyan(0x2fb5d2),
    kTan(0xc58a52), kSlate(0x39434d), kInk(0x22272d);

// clang-format off
const Entry kEntries[] = {
    {"Mote 900",     Class::Road,    &kCityCar,      {kRed,    kWhite,  Wheel(8, false, kSilver, kGunmetal)}},
    {"Pell S",       Class::Road,    &kHatchback,    {kYellow, kInk,    Wheel(7, false, kSilver, kGunmetal)}},
    {"Ondo T",       Class::Road,    &kCoupe,        {kBlue,   kWhite,  Wheel(5, false, kSilver, kGunmetal)}},
    {"Ondo T Boost", Class::Road,    &kCoupe,        {kNavy,   kOrange, Wheel(5, true,  kSilver, kOrange)}},
    {"Varo Boost",   Class::Road,    &kFastback,     {kMist,   kRed,    Wheel(6, true,  kGunmetal, kRed)}},
    {"Sable T",      Class::Road,    &kSaloon,       {kGreen,  kGold,   Wheel(6, true,  kGold, kRed)}},
    {"Wisp 4",       Class::Road,    &kClubRoadster, {kRacing, kYellow, Wheel(4, false, kSilver, kGunmetal)}},
    {"Wisp 6",       Class::Road,    &kClubRoadster, {kOrange, kInk,    Wheel(6, false, kBlackRim, kRed)}},
    {"Tumbler",      Class::Road,    &kSpeedster,    {kTeal,   kTan,    Wheel(10, false, kSilver, kOrange)}},
    {"Corvane",      Class::Road,    &kRearEngined,  {kWine,   kSilver, Wheel(5, true,  kSilver, kYellow)}},
    {"Mote R",       Class::Road,    &kCityCar,      {kRed,    kWhite,  Wheel(8, false, kWhite, kInk), RaceTrim::Sprint}},
    {"Pell R",       Class::Road,    &kHatchback,    {kYellow, kInk,    Wheel(7, true,  kWhite, kRed), RaceTrim::Sprint}},
    {"Gnat 5",       Class::Midget,  nullptr,        {kLime,   kOrange, Wheel(3, true,  kSilver, kGunmetal)}},
    {"Series Ka",    Class::Formula, nullptr,        {kCyan,   kOrange, Wheel(4, true,  kSilver, kInk, kWhite)}},
    {"Series Lo",    Class::Formula, nullptr,        {kRed,    kYellow, Wheel(5, true,  kGold, kInk, kYellow)}},
    {"Series Mu",    Class::Formula, nullptr,        {kSlate,  kCyan,   Wheel(10, false, kBlackRim, kInk, kCyan)}},
    {"Varo R",       Class::Road,    &kFastback,     {kMist,   kRed,    Wheel(6, true,  kGunmetal, kRed, kRed), RaceTrim::WideBody}},
    {"Ondo R",       Class::Road,    &kCoupe,        {kNavy,   kOrange, Wheel(5, true,  kSilver, kOrange, kOrange), RaceTrim::WideBody}},
    {"Corvane R",    Class::Road,    &kRearEngined,  {kWine,   kSilver, Wheel(10, false, kSilver, kYellow, kWhite), RaceTrim::WideBody}},
};
// clang-format on

const Entry* Find(std::string_view name) {
    const auto* const found = std::ranges::find(kEntries, name, &Entry::name);
    return found == std::end(kEntries) ? nullptr : found;
}

double FillOf(const Entry& entry) {
    switch (entry.kind) {
        case Class::Road: return entry.style->fill;
        case Class::Midget: return kMidgetFill;
        case Class::Formula: return kFormulaFill;
    }
    return 1;
}

void PaintCar(QPainter& painter, const Entry& entry, const CarSize& size) {
    switch (entry.kind) {
        case Class::Road: return PaintRoadCar(painter, size, *entry.style, entry.look);
        case Class::Midget: return PaintMidget(painter, size, entry.look);
        case Class::Formula: return PaintFormulaCar(painter, size, entry.look);
    }
}

/// Light ground with a thin line, and a tick on it each metre, by which sizes can be compared.
QImage EmptyGround() {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(kSky);
    QPainter painter(&image);
    painter.fillRect(QRectF(0, kGround, kWidth, kHeight - kGround), kFloor);
    painter.fillRect(QRectF(0, kGround, kWidth, 2), kGroundLine);
    for (int metre = -2; metre <= 2; ++metre) {
        painter.fillRect(QRectF(kWidth / 2.0 + metre * kPixelsPerMetre - 1, kGround, 2, 10), kGroundLine);
    }
    return image;
}

/// Paints in metres with y up, a car of this wheelbase in the middle. Cars overhang more behind than in front.
template <class PaintIt>
QImage Stage(double wheelbase, double shadowFront, double shadowRear, PaintIt&& paintIt) {
    QImage image = EmptyGround();
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(kWidth / 2.0, kGround + 1);
    painter.scale(kPixelsPerMetre, -kPixelsPerMetre);
    painter.translate(-(wheelbase + shadowRear - shadowFront) / 2, 0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(kShadow);
    painter.drawEllipse(QRectF(-shadowFront, -0.075, wheelbase + shadowFront + shadowRear, 0.13));
    paintIt(painter);
    return image;
}

constexpr Corner kSheet[] = {{-.86, .05, .2}, {-.93, .36, .8}, {-.78, .54, .9}, {-.05, .66, 1},  {.26, .72, .7},
                             {.50, 1.0, .8},  {.76, 1.05, 1},  {1.02, .98, .8}, {1.36, .74, .7}, {1.78, .68, .7},
                             {1.86, .40, .7}, {1.80, .05, .2}, {1.5, .10, 1},   {1.22, .04, 1},  {1.0, .13, 1},
                             {.84, .04, 1},   {.66, .09, 1},   {.48, .04, 1},   {.30, .10, 1},   {.12, .04, 1},
                             {0, .13, 1},     {-.30, .04, 1},  {-.60, .10, 1}};

constexpr Corner kFolds[][3] = {{{-.74, .50}, {-.66, .30, 1}, {-.70, .10}}, {{-.10, .64}, {-.22, .36, 1}, {-.16, .10}},
                                {{.25, .70}, {.20, .40, 1}, {.30, .13}},    {{.52, .96}, {.42, .60, 1}, {.48, .10}},
                                {{.80, 1.0}, {.74, .60, 1}, {.84, .10}},    {{1.05, .92}, {1.02, .55, 1}, {1.18, .12}},
                                {{1.36, .72}, {1.34, .40, 1}, {1.48, .14}}, {{1.74, .64}, {1.66, .38, 1}, {1.72, .10}}};

void PaintSheet(QPainter& painter, const CarSize& size) {
    const QColor cloth(0xb7c0c9);
    const Frame frame(size);
    for (const double x : {0.0, size.wheelbase}) {
        PaintWheel(painter, {x, size.frontTyre}, size.frontTyre, size.frontRim, Wheel(5, false, kGunmetal, kInk));
    }
    const QPainterPath sheet = frame.Outline(kSheet);
    painter.fillPath(sheet, cloth);
    painter.save();
    painter.setClipPath(sheet);
    constexpr Corner kShade[] = {{-1, 0}, {-1, .34}, {-.2, .40, 1}, {.5, .30, 1}, {1.3, .40, 1}, {2, .34}, {2, 0}};
    painter.fillPath(frame.Outline(kShade), cloth.darker(107));
    for (const auto& fold : kFolds) {
        painter.strokePath(frame.Line(fold), QPen(cloth.darker(118), 0.022, Qt::SolidLine, Qt::RoundCap));
    }
    painter.restore();
}

}  // namespace

bool HasLook(std::string_view name) { return Find(name) != nullptr; }

QImage PictureOfCar(std::string_view name, const CarFigures& figures) {
    const Entry& entry = *Find(name);
    const CarSize size = SizeOf(figures, FillOf(entry));
    const bool open = entry.kind != Class::Road;
    const double front = (open ? 0.75 : 0.85) * size.overhang, rear = (open ? 0.6 : 0.75) * size.overhang;
    return Stage(size.wheelbase, front, rear, [&](QPainter& painter) { PaintCar(painter, entry, size); });
}

QImage PictureOfUnknown() {
    const CarSize size{
        .wheelbase = 2.45, .frontTyre = 0.31, .rearTyre = 0.31, .frontRim = 0.2, .rearRim = 0.2, .height = 1.28};
    return Stage(size.wheelbase, 0.9, 0.85, [&](QPainter& painter) { PaintSheet(painter, size); });
}

}  // namespace zolv::pictures
