// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/pages/frmPage1.h"

#include "sky/BirthFacts.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>

namespace {
constexpr int kLeftX = 30, kRightX = 400;
constexpr int kLabelW = 150, kValueW = 190;
} // namespace

void frmPage1::fill()
{
    const clsPlanets &c = chart();
    const clsPerson &p = c.Person();
    const auto gen = [&c](const char *head) { return GenLabel(QString::fromLatin1(head), c); };
    const auto word = [&c](const char *category, const QVariant &key) {
        return c.GetHeadValue(1, key, QString::fromLatin1(category)).toString();
    };
    lblTitle->setText(gen("GenDetails"));

    const QDate born(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
    const int weekday = p.WeekDayOfBirth();
    const long hour12 = p.Hour() % 12 == 0 ? 12 : p.Hour() % 12;
    const QString time = Two(hour12) + QLatin1Char(':') + Two(p.Minutes()) + QLatin1Char(':') + Two(p.seconds())
                         + (p.Hour() >= 12 ? QStringLiteral(" PM") : QStringLiteral(" AM"));
    const double st = c.SidrealTime();
    const long stSecs = std::lround(st * 3600.0);
    Facts birth{
        {gen("Name"), p.Name()},
        {gen("DOB"), c.ConvertDateToText(born) + QStringLiteral(", ") + c.GetDayName(weekday)},
        {gen("Tim"), time},
        {gen("Pob"), QStringList({p.PLOB().trimmed(), p.Country().trimmed()}).filter(QRegularExpression(QStringLiteral("\\S"))).join(QStringLiteral(", "))},
        {word("EngTerms", QStringLiteral("EngLat")), p.GetLatitudeFull()},
        {word("EngTerms", QStringLiteral("EngLong")), p.GetLongitudeFull()},
        {gen("ltc"), QString::number(c.LTCorrection(), 'f', 2).replace(QLatin1Char('.'), QLatin1Char(':'))},
        {gen("LMT"), BirthFacts::LocalMeanTime(c)},
        {gen("Ayanamsh"), clsPlanets::DecToDeg(c.PlanetLongi(13)) + QStringLiteral("  ") + c.AyanamshName()},
        {gen("Obliq"), QString::number(c.Obliq(), 'f', 4)},
        {gen("SidT"), Two(stSecs / 3600) + QLatin1Char(':') + Two(stSecs / 60 % 60) + QLatin1Char(':') + Two(stSecs % 60)},
    };
    int y = addFacts(kLeftX, 66, kLabelW, kValueW, gen("BirthDet"), birth);

    const int lagna = c.PlanetRashiNum(0);
    const int moonSign = c.PlanetRashiNum(7);
    const int nak = c.Nakshatra();
    const QString firstLetter = c.FindFirstLetters((nak - 1) * 4 + c.NakPada());
    const int varga = BirthFacts::Varga(firstLetter);
    const int prahar = BirthFacts::Prahar(c);
    // A day without sunrise or sunset: the prahar is counted on the equal day, and the page says so.
    const QString dayRule = BirthFacts::SunDayRule(c);
    const QDateTime moment(born, QTime(static_cast<int>(p.Hour()), static_cast<int>(p.Minutes())), Qt::UTC);
    Facts avakahada{
        {gen("Lagna"), c.ConvertRashi(lagna)},
        {gen("LagL"), c.PlanetNameFull(clsPlanets::GetRashiLordNum(lagna))},
        {gen("Rashi"), c.RashiName()},
        {gen("RashiL"), c.PlanetNameFull(clsPlanets::GetRashiLordNum(moonSign))},
        {gen("Nak"), c.GetNakshatraName(nak)},
        {gen("NakL"), c.NakLordName(nak)},
        {gen("Pada"), QString::number(c.NakPada())},
        {gen("Tithi"), c.TithiName(c.Tithi())},
        {gen("Paya"), c.Paya()},
        {gen("Yog"), c.FindYoga()},
        {gen("Karan"), c.KaranName()},
        {word("Marriage", QStringLiteral("VarnaKuta")), c.Varna()},
        {word("Marriage", QStringLiteral("VashyaKuta")), c.Vasya()},
        {word("Marriage", QStringLiteral("Varga")), varga ? word("AvkVarga", varga) : QStringLiteral("-")},
        {word("Marriage", QStringLiteral("GanaKuta")), c.AssignGana(c.Gana())},
        {gen("Tatwa"), c.Tatwa()},
        {gen("Yoni"), c.YoniName()},
        {gen("Nadi"), c.AssignNadi(c.NadiNo())},
        {gen("NadiPada"), c.NadiPada()},
        {gen("Vihaga"), c.Vihag()},
        {gen("FirstL"), firstLetter},
        {gen("Decanate"), QString::number(c.Decanate())},
        {gen("SunSi"), c.FindSunSign()},
        {gen("Months"), c.GetVikramiMonth(clsPlanets::VikramiMonth(c.PlanetLongi(1), moment))},
        {gen("Day"), c.GetDayName(weekday)},
        {gen("Prahar"), !prahar ? QStringLiteral("-") : dayRule.isEmpty() ? QString::number(prahar) : QString::number(prahar) + QStringLiteral(" (equal day)")},
    };
    y = addFacts(kLeftX, y + 14, kLabelW, kValueW, gen("Avkahada"), avakahada);

    // The unfavourable factors by the Moon's sign, the lucky ones by the Lagna's.
    const QString ghatChandra = p.Sex() == 1 ? QStringLiteral("GhatMaleChandra") : QStringLiteral("GhatFemaleChandra");
    const auto ghat = [&](const QString &category) { return c.GetHeadValue(1, moonSign, category).toString(); };
    Facts ghatak{
        {gen("Rashi"), ghat(ghatChandra)},
        {gen("Months"), ghat(QStringLiteral("GhatMonth"))},
        {gen("Tithi"), ghat(QStringLiteral("GhatTithi"))},
        {gen("Day"), ghat(QStringLiteral("GhatDay"))},
        {gen("Nak"), ghat(QStringLiteral("GhatNak"))},
        {gen("Prahar"), ghat(QStringLiteral("GhatPrahar"))},
        {gen("Lagna"), ghat(QStringLiteral("GhatLagna"))},
        {gen("Yog"), ghat(QStringLiteral("GhatYog"))},
        {gen("Karan"), ghat(QStringLiteral("GhatKaran"))},
    };
    int right = addFacts(kRightX, 66, kLabelW, kValueW, gen("Ghatak"), ghatak);

    const auto fav = [&](const char *category) { return c.GetHeadValue(1, lagna, QString::fromLatin1(category)).toString(); };
    const int lucky = BirthFacts::LuckyNumber(static_cast<int>(p.Day()));
    QStringList years;
    for (int n : BirthFacts::GoodYears(lucky))
        years << QString::number(n);
    Facts favourable{
        {gen("LuckyN"), QString::number(lucky)},
        {gen("GoodNum"), fav("FavNumber")},
        {gen("BadNum"), fav("BadNumber")},
        {gen("GoodYears"), years.join(QStringLiteral(", "))},
        {gen("LuckyDays"), fav("FavDays")},
        {gen("GoodPlanets"), fav("FavPlanets")},
        {gen("BadPlanets"), fav("BadPlanets")},
        {gen("PalSigns"), fav("FavSigns")},
        {gen("GoodLagna"), fav("FavAsc")},
        {gen("LuckyMetal"), fav("FavMetal")},
        {gen("LuckyStone"), fav("FavStones")},
        {gen("LuckyTime"), fav("FavTime")},
        {gen("LuckyDir"), fav("FavDirection")},
    };
    right = addFacts(kRightX, right + 14, kLabelW, kValueW, gen("Favourable"), favourable);

    if (!dayRule.isEmpty()) {
        const int below = std::max(y, right) + 10;
        addLabel(QRect(kLeftX, below, kWidth - 2 * kLeftX, 18), BirthFacts::SunDayWords(c) + QStringLiteral(" on this day."), SmallBold);
        addLabel(QRect(kLeftX, below + 18, kWidth - 2 * kLeftX, 18), dayRule + QStringLiteral(" (day and night of 12 hours)."), Small);
    }
}
