// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A chart placed by hand for the Jaimini tests. A placement reads "Ju5" (Jupiter in the middle of
// Leo) or "Mo4:1" (the Moon 1 degree into Cancer); "As" is the Lagna. Each question goes to a fresh
// chart of the placements, since a chart keeps the signs it has read.

#include "jaimini/clsJaimini.h"
#include "sky/clsPlanets.h"
#include "support/TestSupport.h"

#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

#include <array>
#include <memory>

class JaiminiChart : public ::testing::Test
{
protected:
    // The Lagna and the nine planets spread so that no sign holds two of them.
    static constexpr const char *kSpread = "As1:15 Su2:3 Me3:6 Ve4:9 Ma7:12 Ju6:18 Sa9:21 Mo10:24 Ra11:11 Ke5:11";

    void SetUp() override
    {
        for (int n = 0; n <= 25; ++n)
            m_longi[static_cast<size_t>(n)] = 0;
        place(QString::fromLatin1(kSpread));
    }
    void place(const QString &moves)
    {
        static const QStringList names{"As", "Su", "Me", "Ve", "Ma", "Ju", "Sa", "Mo", "Ra", "Ke"};
        static const QRegularExpression one(QStringLiteral("^(\\w\\w)(\\d+)(?::([\\d.]+))?$"));
        for (const QString &m : moves.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const auto r = one.match(m);
            ASSERT_TRUE(r.hasMatch()) << m.toStdString();
            const int p = static_cast<int>(names.indexOf(r.captured(1)));
            ASSERT_GE(p, 0) << m.toStdString();
            const double deg = r.captured(3).isEmpty() ? 15.0 : r.captured(3).toDouble();
            m_longi[static_cast<size_t>(p)] = (r.captured(2).toInt() - 1) * 30 + deg;
        }
    }
    void setLongi(int p, double l) { m_longi[static_cast<size_t>(p)] = l; }
    // The Jaimini reading of the placements as they stand, for a man (sex 1) or a woman (2).
    clsJaimini &jm(int sex = 1)
    {
        m_chart = std::make_unique<clsPlanets>();
        for (int n = 0; n <= 25; ++n)
            m_chart->setPlanetLongi(n, m_longi[static_cast<size_t>(n)]);
        m_chart->Person().setSex(sex);
        m_chart->FillVargas();
        m_jm = std::make_unique<clsJaimini>(*m_chart);
        return *m_jm;
    }

    ScopedSettingsStore store;

private:
    std::array<double, 26> m_longi{};
    std::unique_ptr<clsPlanets> m_chart;
    std::unique_ptr<clsJaimini> m_jm;
};
