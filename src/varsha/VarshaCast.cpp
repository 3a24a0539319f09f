// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/VarshaCast.h"

#include "sky/clsGochara.h"
#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "text/TextDB.h"

#include <QFile>
#include <QStringList>

#include <cmath>

double ConvertDHMSToMM(double d, double h, double m, double s) { return d * 1440 + h * 60 + m + s / 60; }

QString ConvertMMToDHMS(double minutes)
{
    long days = 0;
    if (minutes > 1440) {
        while (minutes >= 1440) {
            minutes -= 1440;
            ++days;
        }
    }
    if (days > 7)
        days -= 7;
    long hours = 0;
    if (minutes > 60) {
        while (minutes >= 60) {
            minutes -= 60;
            ++hours;
        }
    }
    const double minute = Fix(minutes);
    const auto second = static_cast<float>((minutes - minute) * 60);
    return QStringLiteral("%1:%2:%3:%4").arg(days).arg(hours).arg(static_cast<long>(minute)).arg(NumText(second));
}

std::optional<YearOffset> ParseConyear(const QString &text, int age)
{
    const QString open = QString::number(age) + QStringLiteral("[YEAR]");
    const qsizetype at = text.indexOf(open);
    if (at < 0)
        return std::nullopt;
    const qsizetype from = at + open.size();
    const qsizetype end = text.indexOf(QStringLiteral("[/YEAR]"), from);
    if (end < 0)
        return std::nullopt;
    const QStringList fields = text.mid(from, end - from).split(QLatin1Char(','));
    if (fields.size() != 5)
        return std::nullopt;
    std::array<double, 4> v{};
    for (size_t i = 0; i < v.size(); ++i) {
        bool ok = false;
        v[i] = fields[static_cast<qsizetype>(i) + 1].trimmed().toDouble(&ok);
        if (!ok)
            return std::nullopt;
    }
    return YearOffset{v[0], v[1], v[2], v[3]};
}

QString ConyearPath() { return StuffFolder() + QStringLiteral("/COMMON/CONYEAR.DAT"); }

std::optional<YearOffset> ReadConyear(int age)
{
    QFile f(ConyearPath());
    if (!f.open(QIODevice::ReadOnly))
        return std::nullopt;
    return ParseConyear(QString::fromLatin1(f.readAll()), age);
}

bool ExactReturnSetting() { return AppSettings::value(QStringLiteral("Settings"), QStringLiteral("ExactReturn"), false).toBool(); }

namespace {

// The fields of the birth person that the annual person keeps: name, place, zone and sex.
void copyPerson(const clsPerson &from, clsPerson &to)
{
    to.setName(from.Name());
    to.setDay(from.Day());
    to.setMonth(from.Month());
    to.setYear(from.Year());
    to.setHour(from.Hour());
    to.setMinutes(from.Minutes());
    to.setSeconds(from.seconds());
    to.setAMPM(from.AMPM());
    to.setPLOB(from.PLOB());
    to.setSex(from.Sex());
    to.setCountry(from.Country());
    to.setGMTDIFF(from.GMTDIFF());
    to.setLatDeg(from.LatDeg());
    to.setLongDeg(from.LongDeg());
    to.setLongMT(from.LongMT());
    to.setLatMT(from.LatMT());
    to.setTextNS(from.TextNS());
    to.setTextEW(from.TextEW());
}

} // namespace

AnnualCastResult CastAnnualChart(const clsPlanets &birth, int age, bool exactReturn)
{
    AnnualCastResult r;
    if (age < 0 || age > 99) {
        r.error = QStringLiteral("The annual chart covers the birth year and the 99 years after it.");
        return r;
    }
    const std::optional<YearOffset> offset = ReadConyear(age);
    if (!offset) {
        r.error = QStringLiteral("The year offset of age %1 is missing from %2.").arg(age).arg(ConyearPath());
        return r;
    }
    const clsPerson &born = birth.Person();
    auto chart = std::make_unique<clsPlanets>();
    chart->setTextDB(birth.GetTxtDB(), QSqlDatabase());
    chart->setRahuKetuMode(birth.RahuKetuMode());
    clsPerson &p = chart->Person();
    copyPerson(born, p);

    // The birth's weekday and clock, moved on by the year's offset.
    const double start = ConvertDHMSToMM(born.WeekDayOfBirth(), born.Hour(), born.Minutes(), born.seconds());
    const double moved = start + ConvertDHMSToMM(offset->days, offset->hours, offset->minutes, offset->seconds);
    const QStringList dhms = ConvertMMToDHMS(moved).split(QLatin1Char(':'));
    const int day = dhms[0].toInt();

    // The anniversary, moved by at most one day towards that weekday.
    QDate date = QDate(static_cast<int>(born.Year()), static_cast<int>(born.Month()), static_cast<int>(born.Day())).addYears(age);
    const int weekday = date.dayOfWeek() % 7 + 1;
    if (weekday > day)
        date = date.addDays(-1);
    else if (weekday < day)
        date = date.addDays(1);
    p.setDay(date.day());
    p.setMonth(date.month());
    p.setYear(date.year());
    p.setHour(dhms[1].toDouble());
    p.setMinutes(dhms[2].toDouble());
    p.setSeconds(dhms[3].toDouble());
    p.setAMPM(p.Hour() >= 12 ? 2 : 1);
    chart->Calculate();

    if (exactReturn) {
        // The time search from the traditional moment, which lies within a day or two of the return.
        clsGochara search;
        std::unique_ptr<clsPlanets> back = search.Gochara(1, birth.PlanetLongi(1), 0.3, *chart);
        if (back) {
            back->setTextDB(birth.GetTxtDB(), QSqlDatabase());
            clsPerson &q = back->Person();
            q.setSex(born.Sex());
            q.setCountry(born.Country());
            q.setAMPM(q.Hour() >= 12 ? 2 : 1);
            chart = std::move(back);
        }
    }
    r.chart = std::move(chart);
    return r;
}
