// SPDX-License-Identifier: AGPL-3.0-or-later
// Writes CONYEAR.DAT: for each age 0..99 the offset by which the year of that age begins after
// the birth's weekday and clock. The offset is the age times a year of 365.2564 days, less whole
// weeks: "<age>[YEAR]<days of the whole offset>,<days>,<hours>,<minutes>,<seconds>[/YEAR]".
//
//   orbanta_conyear <out-file>
//
// The arithmetic runs in whole units of a ten-thousandth of a day (8.64 seconds), so every field
// is exact: the seconds are written with two decimals.
#include <cstdio>
#include <fstream>
#include <iostream>

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::cerr << "usage: orbanta_conyear <out-file>\n";
        return 2;
    }
    std::ofstream out(argv[1], std::ios::binary);
    if (!out) {
        std::cerr << "cannot write " << argv[1] << '\n';
        return 1;
    }
    constexpr long long kYear = 3652564;  // 365.2564 days in ten-thousandths
    constexpr long long kWeek = 70000;    // 7 days in ten-thousandths
    constexpr long long kDayCs = 8640000; // hundredths of a second in a day
    for (int age = 0; age <= 99; ++age) {
        const long long total = age * kYear;
        const long long cs = total % kWeek * 864; // ten-thousandths of a day to hundredths of a second
        const long long days = cs / kDayCs;
        const long long hours = cs % kDayCs / 360000;
        const long long minutes = cs % 360000 / 6000;
        const long long centis = cs % 6000;
        char line[128];
        std::snprintf(line, sizeof line, "%d[YEAR]%lld.%04lld,%lld,%lld,%lld,%lld.%02lld[/YEAR]\n", age, total / 10000, total % 10000,
                      days, hours, minutes, centis / 100, centis % 100);
        out << line;
    }
    return out ? 0 : 1;
}
