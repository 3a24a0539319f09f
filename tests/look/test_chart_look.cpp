// SPDX-License-Identifier: AGPL-3.0-or-later
#include "LookFixture.h"

#include "chartdraw/ChartLook.h"
#include "sky/AppSettings.h"

#include <QThread>

using ChartLookStore = LookFixture;

TEST_F(ChartLookStore, AbsentOrUnfitValuesReadAsTheirDefaults)
{
    const ChartLook plain = ChartLook::Read();
    EXPECT_EQ(plain, ChartLook{});
    EXPECT_EQ(plain[ChartLook::BackColor], 0xFFFFFF);
    EXPECT_EQ(plain[ChartLook::NumColor], 0x000080);

    // Text that is no number, a colour beyond 24 bits, a width past 10 and a style past South.
    clsIni::WriteIniString("KunLineColor", "red", "KUNCOLOR");
    clsIni::WriteIniString("KunTxtColor", "16777216", "KUNCOLOR");
    clsIni::WriteIniString("KunBorderWidth", "11", "KUNCOLOR");
    clsIni::WriteIniString("KunNumColor", "-5", "KUNCOLOR");
    AppSettings::setValue("Init", "KundStyle", 7);
    // A system colour and a width of 0 are kept as stored.
    clsIni::WriteIniString("KunBackColor", QString::number(0x8000000FLL), "KUNCOLOR");
    clsIni::WriteIniString("KunLineWidth", "0", "KUNCOLOR");
    const ChartLook l = ChartLook::Read();
    EXPECT_EQ(l[ChartLook::LineColor], 0);
    EXPECT_EQ(l[ChartLook::TxtColor], 0);
    EXPECT_EQ(l[ChartLook::BorderWidth], 1);
    EXPECT_EQ(l[ChartLook::NumColor], 0x80);
    EXPECT_EQ(l.Style, 2);
    EXPECT_EQ(l[ChartLook::BackColor], 0x8000000FLL);
    EXPECT_EQ(l[ChartLook::LineWidth], 0);
}

TEST_F(ChartLookStore, WrittenLookReadsBackAndReachesTheCurrentLookAtOnce)
{
    ChartLook l;
    l.Style = 0;
    l[ChartLook::LineWidth] = 3;
    l[ChartLook::BorderWidth] = 10;
    l[ChartLook::BackColor] = 0x00E0F0FF;
    l[ChartLook::LineColor] = 0x000000FF;
    l[ChartLook::BorderColor] = 0x00800000;
    l[ChartLook::TxtColor] = 0x00004000;
    l[ChartLook::NumColor] = 0x000080FF;
    (void)ChartLook::Current(); // remembered before the write
    l.Write();
    EXPECT_EQ(ChartLook::Read(), l);
    EXPECT_EQ(ChartLook::Current(), l);
    EXPECT_EQ(AppSettings::KundStyle(), 0);
    EXPECT_EQ(clsIni::GetIniString("KunBackColor", "", "KUNCOLOR"), QString::number(0x00E0F0FF));

    // A change written by another hand to the file is seen too, without any restart.
    QThread::msleep(5);
    clsIni::WriteIniString("KunLineColor", QString::number(0x00123456), "KUNCOLOR");
    EXPECT_EQ(ChartLook::Current()[ChartLook::LineColor], 0x00123456);
}
