// SPDX-License-Identifier: AGPL-3.0-or-later
// Every text the match can ask for is in the English database: a MarMatch paragraph for each tag
// that some couple produces (and none for a tag no couple can produce), the Manglik text of each
// code and the verdict of each band, each paragraph its own.
#include "MarriageCharts.h"

#include "sky/AppSettings.h"

#include <QSqlQuery>

#include <map>
#include <set>

namespace {

class MatchTexts : public MarriageCharts
{
protected:
    // Head (upper case) to text of every row of table, or of one category of CNVT.
    std::map<QString, QString> rows(const QString &sql)
    {
        std::map<QString, QString> out;
        QSqlQuery q(db);
        EXPECT_TRUE(q.exec(sql)) << sql.toStdString();
        while (q.next())
            out.emplace(q.value(0).toString().toUpper(), q.value(1).toString());
        return out;
    }
    // Fails for keys without a text, and for texts that repeat another key's.
    static void expectOwnTexts(const std::set<QString> &keys, const std::map<QString, QString> &texts)
    {
        QStringList missing;
        std::map<QString, QString> byText;
        for (const QString &k : keys) {
            const auto it = texts.find(k.toUpper());
            if (it == texts.end() || it->second.trimmed().isEmpty()) {
                missing << k;
                continue;
            }
            const auto [other, fresh] = byText.emplace(it->second.simplified(), k);
            EXPECT_TRUE(fresh) << k.toStdString() << " repeats the text of " << other->second.toStdString();
        }
        EXPECT_TRUE(missing.isEmpty()) << missing.size() << " without a text: " << missing.join(QLatin1Char(' ')).toStdString();
    }
};

TEST_F(MatchTexts, EveryTagACoupleCanAskForHasItsOwnParagraph)
{
    std::set<QString> tags;
    for (int mode : {1, 2}) {
        AppSettings::overrideForRun(QStringLiteral("Settings"), QStringLiteral("CalcVarMod"), mode);
        for (int b = 1; b <= 27; ++b)
            for (int g = 1; g <= 27; ++g) {
                moonInNakshatra(boy, b);
                moonInNakshatra(girl, g);
                const clsMarr m(&boy, &girl);
                for (int k = 0; k < clsMarr::kKutaCount; ++k)
                    tags.insert(m.MatchTag(k));
            }
    }
    // Varna 4 x 4, Vashya 5 x 5, Tara 9 (the two counts go together), Yoni 14 x 14, Graha 7 x 7,
    // Gana 3 x 3, Rasi 12 x 12, Nadi 3 x 3.
    ASSERT_EQ(tags.size(), 16u + 25 + 9 + 196 + 49 + 9 + 144 + 9);
    const auto texts = rows(QStringLiteral("SELECT Head, Val FROM MarMatch"));
    expectOwnTexts(tags, texts);

    QStringList extra;
    for (const auto &[head, text] : texts)
        if (!tags.count(head))
            extra << head;
    EXPECT_TRUE(extra.isEmpty()) << "no couple asks for " << extra.join(QLatin1Char(' ')).toStdString();
}

TEST_F(MatchTexts, EveryManglikCodeAndVerdictHasItsText)
{
    std::set<QString> codes;
    for (QChar b : {QLatin1Char('F'), QLatin1Char('T'), QLatin1Char('C')})
        for (QChar g : {QLatin1Char('F'), QLatin1Char('T'), QLatin1Char('C')})
            codes.insert(QStringLiteral("B") + b + QStringLiteral("G") + g);
    expectOwnTexts(codes, rows(QStringLiteral("SELECT Head, Val FROM CNVT WHERE Category = 'MANGLIK' COLLATE NOCASE")));

    std::set<QString> verdicts;
    for (int half = 0; half <= 72; ++half)
        verdicts.insert(clsMarr::VerdictKey(half / 2.0));
    ASSERT_EQ(verdicts.size(), 7u);
    expectOwnTexts(verdicts, rows(QStringLiteral("SELECT Head, Val FROM CNVT WHERE Category = 'Marriage' COLLATE NOCASE")));
}

TEST_F(MatchTexts, TheDetailsAndCancellationsAreWords)
{
    std::set<QString> keys{QStringLiteral("BoyMangCancel"), QStringLiteral("GirlMangCancel")};
    for (int f = 0; f < 6; ++f)
        keys.insert(clsMarr::CancelKey(f));
    for (int t = 1; t <= 9; ++t)
        keys.insert(QString::number(t) + QStringLiteral("Tara"));
    for (int k = 0; k < clsMarr::kKutaCount; ++k)
        keys.insert(clsMarr::KutaKey(k));
    expectOwnTexts(keys, rows(QStringLiteral("SELECT Head, Val FROM CNVT WHERE Category = 'Marriage' COLLATE NOCASE")));
}

} // namespace
