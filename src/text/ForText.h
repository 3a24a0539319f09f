// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The general predictions: character, mind and looks by the Moon's sign, health, education and
// profession, wealth, marriage, travel and the lucky stone, each chosen by scores and tests on the
// chart and read from the FORTUNE table.

#include <QString>
#include <QStringList>

class clsPlanets;

// Where the report goes: headings and paragraphs, in order.
class PredictionOutput
{
public:
    virtual ~PredictionOutput() = default;
    virtual void PutHead(const QString &text) = 0;
    virtual void PutText(const QString &text) = 0;
};

class ForText
{
public:
    explicit ForText(const clsPlanets &c) : m_c(c) {}

    // The whole report: each section's heading (category "PrediText") and its text.
    void Write(PredictionOutput &out);
    // The FORTUNE keys (category/head) the report reads, in order.
    QStringList KeysRead();

    QString HealthText();
    QString FindEducation();
    QString FindEduLine(int lagna);
    QString MercAsht(int sign);
    QString FindProfession();
    QString FindWealth();
    QString FindMarriage();
    QString FindTravel();
    QString FindLuckyStone();

    // The scores of the education table for the Lagna's row.
    int FindAscLordScore();
    int FindAscLord2Score();
    int FindAscLord4Score();
    int FindAscLord5Score();
    int FindAscLord9Score();
    int FindAscLord10Score();
    int FindAscLord11Score();
    int CheckMercury();
    int CheckJupiter();
    int CheckVenus();
    int CheckMoon();
    int FindNakLordScore(double longitude, int lagna) const;
    int CheckCVLPos(int reference, double longitude) const;
    static int FindCVP(double longitude);
    int CheckBudhAdityaYoga() const;
    bool CheckVidyaYoga(int lagna) const;
    static QString FindBeneficMalefic(int planet);

    // Key of the profession from its three votes ("Ser", "SerB", "BUS", "Bus" or empty).
    static QString JoinProfessionVotes(const QStringList &votes);
    // The marriage head of a total ("4", "2", "-1", "-3", "-6"), empty on no step.
    static QString MarriageStep(int total);

private:
    int sign(int p) const;
    int lagna() const { return sign(0); }
    int lordOfHouse(int house) const;
    QString fortune(const QString &category, const QString &head);
    int columnScore(int column);
    const clsPlanets &m_c;
    QStringList m_keys;
};
