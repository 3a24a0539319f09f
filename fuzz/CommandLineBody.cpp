// SPDX-License-Identifier: AGPL-3.0-or-later
// The command line, one argument a line of the input, through the verbs that need no display.
// Whatever the arguments, the run ends with 0, 1 or 2; 2 comes with the program's message on
// standard error, and a JSON answer parses.
#include "FuzzBodies.h"

#include "cli/ChartCommand.h"
#include "cli/CommandLine.h"

#include <QJsonDocument>
#include <QJsonParseError>

#include <array>

namespace {
constexpr std::array kVerbs{
    CliVerb{"chart", "Cast a chart.", false, RunChartCommand},
};
// Enough for every option with its value; longer inputs are cut there.
constexpr qsizetype kMostArguments = 40;
} // namespace

void FuzzCommandLine(const std::uint8_t *data, std::size_t size)
{
    const QString input = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    QStringList args = input.split(QLatin1Char('\n'));
    if (args.size() > kMostArguments)
        args.resize(kMostArguments);

    QString out, err;
    int status = 0;
    {
        QTextStream o(&out), e(&err);
        status = RunCommandLine(kVerbs, args, o, e);
    }
    if (status < 0 || status > 2)
        FuzzFail("an exit status other than 0, 1 or 2", QString::number(status));
    if (status == 2 && err.trimmed().isEmpty())
        FuzzFail("bad input refused without a message", args.join(QLatin1Char(' ')));
    if (status == 0 && out.startsWith(QLatin1Char('{'))) {
        QJsonParseError error;
        const QJsonDocument doc = QJsonDocument::fromJson(out.toUtf8(), &error);
        if (error.error != QJsonParseError::NoError || !doc.isObject())
            FuzzFail("the JSON answer doesn't parse", error.errorString());
    }
}
