#include "yardstick.h"

#include <cmath>
#include <cstdint>

namespace yardstick {

// One loop on purpose.
int Run(const Car& c, Row* rows) {  // NOLINT(readability-function-size)
    const double weight = c.Mass * 9.80665;
    const double launch = c.IdleRPM * 2.5;
    const double slope = 0.375 * c.Torque / (c.TorqueRPM - c.IdleRPM);
    const double slip = static_cast<float>(c.TyreSlip + 1);
    double speed = 0, distance = 0, revs = launch, acceleration = 0, timer = 0.4;
    float clutch = 0.5F;
    int gear = 1, last = -1;
    bool slipping = true, shifting = false;
    while (last < 1800) {
        ++last;
        const double q = 0.5 * c.AirDensity * (speed * speed);
        const double bodyLift = q * c.Cl;
        const double undertrayLift = q * c.UndertrayClA;
        const double frontLift = q * c.FrontWingClA;
        const double rearLift = q * c.RearWingClA;
        const double drag = q * c.Cd * c.FrontalArea + q * c.UndertrayCdA + q * c.FrontWingCdA + q * c.RearWingCdA;
        const double lift = bodyLift + undertrayLift + frontLift + rearLift;
        const double rolling = 0.009999999776482582 + 3.6375000316184017e-07 * std::pow(speed, 2.5);
        const double resistance = drag + rolling * (weight - lift);

        const double transfer = acceleration > 0 ? c.Mass * 0.45 * acceleration / c.Wheelbase : 0;
        const auto frontStill = static_cast<float>(
            weight * c.WeightDist - (bodyLift * c.WeightDist + undertrayLift * c.WeightDist +
                                     frontLift * c.FrontWingPosition + rearLift * (1 - c.RearWingPosition)));
        const auto rearStill = static_cast<float>(
            weight * (1 - c.WeightDist) - (bodyLift * (1 - c.WeightDist) + undertrayLift * (1 - c.WeightDist) +
                                           frontLift * (1 - c.FrontWingPosition) + rearLift * c.RearWingPosition));
        const auto front = static_cast<float>(frontStill - transfer);
        const auto rear = static_cast<float>(rearStill + transfer);

        double torque =
            revs <= c.TorqueRPM
                ? slope * (revs - c.IdleRPM) + 0.625 * c.Torque
                : ((c.CurveA * (revs * revs * revs) + c.CurveB * (revs * revs)) + c.CurveC * revs) + c.CurveD;
        if (slipping) torque *= clutch;
        torque = torque * c.Efficiency * c.Ratios[gear] * c.FinalDrive;
        if (shifting) {
            timer -= 0.05;
            torque = 0;
        }
        const double load = c.DrivetrainType == 1 ? rear : front;
        const double squash = load * 0.5 / c.Stiffness;
        const double radius = c.UnloadedRadius - (squash < c.MaxDeformation ? squash : c.MaxDeformation);
        double force = torque / radius;
        const double carried = c.DrivetrainType == 0   ? front
                               : c.DrivetrainType == 1 ? rear
                                                       : static_cast<double>(rear) + front;
        const double grip = static_cast<float>(c.TyreMu * carried);
        if (force > grip) force = grip;
        const double net = force - resistance;
        acceleration = net / c.Mass;
        speed += acceleration * 0.05;
        distance += speed * 0.05;
        rows[last] = {{static_cast<float>(distance), static_cast<float>(speed), static_cast<float>(revs),
                       static_cast<float>(gear), static_cast<float>(force), static_cast<float>(resistance),
                       static_cast<float>(net), static_cast<float>(acceleration), front, rear}};

        const double wheel = speed * 60 / (radius * 2 * 3.141592653589) * slip;
        revs = wheel * c.FinalDrive * c.Ratios[gear];
        slipping = revs < launch;
        if (slipping) {
            clutch = static_cast<float>(0.5 + (revs / launch) / 2);
            revs = launch;
        }
        if (gear < c.NumGears && revs > c.ShiftRevs[gear]) {
            ++gear;
            revs = wheel * c.FinalDrive * c.Ratios[gear];
            shifting = true;
            timer = 0.4;
        }
        if (!shifting && distance > c.LongDistance && net < 5) break;
        if (timer < 0.01) shifting = false;
        if (speed < 0.0001) return last > 1 ? last : 1;
    }
    return last;
}

namespace {

/// Digits of a value times ten to the power of `decimals`, rounded half to even, with trailing zeros of the fraction
/// left out.
char* WriteScaled(double scaled, int decimals, char* out) {
    auto whole = static_cast<std::int64_t>(std::nearbyint(scaled));
    if (whole < 0) {
        *out++ = '-';
        whole = -whole;
    }
    char digits[24];
    int count = 0;
    while (decimals > 0 && whole % 10 == 0) {
        whole /= 10;
        --decimals;
    }
    do {
        digits[count++] = static_cast<char>('0' + whole % 10);
        whole /= 10;
    } while (whole != 0 || count <= decimals);
    while (count > 0) {
        if (count == decimals) *out++ = '.';
        *out++ = digits[--count];
    }
    return out;
}

}  // namespace

char* WriteTable(const Row* rows, int last, const std::vector<Column>& columns, char* out) {
    constexpr double kPowers[] = {1, 10, 100};
    for (int row = 0; row <= last; ++row) {
        for (const Column& column : columns) {
            const double value = column.source < 0 ? row * 0.05 : static_cast<double>(rows[row].values[column.source]);
            out = WriteScaled(value * column.factor * kPowers[column.decimals], column.decimals, out);
            out += column.suffix.copy(out, column.suffix.size());
            *out++ = '\t';
        }
        out[-1] = '\r';
        *out++ = '\n';
    }
    return out;
}

}  // namespace yardstick
