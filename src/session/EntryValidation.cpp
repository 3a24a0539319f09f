// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/EntryValidation.h"

#include "sky/Functions.h"
#include "sky/clsVakya.h"

#include <QDate>
#include <QRegularExpression>

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

// The whole-number value of a part of a field, as Val reads it.
double part(const QString &text, int from, int length) { return Val(text.mid(from, length)); }
double lastTwo(const QString &text) { return Val(text.right(2)); }
} // namespace

EntryMessage EntryMessageByNumber(int number)
{
    for (const MessageText &m : kMessages)
        if (m.number == number)
            return {number, QString::fromLatin1(m.text), {}};
    return {number, {}, {}};
}

QDate ParseEntryDate(const QString &text)
{
    static const QRegularExpression re(QStringLiteral("^\\s*(\\d{1,2})/(\\d{1,2})/(\\d{4})\\s*$"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        return {};
    return QDate(m.captured(3).toInt(), m.captured(2).toInt(), m.captured(1).toInt());
}

double GmtTextToHours(const QString &text)
{
    const double x = Val(text);
    return Fix(x) + (Frac(x) / 60) * 100;
}

std::vector<EntryMessage> ValidateEntry(const BirthFields &f)
{
    const QDate date = ParseEntryDate(f.date);
    const bool dateFlag = !date.isValid() || date < QDate(1900, 1, 1);
    const bool timeFlag = part(f.time, 0, 2) > 24 || lastTwo(f.time) > 59;
    const bool latFlag = part(f.latitude, 0, 3) > 180 || lastTwo(f.latitude) > 59;
    const bool lonFlag = part(f.longitude, 0, 3) > 180 || lastTwo(f.longitude) > 59;

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
    if (part(text, 0, 2) > 24 || lastTwo(text) > 59)
        return message(6, QStringLiteral("Invalid Time"));
    return std::nullopt;
}

std::optional<EntryMessage> CheckGmtField(const QString &text, const QString &appTitle)
{
    const double v = Val(text);
    if (v > 12 || v < -12)
        return message(9, appTitle);
    return std::nullopt;
}

std::optional<EntryMessage> CheckLatitudeField(const QString &text, const QString &appTitle)
{
    if (part(text, 0, 3) > 90 || lastTwo(text) > 59)
        return message(7, appTitle);
    return std::nullopt;
}

std::optional<EntryMessage> CheckLongitudeField(const QString &text)
{
    if (part(text, 0, 3) > 179 || lastTwo(text) > 59)
        return message(8, QStringLiteral("Invalid Longitude"));
    return std::nullopt;
}

std::optional<EntryMessage> CheckVakyaLatitude(const QString &latitudeText)
{
    if (clsVakya::LagnaDefined(part(latitudeText, 0, 3), lastTwo(latitudeText)))
        return std::nullopt;
    return EntryMessage{0,
                        QStringLiteral("The Vakya method has no Lagna beyond %1 degrees of latitude. "
                                       "Please choose the modern ephemeris for this place.")
                            .arg(clsVakya::MaxLagnaLatitude),
                        QStringLiteral("Vakya Computation")};
}
