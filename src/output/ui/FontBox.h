// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A button that shows a page font (its family and size, written in that family) and asks for
// another through the font dialog when clicked.

#include "output/Themes.h"

#include <QFont>
#include <QPushButton>

#include <functional>
#include <optional>

class FontBox : public QPushButton
{
    Q_OBJECT
public:
    // languageSize: the size the font stands for while it keeps the language's sizes (size 0).
    FontBox(const QString &name, int languageSize, QWidget *parent = nullptr);
    Themes::PageFont pageFont() const { return m_font; }
    void setPageFont(const Themes::PageFont &f);
    // The size in points the font has on the pages: its own, or the language's.
    int shownSize() const { return m_font.Size > 0 ? m_font.Size : m_languageSize; }
    // The page font a font of the dialog makes: its family and size; a size equal to the one shown
    // for a font that keeps the language's sizes keeps them still. Weight and slant are the
    // page roles' own and are not taken.
    Themes::PageFont fromDialog(const QFont &chosen) const;

    // How a click asks for a font: by default the font dialog, opened on the box's font. No
    // answer (the dialog cancelled) changes nothing. Tests answer in its place.
    using Picker = std::function<std::optional<QFont>(const QFont &current, QWidget *parent)>;
    static void setPicker(Picker picker);

Q_SIGNALS:
    // The user chose a font in the dialog; the box shows it once its owner accepts it.
    void fontPicked(const QFont &f);

private:
    void pick();
    void showFont();
    Themes::PageFont m_font;
    int m_languageSize;
};
