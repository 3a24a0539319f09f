// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/PrintTree.h"

#include <array>

namespace {
struct Node
{
    const char *key, *caption, *parent;
    bool extendedOnly;
};

// The Horoscope tree, parents before children. The KP group has no key of its own.
inline constexpr std::array<Node, 41> kHoroscopeTree{{
    {"Main", "Topic List", "", false},
    {"FrontPage", "Front Page Details", "Main", false},
    {"Kundlis", "Kundlis", "Main", false},
    {"Janma", "Janma Kundli & Planetary Positions Chart", "Kundlis", false},
    {"Page2", "Lagna, Hora, Drekkana & Chaturtamsha Kundlis", "Kundlis", false},
    {"Page3", "Saptamsh, Navamsh, Dashamsh & Dwadashamsh Kundlis", "Kundlis", false},
    {"Page4", "Shodashamsh, Vimshamsh, Chaturvimshamsh & Saptvimshamsh Kundlis", "Kundlis", false},
    {"Page5", "Trimshamsh, Khavedamsh, Akshvedamsh & Shastiamsh Kundlis", "Kundlis", false},
    {"Dashas", "Planetary Dashas", "Main", false},
    {"Vimsot", "Vimshottari Dasha", "Dashas", false},
    {"Pratyantar", "Vimshottari Pratyantara Dasha", "Dashas", false},
    {"Tribhagi", "Tribhagi Dasha", "Dashas", false},
    {"Yogini", "Yogini & Shat-Trimsha Dashas", "Dashas", false},
    {"Charts", "Other Charts", "Main", false},
    {"Upagraha", "Upagraha Position Table", "Charts", false},
    {"Sudarshan", "Sudarshan Chakra", "Charts", false},
    {"Bhav", "Bhav Table & Bhav Chalit Chakra", "Charts", false},
    {"Conjunctions", "Planetary Conjunctions & Parashari Aspects", "Charts", false},
    {"Maitri", "Planets Friendship(Maitri) Chart", "Charts", false},
    {"Bhinna1", "Bhinna Ashtak Varga-1", "Charts", false},
    {"Bhinna2", "Bhinna Ashtak Varga-2", "Charts", false},
    {"Ashtak", "Ashtak Varga Charts", "Charts", false},
    {"Karakas", "Planetary Karakas", "Charts", false},
    {"Shani", "Shani Saade Saati", "Charts", false},
    {"Shadbala", "Shadbala", "Charts", false},
    {"", "Krishnamurthy System", "Main", false},
    {"KPLONG", "Krishnamurthy Longitudes", "Krishnamurthy System", false},
    {"KPSIGN1", "Krishnamurthy Significators", "Krishnamurthy System", false},
    {"KPSIGN2", "Krishnamurthy Significators Contd..", "Krishnamurthy System", false},
    {"KPKUN", "Krishnamurthy Kundlis", "Krishnamurthy System", false},
    {"Jaimini", "Jaimini System", "Main", false},
    {"JMLAGNA", "Jaimini Lagnas", "Jaimini", false},
    {"JMKUNDLIS", "Jaimini Kundlis", "Jaimini", false},
    {"JMSPHUTAS", "Jaimini Sphutas", "Jaimini", false},
    {"Predictions", "Predictions", "Main", false},
    {"Conjunct", "Results For Planetary Conjunctions", "Predictions", false},
    {"Gen", "Topic-Wise Predictions", "Predictions", false},
    {"Yoga", "Results For Planetary Yogas in The Chart", "Predictions", false},
    {"Grahafala", "Result For Position of Planets in Signs", "Predictions", true},
    {"Bhavafala", "Results For House Positions", "Predictions", true},
    {"Nakshatrafala", "Results For Nakshatra", "Predictions", true},
}};

inline constexpr std::array<Node, 5> kMarriageTree{{
    {"Main", "Topic List", "", false},
    {"FrontPage", "Front Page Details", "Main", false},
    {"Kundli", "Boy & Girl Kundlis & Planetary Data", "Main", false},
    {"KootTable", "Koot Milan Score & Manglik Consideration", "Main", false},
    {"MatchPredi", "Match Analysis", "Main", false},
}};

inline constexpr std::array<Node, 10> kVarshaphalaTree{{
    {"Main", "Topic List", "", false},
    {"FrontPage", "Varsha Kundali & Planetary Data", "Main", false},
    {"VarDasha", "Varshaphala Dashas", "Main", false},
    {"VarBala", "Pancha & Dwadashvargiya Balas", "Main", false},
    {"VarHarsh", "Harshabala, Upgrahas, etc.", "Main", false},
    {"VarSaham", "Varshaphala Sahams", "Main", false},
    {"Tripat", "Tripataka Chakra.", "Main", false},
    {"VarPredi", "Varsha Phala Predictions", "Main", false},
    {"VarChart", "Varshaphala Chart Predictions", "Main", false},
    {"VarPlHouse", "Results for Planetary Positions", "Main", false},
}};

inline constexpr std::array<Node, 3> kMuhurthaTree{{
    {"Main", "Topic List", "", false},
    {"FrontPage", "Muhurtha Cover Page", "Main", false},
    {"MuhuText", "Muhurtha Analysis", "Main", false},
}};

struct Step
{
    const char *key, *page;
    int makePage;
    StepKind kind;
    bool extendedOnly;
};

// The Horoscope walk: front page, charts, tables, dashas, then the text pages.
inline constexpr std::array<Step, 34> kHoroscopeWalk{{
    {"FrontPage", "frmPage1", 0, StepKind::Form, false},
    {"Janma", "frmPage2", 0, StepKind::Form, false},
    {"Page2", "frmSodash", 1, StepKind::Form, false},
    {"Page3", "frmSodash", 2, StepKind::Form, false},
    {"Page4", "frmSodash", 3, StepKind::Form, false},
    {"Page5", "frmSodash", 4, StepKind::Form, false},
    {"Bhav", "frmBhav", 0, StepKind::Form, false},
    {"Upagraha", "frmUpagraha", 0, StepKind::Form, false},
    {"Bhinna1", "frmBhinnaAshtak", 0, StepKind::Form, false},
    {"Bhinna2", "frmBhinnaAshtak2", 0, StepKind::Form, false},
    {"Ashtak", "frmAshtak", 0, StepKind::Form, false},
    {"Maitri", "frmMaitri", 0, StepKind::Form, false},
    {"Sudarshan", "frmSudarshan", 0, StepKind::Form, false},
    {"Karakas", "frmKaraka", 0, StepKind::Form, false},
    {"Conjunctions", "frmConj", 0, StepKind::Form, false},
    {"Shani", "frmSadeSati", 0, StepKind::Form, false},
    {"Shadbala", "frmShadbala", 0, StepKind::Form, false},
    {"KPLONG", "frmKP1", 0, StepKind::Form, false},
    {"KPSIGN1", "frmKP2", 0, StepKind::Form, false},
    {"KPSIGN2", "frmKP3", 0, StepKind::Form, false},
    {"KPKUN", "frmKP4", 0, StepKind::Form, false},
    {"JMLAGNA", "frmJaimini1", 0, StepKind::Form, false},
    {"JMKUNDLIS", "frmJaimini2", 0, StepKind::Form, false},
    {"JMSPHUTAS", "frmJaimini3", 0, StepKind::Form, false},
    {"Vimsot", "frmVimsot", 0, StepKind::Form, false},
    {"Pratyantar", "frmPratyan", 0, StepKind::Form, false},
    {"Tribhagi", "frmTribhagi", 0, StepKind::Form, false},
    {"Yogini", "frmYogini", 0, StepKind::Form, false},
    {"Yoga", "frmPrediYogas", 0, StepKind::Text, false},
    {"Conjunct", "frmConjPredi", 0, StepKind::Text, false},
    {"Gen", "frmForText", 0, StepKind::Text, false},
    {"Grahafala", "frmGrahaFala", 0, StepKind::Text, true},
    {"Bhavafala", "frmBhavaFal", 0, StepKind::Text, true},
    {"Nakshatrafala", "frmNakshatra", 0, StepKind::Text, true},
}};

inline constexpr std::array<Step, 4> kMarriageWalk{{
    {"FrontPage", "frmMarFront", 0, StepKind::Form, false},
    {"Kundli", "frmMarCover", 0, StepKind::Form, false},
    {"KootTable", "frmMarScore", 0, StepKind::Form, false},
    {"MatchPredi", "frmMarText", 0, StepKind::Text, false},
}};

inline constexpr std::array<Step, 2> kMuhurthaWalk{{
    {"FrontPage", "frmMuhuCover", 0, StepKind::Form, false},
    {"MuhuText", "frmMuhuText", 0, StepKind::Text, false},
}};

inline constexpr std::array<Step, 9> kVarshaphalaWalk{{
    {"FrontPage", "frmVarFront", 0, StepKind::Form, false},
    {"VarDasha", "frmVarshaDasha", 0, StepKind::Form, false},
    {"VarBala", "frmVarBalas", 0, StepKind::Form, false},
    {"VarHarsh", "frmVarChart2", 0, StepKind::Form, false},
    {"VarSaham", "frmVarSaham", 0, StepKind::Form, false},
    {"Tripat", "frmVarTripat", 0, StepKind::Form, false},
    {"VarPredi", "frmVarshaText", 0, StepKind::Text, false},
    {"VarChart", "frmVarChartTxt", 0, StepKind::Text, false},
    {"VarPlHouse", "frmVarPlHText", 0, StepKind::Text, false},
}};

template <size_t N> QList<PrintNode> nodes(const std::array<Node, N> &rows, bool extended)
{
    QList<PrintNode> out;
    for (const Node &n : rows) {
        if (!n.caption || (n.extendedOnly && !extended))
            continue;
        PrintNode p{QString::fromLatin1(n.key), QString::fromLatin1(n.caption), QString::fromLatin1(n.parent), QString()};
        // A parent is named by its key, or, for the group without one, by its caption.
        for (const Node &q : rows)
            if (q.caption && (QLatin1String(q.key) == p.Parent || QLatin1String(q.caption) == p.Parent) && !p.Parent.isEmpty())
                p.ParentCaption = QString::fromLatin1(q.caption);
        out.append(p);
    }
    return out;
}

template <size_t N> QList<PrintStep> steps(const std::array<Step, N> &rows, bool extended)
{
    QList<PrintStep> out;
    for (const Step &s : rows)
        if (s.key && (!s.extendedOnly || extended))
            out.append({QString::fromLatin1(s.key), QString::fromLatin1(s.page), s.makePage, s.kind});
    return out;
}
} // namespace

QList<PrintNode> PrintTreeForMode(int progMode, bool extended)
{
    switch (progMode) {
    case 1: return nodes(kHoroscopeTree, extended);
    case 2: return nodes(kMarriageTree, extended);
    case 3: return nodes(kMuhurthaTree, extended);
    case 4: return nodes(kVarshaphalaTree, extended);
    default: return {};
    }
}

QList<PrintStep> PrintWalkForMode(int progMode, bool extended)
{
    switch (progMode) {
    case 1: return steps(kHoroscopeWalk, extended);
    case 2: return steps(kMarriageWalk, extended);
    case 3: return steps(kMuhurthaWalk, extended);
    case 4: return steps(kVarshaphalaWalk, extended);
    default: return {};
    }
}

QList<PrintStep> SelectedSteps(int progMode, bool extended, const QSet<QString> &ticked)
{
    QList<PrintStep> out;
    for (const PrintStep &s : PrintWalkForMode(progMode, extended))
        if (ticked.contains(s.Key))
            out.append(s);
    return out;
}

QStringList PrintKeys(int progMode, bool extended)
{
    QStringList out;
    for (const PrintNode &n : PrintTreeForMode(progMode, extended))
        if (!n.Key.isEmpty())
            out << n.Key;
    return out;
}

QString DefaultPdfName(int progMode, const QString &name, const QString &boy, const QString &girl)
{
    if (progMode == 1)
        return name + QStringLiteral("-Horoscope.PDF");
    if (progMode == 4)
        return name + QStringLiteral("-Varshaphala.PDF");
    return boy + QStringLiteral(" & ") + girl + QStringLiteral("-Match.PDF");
}
