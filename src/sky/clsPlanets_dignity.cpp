// SPDX-License-Identifier: AGPL-3.0-or-later
// Dignity, friendship, combustion and aspect predicates: the vocabulary of the rule families.
// Every table is compiled in; only ExaltClass and AstaText read words.
#include "sky/clsPlanets.h"

#include "sky/Functions.h"

#include <array>
#include <cmath>

namespace {

// Rows of the planets 1..9 (Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu, Ketu).
constexpr int kGrahas = 9;

// Exaltation and debilitation signs, Sun first.
inline constexpr std::array<int, kGrahas> kExaltSign{1, 6, 12, 10, 4, 7, 2, 2, 8};
static_assert(kExaltSign.size() == kGrahas);
inline constexpr std::array<int, kGrahas> kDebiSign{7, 12, 6, 4, 10, 1, 8, 8, 2};
static_assert(kDebiSign.size() == kGrahas);

// A closed span of longitude for the peak degrees; a span (lo, hi] for the classes.
struct Span
{
    double lo;
    double hi;
};
constexpr bool inClosed(const Span &r, double l) { return l >= r.lo && l <= r.hi; }
constexpr bool inHalfOpen(const Span &r, double l) { return l > r.lo && l <= r.hi; }

// Highest exaltation and deepest debilitation, planets 1..7.
struct Peak
{
    Span exalt;
    Span debi;
};
inline constexpr std::array<Peak, 7> kPeak{{
    {{9.5, 10}, {189.5, 190}},   // 1 Sun
    {{164.5, 165}, {344.5, 345}}, // 2 Mercury
    {{356.5, 357}, {176.5, 177}}, // 3 Venus
    {{297.5, 298}, {117.5, 118}}, // 4 Mars
    {{94.5, 95}, {274.5, 275}},   // 5 Jupiter
    {{199.5, 200}, {19.5, 20}},   // 6 Saturn
    {{32.5, 33}, {212.5, 213}},   // 7 Moon
}};
static_assert(kPeak.size() == 7);

// Own signs for an imagined sign (rows 1..12) and for the planet where it stands (rows 1..9);
// 0 fills a row.
using Signs2 = std::array<int, 2>;
inline constexpr std::array<Signs2, 12> kCheckOwnHouse{{
    {5, 0}, {3, 6}, {2, 7}, {1, 8}, {9, 12}, {10, 11}, {4, 0}, {11, 0}, {8, 0}, {11, 0}, {12, 0}, {8, 0},
}};
static_assert(kCheckOwnHouse.size() == 12);
inline constexpr std::array<Signs2, kGrahas> kInOwnHouse{{
    {5, 0}, {3, 0}, {2, 7}, {1, 8}, {9, 12}, {10, 11}, {4, 0}, {11, 0}, {8, 0},
}};
static_assert(kInOwnHouse.size() == kGrahas);

// Classes by longitude, each range (lo, hi]; {0, 0} is no range.
struct ExaltRanges
{
    Span exalted;
    Span mool;
    std::array<Span, 2> own;
    Span debilitated;
};
inline constexpr std::array<ExaltRanges, kGrahas> kExaltClass{{
    {{0, 10}, {120, 140}, {{{140, 150}, {0, 0}}}, {190, 200}},       // 1
    {{150, 165}, {165, 170}, {{{170, 180}, {60, 90}}}, {330, 345}},  // 2
    {{330, 357}, {180, 195}, {{{195, 210}, {30, 60}}}, {150, 177}},  // 3
    {{270, 298}, {0, 12}, {{{18, 30}, {210, 240}}}, {90, 118}},      // 4
    {{90, 95}, {240, 250}, {{{250, 270}, {330, 360}}}, {270, 275}},  // 5
    {{180, 200}, {300, 320}, {{{320, 330}, {270, 300}}}, {0, 20}},   // 6
    {{30, 33}, {33, 60}, {{{90, 120}, {0, 0}}}, {210, 213}},         // 7
    {{30, 60}, {0, 0}, {{{0, 0}, {0, 0}}}, {210, 240}},              // 8
    {{210, 240}, {0, 0}, {{{0, 0}, {0, 0}}}, {30, 60}},              // 9
}};
static_assert(kExaltClass.size() == kGrahas);

// Natural relations, read row by row from the tagged literal; 0 fills a list.
using List5 = std::array<int, 5>;
struct Relations
{
    List5 friends;
    List5 neutral;
    List5 enemies;
};
inline constexpr std::array<Relations, kGrahas> kGrahaRelation{{
    {{7, 4, 5}, {2}, {3, 6}},            // 1 Sun
    {{1, 3}, {4, 5, 6}, {7}},            // 2 Mercury
    {{2, 6}, {4, 5}, {1, 7}},            // 3 Venus
    {{1, 7, 5}, {3, 6}, {2}},            // 4 Mars
    {{1, 4, 7}, {6}, {2, 3}},            // 5 Jupiter
    {{2, 3}, {5}, {1, 7, 4}},            // 6 Saturn
    {{1, 2}, {4, 5, 3, 6}, {}},          // 7 Moon
    {{6, 3, 2}, {}, {1, 7, 5, 4, 9}},    // 8 Rahu
    {{6, 3, 2}, {}, {1, 7, 5, 4, 8}},    // 9 Ketu
}};
static_assert(kGrahaRelation.size() == kGrahas);

// Enemies for company and aspect.
inline constexpr std::array<List5, kGrahas> kPlanetEnemy{{
    {3, 6, 8, 9}, {4, 5}, {1, 5}, {6, 8}, {}, {1, 9}, {2}, {1, 4, 7, 9}, {1, 6, 7, 8},
}};
static_assert(kPlanetEnemy.size() == kGrahas);

// Signs of the house-strength family.
struct HouseSigns
{
    std::array<int, 6> friendly;
    std::array<int, 3> enemy;
    std::array<int, 7> sama;
};
inline constexpr std::array<HouseSigns, kGrahas> kHouseSigns{{
    {{3, 4, 6, 8, 9, 12}, {2, 10, 11}, {}},              // 1
    {{4}, {1, 8, 9}, {2, 5, 7, 10, 11}},                 // 2
    {{10, 11}, {5, 9}, {1, 3, 4, 8}},                    // 3
    {{5, 9, 12}, {11}, {2, 3, 6, 7}},                    // 4
    {{1, 5, 8}, {}, {2, 3, 6, 7, 11}},                   // 5
    {{2}, {5}, {3, 4, 6, 8, 9, 12}},                     // 6
    {{1, 3, 5, 6, 9, 12}, {}, {7, 10, 11}},              // 7
    {{7, 10}, {1, 4, 5}, {3, 6, 9, 12}},                 // 8
    {{1}, {4, 5}, {3, 6, 7, 9, 10, 11, 12}},             // 9
}};
static_assert(kHouseSigns.size() == kGrahas);

// Compound friendship: the lords of p's sign that make it a great friend (when also a temporal
// friend) or a great enemy (when not).
using List4 = std::array<int, 4>;
inline constexpr std::array<List4, kGrahas> kAdhiMitraLord{{
    {4, 5, 7}, {1, 3}, {2, 6, 8, 9}, {1, 5, 7, 9}, {1, 4, 7}, {2, 3, 8}, {1, 2}, {3, 6}, {3, 4},
}};
static_assert(kAdhiMitraLord.size() == kGrahas);
inline constexpr std::array<List4, kGrahas> kAdhiSatruLord{{
    {3, 6, 8, 9}, {7}, {1, 7}, {2, 8}, {2, 3}, {1, 4, 7, 9}, {8, 9}, {1, 4, 7, 9}, {1, 6, 8},
}};
static_assert(kAdhiSatruLord.size() == kGrahas);
// Distances of the temporal friend, Norm12(sign of the lord - sign of p + 1).
inline constexpr std::array<int, 6> kTemporalFriend{1, 2, 3, 9, 10, 11};
static_assert(kTemporalFriend.size() == 6);

// Angular classes of a separation, tested in this order; bounds included.
struct RelationRange
{
    const char *code;
    Span range;
};
inline constexpr std::array<RelationRange, 21> kRelationRanges{{
    {"CNJ", {0, 3.33}},       {"CNJ", {356.67, 360}},
    {"OPP", {176.67, 183.33}},
    {"SQU", {86.67, 93.33}},  {"SQU", {266.67, 273.33}},
    {"TRN", {116.67, 123.33}}, {"TRN", {236.67, 243.33}},
    {"SXT", {56.67, 63.33}},  {"SXT", {296.67, 303.33}},
    {"SQQ", {131.67, 138.33}}, {"SQQ", {221.67, 228.33}},
    {"SSQ", {41.67, 48.33}},  {"SSQ", {311.67, 318.33}},
    {"QNC", {146.67, 153.33}}, {"QNC", {206.67, 213.33}},
    {"SSX", {26.67, 33.33}},  {"SSX", {326.67, 333.33}},
    {"QNT", {68.67, 75.33}},  {"QNT", {284.67, 291.33}},
    {"BQT", {140.67, 147.33}}, {"BQT", {212.67, 219.33}},
}};
static_assert(kRelationRanges.size() == 21);

// Combustion orbs of the planets 2..7 (Mercury, Venus, Mars, Jupiter, Saturn, Moon).
inline constexpr std::array<double, 6> kCombustOrb{7, 7, 8, 9, 9, 12};
static_assert(kCombustOrb.size() == 6);

// The distances of AstaText for the planets 2..7: direct, retrograde.
struct AstaLimit
{
    double direct;
    double retro;
};
inline constexpr std::array<AstaLimit, 6> kAstaLimit{{{14, 12}, {10, 8}, {17, 17}, {11, 8}, {15, 15}, {12, 12}}};
static_assert(kAstaLimit.size() == 6);

// Orbs of the degree aspects, planets 1..7: direct, retrograde.
inline constexpr std::array<AstaLimit, 7> kPlanetOrb{{{15, 15}, {7, 6}, {7, 6}, {8, 8}, {9, 9}, {9, 9}, {12, 12}}};
static_assert(kPlanetOrb.size() == 7);

// Sign aspects: signs counted from the planet's own sign b (b + offset, by Norm12), planets 1..9.
// Rahu and Ketu aspect by the seventh only where a member says so.
using Offsets3 = std::array<int, 3>;
inline constexpr std::array<Offsets3, kGrahas> kSignAspect{{
    {6}, {6}, {6}, {3, 6, 7}, {4, 6, 8}, {2, 6, 9}, {6}, {}, {},
}};
static_assert(kSignAspect.size() == kGrahas);
inline constexpr Offsets3 kNodeAspect{6};

// The malefic aspects of Saturn and Mars: retrograde, direct.
inline constexpr Offsets3 kSaturnRetroAspect{2, 6, 9};
inline constexpr Offsets3 kSaturnDirectAspect{3, 7, 9};
inline constexpr Offsets3 kMarsRetroAspect{3, 6, 7};
inline constexpr Offsets3 kMarsDirectAspect{4, 7, 8};

// Directional strength: the sign counted from the Lagna's sign, planets 1..7.
inline constexpr std::array<int, 7> kDigBalaOffset{9, 0, 3, 9, 0, 6, 3};
static_assert(kDigBalaOffset.size() == 7);

// Houses counted from a reference sign.
using Offsets4 = std::array<int, 4>;
inline constexpr Offsets4 kKendra{0, 3, 6, 9};
inline constexpr std::array<int, 3> kTrikona{0, 4, 8};
inline constexpr std::array<int, 3> kTrika{5, 7, 11};
inline constexpr Offsets4 kPanaphara{1, 4, 7, 10};
inline constexpr Offsets4 kApoklima{2, 5, 8, 11};

inline constexpr std::array<int, 4> kBenefics{5, 3, 2, 7};
inline constexpr std::array<int, 5> kMalefics{1, 4, 6, 8, 9};
inline constexpr std::array<int, 4> kAspectingBenefics{5, 3, 7, 2};
inline constexpr std::array<int, 3> kAspectingMalefics{6, 1, 4};
inline constexpr std::array<int, 9> kEnemyScanOrder{1, 7, 2, 3, 8, 9, 4, 5, 6};

bool isGraha(int p) { return p >= 1 && p <= kGrahas; }
bool isSeven(int p) { return p >= 1 && p <= 7; }
size_t row(int p) { return static_cast<size_t>(p - 1); }

// v is one of the non-zero entries of list.
template <size_t N>
bool holds(const std::array<int, N> &list, int v)
{
    if (v == 0)
        return false;
    for (int e : list)
        if (e == v)
            return true;
    return false;
}

// Sign s is b + one of the offsets, by Norm12.
template <size_t N>
bool atOffset(const std::array<int, N> &offsets, int b, int s, bool zeroCounts)
{
    for (int o : offsets)
        if ((o != 0 || zeroCounts) && Norm12(b + o) == s)
            return true;
    return false;
}
} // namespace

// ---- exaltation, own sign, moolatrikona ----

bool clsPlanets::CheckIfExalted(int p, int s) { return isGraha(p) && kExaltSign[row(p)] == s; }
bool clsPlanets::CheckIfDebi(int p, int s) { return isGraha(p) && kDebiSign[row(p)] == s; }
bool clsPlanets::Exalted(int p) const { return isGraha(p) && CheckIfExalted(p, PlanetRashiNum(p)); }
bool clsPlanets::Debilitated(int p) const { return isGraha(p) && CheckIfDebi(p, PlanetRashiNum(p)); }

bool clsPlanets::CheckHighestExaltDeg(int p) const
{
    return isSeven(p) && inClosed(kPeak[row(p)].exalt, PlanetLongi(p));
}

bool clsPlanets::CheckHighestDebiDeg(int p) const
{
    return isSeven(p) && inClosed(kPeak[row(p)].debi, PlanetLongi(p));
}

bool clsPlanets::CheckOwnHouse(int p, int s) { return p >= 1 && p <= 12 && holds(kCheckOwnHouse[row(p)], s); }

bool clsPlanets::InOwnHouse(int p) const { return isGraha(p) && holds(kInOwnHouse[row(p)], PlanetRashiNum(p)); }

bool clsPlanets::IsMoolTrikona(int p) const { return isSeven(p) && inHalfOpen(kExaltClass[row(p)].mool, PlanetLongi(p)); }

namespace {
// 1 Exalted, 2 Mooltrikona, 3 Own House, 4 Debilitated, 0 none.
int exaltClassOf(int p, double l)
{
    if (!isGraha(p))
        return 0;
    const ExaltRanges &r = kExaltClass[row(p)];
    if (inHalfOpen(r.exalted, l))
        return 1;
    if (inHalfOpen(r.mool, l))
        return 2;
    if (inHalfOpen(r.own[0], l) || inHalfOpen(r.own[1], l))
        return 3;
    if (inHalfOpen(r.debilitated, l))
        return 4;
    return 0;
}
inline constexpr std::array<const char *, 4> kExaltClassKey{"Exalted", "Mooltrikona", "Own House", "Debilitated"};
inline constexpr std::array<const char *, 4> kExaltClassEng{"Exalt", "Mool", "Own", "Debi"};
} // namespace

QString clsPlanets::ExaltClass(int p) const
{
    const int c = isGraha(p) ? exaltClassOf(p, PlanetLongi(p)) : 0;
    if (c == 0)
        return {};
    return memoText(QStringLiteral("EXALTCLASS"), QLatin1String(kExaltClassKey[static_cast<size_t>(c - 1)]));
}

QString clsPlanets::ExaltClassEng(int p) const
{
    const int c = isGraha(p) ? exaltClassOf(p, PlanetLongi(p)) : 0;
    return c == 0 ? QString() : QLatin1String(kExaltClassEng[static_cast<size_t>(c - 1)]);
}

// ---- friendship ----

int clsPlanets::GrahaRelation(int p1, int p2)
{
    if (!isGraha(p1))
        return 0;
    const Relations &r = kGrahaRelation[row(p1)];
    if (holds(r.friends, p2))
        return 1;
    if (holds(r.neutral, p2))
        return 2;
    if (holds(r.enemies, p2))
        return 3;
    return 0;
}

bool clsPlanets::IsPlanetEnemy(int p, int q) { return isGraha(p) && holds(kPlanetEnemy[row(p)], q); }

bool clsPlanets::InFriendHouse(int p) const { return isGraha(p) && holds(kHouseSigns[row(p)].friendly, PlanetRashiNum(p)); }
bool clsPlanets::InEnemyHouse(int p) const { return isGraha(p) && holds(kHouseSigns[row(p)].enemy, PlanetRashiNum(p)); }
bool clsPlanets::InSamaHouse(int p) const { return isGraha(p) && holds(kHouseSigns[row(p)].sama, PlanetRashiNum(p)); }

bool clsPlanets::InAdhiMitraHouse(int p) const
{
    if (!isGraha(p))
        return false;
    const int s = PlanetRashiNum(p);
    const int lord = SignLord(s);
    const bool temporalFriend = holds(kTemporalFriend, Norm12(PlanetRashiNum(lord) - s + 1));
    return temporalFriend && holds(kAdhiMitraLord[row(p)], lord);
}

bool clsPlanets::InAdhiSatruHouse(int p) const
{
    if (!isGraha(p))
        return false;
    const int s = PlanetRashiNum(p);
    const int lord = SignLord(s);
    const bool temporalFriend = holds(kTemporalFriend, Norm12(PlanetRashiNum(lord) - s + 1));
    return !temporalFriend && holds(kAdhiSatruLord[row(p)], lord);
}

bool clsPlanets::PlanetBenefic(int p) { return holds(kBenefics, p); }
bool clsPlanets::PlanetMalefic(int p) { return holds(kMalefics, p); }

// ---- separations, combustion, orbs ----

QString clsPlanets::FindRelation(double x)
{
    x = std::fabs(x);
    for (const RelationRange &r : kRelationRanges)
        if (inClosed(r.range, x))
            return QLatin1String(r.code);
    return {};
}

std::optional<bool> clsPlanets::CheckIfCombust(int p, double a, double b)
{
    if (p < 2 || p > 7)
        return std::nullopt;
    return std::fabs(a - b) <= kCombustOrb[static_cast<size_t>(p - 2)];
}

std::optional<bool> clsPlanets::Combust(int p) const
{
    if (p < 2 || p > 7)
        return std::nullopt;
    return CheckIfCombust(p, PlanetLongi(1), PlanetLongi(p));
}

bool clsPlanets::WithinOrbOfSun(int p) const
{
    if (p == 1)
        return false;
    const double sun = PlanetLongi(1);
    const double l = PlanetLongi(p);
    return Norm360(sun - l) <= 15 || Norm360(l - sun) <= 15;
}

QString clsPlanets::AstaText(int p) const
{
    bool asta = false;
    if (p >= 2 && p <= 7) {
        const AstaLimit &lim = kAstaLimit[static_cast<size_t>(p - 2)];
        asta = std::fabs(PlanetLongi(1) - PlanetLongi(p)) <= (RetroGrade(p) ? lim.retro : lim.direct);
    }
    return memoText(QStringLiteral("ASTA"), asta ? 1 : 0);
}

double clsPlanets::PlanetOrb(int p) const
{
    if (!isSeven(p))
        return 0;
    const AstaLimit &o = kPlanetOrb[row(p)];
    return RetroGrade(p) ? o.retro : o.direct;
}

double clsPlanets::PlanetMutOrb(int p1, int p2) const { return (PlanetOrb(p1) + PlanetOrb(p2)) / 2; }

int clsPlanets::PlanetDegAspect(int p1, int p2) const
{
    const double o = PlanetMutOrb(p1, p2);
    const double l1 = PlanetLongi(p1);
    const double l2 = PlanetLongi(p2);
    const std::array<double, 2> d{Norm360(l1 - l2), Norm360(l2 - l1)};

    // The window around angle a reaches one degree further on its upper side.
    const auto inWindow = [o, &d](double a) {
        const double lo = Norm360(a - o);
        const double hi = Norm360(a + o + 1);
        return (d[0] >= lo && d[0] <= hi) || (d[1] >= lo && d[1] <= hi);
    };
    const auto conjunct = [o](double x) { return x <= Norm360(o + 1) || x >= Norm360(360 - o); };

    int result = 0;
    if (conjunct(d[0]) || conjunct(d[1]))
        result = 1;
    if (inWindow(90) || inWindow(270))
        result = 2;
    if (inWindow(120) || inWindow(240))
        result = 4;
    if (inWindow(60) || inWindow(300))
        result = 5;
    if (inWindow(180))
        result = 3;
    return result;
}

// ---- sign aspects and company ----

bool clsPlanets::CheckIfPlanetAspects(int p, int s) const
{
    return isGraha(p) && atOffset(kSignAspect[row(p)], PlanetRashiNum(p), s, false);
}

// Planet q aspects sign target, Rahu and Ketu by the seventh.
bool clsPlanets::signAspectedBy(int q, int target) const
{
    if (q == 8 || q == 9)
        return atOffset(kNodeAspect, PlanetRashiNum(q), target, false);
    return CheckIfPlanetAspects(q, target);
}

bool clsPlanets::IfPlanetAspects(int a, int b) const { return signAspectedBy(b, PlanetRashiNum(a)); }

bool clsPlanets::PlanetAspectedByNatBenefic(int p) const
{
    for (int q : kAspectingBenefics)
        if (IfPlanetAspects(p, q))
            return true;
    return false;
}

bool clsPlanets::PlanetAspectedByNatMalefic(int p) const
{
    for (int q : kAspectingMalefics)
        if (IfPlanetAspects(p, q))
            return true;
    return false;
}

bool clsPlanets::CheckMaleficAspects(int p, int s) const
{
    if (p != 6 && p != 4)
        return false;
    const bool retro = RetroGrade(p);
    const Offsets3 &offsets = p == 6 ? (retro ? kSaturnRetroAspect : kSaturnDirectAspect)
                                     : (retro ? kMarsRetroAspect : kMarsDirectAspect);
    return atOffset(offsets, PlanetRashiNum(p), s, false);
}

bool clsPlanets::PlanetWithBenefic(int p) const
{
    const int s = PlanetRashiNum(p);
    for (int q : kBenefics)
        if (PlanetRashiNum(q) == s)
            return true;
    return false;
}

bool clsPlanets::PlanetWithMalefic(int p) const
{
    const int s = PlanetRashiNum(p);
    for (int q : kMalefics)
        if (PlanetRashiNum(q) == s)
            return true;
    return false;
}

bool clsPlanets::AspectedByEnemy(int p) const
{
    for (int q : kEnemyScanOrder)
        if (IsPlanetEnemy(p, q) && IfPlanetAspects(p, q))
            return true;
    return false;
}

bool clsPlanets::WithEnemy(int p) const
{
    if (!isGraha(p))
        return false;
    const int s = PlanetRashiNum(p);
    for (int q : kPlanetEnemy[row(p)])
        if (q != 0 && PlanetRashiNum(q) == s)
            return true;
    return false;
}

// ---- houses counted from a reference ----

bool clsPlanets::PlanetInSameSign(int a, int b) const { return Sign(a) == Sign(b); }
bool clsPlanets::PlanetInKendra(int a, int b) const { return atOffset(kKendra, Sign(b), Sign(a), true); }
bool clsPlanets::PlanetInTrikona(int a, int b) const { return atOffset(kTrikona, Sign(b), Sign(a), true); }
bool clsPlanets::PlanetInTrika(int a, int b) const { return atOffset(kTrika, Sign(b), Sign(a), true); }
bool clsPlanets::PlanetInApoklima(int a, int b) const { return atOffset(kApoklima, Sign(b), Sign(a), true); }
bool clsPlanets::PlanetInPanaphara(int a, int b) const { return atOffset(kPanaphara, Sign(b), Sign(a), true); }

// ---- strength helpers ----

bool clsPlanets::CheckDigBala(int p, int lagnaSign, int s)
{
    return isSeven(p) && Norm12(lagnaSign + kDigBalaOffset[row(p)]) == s;
}

bool clsPlanets::CheckIfStrong(int p, int s) const
{
    return CheckIfExalted(p, s) || CheckOwnHouse(p, s) || CheckDigBala(p, Sign(0), s);
}
