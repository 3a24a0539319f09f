// SPDX-License-Identifier: AGPL-3.0-or-later
#include "jaimini/clsJaiminiSystem.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <algorithm>

namespace {

int wrap(int x)
{
    return static_cast<int>(Clock12(x));
}
bool odd(int s)
{
    return s % 2 != 0;
}
int lordOf(int s)
{
    return clsPlanets::SignLord(s);
}

// Start and step of the RBNS sequence, one row per Lagna sign. A sign with two steps takes the
// second after the 3rd, 6th and 9th sign, so that one trine is walked before the next.
struct RbnsRow
{
    int startMale, startOther, step, stepAfterTrine;
};
inline constexpr std::array<RbnsRow, 12> kRbns{{
    {1, 4, +1, +1},  // Aries
    {2, 11, -5, -5}, // Taurus
    {3, 6, +4, +5},  // Gemini
    {4, 1, -1, -1},  // Cancer
    {5, 8, +5, +5},  // Leo
    {6, 3, -4, -5},  // Virgo
    {7, 10, +1, +1}, // Libra
    {8, 5, -5, -5},  // Scorpio
    {9, 12, +4, +5}, // Sagittarius
    {10, 7, -1, -1}, // Capricorn
    {11, 2, +5, +5}, // Aquarius
    {12, 9, -4, -5}, // Pisces
}};
static_assert(kRbns.size() == 12);

// count signs from start by the steps of the RBNS row of stepSign.
std::vector<int> rbnsWalk(int start, int stepSign, int count)
{
    if (stepSign < 1 || stepSign > 12)
        return {};
    const RbnsRow &r = kRbns[static_cast<size_t>(stepSign - 1)];
    std::vector<int> out{start};
    for (int i = 1; i < count; ++i)
        out.push_back(wrap(out.back() + (i % 3 == 0 ? r.stepAfterTrine : r.step)));
    return out;
}

// Drig: the Lagna's sign and its trines, then the next sign's trines, and so on.
inline constexpr std::array<int, 12> kDrigOffsets{0, 4, 8, 1, 5, 9, 2, 6, 10, 3, 7, 11};
// Mandook of the fixed nine years: the first sign, then the Drig order from it.
inline constexpr std::array<int, 11> kMandookNine{4, 8, 1, 5, 9, 2, 6, 10, 3, 7, 11};
// Mandook by the Drig years: the first sign and its quadrants, then the next sign's.
inline constexpr std::array<int, 11> kMandookLeap{3, 6, 9, 1, 4, 7, 10, 2, 5, 8, 11};
// Drekkana of a dual first sign: its quadrants, then the next sign's.
inline constexpr std::array<int, 9> kDrekkanaDual{0, 3, 6, 9, 1, 4, 7, 10, 2};
// Sthira Paryaya: the first sign and its 7th, then the next pair.
inline constexpr std::array<int, 9> kSthiraParyaya{0, 6, 1, 7, 2, 8, 3, 9, 4};

// The Trine dasha's order, by the pair of starting signs, for a man and for a woman.
struct TrineRow
{
    int startA, startB;
    std::array<int, 12> male, other;
};
inline constexpr std::array<TrineRow, 6> kTrine{{
    {1, 8, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}, {8, 3, 10, 5, 12, 7, 2, 9, 4, 11, 6, 1}},
    {2, 7, {7, 8, 9, 10, 11, 12, 1, 2, 3, 4, 5, 6}, {2, 9, 4, 11, 6, 1, 8, 3, 10, 5, 12, 7}},
    {3, 6, {3, 7, 11, 4, 8, 12, 5, 9, 1, 6, 10, 2}, {6, 2, 10, 5, 1, 9, 4, 12, 8, 3, 11, 7}},
    {4, 11, {11, 4, 9, 2, 7, 12, 5, 10, 3, 8, 1, 6}, {4, 3, 2, 1, 12, 11, 10, 9, 8, 7, 6, 5}},
    {5, 10, {5, 10, 3, 8, 1, 6, 11, 4, 9, 2, 7, 12}, {10, 9, 8, 7, 6, 5, 4, 3, 2, 1, 12, 11}},
    {9, 12, {9, 1, 5, 10, 2, 6, 11, 3, 7, 12, 4, 8}, {12, 8, 4, 11, 7, 3, 10, 6, 2, 9, 5, 1}},
}};

// Trine and Navamsha years: 12 with the lord in the sign, 10 in its 7th, else counted forward
// from an odd sign to the lord and backward from an even one.
int trineYears(int s, int lordSign)
{
    if (lordSign == s)
        return 12;
    if (lordSign == wrap(s + 6))
        return 10;
    return odd(s) ? wrap(lordSign - s) : wrap(s - lordSign);
}

JaiminiDashaTable signsOnly(const std::vector<int> &signs, double years)
{
    JaiminiDashaTable t;
    for (int s : signs)
        t.push_back({s, 0, years});
    return t;
}

} // namespace

clsJaiminiSystem::clsJaiminiSystem(const clsJaimini &core) : m_basis(MakeJaiminiDashaBasis(core))
{
    build();
}

clsJaiminiSystem::clsJaiminiSystem(std::unique_ptr<JaiminiDashaBasis> basis) : m_basis(std::move(basis))
{
    build();
}

void clsJaiminiSystem::build()
{
    const int g = m_basis->LagnaSign();
    if (g >= 1 && g <= 12) {
        const RbnsRow &r = kRbns[static_cast<size_t>(g - 1)];
        const std::vector<int> seq = rbnsWalk(m_basis->Sex() == 1 ? r.startMale : r.startOther, g, 12);
        std::copy(seq.begin(), seq.end(), m_rbnsSequence.begin());
    }
    CharaRBNS();
    Sthira(2);
    Sthira(1);
    Drig();
}

const JaiminiDashaTable &clsJaiminiSystem::memo(Table t, int mode, JaiminiDashaTable (clsJaiminiSystem::*fill)(int) const) const
{
    const auto key = std::make_pair(t, mode);
    auto it = m_tables.find(key);
    if (it == m_tables.end())
        it = m_tables.emplace(key, (this->*fill)(mode)).first;
    return it->second;
}

// ---- Sign groupings ----

int clsJaiminiSystem::SignClassYears(int s)
{
    if (s < 1 || s > 12)
        return 0;
    return 6 + SignClass(s);
}

QString clsJaiminiSystem::JDashaName(int s)
{
    static const char *const names[] = {"Aries", "Taurus",  "Gemini",      "Cancer",    "Leo",      "Virgo",
                                        "Libra", "Scorpio", "Sagittarius", "Capricorn", "Aquarius", "Pisces"};
    if (s < 1 || s > 12)
        return {};
    return QString::fromLatin1(names[s - 1]) + QStringLiteral(" Dasha");
}

// ---- Chara dasha ----

int clsJaiminiSystem::DashaDurationRBNS(int s) const
{
    if (s < 1 || s > 12)
        return 0;
    const int S = m_basis->Sign(lordOf(s));
    if (S == s)
        return 12;
    if (S == wrap(s + 6))
        return 10;
    return odd(S) ? wrap(s - S) : wrap(S - s);
}

int clsJaiminiSystem::nlktPlain(int s, int lordSign) const
{
    if (lordSign == s)
        return 12;
    return DirectGroup(s) == 2 ? wrap(s - lordSign) : wrap(lordSign - s);
}

// Aquarius and Scorpio have two lords each: Saturn and Rahu, Mars and Ketu.
int clsJaiminiSystem::nlktCoLord(int s, int mode) const
{
    const bool aquarius = s == 11;
    const int P = aquarius ? 6 : 4;
    const int Q = aquarius ? 8 : 9;
    const int O = aquarius ? 10 : 1; // the planet's other sign
    const int sp = m_basis->Sign(P), sq = m_basis->Sign(Q);
    if (sp == s && sq == s)
        return 12;
    if (sp == sq)
        return nlktPlain(s, sp);
    if ((sp == O || sp == s) && sq != s)
        return nlktPlain(s, sq);
    if (sq == s)
        return nlktPlain(s, sp);
    const int X = aquarius ? m_basis->LordOfAquarius() : m_basis->LordOfScorpio();
    int years = nlktPlain(s, m_basis->Sign(X));
    if (mode == 3 && X == P) {
        if (m_basis->Exalted(P))
            ++years;
        else if (m_basis->Debilitated(P))
            --years;
    }
    return years;
}

int clsJaiminiSystem::DashaDurationNLKT(int s, int mode) const
{
    if (s < 1 || s > 12)
        return 0;
    if ((mode == 2 || mode == 3) && (s == 8 || s == 11))
        return nlktCoLord(s, mode);
    const int L = lordOf(s);
    const int S = m_basis->Sign(L);
    const int d = nlktPlain(s, S);
    if (mode != 3)
        return d;
    if (S == s)
        return m_basis->Exalted(L) ? 13 : 12;
    if (m_basis->Exalted(L))
        return d + 1;
    if (m_basis->Debilitated(L))
        return d - 1;
    return d;
}

std::array<int, 12> clsJaiminiSystem::SequenceJCD_NLKT() const
{
    const int g = m_basis->LagnaSign();
    const int dir = DirectGroup(wrap(g + 8)) == 1 ? 1 : -1;
    std::array<int, 12> out{};
    for (int k = 0; k < 12; ++k)
        out[static_cast<size_t>(k)] = wrap(g + dir * k);
    return out;
}

int clsJaiminiSystem::FullCycle(int which, int mode) const
{
    int sum = 0;
    for (int s = 1; s <= 12; ++s)
        sum += which == 1 ? DashaDurationNLKT(s, mode) : DashaDurationRBNS(s);
    return sum;
}

// ---- Sub-periods ----

std::vector<JaiminiBhuktiRow> clsJaiminiSystem::SetBhukti(int sign, int system, int kind, int nlktMode) const
{
    std::vector<JaiminiBhuktiRow> rows;
    if (sign < 1 || sign > 12)
        return rows;
    const int n = system == 2 ? DashaDurationRBNS(sign) : DashaDurationNLKT(sign, nlktMode);
    if (system == 2 && kind == 1) {
        const int first = m_basis->Sign(lordOf(sign));
        const int dir = odd(first) ? 1 : -1;
        for (int k = 0; k < n; ++k)
            rows.push_back({wrap(first + dir * k), 1});
        return rows;
    }
    const int dir = DirectGroup(wrap(m_basis->LagnaSign() + 8)) == 1 ? 1 : -1;
    for (int k = 1; k <= n; ++k)
        rows.push_back({wrap(sign + dir * k), static_cast<double>(n)});
    return rows;
}

JaiminiSSSPeriods clsJaiminiSystem::SSSPeriods(int s) const
{
    JaiminiSSSPeriods out;
    if (s < 1 || s > 12)
        return out;
    const double n = DashaDurationRBNS(s);
    out.RowLength = n;
    for (int j = 0; j < 3; ++j) {
        JaiminiSSSPeriods::Part &part = out.Parts[static_cast<size_t>(j)];
        part.Sign = wrap(s + 4 * j);
        part.Years = n / 3;
        for (int k = 0; k < 10; ++k) {
            JaiminiSSSPeriods::Sub &sub = part.Subs[static_cast<size_t>(k)];
            const int c = wrap(part.Sign + k);
            sub.Sign = odd(part.Sign) ? c : wrap(c + 8);
            sub.Months = n / 30 * 12;
            for (int r = 0; r < 12; ++r)
                sub.Signs[static_cast<size_t>(r)] = wrap(sub.Sign + r);
        }
    }
    return out;
}

// ---- The tables ----

JaiminiDashaTable clsJaiminiSystem::fillRbns(int) const
{
    JaiminiDashaTable t;
    for (int s : m_rbnsSequence)
        if (s != 0)
            t.push_back({s, 0, static_cast<double>(DashaDurationRBNS(s))});
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillNlkt(int mode) const
{
    JaiminiDashaTable t;
    for (int s : SequenceJCD_NLKT())
        t.push_back({s, 0, static_cast<double>(DashaDurationNLKT(s, mode))});
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillSthira(int mode) const
{
    // With no Brahma the planet number is 0, the Lagna, and the table starts from its sign.
    const int first = m_basis->Sign(m_basis->Brahma());
    const int dir = mode == 1 || odd(first) ? 1 : -1;
    JaiminiDashaTable t;
    for (int k = 0; k < 12; ++k) {
        const int s = wrap(first + dir * k);
        t.push_back({s, 0, static_cast<double>(SignClassYears(s))});
    }
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillDrig(int) const
{
    JaiminiDashaTable t;
    for (int k : kDrigOffsets) {
        const int s = wrap(m_basis->LagnaSign() + k);
        t.push_back({s, 0, static_cast<double>(SignClassYears(s))});
    }
    return t;
}

int clsJaiminiSystem::mandookStart() const
{
    return m_basis->Sex() == 1 ? m_basis->ReckoningPoint(0, 6) : m_basis->ReckoningPoint(3, 6);
}

JaiminiDashaTable clsJaiminiSystem::fillMandook(int mode) const
{
    JaiminiDashaTable t;
    if (mode != 1) {
        const int first = mandookStart();
        t.push_back({first, 0, 9});
        for (int k : kMandookNine)
            t.push_back({wrap(first + k), 0, 9});
        return t;
    }
    const int first = m_basis->ReckoningPoint(0, 6);
    const int dir = odd(first) ? 1 : -1;
    // The years of a sign are those of the Drig table, that is of its class.
    t.push_back({first, 0, static_cast<double>(SignClassYears(first))});
    for (int k : kMandookLeap) {
        const int s = wrap(first + dir * k);
        t.push_back({s, 0, static_cast<double>(SignClassYears(s))});
    }
    return t;
}

int clsJaiminiSystem::GetSthirDashaDuration(int s, int mode) const
{
    for (const JaiminiDashaRow &r : Sthira(mode))
        if (r.Sign == s)
            return static_cast<int>(r.Years);
    return 0;
}

JaiminiDashaTable clsJaiminiSystem::fillYogardha(int mode) const
{
    int first = 0, dir = 1, sthiraMode = 1;
    if (mode == 1) {
        first = m_basis->ReckoningPoint(0, 6);
        dir = odd(first) ? 1 : -1;
        sthiraMode = 2;
    } else {
        first = mandookStart();
    }
    JaiminiDashaTable t;
    for (int k = 0; k < 12; ++k) {
        const int s = wrap(first + dir * k);
        t.push_back({s, 0, (GetCharDashaNLKT(s, 2) + GetSthirDashaDuration(s, sthiraMode)) / 2.0});
    }
    return t;
}

// Nine rows: the planets from a sign through the quadrants, each with its own sign.
JaiminiDashaTable clsJaiminiSystem::quadrantKaraka(int fromSign) const
{
    const int lagna = m_basis->LagnaSign();
    JaiminiDashaTable t;
    for (const auto &[p, s] : m_basis->PlanetsByQuadrants(fromSign)) {
        int years = 0;
        if (p == 9)
            years = s;
        else if (lordOf(s) == p)
            years = 12;
        else
            years = std::max(wrap(s - lagna + 1), wrap(s + 1 - wrap(lagna + 6)));
        t.push_back({s, p, static_cast<double>(years)});
    }
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillKaraka(int mode) const
{
    if (mode != 1)
        return quadrantKaraka(m_basis->AtmaKarakaSign());
    const int lagna = m_basis->LagnaSign();
    JaiminiDashaTable t;
    for (int i = 1; i <= 8; ++i) {
        const int s = m_basis->Sign(m_basis->AshtaCharaKaraka(i));
        t.push_back({s, 0, static_cast<double>(s == lagna ? 12 : wrap(s - lagna))});
    }
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillUpaKaraka(int mode) const
{
    if (mode != 1)
        return quadrantKaraka(m_basis->Sign(m_basis->UpaKarakaGraha()));
    return fillKaraka(1);
}

JaiminiDashaTable clsJaiminiSystem::fillDrekkana(int mode) const
{
    JaiminiDashaTable t;
    if (mode < 1 || mode > 3)
        return t;
    const int lord = lordOf(wrap(m_basis->LagnaSign() + 6));
    const int D = m_basis->DrekkanaSign(lord, mode);
    if (D < 1 || D > 12)
        return t;
    const auto planets = m_basis->PlanetsByQuadrants(D);
    for (size_t i = 0; i < planets.size() && i < 9; ++i) {
        int s = 0;
        switch (SignClass(D)) {
        case 1:
            s = wrap(D + static_cast<int>(i));
            break;
        case 2:
            s = wrap(D + 5 * static_cast<int>(i));
            break;
        default:
            s = wrap(D + kDrekkanaDual[i]);
            break;
        }
        const int p = planets[i].first;
        const int sp = m_basis->Sign(p);
        t.push_back({s, p, static_cast<double>(odd(sp) ? wrap(s - sp) : wrap(sp - s + 1))});
    }
    return t;
}

int clsJaiminiSystem::CharaParyayaStart() const
{
    const int stronger = m_basis->StrongerTrineSign(0, 4);
    if (stronger > 0)
        return stronger;
    const int a = m_basis->ReckoningPoint(0, 4);
    const int b = m_basis->ReckoningPoint(0, 8);
    if (a == b)
        return a;
    const int lagna = m_basis->LagnaSign();
    return m_basis->ReckoningPoint(wrap(a - lagna), wrap(b - lagna));
}

// The Paryayas pair each sign with the planets taken from the Atma Karaka through the quadrants.
JaiminiDashaTable clsJaiminiSystem::paryayaRows(const std::vector<int> &signs) const
{
    const auto planets = m_basis->PlanetsByQuadrants(m_basis->AtmaKarakaSign());
    JaiminiDashaTable t;
    for (size_t i = 0; i < signs.size() && i < planets.size(); ++i) {
        const int s = signs[i];
        const int p = planets[i].first;
        const int sp = m_basis->Sign(p);
        const int years = sp == s ? 12 : DirectGroup(s) == 2 ? wrap(s - sp) : wrap(sp - s);
        t.push_back({s, p, static_cast<double>(years)});
    }
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillCharaParyaya(int) const
{
    const int start = CharaParyayaStart();
    if (start < 1 || start > 12)
        return {};
    return paryayaRows(rbnsWalk(start, start, 9));
}

JaiminiDashaTable clsJaiminiSystem::fillSthiraParyaya(int) const
{
    const bool male = m_basis->Sex() == 1;
    const int a = male ? 0 : 3, b = 6;
    int start = m_basis->StrongerTrineSign(a, b);
    if (start == 0)
        start = m_basis->ReckoningPoint(a, b);
    if (start < 1 || start > 12)
        return {};
    std::vector<int> signs;
    for (int k : kSthiraParyaya)
        signs.push_back(odd(start) ? wrap(start + k) : wrap(start - k));
    return paryayaRows(signs);
}

JaiminiDashaTable clsJaiminiSystem::fillTrine(int) const
{
    const int start = CharaParyayaStart();
    JaiminiDashaTable t;
    for (const TrineRow &row : kTrine) {
        if (row.startA != start && row.startB != start)
            continue;
        for (int s : m_basis->Sex() == 1 ? row.male : row.other)
            t.push_back({s, 0, static_cast<double>(trineYears(s, m_basis->Sign(lordOf(s))))});
    }
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillNavamsha(int) const
{
    const bool male = m_basis->Sex() == 1;
    const auto navSign = [&](int p) { return male ? m_basis->NavamshSign(p) : m_basis->kmNavSign(p); };
    const int start = navSign(lordOf(m_basis->ArudhaLagna(1)));
    JaiminiDashaTable t;
    if (start < 1 || start > 12)
        return t;
    for (int s : rbnsWalk(start, start, 12))
        t.push_back({s, 0, static_cast<double>(trineYears(s, navSign(lordOf(s))))});
    return t;
}

JaiminiDashaTable clsJaiminiSystem::fillFrontal(int) const
{
    const int lagna = m_basis->LagnaSign();
    const int frontal = m_basis->FrontalSign(0);
    const bool male = m_basis->Sex() == 1;
    const int first = male ? (odd(lagna) ? lagna : frontal) : (odd(lagna) ? frontal : lagna);
    const int dir = male ? 1 : -1;
    std::vector<int> signs;
    for (int k = 0; k < 12; ++k)
        signs.push_back(wrap(first + dir * k));
    return signsOnly(signs, 9);
}

JaiminiDashaTable clsJaiminiSystem::fillVarnada(int mode) const
{
    JaiminiDashaTable t;
    if (mode == 1)
        return t;
    const int lagna = m_basis->LagnaSign();
    const int first = m_basis->ReckoningPoint(0, wrap(m_basis->HoraLagna(2) - lagna));
    if (first < 1 || first > 12)
        return t;
    const int dir = odd(first) ? 1 : -1;
    for (int k = 0; k < 12; ++k) {
        const int s = wrap(first + dir * k);
        const int S = m_basis->Sign(lordOf(s));
        t.push_back({s, 0, static_cast<double>(odd(s) ? wrap(S - s) : wrap(s - S))});
    }
    return t;
}

// Two-mode tables keep mode 1 apart and any other mode as 2.
static int twoModes(int mode)
{
    return mode == 1 ? 1 : 2;
}

const JaiminiDashaTable &clsJaiminiSystem::CharaRBNS() const
{
    return memo(Table::Rbns, 0, &clsJaiminiSystem::fillRbns);
}
const JaiminiDashaTable &clsJaiminiSystem::CharaNLKT(int mode) const
{
    return memo(Table::Nlkt, std::clamp(mode, 1, 3) == mode ? mode : 1, &clsJaiminiSystem::fillNlkt);
}
const JaiminiDashaTable &clsJaiminiSystem::Sthira(int mode) const
{
    return memo(Table::Sthira, twoModes(mode), &clsJaiminiSystem::fillSthira);
}
const JaiminiDashaTable &clsJaiminiSystem::Drig() const
{
    return memo(Table::Drig, 0, &clsJaiminiSystem::fillDrig);
}
const JaiminiDashaTable &clsJaiminiSystem::Mandook(int mode) const
{
    return memo(Table::Mandook, twoModes(mode), &clsJaiminiSystem::fillMandook);
}
const JaiminiDashaTable &clsJaiminiSystem::Yogardha(int mode) const
{
    return memo(Table::Yogardha, twoModes(mode), &clsJaiminiSystem::fillYogardha);
}
const JaiminiDashaTable &clsJaiminiSystem::Karaka(int mode) const
{
    return memo(Table::Karaka, twoModes(mode), &clsJaiminiSystem::fillKaraka);
}
const JaiminiDashaTable &clsJaiminiSystem::UpaKaraka(int mode) const
{
    return memo(Table::UpaKaraka, twoModes(mode), &clsJaiminiSystem::fillUpaKaraka);
}
const JaiminiDashaTable &clsJaiminiSystem::Drekkana(int mode) const
{
    return memo(Table::Drekkana, mode, &clsJaiminiSystem::fillDrekkana);
}
const JaiminiDashaTable &clsJaiminiSystem::CharaParyaya() const
{
    return memo(Table::CharaParyaya, 0, &clsJaiminiSystem::fillCharaParyaya);
}
const JaiminiDashaTable &clsJaiminiSystem::SthiraParyaya() const
{
    return memo(Table::SthiraParyaya, 0, &clsJaiminiSystem::fillSthiraParyaya);
}
const JaiminiDashaTable &clsJaiminiSystem::Trine() const
{
    return memo(Table::Trine, 0, &clsJaiminiSystem::fillTrine);
}
const JaiminiDashaTable &clsJaiminiSystem::Navamsha() const
{
    return memo(Table::Navamsha, 0, &clsJaiminiSystem::fillNavamsha);
}
const JaiminiDashaTable &clsJaiminiSystem::Frontal() const
{
    return memo(Table::Frontal, 0, &clsJaiminiSystem::fillFrontal);
}
const JaiminiDashaTable &clsJaiminiSystem::Varnada(int mode) const
{
    return memo(Table::Varnada, twoModes(mode), &clsJaiminiSystem::fillVarnada);
}

// ---- Readers ----

QVariant clsJaiminiSystem::cell(const JaiminiDashaTable &t, int what, int row, bool hasPlanet)
{
    if (row < 1 || row > static_cast<int>(t.size()))
        return {};
    const JaiminiDashaRow &r = t[static_cast<size_t>(row - 1)];
    switch (what) {
    case 1:
        return r.Sign;
    case 2:
        return hasPlanet ? QVariant(r.Planet) : QVariant();
    case 3:
        return r.Years;
    default:
        return {};
    }
}

QVariant clsJaiminiSystem::JaiminiDrigDasha(int what, int row) const
{
    return cell(Drig(), what, row, false);
}
QVariant clsJaiminiSystem::JaiminiMandookDasha(int mode, int what, int row) const
{
    return cell(Mandook(mode), what, row, false);
}
QVariant clsJaiminiSystem::JaiminiDrekkanaDasha(int mode, int what, int row) const
{
    return cell(Drekkana(mode), what, row, true);
}
QVariant clsJaiminiSystem::JaiminiKarakaDasha(int mode, int what, int row) const
{
    return cell(Karaka(mode), what, row, mode != 1);
}
QVariant clsJaiminiSystem::JaiminiYogardhaDasha(int mode, int what, int row) const
{
    return cell(Yogardha(mode), what, row, false);
}
QVariant clsJaiminiSystem::JaiminiUpaKarakaDasha(int mode, int what, int row) const
{
    return cell(UpaKaraka(mode), what, row, mode != 1);
}
QVariant clsJaiminiSystem::JaiminiCharaDasha(int, int, int) const
{
    return {};
}

std::vector<JaiminiDashaEntry> clsJaiminiSystem::AllDashas() const
{
    std::vector<JaiminiDashaEntry> out;
    const auto add = [&out](const char *key, bool hasPlanet, const JaiminiDashaTable &t) {
        out.push_back({QString::fromLatin1(key), hasPlanet, t});
    };
    add("chara_rbns", false, CharaRBNS());
    add("chara_nlkt_1", false, CharaNLKT(1));
    add("chara_nlkt_2", false, CharaNLKT(2));
    add("chara_nlkt_3", false, CharaNLKT(3));
    add("sthira_1", false, Sthira(1));
    add("sthira_2", false, Sthira(2));
    add("drig", false, Drig());
    add("mandook_1", false, Mandook(1));
    add("mandook_2", false, Mandook(2));
    add("yogardha_1", false, Yogardha(1));
    add("yogardha_2", false, Yogardha(2));
    add("karaka_1", false, Karaka(1));
    add("karaka_2", true, Karaka(2));
    add("upa_karaka_1", false, UpaKaraka(1));
    add("upa_karaka_2", true, UpaKaraka(2));
    add("drekkana_1", true, Drekkana(1));
    add("drekkana_2", true, Drekkana(2));
    add("drekkana_3", true, Drekkana(3));
    add("chara_paryaya", true, CharaParyaya());
    add("sthira_paryaya", true, SthiraParyaya());
    add("trine", false, Trine());
    add("navamsha", false, Navamsha());
    add("frontal", false, Frontal());
    add("varnada_2", false, Varnada(2));
    return out;
}
