// SPDX-License-Identifier: AGPL-3.0-or-later
#include "text/ForText.h"

#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "strength/Ashtakavarga.h"

#include <array>
#include <initializer_list>

namespace {
QString nl() { return QStringLiteral("\n"); }

bool hasSign(std::initializer_list<int> signs, int s)
{
    for (int x : signs)
        if (x == s)
            return true;
    return false;
}

// The education table: for each Lagna, the signs where each house lord (1, 2, 4, 5, 9, 10, 11) and
// Mercury, Jupiter, Venus and the Moon earn their points. A flagged cell adds the nakshatra lord's score.
struct Cell
{
    std::array<int, 9> signs; // 0-terminated
    bool star;
};
using Row = std::array<Cell, 11>;
constexpr Cell c(std::initializer_list<int> s, bool star = false)
{
    Cell out{{}, star};
    size_t i = 0;
    for (int v : s)
        out.signs[i++] = v;
    return out;
}

// Columns L1, L2, L4, L5, L9, L10, L11, Me, Ju, Ve, Mo.
inline constexpr std::array<Row, 12> kTable{{
    {c({1, 4, 5, 8, 10, 11}), c({2, 4, 5, 8, 9, 10}), c({2, 4, 5, 8, 9, 11}, true), c({1, 4, 5, 8, 9}, true), c({1, 2, 4, 5, 8, 9, 10, 11}),
     c({1, 2, 3, 7, 9, 10, 11}), c({1, 2, 3, 9, 10, 11}), c({3, 6, 2, 5, 9, 10, 4}), c({1, 2, 4, 5, 8, 9, 10, 11}), c({2, 9, 10, 11}),
     c({2, 4, 5, 8, 9, 11})},
    {c({2, 3, 4, 6, 9, 11, 12}), c({3, 5, 6, 9, 10, 11}), c({3, 5, 6, 9, 10, 12}, true), c({2, 3, 5, 6, 9, 10, 11}, true),
     c({2, 3, 6, 9, 10, 11, 12}), c({2, 3, 6, 9, 10, 11, 12}), c({2, 3, 5, 6, 9, 10, 11, 12}), c({3, 6, 2, 5, 9, 10, 11}),
     c({2, 3, 5, 9, 10, 11, 12}), c({2, 3, 6, 9, 10, 11, 12}), c({2, 3, 5, 6, 9, 11, 12})},
    {c({3, 6, 7, 10, 12, 1}), c({4, 6, 7, 11, 12}), c({3, 6, 7, 10, 11, 12}, true), c({3, 4, 6, 7, 10, 11, 12}), c({3, 6, 10, 11, 12, 1}),
     c({3, 4, 6, 7, 10, 11, 12}), c({4, 10, 11, 12, 1}), c({3, 6, 7, 10, 11, 12}), c({3, 4, 6, 7, 10, 11, 12, 1}), c({3, 6, 7, 10, 11, 12}),
     c({3, 4, 6, 7, 11, 12})},
    {c({4, 5, 7, 8, 11, 2}), c({5, 7, 8, 12, 1}), c({7, 11, 12, 2}, true), c({4, 5, 8, 12, 1}, true), c({4, 5, 7, 8, 11, 12, 1, 2}),
     c({4, 5, 6, 8, 11, 12, 1}), c({4, 7, 11, 12, 2}), c({3, 6, 5, 7, 11, 12, 2}), c({4, 5, 7, 8, 11, 12, 1, 2}), c({7, 8, 11, 12, 2}),
     c({4, 5, 7, 8, 11, 12, 2})},
    {c({5, 6, 8, 9, 12, 1, 2, 3}), c({6, 9, 12, 2}), c({5, 8, 9, 12, 1}), c({5, 6, 8, 9, 12, 1, 2}), c({5, 8, 9, 12, 1}),
     c({5, 6, 9, 12, 2, 3}), c({5, 6, 9, 12, 2, 3}), c({3, 6, 5, 12, 2, 8}), c({5, 6, 8, 9, 12, 1, 2, 3}), c({6, 9, 10, 12, 2, 3}),
     c({5, 6, 8, 9, 12, 2, 3})},
    {c({6, 7, 9, 10, 2, 3}), c({7, 9, 10, 2, 3}), c({6, 7, 9, 10, 1, 2, 3}), c({6, 7, 9, 10, 1, 2}, true), c({6, 7, 9, 10, 2, 3}),
     c({6, 7, 9, 10, 2, 3}), c({7, 9, 10, 2, 3, 4}), c({3, 6, 7, 9, 10, 2}), c({6, 7, 9, 10, 1, 2, 3, 4}), c({6, 7, 9, 10, 2, 3}),
     c({6, 7, 9, 2, 3, 4})},
    {c({7, 10, 11, 3, 4, 5}), c({8, 10, 11, 5}), c({7, 10, 11, 2, 3}, true), c({7, 10, 11, 2, 3}, true), c({7, 10, 11, 2, 3, 5}),
     c({7, 8, 11, 2, 4, 5}), c({7, 8, 10, 11, 2, 3, 4, 5}), c({3, 6, 7, 10, 11, 2}), c({7, 8, 10, 11, 2, 3, 4, 5}), c({7, 10, 11, 2, 3}),
     c({7, 8, 11, 2, 3, 4, 5})},
    {c({8, 9, 11, 12, 4, 5}), c({9, 12, 1, 4, 5, 6}), c({9, 11, 12, 3}, true), c({8, 9, 11, 12, 3, 4, 5}, true), c({8, 9, 11, 12, 4, 5}),
     c({8, 9, 12, 3, 4, 5}), c({9, 11, 12, 3, 5, 6}), c({3, 6, 9, 11, 12, 5}), c({8, 9, 11, 12, 3, 4, 5, 6}), c({9, 11, 12, 3, 6}),
     c({8, 9, 11, 12, 3, 4, 5, 6})},
    {c({9, 10, 12, 1, 4, 5, 6, 7}), c({10, 12, 1, 6, 7}), c({9, 10, 12, 1, 4, 5, 6}, true), c({9, 10, 12, 1, 4, 5}, true),
     c({9, 12, 1, 4, 5, 6, 7}), c({9, 10, 12, 5, 6, 7}), c({9, 10, 12, 4, 5, 6, 7}), c({3, 6, 10, 11, 2, 5, 7, 1}),
     c({9, 10, 12, 1, 4, 5, 6, 7}), c({9, 10, 12, 6}), c({12, 4, 5, 6, 7})},
    {c({10, 11, 1, 2, 7, 6}), c({11, 2, 3, 6, 7, 9}), c({10, 11, 1, 2, 5, 8}, true), c({10, 11, 2, 6, 7}, true), c({10, 11, 2, 5, 6, 7}),
     c({10, 11, 2, 6, 7}), c({11, 12, 2, 3, 6, 7, 8, 9}), c({3, 6, 11, 12, 2, 7, 9}), c({10, 11, 1, 2, 5, 6, 7, 8}), c({10, 11, 2, 6, 7}),
     c({11, 2, 5, 6, 7, 8})},
    {c({11, 12, 2, 3, 6, 7, 9}), c({12, 2, 3, 6, 7, 8, 9}), c({12, 2, 3, 6, 7, 9}), c({11, 12, 2, 3, 6, 7, 9}, true),
     c({11, 12, 2, 3, 6, 7, 9}), c({11, 12, 8, 9}), c({11, 12, 2, 3, 6, 7, 8, 9}), c({3, 6, 11, 12, 2, 7, 9}),
     c({11, 12, 2, 3, 6, 7, 8, 9}), c({11, 12, 2, 3, 6, 7, 9}), c({12, 2, 3, 6, 7, 8, 9})},
    {c({12, 1, 3, 4, 7, 8, 10}), c({1, 4, 7, 8, 9, 10}), c({12, 3, 7, 9}, true), c({12, 5, 7, 8, 9}, true), c({12, 1, 4, 7, 8, 9, 10}),
     c({12, 1, 3, 4, 7, 8, 9, 10}), c({12, 1, 3, 7, 9, 10}), c({3, 6, 12, 7, 9, 10}), c({12, 1, 3, 4, 7, 8, 9, 10}), c({12, 3, 7, 9, 10}),
     c({12, 3, 4, 7, 8, 9})},
}};

bool inCell(const Cell &cell, int s)
{
    for (int v : cell.signs)
        if (v != 0 && v == s)
            return true;
    return false;
}
} // namespace

int ForText::sign(int p) const { return static_cast<int>(Int(m_c.PlanetLongi(p) / 30)) % 12 + 1; }

int ForText::lordOfHouse(int house) const { return clsPlanets::FindRashiLordNo(Norm12(lagna() + house - 1)); }

QString ForText::fortune(const QString &category, const QString &head)
{
    m_keys << category + QLatin1Char('/') + head;
    return m_c.GetHeadValue(6, head, category).toString();
}

// ---- the education scores ----

int ForText::FindNakLordScore(double longitude, int lagnaSign) const
{
    const int lord = clsPlanets::NakLordNum(static_cast<int>(Int(longitude / (360.0 / 27.0))) + 1);
    const int s = sign(lord);
    const bool bad = s == Norm12(lagnaSign + 5) || s == Norm12(lagnaSign + 7) || s == Norm12(lagnaSign + 11);
    return bad ? 0 : 5;
}

// Column 0..10 of the table: L1, L2, L4, L5, L9, L10, L11, Me, Ju, Ve, Mo.
int ForText::columnScore(int column)
{
    static constexpr std::array<int, 7> kHouses{1, 2, 4, 5, 9, 10, 11};
    static constexpr std::array<int, 4> kPlanets{2, 5, 3, 7};
    const Cell &cell = kTable[static_cast<size_t>(lagna() - 1)][static_cast<size_t>(column)];
    const int planet = column < 7 ? lordOfHouse(kHouses[static_cast<size_t>(column)]) : kPlanets[static_cast<size_t>(column - 7)];
    const int points = column == 3 ? 15 : (planet == 2 || planet == 5) && column >= 7 ? 10 : 5;
    int score = 0;
    if (inCell(cell, sign(planet))) {
        score += points;
        if (cell.star)
            score += FindNakLordScore(m_c.PlanetLongi(planet), lagna());
    }
    // Mercury and Jupiter in Cancer gain, whatever the set says.
    if (column >= 7 && (planet == 2 || planet == 5) && sign(planet) == 4)
        score += 5;
    return score;
}

int ForText::FindAscLordScore() { return columnScore(0); }
int ForText::FindAscLord2Score() { return columnScore(1); }
int ForText::FindAscLord4Score() { return columnScore(2); }
int ForText::FindAscLord5Score() { return columnScore(3); }
int ForText::FindAscLord9Score() { return columnScore(4); }
int ForText::FindAscLord10Score() { return columnScore(5); }
int ForText::FindAscLord11Score() { return columnScore(6); }
int ForText::CheckMercury() { return columnScore(7); }
int ForText::CheckJupiter() { return columnScore(8); }
int ForText::CheckVenus() { return columnScore(9); }
int ForText::CheckMoon() { return columnScore(10); }

int ForText::FindCVP(double longitude)
{
    const double inSign = longitude - Int(longitude / 30) * 30;
    const int k = Norm12(static_cast<int>(Int(inSign / 1.25)) + 1);
    const int s = static_cast<int>(Int(longitude / 30)) % 12 + 1;
    return s % 2 == 1 ? Norm12(k + 4) : Norm12(k + 3);
}

int ForText::CheckCVLPos(int reference, double longitude) const
{
    const int v = FindCVP(longitude);
    for (int n : {3, 6, 8, 12})
        if (v == Norm12(reference + n - 1))
            return 0;
    return 5;
}

int ForText::CheckBudhAdityaYoga() const
{
    if (sign(2) != sign(1))
        return 0;
    const int s = sign(2);
    return s == 3 || s == 5 || s == 6 ? s : 1;
}

bool ForText::CheckVidyaYoga(int lagnaSign) const
{
    const auto lord = [&](int h) { return clsPlanets::FindRashiLordNo(Norm12(lagnaSign + h - 1)); };
    const auto near = [&](int a, int b) { const int d = std::abs(sign(lord(a)) - sign(lord(b))); return d == 0 || d == 6; };
    return near(4, 5) || near(1, 5) || near(2, 4);
}

QString ForText::FindBeneficMalefic(int planet)
{
    return hasSign({4, 6, 8, 10, 11, 12}, planet) ? QStringLiteral("M") : QStringLiteral("B");
}

// ---- the sections ----

QString ForText::HealthText()
{
    QStringList parts{fortune(QStringLiteral("SUNSIGNBASED"), m_c.FindSunSignEng())};
    const auto close = [&](double point, int first, int skip) {
        QList<int> list;
        for (int p = first; p <= 12; ++p) {
            if (p == skip)
                continue;
            const QString r = clsPlanets::FindRelation(m_c.PlanetLongi(p) - point);
            if (r == QLatin1String("OPP") || r == QLatin1String("SQU") || r == QLatin1String("CNJ"))
                list << p;
        }
        return list;
    };
    const QList<int> asc = close(m_c.PlanetLongi(0), 1, 0);
    const QList<int> moon = close(m_c.PlanetLongi(7), 1, 7);
    const QList<int> sun = close(m_c.PlanetLongi(1), 2, 0);
    const QString health = QStringLiteral("HEALTH");
    if (asc.isEmpty() && moon.isEmpty() && sun.isEmpty())
        parts << fortune(health, QStringLiteral("NA"));
    for (auto [list, prefix] : {std::pair{&asc, "ASC"}, std::pair{&moon, "MOON"}, std::pair{&sun, "SUN"}}) {
        if (list->isEmpty())
            parts << fortune(health, QString::fromLatin1(prefix) + QLatin1Char('N'));
        for (int p : *list)
            parts << fortune(health, QString::fromLatin1(prefix) + QString::number(p));
    }
    // Signs under both malefics: Saturn's own sign and its 3rd, 7th and 10th that Mars holds or aspects.
    const int sa = sign(6), ma = sign(4);
    for (int s : {Norm12(sa + 2), Norm12(sa + 6), Norm12(sa + 9), sa})
        if (s == ma || s == Norm12(ma + 3) || s == Norm12(ma + 6) || s == Norm12(ma + 7))
            parts << fortune(health, QStringLiteral("SIGN") + QString::number(s));
    return parts.join(nl());
}

QString ForText::MercAsht(int s)
{
    if (s < 1 || s > 12)
        return {};
    m_c.AshTable();
    for (int x = 1; x <= 12; ++x)
        m_c.setAshtak(x, 0);
    for (int g = 0; g < 8; ++g)
        m_c.AshComp(Ashtakavarga::Flags(2, g), sign(Ashtakavarga::kGivers[static_cast<size_t>(g)]));
    const int count = m_c.Ashtak(s);
    const int total = m_c.AshTotal(s);
    for (int x = 1; x <= 12; ++x)
        m_c.setAshtak(x, 0);
    const QString edu = QStringLiteral("EDUCATION");
    if (count == 3 && total >= 21)
        return nl() + nl() + fortune(edu, QStringLiteral("Merc3"));
    if ((count == 4 || count == 5) && total >= 28)
        return nl() + nl() + fortune(edu, QStringLiteral("Merc4"));
    if (count >= 6 && total > 28)
        return nl() + nl() + fortune(edu, QStringLiteral("Merc6"));
    return {};
}

QString ForText::FindEduLine(int lg)
{
    const int l4 = clsPlanets::FindRashiLordNo(Norm12(lg + 3)), l5 = clsPlanets::FindRashiLordNo(Norm12(lg + 4));
    const auto nth = [lg](int n) { return Norm12(lg + n - 1); };
    const auto placed = [&](int p, std::initializer_list<int> houses) {
        for (int h : houses)
            if (sign(p) == nth(h))
                return true;
        return false;
    };
    const auto with = [&](int a, int b) { return sign(a) == sign(b); };
    const auto fromPlanet = [&](int p, std::initializer_list<int> counts, int q) {
        for (int n : counts)
            if (sign(p) == Norm12(sign(q) + n - 1))
                return true;
        return false;
    };
    QString key;
    if (placed(l4, {2, 4, 5}) && (sign(l4) == sign(2) || sign(l4) == sign(5)))
        key = QStringLiteral("Acc");
    if (sign(l4) == nth(7) || sign(l5) == nth(7) || sign(l4) == 7 || sign(l5) == 7)
        key = QStringLiteral("Law");
    if (hasSign({1, 5}, sign(1)) && placed(1, {1, 10, 5}))
        key = QStringLiteral("Admin");
    if (hasSign({2, 7, 12}, sign(3)) && placed(3, {1, 10, 5}))
        key = QStringLiteral("Mar");
    if (placed(l4, {5}) || placed(l5, {4}) || with(l4, l5))
        key = QStringLiteral("App");
    if (with(4, 6))
        key = QStringLiteral("Eng-Tech");
    if (fromPlanet(6, {4, 7, 8}, 4))
        key = QStringLiteral("Engg");
    if (fromPlanet(4, {3, 7, 10}, 6))
        key = QStringLiteral("Tech");
    if (hasSign({2, 4}, sign(7)) && placed(7, {4, 5}))
        key = QStringLiteral("Arts-Lit");
    if (hasSign({2, 7, 12}, sign(3)) && placed(3, {4, 5}))
        key = QStringLiteral("Arts-Lit");
    const bool moonWell = placed(7, {4, 5, 9});
    if (moonWell && (hasSign({1, 5}, sign(1)) || hasSign({1, 8, 10}, sign(4)) || hasSign({7, 10, 11}, sign(6)) || hasSign({2, 11}, sign(8))))
        key = QStringLiteral("Med");
    if (moonWell && (with(4, 8) || with(4, 9) || with(1, 8) || with(1, 9) || fromPlanet(1, {5, 9}, 8) || fromPlanet(1, {5, 9}, 9) ||
                     fromPlanet(4, {5, 9}, 8) || fromPlanet(4, {5, 9}, 9)))
        key = QStringLiteral("Med");
    return key.isEmpty() ? QString() : fortune(QStringLiteral("EDUCATION"), key);
}

QString ForText::FindEducation()
{
    int total = FindAscLordScore() + FindAscLord2Score() + FindAscLord4Score() + FindAscLord5Score() + FindAscLord9Score() +
                FindAscLord10Score() + FindAscLord11Score() + CheckMercury() + CheckJupiter() + CheckVenus() + CheckMoon() +
                FindNakLordScore(m_c.PlanetLongi(2), lagna());
    // The twenty-fourth divisions of the Lagna and of Mercury, judged by their lords from the Lagna.
    total += CheckCVLPos(lagna(), m_c.PlanetLongi(clsPlanets::FindRashiLordNo(FindCVP(m_c.PlanetLongi(0)))));
    total += CheckCVLPos(lagna(), m_c.PlanetLongi(clsPlanets::FindRashiLordNo(FindCVP(m_c.PlanetLongi(2)))));
    const char *head = total >= 90 ? "SCORE90" : total >= 80 ? "SCORE80" : total >= 70 ? "SCORE70" : total >= 60 ? "SCORE60"
                     : total >= 50 ? "SCORE50" : total >= 40 ? "SCORE40" : "SCORE30";
    const QString edu = QStringLiteral("EDUCATION");
    QString text = fortune(edu, QString::fromLatin1(head));
    if (CheckVidyaYoga(lagna()))
        text += nl() + fortune(edu, QStringLiteral("VidYPre"));
    if (const int b = CheckBudhAdityaYoga())
        text += nl() + fortune(edu, QStringLiteral("BudhAdiYoga") + QString::number(b));
    text += MercAsht(sign(2));
    const QString line = FindEduLine(lagna());
    if (!line.isEmpty())
        text += nl() + nl() + line;
    return text;
}

QString ForText::JoinProfessionVotes(const QStringList &votes)
{
    QString key;
    for (const QString &v : votes) {
        if (v.isEmpty())
            continue;
        key += v == QLatin1String("Ser") ? QStringLiteral("S") : v == QLatin1String("SerB") ? QStringLiteral("SB") : QStringLiteral("B");
        if (key == QLatin1String("SB") || key == QLatin1String("BS"))
            return QStringLiteral("SB");
    }
    return key;
}

QString ForText::FindProfession()
{
    QStringList votes{QString(), QString(), QString()};
    const auto inHouses = [&](int p, std::initializer_list<int> houses) {
        for (int h : houses)
            if (sign(p) == Norm12(lagna() + h - 1))
                return true;
        return false;
    };
    int points = 0;
    for (auto [p, w] : {std::pair{1, 2}, std::pair{7, 1}, std::pair{4, 1}, std::pair{8, 1}})
        points += inHouses(p, {4, 5, 6}) ? w : 0;
    if (points >= 2)
        votes[0] = QStringLiteral("Ser");
    // A plain substring search, as the list was always read.
    const QString list = QStringLiteral("3|12|21|4|13|22|5|14|23|6|15|24");
    int found = 0;
    for (int p = 1; p <= 12; ++p)
        found += list.contains(QString::number(m_c.NakOf(p))) ? 1 : 0;
    votes[1] = found < 4 ? QStringLiteral("Ser") : found == 4 ? QStringLiteral("SerB") : QStringLiteral("BUS");
    int count = 0;
    for (int p : {1, 7, 4, 8})
        count += inHouses(p, {7, 8, 9, 10, 11, 12}) ? 1 : 0;
    if (count > 2)
        votes[2] = QStringLiteral("Bus");
    for (int p : {1, 7, 4, 8})
        count += inHouses(p, {10, 11, 12, 1, 2, 3}) ? 1 : 0;
    if (count > 2)
        votes[2] = QStringLiteral("Bus");
    return fortune(QStringLiteral("Prof"), JoinProfessionVotes(votes));
}

QString ForText::FindWealth()
{
    const auto house = [&](int lordHouse) { return QString::number(Norm12(sign(lordOfHouse(lordHouse)) - lagna() + 1)); };
    // One lookup a statement, so that the keys are read (and logged) in the order of the report.
    const QString second = fortune(QStringLiteral("FWLord2"), house(2));
    const QString eleventh = fortune(QStringLiteral("EWLORD11"), house(11));
    const QString eighth = fortune(QStringLiteral("IWLORD8"), house(8));
    return second + nl() + eleventh + nl() + eighth;
}

QString ForText::MarriageStep(int total)
{
    if (total > 4)
        return QStringLiteral("4");
    if (total >= 2 && total < 4)
        return QStringLiteral("2");
    if (total > -1 && total < 2)
        return QStringLiteral("-1");
    if (total >= -3 && total < -1)
        return QStringLiteral("-3");
    if (total >= -6 && total < -3)
        return QStringLiteral("-6");
    return {};
}

QString ForText::FindMarriage()
{
    const auto odd = [&](int p, int ref) {
        for (int n : {1, 3, 5, 7, 9, 11})
            if (sign(p) == Norm12(ref + n - 1))
                return true;
        return false;
    };
    const int lg = lagna(), mo = sign(7);
    int total = 0;
    total += odd(5, lg) ? 2 : 0;
    total += odd(3, lg) ? 2 : 0;
    total -= odd(6, lg) ? 2 : 0;
    total -= odd(9, lg) ? 2 : 0;
    total -= odd(6, lg) && odd(9, lg) ? 2 : 0;
    total += odd(5, mo) ? 1 : 0;
    total += odd(3, mo) ? 1 : 0;
    total += odd(5, mo) && odd(3, mo) ? 1 : 0;
    total -= odd(6, mo) ? 1 : 0;
    total -= odd(9, mo) ? 1 : 0;
    total -= odd(6, mo) && odd(9, mo) ? 1 : 0;
    QStringList parts;
    const QString marp = QStringLiteral("MarP");
    const QString step = MarriageStep(total);
    if (!step.isEmpty())
        parts << fortune(marp, step);
    // The lords of the Lagna and its 7th, then those of the Moon's sign and its 7th. With the Moon
    // in the Lagna or the 7th both steps name the same two lords, and two different pairs can still
    // reach the same key: a key already read isn't read again.
    bool related = false;
    QStringList relationKeys;
    for (int ref : {lg, mo}) {
        const int a = clsPlanets::FindRashiLordNo(ref), b = clsPlanets::FindRashiLordNo(Norm12(ref + 6));
        const QString r = clsPlanets::FindRelation(m_c.PlanetLongi(a) - m_c.PlanetLongi(b));
        if (r.isEmpty())
            continue;
        related = true;
        QString key = r;
        if (r == QLatin1String("OPP") || r == QLatin1String("CNJ")) {
            const QString kinds = FindBeneficMalefic(a) + FindBeneficMalefic(b);
            key = (kinds == QLatin1String("MM") ? QStringLiteral("M") : kinds == QLatin1String("BB") ? QStringLiteral("B") : QStringLiteral("N")) + r;
        }
        if (relationKeys.contains(key))
            continue;
        relationKeys << key;
        parts << fortune(marp, key);
    }
    if (!related)
        parts << fortune(marp, QStringLiteral("N"));
    return parts.join(nl());
}

QString ForText::FindTravel()
{
    int movable = 0, fixed = 0, common = 0, angularMovable = 0, succedentFixed = 0, cadentCommon = 0;
    for (int p = 1; p <= 12; ++p) {
        const int houseClass = clsPlanets::HouseClass(Norm12(sign(p) - lagna() + 1));
        const int signClass = clsPlanets::RashiClass(sign(p));
        movable += signClass == 1;
        fixed += signClass == 2;
        common += signClass == 3;
        angularMovable += houseClass == 1 && (signClass == 1 || signClass == 3);
        succedentFixed += houseClass == 2 && signClass == 2;
        cadentCommon += houseClass == 3 && signClass == 3;
    }
    movable += common; // common signs go with the movable ones
    const QString travel = QStringLiteral("Travel");
    QStringList parts{fortune(travel, movable <= fixed ? QStringLiteral("Fixed") : QStringLiteral("Moveable"))};
    if (angularMovable > 4)
        parts << fortune(travel, QStringLiteral("Ang+Move"));
    if (succedentFixed > 4)
        parts << fortune(travel, QStringLiteral("SUCC+FIXED"));
    if (cadentCommon > 4)
        parts << fortune(travel, QStringLiteral("CAD+COM"));
    return parts.join(nl());
}

QString ForText::FindLuckyStone() { return clsPlanets::PlanetNameFullEng(clsPlanets::FindRashiLordNo(lagna())); }

void ForText::Write(PredictionOutput &out)
{
    m_keys.clear();
    const QString moon = m_c.ConvertRashiEng(m_c.PlanetLongi(7)).toUpper();
    const auto head = [&](const char *key) { return m_c.GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("PrediText")).toString(); };
    const QString signCategory = QStringLiteral("SIGN") + moon;
    out.PutHead(head("Spechar"));
    out.PutText(fortune(signCategory, QStringLiteral("SPEC")));
    out.PutHead(head("MentQua"));
    out.PutText(fortune(signCategory, QStringLiteral("MIND")));
    out.PutHead(head("PhysAttr"));
    out.PutText(fortune(signCategory, QStringLiteral("LOOKS")));
    out.PutHead(head("GenHealth"));
    out.PutText(HealthText());
    out.PutHead(head("EduProf"));
    out.PutText(FindEducation());
    out.PutText(FindProfession());
    out.PutHead(head("Wealth"));
    out.PutText(FindWealth());
    out.PutHead(head("MarText"));
    out.PutText(FindMarriage());
    out.PutHead(head("TravelText"));
    out.PutText(FindTravel());
    out.PutHead(head("GemStones"));
    const QString stone = fortune(QStringLiteral("GEMSTONES"), FindLuckyStone());
    const QString caution = fortune(QStringLiteral("GEMSTONES"), QStringLiteral("PS"));
    out.PutText(stone + nl() + caution);
}

QStringList ForText::KeysRead() { return m_keys; }
