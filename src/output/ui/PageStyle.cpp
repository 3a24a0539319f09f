// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PageStyle.h"

#include "chartdraw/ui/Kundali.h"
#include "session/Session.h"
#include "session/clsIni.h"

#include <QLabel>

namespace {
QColor pageColor(const char *key, qint64 def)
{
    bool ok = false;
    const qint64 v = clsIni::GetIniString(QString::fromLatin1(key), QString::number(def), QStringLiteral("PAGECOLORS"))
                         .trimmed()
                         .toLongLong(&ok);
    return Kundali::ColorFromLong(ok ? v : def);
}

void style(QLabel *l, int size, bool bold, const QColor &colour)
{
    QFont f(QString::fromLatin1(kPageFont));
    f.setPointSize(size);
    f.setBold(bold);
    l->setFont(f);
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, colour);
    l->setPalette(p);
}
} // namespace

namespace {
PageColors readPageColors()
{
    PageColors c;
    c.TopLineCol = pageColor("TopLineCol", 0);
    c.TopLogoBackCol = pageColor("TopLogoBackCol", 16777215);
    c.TopLogoCol = pageColor("TopLogoCol", 0);
    c.PerNameCol = pageColor("PerNameCol", 0);
    c.FrontLogoCol = pageColor("FrontLogoCol", 0);
    c.FrontLogoBackCol = pageColor("FrontLogoBackCol", 16777215);
    c.HeadingCol = pageColor("HeadingCol", 0);
    c.SubHeadCol = pageColor("SubHeadCol", 0);
    c.NormTextCol = pageColor("NormTextCol", 0);
    c.TableBackCol = pageColor("TableBackCol", 16777215);
    c.TableHeadCol = pageColor("TableHeadCol", 16777215);
    c.CompanyNameCol = pageColor("CompanyNameCol", 0);
    c.CompanyAddressCol = pageColor("CompanyAddressCol", 0);
    c.CircleBorderCol = pageColor("CircleBorderCol", 0);
    c.TableHeadText = pageColor("TableHeadText", 0);
    return c;
}

PageColors &cachedColors()
{
    static PageColors colors = readPageColors();
    return colors;
}
} // namespace

const PageColors &PageColors::Current() { return cachedColors(); }

void PageColors::Reload() { cachedColors() = readPageColors(); }

void StyleHeading(QLabel *l)
{
    const LanguageStyle &s = Session().Language;
    style(l, s.HeaderSize, s.HeadBold, PageColors::Current().HeadingCol);
}

void StyleBody(QLabel *l) { style(l, Session().Language.NormalSize, false, PageColors::Current().NormTextCol); }

void StyleSubHead(QLabel *l)
{
    const LanguageStyle &s = Session().Language;
    style(l, s.SubHeadSize, s.SubHeadBold, PageColors::Current().SubHeadCol);
}

void StyleEnglish(QLabel *l) { style(l, Session().Language.EngSize, false, PageColors::Current().NormTextCol); }

void StyleEnglishSmall(QLabel *l) { style(l, Session().Language.EngSize - 2, false, PageColors::Current().NormTextCol); }

void StyleChart(Kundali *k)
{
    QFont f(QString::fromLatin1(kPageFont));
    f.setPointSize(Session().Language.KundliSize);
    k->setPlanetFont(f);
    QFont h = f;
    h.setPointSize(qMax(6, Session().Language.KundliSize - 2));
    k->setHouseFont(h);
}

void StyleSmall(QLabel *l) { style(l, Session().Language.SmallSize, false, PageColors::Current().NormTextCol); }

void StyleSmallBold(QLabel *l) { style(l, Session().Language.SmallSize, true, PageColors::Current().SubHeadCol); }
