// SPDX-License-Identifier: AGPL-3.0-or-later
#include "cli/CommandLine.h"

#include <algorithm>

namespace {

bool isHelp(const QString &word)
{
    return word == QLatin1String("--help") || word == QLatin1String("-h") || word == QLatin1String("help");
}

const CliVerb *findVerb(std::span<const CliVerb> verbs, const QString &word)
{
    const auto it = std::find_if(verbs.begin(), verbs.end(), [&](const CliVerb &v) { return word == QLatin1String(v.name); });
    return it == verbs.end() ? nullptr : &*it;
}

} // namespace

CliRequest ReadCliRequest(std::span<const CliVerb> verbs, const QStringList &args)
{
    CliRequest r;
    if (args.isEmpty())
        return r;
    const QString &first = args.first();
    if (const CliVerb *v = findVerb(verbs, first)) {
        r.kind = CliRequest::Verb;
        r.verb = v;
    } else if (isHelp(first)) {
        // "help VERB" is the verb's own help; anything more after --help is a mistake.
        r.kind = CliRequest::Help;
        if (args.size() > 1) {
            r.verb = first == QLatin1String("help") ? findVerb(verbs, args[1]) : nullptr;
            if (!r.verb || args.size() > 2) {
                r.kind = CliRequest::Unknown;
                r.word = args[r.verb ? 2 : 1];
            }
        }
    } else if (first == QLatin1String("--version") && args.size() == 1) {
        r.kind = CliRequest::Version;
    } else {
        r.kind = CliRequest::Unknown;
        r.word = first == QLatin1String("--version") ? args[1] : first;
    }
    return r;
}

QString CliUsage(std::span<const CliVerb> verbs)
{
    QString text = QStringLiteral("Usage: orbanta                 open the program's window\n"
                                  "       orbanta VERB [OPTIONS]  run one verb without a display\n"
                                  "       orbanta help [VERB] | --help | --version\n"
                                  "\nVerbs:\n");
    qsizetype width = 0;
    for (const CliVerb &v : verbs)
        width = std::max(width, qsizetype(qstrlen(v.name)));
    for (const CliVerb &v : verbs)
        text += QStringLiteral("  %1  %2\n").arg(QLatin1String(v.name), -int(width)).arg(QLatin1String(v.summary));
    text += QStringLiteral("\n\"orbanta help VERB\" lists the options of a verb.\n"
                           "Exit status: 0 success, 2 bad input, 1 other failures.\n");
    return text;
}

int RunCommandLine(std::span<const CliVerb> verbs, const QStringList &args, QTextStream &out, QTextStream &err)
{
    const CliRequest r = ReadCliRequest(verbs, args);
    switch (r.kind) {
    case CliRequest::Verb:
        return r.verb->run(args.mid(1), out, err);
    case CliRequest::Help:
        if (r.verb)
            return r.verb->run({QStringLiteral("--help")}, out, err);
        out << CliUsage(verbs);
        return 0;
    case CliRequest::Version:
        out << "Orbanta " << ORBANTA_VERSION << '\n';
        return 0;
    case CliRequest::Unknown:
        err << (r.word.startsWith(QLatin1Char('-')) ? "Unknown option: " : "Unknown verb: ") << r.word << "\n\n"
            << CliUsage(verbs);
        return 2;
    case CliRequest::Window:
        break;
    }
    err << CliUsage(verbs);
    return 2;
}
