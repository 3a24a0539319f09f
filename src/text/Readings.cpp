// SPDX-License-Identifier: AGPL-3.0-or-later
#include "text/Readings.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kNakSpan = 360.0 / 27.0;
// The Abhijit stretch: from the last quarter of Uttarashada to a fifteenth of Shravana.
constexpr double kAbhijitStart = 20 * kNakSpan + 10.0;
constexpr double kAbhijitSpan = 4.0 + kNakSpan / 60.0;
constexpr double kAbhijitEnd = kAbhijitStart + kAbhijitSpan;

inline constexpr std::array<const char *, 28> kNak28Word{
    "ASHWINI",  "BHARANI",    "KRITTIKA",    "ROHINI",  "MRIGSHIRA", "ARIDRA",     "PUNARVASU",
    "PUSHYA",   "ASHLESHA",   "MAGHA",       "PPHALGUNI", "UPHALGUNI", "HASTA",    "CHITRA",
    "SWATI",    "VISHAKA",    "ANURADHA",    "JYESTHA", "MULA",      "PURVASHADA", "UTTARASHADA",
    "ABHIJIT",  "SHRAVANA",   "DHANISTHA",   "SATABHISAJ", "PBHADRAPAD", "UBHADRAPADA", "REVATI"};
static_assert(kNak28Word.size() == 28);

inline constexpr std::array<const char *, 12> kLordKey{
    "AscLordinHouse",  "2ndLordinHouse",  "3rdLordInHouse",  "4thLordInHouse",
    "5thLordInHouse",  "6thLordInHouse",  "7thLordInHouse",  "8thLordInHouse",
    "9thLordInHouse",  "10thLordInHouse", "11thLordInHouse", "12thLordInHouse"};
static_assert(kLordKey.size() == 12);

inline constexpr std::array<const char *, 12> kHouseKey{
    "PlanetInAsc", "PlanetIn2nd", "PlanetIn3rd", "PlanetIn4th",  "Planetin5th",  "PlanetIn6th",
    "PlanetIn7th", "PlanetIn8th", "PlanetIn9th", "Planetin10th", "PlanetIn11th", "PlanetIn12th"};
static_assert(kHouseKey.size() == 12);

inline constexpr std::array<const char *, 7> kConjCodes{"SXT", "SQU", "CNJ", "SSX", "SSQ", "OPP", "TRN"};

// Start and span of the stretch of a 28-index.
void nak28Stretch(int index, double &start, double &span)
{
    if (index <= 20) {
        start = (index - 1) * kNakSpan;
        span = kNakSpan;
    } else if (index == 21) {
        start = 20 * kNakSpan;
        span = 10.0;
    } else if (index == 22) {
        start = kAbhijitStart;
        span = kAbhijitSpan;
    } else if (index == 23) {
        start = kAbhijitEnd;
        span = 22 * kNakSpan - kAbhijitEnd;
    } else {
        start = (index - 2) * kNakSpan;
        span = kNakSpan;
    }
}

QString gen(const clsPlanets &c, const char *head) { return c.GetHeadValue(1, QString::fromLatin1(head), QStringLiteral("Gen")).toString(); }

ReadingItem heading(const QString &text, int before = 0, int after = 0)
{
    ReadingItem r;
    r.heading = text;
    r.linesBefore = before;
    r.linesAfter = after;
    return r;
}

ReadingItem paragraph(QString heading, int type, QString category, QString head)
{
    ReadingItem r;
    r.heading = std::move(heading);
    r.type = type;
    r.category = std::move(category);
    r.head = std::move(head);
    return r;
}

} // namespace

// ---- conjunctions ----

bool HasConjunctionText(const QString &code)
{
    for (const char *k : kConjCodes)
        if (code == QLatin1String(k))
            return true;
    return false;
}

QString ConjunctionKey(int i, int j, const QString &code)
{
    return clsPlanets::PlanetNameEng(i) + QLatin1Char('-') + clsPlanets::PlanetNameEng(j) + QLatin1Char(':') + code;
}

Reading ConjunctionReading(const clsPlanets &c)
{
    Reading r{gen(c, "AspectHeadText"), {}};
    for (int i = 1; i <= 12; ++i)
        for (int j = i + 1; j <= 12; ++j) {
            if (i == 8 && j == 9)
                continue;
            const QString code = clsPlanets::FindRelation(c.PlanetLongi(i) - c.PlanetLongi(j));
            if (!HasConjunctionText(code))
                continue;
            const QString aspect = c.GetHeadValue(1, code, QStringLiteral("Aspects")).toString();
            r.items << paragraph(c.PlanetNameFull(i) + QLatin1Char(' ') + aspect + QLatin1Char(' ') + c.PlanetNameFull(j), 5,
                                 QString(), ConjunctionKey(i, j, code));
        }
    return r;
}

QList<int> ParashariAspectors(const clsPlanets &c, int sign)
{
    QList<int> out;
    for (int p = 1; p <= 9; ++p) {
        const int count = Norm12(sign - c.PlanetRashiNum(p) + 1);
        bool aspects = count == 7;
        if (p == 4)
            aspects = aspects || count == 4 || count == 8;
        else if (p == 5)
            aspects = aspects || count == 5 || count == 9;
        else if (p == 6)
            aspects = aspects || count == 3 || count == 10;
        if (aspects)
            out << p;
    }
    return out;
}

// ---- the birth nakshatra ----

int Nak28Index(double longitude)
{
    const int k = static_cast<int>(Int(longitude / kNakSpan)) + 1;
    if (k <= 20)
        return k;
    if (k == 21 || k == 22) {
        if (longitude < kAbhijitStart)
            return 21;
        if (longitude < kAbhijitEnd)
            return 22;
        return 23;
    }
    return k + 1;
}

int Nak28Quarter(double longitude)
{
    double start = 0, span = 0;
    nak28Stretch(Nak28Index(longitude), start, span);
    const int q = static_cast<int>(Int((longitude - start) / (span / 4.0) + 1.0));
    return std::clamp(q, 1, 4);
}

QString Nak28Word(int index)
{
    return index >= 1 && index <= 28 ? QString::fromLatin1(kNak28Word[static_cast<size_t>(index - 1)]) : QString();
}

int Nak28NameKey(int index) { return index == 22 ? 28 : index > 22 ? index - 1 : index; }

Reading NakshatraReading(const clsPlanets &c)
{
    Reading r{gen(c, "NakshatraHeadText"), {}};
    const QString moonWord = Nak28Word(Nak28Index(c.PlanetLongi(7)));
    const QString gender = c.Person().Sex() == 1 ? QStringLiteral("MALE") : QStringLiteral("FEM");
    for (const char *section : {"Gen", "Phys", "Edu", "Fami", "Health"}) {
        const QString s = QString::fromLatin1(section);
        r.items << paragraph(c.GetHeadValue(1, s, QStringLiteral("NakFal")).toString(), 8, moonWord, s.toUpper() + gender);
    }
    const QString dash = c.GetHeadValue(1, QStringLiteral("-"), QStringLiteral("Symbols")).toString();
    const QString quarterWord = gen(c, "Quarter");
    for (int p = 1; p <= 9; ++p) {
        const double l = c.PlanetLongi(p);
        const int k = Nak28Index(l);
        const int q = Nak28Quarter(l);
        const QString name = c.GetNakshatraName(Nak28NameKey(k));
        r.items << paragraph(QStringLiteral("%1 %2 %3 (%4 %5)").arg(c.PlanetNameFull(p), dash, name, quarterWord).arg(q), 8,
                             Nak28Word(k), clsPlanets::PlanetNameEng(p) + QString::number(q));
    }
    return r;
}

// ---- the planets in the signs ----

Reading GrahaFalaReading(const clsPlanets &c)
{
    Reading r{gen(c, "Grahafal"), {}};
    r.items << paragraph(gen(c, "AscResult"), 9, QStringLiteral("AscResu"), QString::number(c.PlanetRashiNum(0)));
    r.items << heading(gen(c, "PlanetsInSigns"), 0, 1);
    for (int p = 1; p <= 12; ++p)
        r.items << paragraph(c.PlanetNameFull(p), 9, QStringLiteral("PLResu"),
                             clsPlanets::PlanetNameEng(p) + QString::number(c.GetSign(p)));
    return r;
}

// ---- the houses ----

QString LordInHouseKey(int h) { return h >= 1 && h <= 12 ? QString::fromLatin1(kLordKey[static_cast<size_t>(h - 1)]) : QString(); }

QString PlanetInHouseKey(int k)
{
    return k >= 1 && k <= 12 ? QString::fromLatin1(kHouseKey[static_cast<size_t>(k - 1)]) : QString();
}

int HouseOfSign(int sign, int lagnaSign)
{
    int k = sign - lagnaSign + 1;
    if (sign < lagnaSign)
        k += 12;
    return k;
}

Reading BhavaFalaReading(const clsPlanets &c)
{
    Reading r{gen(c, "BhavaFal"), {}};
    const int lagna = c.PlanetRashiNum(0);
    const double lagnaStart = (lagna - 1) * 30.0;
    for (int h = 1; h <= 12; ++h) {
        const int lord = clsPlanets::GetRashiLordNum(Norm12(lagna + h - 1));
        const double l = c.PlanetLongi(lord);
        for (int k = 1; k <= 12; ++k) {
            // House k is the 30 degrees from the Lagna's sign start plus 30 (k - 1); a stretch that
            // crosses 0 is tested in its two halves.
            const double from = lagnaStart + 30.0 * (k - 1);
            const double to = from + 30.0;
            bool inside = false;
            if (from >= 360.0)
                inside = l >= from - 360.0 && l < to - 360.0;
            else if (to <= 360.0)
                inside = l >= from && l < to;
            else
                inside = l >= from || l < to - 360.0;
            if (!inside)
                continue;
            r.items << paragraph(c.GetHeadValue(1, h, QStringLiteral("BhavaLordHead")).toString(), 9, LordInHouseKey(h),
                                 QString::number(k));
        }
    }
    r.items << heading(gen(c, "PlaInHouseRes"), 1, 1);
    for (int p = 1; p <= 12; ++p) {
        const int k = HouseOfSign(c.PlanetRashiNum(p), lagna);
        r.items << paragraph(c.PlanetNameFull(p), 9, PlanetInHouseKey(k), clsPlanets::PlanetNameEng(p));
    }
    return r;
}
