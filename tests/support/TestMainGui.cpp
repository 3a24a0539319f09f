// SPDX-License-Identifier: AGPL-3.0-or-later
// main() of the widget tests: a QApplication on whatever platform QT_QPA_PLATFORM names
// (offscreen under CTest).
#include "app/TopicPages.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QStandardPaths>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    // The data folder the build made, as the program finds it beside its executable.
    qputenv("ORBANTA_STUFF", ORBANTA_BINARY_DIR "/STUFF");
    // Each test program gets a home of its own, so that programs running side by side never
    // share a settings or data file.
    QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    QStandardPaths::setTestModeEnabled(true);
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Orbanta"));
    RegisterTopicPages();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
