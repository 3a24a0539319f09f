// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// One cast chart. Fill its person, then Calculate; every public member reads the result.
// Planet numbers: 0 Lagna, 1 Sun, 2 Mercury, 3 Venus, 4 Mars, 5 Jupiter, 6 Saturn, 7 Moon,
// 8 Rahu, 9 Ketu, 10 Uranus, 11 Neptune, 12 Pluto.

#include "sky/clsPerson.h"
#include "sky/clsVakya.h"

#include <QDateTime>
#include <QHash>
#include <QSqlDatabase>
#include <QString>
#include <QVariant>

#include <array>
#include <memory>
#include <optional>

class KundaliModel;

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
    // False when the last Calculate lay beyond the polar circles, where Placidus cusps don't
    // exist: Swiss Ephemeris then gives Porphyry's, and KPHouse holds those.
    bool KPHousesPlacidus() const { return m_kpHousesPlacidus; }
    // Obliquity in degrees and local sidereal time in hours, from the last Calculate.
    double Obliq() const { return m_obliq; }
    double SidrealTime() const { return m_sidrealTime; }
    // Julian centuries since day 694025 at the universal moment of the last Calculate.
    double T() const { return m_t; }
    // Bhava middle and beginning i (0..12); middle 0 is the Lagna.
    double BhavMid(int i) const;
    double BhavBegin(int i) const;
    // Sets beginning i (0..12), as the bhava table is edited or built by hand.
    void setBhavBegin(int i, double v);
    // Sign house of planet n counted from the Lagna's sign, 1..12.
    int PlanetHouse(int n) const;
    // Lord of sign s.
    static int GetHouseLord(int s);
    // The Chalit chart into a wheel: the Lagna in its sign, each planet 1..12 in the cell of its bhava,
    // named by PlanetName (or PlanetNameEng). The caller clears the wheel first.
    void FillBhavaKundali(KundaliModel &k) const;
    void FillBhavaKundaliEnglish(KundaliModel &k) const;
    // The bhava 0..11 that holds planet p (1..12), counted from the first beginning.
    int ChalitBhava(int p) const;

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

    // ---- Text look-ups, signs, nakshatras and the panchang (clsPlanets_signs.cpp) ----
    // Text look-ups on the chart's text database; see text/TextDB.h for Empty and Null.
    QSqlDatabase GetTxtDB() const { return m_textDb; }
    QVariant GetHeadValue(int type, const QVariant &head, const QString &category = QString()) const;
    QVariant GetTextBetween(const QString &table, const QVariant &head, const QString &category) const;
    QVariant GetGenText(const QVariant &head) const;
    QVariant GetConjText(const QVariant &head) const;
    // Name of the ayanamsa choice in force (head "AyanName", category the choice).
    QString AyanamshName() const;
    // Two-digit day, month name and year: "05 August 1980"; the second always in English.
    QString ConvertDateToText(const QDate &date) const;
    QString ConvertDateToTextEng(const QDate &date) const;
    // Month n (1..12) in the language and in English.
    QString GetMonthNameByNum(int n) const;
    QString GetMonthNameByNumEng(int n) const;
    // Sign name of longitude x, sign Fix(x / 30) + 1.
    QString ConvertToDegNoVal(double x) const;
    // Degrees and minutes within the sign, joined by the language's ":".
    QString ConvertValNoDegNoSec(double x) const;
    // The language's word for direct or retrograde motion of position n.
    QString Direction(int n) const;

    // Sign of planet n: Int(L / 30) + 1, computed each time.
    int PlanetRashiNum(int n) const;
    // The same, kept after the first call until the next Calculate (Sign with Fix, PlanetSign with Int).
    int Sign(int n) const;
    int PlanetSign(int n) const;
    // The Moon's sign and its name.
    int RashiNum() const { return PlanetRashiNum(7); }
    QString RashiName() const;
    QString PlanetRashiName(int n) const;
    // "Ari" .. "Pis" of planet n's sign.
    QString PlanetRashiNameEngSmall(int n) const;
    // Sign name of x: a fractional x is a longitude, a whole x a sign number.
    QString ConvertRashi(double x) const;
    // The same in English.
    QString ConvertRashiEng(double x) const;
    // Sign number of a longitude (fractional x) or of a sign number (whole x).
    static int ConvertRashiNum(double x);
    int GetSign(int n) const { return PlanetRashiNum(n); }
    // Lord of sign s (0 outside 1..12).
    static int GetRashiLordNum(int s);
    static int SignLord(int s) { return GetRashiLordNum(s); }
    static int FindRashiLordNo(int s) { return GetRashiLordNum(s); }
    // Lord of a sign number or of the sign of a longitude.
    static int PlanetRashiLordNum(double x) { return GetRashiLordNum(ConvertRashiNum(x)); }
    int PlanetSignLord(int n) const { return GetRashiLordNum(PlanetRashiNum(n)); }
    // 1 movable, 2 fixed, 3 dual; 0 outside 1..12.
    static int RashiClass(int s);
    static int HouseClass(int h) { return RashiClass(h); }
    // 1 fire, 2 earth, 3 air, 4 water; 0 outside 1..12.
    static int GetRashiElement(int s);
    // 1, 4, 2 or 3 by the element of planet n's sign.
    int FindPlanetDirection(int n) const;
    // How many of the planets 1..7 stand in sign s.
    int CountPlanetInSign(int s) const;
    // How many signs hold a planet: planets 1..9 if k is 1, planets 1..7 otherwise.
    int SignOccupiedNum(int k) const;
    QString SunSignEngByNumber(int s) const;
    // The Western sun sign of the person's date, in the language and as the English word.
    QString FindSunSign() const;
    QString FindSunSignEng() const;

    // Planet names: abbreviation (kept; checks the language file), English abbreviation,
    // full name, full English name, two-letter form.
    QString PlanetName(int n) const;
    static QString PlanetNameEng(int n);
    QString PlanetNameFull(int n) const;
    static QString PlanetNameFullEng(int n);
    QString PlanetNameSmall(int n) const;
    // Lord of the Moon's sign in the order Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn (1..7).
    int GrahaMaitriNo() const;
    // Days of the annual dasha of place n of the nine-cycle; its name (kept).
    static int MuddaCycleNo(int n);
    QString MuddaCycleName(int n) const;
    // Planet n in the traditional order Sun, Moon, Mars, Mercury, Jupiter, Venus, Saturn.
    static int PlanetSerialNumber(int n);

    // Nakshatra 1..27 of the Moon, of a longitude, of planet n (0 the Lagna).
    int Nakshatra() const { return NakshatraNum(PlanetLongi(7)); }
    static int NakshatraNum(double l);
    int NakOf(int n) const { return NakshatraNum(PlanetLongi(n)); }
    QString GetNakshatraName(int k) const;
    QString NakNamePlanet(int n) const { return GetNakshatraName(NakOf(n)); }
    // Vimshottari lord (planet number) of nakshatra k; 0 outside 1..27.
    static int NakLordNum(int k);
    // Name of the lord of k, k reduced by its digits to 1..9.
    QString NakLordName(int k) const;
    QString GetNakLordName(int k) const { return NakLordName(k); }
    // True if planet n stands in one of the three nakshatras of planet p (1..7).
    bool PlanetINNakof(int p, int n) const;
    // The Moon's pada from the panchang.
    int NakPada() const { return m_pada; }
    int Pada() const { return m_pada; }
    static int NakPadaNum(double l);
    int NakPadaPlanet(int n) const;
    // 28 (Abhijit) for the Moon within 276.4..280.54, else the Moon's nakshatra.
    int Nak28GetNakshatra() const;
    // Tara of nakshatra b counted from a, 1..9.
    static int GetTaraNum(int a, int b);
    QString FindFirstLetters(int k) const;

    // Tithi 1..30, M - S in 0..360, names and classes.
    int Tithi() const { return m_tithi; }
    double TithiValue() const;
    QString TithiName(double t) const;
    QString GetTithiName(double t) const { return TithiName(t); }
    static int TithiShuklaKrishna(double t);
    static int GetTithiType(int t);
    // Yoga 1..27 and its name.
    int YogaNumber() const { return m_yoga; }
    QString YogaName() const;
    QString ConvertYoga(double x) const;
    QString FindYoga() const { return ConvertYoga(m_yoga); }
    // Karana 1..11 and its name.
    int KaranNumber() const;
    QString KaranName() const;

    // Weekday lords, day names and horas.
    int WeekDayLord() const;
    static int WeekDayLordOfDay(int d);
    static int WeekDayLordFromDay(int d) { return WeekDayLordOfDay(d); }
    QString GetDayName(int n) const;
    QString ConvertDayEng(int n) const;
    static int GetDayHora(int d);
    double GetHoraStart(int h) const;
    static int GetHoraType(int h, int d);
    QString GetHoraName(int t) const;

    // Chogadiya 1..8 by day, 9..16 by night: span, start (hh.mm arithmetic), kind and name.
    double GetChogadiyaSpan(int n) const;
    double GetChogadiyaStart(int n) const;
    static int GetChogadiyaType(int n, int d);
    QString GetChowGadiyaName(int t) const;
    // Rahu Kaal and the bad muhurthas of the birth day.
    double GetRahuKaalSpanToday() const;
    double GetRahuKaalStartToday() const;
    double GetMuhurthaLength() const;
    double GetEvilMuhurthaStart(int k) const;

    // Vikrami month of a sun longitude at a moment, and its name.
    static int VikramiMonth(double l, const QDateTime &date);
    QString GetVikramiMonth(int n) const;

    // Marriage and birth attributes of the Moon.
    // Gana of nakshatra k (0 the Moon's): 1 Rakshasa, 2 Manushya, 3 Deva.
    int Gana(int k = 0) const;
    QString AssignGana(int x) const;
    int NadiNo() const;
    QString AssignNadi(int x) const;
    QString NadiPada() const;
    int VarnaNo() const;
    QString Varna() const;
    int VasyaNo() const;
    QString Vasya() const;
    QString YoniName() const;
    int YoniNo() const;
    QString Paya() const;
    QString Rajju() const;
    QString RajjuType() const;
    QString Tatwa(int n = 7) const;
    QString Vihag(int n = 7) const;
    // Fills tithi, nakshatra, pada, yoga and sign of the Moon from positions 1 and 7, and forgets
    // the kept signs; a step of Calculate.
    void CalcPanchang();
    // ---- end of the sign, nakshatra and panchang members ----

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
    bool m_kpHousesPlacidus = true;
    std::unique_ptr<clsPerson> m_person;
    std::unique_ptr<clsVakya> m_vakya;
    QSqlDatabase m_textDb, m_recDb;

    // ---- Sign, nakshatra and panchang state (clsPlanets_signs.cpp) ----
    QString memoText(const QString &category, const QVariant &key) const;
    int varnaMode() const;
    mutable std::array<double, 14> m_signMemo{};     // sign of positions 0..13; 0 = not yet
    mutable QHash<QString, QString> m_textMemo;      // kept names by category and key
    mutable QString m_textMemoConnection;            // the database the kept names came from
    int m_tithi = 0, m_nakField = 0, m_pada = 0, m_yoga = 0, m_signField = 0;
    // ---- end of the sign, nakshatra and panchang state ----

    // ---- Sunrise, sunset and the lengths of day and night (clsPlanets_sun.cpp) ----
public:
    // Clock (hh.mm) at which the Lagna reaches the Sun's longitude: the sunrise near the birth.
    // On a day without sunrise or sunset (SunDayKind in SunEvents.h) these two give the equal
    // day's start and end instead, 6:00 and 18:00 local mean time; a caller that shows them as
    // sun times asks SunDayKind first.
    double SunRiseTime() const;
    // Clock (hh.mm) at which the Lagna stands opposite the Sun: the first sunset from the birth on.
    double SunSetTime() const;
    // True when the birth clock lies from sunrise to sunset.
    bool DayBirth() const;
    // Hours from sunrise to sunset.
    double DayDuration() const;
    // Hours of the night before the birth (birth before noon) or after it (from noon on).
    // The next day's sunrise (hh.mm), kept like the others.
    double NextSunRiseTime() const;
    double NightDuration() const;
    // Forgets the three kept sun values.
    void ClearSunMemos();

private:
    void refreshSunMemos() const;
    double iterateSunSet() const;
    mutable double m_sunRise = 0;       // hh.mm; 0 = not yet
    mutable double m_sunSet = 0;        // hh.mm; 0 = not yet
    mutable double m_nightDuration = 0; // hours; 0 = not yet
    mutable double m_nextSunRise = 0;   // hh.mm; 0 = not yet
    mutable QString m_sunMemoKey;       // the person's moment and place the kept values belong to
    // ---- end of the sun members ----

    // ---- Dignity, relationship and aspect predicates (clsPlanets_dignity.cpp) ----
    // Planets outside a table's rows answer false (0 for the numeric ones).
public:
    // Planet p (1..9) in its exaltation or debilitation sign, by PlanetRashiNum.
    bool Exalted(int p) const;
    bool Debilitated(int p) const;
    // The same for planet p imagined in sign s.
    static bool CheckIfExalted(int p, int s);
    static bool CheckIfDebi(int p, int s);
    // Planet p (1..7) within its peak degrees of exaltation or debilitation, bounds included.
    bool CheckHighestExaltDeg(int p) const;
    bool CheckHighestDebiDeg(int p) const;
    // Sign s is an own sign of p (1..12; Mercury owns 3 and 6).
    static bool CheckOwnHouse(int p, int s);
    // Planet p (1..9) stands in an own sign (Mercury: 3 only).
    bool InOwnHouse(int p) const;
    // Planet p (1..7) within its moolatrikona degrees.
    bool IsMoolTrikona(int p) const;
    // The dignity word of p's longitude (head "EXALTCLASS"), "" in none of the ranges.
    QString ExaltClass(int p) const;
    // The same as "Exalt", "Mool", "Own" or "Debi".
    QString ExaltClassEng(int p) const;
    // Natural relation of p2 to p1: 1 friend, 2 neutral, 3 enemy; 0 for a pair the table lacks.
    static int GrahaRelation(int p1, int p2);
    // q is an enemy of p in the table of company and aspect.
    static bool IsPlanetEnemy(int p, int q);
    // Planet p stands in a sign of its friend, enemy or neutral table.
    bool InFriendHouse(int p) const;
    bool InEnemyHouse(int p) const;
    bool InSamaHouse(int p) const;
    // Compound friendship with the lord of p's sign: great friend and great enemy.
    bool InAdhiMitraHouse(int p) const;
    bool InAdhiSatruHouse(int p) const;
    // Natural benefics 2, 3, 5, 7; natural malefics 1, 4, 6, 8, 9.
    static bool PlanetBenefic(int p);
    static bool PlanetMalefic(int p);
    // Aspect code of a separation: "CNJ", "OPP", "SQU", "TRN", "SXT", "SQQ", "SSQ", "QNC", "SSX",
    // "QNT", "BQT", or "".
    static QString FindRelation(double x);
    // p (2..7) within its combustion orb of the Sun, unwrapped; Empty for other planets.
    std::optional<bool> Combust(int p) const;
    // The same test with p at b and the Sun at a.
    static std::optional<bool> CheckIfCombust(int p, double a, double b);
    // p (not the Sun) within 15 degrees of the Sun either way round.
    bool WithinOrbOfSun(int p) const;
    // The word for combust (head "ASTA", key 1) or the empty word (key 0).
    QString AstaText(int p) const;
    // Orb of p in degrees (Mercury and Venus narrower when retrograde); 0 outside 1..7.
    double PlanetOrb(int p) const;
    // Mean of the two orbs.
    double PlanetMutOrb(int p1, int p2) const;
    // Degree aspect between p1 and p2: 0 none, 1 conjunction, 2 square, 3 opposition, 4 trine, 5 sextile.
    int PlanetDegAspect(int p1, int p2) const;
    // Planet p (1..7) aspects sign s by its sign aspects.
    bool CheckIfPlanetAspects(int p, int s) const;
    // Planet b aspects planet a's sign (Rahu and Ketu by the seventh).
    bool IfPlanetAspects(int a, int b) const;
    // One of 5, 3, 7, 2 (benefics) or of 6, 1, 4 (malefics) aspects p's sign.
    bool PlanetAspectedByNatBenefic(int p) const;
    bool PlanetAspectedByNatMalefic(int p) const;
    // Saturn (6) or Mars (4) aspects sign s by its malefic aspects, retrograde or direct.
    bool CheckMaleficAspects(int p, int s) const;
    // A benefic (5, 3, 2, 7) or malefic (1, 4, 6, 8, 9) stands in p's sign, p itself counted.
    bool PlanetWithBenefic(int p) const;
    bool PlanetWithMalefic(int p) const;
    bool WithBenefic(int p) const { return PlanetWithBenefic(p); }
    bool WithMalefic(int p) const { return PlanetWithMalefic(p); }
    // An enemy of p aspects p's sign, or stands in it.
    bool AspectedByEnemy(int p) const;
    bool WithEnemy(int p) const;
    // Sign of a counted from the sign of b: the same, kendra, trikona, trika, apoklima, panaphara.
    bool PlanetInSameSign(int a, int b) const;
    bool PlanetInKendra(int a, int b) const;
    bool PlanetInTrikona(int a, int b) const;
    bool PlanetInTrika(int a, int b) const;
    bool PlanetInApoklima(int a, int b) const;
    bool PlanetInPanaphara(int a, int b) const;
    // p in sign s has directional strength from the Lagna's sign lagnaSign.
    static bool CheckDigBala(int p, int lagnaSign, int s);
    // p in sign s is exalted, in an own sign, or has directional strength from this Lagna.
    bool CheckIfStrong(int p, int s) const;

private:
    bool signAspectedBy(int q, int target) const;
    // ---- end of the dignity predicates ----

    // ---- The first days of the solar year and month (clsPlanets_year.cpp) ----
public:
    // Weekday (1 Sunday .. 7 Saturday) of the moment the Sun last stood at 0 degrees, found by
    // recasting a copy of the chart day by day, then hour by hour.
    int FirstDayOfYear() const;
    // Weekday of the Sun's entry into its present sign, by the time search.
    int FirstDayOfMonth() const;

    // ---- Ashtakavarga tables (clsPlanets_ashtakavarga.cpp) ----
public:
    // Adds 1 to Ashtak of each sign marked by the twelve house flags counted from startSign.
    void AshComp(const std::array<int, 12> &flags, int startSign) const;
    // Builds the nine point tables into AshVarga (index = planet number, 0 the Lagna) and their
    // sum over planets 1..8 into AshTotal; leaves Ashtak at 0.
    void AshTable() const;
    // The scratch tally (sign 0..12) and the finished tables (varga 0..10, sign 0..13); an index
    // out of range throws std::out_of_range.
    int Ashtak(int sign) const { return m_ashtak.at(static_cast<size_t>(sign)); }
    void setAshtak(int sign, int v) const { m_ashtak.at(static_cast<size_t>(sign)) = v; }
    int AshTotal(int sign) const { return m_ashTotal.at(static_cast<size_t>(sign)); }
    void setAshTotal(int sign, int v) const { m_ashTotal.at(static_cast<size_t>(sign)) = v; }
    int AshVarga(int varga, int sign) const { return m_ashVarga.at(static_cast<size_t>(varga)).at(static_cast<size_t>(sign)); }
    void setAshVarga(int varga, int sign, int v) const { m_ashVarga.at(static_cast<size_t>(varga)).at(static_cast<size_t>(sign)) = v; }

private:
    mutable std::array<int, 13> m_ashtak{};
    mutable std::array<int, 14> m_ashTotal{};
    mutable std::array<std::array<int, 14>, 11> m_ashVarga{};
    // ---- end of the Ashtakavarga tables ----

    // ---- The Vimshottari cycle (clsPlanets_dasha.cpp) ----
public:
    // Years of the birth Maha still to run at birth, on the Moon of the chart and on the Moon in
    // the KP ayanamsa.
    double VimBalAtBirth() const;
    double VimBalAtBirthKP() const;
    // Lord name and years of cycle position 1..9 from the text database (rows "X1-" and "LysY1"),
    // kept after the first read; an empty name or 0 years while the row is missing.
    QString VimName(int position) const;
    int VimPeriod(int position) const;
    // Years of planet 1..9's period (0 outside), and the lord of cycle position 1..9 (0 outside).
    static int GetVimSotPeriods(int planet);
    static int GetVimSotPlanetLord(int position);

private:
    mutable std::array<QString, 11> m_vimName{};
    mutable std::array<int, 11> m_vimPeriod{};
    // ---- end of the Vimshottari cycle ----

    // ---- Upagrahas (clsPlanets_upagrahas.cpp) ----
public:
    // The nine Sun-based points, each a fixed chain of arithmetic from the Sun's longitude.
    double DhumaLongi() const;
    double VyatipataLongi() const;
    double PariveshaLongi() const;
    double IndraChapaLongi() const;
    double UpaketuLongi() const;
    double BhukampaLongi() const;
    double UlkaLongi() const;
    double BrahmadandaLongi() const;
    double DhwajaLongi() const;
    // The school of the day-based points: 1 takes each at the end of its part of the day or night,
    // 2 at its start. Read from the store ("Settings", "UpagrahaMode", default 1) on first use and
    // held; setting it writes the store and forgets the kept day-based points and sun times.
    int UpagrahaMode() const;
    void setUpagrahaMode(int v);
    // The seven day-based points in the school in force: the Lagna when the given part of the day
    // or night begins (KalaPartLagna), kept once worked out; 0 on a day without sunrise or sunset.
    double KalaBelaLong() const { return DayPartUpagraha(10, UpagrahaMode()); }
    double ParidhiLong() const { return DayPartUpagraha(11, UpagrahaMode()); }
    double MrityuLong() const { return DayPartUpagraha(12, UpagrahaMode()); }
    double ArdhaPraharLong() const { return DayPartUpagraha(13, UpagrahaMode()); }
    double YamaKantakaLong() const { return DayPartUpagraha(14, UpagrahaMode()); }
    double KodandaLong() const { return DayPartUpagraha(15, UpagrahaMode()); }
    double GulikaLong() const { return DayPartUpagraha(16, UpagrahaMode()); }
    // The Lagna at the weekday's ghatis after sunrise (by day) or sunset (by night); no school.
    double MandiLong() const;
    // Day-based point n (10..16) in school mode (1 or 2), whatever the setting; 0 outside.
    double DayPartUpagraha(int n, int mode) const;
    // The Lagna at the start of part d (by day) or t (by night), 0..7, counted from the weekday's
    // lord; 0 on a day without sunrise or sunset.
    double KalaPartLagna(int d, int t) const;
    // True when the day or night of the birth has a real sunrise and sunset to count its parts
    // from; where the Sun doesn't rise or set (SunDayKind) the points 10..17 have no value.
    bool DayPartsHaveSun() const;
    // The clock moment whose Lagna is point n (10..17) in school mode; invalid outside, or on a day
    // without sunrise or sunset.
    QDateTime UpagrahaMoment(int n, int mode) const;

    // Upagraha n: 1..9 the Sun-based points, 10..16 the day-based ones in the school in force,
    // 17 Mandi; 0 outside 1..17 and for 10..17 where DayPartsHaveSun is false.
    double UpagrahaLongi(int n) const;
    // The same in school mode for the day-based points.
    double UpagrahaLongiInMode(int n, int mode) const;
    // True when point n has a value: 1..9 always, 10..17 when DayPartsHaveSun.
    bool UpagrahaKnown(int n) const;
    // Its sign 1..12, nakshatra 1..27 and pada 1..4.
    int UpagrahaSign(int n) const;
    int UpagrahaNak(int n) const;
    int UpaNakPada(int n) const;
    // Sign 1..12 of a longitude, 360 being the end of Pisces.
    static int UpagrahaSignOf(double l);
    int GulikaSign() const { return UpagrahaSignOf(GulikaLong()); }
    // Lord of the first five: 1 Mars, 2 Rahu, 3 Moon, 4 Venus, 5 Ketu; 0 for the others.
    static int UpagrahaLord(int n);
    // Names under heads "Upagrahas" and "UpagrahaSmall".
    QString UpagrahaName(int n) const;
    QString UpagrahaNameSmall(int n) const;

private:
    // Where the day or night of the birth begins: its date, its clock in hours, its length, whether
    // it is the day, and its weekday 1..7.
    struct DayPartFrame
    {
        QDate date;
        double start = 0, span = 0;
        bool day = true;
        int weekday = 0;
        bool valid = false;
    };
    const DayPartFrame &dayPartFrame() const;
    QDateTime momentAfter(double hours) const;
    QDateTime partMoment(int d, int t) const;
    double lagnaAt(const QDateTime &moment) const;
    void forgetUpagrahas() const;
    mutable int m_upagrahaMode = 0;                               // 0 = not read yet
    mutable std::array<std::array<double, 7>, 2> m_dayPartMemo{}; // [school - 1][n - 10]; 0 = not yet
    mutable double m_mandiMemo = 0;                               // 0 = not yet
    mutable std::optional<DayPartFrame> m_dayPartFrame;
public:
    // ---- end of the upagrahas ----

    // ---- Divisional charts (clsPlanets_divisions.cpp) ----
public:
    // Fills the divisional table from the positions 0..12; the last step of Calculate.
    void FillVargas();
    // Sign of planet n (0..13) in division row k (0..17); 0 while the entry is Empty.
    int PrediVarga(int n, int k) const;
    // The entry itself: Empty before FillVargas and in column 13.
    std::optional<int> PrediVargaValue(int n, int k) const;
    // Navamsha sign of p from the table; true if it equals the sign itself.
    int PlanetInNavamsha(int p) const { return PrediVarga(p, 6); }
    bool PlanetVargottama(int p) const;
    // How many of the rows 1..16 repeat p's sign (1..13), 0 for 14 or more.
    int PlanetGopuramsa(int p) const;
    // The planet (1..7) furthest advanced in its sign; 0 if none is past 0 degrees.
    int AtmaKaraka() const;
    // Navamsha sign of the Atma Karaka.
    int KarakamsaLagna() const;
    // Degrees of p within its sign, kept until the next Calculate.
    double KrishAmsha(int p) const;
    // Decanate 1..3 of the Sun in its tropical sign.
    int Decanate() const;
    // Lords of p's divisions.
    int HoraLord(int n) const;
    int CheckHora(int n) const { return HoraLord(n); }
    int DrekkanaLord(int n) const;
    int ChaturthamshLord(int n) const;
    int SaptamshaLord(int n) const;
    int DashamamshaLord(int n) const;
    int DwaDashamamshaLord(int n) const;
    int EkaDashamAmshaLord(int n) const;
    int PanchamAmshLord(int n) const;
    int SastamshLord(int n) const;
    int VarAshtamamshaLord(int n) const;
    // Navamsha number 1..12 by arithmetic (a boundary belongs to the navamsha below; 0 at a
    // multiple of 40 degrees) and its lord (0 for 0).
    int NavamshSign(int n) const;
    int NavamshLord(int n) const;
    // p's sixtieth part of the sign is a benefic one.
    bool SashtiAmshaBenefic(int n) const;

private:
    // Division signs of longitude l: entries 0..17 are the rows of the table, 18 is unused.
    static std::array<int, 19> CalcVargas(double l);
    std::array<std::array<std::optional<int>, 14>, 18> m_varga{}; // [row][planet]
    mutable std::array<double, 27> m_krishAmsha{};                 // 0 = not yet
    // ---- end of the divisional charts ----
};
