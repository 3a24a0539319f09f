// SPDX-License-Identifier: AGPL-3.0-or-later
// The electional search: loading an act, sampling the span, ranking the moments.
// The rule of each element lives in clsMuhurtha_elements.cpp.
#include "muhurtha/clsMuhurtha.h"

#include "sky/clsGochara.h"
#include "muhurtha/MuhurthaSpan.h"
#include "sky/DataPaths.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"
#include "sky/MessageSink.h"
#include "text/TextDB.h"

#include <QAtomicInt>
#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <cmath>

namespace {

QAtomicInt connectionCounter;

// A field of a row, read by either of its spellings.
QVariant field(const QSqlQuery &q, const char *name)
{
    const QSqlRecord r = q.record();
    const int i = r.indexOf(QString::fromLatin1(name)); // QSqlRecord compares names without case
    return i < 0 ? QVariant() : q.value(i);
}

// Hour and minutes of an "hh.mm" clock value: the whole part and the two digits behind the point.
void setClock(clsPerson &p, double t)
{
    p.setHour(Int(t));
    p.setMinutes(CLng((t - Int(t)) * 100));
}

} // namespace

clsMuhurtha::clsMuhurtha(const QString &path) : m_path(path.isEmpty() ? DefaultPath() : path), m_scan(std::make_unique<clsPlanets>())
{
    if (!QFileInfo(m_path).isFile())
        return;
    const QString connection = QStringLiteral("orbanta_muhu_%1").arg(connectionCounter.fetchAndAddRelaxed(1));
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
    m_db.setDatabaseName(m_path);
    m_db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!m_db.open())
        return;
    m_open = m_db.tables().contains(QStringLiteral("MUHU"), Qt::CaseInsensitive);
    loadScores();
}

clsMuhurtha::~clsMuhurtha()
{
    if (!m_db.isValid())
        return;
    const QString connection = m_db.connectionName();
    m_db.close();
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(connection);
}

QString clsMuhurtha::DefaultPath()
{
    return QDir(DataPaths::StuffFolder()).filePath(QStringLiteral("COMMON/MUHU.DAT"));
}

void clsMuhurtha::setNatalCharts(const clsPlanets *natal, const clsPlanets *boy, const clsPlanets *girl)
{
    m_natal = natal;
    m_boy = boy;
    m_girl = girl;
}

// The points table is small and read at every fired element: it is read once.
void clsMuhurtha::loadScores()
{
    QSqlQuery q(m_db);
    if (!q.exec(QStringLiteral("SELECT * FROM SCORE")))
        return;
    while (q.next()) {
        ScoreRow row;
        row.presence = CLng(field(q, "Presence").toDouble());
        row.maxEffect = field(q, "maxeffect").toDouble() != 0;
        m_scores.insert(field(q, "ELEMENT").toString().trimmed().toUpper(), row);
    }
}

bool clsMuhurtha::ElementScore(const QString &code, long &presence, bool &maxEffect) const
{
    const auto it = m_scores.constFind(code.trimmed().toUpper());
    if (it == m_scores.cend()) {
        presence = 0;
        maxEffect = false;
        return false;
    }
    presence = it->presence;
    maxEffect = it->maxEffect;
    return true;
}

std::vector<MuhuAct> clsMuhurtha::Acts() const
{
    std::vector<MuhuAct> acts;
    if (!m_open)
        return acts;
    QSqlQuery q(m_db);
    if (!q.exec(QStringLiteral("SELECT * FROM MUHU ORDER BY rowid")))
        return acts;
    while (q.next())
        acts.push_back({field(q, "MCode").toString(), field(q, "MName").toString(), field(q, "CATEGORY").toString()});
    return acts;
}

QStringList clsMuhurtha::FillMuhuList() const
{
    QStringList items;
    for (const MuhuAct &a : Acts())
        items << a.category + QStringLiteral(" ---> ") + a.name;
    return items;
}

MuhuAct clsMuhurtha::ActByCode(const QString &code, bool &found) const
{
    found = false;
    for (const MuhuAct &a : Acts())
        if (a.code.compare(code.trimmed(), Qt::CaseInsensitive) == 0) {
            found = true;
            return a;
        }
    return {};
}

QString clsMuhurtha::FindMuhuCode(const QString &name, const QString &category) const
{
    if (!m_open)
        return {};
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT * FROM MUHU WHERE MName = ? AND CATEGORY = ?"));
    q.addBindValue(name);
    q.addBindValue(category);
    if (!q.exec() || !q.next())
        return {};
    return field(q, "MCode").toString();
}

bool clsMuhurtha::LoadMuhuByCode(const QString &code)
{
    if (!m_open || code.isEmpty())
        return false;
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT * FROM MUHU WHERE MCode = ?"));
    q.addBindValue(code);
    if (!q.exec() || !q.next())
        return false;
    m_code = code;
    m_name = field(q, "MName").toString();
    m_category = field(q, "CATEGORY").toString();
    m_rules = field(q, "val").toString();
    m_elements = field(q, "Elements").toString();
    m_scoreText = field(q, "Score").toString();
    return true;
}

void clsMuhurtha::PrepareScanChart(const clsPlanets &chart)
{
    m_sunrises.clear();
    const clsPerson &from = chart.Person();
    clsPerson &p = m_scan->Person();
    p.setDay(m_startDate.day());
    p.setMonth(m_startDate.month());
    p.setYear(m_startDate.year());
    p.setHour(from.Hour());
    p.setMinutes(from.Minutes());
    p.setSeconds(from.seconds());
    p.setLatDeg(from.LatDeg());
    p.setLatMT(from.LatMT());
    p.setTextNS(from.TextNS());
    p.setLongDeg(from.LongDeg());
    p.setLongMT(from.LongMT());
    p.setTextEW(from.TextEW());
    p.setGMTDIFF(from.GMTDIFF());
    p.setPLOB(from.PLOB());
    p.setCountry(from.Country());
    p.setName(from.Name());
    m_scan->setRahuKetuMode(chart.RahuKetuMode());
    m_scan->setTextDB(m_textDb, QSqlDatabase());
    m_scan->Calculate();
}

void clsMuhurtha::CheckMuhurtha(const QString &name, const QString &category, const QDate &startDate,
                                const QDate &endDate, double timeStart, double timeEnd, const clsPlanets &chart)
{
    m_startDate = startDate;
    m_endDate = endDate;
    m_timeStart = timeStart;
    m_timeEnd = timeEnd;
    LoadMuhuByCode(FindMuhuCode(name, category));
    m_reportedCodes.clear();
    PrepareScanChart(chart);
    ScanRange();
    RankMuhurthas();
}

void clsMuhurtha::CheckMuhuMoment(const QString &name, const QString &category, const clsPlanets &chart)
{
    const clsPerson &from = chart.Person();
    m_startDate = QDate(static_cast<int>(from.Year()), static_cast<int>(from.Month()), static_cast<int>(from.Day()));
    m_endDate = m_startDate;
    LoadMuhuByCode(FindMuhuCode(name, category));
    m_reportedCodes.clear();
    m_samples.clear();
    m_cancelled = false;
    PrepareScanChart(chart);
    if (m_progress)
        m_progress->start(QStringLiteral("Looking for Muhurtha..."),
                          QStringLiteral("Searching for the first best Muhurtha in the time range. Please wait..."));
    setClock(m_scan->Person(), Val(from.GetBirthTime()));
    SampleScanMoment();
    if (m_progress) {
        m_progress->progress(100);
        m_progress->finish();
    }
    RankMuhurthas();
}

void clsMuhurtha::SampleScanMoment()
{
    clsPerson &p = m_scan->Person();
    m_running = 0;
    m_pending = MuhuSample{};
    if (p.Hour() >= 12)
        p.setAMPM(2);
    m_scan->Calculate();
    ScoreMoment();
    m_pending.date = QDate(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
    m_pending.score = static_cast<double>(m_running);
    m_pending.time = p.GetBirthTime();
    m_samples.push_back(m_pending);
    m_pending = MuhuSample{};
}

void clsMuhurtha::ScanRange()
{
    m_samples.clear();
    m_cancelled = false;
    const qint64 days = m_startDate.daysTo(m_endDate) + 1;
    if (days < 1 || !m_startDate.isValid())
        return;
    if (m_progress)
        m_progress->start(QStringLiteral("Looking for Muhurtha..."),
                          QStringLiteral("Searching for the first best Muhurtha in the time range. Please wait..."));
    m_samples.reserve(static_cast<size_t>(days) * 4);
    clsPerson &p = m_scan->Person();
    for (qint64 day = 1; day <= days; ++day) {
        setClock(p, m_timeStart);
        bool passedMidnight = false;
        for (;;) {
            // The day of the clock as set: a cast at 0.00 leaves the person at 24.00 of the day
            // before, which would end the day after its first moment.
            const QDate d0(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
            SampleScanMoment();
            const double t = p.AddMinutes(150);
            const QDate d1(static_cast<int>(p.Year()), static_cast<int>(p.Month()), static_cast<int>(p.Day()));
            if (d0.daysTo(d1) >= 1) {
                passedMidnight = true;
                break;
            }
            if (t > m_timeEnd)
                break;
        }
        if (m_progress && !m_progress->progress(static_cast<double>(day) / static_cast<double>(days) * 100)) {
            m_cancelled = true;
            break;
        }
        if (!passedMidnight)
            p.AddDays(1);
    }
    if (m_progress)
        m_progress->finish();
}

void clsMuhurtha::ScoreMoment()
{
    const QStringList tokens = m_rules.split(QLatin1Char(','));
    for (const QString &token : tokens)
        m_running += CheckElement(token);
}

long clsMuhurtha::CheckElement(const QString &token)
{
    const QStringList pieces = token.trimmed().split(QLatin1Char(':'));
    const QString code = pieces.value(0).trimmed().toUpper();
    const QString value = pieces.size() > 1 ? pieces.at(1).trimmed() : QString();
    if (code.isEmpty())
        return 0;
    bool known = true;
    const bool fired = fires(code, value, known);
    if (!known) {
        if (!m_reportedCodes.contains(code)) {
            m_reportedCodes.insert(code);
            messageSink().warn(QStringLiteral("Muhurtha"), QStringLiteral("Unknown element code in the rules of %1: %2")
                                                               .arg(m_code.isEmpty() ? QStringLiteral("the act") : m_code, code));
        }
        return 0;
    }
    if (!fired)
        return 0;
    long points = 0;
    bool maxEffect = false;
    ElementScore(code, points, maxEffect);
    m_pending.fructElems += code + QLatin1Char('-') + QString::number(points) + QLatin1Char(':');
    return points;
}

void clsMuhurtha::RankMuhurthas()
{
    m_bestDay.assign(1, MuhuSample{});
    m_hasResult = false;
    m_best = MuhuSample{};
    m_bestChart.reset();
    m_lagnaStart.reset();
    m_lagnaEnd.reset();
    if (m_samples.empty() || m_cancelled)
        return;
    m_best = m_samples.front();
    for (const MuhuSample &s : m_samples)
        if (m_best.score < s.score)
            m_best = s; // of equal scores the earliest stays
    if (m_best.score < 0)
        m_best.score = 0;
    for (const MuhuSample &s : m_samples)
        if (s.date == m_best.date)
            m_bestDay.push_back(s);
    m_hasResult = true;

    m_bestChart = std::make_unique<clsPlanets>();
    m_scan->CopySettingTo(*m_bestChart);
    m_bestChart->setRahuKetuMode(m_scan->RahuKetuMode());
    m_bestChart->setTextDB(m_textDb, QSqlDatabase());
    clsPerson &p = m_bestChart->Person();
    p.setCountry(m_scan->Person().Country());
    p.setDay(m_best.date.day());
    p.setMonth(m_best.date.month());
    p.setYear(m_best.date.year());
    const double t = Val(m_best.time);
    p.setHour(Fix(t));
    p.setMinutes(CLng((t - Fix(t)) * 100));
    p.setAMPM(p.Hour() >= 12 ? 2 : 1);
    m_bestChart->Calculate();

    if (!m_gochara)
        m_gochara = std::make_unique<clsGochara>();
    const double s = static_cast<double>(LagnaStartDeg(m_bestChart->PlanetLongi(0)));
    m_lagnaStart = m_gochara->Gochara(0, s, 30.0, *m_bestChart);
    m_lagnaEnd = m_gochara->Gochara(0, s + 30, 30.0, *m_bestChart);
}

QString clsMuhurtha::BestMuhuScore() const { return NumText(m_best.score); }

long clsMuhurtha::MaxPossibleScore() const
{
    long sum = 0;
    for (const QString &token : m_elements.split(QLatin1Char(','))) {
        const QString code = token.trimmed();
        if (code.isEmpty())
            continue;
        long presence = 0;
        bool maxEffect = false;
        ElementScore(code, presence, maxEffect);
        if (maxEffect || m_best.fructElems.contains(code))
            sum += presence;
    }
    return sum;
}

double clsMuhurtha::BestMuhuPercent() const
{
    const long sum = MaxPossibleScore();
    if (sum <= 0)
        return 0;
    return RoundHalfEven2(m_best.score / static_cast<double>(sum) * 100);
}

long clsMuhurtha::BestMuhuIndex() const
{
    long found = 0;
    for (long i = 0; i <= GetBestDayMuhusCount(); ++i)
        if (GetDayMuhuDate(i) == m_best.date)
            found = i;
    return found;
}

QDate clsMuhurtha::GetDayMuhuDate(long i) const
{
    return i >= 0 && i < static_cast<long>(m_bestDay.size()) ? m_bestDay[static_cast<size_t>(i)].date : QDate();
}

QString clsMuhurtha::GetDayMuhuTime(long i) const
{
    return i >= 0 && i < static_cast<long>(m_bestDay.size()) ? m_bestDay[static_cast<size_t>(i)].time : QString();
}

double clsMuhurtha::GetDayMuhuScore(long i) const
{
    return i >= 0 && i < static_cast<long>(m_bestDay.size()) ? m_bestDay[static_cast<size_t>(i)].score : 0;
}

long clsMuhurtha::LagnaStartDeg(double l) { return static_cast<long>(Int(l - Norm30(l))); }

QString clsMuhurtha::lagnaTime(const QDateTime &moment, double offset)
{
    clsPlanets work;
    m_scan->CopySettingTo(work);
    work.setRahuKetuMode(m_scan->RahuKetuMode());
    work.SetBirthDate(moment);
    work.Calculate();
    if (!m_gochara)
        m_gochara = std::make_unique<clsGochara>();
    const double s = static_cast<double>(LagnaStartDeg(work.PlanetLongi(0)));
    auto found = m_gochara->Gochara(0, s + offset, 20.0, work);
    found->Person().setAMPM(0);
    return found->Person().GetBirthTimeFull();
}

QString clsMuhurtha::GetLagnaStartTime(const QDateTime &moment) { return lagnaTime(moment, 0); }

QString clsMuhurtha::GetLagnaEndTime(const QDateTime &moment) { return lagnaTime(moment, 30); }

QString clsMuhurtha::GetMuhuName(const QString &code) const
{
    if (!m_textDb.isValid())
        return code;
    return GetHeadValue(m_textDb, 1, code, QStringLiteral("Muhurtha")).toString();
}

QVariant clsMuhurtha::GetMuhuPrediCode(const QString &name) const
{
    if (!m_open)
        return {};
    QSqlQuery q(m_db);
    q.prepare(QStringLiteral("SELECT * FROM MuhuConvert WHERE Muhuname = ?"));
    q.addBindValue(name);
    if (!q.exec() || !q.next())
        return {};
    return field(q, "MuhuPredcode");
}

QString clsMuhurtha::PredictionText() const
{
    const QVariant code = GetMuhuPrediCode(m_name);
    if (!code.isValid() || code.isNull() || !m_textDb.isValid())
        return {};
    return GetHeadValue(m_textDb, 10, code, MuhuPredictionBand(BestMuhuPercent())).toString();
}

std::vector<MuhuElementHit> clsMuhurtha::SplitFructElems(const QString &text)
{
    std::vector<MuhuElementHit> hits;
    for (const QString &part : text.split(QLatin1Char(':'), Qt::SkipEmptyParts)) {
        const qsizetype dash = part.indexOf(QLatin1Char('-'));
        if (dash < 0)
            continue;
        hits.push_back({part.left(dash), CLng(Val(part.mid(dash + 1)))});
    }
    return hits;
}

QString clsMuhurtha::MomentText(const clsPlanets &chart)
{
    const clsPerson &p = chart.Person();
    return p.DayText() + QLatin1Char('/') + p.MonthText() + QLatin1Char('/') + QString::number(p.Year()) + QLatin1Char(' ')
        + p.GetBirthTime();
}

bool clsMuhurtha::GetHariShayan(int tithi, int month)
{
    switch (month) {
    case 3: return tithi > 10;
    case 4:
    case 5:
    case 6: return tithi >= 1;
    case 7: return tithi <= 11;
    default: return false;
    }
}

bool clsMuhurtha::GetKharMaas(int sign) { return sign == 9 || sign == 12; }

int clsMuhurtha::TithiGroup(int tithi)
{
    switch (tithi % 5) {
    case 0:
    case 1: return 1;
    case 2: return 2;
    case 3: return 3;
    default: return 4;
    }
}
