// SPDX-License-Identifier: AGPL-3.0-or-later
#include "marriage/pages/frmMarFront.h"

#include "marriage/MatchFacts.h"
#include "output/ui/PageStyle.h"
#include "session/Session.h"
#include "sky/BirthFacts.h"
#include "sky/clsPlanets.h"

#include <array>

namespace {

// The rows of the page, by their text key under head "Marriage".
inline constexpr std::array<const char *, 34> kRows{
    "Name", "Dob",   "Dab",      "Tim",    "Pob",    "Cont", "Lat",    "Long",       "Ltc",   "LMT",   "Sidt",       "Tithi",
    "Yog",  "Lagna", "LagL",     "Obliq",  "Rashi",  "RashiL", "Nak",  "Pada",       "NakL",  "Gana",  "Yoni",       "Nadi",
    "Karan", "SunSi", "Vihaga",  "Paya",   "VarnaKuta", "Tatwa", "VashyaKuta", "NadiPada", "FirstL", "Decanate"};
static_assert(kRows.size() == 34);

// The value of row `row` for one person.
QString value(const clsPlanets &c, int row)
{
    const clsPerson &p = c.Person();
    const int lagna = c.PlanetRashiNum(0);
    const int nak = c.Nakshatra();
    switch (row) {
    case 0: return p.Name();
    case 1: return MatchFacts::BirthDate(c);
    case 2: return c.GetDayName(p.WeekDayOfBirth());
    case 3: return p.GetBirthTime();
    case 4: return p.PLOB();
    case 5: return p.Country();
    case 6: return p.GetLatti();
    case 7: return p.GetLongi();
    case 8: return MatchFacts::LocalTimeCorrection(c);
    case 9: return BirthFacts::LocalMeanTime(c);
    case 10: return MatchFacts::SiderealTime(c);
    case 11: return c.TithiName(c.Tithi());
    case 12: return c.FindYoga();
    case 13: return c.ConvertRashi(lagna);
    case 14: return c.PlanetNameFull(clsPlanets::GetRashiLordNum(lagna));
    case 15: return QString::number(c.Obliq(), 'f', 4);
    case 16: return c.RashiName();
    case 17: return c.PlanetNameFull(clsPlanets::GetRashiLordNum(c.RashiNum()));
    case 18: return c.GetNakshatraName(nak);
    case 19: return QString::number(c.NakPada());
    case 20: return c.NakLordName(nak);
    case 21: return c.AssignGana(c.Gana());
    case 22: return c.YoniName();
    case 23: return c.AssignNadi(c.NadiNo());
    case 24: return c.KaranName();
    case 25: return c.FindSunSign();
    case 26: return c.Vihag();
    case 27: return c.Paya();
    case 28: return c.Varna();
    case 29: return c.Tatwa();
    case 30: return c.Vasya();
    case 31: return c.NadiPada();
    case 32: return c.FindFirstLetters((nak - 1) * 4 + c.NakPada());
    case 33: return QString::number(c.Decanate());
    default: return {};
    }
}

} // namespace

void frmMarFront::fill()
{
    const SessionGlobals &s = Session();
    const clsPlanets &boy = *s.BoyPlanets;
    const clsPlanets &girl = *s.GalPlanets;
    const auto word = [this](const char *key) { return chart().GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("Marriage")).toString(); };
    lblTitle->setText(word("MarFront"));

    const int rows = static_cast<int>(kRows.size());
    const Table t = addTable(60, 64, {210, 220, 220}, 27, {QString(), word("BoyData"), word("GirlData")}, rows, Small, true);
    for (int r = 0; r < rows; ++r) {
        t.cell(r, 0)->setText(word(kRows[static_cast<size_t>(r)]));
        StyleSmallBold(t.cell(r, 0));
        t.cell(r, 1)->setText(value(boy, r));
        t.cell(r, 2)->setText(value(girl, r));
    }
}
