#include "model/catalogue.h"

namespace zolv {
namespace {

/// One view of the cars: some of their fields, a column each, and a row for each car.
template <std::size_t Columns>
struct View {
    std::array<CarField, Columns> columns;
    struct Row {
        std::string_view name;
        std::array<float, Columns> figures;
    };
    std::array<Row, kCars> rows;
};

using enum CarField;

// clang-format off
constexpr View<9> kEngineAndDrivetrain{
    {{                    Power, PowerRPM, Torque, TorqueRPM, IdleRPM, DrivetrainType, NumGears, Efficiency,  Reverse}},
    {{
        {"Mote 900",    {    41,     5589,     88,      3009,    1000,              0,        4,        0.8F,      5.7F}},
        {"Pell S",      {    86,     7033,    130,      5456,    1000,              0,        5,        0.8F,      7.5F}},
        {"Ondo T",      { 104.5F,     6017,  186.4F,      4531,    1000,              1,        5,       0.82F,      3.6F}},
        {"Ondo T Boost",{ 183.4F,     6021,    345,      3920,    1000,              1,        5,       0.78F,      3.6F}},
        {"Varo Boost",  { 174.5F,     6365,    305,      4338,    1000,              0,        5,       0.82F,      3.5F}},
        {"Sable T",     {   181,     6021,    340,      3886,    1000,              2,        5,       0.75F,      5.6F}},
        {"Wisp 4",      { 104.6F,     8212,    131,      6917,    1000,              1,        6,       0.83F,     3.35F}},
        {"Wisp 6",      {   142,     8429,    173,      7059,    1000,              1,        6,       0.79F,      3.6F}},
        {"Tumbler",     {   183,     5879,    360,      3500,    1000,              1,        5,        0.8F,      3.5F}},
        {"Corvane",     {   269,     7588,    392,      5019,    1000,              1,        6,        0.8F,      3.8F}},
        {"Mote R",      {   134,     8246,    178,      5870,    1500,              0,        5,       0.82F,      5.7F}},
        {"Pell R",      {   172,     7203,    260,      5139,    1500,              0,        6,        0.8F,        6}},
        {"Gnat 5",      {    48,     7894,     69,      5071,    1000,              1,        6,       0.78F,        1}},
        {"Series Ka",   {   142,     7047,    221,      4983,    2000,              1,        6,       0.87F,        4}},
        {"Series Lo",   {   335,     9063,    385,      7424,    2000,              1,        6,       0.88F,        4}},
        {"Series Mu",   {   537,    19076,    284,     16817,    3500,              1,        6,        0.9F,        4}},
        {"Varo R",      {   365,     6278,    627,      4782,    1500,              2,        6,       0.78F,      3.5F}},
        {"Ondo R",      {   365,     6278,    627,      4782,    1500,              1,        6,       0.87F,        4}},
        {"Corvane R",   {   365,     8106,    503,      5267,    1500,              1,        6,       0.87F,      3.7F}},
    }}};

constexpr View<9> kMassAndBody{
    {{                    Mass, UnsprungMass, WeightDist,     Cd, Cl, FrontalArea, Wheelbase, FTrack,  RTrack}},
    {{
        {"Mote 900",    {  683,       34.857F,      0.573F,    0.4F,  0,         1.3F,      2.02F,   1.25F,    1.22F}},
        {"Pell S",      { 1027,       50.573F,      0.561F,   0.35F,  0,        1.83F,     2.333F,   1.38F,    1.36F}},
        {"Ondo T",      { 1244,       60.123F,      0.505F,   0.38F,  0,        1.84F,     2.453F,   1.56F,    1.55F}},
        {"Ondo T Boost",{ 1320,       67.687F,      0.504F,   0.38F,  0,        1.84F,     2.453F,  1.605F,     1.6F}},
        {"Varo Boost",  { 1237,        64.46F,      0.555F,   0.35F,  0,        2.01F,      2.62F,  1.605F,   1.605F}},
        {"Sable T",     { 1325,       61.063F,      0.543F,   0.35F,  0,           2,     2.541F,  1.605F,   1.595F}},
        {"Wisp 4",      {  584,       51.797F,      0.426F,   0.45F,  0,        1.47F,      2.34F,   1.35F,    1.35F}},
        {"Wisp 6",      {  624,        57.93F,      0.444F,   0.45F,  0,        1.47F,      2.34F,  1.367F,   1.367F}},
        {"Tumbler",     {  885,       63.773F,      0.408F,   0.34F,  0,        1.88F,     2.374F,   1.44F,    1.44F}},
        {"Corvane",     { 1483,       74.665F,      0.398F,   0.34F,  0,        1.94F,     2.373F,    1.5F,    1.52F}},
        {"Mote R",      {  692,       41.252F,      0.604F,    0.4F,  0,         1.4F,      2.02F,   1.42F,    1.37F}},
        {"Pell R",      {  936,       54.615F,      0.582F,   0.35F,  0,        1.83F,     2.333F,   1.45F,    1.44F}},
        {"Gnat 5",      {  298,        40.69F,      0.438F,    0.4F,  0,       1.225F,     1.769F,  1.149F,   1.124F}},
        {"Series Ka",   {  574,       59.321F,      0.471F, 0.2213F,  0,         1.5F,     2.645F,   1.44F,    1.32F}},
        {"Series Lo",   {  717,       79.198F,       0.47F, 0.2594F,  0,         1.6F,         3,    1.5F,    1.39F}},
        {"Series Mu",   {  636,        81.47F,      0.477F,  0.259F,  0,         1.6F,      3.11F,   1.47F,    1.41F}},
        {"Varo R",      { 1227,       94.113F,      0.559F, 0.2767F,  0,         1.8F,      2.62F,   1.55F,     1.6F}},
        {"Ondo R",      { 1207,        94.13F,      0.525F, 0.2767F,  0,         1.8F,     2.453F,   1.58F,    1.58F}},
        {"Corvane R",   { 1207,       91.309F,      0.386F, 0.2767F,  0,         1.8F,     2.373F,   1.56F,    1.61F}},
    }}};

constexpr View<6> kWheelsAndTyres{
    {{                    FTW,  FTP, FWS, RTW,  RTP,  RWS}},
    {{
        {"Mote 900",    { 160,  0.5F,  12, 160,  0.5F,   12}},
        {"Pell S",      { 185,  0.5F,  15, 185,  0.5F,   15}},
        {"Ondo T",      { 185, 0.55F,  16, 220,  0.5F,   16}},
        {"Ondo T Boost",{ 225, 0.45F,  17, 245,  0.4F,   17}},
        {"Varo Boost",  { 240, 0.35F,  17, 240, 0.35F,   17}},
        {"Sable T",     { 215,  0.4F,  17, 215,  0.4F,   17}},
        {"Wisp 4",      { 195,  0.6F,  13, 205, 0.55F,   13}},
        {"Wisp 6",      { 205,  0.5F,  15, 235, 0.45F,   15}},
        {"Tumbler",     { 205, 0.45F,  17, 225, 0.45F,   17}},
        {"Corvane",     { 235,  0.4F,  18, 295,  0.3F,   18}},
        {"Mote R",      { 215, 0.45F,  11, 215, 0.45F,   11}},
        {"Pell R",      { 215, 0.35F,  16, 215, 0.35F,   16}},
        {"Gnat 5",      { 178,  0.5F,  13, 178,  0.5F,   13}},
        {"Series Ka",   { 225,  0.5F,  13, 285, 0.45F,   13}},
        {"Series Lo",   { 275, 0.55F,  13, 390,  0.4F,   13}},
        {"Series Mu",   { 335, 0.45F,  13, 375,  0.4F,   13}},
        {"Varo R",      { 335, 0.35F,  18, 335, 0.35F,   18}},
        {"Ondo R",      { 335,  0.3F,  19, 335, 0.35F,   18}},
        {"Corvane R",   { 300, 0.35F,  18, 370,  0.3F,   18}},
    }}};

constexpr View<7> kPressuresAndFittings{
    {{                    FMinPressure, FMaxPressure, RMinPressure, RMaxPressure, UndertrayType, FrontWingType,  RearWingType}},
    {{
        {"Mote 900",    {          102,          304,           91,          273,             0,             0,             0}},
        {"Pell S",      {          126,          380,          106,          320,             0,             0,             0}},
        {"Ondo T",      {          122,          364,          112,          334,             0,             0,             0}},
        {"Ondo T Boost",{          126,          380,          137,          411,             0,             0,             0}},
        {"Varo Boost",  {          112,          334,          112,          334,             0,             0,             0}},
        {"Sable T",     {          112,          334,          112,          334,             0,             0,             0}},
        {"Wisp 4",      {           81,          243,           81,          243,             0,             0,             0}},
        {"Wisp 6",      {           76,          228,           76,          228,             0,             0,             0}},
        {"Tumbler",     {          112,          334,          112,          334,             0,             0,             0}},
        {"Corvane",     {          116,          350,          137,          411,             0,             0,             0}},
        {"Mote R",      {           86,          258,           56,          168,             0,             0,             0}},
        {"Pell R",      {          102,          304,           76,          228,             0,             0,             0}},
        {"Gnat 5",      {           50,          152,           50,          152,             0,             0,             0}},
        {"Series Ka",   {           64,          190,           56,          168,             1,             1,             1}},
        {"Series Lo",   {           71,          213,           58,          176,             2,             2,             2}},
        {"Series Mu",   {           60,          180,           60,          180,             3,             4,             3}},
        {"Varo R",      {           81,          243,           81,          243,             2,             3,             2}},
        {"Ondo R",      {           81,          243,           81,          243,             2,             3,             2}},
        {"Corvane R",   {           71,          213,           81,          243,             2,             3,             2}},
    }}};

// clang-format on

template <std::size_t Columns>
constexpr void Enter(std::array<CatalogueCar, kCars>& cars, const View<Columns>& view) {
    for (std::size_t car = 0; car < kCars; ++car) {
        cars[car].name = view.rows[car].name;
        for (std::size_t i = 0; i < Columns; ++i) {
            cars[car].figures[static_cast<std::size_t>(view.columns[i])] = view.rows[car].figures[i];
        }
    }
}

template <std::size_t A, std::size_t B>
constexpr bool SameNames(const View<A>& a, const View<B>& b) {
    for (std::size_t car = 0; car < kCars; ++car) {
        if (a.rows[car].name != b.rows[car].name) return false;
    }
    return true;
}
static_assert(SameNames(kEngineAndDrivetrain, kMassAndBody));
static_assert(SameNames(kEngineAndDrivetrain, kWheelsAndTyres));
static_assert(SameNames(kEngineAndDrivetrain, kPressuresAndFittings));

constexpr std::array<CatalogueCar, kCars> AllViews() {
    std::array<CatalogueCar, kCars> cars{};
    Enter(cars, kEngineAndDrivetrain);
    Enter(cars, kMassAndBody);
    Enter(cars, kWheelsAndTyres);
    Enter(cars, kPressuresAndFittings);
    return cars;
}

constexpr std::array<CatalogueCar, kCars> kCatalogue = AllViews();

}  // namespace

const std::array<CatalogueCar, kCars>& Catalogue() { return kCatalogue; }

}  // namespace zolv
