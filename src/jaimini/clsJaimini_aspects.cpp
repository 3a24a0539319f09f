// SPDX-License-Identifier: AGPL-3.0-or-later
// Sign aspects, the frontal and lateral tables, and the comparisons of planets and houses.
#include "jaimini/clsJaimini.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "text/TextDB.h"

#include <algorithm>
#include <array>

namespace {
// The three signs from which each sign 1..12 is aspected (the relation is symmetric).
// clang-format off
inline constexpr std::array<std::array<int, 3>, 12> kAspectedFrom{{
    {5, 8, 11},  // 1
    {4, 7, 10},  // 2
    {6, 9, 12},  // 3
    {2, 8, 11},  // 4
    {1, 7, 10},  // 5
    {3, 9, 12},  // 6
    {2, 5, 11},  // 7
    {1, 4, 10},  // 8
    {3, 6, 12},  // 9
    {2, 5, 8},   // 10
    {1, 4, 7},   // 11
    {3, 6, 9},   // 12
}};
// clang-format on
static_assert(kAspectedFrom.size() == 12);

// Frontal signs by sign 1..12: of a planet, of the Lagna-style table, and of the page's table.
// clang-format off
inline constexpr std::array<int, 12> kPlanetFrontal{8, 7, 6, 11, 10, 3, 2, 1, 12, 5, 4, 9};
inline constexpr std::array<int, 12> kFrontal      {8, 7, 6, 11, 10, 3, 2, 1, 12, 4, 5, 9};
inline constexpr std::array<int, 12> kFrontalName  {8, 7, 9, 11, 10, 12, 2, 1, 3, 5, 4, 6};
// clang-format on
static_assert(kPlanetFrontal.size() == 12 && kFrontal.size() == 12 && kFrontalName.size() == 12);

// Lateral pairs by sign 1..12: of the page's table, and of a planet.
// clang-format off
inline constexpr std::array<std::array<int, 2>, 12> kLateralName{{
    {5, 11}, {4, 10}, {6, 12}, {2, 8}, {1, 7}, {3, 9}, {5, 11}, {4, 10}, {6, 12}, {2, 8}, {1, 7}, {3, 9},
}};
inline constexpr std::array<std::array<int, 2>, 12> kPlanetLateral{{
    {5, 11}, {4, 10}, {9, 12}, {2, 8}, {1, 7}, {9, 12}, {5, 11}, {4, 10}, {3, 6}, {2, 8}, {1, 7}, {3, 6},
}};
// clang-format on
static_assert(kLateralName.size() == 12 && kPlanetLateral.size() == 12);

// Natural weights and sign scores, planets 1..9.
inline constexpr std::array<double, 9> kWeight{1.4, 1.6, 1.7, 1.3, 1.8, 1.2, 1.5, 1.1, 1.0};
inline constexpr std::array<double, 9> kSignScore{0.5, 0.7, 0.8, 0.4, 0.9, 0.3, 0.6, 0.2, 0.1};
static_assert(kWeight.size() == 9 && kSignScore.size() == 9);

bool inSigns(int s)
{
    return s >= 1 && s <= 12;
}
size_t at(int s)
{
    return static_cast<size_t>(s - 1);
}
bool odd(int s)
{
    return s % 2 != 0;
}

constexpr int Sun = 1, Mercury = 2, Venus = 3, Mars = 4, Jupiter = 5, Saturn = 6, Rahu = 8, Ketu = 9;
} // namespace

// ---- sign aspects ----

bool clsJaimini::SignsAspect(int a, int b)
{
    if (!inSigns(a) || !inSigns(b))
        return false;
    for (int from : kAspectedFrom[at(b)])
        if (from == a)
            return true;
    return false;
}

bool clsJaimini::JMalefic(int p)
{
    return p == Sun || p == Mars || p == Saturn || p == Rahu || p == Ketu;
}
bool clsJaimini::JBenefic(int p)
{
    return p == Mercury || p == Venus || p == Jupiter || p == 7;
}

bool clsJaimini::JAspectedBy(int s, int p) const
{
    return p >= 1 && p <= 9 && SignsAspect(Sign(p), s);
}

bool clsJaimini::JAspByMalefic(int s) const
{
    if (!inSigns(s))
        return false;
    for (int p = 1; p <= 9; ++p)
        if (JMalefic(p) && JAspectedBy(s, p))
            return true;
    return false;
}

bool clsJaimini::JAspByBenefic(int s) const
{
    if (!inSigns(s))
        return false;
    for (int p = 1; p <= 9; ++p)
        if (JBenefic(p) && JAspectedBy(s, p))
            return true;
    return false;
}

int clsJaimini::CountPltInSignMB(int s, int kind) const
{
    int count = 0;
    for (int p = 1; p <= (kind == 1 ? 7 : 9); ++p)
        if (Sign(p) == s && (kind == 1 ? JBenefic(p) : JMalefic(p)))
            ++count;
    return count;
}

bool clsJaimini::IfPlanetJAspects(int p, int q, double &x) const
{
    const int from = x != 0 ? static_cast<int>(Fix(x / 30)) + 1 : Sign(p);
    return SignsAspect(from, Sign(q));
}

bool clsJaimini::IfPlanetJAspects(int p, int q) const
{
    double x = 0;
    return IfPlanetJAspects(p, q, x);
}

bool clsJaimini::IfDrekPlanetJAspects(int p, int q) const
{
    const int mode = Sex() == 1 ? 2 : 3;
    const int a = JmnDrkSign(p, mode);
    return SignsAspect(a, JmnDrkSign(q, mode));
}

bool clsJaimini::IfNavPlanetJAspects(int p, int q) const
{
    return SignsAspect(JaiminiNavamshSign(p), JaiminiNavamshSign(q));
}

// ---- frontal and lateral tables ----

int clsJaimini::PlanetFrontalSign(int p) const
{
    return inSigns(Sign(p)) ? kPlanetFrontal[at(Sign(p))] : 0;
}
int clsJaimini::FrontalSign(int p) const
{
    return inSigns(Sign(p)) ? kFrontal[at(Sign(p))] : 0;
}
int clsJaimini::PlanetLateralSignA(int p) const
{
    return inSigns(Sign(p)) ? kPlanetLateral[at(Sign(p))][0] : 0;
}
int clsJaimini::PlanetLateralSignB(int p) const
{
    return inSigns(Sign(p)) ? kPlanetLateral[at(Sign(p))][1] : 0;
}

int clsJaimini::FrontalAspectSign(int p) const
{
    const int s = PlanetFrontalSign(p);
    return s != 0 && m_chart.CountPlanetInSign(s) >= 1 ? s : 0;
}

int clsJaimini::FrontalAspectNameSign(int s)
{
    return inSigns(s) ? kFrontalName[at(s)] : 0;
}

std::pair<int, int> clsJaimini::LateralAspectNameSigns(int s)
{
    return inSigns(s) ? std::pair<int, int>{kLateralName[at(s)][0], kLateralName[at(s)][1]} : std::pair<int, int>{0, 0};
}

QString clsJaimini::FrontalAspectName(int s) const
{
    const int f = FrontalAspectNameSign(s);
    if (f == 0)
        return {};
    const QString plus = LangSeparator(m_chart.GetTxtDB(), 5);
    QString text = m_chart.ConvertRashi(f);
    for (int p = 0; p <= 9; ++p)
        if (m_chart.PlanetSign(p) == f)
            text += QLatin1Char(' ') + plus + QLatin1Char(' ') + m_chart.PlanetName(p);
    return text;
}

QString clsJaimini::LateralAspectName(int s) const
{
    const auto [a, b] = LateralAspectNameSigns(s);
    if (a == 0)
        return {};
    const QString plus = LangSeparator(m_chart.GetTxtDB(), 5);
    return m_chart.ConvertRashi(a) + QLatin1Char(' ') + plus + QLatin1Char(' ') + m_chart.ConvertRashi(b);
}

// ---- comparisons of planets ----

double clsJaimini::PlanetWeight(int p)
{
    return p >= 1 && p <= 9 ? kWeight[static_cast<size_t>(p - 1)] : 0;
}

double clsJaimini::SignPlanetScore(int k) const
{
    const int s = Clock12(Sign(0) + k);
    double score = 0;
    for (int p = 1; p <= 9; ++p)
        if (Sign(p) == s)
            score += kSignScore[static_cast<size_t>(p - 1)];
    return score;
}

namespace {
enum class Dignity { Exalted, Own, Debilitated };
} // namespace

int clsJaimini::StrongerPlanet(int a, int b) const
{
    if (a == b)
        return a;
    const auto own = [this](int p) { return clsPlanets::CheckOwnHouse(p, Sign(p)); };
    const bool exA = Exalted(a), exB = Exalted(b);
    if (exA != exB)
        return exA ? a : b;
    if (!exA) {
        const bool ownA = own(a), ownB = own(b);
        if (ownA != ownB)
            return ownA ? a : b;
        if (!ownA) {
            const bool deA = Debilitated(a), deB = Debilitated(b);
            if (deA != deB)
                return deA ? b : a;
        }
    }
    if (KrishAmsha(a) != KrishAmsha(b))
        return KrishAmsha(a) > KrishAmsha(b) ? a : b;
    return PlanetWeight(b) > PlanetWeight(a) ? b : a;
}

int clsJaimini::StrongerOfThree(int a, int b, int c) const
{
    if (a == b && b == c)
        return a;
    if (a == b || a == c)
        return StrongerPlanet(a, a == b ? c : b);
    if (b == c)
        return StrongerPlanet(a, b);
    const std::array<int, 3> three{a, b, c};
    // The greatest degrees within the sign among those marked, then the greatest weight; the
    // first in the order a, b, c on a full tie.
    const auto bestOf = [this, &three](const std::array<bool, 3> &marked) {
        int best = 0;
        for (size_t i = 0; i < 3; ++i) {
            const int p = three[i];
            if (!marked[i])
                continue;
            if (best == 0 || KrishAmsha(p) > KrishAmsha(best) ||
                (KrishAmsha(p) == KrishAmsha(best) && PlanetWeight(p) > PlanetWeight(best)))
                best = p;
        }
        return best;
    };
    const auto own = [this](int p) { return clsPlanets::CheckOwnHouse(p, Sign(p)); };
    for (Dignity test : {Dignity::Exalted, Dignity::Own, Dignity::Debilitated}) {
        std::array<bool, 3> pass{};
        int passing = 0;
        for (size_t i = 0; i < 3; ++i) {
            const int p = three[i];
            // Debilitation counts against a planet: those free of it pass.
            pass[i] = test == Dignity::Exalted ? Exalted(p) : test == Dignity::Own ? own(p) : !Debilitated(p);
            passing += pass[i] ? 1 : 0;
        }
        if (test == Dignity::Debilitated && passing == 0)
            pass = {true, true, true}, passing = 3; // all three debilitated alike
        if (test == Dignity::Debilitated && passing == 3)
            break; // none debilitated: nothing told apart
        if (passing >= 1)
            return bestOf(pass);
    }
    return bestOf({true, true, true});
}

// ---- the parity step and the ladder of two lords ----

// 1 when x wins, 2 when y wins, 0 when the parity of the signs and of their dispositors' signs
// doesn't tell them apart.
int clsJaimini::parityStep(int x, int y) const
{
    const auto dispositorOdd = [this](int p) { return odd(Sign(SignLord(Sign(p)))); };
    const bool xOdd = odd(Sign(x)), yOdd = odd(Sign(y));
    if (xOdd != yOdd)
        return xOdd ? 1 : 2;
    const bool dx = dispositorOdd(x), dy = dispositorOdd(y);
    if (dx == dy)
        return 0;
    // In odd signs the planet with the even dispositor wins; in even signs the one with the odd.
    const bool xWins = xOdd ? !dx : dx;
    return xWins ? 1 : 2;
}

// 1 when x is the stronger, 2 when y: a dignity that one alone holds decides, then the greater
// degrees within the sign, the parity step and the greater natural weight; x on a full tie.
int clsJaimini::lordLadder(int x, int y) const
{
    if (x == y)
        return 1;
    const auto own = [this](int p) { return clsPlanets::CheckOwnHouse(p, Sign(p)); };
    const std::array<std::pair<bool, bool>, 3> dignity{{
        {Exalted(x), Exalted(y)},
        {own(x), own(y)},
        {Debilitated(x), Debilitated(y)},
    }};
    for (size_t k = 0; k < dignity.size(); ++k) {
        const auto [dx, dy] = dignity[k];
        if (dx && dy)
            break;
        if (dx != dy) {
            const bool xHolds = dx;
            return (k == 2 ? !xHolds : xHolds) ? 1 : 2;
        }
    }
    if (KrishAmsha(x) != KrishAmsha(y))
        return KrishAmsha(x) > KrishAmsha(y) ? 1 : 2;
    if (const int parity = parityStep(x, y))
        return parity;
    return PlanetWeight(y) > PlanetWeight(x) ? 2 : 1;
}

// ---- the house ladder ----

namespace {
struct HouseFacts
{
    int count = 0, exalted = 0, own = 0, debilitated = 0;
    double degrees = 0;
};
} // namespace

// 1 when house a is the stronger, 2 when house b, 0 when the ladder leaves them equal.
int clsJaimini::houseWinner(int a, int b) const
{
    const int sa = Clock12(Sign(0) + a), sb = Clock12(Sign(0) + b);
    const int la = SignLord(sa), lb = SignLord(sb);
    const auto facts = [this](int s) {
        HouseFacts f;
        for (int p = 1; p <= 9; ++p) {
            if (Sign(p) != s)
                continue;
            ++f.count;
            f.degrees = std::max(f.degrees, KrishAmsha(p));
            f.exalted += Exalted(p) ? 1 : 0;
            f.own += clsPlanets::CheckOwnHouse(p, Sign(p)) ? 1 : 0;
            f.debilitated += Debilitated(p) ? 1 : 0;
        }
        return f;
    };
    const HouseFacts fa = facts(sa), fb = facts(sb);
    if (fa.count != fb.count)
        return fa.count > fb.count ? 1 : 2;
    if (fa.count == 0)
        return lordLadder(la, lb);

    // Equal counts above 0: the first step that tells the houses apart decides.
    const auto byDegrees = [&]() {
        if (fa.degrees != fb.degrees)
            return fa.degrees > fb.degrees ? 1 : 2;
        return parityStep(la, lb);
    };
    const std::array<std::pair<int, int>, 3> tallies{
        {{fa.exalted, fb.exalted}, {fa.own, fb.own}, {fa.debilitated, fb.debilitated}}};
    for (size_t k = 0; k < tallies.size(); ++k) {
        const auto [ta, tb] = tallies[k];
        if (ta == tb && ta > 0) {
            if (const int w = byDegrees())
                return w;
        } else if (ta != tb) {
            // More exalted or own planets are better; more debilitated ones worse.
            return (k == 2 ? ta < tb : ta > tb) ? 1 : 2;
        }
    }
    if (const int w = byDegrees())
        return w;
    const double first = SignPlanetScore(0), second = SignPlanetScore(6);
    if (first != second)
        return first < second ? 2 : 1;
    return 0;
}

int clsJaimini::ReckoningPoint(int a, int b) const
{
    return Clock12(Sign(0) + (houseWinner(a, b) == 2 ? b : a));
}

double clsJaimini::ReckoningPointLongi(int a, int b) const
{
    return houseWinner(a, b) == 2 ? Norm360(PlanetLongi(0) + 180) : PlanetLongi(0);
}

// ---- co-lords ----

// The stronger co-lord of a sign with two lords: the planet of the two with more company, then
// the one in the sign of the higher class, then by the distance of its sign from the co-lords' sign.
int clsJaimini::coLord(int main, int node, int sign) const
{
    const auto company = [this, main, node](int p) {
        int n = 0;
        for (int q = 1; q <= 9; ++q)
            if (q != main && q != node && Sign(q) == Sign(p))
                ++n;
        return n;
    };
    const int cm = company(main), cn = company(node);
    if (cm != cn)
        return cm > cn ? main : node;
    const int km = ConstClsOfSigns(main), kn = ConstClsOfSigns(node);
    if (km != kn)
        return km > kn ? main : node;
    return Clock12(Sign(main) - sign) > Clock12(Sign(node) - sign) ? main : node;
}

int clsJaimini::LordOfAquarius() const
{
    return coLord(Saturn, Rahu, 11);
}
int clsJaimini::LordOfScorpio() const
{
    return coLord(Mars, Ketu, 8);
}

int clsJaimini::AK8DLord() const
{
    const int s = Clock12(AtmaKarakaSign() + 7);
    if (s == 11)
        return LordOfAquarius();
    if (s == 8)
        return LordOfScorpio();
    return SignLord(s);
}

// ---- Brahma, Rudra, Maheshwara ----

int clsJaimini::Brahma() const
{
    const int a = AK8DLord();
    const int eighth = Clock12(AtmaKarakaSign() + 7);
    int d = 0;
    if (a == Saturn && Sign(Saturn) == 11)
        d = Mars;
    else if (a == Rahu && Sign(Rahu) == 11)
        d = Mercury;
    else if (a == Ketu && Sign(Ketu) == 8)
        d = Jupiter;
    else if (a == SignLord(eighth) && clsPlanets::CheckOwnHouse(a, Sign(a)))
        d = a;
    if (d != 0 && Norm360(PlanetLongi(d) - m_chart.BhavMid(6)) < 180)
        return d;

    const int r = ReckoningPoint(0, 6);
    const auto candidate = [this](int s) {
        if (s == 11) {
            const int lord = LordOfAquarius();
            return lord == Saturn ? Mars : Mercury;
        }
        if (s == 8) {
            const int lord = LordOfScorpio();
            return lord == Ketu ? Jupiter : lord;
        }
        if (s == 10)
            return Mars;
        return SignLord(s);
    };
    const double far = Norm360(ReckoningPointLongi(0, 6) + 180);
    const auto passes = [this, far](int k) { return Norm360(PlanetLongi(k) - far) < 180; };
    const auto choose = [&](std::array<int, 3> houses) {
        std::vector<int> passing;
        for (int h : houses) {
            const int k = candidate(Clock12(r + h - 1));
            if (passes(k))
                passing.push_back(k);
        }
        switch (passing.size()) {
        case 1:
            return passing[0];
        case 2:
            return StrongerPlanet(passing[0], passing[1]);
        case 3:
            return StrongerOfThree(passing[0], passing[1], passing[2]);
        default:
            return 0;
        }
    };
    if (const int k = choose({6, 8, 12}))
        return k;
    return choose({6, 2, 12});
}

int clsJaimini::NominalBrahma() const
{
    const int a = AK8DLord();
    if (a == Saturn && Sign(Saturn) == 11)
        return Saturn;
    if (a == Rahu && Sign(Rahu) == 11)
        return Rahu;
    if (a == Ketu && Sign(Ketu) == 8)
        return Ketu;
    const int r = ReckoningPoint(0, 6);
    for (int h : {6, 8, 12}) {
        const int s = Clock12(r + h - 1);
        if (s == 11)
            return LordOfAquarius();
        if (s == 8 && LordOfScorpio() == Ketu)
            return Ketu;
        if (s == 10)
            return Saturn;
    }
    return 0;
}

int clsJaimini::AlternateBrahma() const
{
    switch (NominalBrahma()) {
    case Saturn:
        return Mars;
    case Rahu:
        return Mercury;
    case Ketu:
        return Jupiter;
    default:
        return 0;
    }
}

int clsJaimini::Rudra() const
{
    const int x = SignLord(Clock12(Sign(0) + 1)), y = SignLord(Clock12(Sign(0) + 7));
    return lordLadder(x, y) == 2 ? y : x;
}

int clsJaimini::ApraniRudra() const
{
    const int x = SignLord(Clock12(Sign(0) + 1)), y = SignLord(Clock12(Sign(0) + 7));
    const int o = Rudra() == x ? y : x;
    for (int p = 1; p <= 9; ++p)
        if (p != o && JMalefic(p) && Sign(p) == Sign(o))
            return o;
    return JAspByMalefic(Sign(o)) ? o : 0;
}

int clsJaimini::PraniRudra() const
{
    const int r = Rudra();
    for (int p = 1; p <= 9; ++p)
        if (p != r && JBenefic(p) && Sign(p) == Sign(r))
            return r;
    return JAspByBenefic(Sign(r)) ? r : 0;
}

int clsJaimini::Maheshwara() const
{
    const int k = AtmaKarakaSign();
    const int e = SignLord(Clock12(k + 7)), t = SignLord(Clock12(k + 11));
    const auto node = [this](int s) { return Sign(Rahu) == s || Sign(Ketu) == s; };
    const bool n = node(k) || node(Clock12(k + 7));
    const bool m = Exalted(e) || clsPlanets::CheckOwnHouse(e, Sign(e));
    if (!n && !m)
        return e;
    if (n && !m)
        return StrongerPlanet(Venus, e);
    const int f = StrongerPlanet(e, t);
    return n ? StrongerOfThree(Venus, f, e) : StrongerPlanet(f, e);
}

// ---- score of two houses ----

int clsJaimini::StrongerTrineSign(int a, int b) const
{
    // Thousandths, so that equal scores compare equal.
    const auto score = [this](int s) {
        const int lord = SignLord(s);
        long total = 0;
        int count = 0;
        for (int p = 1; p <= 9; ++p) {
            if (Sign(p) != s)
                continue;
            ++count;
            for (int q : {lord, Jupiter, Mercury}) {
                if (q != p && Sign(q) == s)
                    total += 10;
                if (JAspectedBy(s, q))
                    total += 5;
            }
        }
        if (count == 0)
            for (int q : {lord, Jupiter, Mercury})
                if (JAspectedBy(s, q))
                    total += 5;
        return total + 1000L * count;
    };
    const int sa = Clock12(Sign(0) + a), sb = Clock12(Sign(0) + b);
    const long ta = score(sa), tb = score(sb);
    if (ta == tb)
        return 0;
    return ta > tb ? sa : sb;
}

// ---- planets in quadrant order ----

std::vector<std::pair<int, int>> clsJaimini::PlanetsByQuadrants(int s) const
{
    std::vector<std::pair<int, int>> listed;
    for (int i = 0; i < 3 && listed.size() < 9; ++i)
        for (int j = 0; j < 4 && listed.size() < 9; ++j) {
            const int sign = Clock12(s + i + 3 * j);
            for (int p = 1; p <= 9 && listed.size() < 9; ++p)
                if (Sign(p) == sign)
                    listed.emplace_back(p, sign);
        }
    return listed;
}
