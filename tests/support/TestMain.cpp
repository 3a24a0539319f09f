// SPDX-License-Identifier: AGPL-3.0-or-later
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QLocale>
#include <QStandardPaths>

int main(int argc, char **argv)
{
    QLocale::setDefault(QLocale::c());
    // The data folder the build made, as the program finds it beside its executable.
    qputenv("ORBANTA_STUFF", ORBANTA_BINARY_DIR "/STUFF");
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Orbanta"));
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
