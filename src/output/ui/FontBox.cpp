// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/FontBox.h"

#include "chartdraw/ui/LookControls.h"

#include <QFontDatabase>
#include <QFontDialog>
#include <QFontInfo>

namespace {
FontBox::Picker &picker()
{
    static FontBox::Picker p;
    return p;
}
} // namespace

FontBox::FontBox(const QString &name, int languageSize, QWidget *parent) : QPushButton(parent), m_languageSize(languageSize)
{
    setObjectName(name);
    setMinimumWidth(190);
    connect(this, &QPushButton::clicked, this, &FontBox::pick);
    setPageFont(Themes::Scheme().BodyFont);
}

void FontBox::setPageFont(const Themes::PageFont &f)
{
    m_font = f;
    showFont();
}

Themes::PageFont FontBox::fromDialog(const QFont &chosen) const
{
    const int size = qRound(chosen.pointSizeF());
    return Themes::PageFont{chosen.family(), m_font.Size == 0 && size == m_languageSize ? 0 : size};
}

void FontBox::setPicker(Picker p) { picker() = std::move(p); }

void FontBox::pick()
{
    QFont current(m_font.Family);
    current.setPointSize(shownSize());
    std::optional<QFont> chosen;
    if (picker()) {
        chosen = picker()(current, this);
    } else {
        bool ok = false;
        const QFont f = QFontDialog::getFont(&ok, current, this, LookText("FontDialog", "Font of the pages"));
        if (ok)
            chosen = f;
    }
    if (chosen)
        Q_EMIT fontPicked(*chosen);
}

void FontBox::showFont()
{
    // The caption is written in the font itself, at the button's own size; a family that is not
    // installed names the one that stands in for it.
    QFont look(m_font.Family);
    look.setPointSizeF(QFont().pointSizeF());
    setFont(look);
    QString family = m_font.Family;
    if (!QFontDatabase::hasFamily(m_font.Family))
        family = LookText("FontStandIn", "%1 (as %2)").arg(m_font.Family, QFontInfo(look).family());
    setText(LookText("FontCaption", "%1, %2 pt").arg(family).arg(shownSize()));
}
