// SPDX-License-Identifier: AGPL-3.0-or-later
// The topic lists: built pages only, in the order of the full lists, numbered by their place there.
#include "output/TopicList.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(TopicList, HoroscopeTopicsKeepTheirPlaceInTheFullList)
{
    const QList<TopicEntry> topics = TopicsForMode(1, false);
    ASSERT_FALSE(topics.isEmpty());
    int previous = -1;
    for (const TopicEntry &t : topics) {
        EXPECT_TRUE(PageIsBuilt(t.Page)) << t.Page.toStdString();
        EXPECT_GT(t.Number, previous) << "order of the full list";
        previous = t.Number;
    }
    EXPECT_EQ(topics.first().Caption, "General Details");
    EXPECT_EQ(topics.first().Number, 1);
    // The four Shodash topics are one page with four contents.
    QList<int> args;
    for (const TopicEntry &t : topics)
        if (t.Page == "frmSodash")
            args << t.PageArg;
    EXPECT_EQ(args, QList<int>({1, 2, 3, 4}));
    const auto third = std::find_if(topics.begin(), topics.end(), [](const TopicEntry &t) { return t.PageArg == 3; });
    ASSERT_NE(third, topics.end());
    EXPECT_EQ(third->Caption.toStdString(), "Shodash Kundlis-3");
    EXPECT_EQ(third->Number, 5);
}

TEST(TopicList, ExtendedLanguagesAddOnlyTheirOwnTopics)
{
    const QList<TopicEntry> plain = TopicsForMode(1, false);
    const QList<TopicEntry> extended = TopicsForMode(1, true);
    ASSERT_GE(extended.size(), plain.size());
    for (int i = 0; i < plain.size(); ++i)
        EXPECT_EQ(extended[i].Caption, plain[i].Caption);
    for (int i = static_cast<int>(plain.size()); i < extended.size(); ++i)
        EXPECT_GE(extended[i].Number, 32) << "only the last three topics depend on the language";
}

TEST(TopicList, MuhurthaHasItsTwoEntriesAndTheMenusTheirFixedItems)
{
    const QList<TopicEntry> m = TopicsForMode(3, false);
    ASSERT_EQ(m.size(), 2);
    EXPECT_EQ(m[0].ShortName, "MainPage");
    EXPECT_EQ(m[1].Caption, "Muhurtha Analysis");
    EXPECT_EQ(NavigateMenuCaptions(1).size(), 31);
    EXPECT_EQ(NavigateMenuCaptions(4).size(), 8);
    EXPECT_EQ(NavigateMenuCaptions(2).size(), 4);
    EXPECT_TRUE(NavigateMenuCaptions(3).isEmpty());
    EXPECT_TRUE(TopicsForMode(7, false).isEmpty());
}
