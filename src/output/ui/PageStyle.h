// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The looks shared by every topic page: the eight label styles, with the language's sizes and the
// theme's colours, and the page colours themselves.

#include <QColor>

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

void StyleHeading(QLabel *l);
void StyleBody(QLabel *l);
void StyleSubHead(QLabel *l);
void StyleEnglish(QLabel *l);
void StyleEnglishSmall(QLabel *l);
void StyleChart(Kundali *k);
void StyleSmall(QLabel *l);
void StyleSmallBold(QLabel *l);

// The family every text role of the pages uses.
inline constexpr const char *kPageFont = "Arial";
