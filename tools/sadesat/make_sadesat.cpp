// SPDX-License-Identifier: AGPL-3.0-or-later
// Writes the tables of Saturn's sign entries, 1900 to 2100, that the Sade Sati page reads: one
// TSV a table, each under the ayanamsa of its family, computed by the program's own chart from
// Swiss Ephemeris so that the page and the chart never disagree about Saturn's sign.
//
//   orbanta_make_sadesat <out-folder>      (writes LEPH.tsv, BEPH.tsv, KEPH.tsv, SEPH.tsv)
//
// Saturn is looked at each day at 12:00 universal time. The entry date of a row is the first
// such noon with Saturn in the new sign, its `val` Saturn's longitude then, and its exit the entry
// date of the next row (the last row's exit falls after 2100); a retrograde return into the sign before is a row of its own.
#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <cstdio>
#include <vector>

namespace {
constexpr int kSaturn = 6;

struct Entry
{
    int sign;
    QDate date;
    double longitude;
};

// Saturn's sidereal longitude at 12:00 UT of day d, under the chart's current ayanamsa.
double saturnAt(clsPlanets &chart, const QDate &d)
{
    clsPerson p;
    p.setName(QStringLiteral("Greenwich"));
    p.setDay(d.day());
    p.setMonth(d.month());
    p.setYear(d.year());
    p.setHour(12);
    p.setMinutes(0);
    p.setGMTDIFF(QStringLiteral("0"));
    p.setLatDeg(51);
    p.setLatMT(28);
    p.setTextNS(QStringLiteral("N"));
    p.setLongDeg(0);
    p.setLongMT(0);
    p.setTextEW(QStringLiteral("E"));
    chart.setPerson(p);
    chart.Calculate();
    return chart.PlanetLongi(kSaturn);
}

std::vector<Entry> entries(int ayanType)
{
    AppSettings::overrideForRun(QStringLiteral("Init"), QStringLiteral("AyanType"), ayanType);
    clsPlanets chart;
    std::vector<Entry> out;
    // Past the last year only to find the exit of the last entry: Saturn stays under three years
    // in a sign.
    const QDate first(1900, 1, 1), last(2100, 12, 31), beyond(2104, 12, 31);
    int sign = 0;
    for (QDate d = first; d <= beyond; d = d.addDays(1)) {
        const double l = saturnAt(chart, d);
        const int s = static_cast<int>(Fix(l / 30)) + 1;
        if (s != sign) {
            // The sign Saturn stands in on the first day is where the table starts, not an entry.
            if (sign != 0)
                out.push_back({s, d, l});
            if (d > last)
                break;
            sign = s;
        }
    }
    return out;
}

bool write(const QString &path, const std::vector<Entry> &rows)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    QTextStream out(&f);
    out << "RASHI\tdt\tval\texitDT\n";
    // The last entry found lies past the table's end and only gives the exit of the one before.
    for (size_t i = 0; i + 1 < rows.size(); ++i) {
        const Entry &e = rows[i];
        const QString exit = rows[i + 1].date.toString(QStringLiteral("yyyyMMdd"));
        out << e.sign << '\t' << e.date.toString(QStringLiteral("yyyyMMdd")) << '\t'
            << QString::number(e.longitude, 'f', 6) << '\t' << exit << '\n';
    }
    return f.error() == QFile::NoError;
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: orbanta_make_sadesat <out-folder>\n");
        return 2;
    }
    // Never touch the user's settings: the ayanamsa is overridden in a store of our own.
    QTemporaryDir scratch;
    AppSettings::setStoreFile(scratch.filePath(QStringLiteral("settings.ini")));
    const struct
    {
        const char *table;
        int ayanType;
    } kTables[] = {{"LEPH", 1}, {"BEPH", 2}, {"KEPH", 3}, {"SEPH", 12}};
    for (const auto &t : kTables) {
        const QString path = QString::fromLocal8Bit(argv[1]) + QLatin1Char('/') + QLatin1String(t.table) + QStringLiteral(".tsv");
        const std::vector<Entry> rows = entries(t.ayanType);
        if (!write(path, rows)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
            return 1;
        }
        std::printf("%s: %zu entries\n", t.table, rows.size());
    }
    return 0;
}
