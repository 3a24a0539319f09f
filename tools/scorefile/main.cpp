// SPDX-License-Identifier: AGPL-3.0-or-later
// orbanta_scorefile <table.tsv> <out.DAT> <row tag> <entry letter> <maximum>: writes one score
// file of the marriage match from its table.
#include "ScoreFileWriter.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 6 || args.at(4).size() != 1) {
        std::fputs("usage: orbanta_scorefile <table.tsv> <out.DAT> <row tag> <entry letter> <maximum>\n", stderr);
        return 2;
    }
    ScoreFileWriter writer;
    if (!writer.convertFile(args.at(1), args.at(2), args.at(3), args.at(4).at(0), args.at(5).toDouble())) {
        std::fprintf(stderr, "orbanta_scorefile: %s\n", writer.errorText().toUtf8().constData());
        return 1;
    }
    return 0;
}
