// SPDX-License-Identifier: AGPL-3.0-or-later
// Casting: clock time to universal time, positions from the ephemeris, the ayanamsa.
#include "sky/clsPlanets.h"

#include "sky/AppSettings.h"
#include "sky/Functions.h"
#include "sky/SwissEphemeris.h"

#include <cmath>
#include <stdexcept>

namespace {
long g_calculateCount = 0;

// Where each body of the ephemeris goes in the position table, and where its value an hour
// later goes. The nodes are placed by the node mode instead.
struct BodySlot
{
    SwissEphemeris::Body body;
    int now;
    int later;
};
inline constexpr std::array<BodySlot, 10> kBodySlots{{
    {SwissEphemeris::Sun, 1, 14},
    {SwissEphemeris::Moon, 7, 20},
    {SwissEphemeris::Mercury, 2, 15},
    {SwissEphemeris::Venus, 3, 16},
    {SwissEphemeris::Mars, 4, 17},
    {SwissEphemeris::Jupiter, 5, 18},
    {SwissEphemeris::Saturn, 6, 19},
    {SwissEphemeris::Uranus, 10, 23},
    {SwissEphemeris::Neptune, 11, 24},
    {SwissEphemeris::Pluto, 12, 25},
}};
static_assert(kBodySlots.size() == 10);

bool isWest(const QString &ew) { return ew.compare(QLatin1String("W"), Qt::CaseInsensitive) == 0; }
bool isSouth(const QString &ns) { return ns.compare(QLatin1String("S"), Qt::CaseInsensitive) == 0; }
} // namespace

clsPlanets::clsPlanets() : m_rahuKetuMode(AppSettings::RahuKetuMode()) {}
clsPlanets::~clsPlanets() = default;

long clsPlanets::CalculateCount() { return g_calculateCount; }

clsPerson &clsPlanets::Person()
{
    if (!m_person)
        m_person = std::make_unique<clsPerson>();
    return *m_person;
}

const clsPerson &clsPlanets::Person() const { return const_cast<clsPlanets *>(this)->Person(); }

void clsPlanets::setPerson(const clsPerson &p) { m_person = std::make_unique<clsPerson>(p); }

void clsPlanets::setTextDB(const QSqlDatabase &textDb, const QSqlDatabase &recDb)
{
    m_textDb = textDb;
    m_recDb = recDb;
}

int clsPlanets::AyanType() const { return AppSettings::AyanType(); }
void clsPlanets::setAyanType(int v) { AppSettings::setAyanType(v); }

std::optional<double> &clsPlanets::slot(int n)
{
    if (n < 1 || n > 26)
        throw std::out_of_range("position table index outside 0..26");
    return m_pos[static_cast<size_t>(n)];
}

const std::optional<double> &clsPlanets::slot(int n) const { return const_cast<clsPlanets *>(this)->slot(n); }

double clsPlanets::PlanetLongi(int n) const
{
    if (n == 0)
        return m_bhavMid[0];
    return slot(n).value_or(0.0);
}

void clsPlanets::setPlanetLongi(int n, double v)
{
    if (n == 0)
        m_bhavMid[0] = v;
    else
        slot(n) = v;
}

bool clsPlanets::PlanetLongiIsEmpty(int n) const { return n != 0 && !slot(n).has_value(); }

double clsPlanets::BhavMid(int i) const { return m_bhavMid.at(static_cast<size_t>(i)); }
double clsPlanets::BhavBegin(int i) const { return m_bhavBegin.at(static_cast<size_t>(i)); }
double clsPlanets::KPHouse(int n) const { return m_kpHouse.at(static_cast<size_t>(n)); }

void clsPlanets::Calculate()
{
    ++g_calculateCount;
    calcPlanets();
    FillVargas();
    forgetUpagrahas();
}

void clsPlanets::clearWorkingFields()
{
    m_pos.fill(std::nullopt);
    m_bhavMid.fill(0);
    m_bhavBegin.fill(0);
    m_kpHouse.fill(0);
    m_cusps.fill(0);
    m_ascmc.fill(0);
    m_t = m_dayFraction = m_obliq = m_sidrealTime = 0;
}

void clsPlanets::calcPlanets()
{
    clsPerson &p = Person();
    clearWorkingFields();

    // The clock time becomes universal time; the person's date moves with it.
    const double gmt = Val(p.GMTDIFF());
    double hour = p.Hour() + p.Minutes() / 60.0;
    hour -= gmt;
    hour = p.AdjustHour(hour, p.Day(), p.Month(), p.Year());
    hour += Val(p.TimeCorr());
    hour = p.AdjustHour(hour, p.Day(), p.Month(), p.Year());
    p.setHour(Int(hour));
    p.setMinutes(Frac(hour) * 60);
    m_utDay = static_cast<int>(p.Day());
    m_utMonth = static_cast<int>(p.Month());
    m_utYear = static_cast<int>(p.Year());

    const long dayNumber = CalcDayNumber(p.Day(), p.Month(), p.Year());
    m_dayFraction = ((p.Hour() + p.Minutes() / 60.0) - 12) / 24;
    m_t = (dayNumber - 694025 + m_dayFraction) / 36525;

    // Lahiri's value by its polynomial stands in position 13 until the ayanamsa is applied.
    setPlanetLongi(13, 22.460148 + 1.396042 * m_t + 0.000308 * m_t * m_t);
    calcSwePlanets();
    calcSweNextHour();

    // Back to the local clock, now with the time correction applied.
    hour += gmt;
    hour = p.AdjustHour(hour, p.Day(), p.Month(), p.Year());
    p.setHour(Int(hour));
    p.setMinutes(Frac(hour) * 60);

    // The Vakya method replaces the bodies it knows and the Lagna. Its values are sidereal by its
    // own reckoning; the Lahiri value of position 13 is added so that the ayanamsa in force can
    // be taken off below exactly as on the ephemeris path. The sum is brought into 0..360 here,
    // since the choices that take nothing off (12 and 14) leave it as it stands.
    const bool vakya = AppSettings::Vakya();
    double x = 0;
    double vakyaLagna = 0;
    m_lagnaValid = true;
    if (vakya) {
        calcVakyaPlanets();
        vakyaLagna = PlanetLongi(0);
        x = PlanetLongi(13);
        for (int i : {1, 2, 3, 4, 5, 6, 7, 8, 9, 14, 15, 16, 17, 18, 19, 20, 21, 22})
            setPlanetLongi(i, Norm360(PlanetLongi(i) + x));
    }

    applyAyanamsa();
    calcBhavas();
    CalcPanchang();

    if (vakya)
        setPlanetLongi(0, Norm360(vakyaLagna + x - PlanetLongi(13)));
}

clsVakya &clsPlanets::Vakya()
{
    if (!m_vakya)
        m_vakya = std::make_unique<clsVakya>();
    return *m_vakya;
}

void clsPlanets::calcVakyaPlanets()
{
    const clsPerson &p = Person();
    clsVakya &v = Vakya();
    const bool south = p.TextNS().compare(QLatin1String("S"), Qt::CaseInsensitive) == 0;
    const auto cast = [&](int day) {
        v.Calculate(day, static_cast<int>(p.Month()), static_cast<int>(p.Year()), static_cast<int>(p.Hour()),
                    static_cast<int>(p.Minutes()), static_cast<int>(p.seconds()), p.LatDeg(), p.LatMT(), p.LongDeg(),
                    p.LongMT(), PlanetLongi(13), south);
    };
    // The day after first: the table of later positions holds one day later in this method.
    cast(static_cast<int>(p.Day()) + 1);
    const std::array<std::pair<int, double>, 9> later{{{14, v.Sun()}, {15, v.Mercury()}, {16, v.Venus()}, {17, v.Mars()},
                                                        {18, v.Jupiter()}, {19, v.Saturn()}, {20, v.Moon()}, {21, v.Rahu()},
                                                        {22, v.Ketu()}}};
    for (const auto &[n, value] : later)
        setPlanetLongi(n, value);
    cast(static_cast<int>(p.Day()));
    const std::array<std::pair<int, double>, 9> now{{{1, v.Sun()}, {2, v.Mercury()}, {3, v.Venus()}, {4, v.Mars()},
                                                      {5, v.Jupiter()}, {6, v.Saturn()}, {7, v.Moon()}, {8, v.Rahu()},
                                                      {9, v.Ketu()}}};
    for (const auto &[n, value] : now)
        setPlanetLongi(n, value);
    setPlanetLongi(0, v.Lagna());
    m_lagnaValid = v.LagnaValid();
}

long clsPlanets::CalcDayNumber(long d, long m, long y)
{
    if (m < 3) {
        m += 12;
        y -= 1;
    }
    const double a = Int(y / 100.0);
    return static_cast<long>(365.0 * y + Int(y / 4.0) + Int((m + 1) * 30.6) + 2 - a + Int(a / 4) + d);
}

double clsPlanets::personJulianDay(double laterHours) const
{
    const clsPerson &p = Person();
    const double hourdec = p.Hour() + p.Minutes() / 60.0 + laterHours;
    const int y = static_cast<int>(p.Year()), m = static_cast<int>(p.Month()), d = static_cast<int>(p.Day());
    double tjd = SwissEphemeris::julday(y, m, d, hourdec);
    SwissEphemeris::dateConversion(y, m, d, hourdec, tjd); // sets tjd even for hour 24 and beyond
    return tjd;
}

void clsPlanets::placeBodies(double tjd, bool later)
{
    for (const BodySlot &b : kBodySlots)
        setPlanetLongi(later ? b.later : b.now, SwissEphemeris::calc(tjd, b.body).xx[0]);
    if (m_rahuKetuMode == 1 || m_rahuKetuMode == 2) {
        const auto node = SwissEphemeris::calc(tjd, m_rahuKetuMode == 1 ? SwissEphemeris::MeanNode : SwissEphemeris::TrueNode);
        setPlanetLongi(later ? 21 : 8, node.xx[0]);
        setPlanetLongi(later ? 22 : 9, Norm360(node.xx[0] + 180));
    }
}

void clsPlanets::calcSwePlanets()
{
    const clsPerson &p = Person();
    const double tjd = personJulianDay(0);
    const double tjd2 = tjd - SwissEphemeris::deltat(tjd);
    placeBodies(tjd, false);

    double lon = p.LongDeg() + p.LongMT() / 60.0;
    if (isWest(p.TextEW()))
        lon = -lon;
    double lat = p.LatDeg() + p.LatMT() / 60.0;
    if (isSouth(p.TextNS()))
        lat = -lat;
    const SwissEphemeris::Houses h = SwissEphemeris::housesPlacidus(tjd2, lat, lon);
    m_cusps = h.cusps;
    m_ascmc = h.ascmc;
    m_kpHousesPlacidus = h.ok;
    const double kp = KPAyanVal();
    for (int i = 1; i <= 12; ++i)
        m_kpHouse[static_cast<size_t>(i)] = Norm360(m_cusps[static_cast<size_t>(i)] - kp);
}

void clsPlanets::calcSweNextHour() { placeBodies(personJulianDay(1), true); }

double clsPlanets::sweAyanamsa(int selector) const
{
    return SwissEphemeris::ayanamsa(selector == 2 ? SwissEphemeris::Raman : SwissEphemeris::Krishnamurti, personJulianDay(0));
}

double clsPlanets::KPAyanVal() const { return sweAyanamsa(1); }

double clsPlanets::ayanamsaByChoice(int type, double yd) const
{
    // The linear ayanamsas: a zero year and a yearly rate in arc seconds.
    struct Linear
    {
        int type;
        double zeroYear;
        double rate;
    };
    static constexpr std::array<Linear, 9> kLinear{{
        {2, 397.186, 50.3389},
        {4, 298.883, 49.5},
        {5, 199, 49.636},
        {6, 498, 50},
        {7, 238, 50.3086},
        {8, 320, 50.34},
        {9, 284, 49},
        {10, 384.483, 50.277},
        {11, 663, 60.66},
    }};
    for (const Linear &l : kLinear)
        if (l.type == type)
            return (yd - l.zeroYear) * l.rate / 3600;
    switch (type) {
    case 1:
        return PlanetLongi(13);
    case 3:
        return KPAyanVal();
    case 13:
        return Val(AppSettings::CustAyan());
    case 15: {
        // The Kali day of the person's date as it stands now, the local date on both paths.
        const clsPerson &p = Person();
        return clsVakya::CalcVakyaAyanamsha(
            clsVakya::KaliDinOf(static_cast<int>(p.Day()), static_cast<int>(p.Month()), static_cast<int>(p.Year())));
    }
    default:
        return 0; // 12 and 14: nothing is taken off
    }
}

void clsPlanets::applyAyanamsa()
{
    // yd: the universal date's year plus the days since its 1 January over 365.2564.
    const QDate utDate(m_utYear, m_utMonth, m_utDay);
    const double days = utDate.isValid() ? QDate(m_utYear, 1, 1).daysTo(utDate) : 0;
    const double yd = m_utYear + days / 365.2564;
    const int type = AyanType();
    const double ayan = ayanamsaByChoice(type, yd);
    if (type != 12 && type != 14)
        subtractAyan(ayan);
    setPlanetLongi(13, ayan);
}

void clsPlanets::subtractAyan(double ayan)
{
    for (int i = 1; i <= 26; ++i) {
        auto &v = slot(i);
        if (v) // an empty entry stays empty
            v = Norm360(*v - ayan);
    }
}

bool clsPlanets::RetroGrade(int n) const
{
    if (n == 13)
        return false;
    return PlanetLongi(n) > PlanetLongi(n + 13);
}

double clsPlanets::PlanetSpeed(int n, double *out) const
{
    double speed = 0;
    if (n != 0) {
        speed = PlanetLongi(n + 13) - PlanetLongi(n);
    } else {
        clsPlanets later;
        later.setTextDB(m_textDb, m_recDb);
        later.setRahuKetuMode(m_rahuKetuMode);
        CopySettingTo(later);
        later.Person().AddMinutes(60);
        later.Calculate();
        speed = Norm360(later.PlanetLongi(0) - PlanetLongi(0));
    }
    if (out)
        *out = speed;
    return speed;
}

int clsPlanets::PlanetSpeedPoints(int n)
{
    static constexpr std::array<int, 8> kPoints{0, 4, 6, 5, 3, 2, 1, 7}; // by planet 0..7
    return n >= 1 && n <= 7 ? kPoints[static_cast<size_t>(n)] : 0;
}

bool clsPlanets::PlanetIsFaster(int a, int b) { return PlanetSpeedPoints(a) > PlanetSpeedPoints(b); }
bool clsPlanets::PlanetIsSlower(int a, int b) { return PlanetSpeedPoints(a) < PlanetSpeedPoints(b); }
int clsPlanets::PlanetGetFaster(int a, int b) { return PlanetIsFaster(a, b) ? a : b; }
int clsPlanets::PlanetGetSlower(int a, int b) { return PlanetIsSlower(a, b) ? a : b; }

double clsPlanets::LTCorrection() const
{
    const clsPerson &p = Person();
    const double zone = Val(p.GMTDIFF()) * 900; // arc minutes
    const double m = p.LongDeg() * 60.0 + p.LongMT();
    double x;
    if (p.TextEW().toUpper() == QLatin1String("E"))
        x = std::fabs(zone - m) * 4 / 60;
    else
        x = std::fabs(std::fabs(zone) - m) * 4 / 60; // the smaller taken from the larger
    // Whole seconds are rounded: 318 arc minutes make 21.2 minutes, which is 21 min 12 s, though
    // the fraction of 21.2 in binary is a hair below 0.2.
    const long secs = std::lround(x * 60);
    return Val(QString::number(secs / 60) + QLatin1Char('.') + Two(secs % 60));
}

int clsPlanets::GetSunAyan() const
{
    const int sign = static_cast<int>(Int(PlanetLongi(1) / 30)) + 1;
    return sign >= 5 && sign <= 9 ? 2 : 1;
}

void clsPlanets::CopySettingTo(clsPlanets &other) const
{
    const clsPerson &p = Person();
    clsPerson &o = other.Person();
    o.setDay(p.Day());
    o.setMonth(p.Month());
    o.setYear(p.Year());
    o.setHour(p.Hour());
    o.setMinutes(p.Minutes());
    o.setSeconds(p.seconds());
    o.setLongDeg(p.LongDeg());
    o.setLongMT(p.LongMT());
    o.setLatDeg(p.LatDeg());
    o.setLatMT(p.LatMT());
    o.setGMTDIFF(p.GMTDIFF());
    o.setName(p.Name());
    o.setPLOB(p.PLOB());
    // The hemispheres go too: without them a copy for a place west or south would be cast as if
    // east and north. The time correction does not: the person already carries it.
    o.setTextNS(p.TextNS());
    o.setTextEW(p.TextEW());
}

void clsPlanets::AddDaysToDOB(long &n)
{
    clsPerson &p = Person();
    long d = p.Day(), m = p.Month(), y = p.Year();
    if (n > 0) {
        const int max = MaxDayInMonth(static_cast<int>(m), static_cast<int>(y));
        if (d + n <= max) {
            d += n;
            n = 0;
        } else {
            n -= max - d + 1;
            d = 1;
            if (++m > 12) {
                m = 1;
                ++y;
            }
        }
    } else if (n < 0) {
        if (d + n >= 1) {
            d += n;
            n = 0;
        } else {
            n += d;
            if (--m < 1) {
                m = 12;
                --y;
            }
            d = MaxDayInMonth(static_cast<int>(m), static_cast<int>(y));
        }
    }
    p.setDay(d);
    p.setMonth(m);
    p.setYear(y);
}

double clsPlanets::Latitude() const
{
    const clsPerson &p = Person();
    return p.LatDeg() + Int(p.LatMT() / 100.0 * 60);
}
