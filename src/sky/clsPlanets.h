// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// One cast chart. Fill its person, then Calculate; every public member reads the result.
// Planet numbers: 0 Lagna, 1 Sun, 2 Mercury, 3 Venus, 4 Mars, 5 Jupiter, 6 Saturn, 7 Moon,
// 8 Rahu, 9 Ketu, 10 Uranus, 11 Neptune, 12 Pluto.

#include "session/clsPerson.h"
#include "sky/clsVakya.h"

#include <QDateTime>
#include <QSqlDatabase>
#include <QString>

#include <array>
#include <memory>
#include <optional>

class clsPlanets
{
public:
    clsPlanets();
    ~clsPlanets();
    clsPlanets(const clsPlanets &) = delete;
    clsPlanets &operator=(const clsPlanets &) = delete;

    // Casts the chart from the person: universal time, positions, ayanamsa, bhavas.
    void Calculate();

    // Position table: 0 the Lagna, 1..12 the bodies, 13 the ayanamsa in force,
    // 14..25 the bodies one hour later (14 Sun .. 25 Pluto). An empty entry reads as 0.
    double PlanetLongi(int n) const;
    void setPlanetLongi(int n, double v);
    // True while entry n holds no value.
    bool PlanetLongiIsEmpty(int n) const;
    double LysPlnt(int n) const { return PlanetLongi(n); }
    void setLysPlnt(int n, double v) { setPlanetLongi(n, v); }

    // The birth record; made on first use.
    clsPerson &Person();
    const clsPerson &Person() const;
    void setPerson(const clsPerson &p);
    void setTextDB(const QSqlDatabase &textDb, const QSqlDatabase &recDb);

    // The ayanamsa choice, read and written in the settings store at once.
    int AyanType() const;
    void setAyanType(int v);
    // 1 mean node, 2 true node; read from the settings when the chart is made.
    int RahuKetuMode() const { return m_rahuKetuMode; }
    void setRahuKetuMode(int v) { m_rahuKetuMode = v; }

    // Krishnamurti ayanamsa at the person's moment, whatever the ayanamsa choice.
    double KPAyanVal() const;
    // Placidus cusp n (1..12) less the KP ayanamsa; 0 is the Lagna in the KP ayanamsa.
    double KPHouse(int n) const;
    // Obliquity in degrees and local sidereal time in hours, from the last Calculate.
    double Obliq() const { return m_obliq; }
    double SidrealTime() const { return m_sidrealTime; }
    // Julian centuries since day 694025 at the universal moment of the last Calculate.
    double T() const { return m_t; }
    // Bhava middle and beginning i (0..12); middle 0 is the Lagna.
    double BhavMid(int i) const;
    double BhavBegin(int i) const;

    // True when position n is greater than its value an hour later (no wrap at 360).
    bool RetroGrade(int n) const;
    // Degrees per hour (per day in the Vakya method); for 0, the Lagna's motion in the next hour.
    double PlanetSpeed(int n, double *out = nullptr) const;
    // Fixed speed rank: Moon 7, Mercury 6, Venus 5, Sun 4, Mars 3, Jupiter 2, Saturn 1, others 0.
    static int PlanetSpeedPoints(int n);
    static bool PlanetIsFaster(int a, int b);
    static bool PlanetIsSlower(int a, int b);
    static int PlanetGetFaster(int a, int b);
    static int PlanetGetSlower(int a, int b);

    // Difference of local mean time from zone time as minutes.seconds, without a sign.
    double LTCorrection() const;
    // 1 for the Sun in signs 10, 11, 12 and 1..4 (northward), 2 for 5..9.
    int GetSunAyan() const;

    // Copies date, clock, place and zone of this chart's person into other's person.
    void CopySettingTo(clsPlanets &other) const;
    void SetBirthDate(const QDateTime &moment) { Person().SetBirthDate(moment); }
    // Adds n days to the person's date across at most one month end; n keeps what is left.
    void AddDaysToDOB(long &n);

    // The Vakya method's object of this chart; made on first need.
    clsVakya &Vakya();
    // True unless the last Calculate used the Vakya method at a latitude where its Lagna is undefined.
    bool LagnaValid() const { return m_lagnaValid; }

    // Number of Calculate runs since the program started (for measurements).
    static long CalculateCount();

    // Calendar and number helpers.
    static long CalcDayNumber(long d, long m, long y);
    static long ConvertDateToNum(const QDate &date);
    static int MaxDayInMonth(int month, int year);
    // Adds value in unit "yyyy", "q", "m", "ww", "d", "h", "n" or "s".
    static QDateTime DateAddEx(const QDateTime &date, const QString &unit, double value);
    // Adds a decimal span: unit 1 years, 3 days, 4 hours, 5 minutes, 6 seconds, each fraction
    // going on in the next unit (a year's fraction at 365.2564 days). unit ends at 6.
    static QDateTime AddDecValToDate(const QDateTime &date, double value, int &unit);
    // "dd:mm:ss" of a decimal degree value.
    static QString DecToDeg(double x);
    static double DegToDec(double d, double m, double s);
    // Degrees within the sign as "dd:mm:ss".
    static QString ConvertValNoDeg(double x);
    // Whole minutes of a decimal degree value.
    static long GetMin(double x);
    // LatDeg + Int(LatMT / 100 * 60) of the person.
    double Latitude() const;

private:
    void clearWorkingFields();
    void calcPlanets();
    double personJulianDay(double laterHours) const;
    void placeBodies(double tjd, bool later);
    void calcSwePlanets();
    void calcSweNextHour();
    void calcVakyaPlanets();
    void applyAyanamsa();
    double ayanamsaByChoice(int type, double yd) const;
    void subtractAyan(double ayan);
    void calcBhavas();
    double calcAscendant(double st, double lat) const;
    void fillHouseRun(double start, double step, int first);
    double sweAyanamsa(int selector) const;
    std::optional<double> &slot(int n);
    const std::optional<double> &slot(int n) const;

    std::array<std::optional<double>, 27> m_pos{};
    std::array<double, 13> m_bhavMid{};
    std::array<double, 13> m_bhavBegin{};
    std::array<double, 14> m_kpHouse{};
    std::array<double, 13> m_cusps{};
    std::array<double, 10> m_ascmc{};
    double m_t = 0;
    double m_dayFraction = 0;
    double m_obliq = 0;
    double m_sidrealTime = 0;
    int m_rahuKetuMode = 1;
    int m_utDay = 0, m_utMonth = 0, m_utYear = 0;
    bool m_lagnaValid = true;
    std::unique_ptr<clsPerson> m_person;
    std::unique_ptr<clsVakya> m_vakya;
    QSqlDatabase m_textDb, m_recDb;
};
