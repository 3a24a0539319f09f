// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The bodies of the fuzz targets, shared by the libFuzzer executables and by the test that
// replays their corpora and the inputs that once failed. A body returns normally for any
// input; a broken promise (a refused import that changed the store, a bad exit status) ends
// the process through FuzzFail, which libFuzzer and the test both see as a failure.

#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

using FuzzBody = void (*)(const std::uint8_t *data, std::size_t size);

struct FuzzTarget
{
    const char *name;
    FuzzBody body;
};

// Every target of fuzz/targets.def, in its order.
const std::vector<FuzzTarget> &FuzzTargets();
// The target of that name, or nullptr.
const FuzzTarget *FindFuzzTarget(const QString &name);

// Once per process, before the first body runs and after the QCoreApplication exists: the C
// locale, a home and settings of the process's own, the built STUFF folder.
void FuzzSetUp(const QString &stuffFolder);

// Writes what was broken to standard error and aborts.
[[noreturn]] void FuzzFail(const char *what, const QString &detail = QString());

// The bodies of targets.def.
void FuzzPersonImport(const std::uint8_t *data, std::size_t size);
void FuzzTaggedText(const std::uint8_t *data, std::size_t size);
void FuzzCommandLine(const std::uint8_t *data, std::size_t size);

// Readers of data files that the ORBANTA_FUZZ_DATA_FILE lines call.
// Opens the language database of langDir and makes look-ups of every type.
void ReadLanguageDatabase(const QString &langDir);
// Loads the atlas of a records database and resolves a few places in it.
void ReadAtlas(const QString &datFile);
// Looks up every entry of the three score files of the match, and a few beyond them.
void ReadScoreFiles();
