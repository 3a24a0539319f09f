// SPDX-License-Identifier: AGPL-3.0-or-later
// The whole table: one birth worked by hand, the sums of the figures as shown and one lord each
// for the year, month and day over a sweep of births, and the chart casts that a table costs.
#include "ShadBalaCharts.h"

#include "sky/Functions.h"
#include "strength/clsShadBala.h"

namespace {
using Table = ShadBalaChart;

struct Birth
{
    int day, month, year, hour, minutes;
    const char *gmt;
    int latDeg;
    const char *ns;
    int lonDeg;
    const char *ew;
};
// Day and night, before and after noon, midnight east of Greenwich, both hemispheres, east and
// west, before 1900.
inline constexpr std::array<Birth, 8> kBirths{{
    {1, 1, 1950, 0, 0, "5.5", 10, "N", 72, "E"},
    {1, 1, 1990, 5, 10, "5.5", 19, "N", 72, "E"},
    {21, 3, 2001, 23, 50, "5.5", 13, "N", 80, "E"},
    {10, 12, 1965, 9, 0, "1", 51, "N", 0, "W"},
    {29, 2, 1976, 2, 15, "-5", 40, "N", 74, "W"},
    {30, 6, 1950, 12, 0, "10", 33, "S", 151, "E"},
    {5, 11, 1890, 18, 45, "5.5", 22, "N", 88, "E"},
    {7, 7, 2030, 0, 5, "-3", 23, "S", 46, "W"},
}};

double num(const QString &t) { return t.toDouble(); }
} // namespace

TEST_F(Table, TheDelhiBirthWorkedByHand)
{
    // 15 August 1980, 14.35, Delhi 28 N 38, 77 E 12, zone 5.5. Worked from the cast: Lagna
    // 231.87; Sun 119.09, Mercury 107.63, Venus 73.70, Mars 177.57, Jupiter 140.97, Saturn 151.98,
    // Moon 170.04, Rahu 116.27; ayanamsa 23.59; the middles of the 1st, 4th, 7th and 10th bhavas
    // 231.87, 333.55, 51.87, 153.55. A Friday, by day, sunrise 5.56 and sunset 18.56 both days;
    // the year began on a Monday (14 April, 2.35) and the month on a Wednesday (16 July); 29,447.12
    // days since 1900.
    cast();
    clsShadBala sb(chart);
    const auto table = sb.FigureTable();
    const std::array<const char *, clsShadBala::FigureRows> expected{
        // Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon
        "23.64 40.88 34.43 19.86 44.68 43.99 14.32",        // exaltation: 60 - arc / 3
        "146.25 97.50 135.00 112.50 135.00 136.88 138.75",  // seven divisions
        "0.00 15.00 0.00 0.00 30.00 0.00 30.00",            // odd and even sign and navamsha
        "15.00 15.00 30.00 30.00 60.00 30.00 30.00",        // kendra
        "0.00 15.00 0.00 0.00 0.00 0.00 15.00",             // drekkana
        "184.89 183.38 199.43 162.36 269.68 210.87 228.07", // positional
        "48.51 18.59 26.62 51.99 29.70 26.63 5.50",         // direction
        "49.31 60.00 49.31 10.69 49.31 10.69 10.69",        // t = 14.138
        "43.02 16.98 16.98 43.02 16.98 43.02 16.98",        // 50.95 degrees from the Sun
        "60.00 0.00 0.00 0.00 60.00 0.00 0.00",             // the second third of the day
        "0.00 0.00 0.00 0.00 0.00 0.00 15.00",              // Monday
        "0.00 30.00 0.00 0.00 0.00 0.00 0.00",              // Wednesday
        "0.00 0.00 45.00 0.00 0.00 0.00 0.00",              // Friday
        "0.00 60.00 0.00 0.00 0.00 0.00 0.00",              // the ninth hour
        "42.44 46.26 57.57 22.95 35.15 28.52 34.54",        // declination
        "0.00 0.00 0.00 0.00 0.00 0.00 0.00",               // no war
        "194.77 213.24 168.86 76.66 161.44 82.23 77.21",    // temporal
        "42.44 12.22 38.37 26.20 15.62 9.51 16.98",         // motion
        "60.00 25.71 42.86 17.14 34.29 8.57 51.43",         // natural
        "1.92 -0.45 -15.03 0.55 5.15 6.17 3.49",            // aspects
        "532.53 452.69 461.11 334.90 515.88 343.98 382.68", // total
        "8.88 7.54 7.69 5.58 8.60 5.73 6.38",               // Rupas
        "390 420 330 300 390 300 360",
        "165 165 133 96 165 96 133",
        "35 35 50 30 35 30 50",
        "112 112 100 67 112 67 100",
        "50 50 30 40 50 40 30",
        "30 30 40 20 30 20 40",
        "1.37 1.08 1.40 1.12 1.32 1.15 1.06",               // total over the minimum
        "2 6 1 5 3 4 7",                                    // Venus 1.397 ahead of the Sun 1.365
        "Yes Yes Yes Yes Yes Yes Yes",
    };
    for (int r = 0; r < clsShadBala::FigureRows; ++r) {
        QStringList row;
        for (int p = 1; p <= 7; ++p)
            row << table[static_cast<size_t>(p)][static_cast<size_t>(r)];
        EXPECT_EQ(row.join(QLatin1Char(' ')), QLatin1String(expected[static_cast<size_t>(r)])) << clsShadBala::FigureKeys[static_cast<size_t>(r)];
    }
}

TEST_F(Table, SumsOfShownFiguresAndOneLordEach)
{
    using R = clsShadBala::FigureRow;
    for (const Birth &b : kBirths) {
        chart.Person() = MakePerson(b.day, b.month, b.year, b.hour, b.minutes, b.gmt, b.latDeg, 0, b.ns, b.lonDeg, 30, b.ew);
        chart.Calculate();
        const auto table = clsShadBala(chart).FigureTable();
        const std::string at = QStringLiteral("%1/%2/%3").arg(b.day).arg(b.month).arg(b.year).toStdString();
        std::array<int, 3> lords{}; // year, month, day
        for (int p = 1; p <= 7; ++p) {
            const auto &f = table[static_cast<size_t>(p)];
            const auto add = [&](std::initializer_list<int> rows) {
                double s = 0;
                for (int r : rows)
                    s += num(f[static_cast<size_t>(r)]);
                return FormatHalfEven2(s);
            };
            EXPECT_EQ(f[R::RowSthanaTotal], add({R::RowUchcha, R::RowSaptaVarga, R::RowOjaYugma, R::RowKendra, R::RowDrekkana})) << at;
            EXPECT_EQ(f[R::RowKalaTotal], add({R::RowNataUnnata, R::RowPaksha, R::RowTriBhaga, R::RowAbda, R::RowMasa, R::RowVara,
                                               R::RowHora, R::RowAyana, R::RowYuddha}))
                << at;
            EXPECT_EQ(f[R::RowTotal], add({R::RowSthanaTotal, R::RowDik, R::RowKalaTotal, R::RowChesta, R::RowNaisargika, R::RowDrig})) << at;
            EXPECT_EQ(f[R::RowRupa], FormatHalfEven2(num(f[R::RowTotal]) / 60)) << at;
            lords[0] += f[R::RowAbda] == "15.00";
            lords[1] += f[R::RowMasa] == "30.00";
            lords[2] += f[R::RowVara] == "45.00";
        }
        EXPECT_EQ(lords, (std::array<int, 3>{1, 1, 1})) << at;
    }
}

TEST_F(Table, AFullTableCastsOnlyWhatItsSunEventsAndSearchesNeed)
{
    // What the figures need, asked of the chart one by one: sunrise and sunset, the next sunrise
    // (the hours), the night's length for a night birth, the year walk, the month search.
    cast();
    clsPlanets alone;
    alone.Person() = chart.Person();
    alone.Calculate();
    long start = clsPlanets::CalculateCount();
    alone.SunRiseTime();
    alone.SunSetTime();
    alone.NextSunRiseTime();
    if (!alone.DayBirth())
        alone.NightDuration();
    const long sun = clsPlanets::CalculateCount() - start;
    alone.FirstDayOfYear();
    alone.FirstDayOfMonth();
    const long needed = clsPlanets::CalculateCount() - start;

    start = clsPlanets::CalculateCount();
    clsShadBala sb(chart);
    sb.FigureTable();
    EXPECT_EQ(clsPlanets::CalculateCount() - start, needed);
    start = clsPlanets::CalculateCount();
    sb.FigureTable();
    EXPECT_EQ(clsPlanets::CalculateCount() - start, 0) << "a second fill casts nothing";
    clsShadBala(chart).FigureTable();
    EXPECT_EQ(clsPlanets::CalculateCount() - start, needed - sun) << "the chart keeps its sun events";
}
