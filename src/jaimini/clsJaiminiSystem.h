// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The Jaimini sign dashas of one chart: the Chara dasha in its two schools (RBNS and NLKT),
// Sthira, Drig, Mandook, Yogardha, Karaka, Upa-Karaka, Drekkana, the two Paryayas, and the Trine,
// Navamsha, Frontal and Varnada dashas. Each is a table of rows (a sign, sometimes a planet, a length in
// years); the tables carry no dates. The RBNS, Sthira and Drig tables are made with the object,
// the others on first use, and every table is kept for the life of the object.

#include <QString>
#include <QVariant>

#include <array>
#include <map>
#include <memory>
#include <vector>

#include "jaimini/JaiminiDashaBasis.h"

struct JaiminiDashaRow
{
    int Sign = 0;
    int Planet = 0; // 0 in tables that have no planet
    double Years = 0;
};
using JaiminiDashaTable = std::vector<JaiminiDashaRow>;

// One table as the command line and the pages list them.
struct JaiminiDashaEntry
{
    QString Key;
    bool HasPlanet = false;
    JaiminiDashaTable Rows;
};

// One row of a sub-period table (bhukti): a sign and its length.
struct JaiminiBhuktiRow
{
    int Sign = 0;
    double Length = 0;
};

// The three-level periods of one sign: three parts, each of ten sub-parts of twelve signs.
struct JaiminiSSSPeriods
{
    struct Sub
    {
        int Sign = 0;
        double Months = 0;
        std::array<int, 12> Signs{}; // each lasting RowLength
    };
    struct Part
    {
        int Sign = 0;
        double Years = 0;
        std::array<Sub, 10> Subs{};
    };
    std::array<Part, 3> Parts{};
    double RowLength = 0;
};

class clsJaiminiSystem
{
public:
    // Reads the chart through its Jaimini object, which must outlive this one.
    explicit clsJaiminiSystem(const clsJaimini &core);
    // Reads any basis (a test poses one directly); the object keeps it.
    explicit clsJaiminiSystem(std::unique_ptr<JaiminiDashaBasis> basis);
    clsJaiminiSystem(const clsJaiminiSystem &) = delete;
    clsJaiminiSystem &operator=(const clsJaiminiSystem &) = delete;

    // ---- Sign groupings ----
    // 7, 8 or 9 years by the class of the sign (movable, fixed, dual); 0 outside 1..12.
    static int SignClassYears(int s);
    // "Aries Dasha" .. "Pisces Dasha"; empty outside 1..12.
    static QString JDashaName(int s);

    // ---- Chara dasha, RBNS school ----
    // Years of sign s (1..12): 12 with its lord in it, 10 with the lord in the 7th, else the count.
    int DashaDurationRBNS(int s) const;
    // The twelve signs in order, from the Lagna's sign (or its partner for a woman).
    const std::array<int, 12> &SequenceJCD_RBNS() const { return m_rbnsSequence; }

    // ---- Chara dasha, NLKT school (modes 1..3) ----
    int DashaDurationNLKT(int s, int mode) const;
    // The same as the classic reader: years of sign s in the mode.
    int GetCharDashaNLKT(int s, int mode) const { return DashaDurationNLKT(s, mode); }
    // The twelve signs from the Lagna's, forward or backward by the 9th sign's group.
    std::array<int, 12> SequenceJCD_NLKT() const;
    // Sum of the twelve years: which 1 the NLKT table of the mode, otherwise RBNS.
    int FullCycle(int which, int mode = 1) const;

    // ---- Sub-periods ----
    // Bhukti of the dasha of sign: system 2 RBNS, otherwise NLKT of nlktMode; kind 1 (RBNS only)
    // from the sign of the dasha sign's lord, one year a row. As many rows as the dasha has years.
    std::vector<JaiminiBhuktiRow> SetBhukti(int sign, int system, int kind, int nlktMode = 1) const;
    // Three-level periods of sign s from its RBNS years.
    JaiminiSSSPeriods SSSPeriods(int s) const;

    // ---- The tables ----
    const JaiminiDashaTable &CharaRBNS() const;
    const JaiminiDashaTable &CharaNLKT(int mode) const;
    const JaiminiDashaTable &Sthira(int mode) const;
    int GetSthirDashaDuration(int s, int mode) const;
    const JaiminiDashaTable &Drig() const;
    const JaiminiDashaTable &Mandook(int mode) const;
    const JaiminiDashaTable &Yogardha(int mode) const;
    const JaiminiDashaTable &Karaka(int mode) const;
    const JaiminiDashaTable &UpaKaraka(int mode) const;
    // Modes 1 (the ordinary drekkana), 2 Parivritti Traya, 3 Somanath.
    const JaiminiDashaTable &Drekkana(int mode) const;
    const JaiminiDashaTable &CharaParyaya() const;
    const JaiminiDashaTable &SthiraParyaya() const;
    const JaiminiDashaTable &Trine() const;
    const JaiminiDashaTable &Navamsha() const;
    const JaiminiDashaTable &Frontal() const;
    // Mode 2 from the stronger of the Lagna and the Hora Lagna; mode 1 has no rule and no rows.
    const JaiminiDashaTable &Varnada(int mode) const;

    // ---- Readers of one cell: what 1 the sign, 2 the planet (tables with one), 3 the years ----
    // Row from 1; an unknown what, a row out of range or a mode with no table give an empty value.
    QVariant JaiminiDrigDasha(int what, int row) const;
    QVariant JaiminiMandookDasha(int mode, int what, int row) const;
    QVariant JaiminiDrekkanaDasha(int mode, int what, int row) const;
    QVariant JaiminiKarakaDasha(int mode, int what, int row) const;
    QVariant JaiminiYogardhaDasha(int mode, int what, int row) const;
    QVariant JaiminiUpaKarakaDasha(int mode, int what, int row) const;
    // The Chara dasha has no one table: read CharaRBNS or CharaNLKT.
    QVariant JaiminiCharaDasha(int mode, int what, int row) const;

    // Every table under its key, in a fixed order.
    std::vector<JaiminiDashaEntry> AllDashas() const;

    // The start of the Chara Paryaya and the Trine dasha.
    int CharaParyayaStart() const;

    const JaiminiDashaBasis &Basis() const { return *m_basis; }

private:
    enum class Table {
        Rbns,
        Nlkt,
        Sthira,
        Drig,
        Mandook,
        Yogardha,
        Karaka,
        UpaKaraka,
        Drekkana,
        CharaParyaya,
        SthiraParyaya,
        Trine,
        Navamsha,
        Frontal,
        Varnada
    };
    void build();
    const JaiminiDashaTable &memo(Table t, int mode, JaiminiDashaTable (clsJaiminiSystem::*fill)(int) const) const;
    JaiminiDashaTable fillRbns(int) const;
    JaiminiDashaTable fillNlkt(int mode) const;
    JaiminiDashaTable fillSthira(int mode) const;
    JaiminiDashaTable fillDrig(int) const;
    JaiminiDashaTable fillMandook(int mode) const;
    JaiminiDashaTable fillYogardha(int mode) const;
    JaiminiDashaTable fillKaraka(int mode) const;
    JaiminiDashaTable fillUpaKaraka(int mode) const;
    JaiminiDashaTable fillDrekkana(int mode) const;
    JaiminiDashaTable fillCharaParyaya(int) const;
    JaiminiDashaTable fillSthiraParyaya(int) const;
    JaiminiDashaTable fillTrine(int) const;
    JaiminiDashaTable fillNavamsha(int) const;
    JaiminiDashaTable fillFrontal(int) const;
    JaiminiDashaTable fillVarnada(int mode) const;
    JaiminiDashaTable quadrantKaraka(int fromSign) const;
    JaiminiDashaTable paryayaRows(const std::vector<int> &signs) const;
    int nlktPlain(int s, int lordSign) const;
    int nlktCoLord(int s, int mode) const;
    int mandookStart() const;
    static QVariant cell(const JaiminiDashaTable &t, int what, int row, bool hasPlanet);

    std::unique_ptr<JaiminiDashaBasis> m_basis;
    std::array<int, 12> m_rbnsSequence{};
    mutable std::map<std::pair<Table, int>, JaiminiDashaTable> m_tables;
};
