// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/TopicList.h"

#include <QSet>

#include <array>

namespace {
struct Row
{
    const char *caption, *shortName, *page;
    int arg;
};

// The full Horoscope list; the last three only for languages with extended text.
inline constexpr std::array<Row, 35> kHoroscope{{
    {"Quick View", "Quickview", "frmHoroReckoner", 0},
    {"General Details", "Details", "frmPage1", 0},
    {"Lagna & Planet Positions", "Lagna", "frmPage2", 0},
    {"Shodash Kundlis-1", "Shodash-1", "frmSodash", 1},
    {"Shodash Kundlis-2", "Shodash-2", "frmSodash", 2},
    {"Shodash Kundlis-3", "Shodash-3", "frmSodash", 3},
    {"Shodash Kundlis-4", "Shodash-4", "frmSodash", 4},
    {"Bhava Table & Chalit Chakra", "Bhava", "frmBhav", 0},
    {"Upgarahas & Minor Planets", "Upgraha", "frmUpagraha", 0},
    {"Bhinnashtakvarga 1", "Bhin Asht-1", "frmBhinnaAshtak", 0},
    {"Bhinnashtakvarga 2", "Bhin Asht-2", "frmBhinnaAshtak2", 0},
    {"Ashtakvarga & Shodhan", "Ashtak", "frmAshtak", 0},
    {"Planet Maitri Chakra", "Maitri", "frmMaitri", 0},
    {"Sudarshan Chakra", "Sudarshan", "frmSudarshan", 0},
    {"Karakas, Avasthas & Navtara", "Karakas", "frmKaraka", 0},
    {"Planetary Conjunctions", "Conjunct", "frmConj", 0},
    {"Shani Saade Saati", "SaadeSati", "frmSadeSati", 0},
    {"Shad Bala", "ShadBala", "frmShadbala", 0},
    {"KP Longitudes", "KP Longs", "frmKP1", 0},
    {"KP Significations", "KP Sigs-1", "frmKP2", 0},
    {"KP Significations contd...", "KP Sigs-2", "frmKP3", 0},
    {"KP Kundlis", "KP Kundlis", "frmKP4", 0},
    {"Jaimini Lagnas", "JM Lagna", "frmJaimini1", 0},
    {"Jaimini Kundlis", "JM Kundlis", "frmJaimini2", 0},
    {"Jaimini Sphutas Etc.", "JM Sphutas", "frmJaimini3", 0},
    {"Vimshottari Dasha", "Vimshottari", "frmVimsot", 0},
    {"Vimshottari-Pratyantara", "Pratyantar", "frmPratyan", 0},
    {"Tribhagi Dasha", "Tribhagi", "frmTribhagi", 0},
    {"Yogini & ShatTrimsha Dasha", "Yogini", "frmYogini", 0},
    {"Yogas & Results", "Yogas", "frmPrediYogas", 0},
    {"Planetary Conjunction Results", "ConjRes", "frmConjPredi", 0},
    {"General Predictions", "Predictions", "frmForText", 0},
    {"Birth Nakshatra Result", "Nakshatra", "frmNakshatra", 0},
    {"Result for Placement of Planets", "GrahaFala", "frmGrahaFala", 0},
    {"Prediction on Houses", "BhavaFala", "frmBhavaFal", 0},
}};
constexpr int kExtendedTopics = 3;

inline constexpr std::array<Row, 9> kVarshaphala{{
    {"Varshaphala Charts", "Charts", "frmVarFront", 0},
    {"Varshaphala Dashas", "Dashas", "frmVarshaDasha", 0},
    {"Planet Balas", "Bala", "frmVarBalas", 0},
    {"Harsha Bala, Upagraha, Etc.", "Harsha", "frmVarChart2", 0},
    {"Tripataka Chakra", "Tripataka", "frmVarTripat", 0},
    {"Varshaphala Sahamas", "Sahams", "frmVarSaham", 0},
    {"Varshaphala Predictions", "DashaPredi", "frmVarshaText", 0},
    {"Chart Predictions", "ChartPredi", "frmVarChartTxt", 0},
    {"Planet Predictions", "PlanetPred", "frmVarPlHText", 0},
}};

inline constexpr std::array<Row, 4> kMarriage{{
    {"General Details", "Details", "frmMarFront", 0},
    {"Planetary Positions & Lagna Kundali", "Lagna", "frmMarCover", 0},
    {"Guna/Dosh Score Table", "Guna", "frmMarScore", 0},
    {"Match Score Analysis", "Analysis", "frmMarText", 0},
}};

inline constexpr std::array<Row, 2> kMuhurtha{{
    {"Cover Page", "MainPage", "frmMuhuCover", 0},
    {"Muhurtha Analysis", "Analysis", "frmMuhuText", 0},
}};

// The pages this program has, as the page registry declares them at start.
QSet<QString> &builtPages()
{
    static QSet<QString> pages;
    return pages;
}

template <size_t N> QList<TopicEntry> build(const std::array<Row, N> &rows, size_t count, bool builtOnly)
{
    QList<TopicEntry> out;
    for (size_t i = 0; i < count; ++i) {
        const Row &r = rows[i];
        const QString page = QString::fromLatin1(r.page);
        if (builtOnly && !PageIsBuilt(page))
            continue;
        out.append({QString::fromLatin1(r.caption), QString::fromLatin1(r.shortName), page, r.arg, static_cast<int>(i)});
    }
    return out;
}

inline constexpr std::array<const char *, 31> kHoroscopeMenu{{
    "1. General Details", "2. Planetary Positions && Lagna Kundli", "3. Sodash Varga -1", "4. Sodash Varga-2",
    "5. Sodash Varga-3", "6. Sodash Varga-3", "7. Bhav Table && Chakra", "8. Upagrahas && Minor Planets",
    "9. Bhinna Ashtak Varga -1", "10. Bhinna Ashtak Varga -1", "11. Ashtak Varga", "12. Maitri Chakra",
    "13. Sudarshan Chakra", "14. Planetary Karakas", "15. Planetary Conjunctions", "16. Shani SadeSaati",
    "17. Shadbala", "18. KP Longitudes", "19. KP Significators", "20. KP Significators Contd...", "21. KP Kundlis",
    "22. Jaimini Lagnas", "23. Jaimini Kundlis", "24. Jaimini Sohutas", "25. Vimshottari Dasha",
    "26. Pratyantara Dasha", "27. Tribhagi Dasha", "28. Yogini/Shat Trimsha Dasha", "29. Yogas && Their Results",
    "30. Results For Conjunctions", "31. General Predictions",
}};
inline constexpr std::array<const char *, 8> kVarshaphalaMenu{{
    "1. Varsha Phala Charts", "2. Varsha Phala Predictions", "3. Planet Balas", "4. Harsha Bala, Upagraha Etc.",
    "5. Varshaphala Sahams", "6. Varshaphala Predictions", "7. Varshaphala Dasha Predictions",
    "8. Varshaphala Planet Predictions",
}};
inline constexpr std::array<const char *, 4> kMarriageMenu{{
    "1. General Details", "2. Planetary Positions && Lagna Kundli", "3. Guna/Dosh Table", "4. Match Score Analysis",
}};
} // namespace

void DeclarePageBuilt(const QString &page) { builtPages().insert(page); }

bool PageIsBuilt(const QString &page) { return builtPages().contains(page); }

QList<TopicEntry> TopicsForMode(int progMode, bool extended)
{
    switch (progMode) {
    case 1: return build(kHoroscope, kHoroscope.size() - (extended ? 0 : kExtendedTopics), true);
    case 2: return build(kMarriage, kMarriage.size(), true);
    case 3: return build(kMuhurtha, kMuhurtha.size(), false);
    case 4: return build(kVarshaphala, kVarshaphala.size(), true);
    default: return {};
    }
}

QStringList NavigateMenuCaptions(int progMode)
{
    QStringList out;
    const auto add = [&out](const auto &rows) {
        for (const char *c : rows)
            out << QString::fromLatin1(c);
    };
    if (progMode == 1)
        add(kHoroscopeMenu);
    else if (progMode == 4)
        add(kVarshaphalaMenu);
    else if (progMode == 2)
        add(kMarriageMenu);
    return out;
}
