// SPDX-License-Identifier: AGPL-3.0-or-later
// The Maitri, Avastha and Sudarshan pages: what they show is what the tables hold, the chakra
// reaches paper and PDF through the chart walkers, and the pages print without a missing word.
#include "chartdraw/ui/SudarshanChakra.h"
#include "output/PrintTree.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "output_ui/DelhiSession.h"
#include "strength/Avasthas.h"
#include "strength/Maitri.h"
#include "strength/pages/frmKaraka.h"
#include "strength/pages/frmMaitri.h"
#include "strength/pages/frmSudarshan.h"
#include "support/RecordingSink.h"

#include <QApplication>
#include <QDir>

namespace {

class RelationPages : public DelhiSession
{
protected:
    clsPlanets &c() { return *Session().CurPlanets; }
    // Moves planets by hand and refreshes what the chart keeps of its positions.
    void place(std::initializer_list<std::pair<int, double>> at)
    {
        for (const auto &[planet, longitude] : at)
            c().setPlanetLongi(planet, longitude);
        c().FillVargas();
        c().CalcPanchang();
    }
    QString word(const char *category, const QVariant &head) { return c().GetHeadValue(1, head, category).toString(); }
};

} // namespace

TEST_F(RelationPages, MaitriGridsShowTheTablesWordsWithNothingOnTheDiagonal)
{
    RecordingSink sink;
    const ScopedMessageSink scoped(&sink);
    const auto page = load<frmMaitri>();
    const Maitri m(c());
    EXPECT_EQ(page->lblTitle->text(), "Planet Maitri Chakra");
    for (int a = 1; a <= 9; ++a)
        for (int b = 1; b <= 9; ++b) {
            SCOPED_TRACE(testing::Message() << a << " sees " << b);
            if (a == b) {
                for (auto g : {frmMaitri::Permanent, frmMaitri::Temporal, frmMaitri::Panchadha})
                    EXPECT_EQ(page->cell(g, a, b), "---");
                continue;
            }
            EXPECT_EQ(page->cell(frmMaitri::Panchadha, a, b), word("Maitri", Maitri::FiveFoldHead(*m.FiveFold(a, b))));
            EXPECT_EQ(page->cell(frmMaitri::Temporal, a, b), *m.Temporal(a, b) > 0 ? "Friend" : "Enemy");
        }
    // Jupiter and Rahu regard each other as friends by nature on this page.
    EXPECT_EQ(page->cell(frmMaitri::Permanent, 5, 8), "Friend");
    EXPECT_EQ(page->cell(frmMaitri::Permanent, 8, 5), "Friend");
    EXPECT_EQ(page->cell(frmMaitri::Permanent, 1, 3), "Enemy");
    EXPECT_EQ(sink.reports, QStringList());
}

TEST_F(RelationPages, KarakaListsMarkTiesAndTheStatesComeFromTheirFamilies)
{
    // Degrees: Sun 12, Mercury 17, Venus 20, Mars 10, Jupiter 10, Saturn 6, Moon 15, Rahu 30 - 15.
    place({{0, 95}, {1, 12}, {2, 167}, {3, 200}, {4, 100}, {5, 250}, {6, 306}, {7, 45}, {8, 75}, {9, 255}});
    const auto page = load<frmKaraka>();
    EXPECT_EQ(page->lblTitle->text(), "Planetary Avasthas");
    const QStringList ashta{page->karaka(frmKaraka::Ashta, 0), page->karaka(frmKaraka::Ashta, 1), page->karaka(frmKaraka::Ashta, 2),
                            page->karaka(frmKaraka::Ashta, 3), page->karaka(frmKaraka::Ashta, 4), page->karaka(frmKaraka::Ashta, 5),
                            page->karaka(frmKaraka::Ashta, 6), page->karaka(frmKaraka::Ashta, 7)};
    // The Moon and Rahu tie at 15, Mars and Jupiter at 10: the later of each pair shows none.
    EXPECT_EQ(ashta, (QStringList{"Venus", "Mercury", "Moon", "---", "Sun", "Mars", "---", "Saturn"}));
    EXPECT_EQ(page->karaka(frmKaraka::Sapta, 2), "Moon");
    EXPECT_EQ(page->karaka(frmKaraka::Sapta, 5), "---");
    EXPECT_EQ(page->karaka(frmKaraka::Sthira, 1), "Mercury");
    EXPECT_EQ(page->karaka(frmKaraka::Sthira, 7), QString());

    const int g = Avasthas::Ghatikas(c());
    for (int p = 1; p <= 9; ++p)
        for (int f = 0; f < 6; ++f) {
            const int family = Avasthas::kFamilies[static_cast<size_t>(f)];
            const int s = Avasthas::State(c(), family, p, g);
            EXPECT_EQ(page->state(p, f), s ? word(qPrintable("Ava" + QString::number(family)), s) : QString("---")) << p << " " << family;
        }
    EXPECT_EQ(page->state(1, 0), "Jagrat") << "the Sun exalted in Aries is awake";
    // The Moon in Taurus 15 stands in Rohini (4): the first row starts there.
    EXPECT_EQ(page->taraStars(0), "Rohini Hasta Shravana");
}

TEST_F(RelationPages, SudarshanChakraIsAChartTheWalkersDraw)
{
    const auto page = load<frmSudarshan>();
    ASSERT_NE(page->chkSudarshan, nullptr);
    EXPECT_EQ(page->lblTitle->text(), "Sudarshan Chakra");
    // The walkers of paper and PDF draw every chart they find; the chakra is one.
    EXPECT_NE(qobject_cast<Kundali *>(page->chkSudarshan), nullptr);
    // The Moon's name opens the middle ring, which counts from its sign.
    const SudarshanModel &rings = page->chkSudarshan->rings();
    EXPECT_EQ(rings.sign(1, 0), c().PlanetSign(7));
    EXPECT_TRUE(rings.text(1, 0).split(' ').contains(c().PlanetName(7)));
}

TEST_F(RelationPages, ThePagesGoToPdfInTheWalkWithoutAMissingWord)
{
    const PdfWalk walk = walkToPdf("relations.PDF", {"Bhav", "Maitri", "Sudarshan", "Karakas"});
    ASSERT_EQ(walk.drawn, 4);
    const QString text = pdfText(walk.file);
    if (text.isEmpty())
        GTEST_SKIP() << "pdftotext is not installed";
    EXPECT_FALSE(text.contains("Item Not Found"));
    int at = 0;
    for (const char *heading : {"Bhava Table & Chalit Chakra", "Planet Maitri Chakra", "Atishatru", "Sudarshan Chakra",
                                "Outer ring: from the Lagna", "Planetary Avasthas", "Nava Tara"}) {
        const int found = static_cast<int>(text.indexOf(heading, at));
        EXPECT_GE(found, at) << heading;
        at = qMax(at, found);
    }
}

TEST_F(RelationPages, Screenshots)
{
    const QString out = qEnvironmentVariable("ORBANTA_SCREENSHOTS");
    if (out.isEmpty())
        GTEST_SKIP() << "set ORBANTA_SCREENSHOTS to a folder to write the pictures";
    QDir().mkpath(out);
    // The chart style doesn't change these pages (the chakra is round in every style): one picture each.
    for (const char *name : {"frmMaitri", "frmKaraka", "frmSudarshan"}) {
        std::unique_ptr<TopicPage> page(CreateTopicPage(QString::fromLatin1(name)));
        ASSERT_NE(page, nullptr) << name;
        page->Load();
        page->show();
        QApplication::processEvents();
        page->grab().save(QStringLiteral("%1/page-%2.png").arg(out, QString::fromLatin1(name).mid(3).toLower()));
    }
    // The chakra's page as the PDF has it.
    const QString tool = QStandardPaths::findExecutable("pdftoppm");
    if (tool.isEmpty())
        return;
    const PdfWalk walk = walkToPdf("sudarshan.PDF", {"Sudarshan"});
    ASSERT_EQ(walk.drawn, 1);
    QProcess::execute(tool, {"-r", "70", "-png", "-f", "1", "-l", "1", "-singlefile", walk.file, out + "/pdf-sudarshan"});
}
