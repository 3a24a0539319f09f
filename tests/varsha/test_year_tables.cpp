// SPDX-License-Identifier: AGPL-3.0-or-later
// The tables of the year: the three annual dashas, the balas and the sahams against values worked
// by hand, and the varsha verb of the command line.
#include "cli/VarshaCommand.h"
#include "sky/Functions.h"
#include "varsha/VarshaCast.h"
#include "varsha/clsSaham.h"
#include "varsha/clsVarsha.h"
#include "varsha/VarshaCharts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Rows follow one another without a gap, and their whole days make up the year within the
// rounding of each row.
void expectYear(const std::vector<VarshaDashaRow> &rows, double tolerance)
{
    ASSERT_FALSE(rows.empty());
    double days = 0;
    for (size_t i = 0; i < rows.size(); ++i) {
        if (i > 0) {
            EXPECT_EQ(rows[i].Start, rows[i - 1].End) << i;
        }
        EXPECT_EQ(rows[i].Start.daysTo(rows[i].End), CLng(rows[i].Days)) << i;
        days += rows[i].Days;
    }
    EXPECT_NEAR(days, 365.2564, 1e-9 + tolerance);
    EXPECT_NEAR(rows.front().Start.daysTo(rows.back().End), 365.2564, 0.5 * rows.size() + 0.26);
}

} // namespace

TEST_F(VarshaTest, AnnualDashasFillTheYear)
{
    const auto birth = delhi();
    for (int age : {0, 1, 7, 30, 64, 99}) {
        SCOPED_TRACE(age);
        const AnnualCastResult r = CastAnnualChart(*birth, age);
        ASSERT_TRUE(r.chart);
        const clsVarsha v(*birth, *r.chart, age);
        expectYear(v.PatyayiniRows(), 0);
        expectYear(v.MuddaYoginiRows(), 0);
        // The Mudda Vimshottari rounds each span before it is added up.
        expectYear(v.MuddaVimshottariRows(), 4.5);
        EXPECT_EQ(v.PatyayiniRows().front().Start, r.chart->Person().GetBirthDate());
    }
}

TEST_F(VarshaTest, MuddaYoginiPlaces)
{
    const auto birth = delhi();
    const auto annual = delhi();
    // The cycle starts at (age + natal nakshatra + 3) mod 8; the Sankata place has 80 parts.
    for (int age = 0; age < 8; ++age) {
        const std::vector<VarshaDashaRow> rows = clsVarsha(*birth, *annual, age).MuddaYoginiRows();
        ASSERT_EQ(rows.size(), 8U);
        EXPECT_EQ(rows.front().Place, (age + birth->Nakshatra() + 3) % 8);
        for (const VarshaDashaRow &r : rows)
            EXPECT_NEAR(r.Days, (r.Place == 0 ? 80 : r.Place * 10) * 365.2564 / 360, 1e-9);
    }
}

TEST_F(VarshaTest, PatyayiniOrdersByDegreeAndSharesTheYear)
{
    const auto birth = delhi();
    const auto annual = delhi();
    // Lagna 5, Sun 10, Mercury 10 (equal: the lower number first), Venus 20, Mars 2, Jupiter 25,
    // Saturn 15, Moon 29.
    place(*annual, {{0, 5}, {1, 40}, {2, 70}, {3, 110}, {4, 122}, {5, 175}, {6, 195}, {7, 239}});
    const clsVarsha v(*birth, *annual, 3);
    const std::array<long, 8> order{4, 0, 1, 2, 6, 3, 5, 7};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(v.PatPlanet(i), order[static_cast<size_t>(i)]) << i;
    EXPECT_DOUBLE_EQ(v.PatKrish(0), 2);
    EXPECT_NEAR(v.PatPatyamsh(0), 2.0 / 29 * 365.2564, 1e-9);
    EXPECT_DOUBLE_EQ(v.PatPatyamsh(3), 0); // Mercury after the Sun at the same degree
    EXPECT_NEAR(v.PatPatyamsh(7), 4.0 / 29 * 365.2564, 1e-9);

    // All eight at one degree: the first row takes the whole year.
    const auto flat = delhi();
    place(*flat, {{0, 12}, {1, 42}, {2, 72}, {3, 102}, {4, 132}, {5, 162}, {6, 192}, {7, 222}});
    const clsVarsha w(*birth, *flat, 3);
    EXPECT_NEAR(w.PatPatyamsh(0), 365.2564, 1e-9);
    for (int i = 1; i < 8; ++i)
        EXPECT_EQ(w.PatPatyamsh(i), 0);
}

TEST(AnnualBalas, FriendshipHaddaAndClasses)
{
    for (int a = 1; a <= 7; ++a)
        for (int b = 1; b <= 7; ++b)
            EXPECT_EQ(clsVarsha::VarshaFriend(a, b), clsVarsha::VarshaFriend(b, a)) << a << ' ' << b;
    EXPECT_TRUE(clsVarsha::VarshaFriend(2, 8));
    EXPECT_TRUE(clsVarsha::VarshaFriend(8, 6));
    EXPECT_FALSE(clsVarsha::VarshaFriend(1, 8));
    EXPECT_FALSE(clsVarsha::VarshaFriend(9, 1));
    EXPECT_EQ(clsVarsha::HaddaLord(25), 6);
    EXPECT_EQ(clsVarsha::HaddaLord(24.99), 4);
    EXPECT_EQ(clsVarsha::HaddaLord(0), 5);
    EXPECT_EQ(clsVarsha::HaddaLord(359.5), 6);
    EXPECT_EQ(clsVarsha::PanchaBalaStrength(6.99), 1);
    EXPECT_EQ(clsVarsha::PanchaBalaStrength(7), 2);
    EXPECT_EQ(clsVarsha::PanchaBalaStrength(13), 3);
}

TEST_F(VarshaTest, PanchaVargiyaBalaByHand)
{
    const auto birth = delhi();
    const auto annual = delhi();
    // Sun at its deep exaltation (Aries 10), Saturn at its deep debilitation (Aries 20), Mars in
    // Gemini 5 (lord Mercury, no friend of Mars).
    place(*annual, {{1, 10}, {6, 20}, {4, 65}});
    const clsVarsha v(*birth, *annual, 2);
    EXPECT_DOUBLE_EQ(v.UchchaBala(1), 5);
    EXPECT_DOUBLE_EQ(v.UchchaBala(6), 0);
    EXPECT_DOUBLE_EQ(v.KshetraBala(4), 1.87);
    // Sun in Aries: Mars's sign, a friend: 3.75; hadda of 10 is Venus's, no friend: 0.9375, whose third digit 7 rounds up to 0.94.
    EXPECT_DOUBLE_EQ(v.KshetraBala(1), 3.75);
    EXPECT_DOUBLE_EQ(v.HaddaBala(1), 0.94);
    EXPECT_FALSE(v.PanchBala(6, 1).has_value());
    EXPECT_DOUBLE_EQ(v.PanchBalaTotal(1), v.KshetraBala(1) + 5 + 0.94 + v.DrekkanBala(1) + v.NavamshBala(1));
    for (int p = 1; p <= 7; ++p) {
        EXPECT_EQ(v.DwaDashScore(p) % 2, 0) << p;
        EXPECT_EQ(v.SumPosiDwaDashBala(p) - v.SumNegiDwaDashBala(p), 12);
        EXPECT_EQ(v.HarshaBalaDet(p) % 5, 0);
    }
    EXPECT_EQ(v.HarshaBalaDet(8), 0);
    EXPECT_EQ(v.DwaDashaBala(13, 1), 0);
}

TEST_F(VarshaTest, SahamsByHand)
{
    auto annual = delhi();
    place(*annual, {{0, 100}, {1, 40}, {7, 200}, {6, 300}, {5, 250}});
    const clsSaham s(*annual);
    const double lagna = 100, sun = 40, moon = 200;
    // Punya by day: Moon - Sun + Lagna; by night Sun - Moon + Lagna; 30 more when x < y.
    const double day = Norm360(moon - sun + lagna + (Norm360(moon - sun) < Norm360(moon - lagna) ? 30 : 0));
    const double night = Norm360(sun - moon + lagna + (Norm360(sun - moon) < Norm360(lagna - moon) ? 30 : 0));
    EXPECT_NEAR(s.Punya(), annual->DayBirth() ? day : night, 1e-9);
    // Roga: Lagna - Moon + Lagna, no day and night swap.
    EXPECT_NEAR(s.Roga(), Norm360(lagna - moon + lagna + (Norm360(lagna - moon) < Norm360(lagna - lagna) ? 30 : 0)), 1e-9);
    EXPECT_DOUBLE_EQ(s.Pitri(), s.Raja());
    EXPECT_EQ(s.SahamLongi(37), 0);
    EXPECT_EQ(s.SahamLongi(0), 0);
    EXPECT_DOUBLE_EQ(s.SahamLongi(33), s.Jalapatana());
    // Jalapatana takes 105 in the Sun's place: Saturn at 300.
    const double a = 105, b = 300;
    const double jala = annual->DayBirth() ? Norm360(a - b + lagna + (Norm360(a - b) < Norm360(a - lagna) ? 30 : 0))
                                           : Norm360(b - a + lagna + (Norm360(b - a) < Norm360(lagna - a) ? 30 : 0));
    EXPECT_NEAR(s.Jalapatana(), jala, 1e-9);
    EXPECT_TRUE(clsSaham::CheckIfSahamBenefic(33));
    EXPECT_FALSE(clsSaham::CheckIfSahamBenefic(36));
    EXPECT_FALSE(clsSaham::CheckIfSahamBenefic(37));
    EXPECT_EQ(clsSaham::SahamKey(25), "Karyasiddhi");
}

TEST_F(VarshaTest, VarshaVerb)
{
    const QStringList birth{"--date", "15/08/1980", "--time", "14.35", "--lat", "28:38N", "--lon", "77:12E", "--gmt", "+05.30"};
    QString outText, errText;
    QTextStream out(&outText), err(&errText);
    for (const char *year : {"1979", "2080", "abcd"}) {
        outText.clear();
        errText.clear();
        EXPECT_EQ(RunVarshaCommand(birth + QStringList{"--year", year}, out, err), 2) << year;
        err.flush();
        EXPECT_FALSE(errText.isEmpty());
    }
    outText.clear();
    ASSERT_EQ(RunVarshaCommand(birth + QStringList{"--year", "2001", "--json"}, out, err), 0) << errText.toStdString();
    out.flush();
    const QJsonObject o = QJsonDocument::fromJson(outText.toUtf8()).object();
    EXPECT_EQ(o.value("age").toInt(), 21);
    EXPECT_EQ(o.value("annual").toObject().value("person").toObject().value("year").toInt(), 2001);
    EXPECT_EQ(o.value("annual").toObject().value("planets").toArray().size(), 13);
    EXPECT_EQ(o.value("sahams").toArray().size(), 36);
    EXPECT_EQ(o.value("sahams").toArray().at(0).toObject().value("key").toString(), "Punya");
    EXPECT_EQ(o.value("panchadhikari").toArray().size(), 5);
    EXPECT_EQ(o.value("mudda").toArray().size(), 9);
    EXPECT_EQ(o.value("patyayini").toArray().size(), 8);
    EXPECT_TRUE(o.value("tajika").isArray());
    const int lord = o.value("year_lord").toInt();
    EXPECT_TRUE(lord >= 1 && lord <= 7);
    EXPECT_EQ(o.value("mudda").toArray().at(0).toObject().value("start").toString().size(), 16); // dd/MM/yyyy hh:mm
}

// Over many years the fruit of a saham is 0, 2 or 3, and only a fruitful one has its days: the
// first two and the last two counts each make up a year.
TEST_F(VarshaTest, SahamFruitAndItsDays)
{
    const auto birth = delhi();
    int fruitful = 0;
    for (int age = 1; age <= 99; age += 7) {
        const AnnualCastResult r = CastAnnualChart(*birth, age);
        ASSERT_TRUE(r.chart);
        const clsSaham s(*r.chart);
        for (int n = 1; n <= clsSaham::kCount; ++n) {
            const long fruit = s.IsSahamResultFructifies(n);
            ASSERT_TRUE(fruit == 0 || fruit == 2 || fruit == 3) << n;
            const QString days = s.SahamResultDays(n);
            if (fruit == 0) {
                EXPECT_TRUE(days.isEmpty());
                EXPECT_TRUE(s.SahamResultPatDasha(n).isEmpty());
                continue;
            }
            ++fruitful;
            const QStringList d = days.split('+');
            ASSERT_EQ(d.size(), 4) << days.toStdString();
            EXPECT_EQ(d[0].toInt() + d[1].toInt(), 365);
            EXPECT_EQ(d[2].toInt() + d[3].toInt(), 365);
        }
    }
    EXPECT_GT(fruitful, 0);
    EXPECT_EQ(clsSaham(*birth).IsSahamResultFructifies(37), 0);
}
