// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/PageStyle.h"

#include "chartdraw/ui/Kundali.h"
#include "session/Session.h"

#include <QLabel>

namespace {
void style(QLabel *l, const QFont &font, const QColor &colour)
{
    l->setFont(font);
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, colour);
    l->setPalette(p);
}

PageColors readPageColors()
{
    const Themes::Scheme s = Themes::InForce();
    const auto c = [&s](int i) { return Kundali::ColorFromLong(s.page(i)); };
    // In the order of the page keys of the schemes.
    return PageColors{c(0), c(1), c(2), c(3), c(4), c(5), c(6), c(7), c(8), c(9), c(10), c(11), c(12), c(13), c(14)};
}

PageColors &cachedColors()
{
    static PageColors colors = readPageColors();
    return colors;
}

PageFonts readPageFonts()
{
    const Themes::Scheme s = Themes::InForce();
    return PageFonts{s.HeadFont, s.BodyFont};
}

PageFonts &cachedFonts()
{
    static PageFonts fonts = readPageFonts();
    return fonts;
}
} // namespace

QFont RoleFont(const Themes::PageFont &f, int size, int languageSize, bool bold)
{
    QFont font(f.Family);
    font.setPointSize(Themes::ScaledSize(f, size, languageSize));
    font.setBold(bold);
    return font;
}

const PageColors &PageColors::Current() { return cachedColors(); }

void PageColors::Reload() { cachedColors() = readPageColors(); }

const PageFonts &PageFonts::Current() { return cachedFonts(); }

void PageFonts::Reload() { cachedFonts() = readPageFonts(); }

QFont HeadFont(int size, bool bold)
{
    return RoleFont(PageFonts::Current().Head, size, Session().Language.HeaderSize, bold);
}

QFont BodyFont(int size, bool bold)
{
    return RoleFont(PageFonts::Current().Body, size, Session().Language.NormalSize, bold);
}

void StyleHeading(QLabel *l)
{
    const LanguageStyle &s = Session().Language;
    style(l, HeadFont(s.HeaderSize, s.HeadBold), PageColors::Current().HeadingCol);
}

void StyleBody(QLabel *l) { style(l, BodyFont(Session().Language.NormalSize, false), PageColors::Current().NormTextCol); }

void StyleSubHead(QLabel *l)
{
    const LanguageStyle &s = Session().Language;
    style(l, HeadFont(s.SubHeadSize, s.SubHeadBold), PageColors::Current().SubHeadCol);
}

void StyleEnglish(QLabel *l) { style(l, BodyFont(Session().Language.EngSize, false), PageColors::Current().NormTextCol); }

void StyleEnglishSmall(QLabel *l)
{
    style(l, BodyFont(Session().Language.EngSize - 2, false), PageColors::Current().NormTextCol);
}

void StyleChart(Kundali *k)
{
    QFont f(PageFonts::Current().Body.Family);
    f.setPointSize(Session().Language.KundliSize);
    k->setPlanetFont(f);
    QFont h = f;
    h.setPointSize(qMax(6, Session().Language.KundliSize - 2));
    k->setHouseFont(h);
}

void StyleSmall(QLabel *l) { style(l, BodyFont(Session().Language.SmallSize, false), PageColors::Current().NormTextCol); }

void StyleSmallBold(QLabel *l) { style(l, BodyFont(Session().Language.SmallSize, true), PageColors::Current().SubHeadCol); }
