// SPDX-License-Identifier: AGPL-3.0-or-later
// Signs, nakshatras, the panchang of the birth and the marriage attributes of the Moon; their
// names are read through the text look-ups of text/clsPlanets_text.cpp.
#include "sky/clsPlanets.h"

#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "sky/MessageSink.h"

#include <array>
#include <cmath>

namespace {
constexpr double kNakSpan = 360.0 / 27;

// Lord of each sign, Aries first.
inline constexpr std::array<int, 12> kSignLord{4, 3, 2, 7, 1, 2, 3, 4, 5, 6, 6, 5};
static_assert(kSignLord.size() == 12);

inline constexpr std::array<const char *, 12> kSignEngSmall{"Ari", "Tau", "Gem", "Can", "Leo", "Vir",
                                                           "Lib", "Sco", "Sag", "Cap", "Aqu", "Pis"};
static_assert(kSignEngSmall.size() == 12);

inline constexpr std::array<const char *, 13> kPlanetEng{"Asc", "Sun", "Mer", "Ven", "Mar", "Jup", "Sat",
                                                        "Moon", "Rah", "Ket", "Ura", "Nep", "Plu"};
static_assert(kPlanetEng.size() == 13);
inline constexpr std::array<const char *, 13> kPlanetFullEng{"Asccendant", "Sun", "Mercury", "Venus", "Mars",
                                                            "Jupiter", "Saturn", "Moon", "Rahu", "Ketu",
                                                            "Uranus", "Neptune", "Pluto"};
static_assert(kPlanetFullEng.size() == 13);

// Western sun sign: the sign that begins in each month (January first) and its first day.
struct SunSignStart
{
    int day;
    const char *sign;
};
inline constexpr std::array<SunSignStart, 12> kSunSignStarts{{
    {21, "Aquarius"}, {20, "Pisces"}, {21, "ARIES"}, {21, "Taurus"}, {22, "Gemini"}, {22, "Cancer"},
    {23, "Leo"}, {24, "Virgo"}, {24, "Libra"}, {24, "Scorpio"}, {23, "Sagittarius"}, {22, "Capricorn"},
}};
static_assert(kSunSignStarts.size() == 12);

// Vimshottari lord of the nakshatras 1..9 (the cycle repeats for 10..27).
inline constexpr std::array<int, 9> kNakLord{9, 3, 1, 7, 4, 8, 5, 6, 2};
static_assert(kNakLord.size() == 9);

// The first of the three nakshatras of each of the planets 1..7 (the others follow by 9).
inline constexpr std::array<int, 7> kFirstNakOfPlanet{3, 9, 2, 5, 7, 8, 4};
static_assert(kFirstNakOfPlanet.size() == 7);

// Tithi kinds 1..4 for the tithis 1..30.
inline constexpr std::array<int, 30> kTithiType{1, 2, 3, 4, 1, 1, 2, 3, 4, 1, 1, 2, 3, 4, 1,
                                                1, 2, 3, 4, 1, 1, 2, 3, 4, 1, 1, 2, 3, 4, 1};
static_assert(kTithiType.size() == 30);

// Lord of the weekday, Sunday first.
inline constexpr std::array<int, 7> kWeekDayLord{1, 7, 4, 2, 5, 3, 6};
static_assert(kWeekDayLord.size() == 7);

// First hora and first day chogadiya by weekday, Sunday first; first night chogadiya.
inline constexpr std::array<int, 7> kDayStart{1, 4, 7, 3, 6, 2, 5};
static_assert(kDayStart.size() == 7);
inline constexpr std::array<int, 7> kNightStart{6, 2, 5, 1, 4, 7, 3};
static_assert(kNightStart.size() == 7);
inline constexpr std::array<const char *, 7> kChogadiyaKey{"Udveg", "Chara", "Laabh", "Amrit", "Kaal", "Shubh", "Rog"};
static_assert(kChogadiyaKey.size() == 7);

// Rahu Kaal's eighth of the day by weekday, Sunday first.
inline constexpr std::array<int, 7> kRahuKaalSlot{8, 2, 7, 5, 6, 4, 3};
static_assert(kRahuKaalSlot.size() == 7);
// The four bad muhurthas: rows k = 1..4, columns Sunday..Saturday.
inline constexpr std::array<std::array<int, 7>, 4> kEvilMuhurtha{{
    {14, 12, 10, 8, 6, 4, 2},
    {8, 6, 4, 2, 14, 12, 10},
    {10, 8, 6, 4, 2, 14, 12},
    {6, 4, 2, 14, 12, 10, 8},
}};
static_assert(kEvilMuhurtha.size() == 4);

// Gana of the nakshatras 1..27: 1 Rakshasa, 2 Manushya, 3 Deva.
inline constexpr std::array<int, 27> kGana{3, 2, 1, 2, 3, 2, 3, 3, 1, 1, 2, 2, 3, 1,
                                           3, 1, 3, 1, 1, 2, 2, 3, 1, 1, 2, 2, 3};
static_assert(kGana.size() == 27);
// Nadi of the nakshatras 1..27: 1 Adi, 2 Madhya, 3 Antya.
inline constexpr std::array<int, 27> kNadi{1, 2, 3, 3, 2, 1, 1, 2, 3, 3, 2, 1, 1, 2,
                                           3, 3, 2, 1, 1, 2, 3, 3, 2, 1, 1, 2, 3};
static_assert(kNadi.size() == 27);
// Yoni number of the nakshatras 1..27, from "N1-S1|N2-S2|...|N27-S2|".
inline constexpr std::array<int, 27> kYoni{1, 2, 3, 4, 4, 5, 6, 3, 6, 7, 7, 8, 9, 10,
                                           9, 10, 11, 11, 5, 13, 13, 12, 14, 1, 14, 8, 2};
static_assert(kYoni.size() == 27);
// Rajju letter of the nakshatras 1..27.
inline constexpr std::array<char, 27> kRajjuType{'F', 'W', 'B', 'T', 'H', 'T', 'B', 'W', 'F', 'F', 'W', 'B', 'T', 'H',
                                                 'T', 'B', 'W', 'F', 'F', 'W', 'B', 'T', 'H', 'T', 'B', 'W', 'F'};
static_assert(kRajjuType.size() == 27);

// Varna by sign, Aries first: number and text key, in the two modes.
struct VarnaOf
{
    int number;
    const char *key;
};
inline constexpr std::array<VarnaOf, 12> kVarnaMode1{{{3, "2"}, {2, "3"}, {1, "4"}, {4, "1"}, {3, "2"}, {2, "3"},
                                                      {1, "4"}, {4, "1"}, {3, "2"}, {2, "3"}, {1, "4"}, {4, "1"}}};
static_assert(kVarnaMode1.size() == 12);
inline constexpr std::array<VarnaOf, 12> kVarnaMode2{{{2, "3"}, {1, "4"}, {2, "3"}, {4, "1"}, {3, "2"}, {1, "4"},
                                                      {3, "2"}, {4, "1"}, {3, "2"}, {1, "4"}, {2, "3"}, {4, "1"}}};
static_assert(kVarnaMode2.size() == 12);

// Vasya group by sign, Aries first: number and text key.
inline constexpr std::array<VarnaOf, 12> kVasya{{{2, "CHATUSPAD"}, {2, "CHATUSPAD"}, {1, "MANAV"}, {3, "JALCHAR"},
                                                 {4, "VANACHAR"}, {1, "MANAV"}, {1, "MANAV"}, {5, "KEET"},
                                                 {2, "CHATUSPAD"}, {3, "JALCHAR"}, {3, "JALCHAR"}, {3, "JALCHAR"}}};
static_assert(kVasya.size() == 12);

bool inRange(int v, int lo, int hi) { return v >= lo && v <= hi; }

QString degMin(double x, const QString &sep)
{
    const double deg = Int(x);
    const double minutes = Int((x - deg) * 60);
    return Two(static_cast<long>(deg)) + sep + Two(static_cast<long>(minutes));
}

int signOfLongitude(double l) { return static_cast<int>(Int(l / 30)) + 1; }

// l mod (360 / 27), taken as what is left past the nakshatra that l / (360 / 27) counts, so that
// a longitude at the start of a nakshatra leaves 0 in the same nakshatra the division names.
double pastNakshatraStart(double l)
{
    const double r = l - Int(l / kNakSpan) * kNakSpan;
    return r < 0 ? 0 : r;
}
} // namespace

QString clsPlanets::AyanamshName() const
{
    return GetHeadValue(1, QStringLiteral("AyanName"), QString::number(AyanType())).toString();
}

QString clsPlanets::GetMonthNameByNum(int n) const { return GetHeadValue(1, n, QStringLiteral("Months")).toString(); }

QString clsPlanets::GetMonthNameByNumEng(int n) const { return GetHeadValue(1, n, QStringLiteral("EngMonth")).toString(); }

QString clsPlanets::ConvertDateToText(const QDate &date) const
{
    return Two(date.day()) + QLatin1Char(' ') + GetMonthNameByNum(date.month()) + QLatin1Char(' ') + QString::number(date.year());
}

QString clsPlanets::ConvertDateToTextEng(const QDate &date) const
{
    return Two(date.day()) + QLatin1Char(' ') + GetMonthNameByNumEng(date.month()) + QLatin1Char(' ') + QString::number(date.year());
}

QString clsPlanets::ConvertToDegNoVal(double x) const
{
    return memoText(QStringLiteral("Rashi"), static_cast<int>(Fix(x / 30)) + 1);
}

QString clsPlanets::ConvertValNoDegNoSec(double x) const
{
    while (x > 30)
        x -= 30;
    return degMin(x, GetHeadValue(1, QStringLiteral(":"), QStringLiteral("Symbols")).toString());
}

QString clsPlanets::Direction(int n) const
{
    const bool retro = n >= 0 && n + 13 <= 26 && PlanetLongi(n) > PlanetLongi(n + 13);
    return memoText(QStringLiteral("GEN"), retro ? QStringLiteral("RETRO") : QStringLiteral("DIRECT"));
}

// ---- the panchang of the birth ----

void clsPlanets::CalcPanchang()
{
    // A new cast means new signs: the kept signs go with the old positions.
    m_signMemo.fill(0);

    const double m = PlanetLongi(7);
    const double s = PlanetLongi(1);
    double x = (m - s) / 12;
    if (x < 0)
        x += 30;
    m_tithi = static_cast<int>(Int(x)) + 1;

    m_nakField = static_cast<int>(Int(m * 3 / 40));

    const double r = pastNakshatraStart(m);
    if (r < 3.33333333333)
        m_pada = 1;
    else if (r < 6.6666667)
        m_pada = 2;
    else if (r < 10)
        m_pada = 3;
    else
        m_pada = 4;

    int y = static_cast<int>(Int((s + m) * 3 / 40)) + 1;
    if (y > 27)
        y -= 27;
    m_yoga = y;

    m_signField = static_cast<int>(Int(m / 30));
}

// ---- signs ----

int clsPlanets::PlanetRashiNum(int n) const { return signOfLongitude(PlanetLongi(n)); }

int clsPlanets::Sign(int n) const
{
    if (!inRange(n, 0, 13))
        return static_cast<int>(Fix(PlanetLongi(n) / 30)) + 1;
    double &memo = m_signMemo[static_cast<size_t>(n)];
    if (memo == 0)
        memo = Fix(PlanetLongi(n) / 30) + 1;
    return static_cast<int>(memo);
}

int clsPlanets::PlanetSign(int n) const
{
    if (!inRange(n, 0, 13))
        return signOfLongitude(PlanetLongi(n));
    double &memo = m_signMemo[static_cast<size_t>(n)];
    if (memo == 0)
        memo = Int(PlanetLongi(n) / 30) + 1;
    return static_cast<int>(memo);
}

QString clsPlanets::RashiName() const { return ConvertRashi(RashiNum()); }

QString clsPlanets::PlanetRashiName(int n) const { return ConvertRashi(PlanetRashiNum(n)); }

QString clsPlanets::PlanetRashiNameEngSmall(int n) const
{
    const int s = PlanetRashiNum(n);
    return inRange(s, 1, 12) ? QLatin1String(kSignEngSmall[static_cast<size_t>(s - 1)]) : QString();
}

int clsPlanets::ConvertRashiNum(double x)
{
    if (Frac(x) != 0)
        return signOfLongitude(x);
    return static_cast<int>(x);
}

QString clsPlanets::ConvertRashi(double x) const { return memoText(QStringLiteral("Rashi"), ConvertRashiNum(x)); }

QString clsPlanets::ConvertRashiEng(double x) const
{
    return GetHeadValue(1, ConvertRashiNum(x), QStringLiteral("SunSignEngNum")).toString();
}

int clsPlanets::GetRashiLordNum(int s) { return inRange(s, 1, 12) ? kSignLord[static_cast<size_t>(s - 1)] : 0; }

int clsPlanets::RashiClass(int s)
{
    if (!inRange(s, 1, 12))
        return 0;
    return (s - 1) % 3 + 1;
}

int clsPlanets::GetRashiElement(int s)
{
    if (!inRange(s, 1, 12))
        return 0;
    return (s - 1) % 4 + 1;
}

int clsPlanets::FindPlanetDirection(int n) const
{
    static constexpr std::array<int, 4> kDirectionOfElement{1, 4, 2, 3};
    const int e = GetRashiElement(PlanetRashiNum(n));
    return e == 0 ? 0 : kDirectionOfElement[static_cast<size_t>(e - 1)];
}

int clsPlanets::CountPlanetInSign(int s) const
{
    int count = 0;
    for (int p = 1; p <= 7; ++p)
        if (PlanetRashiNum(p) == s)
            ++count;
    return count;
}

int clsPlanets::SignOccupiedNum(int k) const
{
    std::array<bool, 13> held{};
    const int last = k == 1 ? 9 : 7;
    for (int p = 1; p <= last; ++p) {
        const int s = PlanetRashiNum(p);
        if (inRange(s, 1, 12))
            held[static_cast<size_t>(s)] = true;
    }
    int count = 0;
    for (bool h : held)
        count += h ? 1 : 0;
    return count;
}

QString clsPlanets::SunSignEngByNumber(int s) const { return GetHeadValue(1, s, QStringLiteral("SunSignEngNum")).toString(); }

QString clsPlanets::FindSunSignEng() const
{
    const clsPerson &p = Person();
    const int month = static_cast<int>(p.Month());
    if (!inRange(month, 1, 12))
        return {};
    const SunSignStart &start = kSunSignStarts[static_cast<size_t>(month - 1)];
    if (p.Day() >= start.day)
        return QLatin1String(start.sign);
    return QLatin1String(kSunSignStarts[static_cast<size_t>((month + 10) % 12)].sign);
}

QString clsPlanets::FindSunSign() const
{
    const QString eng = FindSunSignEng();
    if (eng.isEmpty())
        return {};
    return GetHeadValue(1, eng, QStringLiteral("SunSign")).toString();
}

// ---- planet names ----

QString clsPlanets::PlanetName(int n) const
{
    const QString name = memoText(QStringLiteral("PLNTABB"), n);
    // The abbreviations are the same words in every language file: a different one means the
    // file is not one of ours.
    if (inRange(n, 0, 12) && name != QLatin1String(kPlanetEng[static_cast<size_t>(n)]))
        messageSink().fatal(QStringLiteral("Invalid Data File"),
                            QStringLiteral("Invalid Data File. Please Re-install. Program will Terminate"));
    return name;
}

QString clsPlanets::PlanetNameEng(int n)
{
    return inRange(n, 0, 12) ? QLatin1String(kPlanetEng[static_cast<size_t>(n)]) : QString();
}

QString clsPlanets::PlanetNameFull(int n) const { return GetHeadValue(1, n, QStringLiteral("PLANETS")).toString(); }

QString clsPlanets::PlanetNameFullEng(int n)
{
    return inRange(n, 0, 12) ? QLatin1String(kPlanetFullEng[static_cast<size_t>(n)]) : QString();
}

QString clsPlanets::PlanetNameSmall(int n) const { return GetHeadValue(1, n, QStringLiteral("PLNTABBSU")).toString(); }

int clsPlanets::GrahaMaitriNo() const
{
    switch (GetRashiLordNum(RashiNum())) {
    case 1: return 1;
    case 7: return 2;
    case 4: return 3;
    case 2: return 4;
    case 5: return 5;
    case 3: return 6;
    case 6: return 7;
    default: return 0;
    }
}

int clsPlanets::MuddaCycleNo(int n)
{
    static constexpr std::array<int, 9> kDays{21, 61, 18, 30, 21, 55, 49, 58, 52};
    return inRange(n, 1, 9) ? kDays[static_cast<size_t>(n - 1)] : 0;
}

QString clsPlanets::MuddaCycleName(int n) const { return memoText(QStringLiteral("Muddacyc"), n); }

int clsPlanets::PlanetSerialNumber(int n)
{
    switch (n) {
    case 7: return 2;
    case 4: return 3;
    case 2: return 4;
    case 3: return 6;
    case 6: return 7;
    default: return n; // 0, 1, 5, 8, 9 and the rest keep their number
    }
}

// ---- nakshatras ----

int clsPlanets::NakshatraNum(double l) { return static_cast<int>(Int(l / kNakSpan)) + 1; }

QString clsPlanets::GetNakshatraName(int k) const { return GetHeadValue(1, k, QStringLiteral("Nakshatra")).toString(); }

int clsPlanets::NakLordNum(int k)
{
    if (!inRange(k, 1, 27))
        return 0;
    return kNakLord[static_cast<size_t>((k - 1) % 9)];
}

QString clsPlanets::NakLordName(int k) const
{
    while (k >= 10) {
        const QString digits = QString::number(k);
        k = digits.left(1).toInt() + digits.right(1).toInt();
    }
    return GetHeadValue(1, k, QStringLiteral("Naklord")).toString();
}

bool clsPlanets::PlanetINNakof(int p, int n) const
{
    if (!inRange(p, 1, 7))
        return false;
    const int first = kFirstNakOfPlanet[static_cast<size_t>(p - 1)];
    const int k = NakOf(n);
    return k == first || k == first + 9 || k == first + 18;
}

int clsPlanets::NakPadaNum(double l) { return static_cast<int>(Int(pastNakshatraStart(l) / (10.0 / 3))) + 1; }

int clsPlanets::NakPadaPlanet(int n) const
{
    double r = PlanetLongi(n);
    while (r >= kNakSpan)
        r -= kNakSpan;
    const double quarter = kNakSpan / 4;
    if (r <= quarter)
        return 1;
    if (r <= quarter * 2)
        return 2;
    if (r <= quarter * 3)
        return 3;
    return 4;
}

int clsPlanets::Nak28GetNakshatra() const
{
    const double m = PlanetLongi(7);
    return (m >= 276.4 && m <= 280.54) ? 28 : Nakshatra();
}

int clsPlanets::GetTaraNum(int a, int b)
{
    int x = b - a + 1;
    while (x > 27)
        x -= 27;
    while (x < 0)
        x += 27;
    x %= 9;
    return x == 0 ? 9 : x;
}

QString clsPlanets::FindFirstLetters(int k) const { return GetHeadValue(1, k, QStringLiteral("Firstl")).toString(); }

// ---- tithi, yoga, karana ----

double clsPlanets::TithiValue() const
{
    double d = PlanetLongi(7) - PlanetLongi(1);
    if (d < 0)
        d += 360;
    return d;
}

QString clsPlanets::TithiName(double t) const
{
    if (Frac(t) != 0)
        t = Int(t) + 1;
    return GetHeadValue(1, t, QStringLiteral("Tithi")).toString();
}

int clsPlanets::TithiShuklaKrishna(double t) { return t <= 15 ? 1 : 2; }

int clsPlanets::GetTithiType(int t) { return inRange(t, 1, 30) ? kTithiType[static_cast<size_t>(t - 1)] : 0; }

QString clsPlanets::YogaName() const { return GetHeadValue(1, m_yoga, QStringLiteral("Yoga")).toString(); }

QString clsPlanets::ConvertYoga(double x) const
{
    if (x < 0 || Frac(x) != 0)
        x = Int(x) + 1;
    return GetHeadValue(1, x, QStringLiteral("Yoga")).toString();
}

int clsPlanets::KaranNumber() const
{
    const double d = Norm360(PlanetLongi(7) - PlanetLongi(1));
    if (d < 6)
        return 11;
    if (d < 342)
        return 1 + static_cast<int>(Int(Norm7((d - 6) / 6)));
    if (d < 348)
        return 8;
    if (d < 354)
        return 9;
    if (d < 360)
        return 10;
    return 0;
}

QString clsPlanets::KaranName() const { return GetHeadValue(1, KaranNumber(), QStringLiteral("KARAN")).toString(); }

// ---- weekday lords and horas ----

int clsPlanets::WeekDayLordOfDay(int d) { return inRange(d, 1, 7) ? kWeekDayLord[static_cast<size_t>(d - 1)] : 0; }

int clsPlanets::WeekDayLord() const { return WeekDayLordOfDay(Person().WeekDayOfBirth()); }

QString clsPlanets::GetDayName(int n) const { return GetHeadValue(1, n - 1, QStringLiteral("DAY")).toString(); }

QString clsPlanets::ConvertDayEng(int n) const { return GetHeadValue(1, n, QStringLiteral("EngDay")).toString(); }

int clsPlanets::GetDayHora(int d) { return inRange(d, 1, 7) ? d : 0; }

double clsPlanets::GetHoraStart(int h) const
{
    double start = const_cast<clsPlanets *>(this)->SunRiseTime() + h - 1;
    if (start >= 24)
        start -= 24;
    return start;
}

int clsPlanets::GetHoraType(int h, int d)
{
    if (!inRange(d, 1, 7))
        return 0;
    return static_cast<int>(Norm7(kDayStart[static_cast<size_t>(d - 1)] + h - 1));
}

QString clsPlanets::GetHoraName(int t) const { return GetHeadValue(1, t, QStringLiteral("Hora")).toString(); }

// ---- chogadiya, Rahu Kaal, bad muhurthas ----

double clsPlanets::GetChogadiyaSpan(int n) const
{
    auto &self = const_cast<clsPlanets &>(*this);
    const double rise = self.SunRiseTime();
    const double set = self.SunSetTime();
    if (n <= 8)
        return (set - rise) / 8;
    return ((rise + 12) - (set - 12)) / 8;
}

double clsPlanets::GetChogadiyaStart(int n) const
{
    auto &self = const_cast<clsPlanets &>(*this);
    const double span = GetChogadiyaSpan(n);
    const int k = n > 8 ? n - 8 : n;
    double start = (n > 8 ? self.SunSetTime() : self.SunRiseTime()) + k * span - span;
    if (start >= 24)
        start -= 24;
    return start;
}

int clsPlanets::GetChogadiyaType(int n, int d)
{
    if (!inRange(d, 1, 7))
        return 0;
    if (n <= 8)
        return static_cast<int>(Norm7(n + kDayStart[static_cast<size_t>(d - 1)] - 1));
    int r = static_cast<int>(Norm7(kNightStart[static_cast<size_t>(d - 1)] + n - 9));
    if (r != 1)
        r = static_cast<int>(Norm7((r - 1) * 5 + 1));
    return r;
}

QString clsPlanets::GetChowGadiyaName(int t) const
{
    if (!inRange(t, 1, 7))
        return {};
    return GetHeadValue(1, QLatin1String(kChogadiyaKey[static_cast<size_t>(t - 1)]), QStringLiteral("Chowgadiya")).toString();
}

double clsPlanets::GetRahuKaalSpanToday() const
{
    auto &self = const_cast<clsPlanets &>(*this);
    return (self.SunSetTime() - self.SunRiseTime()) / 8;
}

double clsPlanets::GetRahuKaalStartToday() const
{
    const int day = Person().WeekDayOfBirth();
    if (!inRange(day, 1, 7))
        return 0;
    const double span = GetRahuKaalSpanToday();
    const int slot = kRahuKaalSlot[static_cast<size_t>(day - 1)];
    return const_cast<clsPlanets *>(this)->SunRiseTime() + slot * span - span;
}

double clsPlanets::GetMuhurthaLength() const { return GetRahuKaalSpanToday(); }

double clsPlanets::GetEvilMuhurthaStart(int k) const
{
    const int day = Person().WeekDayOfBirth();
    if (!inRange(k, 1, 4) || !inRange(day, 1, 7))
        return 0;
    const double span = GetMuhurthaLength();
    const int slot = kEvilMuhurtha[static_cast<size_t>(k - 1)][static_cast<size_t>(day - 1)] / 2;
    return const_cast<clsPlanets *>(this)->SunRiseTime() + slot * span - span;
}

// ---- Vikrami month ----

int clsPlanets::VikramiMonth(double l, const QDateTime &date)
{
    static constexpr std::array<double, 12> kUpper{30, 60, 90, 120, 150, 180, 210, 240, 270, 310, 330, 360};
    int month = 0;
    for (size_t i = 0; i < kUpper.size(); ++i)
        if (l < kUpper[i]) {
            month = static_cast<int>(i) + 1;
            break;
        }
    // Hour boundaries crossed since the epoch of the adhika cycle, as the classic DateDiff counts them.
    const QDateTime epoch(QDate(2004, 7, 3), QTime(0, 0), Qt::UTC);
    const QDateTime at(date.date(), date.time(), Qt::UTC);
    const qint64 secs = epoch.secsTo(at);
    const qint64 hours = secs >= 0 ? secs / 3600 : -((-secs + 3599) / 3600);
    const qint64 inCycle = hours % 24816;
    if (inCycle < 1393) {
        --month;
        if (month == 0)
            month = 12;
    }
    return month;
}

QString clsPlanets::GetVikramiMonth(int n) const { return GetTextBetween(QStringLiteral("cnvt"), n, QStringLiteral("IndianMonths")).toString(); }

// ---- marriage and birth attributes of the Moon ----

int clsPlanets::Gana(int k) const
{
    if (k == 0)
        k = Nakshatra();
    return inRange(k, 1, 27) ? kGana[static_cast<size_t>(k - 1)] : 0;
}

QString clsPlanets::AssignGana(int x) const { return GetHeadValue(1, x, QStringLiteral("Gana")).toString(); }

int clsPlanets::NadiNo() const
{
    const int k = Nakshatra();
    return inRange(k, 1, 27) ? kNadi[static_cast<size_t>(k - 1)] : 0;
}

QString clsPlanets::AssignNadi(int x) const { return GetHeadValue(1, x, QStringLiteral("Nadi")).toString(); }

QString clsPlanets::NadiPada() const
{
    static constexpr std::array<const char *, 12> kKey{"1", "2", "3", "3", "2", "1", "1", "2", "3", "3", "2", "1"};
    const int p = static_cast<int>(Int(std::fmod(PlanetLongi(7), 40.0) / (10.0 / 3))) + 1;
    if (!inRange(p, 1, 12))
        return {};
    return GetHeadValue(1, QLatin1String(kKey[static_cast<size_t>(p - 1)]), QStringLiteral("NADIPADA")).toString();
}

int clsPlanets::varnaMode() const
{
    return AppSettings::value(QStringLiteral("Settings"), QStringLiteral("CalcVarMod"), 1).toInt();
}

int clsPlanets::VarnaNo() const
{
    const int s = RashiNum();
    if (!inRange(s, 1, 12))
        return 0;
    const auto &table = varnaMode() == 2 ? kVarnaMode2 : kVarnaMode1;
    return table[static_cast<size_t>(s - 1)].number;
}

QString clsPlanets::Varna() const
{
    const int s = RashiNum();
    if (!inRange(s, 1, 12))
        return {};
    const auto &table = varnaMode() == 2 ? kVarnaMode2 : kVarnaMode1;
    return GetHeadValue(1, QLatin1String(table[static_cast<size_t>(s - 1)].key), QStringLiteral("VARNA")).toString();
}

int clsPlanets::VasyaNo() const
{
    const int s = RashiNum();
    return inRange(s, 1, 12) ? kVasya[static_cast<size_t>(s - 1)].number : 0;
}

QString clsPlanets::Vasya() const
{
    const int s = RashiNum();
    if (!inRange(s, 1, 12))
        return {};
    return GetHeadValue(1, QLatin1String(kVasya[static_cast<size_t>(s - 1)].key), QStringLiteral("VASYA")).toString();
}

QString clsPlanets::YoniName() const { return GetHeadValue(1, Nakshatra(), QStringLiteral("Yoni")).toString(); }

int clsPlanets::YoniNo() const
{
    const int k = Nakshatra();
    return inRange(k, 1, 27) ? kYoni[static_cast<size_t>(k - 1)] : 0;
}

QString clsPlanets::Paya() const
{
    static constexpr std::array<const char *, 12> kKey{"1", "2", "3", "4", "2", "1", "3", "4", "2", "3", "1", "4"};
    const int d = ((RashiNum() - PlanetRashiNum(0)) % 12 + 12) % 12;
    return GetHeadValue(1, QLatin1String(kKey[static_cast<size_t>(d)]), QStringLiteral("PAYA")).toString();
}

QString clsPlanets::Rajju() const
{
    const int k = Nakshatra();
    if (!inRange(k, 1, 27))
        return {};
    return GetHeadValue(1, QStringLiteral("H%1").arg(k), QStringLiteral("Rajju")).toString();
}

QString clsPlanets::RajjuType() const
{
    const int k = Nakshatra();
    return inRange(k, 1, 27) ? QString(QLatin1Char(kRajjuType[static_cast<size_t>(k - 1)])) : QString();
}

QString clsPlanets::Tatwa(int n) const
{
    const int k = NakOf(n);
    int key = 0;
    if (inRange(k, 1, 5))
        key = 1;
    else if (inRange(k, 6, 11))
        key = 2;
    else if (inRange(k, 12, 17))
        key = 3;
    else if (inRange(k, 18, 22))
        key = 4;
    else if (inRange(k, 23, 27))
        key = 5;
    if (key == 0)
        return {};
    return GetHeadValue(1, key, QStringLiteral("Tatwa")).toString();
}

QString clsPlanets::Vihag(int n) const
{
    const int k = NakOf(n);
    if (!inRange(k, 1, 27))
        return {};
    const int key = k >= 25 ? 5 : (k - 1) % 5 + 1;
    return GetHeadValue(1, key, QStringLiteral("VIHAGA")).toString();
}
