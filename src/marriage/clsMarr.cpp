// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/clsMarr.h"

#include "marriage/ScoreFiles.h"
#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <algorithm>
#include <QStringList>

#include <array>

namespace {

inline constexpr std::array<const char *, clsMarr::kKutaCount> kKutaKey{
    "VarnaKuta", "VashyaKuta", "DinaKuta", "YoniKuta", "GrahaKuta", "GanaKuta", "RasiKuta", "NadiKuta"};
static_assert(kKutaKey.size() == clsMarr::kKutaCount);

// Vashya groups of the Moon signs, Aries first: 0 A (human), 1 B (four-footed), 2 C (water),
// 3 D (insect), 4 E (wild).
inline constexpr std::array<int, 12> kVashyaGroup{1, 1, 0, 2, 4, 0, 0, 3, 1, 2, 2, 2};
static_assert(kVashyaGroup.size() == 12);
// Points of the boy's group (row) with the girl's (column), A to E.
inline constexpr std::array<std::array<double, 5>, 5> kVashyaPoints{{
    {2, 1, 0.5, 1, 0},
    {0.5, 2, 2, 2, 0},
    {0.5, 2, 2, 2, 0},
    {1, 2, 2, 2, 0.5},
    {0, 0, 0.5, 0.5, 2},
}};
static_assert(kVashyaPoints.size() == 5);

// Points of the boy's Gana (row 3 Deva, 2 Manushya, 1 Rakshasa) with the girl's (column, same order).
inline constexpr std::array<std::array<double, 3>, 3> kGanaPoints{{
    {6, 6, 0},
    {5, 6, 0},
    {1, 0, 6},
}};
static_assert(kGanaPoints.size() == 3);

// The Vedha pairs of nakshatras; 14 has no partner.
inline constexpr std::array<std::array<int, 2>, 13> kVedhaPairs{{
    {1, 18}, {2, 17}, {3, 16}, {4, 15}, {6, 22}, {7, 21}, {8, 20}, {9, 19}, {10, 27}, {11, 26}, {12, 25}, {13, 24}, {5, 23}}};
static_assert(kVedhaPairs.size() == 13);

// The cancellation texts under head "Marriage", in the order of the flags.
inline constexpr std::array<const char *, 6> kCancelKey{"PlagPos", "PJupLagPos", "PJupMoonPos", "PJupVenPos", "PMarsPos", "PMarLordPos"};
static_assert(kCancelKey.size() == 6);

// Signs from reference to sign, from 0.
int signsFrom(int reference, int sign) { return ((sign - reference) % 12 + 12) % 12; }

int signOf(double longitude) { return static_cast<int>(Int(longitude / 30)) + 1; }

// A nakshatra number wrapped into the nine-cycle: above 9 less 9 until 9 or less, 0 as 9.
int ninth(int k) { return Norm9(k); }

// The tara of a counted from b in the nine-cycle, 1..9.
int taraCount(int a, int b)
{
    if (a < b)
        a += 9;
    const int t = (a - b + 1) % 9;
    return t == 0 ? 9 : t;
}

} // namespace

QString clsMarr::KutaKey(int kuta) { return QString::fromLatin1(kKutaKey.at(static_cast<size_t>(kuta))); }

double clsMarr::KutaMax(int kuta) { return kuta + 1; }

QString clsMarr::Detail(int kuta, int who) const { return m_detail.at(static_cast<size_t>(kuta))[who == 1 ? 0 : 1]; }

QString clsMarr::marriageText(const QString &key) const
{
    return boy().GetHeadValue(1, key, QStringLiteral("Marriage")).toString();
}

void clsMarr::DoMatch()
{
    FindMarScore();
    PutManglikResult();
    GetExtMatchScore();
}

void clsMarr::FindMarScore()
{
    FindVarnaScore();
    FindVashyaScore();
    FindTaraScore();
    FindYoniScore();
    FindGrahaScore();
    FindGanaScore();
    FindRasiScore();
    FindNadiScore();
}

void clsMarr::FindVarnaScore()
{
    m_score[Varna] = boy().VarnaNo() >= gal().VarnaNo() ? 1 : 0;
    m_detail[Varna] = {boy().Varna(), gal().Varna()};
}

void clsMarr::FindVashyaScore()
{
    const int b = boy().RashiNum(), g = gal().RashiNum();
    m_score[Vashya] = b >= 1 && b <= 12 && g >= 1 && g <= 12
                          ? kVashyaPoints[static_cast<size_t>(kVashyaGroup[static_cast<size_t>(b - 1)])]
                                         [static_cast<size_t>(kVashyaGroup[static_cast<size_t>(g - 1)])]
                          : 0;
    m_detail[Vashya] = {boy().Vasya(), gal().Vasya()};
}

int clsMarr::TaraNo(int who) const
{
    const int a = ninth(boy().Nakshatra());
    const int b = ninth(gal().Nakshatra());
    // The boy's from the girl's, the girl's from the boy's.
    return who == 1 ? taraCount(a, b) : taraCount(b, a);
}

void clsMarr::FindTaraScore()
{
    const int t1 = TaraNo(1), t2 = TaraNo(2);
    const auto bad = [](int t) { return t == 3 || t == 5 || t == 7; };
    m_score[Tara] = bad(t1) || bad(t2) ? 1.5 : 3;
    m_detail[Tara] = {marriageText(QString::number(t1) + QStringLiteral("Tara")),
                      marriageText(QString::number(t2) + QStringLiteral("Tara"))};
}

double clsMarr::GetYoniScore(int boyYoni, int girlYoni) { return ScoreFiles::YoniPoints(boyYoni, girlYoni); }

void clsMarr::FindYoniScore()
{
    m_score[Yoni] = GetYoniScore(boy().YoniNo(), gal().YoniNo());
    m_detail[Yoni] = {boy().YoniName(), gal().YoniName()};
}

void clsMarr::FindGrahaScore()
{
    const int b = clsPlanets::GetRashiLordNum(boy().RashiNum());
    const int g = clsPlanets::GetRashiLordNum(gal().RashiNum());
    m_score[Graha] = ScoreFiles::GrahaPoints(b, g);
    m_detail[Graha] = {boy().PlanetNameFull(b), gal().PlanetNameFull(g)};
}

void clsMarr::FindGanaScore()
{
    const int b = boy().Gana(), g = gal().Gana();
    m_score[Gana] = b >= 1 && b <= 3 && g >= 1 && g <= 3 ? kGanaPoints[static_cast<size_t>(3 - b)][static_cast<size_t>(3 - g)] : 0;
    m_detail[Gana] = {boy().AssignGana(b), gal().AssignGana(g)};
}

void clsMarr::FindRasiScore()
{
    m_score[Rasi] = ScoreFiles::RasiPoints(boy().RashiNum(), gal().RashiNum());
    m_detail[Rasi] = {boy().ConvertRashi(boy().RashiNum()), gal().ConvertRashi(gal().RashiNum())};
}

void clsMarr::FindNadiScore()
{
    m_score[Nadi] = boy().NadiNo() != gal().NadiNo() ? 8 : 0;
    m_detail[Nadi] = {boy().AssignNadi(boy().NadiNo()), gal().AssignNadi(gal().NadiNo())};
}

double clsMarr::TotalScore() const
{
    double sum = 0;
    for (double s : m_score)
        sum += s;
    return sum;
}

int clsMarr::RoundedTotal() const { return static_cast<int>(CLng(TotalScore())); }

QString clsMarr::VerdictKey(double sum)
{
    const long total = CLng(sum);
    const int key = total <= 6 ? 6 : total <= 10 ? 10 : total <= 14 ? 14 : total <= 18 ? 18 : total <= 23 ? 23 : total <= 28 ? 28 : 36;
    return QStringLiteral("SCO%1").arg(key);
}

bool clsMarr::Manglik(int marsSign, int referenceSign) const
{
    int h = marsSign - referenceSign;
    if (h < 0)
        h += 12;
    const int mode = AppSettings::value(QStringLiteral("Settings"), QStringLiteral("CalcMangMod"), 1).toInt();
    bool result = mode == 2 ? (h == 1 || h == 3 || h == 6 || h == 7 || h == 11) : (h == 0 || h == 3 || h == 6 || h == 7 || h == 11);
    // Corrections by the reference sign, in this order.
    if (referenceSign == 1 && h == 0)
        result = false;
    if (referenceSign == 3)
        result = h == 3;
    if (referenceSign == 8 && (h == 6 || h == 7))
        result = true;
    if (referenceSign == 8 && (h == 1 || h == 3 || h == 11))
        result = false;
    if (referenceSign == 7 && (h == 7 || h == 11))
        result = true;
    if (referenceSign == 7 && (h == 6 || h == 1 || h == 3))
        result = false;
    if (referenceSign == 9)
        result = h == 6;
    if (referenceSign == 12 && (h == 3 || h == 6))
        result = true;
    if (referenceSign == 12 && (h == 1 || h == 7 || h == 11))
        result = false;
    return result;
}

bool clsMarr::FindIfKCancel(double ascendantLongitude)
{
    const int s = signOf(ascendantLongitude);
    return s == 2 || s == 4 || s == 5 || s == 6 || s == 10 || s == 11;
}

bool clsMarr::FindIfJupCancels(int jupiterSign, int referenceSign)
{
    const int h = signsFrom(referenceSign, jupiterSign);
    return h == 0 || h == 4 || h == 6 || h == 8;
}

bool clsMarr::FindMarsCancel(double mars, double jupiter, double moon, double sun, double mercury, double rahu)
{
    const int m = signOf(mars);
    return std::ranges::any_of(std::array{jupiter, moon, sun, mercury, rahu}, [m](double other) {
        const int s = signOf(other);
        return s == m || Norm12(s + 6) == m;
    });
}

std::array<bool, 6> clsMarr::CancelFlags(const clsPlanets &c)
{
    const int asc = c.PlanetRashiNum(0);
    const int jupiter = c.PlanetRashiNum(5);
    const int marsLord = clsPlanets::GetRashiLordNum(c.PlanetRashiNum(4));
    const int lordFromAsc = signsFrom(asc, c.PlanetRashiNum(marsLord));
    return {FindIfKCancel(c.PlanetLongi(0)),
            FindIfJupCancels(jupiter, asc),
            FindIfJupCancels(jupiter, c.PlanetRashiNum(7)),
            FindIfJupCancels(jupiter, c.PlanetRashiNum(3)),
            FindMarsCancel(c.PlanetLongi(4), c.PlanetLongi(5), c.PlanetLongi(7), c.PlanetLongi(1), c.PlanetLongi(2), c.PlanetLongi(8)),
            lordFromAsc == 0 || lordFromAsc == 3 || lordFromAsc == 4 || lordFromAsc == 6 || lordFromAsc == 8 || lordFromAsc == 9};
}

QString clsMarr::CancelKey(int flag) { return QString::fromLatin1(kCancelKey.at(static_cast<size_t>(flag))); }

QString clsMarr::MangCancels(const std::array<bool, 6> &flags, int who) const
{
    QStringList parts{marriageText(who == 1 ? QStringLiteral("BoyMangCancel") : QStringLiteral("GirlMangCancel"))};
    for (int i = 0; i < 6; ++i)
        if (flags[static_cast<size_t>(i)])
            parts << marriageText(CancelKey(i));
    return parts.join(QLatin1Char(' '));
}

QChar clsMarr::manglikLetter(const clsPlanets &c, int who, QString &cancel) const
{
    cancel.clear();
    const int mars = c.PlanetRashiNum(4);
    if (!Manglik(mars, c.PlanetRashiNum(0)) && !Manglik(mars, c.PlanetRashiNum(7)))
        return QLatin1Char('F');
    const std::array<bool, 6> flags = CancelFlags(c);
    if (std::ranges::none_of(flags, [](bool f) { return f; }))
        return QLatin1Char('T');
    cancel = MangCancels(flags, who);
    return QLatin1Char('C');
}

void clsMarr::PutManglikResult()
{
    const QChar b = manglikLetter(boy(), 1, m_boyCancel);
    const QChar g = manglikLetter(gal(), 2, m_galCancel);
    m_manglikCode = QStringLiteral("B") + b + QStringLiteral("G") + g;
}

int clsMarr::StreeDeerghaCount() const
{
    const int b = boy().Nakshatra(), g = gal().Nakshatra();
    return b - g + 1 + (b < g ? 27 : 0);
}

void clsMarr::GetExtMatchScore()
{
    m_rajju = boy().RajjuType() != gal().RajjuType();
    const int b = boy().Nakshatra(), g = gal().Nakshatra();
    const int c = g - b + 1 + (g < b ? 27 : 0);
    m_mahendra = c >= 4 && c <= 25 && c % 3 == 1;
    m_streeDee = StreeDeerghaCount() > 13;
    m_vedha = std::ranges::none_of(kVedhaPairs, [b, g](const std::array<int, 2> &p) {
        return (p[0] == b && p[1] == g) || (p[0] == g && p[1] == b);
    });
}

QString clsMarr::MatchTag(int kuta) const
{
    static constexpr std::array<const char *, kKutaCount> kPrefix{"[MB", "[MC", "[MD", "[ME", "[MF", "[MG", "[MH", "[MI"};
    const auto letter = [this, kuta](int who) {
        const clsPlanets &c = person(who);
        int code = 0;
        switch (kuta) {
        case Varna: code = 70 - c.VarnaNo(); break;
        case Vashya: code = 65 + c.VasyaNo(); break;
        case Tara: code = 65 + TaraNo(who); break;
        case Yoni: code = 65 + c.YoniNo(); break;
        case Graha: code = 65 + c.GrahaMaitriNo(); break;
        case Gana: code = 69 - c.Gana(); break;
        case Rasi: code = 65 + c.RashiNum(); break;
        case Nadi: code = 65 + c.NadiNo(); break;
        default: break;
        }
        return QChar(code);
    };
    return QString::fromLatin1(kPrefix.at(static_cast<size_t>(kuta))) + letter(1) + letter(2) + QLatin1Char(']');
}
