#!/usr/bin/env python3
"""How good are the times of the acceleration run? Drives every built-in car twice, in the program's steps of 0.05 s and
in steps of a twentieth of that, and compares the times to the targets.

Usage: tools/accuracy/run_accuracy.py [--cars]    a summary; with --cars a line for each car, too

It is a calculation of its own: it shares no code with Zolv and reads nothing of it but the figures of the cars, from
src/model/catalogue.cpp. Set-up: the gears of a start of the program, Road Super, 175 kPa where the car can have it, wings
at 7 and 14 degrees. Speed targets 15 to 75 m/s, distances 500 and 1000 m.

Three times for each target: the table's (the time of the first row beyond it; row 0, the state after the first step,
reads 0 s), the same interpolated between two rows and counted from the start, and that of the fine steps.
    step     interpolated less fine: what the length of the steps does
    rows     table less interpolated: what reading whole rows, and the 0 s of row 0, do
    in all   table less fine
"""
import math
import re
import sys
from pathlib import Path

PI = 3.141592653589
G = 9.80665
INCHES_PER_CM = 0.393900787
AIR = 101325 / 84148.70574798585
RATIOS = [3.5, 2.4, 1.7, 1.35, 1.15, 1.0]
FINAL_DRIVE = 4.0
MU = 1.25
PRESSURE = 175
WING_ANGLES = 7, 14
SPEEDS = [15, 30, 45, 60, 75]
DISTANCES = [500, 1000]
STEP = 0.05
SECONDS = 90.05

# drag, lift, share of the lift on its own axle
UNDERTRAYS = [(0, 0), (0.199, -1.196), (0.266, -1.595), (0.266, -1.595)]
# drag: base, by angle squared; lift: base, by angle; position
FRONT_WINGS = [(0, 0, 0, 0, 1), (0.04, 0.000428, -0.12, -0.04329, 1.1), (0.0532, 0.00057, -0.1595, -0.0578, 1.1),
               (0.0332, 0.000358, -0.0997, -0.03615, 1.05), (0.0365, 0.0003955, -0.1827, -0.0662, 1.1)]
REAR_WINGS = [(0, 0, 0, 0, 1), (0.035, 0.000365, -0.1047, -0.0379, 1.1), (0.047, 0.00049, -0.1395, -0.05055, 1.1),
              (0.0249, 0.00026, -0.1246, -0.04515, 1.11)]


def read_cars():
    """The four tables of the catalogue, joined by the names of the cars."""
    text = (Path(__file__).parents[2] / "src/model/catalogue.cpp").read_text("utf-8")
    cars = {}
    for table in re.split(r"constexpr View<\d+>", text)[1:]:
        columns = re.search(r"\{\{([^{}]*)\}\}", table)[1].replace(" ", "").split(",")
        for name, figures in re.findall(r'\{"([^"]+)",\s*\{([^}]*)\}', table):
            values = [float(figure.strip().rstrip("F")) for figure in figures.split(",")]
            cars.setdefault(name, {}).update(zip(columns, values, strict=True))
    return cars


def wing(row, angle):
    base, square, lift, slope, position = row
    return base + square * angle**2, (1 - 0.000193 * angle**2) * slope * angle + lift, position


class Car:
    def __init__(self, figures):
        self.__dict__.update(figures)
        self.gears = int(self.NumGears)
        self.rear = self.DrivetrainType == 1
        self.undertray = UNDERTRAYS[int(self.UndertrayType)]
        self.front_wing = wing(FRONT_WINGS[int(self.FrontWingType)], WING_ANGLES[0])
        self.rear_wing = wing(REAR_WINGS[int(self.RearWingType)], WING_ANGLES[1])
        width, profile, rim = (self.RTW, self.RTP, self.RWS) if self.rear else (self.FTW, self.FTP, self.FWS)
        low, high = (self.RMinPressure, self.RMaxPressure) if self.rear else (self.FMinPressure, self.FMaxPressure)
        self.radius = (rim / INCHES_PER_CM + width * profile / 5) / 200
        self.wall = self.radius - rim / 2 / INCHES_PER_CM / 100
        self.stiffness = (100 + 2.5 * min(max(PRESSURE, low), high)) * 1000
        self.curve = self.fit()
        self.shifts = [self.PowerRPM * (low / high) ** 0.44 for low, high in zip(RATIOS, RATIOS[1:])]

    def fit(self):
        """The cubic above peak torque: slope 0 there, and two slopes around peak power."""
        nt, np = self.TorqueRPM, self.PowerRPM
        n2 = np * 1.012
        tp, t2 = self.Power / np * 9552, self.Power * 0.9985 / n2 * 9552
        chord = (t2 - tp) / (n2 - np)
        slope = 1.09
        for _ in range(100):
            # 3 a N^2 + 2 b N + c is 0 at nt, chord at np, slope * chord at n2
            a1, b1, a2, b2 = 3 * (np**2 - nt**2), 2 * (np - nt), 3 * (n2**2 - nt**2), 2 * (n2 - nt)
            a = (slope * chord * b1 - chord * b2) / (a2 * b1 - a1 * b2)
            b = (chord - a1 * a) / b1
            c = chord - 3 * np**2 * a - 2 * np * b
            d = self.Torque - nt**3 * a - nt**2 * b - nt * c
            error = (1 - (a * np**3 + b * np**2 + c * np + d) * np / 9552 / self.Power) * 100
            if abs(error) <= 0.1:
                break
            slope += 0.00025 if error > 0 else -0.0025
        return a, b, c, d

    def torque(self, revs):
        if revs <= self.TorqueRPM:
            share = (revs - self.IdleRPM) / (self.TorqueRPM - self.IdleRPM)
            return self.Torque * (0.625 + 0.375 * share)
        a, b, c, d = self.curve
        return ((a * revs + b) * revs + c) * revs + d

    def road(self, speed):
        """Loads on the axles without acceleration, and the resistance."""
        q = AIR / 2 * speed**2
        share = self.WeightDist
        tray, front, rear = self.undertray[1] * q, self.front_wing[1] * q, self.rear_wing[1] * q
        weight = self.Mass * G
        on_front = weight * share - (tray * share + front * self.front_wing[2] + rear * (1 - self.rear_wing[2]))
        on_rear = weight - (tray + front + rear) - on_front
        drag = q * (self.Cd * self.FrontalArea + self.undertray[0] + self.front_wing[0] + self.rear_wing[0])
        return on_front, on_rear, drag + (0.01 + 3.6375e-7 * speed**2.5) * (on_front + on_rear)


def drive(car, step):
    """Distance and speed at the end of each step."""
    speed = distance = acceleration = 0.0
    gear, shifting, slipping, share = 0, 0.0, True, 0.5
    launch = revs = car.IdleRPM * 2.5
    rows = []
    while len(rows) * step < SECONDS - step / 2:
        on_front, on_rear, resistance = car.road(speed)
        moved = car.Mass * 0.45 * max(acceleration, 0) / car.Wheelbase
        on_front, on_rear = on_front - moved, on_rear + moved
        load = on_rear if car.rear else on_front
        grip = MU * (on_front + on_rear if car.DrivetrainType == 2 else load)
        radius = car.radius - min(load / 2 / car.stiffness, car.wall)
        torque = 0.0
        if shifting > 0:
            shifting -= step
        else:
            torque = car.torque(revs) * (share if slipping else 1) * car.Efficiency * RATIOS[gear] * FINAL_DRIVE
        force = min(torque / radius, grip)
        acceleration = (force - resistance) / car.Mass
        speed += acceleration * step
        distance += speed * step
        rows.append((distance, speed))
        if distance > DISTANCES[-1] and shifting <= step / 2 and force - resistance < 5 or speed < 1e-4:
            break
        turns = speed * 60 / (2 * PI * radius) * 1.01 * FINAL_DRIVE
        if shifting < step / 2:
            shifting = 0.0
        revs = turns * RATIOS[gear]
        slipping = revs < launch
        if slipping:
            share, revs = 0.5 + revs / launch / 2, launch
        if gear + 1 < car.gears and revs > car.shifts[gear]:
            gear, shifting = gear + 1, 0.4
            revs = turns * RATIOS[gear]
    return rows


def passing(rows, column, target, step):
    """The table's time, and the time interpolated and counted from the start; None for a target that is not passed."""
    before = 0.0
    for index, row in enumerate(rows):
        if row[column] > target:
            return index * step, (index + (target - before) / (row[column] - before)) * step
        before = row[column]
    return None


def compare(car):
    """[(target, table, interpolated, fine)]"""
    coarse, fine = drive(car, STEP), drive(car, STEP / 20)
    times = []
    for column, targets, unit in ((1, SPEEDS, "m/s"), (0, DISTANCES, "m")):
        for target in targets:
            read, exact = passing(coarse, column, target, STEP), passing(fine, column, target, STEP / 20)
            if read and exact:
                times.append((f"0-{target} {unit}", *read, exact[1]))
    return times


def largest(values):
    return max(values, key=abs)


def main():
    by_target = {}
    for name, figures in read_cars().items():
        times = compare(Car(figures))
        for target, *rest in times:
            by_target.setdefault(target, []).append(rest)
        if "--cars" in sys.argv[1:]:
            shown = "  ".join(f"{target}: {table:.2f} {between:.3f} {fine:.3f}" for target, table, between, fine in times)
            print(f"{name:14}{shown}")
    print(f"{'target':12}{'cars':>6}{'step':>9}{'rows':>9}{'in all':>9}   largest difference [s]")
    for target, times in by_target.items():
        step = largest(between - fine for _, between, fine in times)
        rows = largest(table - between for table, between, _ in times)
        total = largest(table - fine for table, _, fine in times)
        print(f"{target:12}{len(times):>6}{step:>9.3f}{rows:>9.3f}{total:>9.3f}")


if __name__ == "__main__":
    main()
