// SPDX-License-Identifier: AGPL-3.0-or-later
// orbanta_textdb <schema.sql> <tsv-folder> <out.Dat> [more tsv folders...]: turns folders of tables
// into one database file.
#include "TextDbBuilder.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 4) {
        std::fputs("usage: orbanta_textdb <schema.sql> <tsv-folder> <out.Dat> [more tsv folders...]\n", stderr);
        return 2;
    }
    TextDbBuilder builder;
    if (!builder.build(args.at(1), QStringList{args.at(2)} + args.mid(4), args.at(3))) {
        std::fprintf(stderr, "orbanta_textdb: %s\n", builder.errorText().toUtf8().constData());
        return 1;
    }
    return 0;
}
