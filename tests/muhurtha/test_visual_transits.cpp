// SPDX-License-Identifier: AGPL-3.0-or-later
// The moving sky's clock and geometry.
#include "muhurtha/VisualTransits.h"

#include <gtest/gtest.h>

#include <cmath>

using VisualTransits::Unit;

namespace {
QDateTime at(int y, int m, int d, int h = 10, int min = 30) { return QDateTime(QDate(y, m, d), QTime(h, min), Qt::UTC); }
} // namespace

TEST(VisualTransitsClock, EachUnitStepsByItsOwnMeasure)
{
    EXPECT_EQ(VisualTransits::Step(at(2024, 1, 1), Unit::Minutes, 45), at(2024, 1, 1, 11, 15));
    EXPECT_EQ(VisualTransits::Step(at(2024, 12, 31, 23, 0), Unit::Hours, 2), at(2025, 1, 1, 1, 0));
    EXPECT_EQ(VisualTransits::Step(at(2024, 2, 28), Unit::Days, 2), at(2024, 3, 1));
    EXPECT_EQ(VisualTransits::Step(at(2024, 2, 29), Unit::Years, 1), at(2025, 2, 28));
    // A century tick with a factor of 1 is a hundred years.
    EXPECT_EQ(VisualTransits::Step(at(1950, 6, 15), Unit::Centuries, 1), at(2050, 6, 15));
    EXPECT_EQ(VisualTransits::Step(at(1950, 6, 15), Unit::Centuries, 3), at(2250, 6, 15));
}

TEST(VisualTransitsClock, AMonthFromTheThirtyFirstLandsOnTheLastDay)
{
    EXPECT_EQ(VisualTransits::Step(at(2023, 1, 31), Unit::Months, 1), at(2023, 2, 28));
    EXPECT_EQ(VisualTransits::Step(at(2024, 1, 31), Unit::Months, 1), at(2024, 2, 29));
    EXPECT_EQ(VisualTransits::Step(at(2024, 3, 31), Unit::Months, 1), at(2024, 4, 30));
    EXPECT_EQ(VisualTransits::Step(at(2024, 10, 31), Unit::Months, 3), at(2025, 1, 31));
}

TEST(VisualTransitsGeometry, OrbitsAndPlaces)
{
    EXPECT_EQ(VisualTransits::OrbitRadius(1), 2480);
    EXPECT_EQ(VisualTransits::OrbitRadius(2), 2330);
    EXPECT_EQ(VisualTransits::OrbitRadius(12), 830);
    EXPECT_EQ(VisualTransits::OrbitRadius(0), 680);
    // 0 degrees at the top, 90 to the right: clockwise.
    const QPointF top = VisualTransits::PlaceBody(1000, 0);
    EXPECT_DOUBLE_EQ(top.x(), 3085);
    EXPECT_DOUBLE_EQ(top.y(), 1980);
    const QPointF right = VisualTransits::PlaceBody(1000, 90);
    EXPECT_NEAR(right.x(), 4085, 0.01);
    EXPECT_NEAR(right.y(), 2980, 1.0);
    // With pi as 3.14 a body at 180 degrees stands a little right of the vertical below the centre.
    const QPointF bottom = VisualTransits::PlaceBody(2480, 180);
    EXPECT_GT(bottom.x(), 3085 + 3.9);
    EXPECT_LT(bottom.x(), 3085 + 4.0);
    EXPECT_NEAR(bottom.y(), 2980 + 2480, 0.01);
}
