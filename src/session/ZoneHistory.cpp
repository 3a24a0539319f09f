// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ZoneHistory.h"

#include "sky/Functions.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

constexpr qint64 DaySeconds = 86400;
// How far around a moment the zone's periods are read when its standard offset is judged:
// longer than any stretch of summer time kept through the winter (1968-71 in Britain).
constexpr qint64 HistoryWindow = 6 * 366 * DaySeconds;

// Zones outside Europe/ whose summer time is the European "Summer Time".
inline constexpr std::array<std::string_view, 7> EuropeanSummerZones = {
    "Atlantic/Azores",     "Atlantic/Canary", "Atlantic/Faroe", "Atlantic/Madeira",
    "Arctic/Longyearbyen", "Asia/Nicosia",    "Asia/Famagusta",
};
static_assert(EuropeanSummerZones.size() == 7);

// The Second World War, whose clock changes are called war time.
const QDate WarTimeFrom(1939, 9, 1);
const QDate WarTimeTo(1945, 12, 31);

// A stretch of time with one clock offset and one daylight flag.
struct Period
{
    qint64 start; // seconds since the epoch, UTC
    int total;    // clock offset from Greenwich
    int daylight; // the tz database's daylight amount: 0 standard, < 0 winter flagged as daylight
    QString abbreviation;
};

QDateTime utcAt(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
}

// The periods of the zone from `from` to `to`; the first starts at `from`.
std::vector<Period> periodsBetween(const QTimeZone &zone, qint64 from, qint64 to)
{
    std::vector<Period> periods;
    const QTimeZone::OffsetData first = zone.offsetData(utcAt(from));
    periods.push_back({from, first.offsetFromUtc, first.daylightTimeOffset, first.abbreviation});
    for (const QTimeZone::OffsetData &t : zone.transitions(utcAt(from), utcAt(to))) {
        const qint64 at = t.atUtc.toSecsSinceEpoch();
        const Period &last = periods.back();
        if (at <= last.start)
            continue;
        if (t.offsetFromUtc == last.total && t.daylightTimeOffset == last.daylight && t.abbreviation == last.abbreviation)
            continue;
        periods.push_back({at, t.offsetFromUtc, t.daylightTimeOffset, t.abbreviation});
    }
    return periods;
}

// Index of the period holding the instant.
size_t periodIndex(const std::vector<Period> &periods, qint64 instant)
{
    const auto after =
        std::upper_bound(periods.begin(), periods.end(), instant, [](qint64 t, const Period &p) { return t < p.start; });
    return after == periods.begin() ? 0 : size_t(after - periods.begin() - 1);
}

// The period's standard offset if daylight time counts only when the database flags it.
int flaggedStandard(const Period &p)
{
    return p.daylight > 0 ? p.total - p.daylight : p.total;
}

// The standard offset under which the clock of period k ran.
int standardOf(const std::vector<Period> &periods, size_t k)
{
    const Period &p = periods[k];
    if (p.daylight != 0)
        return flaggedStandard(p);
    const bool hasBefore = k > 0;
    const bool hasAfter = k + 1 < periods.size();
    // A summer between two winters flagged as negative daylight time.
    if (hasBefore && hasAfter) {
        const Period &before = periods[k - 1];
        const Period &after = periods[k + 1];
        if (before.daylight < 0 && after.daylight < 0 && before.total == after.total && before.total < p.total)
            return before.total;
    }
    // Summer time kept through the winter under its summer name, until the old standard
    // time came back (British Standard Time, 1968-71). Numeric names such as "+03" say
    // nothing, so only lettered ones count.
    if (hasAfter && !p.abbreviation.isEmpty() && p.abbreviation.front().isLetter()) {
        for (size_t j = k; j-- > 0;) {
            const Period &summer = periods[j];
            if (summer.daylight > 0 && summer.total == p.total && summer.abbreviation == p.abbreviation) {
                const int old = flaggedStandard(summer);
                if (flaggedStandard(periods[k + 1]) == old && old < p.total)
                    return old;
                break;
            }
        }
    }
    return p.total;
}

} // namespace

ZoneHistory::ZoneHistory(const QString &ianaName) : m_zone(ianaName.toUtf8()), m_name(ianaName) {}

bool ZoneHistory::IsValid() const
{
    return m_zone.isValid();
}

ZoneMoment ZoneHistory::At(QDate date, QTime time) const
{
    ZoneMoment m;
    const qint64 local = QDateTime(date, time, Qt::UTC).toSecsSinceEpoch();
    m.standardText = GmtText(0);
    m.correctionText = CorrectionText(0);
    m.utc = utcAt(local);
    if (!m_zone.isValid() || !date.isValid() || !time.isValid())
        return m;
    m.valid = true;

    // The instants at which the clock showed this time: one, two at a fold, none in a gap.
    const std::vector<Period> near = periodsBetween(m_zone, local - 2 * DaySeconds, local + 2 * DaySeconds);
    std::vector<qint64> instants;
    for (const Period &p : near) {
        const qint64 u = local - p.total;
        if (m_zone.offsetFromUtc(utcAt(u)) == p.total && std::find(instants.begin(), instants.end(), u) == instants.end())
            instants.push_back(u);
    }
    std::sort(instants.begin(), instants.end());

    qint64 judged = 0; // the instant whose period is described
    qint64 utc = 0;
    if (!instants.empty()) {
        judged = utc = instants.front();
        m.repeated = instants.size() > 1;
    } else {
        m.skipped = true;
        judged = utc = local - near.front().total;
        for (size_t i = 1; i < near.size(); ++i) {
            const int before = near[i - 1].total;
            const int after = near[i].total;
            if (after > before && local - before >= near[i].start && local - after < near[i].start) {
                judged = near[i].start - 1;
                utc = local - before;
                break;
            }
        }
    }

    const std::vector<Period> periods = periodsBetween(m_zone, judged - HistoryWindow, judged + HistoryWindow);
    const size_t k = periodIndex(periods, judged);
    const int total = periods[k].total;
    int standard = standardOf(periods, k);
    if (standard > total)
        standard = total;

    m.standardSeconds = standard;
    m.standardHours = standard / 3600.0;
    m.standardText = GmtText(standard);
    m.correctionSeconds = total - standard;
    m.correctionHours = m.correctionSeconds / 3600.0;
    m.correctionText = CorrectionText(m.correctionSeconds);
    m.correctionIndex = CorrectionKind(m_name, date, m.correctionSeconds);
    m.utc = utcAt(utc);
    return m;
}

ZoneMoment ZoneHistory::At(const QString &ianaName, QDate date, QTime time)
{
    return ZoneHistory(ianaName).At(date, time);
}

QString ZoneHistory::GmtText(int seconds)
{
    const long minutes = (std::abs(long(seconds)) + 30) / 60;
    const QChar sign = seconds < 0 && minutes > 0 ? QLatin1Char('-') : QLatin1Char('+');
    return sign + Two(minutes / 60) + QLatin1Char('.') + Two(minutes % 60);
}

QString ZoneHistory::CorrectionText(int seconds)
{
    const long hundredths = (std::abs(long(seconds)) * 100 + 1800) / 3600;
    const QChar sign = seconds < 0 && hundredths > 0 ? QLatin1Char('+') : QLatin1Char('-');
    return sign + Two(hundredths / 100) + QLatin1Char('.') + Two(hundredths % 100);
}

int ZoneHistory::CorrectionKind(const QString &ianaName, QDate localDate, int correctionSeconds)
{
    if (correctionSeconds == 0)
        return 0;
    if (localDate >= WarTimeFrom && localDate <= WarTimeTo)
        return 3;
    if (ianaName.startsWith(QLatin1String("Europe/")))
        return 2;
    const QByteArray utf8 = ianaName.toUtf8();
    const std::string_view id(utf8.constData(), size_t(utf8.size()));
    if (std::find(EuropeanSummerZones.begin(), EuropeanSummerZones.end(), id) != EuropeanSummerZones.end())
        return 2;
    return 1;
}
