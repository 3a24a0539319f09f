// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/Themes.h"

#include "session/clsIni.h"
#include "sky/DataPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QSqlQuery>

#include <optional>

namespace Themes {
namespace {
const QString kPageSection = QStringLiteral("PAGECOLORS");
const QString kThemeSection = QStringLiteral("THEME");
const QString kNameKey = QStringLiteral("ThemeName");

constexpr qint64 rgb(int r, int g, int b) { return r | g << 8 | b << 16; }

// The stock schemes. Each row: the fifteen page colours in the order of kPageKeyTable, then the
// line and border widths and the five chart colours in the order of ChartLook::kKeys; then the
// heading and the body font, family and size (0: the language's sizes). The families are the
// free ones every installation of the program has.
struct StockFont
{
    const char *family;
    int size;
};
struct StockScheme
{
    const char *name;
    std::array<qint64, kKeyCount> values;
    StockFont head, body;
};
inline constexpr std::array<StockScheme, 4> kStock{{
    {"Classic Ink",
     {0, 16777215, 0, 0, 0, 16777215, 0, 0, 0, 16777215, 16777215, 0, 0, 0, 0,
      1, 1, 16777215, 0, 0, 0, rgb(128, 0, 0)},
     {"FreeSerif", 15}, {"FreeSerif", 10}},
    {"Saffron Dawn",
     {rgb(128, 32, 0), rgb(255, 236, 204), rgb(153, 51, 0), rgb(128, 32, 0), rgb(153, 51, 0), rgb(255, 240, 214),
      rgb(153, 51, 0), rgb(178, 80, 0), rgb(40, 30, 20), rgb(255, 250, 240), rgb(255, 204, 128), rgb(128, 32, 0),
      rgb(90, 60, 40), rgb(204, 102, 0), rgb(80, 20, 0),
      1, 2, rgb(255, 248, 231), rgb(204, 102, 0), rgb(128, 32, 0), rgb(60, 30, 0), rgb(178, 34, 34)},
     {"DejaVu Serif", 0}, {"DejaVu Serif", 0}},
    {"Monsoon Blue",
     {rgb(0, 51, 102), rgb(220, 235, 250), rgb(0, 51, 102), rgb(0, 51, 102), rgb(0, 70, 140), rgb(225, 238, 252),
      rgb(0, 51, 102), rgb(0, 90, 160), rgb(20, 30, 45), rgb(245, 250, 255), rgb(190, 215, 240), rgb(0, 51, 102),
      rgb(60, 80, 100), rgb(0, 90, 160), rgb(0, 35, 80),
      1, 2, rgb(240, 247, 255), rgb(30, 90, 160), rgb(0, 51, 102), rgb(10, 30, 60), rgb(200, 60, 0)},
     {"DejaVu Sans", 0}, {"DejaVu Sans", 0}},
    {"Tulsi Green",
     {rgb(34, 85, 34), rgb(232, 245, 232), rgb(34, 85, 34), rgb(34, 85, 34), rgb(34, 100, 34), rgb(235, 247, 235),
      rgb(27, 94, 32), rgb(56, 120, 56), rgb(25, 35, 25), rgb(247, 252, 245), rgb(200, 230, 190), rgb(27, 94, 32),
      rgb(70, 90, 70), rgb(56, 120, 56), rgb(20, 60, 20),
      1, 2, rgb(245, 250, 240), rgb(56, 120, 56), rgb(27, 94, 32), rgb(25, 45, 25), rgb(140, 70, 0)},
     {"FreeSans", 0}, {"FreeSans", 0}},
}};

qint64 defaultOf(int i)
{
    return i < kPageKeys ? kPageKeyTable[static_cast<size_t>(i)].def : ChartLook::kKeys[static_cast<size_t>(i - kPageKeys)].def;
}

Scheme schemeOf(const StockScheme &stock)
{
    Scheme s;
    s.Values = stock.values;
    s.HeadFont = PageFont{QString::fromLatin1(stock.head.family), stock.head.size};
    s.BodyFont = PageFont{QString::fromLatin1(stock.body.family), stock.body.size};
    return s;
}

QString fontKey(int i) { return QString::fromLatin1(kFontKeys[static_cast<size_t>(i)]); }

// The heading font (heading true) or the body font under section of file (the main settings when
// file is empty). Absent keys read as the default font; a family or a size that can't be one reads
// as its default and its key goes to bad.
PageFont readFont(bool heading, const QString &section, const QString &file, QStringList &bad)
{
    const int at = heading ? 0 : 2;
    PageFont f = heading ? Scheme().HeadFont : Scheme().BodyFont;
    const QString absent = QStringLiteral("\x01");
    const QString family = clsIni::GetIniString(fontKey(at), absent, section, file);
    if (family != absent) {
        const PageFont read{family.trimmed(), 0};
        if (FontError(read, heading).isEmpty())
            f.Family = read.Family;
        else
            bad << fontKey(at);
    }
    const QString size = clsIni::GetIniString(fontKey(at + 1), absent, section, file);
    if (size != absent) {
        bool ok = false;
        const PageFont read{f.Family, size.trimmed().toInt(&ok)};
        if (ok && FontError(read, heading).isEmpty())
            f.Size = read.Size;
        else
            bad << fontKey(at + 1);
    }
    return f;
}

// The four font keys with their values, in the order of kFontKeys.
std::array<QString, 4> fontValues(const Scheme &s)
{
    return {s.HeadFont.Family, QString::number(s.HeadFont.Size), s.BodyFont.Family, QString::number(s.BodyFont.Size)};
}

bool fits(int i, qint64 v)
{
    return i < kPageKeys ? ChartLook::ValidColour(v) : ChartLook::ValidFor(static_cast<ChartLook::Key>(i - kPageKeys), v);
}

// value as a number that fits key i, or nothing.
std::optional<qint64> parse(int i, const QString &text)
{
    bool ok = false;
    const qint64 v = text.trimmed().toLongLong(&ok);
    if (!ok || !fits(i, v))
        return std::nullopt;
    return v;
}

// Writes every key of scheme into section THEME of the file; false when the file could not be written.
bool writeFile(const QString &path, const Scheme &scheme)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSettings file(path, QSettings::IniFormat);
    file.remove(kThemeSection);
    for (int i = 0; i < kKeyCount; ++i)
        file.setValue(kThemeSection + QLatin1Char('/') + KeyName(i), QString::number(scheme.Values[static_cast<size_t>(i)]));
    const std::array<QString, 4> fonts = fontValues(scheme);
    for (size_t i = 0; i < fonts.size(); ++i)
        file.setValue(kThemeSection + QLatin1Char('/') + fontKey(static_cast<int>(i)), fonts[i]);
    file.sync();
    return file.status() == QSettings::NoError && QFileInfo::exists(path);
}

// The file of the scheme's row; empty when there is no row.
std::optional<QString> fileOf(const QSqlDatabase &db, const QString &name)
{
    QSqlQuery q(db);
    q.prepare(QStringLiteral("SELECT file FROM DisplayThemes WHERE ThemeName = ?"));
    q.addBindValue(name);
    if (!q.exec() || !q.next())
        return std::nullopt;
    return q.value(0).toString();
}

// A file name "<n>THEME.ini" that no row uses and no file holds, from n = count + 1 on.
QString newFileName(const QSqlDatabase &db)
{
    QStringList used;
    QSqlQuery q(db);
    if (q.exec(QStringLiteral("SELECT file FROM DisplayThemes")))
        while (q.next())
            used << q.value(0).toString();
    for (int n = static_cast<int>(used.size()) + 1;; ++n) {
        const QString name = QStringLiteral("%1THEME.ini").arg(n);
        if (!used.contains(name, Qt::CaseInsensitive) && !QFileInfo::exists(FilePath(name)))
            return name;
    }
}

// Adds the stock schemes to records that hold none, in one transaction.
void addStock(const QSqlDatabase &db)
{
    QSqlDatabase d = db;
    if (!d.transaction())
        return;
    QStringList written;
    for (const StockScheme &s : kStock) {
        const QString file = newFileName(d);
        QSqlQuery w(d);
        w.prepare(QStringLiteral("INSERT INTO DisplayThemes (ThemeName, file) VALUES (?, ?)"));
        w.addBindValue(QString::fromLatin1(s.name));
        w.addBindValue(file);
        if (!w.exec() || !writeFile(FilePath(file), schemeOf(s))) {
            d.rollback();
            for (const QString &f : written)
                QFile::remove(FilePath(f));
            return;
        }
        written << file;
    }
    if (!d.commit()) {
        d.rollback();
        for (const QString &f : written)
            QFile::remove(FilePath(f));
    }
}
} // namespace

int ScaledSize(const PageFont &f, int roleSize, int languageSize)
{
    if (f.Size <= 0 || languageSize <= 0)
        return roleSize;
    return qMax(6, qRound(static_cast<double>(roleSize) * f.Size / languageSize));
}

QString FontError(const PageFont &f, bool heading)
{
    const QString role = heading ? QStringLiteral("heading") : QStringLiteral("body text");
    const QString family = f.Family.trimmed();
    if (family.isEmpty())
        return QStringLiteral("Please choose a family for the %1 font.").arg(role);
    if (family.size() > kMaxFamily)
        return QStringLiteral("A font family's name can have at most %1 characters.").arg(kMaxFamily);
    for (const QChar c : family)
        if (c.category() == QChar::Other_Control)
            return QStringLiteral("The name of the %1 font holds a character that no font name has.").arg(role);
    const int low = heading ? kMinHeadSize : kMinBodySize, high = heading ? kMaxHeadSize : kMaxBodySize;
    if (f.Size != 0 && (f.Size < low || f.Size > high))
        return QStringLiteral("The %1 font can be %2 to %3 points; the pages are laid out for text of about that size.")
            .arg(role)
            .arg(low)
            .arg(high);
    return {};
}

QString KeyName(int i)
{
    return QString::fromLatin1(i < kPageKeys ? kPageKeyTable[static_cast<size_t>(i)].name
                                             : ChartLook::kKeys[static_cast<size_t>(i - kPageKeys)].name);
}

Scheme Defaults()
{
    Scheme s;
    for (int i = 0; i < kKeyCount; ++i)
        s.Values[static_cast<size_t>(i)] = defaultOf(i);
    return s;
}

Scheme InForce()
{
    Scheme s;
    for (int i = 0; i < kPageKeys; ++i)
        s.Values[static_cast<size_t>(i)] =
            parse(i, clsIni::GetIniString(KeyName(i), QString(), kPageSection)).value_or(defaultOf(i));
    const ChartLook look = ChartLook::Read();
    for (int k = 0; k < ChartLook::kKeyCount; ++k)
        s.setChart(static_cast<ChartLook::Key>(k), look[static_cast<ChartLook::Key>(k)]);
    QStringList unfit; // an unfit font in force just reads as the default one
    s.HeadFont = readFont(true, kPageSection, QString(), unfit);
    s.BodyFont = readFont(false, kPageSection, QString(), unfit);
    return s;
}

QString InForceName() { return clsIni::GetIniString(kNameKey, QString(), kPageSection); }

void Apply(const Scheme &scheme, const QString &name)
{
    ChartLook look = ChartLook::Read();
    for (int k = 0; k < ChartLook::kKeyCount; ++k)
        look[static_cast<ChartLook::Key>(k)] = scheme.chart(static_cast<ChartLook::Key>(k));
    look.WriteKeys();
    for (int i = 0; i < kPageKeys; ++i)
        clsIni::WriteIniString(KeyName(i), QString::number(scheme.page(i)), kPageSection);
    const std::array<QString, 4> fonts = fontValues(scheme);
    for (size_t i = 0; i < fonts.size(); ++i)
        clsIni::WriteIniString(fontKey(static_cast<int>(i)), fonts[i], kPageSection);
    clsIni::WriteIniString(kNameKey, name, kPageSection);
}

QStringList StockNames()
{
    QStringList out;
    for (const StockScheme &s : kStock)
        out << QString::fromLatin1(s.name);
    return out;
}

Scheme Stock(const QString &name)
{
    for (const StockScheme &s : kStock)
        if (name.compare(QLatin1String(s.name), Qt::CaseInsensitive) == 0)
            return schemeOf(s);
    return Defaults();
}

QString FilePath(const QString &fileName)
{
    return QDir(DataPaths::UserFolder()).filePath(QStringLiteral("INIFILES/") + QFileInfo(fileName).fileName());
}

QStringList Names(const QSqlDatabase &db)
{
    const auto list = [&db] {
        QStringList out;
        QSqlQuery q(db);
        if (q.exec(QStringLiteral("SELECT ThemeName FROM DisplayThemes ORDER BY rowid")))
            while (q.next())
                out << q.value(0).toString();
        return out;
    };
    QStringList names = list();
    if (names.isEmpty() && db.isOpen()) {
        addStock(db);
        names = list();
    }
    return names;
}

ReadResult Read(const QSqlDatabase &db, const QString &name, const Scheme &current)
{
    ReadResult r;
    r.scheme = Defaults();
    const std::optional<QString> file = fileOf(db, name);
    if (!file) {
        r.error = QStringLiteral("There is no colour scheme called \"%1\". The default colours are shown instead.").arg(name);
        return r;
    }
    const QString path = FilePath(*file);
    if (file->isEmpty() || !QFileInfo(path).isFile()) {
        r.error = QStringLiteral("The colour scheme \"%1\" has lost its file (%2). The default colours are shown "
                                 "instead; save the scheme again to keep them.")
                      .arg(name, QDir::toNativeSeparators(path));
        return r;
    }
    QSettings check(path, QSettings::IniFormat);
    if (check.status() != QSettings::NoError) {
        r.error = QStringLiteral("The file of the colour scheme \"%1\" (%2) is damaged and can't be read. The default "
                                 "colours are shown instead.")
                      .arg(name, QDir::toNativeSeparators(path));
        return r;
    }
    QStringList bad;
    for (int i = 0; i < kKeyCount; ++i) {
        const QString absent = QStringLiteral("\x01");
        const QString text = clsIni::GetIniString(KeyName(i), absent, kThemeSection, path);
        auto &value = r.scheme.Values[static_cast<size_t>(i)];
        if (text == absent) {
            value = current.Values[static_cast<size_t>(i)];
        } else if (const auto v = parse(i, text)) {
            value = *v;
        } else {
            bad << KeyName(i);
        }
    }
    r.scheme.HeadFont = readFont(true, kThemeSection, path, bad);
    r.scheme.BodyFont = readFont(false, kThemeSection, path, bad);
    if (!bad.isEmpty())
        r.error = QStringLiteral("Some values of the colour scheme \"%1\" are not colours, widths or fonts (%2). Those "
                                 "parts show the default look.")
                      .arg(name, bad.join(QStringLiteral(", ")));
    return r;
}

QString Save(const QSqlDatabase &db, const QString &name, const Scheme &scheme)
{
    const QString set = name.trimmed();
    if (set.isEmpty())
        return QStringLiteral("Please type a name for the colour scheme.");
    if (set.size() > kMaxName)
        return QStringLiteral("A colour scheme's name can have at most %1 characters.").arg(kMaxName);
    for (int i = 0; i < kKeyCount; ++i)
        if (!fits(i, scheme.Values[static_cast<size_t>(i)]))
            return QStringLiteral("The value of %1 is not a colour or width that can be saved.").arg(KeyName(i));
    for (const bool heading : {true, false})
        if (const QString e = FontError(heading ? scheme.HeadFont : scheme.BodyFont, heading); !e.isEmpty())
            return e;
    QSqlDatabase d = db;
    if (!d.transaction())
        return QStringLiteral("The records can't be written, so the colour scheme was not saved.");
    const std::optional<QString> existing = fileOf(d, set);
    QString file = existing ? *existing : QString();
    if (file.isEmpty()) {
        file = newFileName(d);
        QSqlQuery w(d);
        if (existing)
            w.prepare(QStringLiteral("UPDATE DisplayThemes SET file = ? WHERE ThemeName = ?"));
        else
            w.prepare(QStringLiteral("INSERT INTO DisplayThemes (file, ThemeName) VALUES (?, ?)"));
        w.addBindValue(file);
        w.addBindValue(set);
        if (!w.exec()) {
            d.rollback();
            return QStringLiteral("The records can't be written, so the colour scheme was not saved.");
        }
    }
    const QString path = FilePath(file);
    if (!writeFile(path, scheme)) {
        d.rollback();
        return QStringLiteral("The file %1 can't be written, so the colour scheme was not saved.").arg(QDir::toNativeSeparators(path));
    }
    if (!d.commit()) {
        d.rollback();
        if (!existing)
            QFile::remove(path);
        return QStringLiteral("The records can't be written, so the colour scheme was not saved.");
    }
    return {};
}

bool Delete(const QSqlDatabase &db, const QString &name)
{
    const std::optional<QString> file = fileOf(db, name);
    if (!file)
        return false;
    QSqlDatabase d = db;
    if (!d.transaction())
        return false;
    QSqlQuery q(d);
    q.prepare(QStringLiteral("DELETE FROM DisplayThemes WHERE ThemeName = ?"));
    q.addBindValue(name);
    if (!q.exec() || !d.commit()) {
        d.rollback();
        return false;
    }
    if (!file->isEmpty())
        QFile::remove(FilePath(*file));
    if (InForceName().compare(name, Qt::CaseInsensitive) == 0)
        clsIni::WriteIniString(kNameKey, QString(), kPageSection);
    return true;
}

} // namespace Themes
