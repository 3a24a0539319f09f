// SPDX-License-Identifier: AGPL-3.0-or-later
// Every paragraph the three annual text pages ask for is in table VPHALA of the English database:
// a sweep of births over the hemispheres, the seasons and the hours, and of ages over the century,
// collects the keys the pages ask for and names those that are missing.
#include "sky/MessageSink.h"
#include "varsha/VarshaCast.h"
#include "varsha/VarshaText.h"
#include "varsha/clsVarsha.h"
#include "varsha/VarshaCharts.h"

#include <QSet>

#include <algorithm>

namespace {

class QuietSink final : public MessageSink
{
public:
    void warn(const QString &, const QString &) override {}
};

} // namespace

TEST_F(VarshaTest, EveryAnnualParagraphKeyIsInTheDatabase)
{
    QuietSink quiet;
    const ScopedMessageSink keep(&quiet);
    const std::array<clsPerson, 6> births{
        MakePerson(15, 8, 1980, 14, 35, "5.5", 28, 38, "N", 77, 12, "E"),
        MakePerson(3, 2, 1961, 4, 10, "-5", 40, 43, "N", 74, 0, "W"),
        MakePerson(21, 6, 1999, 22, 0, "10", 33, 52, "S", 151, 12, "E"),
        MakePerson(30, 11, 1947, 11, 45, "0", 51, 30, "N", 0, 7, "W"),
        MakePerson(9, 4, 2012, 6, 20, "-3", 23, 33, "S", 46, 38, "W"),
        MakePerson(18, 9, 1935, 17, 5, "3", 0, 19, "N", 32, 35, "E"),
    };
    QSet<QString> asked;
    for (const clsPerson &p : births) {
        const auto birth = cast(p);
        for (int age = 0; age <= 99; age += 3) {
            const AnnualCastResult r = CastAnnualChart(*birth, age);
            ASSERT_TRUE(r.chart);
            const clsVarsha v(*birth, *r.chart, age);
            for (const auto &items : {VarshaPredictItems(v), VarChartTextItems(v), VarPlanetHouseItems(v)})
                for (const VarshaTextItem &item : items)
                    if (item.kind == VarshaTextItem::Paragraph)
                        asked.insert(item.text.toUpper());
        }
    }
    // The sweep reaches every house of every planet and every Muntha house.
    EXPECT_GE(asked.size(), 108 + 108 + 12 + 12);
    QStringList missing;
    for (const QString &key : asked) {
        const QVariant text = GetHeadValue(db, 3, key);
        if (!text.isValid() || text.toString().trimmed().isEmpty())
            missing << key;
    }
    std::sort(missing.begin(), missing.end());
    EXPECT_TRUE(missing.isEmpty()) << missing.size() << " of " << asked.size() << " keys missing from VPHALA: "
                                   << missing.join(QStringLiteral(", ")).toStdString();
}
