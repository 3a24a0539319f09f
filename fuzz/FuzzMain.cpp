// SPDX-License-Identifier: AGPL-3.0-or-later
// The libFuzzer entry of one target of targets.def; the build names it in ORBANTA_FUZZ_NAME.
#include "FuzzBodies.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace {
FuzzBody g_body = nullptr;
}

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication app(*argc, *argv);
    QCoreApplication::setApplicationName(QStringLiteral("Orbanta"));
    FuzzSetUp(QStringLiteral(ORBANTA_FUZZ_STUFF));
    const FuzzTarget *target = FindFuzzTarget(QStringLiteral(ORBANTA_FUZZ_NAME));
    if (!target) {
        std::fprintf(stderr, "no fuzz target %s\n", ORBANTA_FUZZ_NAME);
        std::abort();
    }
    g_body = target->body;
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    g_body(data, size);
    return 0;
}
