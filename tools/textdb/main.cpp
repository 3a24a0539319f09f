// SPDX-License-Identifier: AGPL-3.0-or-later
// orbanta_textdb <schema.sql> <tsv-folder> <out.Dat>: turns a folder of tables into a database file.
#include "TextDbBuilder.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 4) {
        std::fputs("usage: orbanta_textdb <schema.sql> <tsv-folder> <out.Dat>\n", stderr);
        return 2;
    }
    TextDbBuilder builder;
    if (!builder.build(args.at(1), args.at(2), args.at(3))) {
        std::fprintf(stderr, "orbanta_textdb: %s\n", builder.errorText().toUtf8().constData());
        return 1;
    }
    return 0;
}
