// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The electional search: for an act of MUHU.DAT, a place and a span of days and clock times,
// casts a chart at each sampled moment, scores it by the act's rules, and keeps the best moment,
// the other moments of its day, its percentage of the highest possible score and the span of
// its Lagna. Also scores one single moment.

#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QSet>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <vector>

class clsPlanets;
class clsGochara;

// One sampled moment.
struct MuhuSample
{
    QString time;       // "hh.mm"
    QDate date;
    double score = 0;
    QString fructElems; // "CODE-points:" for each element that fired, in rule order
};

// One element that fired, read back from a sample's fructified text.
struct MuhuElementHit
{
    QString code;
    long points = 0;
};

// One act of table MUHU.
struct MuhuAct
{
    QString code, name, category;
};

// What watches a long search: told when it starts, after each day, and when it ends. progress
// answering false stops the search; it then leaves no result.
class MuhurthaProgress
{
public:
    virtual ~MuhurthaProgress() = default;
    virtual void start(const QString &heading, const QString &line) = 0;
    virtual bool progress(double percent) = 0;
    virtual void finish() = 0;
};

class clsMuhurtha
{
public:
    // Opens the database (STUFF/COMMON/MUHU.DAT when path is empty) and keeps it open.
    explicit clsMuhurtha(const QString &path = QString());
    ~clsMuhurtha();
    clsMuhurtha(const clsMuhurtha &) = delete;
    clsMuhurtha &operator=(const clsMuhurtha &) = delete;

    // True when the database opened and holds table MUHU.
    bool IsOpen() const { return m_open; }
    // The database file this object reads.
    QString FilePath() const { return m_path; }
    // STUFF/COMMON/MUHU.DAT.
    static QString DefaultPath();

    // The text database for the element names and the prediction texts.
    void setTextDB(const QSqlDatabase &db) { m_textDb = db; }
    // The natal charts that TG and M12 read (not owned): the person's, and the couple's for an
    // act of the category "MARRIAGE". Without them those two elements don't fire.
    void setNatalCharts(const clsPlanets *natal, const clsPlanets *boy, const clsPlanets *girl);
    // Where the search reports its progress (not owned); nullptr for none.
    void setProgress(MuhurthaProgress *progress) { m_progress = progress; }

    // Full search over the days StartDate..EndDate, each from TimeStart (hh.mm) every 2 h 30 min
    // up to TimeEnd or midnight; chart supplies the place.
    void CheckMuhurtha(const QString &name, const QString &category, const QDate &startDate, const QDate &endDate,
                       double timeStart, double timeEnd, const clsPlanets &chart);
    // Scores the one moment of chart.
    void CheckMuhuMoment(const QString &name, const QString &category, const clsPlanets &chart);
    // "Category ---> name" of every act, in table order.
    QStringList FillMuhuList() const;
    // Every act, in table order.
    std::vector<MuhuAct> Acts() const;
    // The act of this code (case ignored); found false when there is none.
    MuhuAct ActByCode(const QString &code, bool &found) const;

    QString MuhuCode() const { return m_code; }
    void setMuhuCode(const QString &v) { m_code = v; }
    QString MuhuName() const { return m_name; }
    void setMuhuName(const QString &v) { m_name = v; }
    QString MuhuElements() const { return m_elements; }
    void setMuhuElements(const QString &v) { m_elements = v; }
    // In upper case.
    QString MuhuCategory() const { return m_category.toUpper(); }
    void setMuhuCategory(const QString &v) { m_category = v; }
    // The rule list the scan runs.
    QString MuhuRules() const { return m_rules; }
    void setMuhuRules(const QString &v) { m_rules = v; }

    double TimeStart() const { return m_timeStart; }
    void setTimeStart(double v) { m_timeStart = v; }
    double TimeEnd() const { return m_timeEnd; }
    void setTimeEnd(double v) { m_timeEnd = v; }
    QDate StartDate() const { return m_startDate; }
    void setStartDate(const QDate &v) { m_startDate = v; }
    QDate EndDate() const { return m_endDate; }
    void setEndDate(const QDate &v) { m_endDate = v; }

    // The last search ranked at least one moment (false after a cancelled or empty one).
    bool HasResult() const { return m_hasResult; }
    // The last search was stopped through its progress.
    bool Cancelled() const { return m_cancelled; }
    // Moments cast by the last search.
    long SampleCount() const { return static_cast<long>(m_samples.size()); }
    const std::vector<MuhuSample> &Samples() const { return m_samples; }

    QString BestMuhuTime() const { return m_best.time; }
    QDate BestMuhuDate() const { return m_best.date; }
    QString BestMuhuScore() const;
    double BestMuhuScoreValue() const { return m_best.score; }
    QString BestMuhuFructElems() const { return m_best.fructElems; }
    // Best score over the highest possible one, in percent to two places; 0 when that is 0.
    double BestMuhuPercent() const;
    // The highest possible score of the loaded act, given the best moment's elements.
    long MaxPossibleScore() const;
    // The last index of the best-day list that holds the best date; 0 if none.
    long BestMuhuIndex() const;
    // Upper bound of the best-day list (index 0 stays empty).
    long GetBestDayMuhusCount() const { return static_cast<long>(m_bestDay.size()) - 1; }
    QDate GetDayMuhuDate(long i) const;
    QString GetDayMuhuTime(long i) const;
    double GetDayMuhuScore(long i) const;

    // The chart of the best moment, and those at which its Lagna entered and leaves its sign;
    // null before a search.
    const clsPlanets *BestChart() const { return m_bestChart.get(); }
    const clsPlanets *LagnaStartChart() const { return m_lagnaStart.get(); }
    const clsPlanets *LagnaEndChart() const { return m_lagnaEnd.get(); }

    // First degree of the sign that holds longitude l.
    static long LagnaStartDeg(double l);
    // "hh:mm AM" at which the Lagna of moment entered, respectively leaves, its sign.
    QString GetLagnaStartTime(const QDateTime &moment);
    QString GetLagnaEndTime(const QDateTime &moment);

    // Name of an element code (text table CNVT under "Muhurtha").
    QString GetMuhuName(const QString &code) const;
    // Key of the act's prediction text in table Muhu; Empty when the act has none.
    QVariant GetMuhuPrediCode(const QString &name) const;
    // The prediction text of the loaded act in the band of the best moment's percentage; ""
    // when there is none.
    QString PredictionText() const;
    // The elements of a fructified text ("T-5:RAHUKAAL--3:") in their order.
    static std::vector<MuhuElementHit> SplitFructElems(const QString &text);
    // "dd/MM/yyyy hh.mm" of a chart's moment.
    static QString MomentText(const clsPlanets &chart);
    static bool GetHariShayan(int tithi, int month);
    static bool GetKharMaas(int sign);
    static int TithiGroup(int tithi);

    // Points of an element code and whether it always counts in the highest score; false
    // when SCORE has no row for it.
    bool ElementScore(const QString &code, long &presence, bool &maxEffect) const;

    // Testing seams: loads an act's row into the fields (false when there is none), prepares
    // the scan chart from chart, scores the scan chart's present moment and ranks the samples.
    bool LoadMuhuByCode(const QString &code);
    QString FindMuhuCode(const QString &name, const QString &category) const;
    void PrepareScanChart(const clsPlanets &chart);
    void SampleScanMoment();
    void RankMuhurthas();
    // Points of one rule token at the scan chart's present moment; records it on the pending sample.
    long CheckElement(const QString &token);
    clsPlanets &ScanChart() { return *m_scan; }
    // Whether code (upper case) with value fires at the scan chart's present moment; known false
    // for a code the rules don't have.
    bool ElementFires(const QString &code, const QString &value, bool &known) const { return fires(code, value, known); }

private:
    void loadScores();
    void ScanRange();
    void ScoreMoment();
    bool fires(const QString &code, const QString &value, bool &known) const;
    bool taraFires(const clsPlanets &natal) const;
    bool moonSignFires(const clsPlanets &natal) const;
    bool vishDayFires() const;
    bool vishTithiFires() const;
    bool lagnaShuddhi() const;
    bool lattaDosha() const;
    bool paatDosha() const;
    QString lagnaTime(const QDateTime &moment, double offset);
    // The sunrise (hh.mm) of the scan chart's day, cast once a day at 06.00 and kept.
    double daySunrise() const;
    mutable QHash<QDate, double> m_sunrises;
    mutable std::unique_ptr<clsPlanets> m_dayChart; // made once: a new chart reads the settings store

    QSqlDatabase m_db;
    QSqlDatabase m_textDb;
    QString m_path;
    bool m_open = false;
    struct ScoreRow
    {
        long presence = 0;
        bool maxEffect = false;
    };
    QHash<QString, ScoreRow> m_scores; // by upper-case code

    QString m_code, m_name, m_elements, m_category, m_rules, m_scoreText;
    QDate m_startDate, m_endDate;
    double m_timeStart = 0, m_timeEnd = 0;

    const clsPlanets *m_natal = nullptr;
    const clsPlanets *m_boy = nullptr;
    const clsPlanets *m_girl = nullptr;
    MuhurthaProgress *m_progress = nullptr;

    std::unique_ptr<clsPlanets> m_scan;
    long m_running = 0;
    MuhuSample m_pending;
    std::vector<MuhuSample> m_samples;
    MuhuSample m_best;
    std::vector<MuhuSample> m_bestDay; // index 0 stays empty
    bool m_hasResult = false;
    bool m_cancelled = false;
    QSet<QString> m_reportedCodes;

    std::unique_ptr<clsPlanets> m_bestChart, m_lagnaStart, m_lagnaEnd;
    std::unique_ptr<clsGochara> m_gochara;
};
