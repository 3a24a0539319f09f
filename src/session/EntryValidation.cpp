// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/EntryValidation.h"

#include "sky/clsPerson.h"
#include "sky/Functions.h"
#include "sky/clsVakya.h"

#include <QDate>

#include <array>

namespace {
struct MessageText
{
    int number;
    const char *text;
};
// The entry screen's string table of messages.
inline constexpr std::array<MessageText, 9> kMessages{{
    {5, "The Date You Have Entered is Invalid. Please enter a Valid Date after 1900 AD."},
    {6, "The Time You Have Entered is Invalid. Please Enter a Valid Time."},
    {7, "The Latitude You Have Entered is Invalid. Please Enter Valid Latitude"},
    {8, "The Longitude You Have Entered is Invalid. Please Enter Valid Longitude"},
    {9, "The GMT You Have Entered is Invalid, Please Enter Valid GMT"},
    {10, "The Lattitude You Have Entered is Invalid, Please Enter A Valid Lattitude"},
    {11, "The Longitude You Have Entered is Invalid, Please Enter Valid Longitude"},
    {13, "Your Screen resolution is low. For best display select a resolution of 800x600 pixels or higher."},
    {14, "Low Resolution"},
}};
static_assert(kMessages.size() == 9);

EntryMessage message(int number, const QString &title)
{
    EntryMessage m = EntryMessageByNumber(number);
    m.title = title;
    return m;
}

// A check that a two-part box fails when it can't be read or a part exceeds its limit.
bool exceeds(const std::optional<EntryPair> &v, int wholeLimit, int minuteLimit)
{
    return !v || v->whole > wholeLimit || v->minutes > minuteLimit;
}
} // namespace

std::optional<std::vector<int>> EntryParts(const QString &text, QChar separator, int count)
{
    const QStringList parts = text.split(separator);
    if (parts.size() != count)
        return std::nullopt;
    std::vector<int> out;
    for (const QString &part : parts) {
        QString digits;
        for (QChar c : part) {
            if (c.isSpace() || c == QLatin1Char('_'))
                continue; // a blank the mask left
            if (c < QLatin1Char('0') || c > QLatin1Char('9'))
                return std::nullopt;
            digits += c;
        }
        if (digits.isEmpty() || digits.size() > 6)
            return std::nullopt;
        out.push_back(digits.toInt());
    }
    return out;
}

std::optional<EntryPair> ParseEntryTime(const QString &text)
{
    const auto p = EntryParts(text, QLatin1Char('.'), 2);
    return p ? std::optional<EntryPair>({(*p)[0], (*p)[1]}) : std::nullopt;
}

std::optional<EntryPair> ParseEntryAngle(const QString &text)
{
    const auto p = EntryParts(text, QLatin1Char(':'), 2);
    return p ? std::optional<EntryPair>({(*p)[0], (*p)[1]}) : std::nullopt;
}

double EntryOffset::hhmm() const
{
    const double v = hours + minutes / 100.0;
    return negative ? -v : v;
}

QString EntryOffset::text() const
{
    return (negative ? QStringLiteral("-") : QStringLiteral("+")) + QStringLiteral("%1.%2")
        .arg(hours, 2, 10, QLatin1Char('0'))
        .arg(minutes, 2, 10, QLatin1Char('0'));
}

std::optional<EntryOffset> ParseEntryOffset(const QString &text)
{
    QString t = text.trimmed();
    EntryOffset o;
    if (t.startsWith(QLatin1Char('-')) || t.startsWith(QLatin1Char('+'))) {
        o.negative = t.startsWith(QLatin1Char('-'));
        t.remove(0, 1);
    }
    const auto p = EntryParts(t, QLatin1Char('.'), 2);
    if (!p)
        return std::nullopt;
    o.hours = (*p)[0];
    o.minutes = (*p)[1];
    return o;
}

EntryMessage EntryMessageByNumber(int number)
{
    for (const MessageText &m : kMessages)
        if (m.number == number)
            return {number, QString::fromLatin1(m.text), {}};
    return {number, {}, {}};
}

QDate ParseEntryDate(const QString &text)
{
    const auto p = EntryParts(text, QLatin1Char('/'), 3);
    if (!p || QString(text.section(QLatin1Char('/'), 2)).trimmed().size() != 4)
        return {};
    return QDate((*p)[2], (*p)[1], (*p)[0]);
}

double GmtTextToHours(const QString &text)
{
    const auto o = ParseEntryOffset(text);
    const double x = o ? o->hhmm() : Val(text);
    return Fix(x) + (Frac(x) / 60) * 100;
}

std::optional<BirthValues> ReadBirthValues(const BirthFields &f)
{
    if (!ValidateEntry(f).empty())
        return std::nullopt;
    const QDate date = ParseEntryDate(f.date);
    const auto time = ParseEntryTime(f.time);
    const auto lat = ParseEntryAngle(f.latitude);
    const auto lon = ParseEntryAngle(f.longitude);
    const auto gmt = ParseEntryOffset(f.gmt);
    BirthValues v;
    v.day = date.day();
    v.month = date.month();
    v.year = date.year();
    v.hour = time->whole;
    v.minute = time->minutes;
    v.latDeg = lat->whole;
    v.latMin = lat->minutes;
    v.lonDeg = lon->whole;
    v.lonMin = lon->minutes;
    v.gmt = gmt ? gmt->text() : f.gmt;
    return v;
}

void SetBirthNumbers(clsPerson &person, const BirthValues &v)
{
    person.setDay(v.day);
    person.setMonth(v.month);
    person.setYear(v.year);
    person.setHour(v.hour);
    person.setMinutes(v.minute);
    person.setGMTDIFF(NumText(GmtTextToHours(v.gmt)));
    person.setLatDeg(v.latDeg);
    person.setLatMT(v.latMin);
    person.setLongDeg(v.lonDeg);
    person.setLongMT(v.lonMin);
}

std::vector<EntryMessage> ValidateEntry(const BirthFields &f)
{
    const QDate date = ParseEntryDate(f.date);
    const bool dateFlag = !date.isValid() || date < QDate(1900, 1, 1);
    const bool timeFlag = exceeds(ParseEntryTime(f.time), 24, 59);
    const bool latFlag = exceeds(ParseEntryAngle(f.latitude), 180, 59);
    const bool lonFlag = exceeds(ParseEntryAngle(f.longitude), 180, 59);

    std::vector<EntryMessage> out;
    if (dateFlag)
        out.push_back(message(5, QStringLiteral("Invalid Date")));
    if (timeFlag)
        out.push_back(message(6, QStringLiteral("Invalid Time")));
    if (latFlag)
        out.push_back(message(10, QStringLiteral("Invalid Lattitude")));
    if (lonFlag)
        out.push_back(message(11, QStringLiteral("Invalid Longitude")));
    return out;
}

std::optional<EntryMessage> CheckDateField(const QString &text)
{
    if (!ParseEntryDate(text).isValid())
        return message(5, QStringLiteral("Invalid Date"));
    return std::nullopt;
}

std::optional<EntryMessage> CheckTimeField(const QString &text)
{
    if (exceeds(ParseEntryTime(text), 24, 59))
        return message(6, QStringLiteral("Invalid Time"));
    return std::nullopt;
}

std::optional<EntryMessage> CheckGmtField(const QString &text, const QString &appTitle)
{
    const auto o = ParseEntryOffset(text);
    if (!o || o->hhmm() > 12 || o->hhmm() < -12)
        return message(9, appTitle);
    return std::nullopt;
}

std::optional<EntryMessage> CheckLatitudeField(const QString &text, const QString &appTitle)
{
    if (exceeds(ParseEntryAngle(text), 90, 59))
        return message(7, appTitle);
    return std::nullopt;
}

std::optional<EntryMessage> CheckLongitudeField(const QString &text)
{
    if (exceeds(ParseEntryAngle(text), 179, 59))
        return message(8, QStringLiteral("Invalid Longitude"));
    return std::nullopt;
}

std::optional<EntryMessage> CheckVakyaLatitude(const QString &latitudeText)
{
    const auto lat = ParseEntryAngle(latitudeText);
    if (!lat || clsVakya::LagnaDefined(lat->whole, lat->minutes))
        return std::nullopt;
    return EntryMessage{0,
                        QStringLiteral("The Vakya method has no Lagna beyond %1 degrees of latitude. "
                                       "Please choose the modern ephemeris for this place.")
                            .arg(clsVakya::MaxLagnaLatitude),
                        QStringLiteral("Vakya Computation")};
}
