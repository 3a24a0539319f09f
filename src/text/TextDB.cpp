// SPDX-License-Identifier: AGPL-3.0-or-later
#include "text/TextDB.h"

#include "sky/DataPaths.h"
#include "sky/Functions.h"
#include "sky/MessageSink.h"

#include <QFileInfo>
#include <QHash>
#include <QSqlQuery>

#include <array>
#include <cmath>
#include <limits>

namespace {
QString g_stuffFolder;
int g_connectionCount = 0;

enum class Keys { HeadOnly, HeadAndCategory };

struct TableInfo
{
    const char *name;
    Keys keys;
};
// The tables by look-up type 1..12, with whether they are keyed by a category too.
inline constexpr std::array<TableInfo, 12> kTables{{
    {"CNVT", Keys::HeadAndCategory},      // 1
    {"YOGAS", Keys::HeadOnly},            // 2
    {"VPHALA", Keys::HeadOnly},           // 3
    {"MarMatch", Keys::HeadOnly},         // 4
    {"ASP", Keys::HeadOnly},              // 5
    {"FORTUNE", Keys::HeadAndCategory},   // 6
    {"YOGNAME", Keys::HeadOnly},          // 7
    {"Nakshatra", Keys::HeadAndCategory}, // 8
    {"Bhava", Keys::HeadAndCategory},     // 9
    {"Muhu", Keys::HeadAndCategory},      // 10
    {"Daily", Keys::HeadAndCategory},     // 11
    {"Transits", Keys::HeadOnly},         // 12
}};
static_assert(kTables.size() == 12);

// The table's own spelling, or "" for a name that is no text table. Table names can't be bound
// as parameters, so only these names ever reach the statement.
QString knownTable(const QString &table)
{
    for (const TableInfo &t : kTables)
        if (table.compare(QLatin1String(t.name), Qt::CaseInsensitive) == 0)
            return QLatin1String(t.name);
    return {};
}

struct Row
{
    bool found = false;
    QVariant val; // null when the stored Val is Null
};

// The first row, in row order, of table with that Head (and Category when withCategory).
Row firstRow(const QSqlDatabase &db, const QString &table, const QString &head, bool withCategory, const QString &category)
{
    Row r;
    const QString t = knownTable(table);
    if (t.isEmpty() || !db.isOpen())
        return r;
    QString sql = QStringLiteral("SELECT Val FROM %1 WHERE Head = ? COLLATE NOCASE").arg(t);
    if (withCategory)
        sql += QStringLiteral(" AND Category = ? COLLATE NOCASE");
    sql += QStringLiteral(" ORDER BY rowid LIMIT 1");
    QSqlQuery q(db);
    q.setForwardOnly(true);
    if (!q.prepare(sql))
        return r;
    q.addBindValue(head);
    if (withCategory)
        q.addBindValue(category);
    if (!q.exec() || !q.next())
        return r;
    r.found = true;
    r.val = q.value(0);
    if (r.val.isNull())
        r.val = QVariant(QMetaType::fromType<QString>());
    return r;
}

void reportMissing(const QString &head, bool withCategory, const QString &category)
{
    QString text = QStringLiteral("Item Not Found '%1'").arg(head);
    if (withCategory)
        text += QStringLiteral(" in  '%1'").arg(category);
    messageSink().warn(QStringLiteral("Item Not Found"), text);
}

// A look-up that hands a stored Null back to the caller.
QVariant lookup(const QSqlDatabase &db, const QString &table, const QVariant &head, bool withCategory, const QString &category)
{
    const QString key = TextKey(head);
    const Row r = firstRow(db, table, key, withCategory, category);
    if (!r.found) {
        reportMissing(key, withCategory, category);
        return {};
    }
    return r.val;
}

struct SymbolCache
{
    QString connection;
    QHash<int, QString> byKind;
};
SymbolCache g_symbols;
} // namespace

QString StuffFolder()
{
    if (!g_stuffFolder.isEmpty())
        return g_stuffFolder;
    return DataPaths::StuffFolder();
}

void setStuffFolder(const QString &path) { g_stuffFolder = path; }

QString TextDBPath(const QString &langDir) { return StuffFolder() + QLatin1Char('/') + langDir + QLatin1Char('/') + langDir + QStringLiteral(".Dat"); }

bool OpenTextDB(const QString &langDir, QSqlDatabase &textDb)
{
    const QString path = TextDBPath(langDir);
    if (!QFileInfo(path).isFile()) {
        messageSink().warn(QStringLiteral("File Not Found"),
                           QStringLiteral("Please Re-install Software.\nCould Not Locate Data File For This Language."));
        return false;
    }
    const QString name = QStringLiteral("orbanta-text-%1-%2").arg(langDir).arg(++g_connectionCount);
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    db.setDatabaseName(path);
    db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!db.open()) {
        db = QSqlDatabase();
        QSqlDatabase::removeDatabase(name);
        messageSink().warn(QStringLiteral("File Not Found"),
                           QStringLiteral("Please Re-install Software.\nCould Not Locate Data File For This Language."));
        return false;
    }
    textDb = db;
    ClearSymbolCache();
    return true;
}

void CloseTextDB(QSqlDatabase &db)
{
    const QString name = db.connectionName();
    if (name.isEmpty())
        return;
    db.close();
    db = QSqlDatabase();
    QSqlDatabase::removeDatabase(name);
    if (g_symbols.connection == name)
        ClearSymbolCache();
}

QString TextKey(const QVariant &key)
{
    switch (key.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return NumText(key.toDouble());
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::Short:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return QString::number(key.toLongLong());
    default:
        return key.toString();
    }
}

QVariant GetTextBetween(const QSqlDatabase &db, const QString &table, const QVariant &head, const QString &category)
{
    const QVariant v = lookup(db, table, head, !category.isEmpty(), category);
    return v.isNull() ? QVariant() : v;
}

QVariant GetHeadValue(const QSqlDatabase &db, int type, const QVariant &head, const QString &category)
{
    if (type < 1 || type > 12)
        return {};
    const TableInfo &t = kTables[static_cast<size_t>(type - 1)];
    const QString table = QLatin1String(t.name);
    switch (type) {
    case 4:
    case 12:
        return GetTextBetween(db, table, head, QString());
    case 5:
        return GetConjText(db, head);
    case 11: {
        const QVariant v = lookup(db, table, head, true, category);
        if (v.isValid() && v.isNull())
            return QString(QLatin1String(""));
        return v;
    }
    default:
        return lookup(db, table, head, t.keys == Keys::HeadAndCategory, category);
    }
}

QVariant GetGenText(const QSqlDatabase &db, const QVariant &head) { return GetTextBetween(db, QStringLiteral("CNVT"), head, QStringLiteral("Gen")); }

QVariant GetConjText(const QSqlDatabase &db, const QVariant &head) { return lookup(db, QStringLiteral("ASP"), head, false, QString()); }

QString LangSeparator(const QSqlDatabase &db, int kind)
{
    static const QHash<int, QString> symbolOfKind{{1, QStringLiteral(":")}, {2, QStringLiteral(":")}, {3, QStringLiteral("/")},
                                                  {4, QStringLiteral("-")}, {5, QStringLiteral("+")}, {0, QStringLiteral(".")}};
    const auto it = symbolOfKind.constFind(kind);
    if (it == symbolOfKind.constEnd())
        return {};
    if (g_symbols.connection != db.connectionName()) {
        g_symbols.byKind.clear();
        g_symbols.connection = db.connectionName();
    }
    const int slot = kind == 2 ? 1 : kind;
    auto cached = g_symbols.byKind.constFind(slot);
    if (cached != g_symbols.byKind.constEnd())
        return *cached;
    const QString symbol = GetHeadValue(db, 1, *it, QStringLiteral("Symbols")).toString();
    g_symbols.byKind.insert(slot, symbol);
    return symbol;
}

QString LangNumberText(const QSqlDatabase &db, const QString &numberText)
{
    QString out = numberText;
    if (!out.contains(QLatin1Char('.')))
        return out;
    return out.replace(QLatin1Char('.'), LangSeparator(db, 0));
}

void ClearSymbolCache()
{
    g_symbols.connection.clear();
    g_symbols.byKind.clear();
}

QString TagBlock(const QString &text, const QString &key)
{
    const QString open = QStringLiteral("[HEAD%1]").arg(key);
    const QString close = QStringLiteral("[/HEAD%1]").arg(key);
    const qsizetype start = text.indexOf(open);
    if (start < 0)
        return {};
    const qsizetype from = start + open.size();
    const qsizetype end = text.indexOf(close, from);
    if (end < 0)
        return {};
    return text.mid(from, end - from);
}

QChar TagClosingLetter(const QString &block, const QString &item)
{
    const qsizetype at = block.indexOf(item);
    if (at < 0)
        return {};
    const qsizetype slash = block.indexOf(QLatin1Char('/'), at);
    if (slash < 0 || slash + 1 >= block.size())
        return {};
    return block.at(slash + 1);
}

long TagEntryScore(const QString &block, const QString &entry)
{
    const qsizetype at = block.indexOf(entry);
    if (at < 0)
        return 0;
    QString rest = block.mid(at);
    const qsizetype bar = rest.indexOf(QLatin1Char('|'));
    if (bar >= 0)
        rest.truncate(bar);
    const qsizetype dash = rest.indexOf(QLatin1Char('-'));
    if (dash < 0)
        return 0;
    // A number beyond a long is no score (the classic reader stops with an overflow there).
    const double score = Fix(Val(rest.mid(dash + 1)));
    if (!(score >= double(std::numeric_limits<long>::min()) && score < double(std::numeric_limits<long>::max())))
        return 0;
    return static_cast<long>(score);
}
