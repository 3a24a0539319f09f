// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/clsSadeSati.h"

#include "sky/DataPaths.h"
#include "sky/Functions.h"
#include "sky/clsPlanets.h"

#include <QDate>
#include <QFileInfo>
#include <QSqlQuery>

#include <array>
#include <cstdlib>

namespace {
constexpr int kSaturn = 6;
constexpr int kMoon = 7;

// The entries of Saturn into one sign, in the order of time.
struct Entry
{
    int year;
    QString entry;
    double longitude;
    QString exit;
};

std::vector<Entry> entriesInto(const QSqlDatabase &db, const QString &table, int sign)
{
    std::vector<Entry> out;
    // The table name is one of four fixed words; the sign is bound.
    QSqlQuery q(db);
    q.prepare(QStringLiteral("SELECT dt, val, exitDT FROM %1 WHERE RASHI = ? ORDER BY dt").arg(table));
    q.addBindValue(QString::number(sign));
    if (!q.exec())
        return out;
    while (q.next()) {
        const QString dt = q.value(0).toString();
        out.push_back({dt.left(4).toInt(), dt, q.value(1).toDouble(), q.value(2).toString()});
    }
    return out;
}

class Maker
{
public:
    Maker(const clsPlanets &chart, const QSqlDatabase &db, const QString &table)
        : m_chart(chart), m_db(db), m_table(table), m_moonSign(chart.PlanetRashiNum(kMoon))
    {
    }

    void AddPhase(int sign, int year, int phase)
    {
        if (static_cast<int>(m_rows.size()) >= clsSadeSati::kMaxRows)
            return;
        std::vector<const Entry *> taken;
        const std::vector<Entry> entries = entriesInto(m_db, m_table, sign);
        int lastYear = 0;
        for (const Entry &e : entries) {
            const int off = e.year - year;
            if (off < -2 || off >= 29)
                continue;
            // A second entry within ten years is Saturn's retrograde return into the same sign.
            if (taken.empty() || std::abs(e.year - lastYear) <= 10) {
                taken.push_back(&e);
                lastYear = e.year;
            }
        }
        for (const Entry *e : taken) {
            if (static_cast<int>(m_rows.size()) >= clsSadeSati::kMaxRows)
                break;
            m_rows.push_back({phase, sign, e->entry, e->longitude, e->exit, payaAt(e->entry)});
        }
    }

    std::vector<SadeSatiRow> rows() && { return std::move(m_rows); }

private:
    // The Paya: the Moon's sign on the day of entry, at the birth's clock time, counted from the
    // natal Moon's sign.
    int payaAt(const QString &yyyymmdd)
    {
        clsPlanets day;
        day.setRahuKetuMode(m_chart.RahuKetuMode());
        m_chart.CopySettingTo(day);
        clsPerson &p = day.Person();
        p.setYear(yyyymmdd.left(4).toInt());
        p.setMonth(yyyymmdd.mid(4, 2).toInt());
        p.setDay(yyyymmdd.mid(6, 2).toInt());
        day.Calculate();
        const int k = Norm12(day.PlanetRashiNum(kMoon) - m_moonSign + 1) - 1;
        return clsSadeSati::PayaOf(k);
    }

    const clsPlanets &m_chart;
    const QSqlDatabase &m_db;
    QString m_table;
    int m_moonSign;
    std::vector<SadeSatiRow> m_rows;
};
} // namespace

QString clsSadeSati::TableOf(int ayanType)
{
    switch (ayanType) {
    case 1:
    case 15:
        return QStringLiteral("LEPH");
    case 2:
        return QStringLiteral("BEPH");
    case 3:
        return QStringLiteral("KEPH");
    case 12:
        return QStringLiteral("SEPH");
    default:
        return {};
    }
}

QString clsSadeSati::PhaseKey(int phase)
{
    static constexpr std::array<const char *, 5> kKeys{"Phase1", "Phase2", "Phase3", "Kantak", "Ashtam"};
    return phase >= 1 && phase <= 5 ? QString::fromLatin1(kKeys[static_cast<size_t>(phase - 1)]) : QString();
}

QString clsSadeSati::ShowDate(const QString &d)
{
    if (d.size() != 8)
        return {};
    return d.right(2) + QLatin1Char('/') + d.mid(4, 2) + QLatin1Char('/') + d.left(4);
}

int clsSadeSati::PayaOf(int k)
{
    // k: 0, 5, 10 gold; 1, 4, 8 silver; 2, 6, 9 copper; 3, 7, 11 iron.
    static constexpr std::array<int, 12> kPaya{1, 2, 3, 4, 2, 1, 3, 4, 2, 3, 1, 4};
    return k >= 0 && k < 12 ? kPaya[static_cast<size_t>(k)] : 0;
}

bool clsSadeSati::OpenDB(QSqlDatabase &db)
{
    static int count = 0;
    const QString path = DataPaths::StuffFolder() + QStringLiteral("/COMMON/SADESAT.Dat");
    db = QSqlDatabase();
    if (!QFileInfo(path).isFile())
        return false;
    const QString name = QStringLiteral("orbanta-sadesat-%1").arg(++count);
    QSqlDatabase opened = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    opened.setDatabaseName(path);
    opened.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!opened.open()) {
        opened = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
        return false;
    }
    db = opened;
    return true;
}

void clsSadeSati::CloseDB(QSqlDatabase &db)
{
    const QString name = db.connectionName();
    db.close();
    db = QSqlDatabase();
    if (!name.isEmpty())
        QSqlDatabase::removeDatabase(name);
}

std::vector<SadeSatiRow> clsSadeSati::MakeSadeSati(const clsPlanets &chart, const QSqlDatabase &db)
{
    const QString table = TableOf(chart.AyanType());
    if (table.isEmpty() || !db.isOpen())
        return {};
    Maker make(chart, db, table);
    const int m = chart.PlanetRashiNum(kMoon);
    const int a = Norm12(m - 1), b = Norm12(a + 1), c = Norm12(b + 1), k = Norm12(b + 3), h = Norm12(b + 7);
    const int y = static_cast<int>(chart.Person().Year());
    const int saturn = chart.PlanetRashiNum(kSaturn);
    const int d = saturn - m + (saturn < m ? 12 : 0);

    const auto fixedRun = [&] {
        make.AddPhase(a, y + 2, 1);
        make.AddPhase(b, y + 4, 2);
        make.AddPhase(c, y + 7, 3);
        make.AddPhase(k, y + 12, 4);
        make.AddPhase(h, y + 22, 5);
    };
    if (d == 0) {
        make.AddPhase(b, y, 2);
        make.AddPhase(c, y, 3);
        make.AddPhase(k, y, 4);
        make.AddPhase(h, y, 5);
        fixedRun();
    } else if (d == 1) {
        make.AddPhase(c, y + 4, 3);
        make.AddPhase(k, y + 10, 4);
        make.AddPhase(h, y + 17, 5);
        fixedRun();
    } else if (d <= 3) {
        make.AddPhase(k, y, 4);
        make.AddPhase(h, y + 4, 5);
        fixedRun();
    } else if (d <= 7) {
        make.AddPhase(h, y, 5);
        fixedRun();
    } else {
        make.AddPhase(a, y, 1);
        make.AddPhase(b, y, 2);
        make.AddPhase(c, y, 3);
        make.AddPhase(k, y, 4);
        make.AddPhase(h, y, 5);
    }
    make.AddPhase(a, y + 34, 1);
    make.AddPhase(b, y + 34, 2);
    make.AddPhase(c, y + 36, 3);
    make.AddPhase(k, y + 42, 4);
    make.AddPhase(h, y + 52, 5);
    make.AddPhase(a, y + 62, 1);
    make.AddPhase(b, y + 64, 2);
    make.AddPhase(c, y + 66, 3);
    make.AddPhase(k, y + 72, 4);
    make.AddPhase(h, y + 82, 5);
    return std::move(make).rows();
}
