// SPDX-License-Identifier: AGPL-3.0-or-later
#include "strength/pages/frmKaraka.h"

#include "sky/clsPlanets.h"
#include "strength/Avasthas.h"

QString frmKaraka::karaka(List l, int row) const
{
    const auto &t = m_lists[static_cast<size_t>(l)];
    return row >= 0 && row < t.size() ? t[row][1]->text() : QString();
}

QString frmKaraka::state(int planet, int family) const
{
    return planet >= 1 && planet <= m_states.size() && family >= 0 && family < 6 ? m_states[planet - 1][family + 1]->text()
                                                                                 : QString();
}

QString frmKaraka::taraStars(int row) const
{
    if (row < 0 || row >= m_taras.size())
        return {};
    return QStringList{m_taras[row][1]->text(), m_taras[row][2]->text(), m_taras[row][3]->text()}.join(QLatin1Char(' '));
}

void frmKaraka::fill()
{
    const clsPlanets &c = chart();
    const auto head = [&c](const QString &category, const QVariant &key) { return c.GetHeadValue(1, key, category).toString(); };
    const QString none = head(QStringLiteral("Symbols"), QStringLiteral("---"));
    lblTitle->setText(head(QStringLiteral("Karaka"), QStringLiteral("Title")));

    // The three lists of karakas side by side: the fixed one, then the seven and the eight by degrees.
    addLabel(QRect(30, 60, 700, 22), head(QStringLiteral("Karaka"), QStringLiteral("Karaka")), SubHead, Qt::AlignCenter);
    const std::array<const char *, 3> listHeads{"Sthira", "Sapt", "Ashta"};
    const std::array<const char *, 3> labelCategory{"SthiraKarak", "SaptaKarak", "AshtaKarak"};
    const auto sapta = Avasthas::SaptaKarakas(c);
    const auto ashta = Avasthas::AshtaKarakas(c);
    for (int l = 0; l < 3; ++l) {
        const int x = 30 + l * 240;
        const int rows = l == Ashta ? 8 : 7;
        addLabel(QRect(x, 84, 220, 20), head(QStringLiteral("Karaka"), QString::fromLatin1(listHeads[static_cast<size_t>(l)])),
                 SmallBold, Qt::AlignCenter);
        const Table t = addTable(x, 106, {128, 92}, 22, {}, rows, Small, true);
        for (int i = 0; i < rows; ++i) {
            const int planet = l == Sthira ? Avasthas::kSthiraKarakas[static_cast<size_t>(i)]
                               : l == Sapta ? sapta[static_cast<size_t>(i)]
                                            : ashta[static_cast<size_t>(i)];
            const int before = i == 0 ? 0 : l == Sapta ? sapta[static_cast<size_t>(i - 1)] : ashta[static_cast<size_t>(i - 1)];
            // Equal degrees make no rank: the later of the two shows none.
            const bool tied = l != Sthira && i > 0 && Avasthas::KarakaDegrees(c, planet) == Avasthas::KarakaDegrees(c, before);
            t.cell(i, 0)->setText(head(QString::fromLatin1(labelCategory[static_cast<size_t>(l)]), i + 1));
            t.cell(i, 1)->setText(tied ? none : c.PlanetNameFull(planet));
        }
        m_lists[static_cast<size_t>(l)] = t.cells;
    }

    // The states: one row a planet, one column a family.
    addLabel(QRect(30, 300, 700, 22), head(QStringLiteral("Avastha"), QStringLiteral("Title")), SubHead, Qt::AlignCenter);
    QStringList heads{head(QStringLiteral("Avastha"), QStringLiteral("Planet"))};
    for (int f : Avasthas::kFamilies)
        heads << head(QStringLiteral("Avastha"), QString::number(f));
    const Table states = addTable(30, 326, {100, 100, 100, 100, 100, 100, 100}, 22, heads, 9, Small, true);
    const int g = Avasthas::Ghatikas(c);
    for (int p = 1; p <= 9; ++p) {
        states.cell(p - 1, 0)->setText(c.PlanetNameFull(p));
        for (int f = 0; f < 6; ++f) {
            const int family = Avasthas::kFamilies[static_cast<size_t>(f)];
            const int s = Avasthas::State(c, family, p, g);
            states.cell(p - 1, f + 1)->setText(s == 0 ? none : head(QStringLiteral("Ava") + QString::number(family), s));
        }
    }
    m_states = states.cells;

    // The nine taras from the birth star.
    addLabel(QRect(30, 560, 700, 22), head(QStringLiteral("NAV"), QStringLiteral("NAVTARA")), SubHead, Qt::AlignCenter);
    const Table taras = addTable(70, 586, {170, 150, 150, 150}, 22,
                                 {head(QStringLiteral("NAV"), QStringLiteral("Tara")), head(QStringLiteral("NAV"), QStringLiteral("Round1")),
                                  head(QStringLiteral("NAV"), QStringLiteral("Round2")), head(QStringLiteral("NAV"), QStringLiteral("Round3"))},
                                 9, Small, true);
    const auto rows = Avasthas::NavTara(c);
    for (int t = 0; t < 9; ++t) {
        taras.cell(t, 0)->setText(head(QStringLiteral("NAV"), t + 1));
        for (int k = 0; k < 3; ++k)
            taras.cell(t, k + 1)->setText(c.GetNakshatraName(rows[static_cast<size_t>(t)][static_cast<size_t>(k)]));
    }
    m_taras = taras.cells;
    addLabel(QRect(70, taras.rect.bottom() + 10, 620, 60), head(QStringLiteral("NAV"), QStringLiteral("Note")), Small,
             Qt::AlignLeft | Qt::AlignTop)
        ->setWordWrap(true);
}
