// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "orbanta html <birth> --out DIR [--topics KEY,KEY...]": the horoscope of the chosen print-tree
// keys (all by default) written as DIR/Index.HTML with the pictures of its drawn pages beside it.

#include <QSet>
#include <QStringList>
#include <QTextStream>

#include <functional>

// Writes the session's topics of a mode that ticked chooses into a folder; the exit status. The
// pages are widgets, which this library can't draw: the program passes the writer in.
using HtmlFolderWriter =
    std::function<int(int progMode, const QSet<QString> &ticked, const QString &folder, QTextStream &out, QTextStream &err)>;

// Runs the verb; args without the verb itself. A folder that can't be made or written, like any
// other bad input, gives status 2 with a message on err.
int RunHtmlCommand(const QStringList &args, QTextStream &out, QTextStream &err, const HtmlFolderWriter &write);
