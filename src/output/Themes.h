// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Colour schemes of the pages and charts. The page colours live in section "PAGECOLORS" of
// GENDAT.INI, with the name of the scheme in force under "ThemeName"; the chart colours in
// "KUNCOLOR" (ChartLook). A saved scheme is a row of table DisplayThemes of the records (its
// name and the name of its file) and a file INIFILES/<n>THEME.ini of the user's data folder whose
// section "THEME" holds all the keys. A scheme also holds the two page fonts, one for headings and
// one for the body text, kept beside the colours under the same sections. A few stock schemes are
// added on first use.

#include "chartdraw/ChartLook.h"

#include <QSqlDatabase>
#include <QString>
#include <QStringList>

#include <array>

namespace Themes {

struct KeyInfo
{
    const char *name;
    qint64 def;
};
// The fifteen page colours, with the colour each has when nothing was chosen.
inline constexpr int kPageKeys = 15;
inline constexpr std::array<KeyInfo, kPageKeys> kPageKeyTable{{
    {"TopLineCol", 0},
    {"TopLogoBackCol", 16777215},
    {"TopLogoCol", 0},
    {"PerNameCol", 0},
    {"FrontLogoCol", 0},
    {"FrontLogoBackCol", 16777215},
    {"HeadingCol", 0},
    {"SubHeadCol", 0},
    {"NormTextCol", 0},
    {"TableBackCol", 16777215},
    {"TableHeadCol", 16777215},
    {"CompanyNameCol", 0},
    {"CompanyAddressCol", 0},
    {"CircleBorderCol", 0},
    {"TableHeadText", 0},
}};
inline constexpr int kKeyCount = kPageKeys + ChartLook::kKeyCount;

// A page font: a family, and a size in points that stands for the language's own size of the
// role (its heading or its body size); 0 keeps the language's sizes. A family that is not
// installed is kept as it is and drawn in the nearest one the system has.
struct PageFont
{
    QString Family;
    int Size = 0;
    bool operator==(const PageFont &) const = default;
};
// The family of both fonts when nothing was chosen.
inline constexpr const char *kDefaultFamily = "Arial";
inline constexpr int kMaxFamily = 64;
// The sizes a scheme may give, in points: the pages are laid out for text of about these sizes.
inline constexpr int kMinHeadSize = 10, kMaxHeadSize = 18, kMinBodySize = 7, kMaxBodySize = 12;
// The keys of the two fonts, family and size, after the colours in the same sections.
inline constexpr std::array<const char *, 4> kFontKeys{"HeadFont", "HeadFontSize", "BodyFont", "BodyFontSize"};

// The size in points of a role whose size in the language is roleSize, when the font gives size
// f.Size for the language's own size languageSize: the role keeps its proportion to it, rounded
// to whole points, and never under 6.
int ScaledSize(const PageFont &f, int roleSize, int languageSize);
// Why f can't be a scheme's heading font (heading true) or body font: an empty or overlong
// family, or a size out of range. Empty when it can.
QString FontError(const PageFont &f, bool heading);

// One scheme's values: the page keys in the order above, then the chart keys of ChartLook; and
// the two fonts.
struct Scheme
{
    std::array<qint64, kKeyCount> Values{};
    PageFont HeadFont{QString::fromLatin1(kDefaultFamily), 0};
    PageFont BodyFont{QString::fromLatin1(kDefaultFamily), 0};
    qint64 page(int i) const { return Values[static_cast<size_t>(i)]; }
    qint64 chart(ChartLook::Key k) const { return Values[static_cast<size_t>(kPageKeys + k)]; }
    void setChart(ChartLook::Key k, qint64 v) { Values[static_cast<size_t>(kPageKeys + k)] = v; }
    bool operator==(const Scheme &) const = default;
};

// The key name of value i of a scheme.
QString KeyName(int i);
// The look when nothing was chosen.
Scheme Defaults();
// The look in force: "PAGECOLORS" and "KUNCOLOR" as the settings hold them; an absent or unfit
// value (a font among them) reads as its default.
Scheme InForce();
// The name of the scheme in force ("PAGECOLORS"/"ThemeName"), empty when none.
QString InForceName();
// Makes scheme the look in force: "KUNCOLOR" in the order the chart editor saves it, then
// "PAGECOLORS", then the name. Pages loaded afterwards show it.
void Apply(const Scheme &scheme, const QString &name);

// The stock schemes, by name, as they are added on first use.
QStringList StockNames();
Scheme Stock(const QString &name);

// The path of a scheme file name inside the user's INIFILES folder.
QString FilePath(const QString &fileName);
// The schemes of the records, in the order of the table. The first call on records whose schemes
// were never set up adds the stock schemes.
QStringList Names(const QSqlDatabase &db);

// What reading a scheme gives: its values, and an error for the user when the scheme could not be
// read whole (no row, a lost file, a value that is no colour, width or font). Whatever could not
// be read takes the default look.
struct ReadResult
{
    Scheme scheme;
    QString error;
    bool ok() const { return error.isEmpty(); }
};
// The scheme called name. A colour its file lacks keeps its value in current; a font it lacks (a
// scheme saved before schemes had fonts) is the default font, which its look was made with.
ReadResult Read(const QSqlDatabase &db, const QString &name, const Scheme &current);

inline constexpr int kMaxName = 50;
// Adds the scheme (a new name gets a row and a new file) or writes an existing one's file anew.
// An empty answer on success, else what went wrong; nothing is changed then.
QString Save(const QSqlDatabase &db, const QString &name, const Scheme &scheme);
// Deletes the row and its file. False when there is no such scheme or the records can't be written.
bool Delete(const QSqlDatabase &db, const QString &name);

} // namespace Themes
