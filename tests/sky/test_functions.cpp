// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/Functions.h"

#include <gtest/gtest.h>

TEST(Functions, Norm360KeepsItsEdgesAndFoldsBothWays)
{
    EXPECT_DOUBLE_EQ(Norm360(0), 0);
    EXPECT_DOUBLE_EQ(Norm360(360), 360);   // exactly 360 is not folded to 0
    EXPECT_DOUBLE_EQ(Norm360(720), 360);
    EXPECT_DOUBLE_EQ(Norm360(-360), 360);  // a negative multiple ends at 360, not 0
    EXPECT_DOUBLE_EQ(Norm360(-30), 330);
    EXPECT_DOUBLE_EQ(Norm360(725.5), 5.5);
    EXPECT_DOUBLE_EQ(Norm360(-725.5), 354.5);
}

TEST(Functions, Norm30AndNorm27KeepZeroAndTheirTop)
{
    EXPECT_DOUBLE_EQ(Norm30(0), 0);
    EXPECT_DOUBLE_EQ(Norm30(30), 30);
    EXPECT_DOUBLE_EQ(Norm30(61), 1);
    EXPECT_DOUBLE_EQ(Norm30(-0.5), 29.5);
    EXPECT_DOUBLE_EQ(Norm27(27), 27);
    EXPECT_DOUBLE_EQ(Norm27(0), 0);
    EXPECT_DOUBLE_EQ(Norm27(28), 1);
    EXPECT_DOUBLE_EQ(Norm27(-1), 26);
}

TEST(Functions, OneBasedFoldsGiveTheTopForAMultiple)
{
    EXPECT_EQ(Norm12(0), 12);
    EXPECT_EQ(Norm12(12), 12);
    EXPECT_EQ(Norm12(24), 12);
    EXPECT_EQ(Norm12(13), 1);
    EXPECT_EQ(Norm12(-1), 11);
    EXPECT_EQ(Norm12(1 + 11), 12); // the Lagna in Aries, 12th from it
    EXPECT_EQ(Norm9(9), 9);
    EXPECT_EQ(Norm9(0), 9);
    EXPECT_EQ(Norm9(10), 1);
    EXPECT_EQ(Norm9(-2), 7);
    EXPECT_EQ(Mod9(1), 1);
    EXPECT_EQ(Mod9(10), 1);
    EXPECT_EQ(Mod9(19), 1);
    EXPECT_EQ(Mod9(27), 9);
    EXPECT_DOUBLE_EQ(ModOneBased(18, 9), 9);
    EXPECT_DOUBLE_EQ(ModOneBased(0, 9), 9);
    EXPECT_DOUBLE_EQ(ModOneBased(-3, 27), 24);
    EXPECT_DOUBLE_EQ(ModOneBased(28, 27), 1);
}

TEST(Functions, Clock12KeepsFractions)
{
    EXPECT_DOUBLE_EQ(Clock12(0), 12);
    EXPECT_DOUBLE_EQ(Clock12(12), 12);
    EXPECT_DOUBLE_EQ(Clock12(13), 1);
    EXPECT_DOUBLE_EQ(Clock12(13.25), 1.25);
    EXPECT_DOUBLE_EQ(Clock12(12.5), 0.5);
    EXPECT_DOUBLE_EQ(Clock12(-1), 11);
    EXPECT_DOUBLE_EQ(Clock12(1e6), 4); // 1e6 = 83333 * 12 + 4
}

TEST(Functions, Norm7StaysWithinZeroAndSeven)
{
    EXPECT_DOUBLE_EQ(Norm7(7), 7);
    EXPECT_DOUBLE_EQ(Norm7(0), 0);
    EXPECT_DOUBLE_EQ(Norm7(8.5), 1.5);
    EXPECT_DOUBLE_EQ(Norm7(-0.5), 6.5);
}

TEST(Functions, TruncationAndFloorDifferBelowZero)
{
    EXPECT_DOUBLE_EQ(Frac(-1.25), -0.25);
    EXPECT_DOUBLE_EQ(Fix(-1.5), -1);
    EXPECT_DOUBLE_EQ(Int(-1.5), -2);
    EXPECT_EQ(CLng(2.5), 2); // whole-number assignment rounds halves to even
    EXPECT_EQ(CLng(3.5), 4);
    EXPECT_EQ(CLng(-2.5), -2);
}

TEST(Functions, SignGroups)
{
    const int direct[12] = {1, 1, 1, 2, 2, 2, 1, 1, 1, 2, 2, 2};
    const int cls[12] = {1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3};
    for (int s = 1; s <= 12; ++s) {
        EXPECT_EQ(DirectGroup(s), direct[s - 1]) << s;
        EXPECT_EQ(SignClass(s), cls[s - 1]) << s;
    }
}

TEST(Functions, MinToDecReadsMinutesAsSixtieths)
{
    EXPECT_NEAR(MinToDec(14.30), 14.5, 1e-12);
    EXPECT_NEAR(MinToDec(6.45), 6.75, 1e-12);
    EXPECT_NEAR(MinToDec(-1.30), -1.5, 1e-12);
}

TEST(Functions, RoundBalaCutsAtTwoDigitsAndRoundsUpFromSix)
{
    EXPECT_DOUBLE_EQ(RoundBala(1.875), 1.87); // a third digit of 5 rounds down
    EXPECT_DOUBLE_EQ(RoundBala(1.876), 1.88);
    EXPECT_DOUBLE_EQ(RoundBala(1.8749), 1.87);
    EXPECT_DOUBLE_EQ(RoundBala(2.996), 3.0);
    EXPECT_DOUBLE_EQ(RoundBala(7), 7.0);
    EXPECT_DOUBLE_EQ(RoundBala(0.1), 0.1);
}

TEST(Functions, HalfEvenFormattingJudgesHalvesOnTheWrittenValue)
{
    EXPECT_EQ(FormatHalfEven2(0.125), "0.12");
    EXPECT_EQ(FormatHalfEven2(0.135), "0.14");
    EXPECT_EQ(FormatHalfEven2(2.675), "2.68"); // stored a hair below 2.675
    EXPECT_EQ(FormatHalfEven2(1.005), "1.00");
    EXPECT_EQ(FormatHalfEven2(1.0051), "1.01");
    EXPECT_EQ(FormatHalfEven2(-0.125), "-0.12");
    EXPECT_EQ(FormatHalfEven2(-0.001), "0.00");
    EXPECT_EQ(FormatHalfEven2(0), "0.00");
    EXPECT_EQ(FormatHalfEven2(359.995), "360.00");
    EXPECT_EQ(FormatHalfEven2(12345.5), "12345.50");
}

TEST(Functions, ValReadsTheNumericPrefix)
{
    EXPECT_DOUBLE_EQ(Val("+05.30"), 5.3);
    EXPECT_DOUBLE_EQ(Val("-01.00"), -1);
    EXPECT_DOUBLE_EQ(Val("-00.30"), -0.3);
    EXPECT_DOUBLE_EQ(Val(""), 0);
    EXPECT_DOUBLE_EQ(Val("abc"), 0);
    EXPECT_DOUBLE_EQ(Val("  12.5xyz"), 12.5);
    EXPECT_DOUBLE_EQ(Val("028"), 28);
    EXPECT_DOUBLE_EQ(Val("1.2.3"), 1.2);
    EXPECT_EQ(Two(5), "05");
    EXPECT_EQ(Two(123), "123");
    EXPECT_EQ(NumText(5.5), "5.5");
    EXPECT_EQ(NumText(-3), "-3");
}
