// SPDX-License-Identifier: AGPL-3.0-or-later
// The upagrahas. The Sun-based chain is a few additions away from the Sun, so nothing of it is
// kept. The day-based points and Mandi are the Lagna at a moment of the day or night of the birth,
// each a cast of its own, and so are kept until the next Calculate or a change of school.
#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "sky/SunEvents.h"
#include "sky/clsPlanets.h"

#include <array>

namespace {
struct PartPair
{
    int day, night;
};
// The part of the day and of the night that begins each of the points 10..16, as
// {school 2 (its start), school 1 (the end of the part before)}.
inline constexpr std::array<std::array<PartPair, 2>, 7> kDayParts{{
    {{{0, 3}, {1, 4}}}, // Kala
    {{{1, 4}, {2, 5}}}, // Paridhi
    {{{2, 5}, {3, 6}}}, // Mrityu
    {{{3, 6}, {4, 7}}}, // Ardhaprahara
    {{{4, 7}, {5, 1}}}, // Yamakantaka
    {{{5, 1}, {6, 2}}}, // Kodanda
    {{{6, 2}, {7, 3}}}, // Gulika
}};
static_assert(kDayParts.size() == 7);

// Ghatis after sunrise (by day) and after sunset (by night) at which Mandi rises, Sunday first.
inline constexpr std::array<int, 7> kMandiDay{26, 22, 18, 14, 10, 6, 2};
inline constexpr std::array<int, 7> kMandiNight{10, 6, 2, 26, 22, 18, 14};

int weekdayOf(const QDate &d) { return d.dayOfWeek() % 7 + 1; } // Qt: Monday 1 .. Sunday 7
} // namespace

double clsPlanets::DhumaLongi() const { return Norm360(PlanetLongi(1) + 400.0 / 3); }
double clsPlanets::VyatipataLongi() const { return Norm360(360 - DhumaLongi()); }
double clsPlanets::PariveshaLongi() const { return Norm360(VyatipataLongi() + 180); }
double clsPlanets::IndraChapaLongi() const { return Norm360(360 - PariveshaLongi()); }
double clsPlanets::UpaketuLongi() const { return Norm360(IndraChapaLongi() + 50.0 / 3); }
double clsPlanets::BhukampaLongi() const { return Norm360(PlanetLongi(1) + 80); }
double clsPlanets::UlkaLongi() const { return Norm360(BhukampaLongi() + 40); }
double clsPlanets::BrahmadandaLongi() const { return Norm360(UlkaLongi() + 200.0 / 3); }
double clsPlanets::DhwajaLongi() const { return Norm360(BrahmadandaLongi() + 80); }

double clsPlanets::UpagrahaLongi(int n) const { return UpagrahaLongiInMode(n, UpagrahaMode()); }

double clsPlanets::UpagrahaLongiInMode(int n, int mode) const
{
    switch (n) {
    case 1: return DhumaLongi();
    case 2: return VyatipataLongi();
    case 3: return PariveshaLongi();
    case 4: return IndraChapaLongi();
    case 5: return UpaketuLongi();
    case 6: return BhukampaLongi();
    case 7: return UlkaLongi();
    case 8: return BrahmadandaLongi();
    case 9: return DhwajaLongi();
    case 17: return MandiLong();
    default: return DayPartUpagraha(n, mode);
    }
}

bool clsPlanets::UpagrahaKnown(int n) const
{
    if (n >= 1 && n <= 9)
        return true;
    return n >= 10 && n <= 17 && DayPartsHaveSun();
}

int clsPlanets::UpagrahaSignOf(double l)
{
    // 360 is the end of the last sign, not a thirteenth.
    return Norm12(static_cast<int>(Int(l / 30)) + 1);
}

int clsPlanets::UpagrahaSign(int n) const { return UpagrahaSignOf(UpagrahaLongi(n)); }

int clsPlanets::UpagrahaNak(int n) const { return NakshatraNum(UpagrahaLongi(n)); }

int clsPlanets::UpaNakPada(int n) const { return NakPadaNum(UpagrahaLongi(n)); }

int clsPlanets::UpagrahaLord(int n)
{
    switch (n) {
    case 1: return 4;
    case 2: return 8;
    case 3: return 7;
    case 4: return 3;
    case 5: return 9;
    default: return 0;
    }
}

QString clsPlanets::UpagrahaName(int n) const { return GetHeadValue(1, n, QStringLiteral("Upagrahas")).toString(); }

QString clsPlanets::UpagrahaNameSmall(int n) const { return GetHeadValue(1, n, QStringLiteral("UpagrahaSmall")).toString(); }

int clsPlanets::UpagrahaMode() const
{
    if (m_upagrahaMode == 0) {
        const int stored = AppSettings::value(QStringLiteral("Settings"), QStringLiteral("UpagrahaMode"), 1).toInt();
        m_upagrahaMode = stored == 2 ? 2 : 1;
    }
    return m_upagrahaMode;
}

void clsPlanets::setUpagrahaMode(int v)
{
    if (v != 1 && v != 2)
        return;
    AppSettings::setValue(QStringLiteral("Settings"), QStringLiteral("UpagrahaMode"), v);
    m_upagrahaMode = v;
    m_dayPartMemo = {};
    ClearSunMemos();
}

void clsPlanets::forgetUpagrahas() const
{
    m_dayPartMemo = {};
    m_mandiMemo = 0;
    m_dayPartFrame.reset();
}

// The day or night that is running at the birth. A birth in the small hours belongs to the night
// that began at the sunset before, on the day before, and so takes that day's weekday; the parts of
// a night that run past midnight fall on the next date.
const clsPlanets::DayPartFrame &clsPlanets::dayPartFrame() const
{
    if (m_dayPartFrame)
        return *m_dayPartFrame;
    DayPartFrame f;
    const clsPerson &p = Person();
    const QDate birth(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
    if (birth.isValid()) {
        const double t = MinToDec(Val(p.GetBirthTime()));
        f.day = DayBirth();
        const double from = MinToDec(f.day ? SunRiseTime() : SunSetTime());
        const int back = t < from ? -1 : 0;
        f.date = birth.addDays(back);
        f.weekday = weekdayOf(f.date);
        f.valid = SunDayKind(*this, back) == SunDay::Normal && (f.day || SunDayKind(*this, back + 1) == SunDay::Normal);
        if (f.valid) {
            f.start = back == 0 ? from : MinToDec(NeighbourSunEvent(*this, f.day ? SunEvent::Rise : SunEvent::Set, -1));
            f.span = f.day ? DayDuration() : NightDuration();
        }
    }
    m_dayPartFrame = f;
    return *m_dayPartFrame;
}

bool clsPlanets::DayPartsHaveSun() const { return dayPartFrame().valid; }

// The clock moment `hours` after the midnight that opens the frame's date: Hour is the whole
// hours and Minutes the rest, rounded; from 24 hours on, the next date.
QDateTime clsPlanets::momentAfter(double hours) const
{
    QDate date = dayPartFrame().date;
    long hour = static_cast<long>(Fix(hours));
    const long minutes = CLng(Frac(hours) * 60);
    if (hours >= 24) {
        date = date.addDays(1);
        hour -= 24;
    }
    return QDateTime(date, QTime(0, 0), Qt::UTC).addSecs(hour * 3600 + minutes * 60);
}

// The Lagna of a second chart of this place at the moment.
double clsPlanets::lagnaAt(const QDateTime &moment) const
{
    clsPlanets m;
    m.setRahuKetuMode(m_rahuKetuMode);
    CopySettingTo(m);
    m.Person().setAMPM(Person().AMPM());
    m.Person().SetBirthDate(moment);
    m.Person().setSeconds(0);
    m.Calculate();
    return m.PlanetLongi(0);
}

// The moment part d (by day) or t (by night) begins, counted from the weekday's own part.
QDateTime clsPlanets::partMoment(int d, int t) const
{
    const DayPartFrame &f = dayPartFrame();
    if (!f.valid)
        return {};
    double k = f.day ? d : t;
    if (f.weekday > 1)
        k = Norm7(k - (f.weekday - 1));
    return momentAfter(f.start + f.span / 8 * k);
}

QDateTime clsPlanets::UpagrahaMoment(int n, int mode) const
{
    const DayPartFrame &f = dayPartFrame();
    if (!f.valid)
        return {};
    if (n == 17) {
        const size_t w = static_cast<size_t>(f.weekday - 1);
        const int g = f.day ? kMandiDay[w] : kMandiNight[w];
        return momentAfter(f.start + g / 30.0 * f.span);
    }
    if (n < 10 || n > 16 || (mode != 1 && mode != 2))
        return {};
    const PartPair &part = kDayParts[static_cast<size_t>(n - 10)][static_cast<size_t>(mode == 2 ? 0 : 1)];
    return partMoment(part.day, part.night);
}

double clsPlanets::KalaPartLagna(int d, int t) const { return dayPartFrame().valid ? lagnaAt(partMoment(d, t)) : 0; }

double clsPlanets::DayPartUpagraha(int n, int mode) const
{
    if (n < 10 || n > 16 || (mode != 1 && mode != 2) || !DayPartsHaveSun())
        return 0;
    double &kept = m_dayPartMemo[static_cast<size_t>(mode - 1)][static_cast<size_t>(n - 10)];
    if (kept == 0) {
        const PartPair &part = kDayParts[static_cast<size_t>(n - 10)][static_cast<size_t>(mode == 2 ? 0 : 1)];
        kept = KalaPartLagna(part.day, part.night);
    }
    return kept;
}

double clsPlanets::MandiLong() const
{
    if (!DayPartsHaveSun())
        return 0;
    if (m_mandiMemo == 0)
        m_mandiMemo = lagnaAt(UpagrahaMoment(17, 1));
    return m_mandiMemo;
}
