// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The match of two charts: the eight kutas of the Guna milan (36 points in all), whether each
// partner is Manglik and whether that is cancelled, and four further checks (Rajju, Mahendra,
// Stree Deergha, Vedha). Set the two charts, run DoMatch, then read the members.
//
// A person argument `who` is 1 for the boy and anything else for the girl. A nakshatra or sign
// without a planet is the Moon's.

#include <QString>

#include <array>

class clsPlanets;

class clsMarr
{
public:
    clsMarr() = default;
    clsMarr(const clsPlanets *boy, const clsPlanets *girl) : m_boy(boy), m_gal(girl) {}

    // The eight kutas in their order, with the text key of their row and their maximum.
    enum Kuta { Varna, Vashya, Tara, Yoni, Graha, Gana, Rasi, Nadi };
    static constexpr int kKutaCount = 8;
    // "VarnaKuta", "VashyaKuta", "DinaKuta", "YoniKuta", "GrahaKuta", "GanaKuta", "RasiKuta", "NadiKuta".
    static QString KutaKey(int kuta);
    // 1, 2, 3, 4, 5, 6, 7, 8.
    static double KutaMax(int kuta);
    // The points and the detail text of each person for kuta k (after DoMatch).
    double Score(int kuta) const { return m_score.at(static_cast<size_t>(kuta)); }
    QString Detail(int kuta, int who) const;

    // What each person shows in a kuta's row (after DoMatch).
    QString DetVarna(int who) const { return Detail(Varna, who); }
    QString DetVashya(int who) const { return Detail(Vashya, who); }
    QString DetTara(int who) const { return Detail(Tara, who); }
    QString DetYoni(int who) const { return Detail(Yoni, who); }
    QString DetGraha(int who) const { return Detail(Graha, who); }
    QString DetGana(int who) const { return Detail(Gana, who); }
    QString DetRasi(int who) const { return Detail(Rasi, who); }
    QString DetNadi(int who) const { return Detail(Nadi, who); }
    // The points of each kuta (after DoMatch).
    double ScoreVarna() const { return Score(Varna); }
    double ScoreVashya() const { return Score(Vashya); }
    double ScoreTara() const { return Score(Tara); }
    double ScoreYoni() const { return Score(Yoni); }
    double ScoreGraha() const { return Score(Graha); }
    double ScoreGana() const { return Score(Gana); }
    double ScoreRasi() const { return Score(Rasi); }
    double ScoreNadi() const { return Score(Nadi); }

    // The two charts; set before anything else.
    const clsPlanets *clsBoy() const { return m_boy; }
    void setClsBoy(const clsPlanets *c) { m_boy = c; }
    const clsPlanets *clsGal() const { return m_gal; }
    void setClsGal(const clsPlanets *c) { m_gal = c; }

    // The whole match: the kutas, the Manglik result, the further checks.
    void DoMatch();
    // The eight kutas in their order.
    void FindMarScore();
    void FindVarnaScore();
    void FindVashyaScore();
    void FindTaraScore();
    void FindYoniScore();
    void FindGrahaScore();
    void FindGanaScore();
    void FindRasiScore();
    void FindNadiScore();
    // Points of two yonis (1..14) from SCYONI.DAT; 0 when the file or the entry is missing.
    static double GetYoniScore(int boyYoni, int girlYoni);

    // The sum of the eight scores as they stand.
    double TotalScore() const;
    // The sum rounded to a whole number, a half going to the even neighbour.
    int RoundedTotal() const;
    // The key of the verdict text (head "Marriage") for the rounded total: "SCO6" .. "SCO36".
    QString GetTotSCO() const { return VerdictKey(TotalScore()); }
    // The verdict key of a total: rounded halves to even, then up to 6 "SCO6", 7..10 "SCO10",
    // 11..14 "SCO14", 15..18 "SCO18", 19..23 "SCO23", 24..28 "SCO28", above "SCO36".
    static QString VerdictKey(double total);

    // Both persons' Manglik result and its cancellations.
    void PutManglikResult();
    // Mars in marsSign counted from referenceSign gives Manglik dosha, by the Manglik reckoning
    // of the boy's chart (setting CalcMangMod: 1 North, 2 South).
    bool Manglik(int marsSign, int referenceSign) const;
    // The Ascendant's sign cancels the dosha (2, 4, 5, 6, 10 or 11).
    static bool FindIfKCancel(double ascendantLongitude);
    // Jupiter 0, 4, 6 or 8 signs from the reference cancels it.
    static bool FindIfJupCancels(int jupiterSign, int referenceSign);
    // Mars in the sign of, or opposite, Jupiter, the Moon, the Sun, Mercury or Rahu cancels it.
    static bool FindMarsCancel(double mars, double jupiter, double moon, double sun, double mercury, double rahu);
    // The six cancellations of one person's chart, in their order: Ascendant, Jupiter from the
    // Ascendant, from the Moon, from Venus, Mars's company, the lord of Mars's sign.
    static std::array<bool, 6> CancelFlags(const clsPlanets &c);
    // The text keys (head "Marriage") of the six cancellations, in the same order.
    static QString CancelKey(int flag);
    // The cancellation text of a person: the lead-in of who, then the texts of the set flags.
    QString MangCancels(const std::array<bool, 6> &flags, int who) const;
    // The four letters: "B" and F, T or C for the boy, "G" and F, T or C for the girl
    // (F not Manglik, T Manglik, C Manglik and cancelled).
    QString ManglikCode() const { return m_manglikCode; }
    // The cancellation text of each person; empty unless that person's letter is C.
    QString ManglikCancelText(int who) const { return who == 1 ? m_boyCancel : m_galCancel; }

    // The tara of the person's nakshatra counted from the partner's, 1..9.
    int TaraNo(int who) const;

    // The four further checks, in this order.
    void GetExtMatchScore();
    // The two Rajju kinds differ.
    bool ResuRajju() const { return m_rajju; }
    // The girl's nakshatra is 4, 7, 10 ... 25 counted from the boy's.
    bool ResuMahendra() const { return m_mahendra; }
    // The boy's nakshatra lies more than 13 counted from the girl's.
    bool ResuStreeDee() const { return m_streeDee; }
    // The two nakshatras are no Vedha pair.
    bool ResuVedha() const { return m_vedha; }
    // The count from the girl's nakshatra to the boy's, 1..27 (the measure of Stree Deergha).
    int StreeDeerghaCount() const;

    // The key of the MarMatch paragraph of kuta k for this couple: a prefix "[MB" .. "[MI", a
    // letter for the boy, one for the girl, "]".
    QString MatchTag(int kuta) const;

private:
    const clsPlanets &boy() const { return *m_boy; }
    const clsPlanets &gal() const { return *m_gal; }
    const clsPlanets &person(int who) const { return who == 1 ? boy() : gal(); }
    // The Manglik letter of one chart and its cancellation text.
    QChar manglikLetter(const clsPlanets &c, int who, QString &cancel) const;
    QString marriageText(const QString &key) const;

    const clsPlanets *m_boy = nullptr;
    const clsPlanets *m_gal = nullptr;
    std::array<double, kKutaCount> m_score{};
    std::array<std::array<QString, 2>, kKutaCount> m_detail{};
    QString m_manglikCode;
    QString m_boyCancel, m_galCancel;
    bool m_rajju = false, m_mahendra = false, m_streeDee = false, m_vedha = false;
};
