// SPDX-License-Identifier: AGPL-3.0-or-later
// Whole reports of random births, as the reader gets them: the general predictions and the
// yogas with their readings. No report may say the same thing twice, word for word, nor print
// wordings that are known to contradict each other.
#include "sky/clsPlanets.h"
#include "support/EnglishChart.h"
#include "support/RecordingSink.h"
#include "text/ForText.h"
#include "yoga/CheckYogas.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QRegularExpression>

#include <random>

namespace {

// One report: its paragraphs in order, each with where it came from.
struct Report
{
    QString birth;
    QStringList paragraphs, origins;
    QStringList fortuneKeys;
    QStringList messages; // texts the lookups missed
    void add(const QString &text, const QString &origin)
    {
        // The sections join their pieces with line breaks: each piece is a paragraph of its own.
        for (const QString &piece : text.split(QLatin1Char('\n'))) {
            const QString p = piece.trimmed();
            if (p.isEmpty())
                continue;
            paragraphs << p;
            origins << origin;
        }
    }
    QString all() const { return paragraphs.join(QLatin1Char(' ')); }
};

class ReportWriter final : public PredictionOutput, public YogaOutput
{
public:
    ReportWriter(const clsPlanets &c, Report &r) : m_c(c), m_r(r) {}
    void PutHead(const QString &text) override { m_head = text; }
    void PutText(const QString &text) override { m_r.add(text, m_head); }
    void PutYogaHead(const QString &name) override { m_head = name; }
    void PutYogaText(const QString &key) override { m_r.add(m_c.GetHeadValue(2, key).toString(), QStringLiteral("yoga ") + m_head); }

private:
    const clsPlanets &m_c;
    Report &m_r;
    QString m_head;
};

// Sentences of at least four words: a short one ("It is rare.") may recur.
QStringList longSentences(const QString &paragraph)
{
    static const QRegularExpression end(QStringLiteral("(?<=[.;:!?])\\s+"));
    QStringList out;
    for (const QString &s : paragraph.split(end, Qt::SkipEmptyParts))
        if (s.split(QLatin1Char(' '), Qt::SkipEmptyParts).size() >= 4)
            out << s.trimmed();
    return out;
}

class Reports : public EnglishChart
{
protected:
    // A few hundred births spread over two centuries, every hour and both hemispheres, cast once
    // for all the tests here.
    const QList<Report> &reports()
    {
        static const QList<Report> cast = castReports(300);
        return cast;
    }

private:
    QList<Report> castReports(int count)
    {
        std::mt19937 rng(20240611u);
        const auto pick = [&](int lo, int hi) { return std::uniform_int_distribution<int>(lo, hi)(rng); };
        QList<Report> reports;
        for (int i = 0; i < count; ++i) {
            const int day = pick(1, 28), month = pick(1, 12), year = pick(1900, 2099), hour = pick(0, 23), minute = pick(0, 59);
            const int lat = pick(0, 60), lon = pick(0, 179);
            const QString ns = pick(0, 3) ? QStringLiteral("N") : QStringLiteral("S");
            const QString ew = pick(0, 1) ? QStringLiteral("E") : QStringLiteral("W");
            const QString gmt = QString::number((ew == QLatin1String("E") ? 1 : -1) * (lon / 15));
            chart.Person() = MakePerson(day, month, year, hour, minute, gmt, lat, pick(0, 59), ns, lon, pick(0, 59), ew);
            chart.Calculate();
            Report r;
            RecordingSink sink;
            const ScopedMessageSink scoped(&sink);
            r.birth = QStringLiteral("%1/%2/%3 %4:%5 %6%7 %8%9")
                          .arg(day).arg(month).arg(year).arg(hour).arg(minute).arg(lat).arg(ns).arg(lon).arg(ew);
            ReportWriter out(chart, r);
            ForText f(chart);
            f.Write(out);
            r.fortuneKeys = f.KeysRead();
            CheckYogas::ScanYogas(chart, &out);
            r.messages = sink.reports;
            reports << r;
        }
        return reports;
    }
};

} // namespace

TEST_F(Reports, NoReportRepeatsAParagraphASentenceOrAKey)
{
    int failures = 0;
    for (const Report &r : reports()) {
        QHash<QString, QString> seen; // paragraph or sentence -> where it first printed
        for (qsizetype i = 0; i < r.paragraphs.size() && failures < 20; ++i) {
            const QString &p = r.paragraphs[i];
            if (seen.contains(p)) {
                ADD_FAILURE() << "birth " << r.birth.toStdString() << ": the paragraph under \"" << r.origins[i].toStdString()
                              << "\" already printed under \"" << seen.value(p).toStdString() << "\":\n  " << p.toStdString();
                ++failures;
            }
            seen.insert(p, r.origins[i]);
        }
        QHash<QString, QString> sentences;
        for (qsizetype i = 0; i < r.paragraphs.size() && failures < 20; ++i)
            for (const QString &s : longSentences(r.paragraphs[i])) {
                if (sentences.contains(s) && sentences.value(s) != r.paragraphs[i]) {
                    ADD_FAILURE() << "birth " << r.birth.toStdString() << ": a sentence under \"" << r.origins[i].toStdString()
                                  << "\" repeats one printed earlier:\n  " << s.toStdString();
                    ++failures;
                }
                sentences.insert(s, r.paragraphs[i]);
            }
        // Each key read once, in the order the report prints it.
        const QStringList keys = r.fortuneKeys;
        EXPECT_EQ(QStringList(keys).removeDuplicates(), 0) << "birth " << r.birth.toStdString() << ": " << keys.join(", ").toStdString();
        const auto at = [&](const char *category) {
            for (qsizetype i = 0; i < keys.size(); ++i)
                if (keys[i].startsWith(QLatin1String(category) + QLatin1Char('/')))
                    return i;
            return qsizetype(-1);
        };
        EXPECT_TRUE(keys.value(0).startsWith(QLatin1String("SIGN")) && at("FWLord2") < at("EWLORD11") && at("EWLORD11") < at("IWLORD8") && at("IWLORD8") < at("MarP") &&
                    keys.size() >= 2 && keys.last() == QLatin1String("GEMSTONES/PS") && keys[keys.size() - 2].startsWith(QLatin1String("GEMSTONES/")))
            << "birth " << r.birth.toStdString() << ": " << keys.join(", ").toStdString();
        EXPECT_EQ(r.messages, QStringList()) << "birth " << r.birth.toStdString() << ": every key is in the texts";
    }
}

TEST_F(Reports, KnownContradictionsAndUniqueClaimsStayOut)
{
    // Wordings that once printed side by side and contradicted each other, and claims that can be
    // made of one thing only.
    const std::pair<const char *, const char *> exclusive[] = {
        {"settled life", "travels often"},
        {"main strength", "excel"},
        {"main strength", "education completed"},
        {"without marked strain", "strongly affect"},
        {"stays long in one place", "regular part of life"},
    };
    const char *once[] = {"the most vulnerable", "the main strength", "the only"};
    for (const Report &r : reports()) {
        const QString text = r.all();
        for (const auto &[a, b] : exclusive)
            EXPECT_FALSE(text.contains(QLatin1String(a), Qt::CaseInsensitive) && text.contains(QLatin1String(b), Qt::CaseInsensitive))
                << "birth " << r.birth.toStdString() << ": \"" << a << "\" beside \"" << b << "\"";
        for (const char *claim : once)
            EXPECT_LE(text.count(QLatin1String(claim), Qt::CaseInsensitive), 1) << "birth " << r.birth.toStdString() << ": " << claim;
    }
}
