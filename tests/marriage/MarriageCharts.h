// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// Two charts whose positions a test sets by hand, reading the shipped English words and score
// files, with a throw-away settings store; core messages are collected and must stay empty.
#include "marriage/clsMarr.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"
#include "sky/MessageSink.h"
#include "text/TextDB.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <array>

class CollectingSink final : public MessageSink
{
public:
    void warn(const QString &title, const QString &text) override { messages << title + QStringLiteral(": ") + text; }
    void fatal(const QString &title, const QString &text) override { messages << title + QStringLiteral(": ") + text; }
    QStringList messages;
};

class MarriageCharts : public ::testing::Test
{
protected:
    static constexpr double kNak = 360.0 / 27;

    void SetUp() override
    {
        setStuffFolder(QStringLiteral(ORBANTA_BINARY_DIR "/STUFF"));
        ASSERT_TRUE(OpenTextDB(QStringLiteral("ENGLISH"), db));
        for (clsPlanets *c : {&boy, &girl}) {
            c->setTextDB(db, QSqlDatabase());
            c->setPerson(MakePerson(15, 8, 1980, 14, 35, QStringLiteral("5.5"), 28, 38, QStringLiteral("N"), 77, 12, QStringLiteral("E")));
            for (int n = 0; n <= 25; ++n)
                c->setPlanetLongi(n, 0);
        }
    }
    void TearDown() override
    {
        if (expectNoMessages) {
            EXPECT_TRUE(sink.messages.isEmpty()) << sink.messages.join(QLatin1Char('\n')).toStdString();
        }
        boy.setTextDB(QSqlDatabase(), QSqlDatabase());
        girl.setTextDB(QSqlDatabase(), QSqlDatabase());
        CloseTextDB(db);
        setStuffFolder(QString());
    }
    // The Moon in the middle of nakshatra k (1..27).
    static void moonInNakshatra(clsPlanets &c, int k) { c.setPlanetLongi(7, (k - 0.5) * kNak); }
    // Lagna, Sun, Mercury, Venus, Mars, Jupiter, Saturn, Moon, Rahu, Ketu in that order.
    static void place(clsPlanets &c, const std::array<double, 10> &longitudes)
    {
        for (int n = 0; n < 10; ++n)
            c.setPlanetLongi(n, longitudes[static_cast<size_t>(n)]);
    }

    ScopedSettingsStore store;
    CollectingSink sink;
    ScopedMessageSink scoped{&sink};
    bool expectNoMessages = true;
    QSqlDatabase db;
    clsPlanets boy, girl;
};
