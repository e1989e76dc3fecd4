#pragma once

#include <string>
#include <vector>

/// The acceleration run and its table as one flat loop each, without any structure: what the program's own are measured
/// against. Nothing but the benchmarks uses them.
namespace yardstick {

/// Everything that a run reads, as plain numbers in base units.
struct Car {
    double Mass, Wheelbase, WeightDist, Cd, FrontalArea, Cl, AirDensity;
    double UndertrayClA, UndertrayCdA;
    double FrontWingClA, FrontWingCdA, FrontWingPosition;
    double RearWingClA, RearWingCdA, RearWingPosition;
    double Torque, TorqueRPM, IdleRPM, CurveA, CurveB, CurveC, CurveD;
    double Efficiency, FinalDrive, TyreMu, TyreSlip;
    double Ratios[7], ShiftRevs[7];
    double UnloadedRadius, Stiffness, MaxDeformation;  // of the driven tyres
    int NumGears, DrivetrainType;
    double LongDistance;
};

struct Row {
    float values[10];
};

/// @param rows  1801 of them
/// @return the last row written
int Run(const Car& car, Row* rows);

/// One column of the table. Decimals are 0 to 2.
struct Column {
    int source;  // of the row's values; -1 is time
    double factor;
    int decimals;
    std::string suffix;
};

/// The rows as text, without the heading.
/// @param out  room for the whole table
/// @return the end of the text
char* WriteTable(const Row* rows, int last, const std::vector<Column>& columns, char* out);

}  // namespace yardstick
