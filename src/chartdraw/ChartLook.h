// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The user's look of every chart wheel: the style (setting "KundStyle" of section "Init") and the
// two widths and five colours of section "KUNCOLOR" of GENDAT.INI. Colours are classic colour
// numbers, 0x00BBGGRR, or a system colour 0x800000nn. The wheels read the look when they paint,
// so a saved change shows on screen, on paper and in PDF without a restart.

#include <QtGlobal>

#include <array>

class ChartLook
{
public:
    // The seven keys of "KUNCOLOR", in the order they are saved.
    enum Key { LineWidth, BorderWidth, BackColor, LineColor, BorderColor, TxtColor, NumColor, kKeyCount };
    struct KeyInfo
    {
        const char *name;
        qint64 def;
    };
    // An absent key keeps a white wheel with black lines and text and dark red sign numbers.
    static constexpr std::array<KeyInfo, kKeyCount> kKeys{{
        {"KunLineWidth", 1},
        {"KunBorderWidth", 1},
        {"KunBackColor", 0xFFFFFF},
        {"KunLineColor", 0x000000},
        {"KunBorderColor", 0x000000},
        {"KunTxtColor", 0x000000},
        {"KunNumColor", 0x000080},
    }};
    static constexpr int kMaxWidth = 10;

    int Style = 2; // 0 North, 1 East, 2 South
    std::array<qint64, kKeyCount> Values{kKeys[0].def, kKeys[1].def, kKeys[2].def, kKeys[3].def,
                                         kKeys[4].def, kKeys[5].def, kKeys[6].def};

    qint64 operator[](Key k) const { return Values[static_cast<size_t>(k)]; }
    qint64 &operator[](Key k) { return Values[static_cast<size_t>(k)]; }
    bool operator==(const ChartLook &) const = default;

    // The look as the settings hold it now. A key that is absent, or whose text is no fit value,
    // reads as its default.
    static ChartLook Read();
    // Writes the style, then the seven keys in the order of kKeys.
    void Write() const;
    // Writes the seven keys alone (a colour scheme carries no style).
    void WriteKeys() const;
    // The look as last read; read again when the settings files changed or the look was written.
    static const ChartLook &Current();

    // Whether value is a colour number: 0..0xFFFFFF, or a system colour 0x80000000..0x800000FF.
    static bool ValidColour(qint64 value);
    // Whether value is a width the editor can show: 0..kMaxWidth (0 is drawn as 1).
    static bool ValidWidth(qint64 value) { return value >= 0 && value <= kMaxWidth; }
    // Whether value fits key k.
    static bool ValidFor(Key k, qint64 value) { return k <= BorderWidth ? ValidWidth(value) : ValidColour(value); }
};
