// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The looks shared by every topic page: the eight label styles, with the theme's fonts at the
// language's sizes and the theme's colours, and the page colours and fonts themselves.

#include "output/Themes.h"

#include <QColor>
#include <QFont>

class QLabel;
class Kundali;

// The page colours of the theme in force (section "PAGECOLORS"), read once per page load.
struct PageColors
{
    QColor TopLineCol, TopLogoBackCol, TopLogoCol, PerNameCol, FrontLogoCol, FrontLogoBackCol, HeadingCol, SubHeadCol,
        NormTextCol, TableBackCol, TableHeadCol, CompanyNameCol, CompanyAddressCol, CircleBorderCol, TableHeadText;
    // The colours as last read; Reload reads the settings again (each page does so when it loads).
    static const PageColors &Current();
    static void Reload();
};

// The two page fonts of the theme in force. The heading font serves titles, headings and
// sub-headings; the body font all other text of the pages, the charts and the header of text
// sheets. Read once per page load, as the colours are.
struct PageFonts
{
    Themes::PageFont Head, Body;
    static const PageFonts &Current();
    static void Reload();
};

// The font f gives a role whose size in the language is size, where languageSize is the language's
// own size of f's group (HeaderSize or NormalSize).
QFont RoleFont(const Themes::PageFont &f, int size, int languageSize, bool bold);
// The heading font for a role whose size in the language is size (HeaderSize, SubHeadSize,
// TextHeadSize), scaled as the theme's heading size is to the language's HeaderSize.
QFont HeadFont(int size, bool bold);
// The body font for a role whose size in the language is size, scaled as the theme's body size is
// to the language's NormalSize.
QFont BodyFont(int size, bool bold);

void StyleHeading(QLabel *l);
void StyleBody(QLabel *l);
void StyleSubHead(QLabel *l);
void StyleEnglish(QLabel *l);
void StyleEnglishSmall(QLabel *l);
// The body family at the language's chart size: a chart's cells are fixed, so its size is the
// language's alone.
void StyleChart(Kundali *k);
void StyleSmall(QLabel *l);
void StyleSmallBold(QLabel *l);
