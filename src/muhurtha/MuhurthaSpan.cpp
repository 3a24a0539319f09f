// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/MuhurthaSpan.h"

#include <QRegularExpression>

std::optional<double> ReadMuhuClock(const QString &text)
{
    static const QRegularExpression re(QStringLiteral("^(\\d{1,2})[.:](\\d{2})$"));
    const auto m = re.match(text.trimmed());
    if (!m.hasMatch())
        return std::nullopt;
    const int h = m.captured(1).toInt();
    const int min = m.captured(2).toInt();
    if (h > 23 || min > 59)
        return std::nullopt;
    return h + min / 100.0;
}

QString CheckMuhuSpan(const QDate &from, const QDate &to)
{
    if (!from.isValid())
        return QStringLiteral("The first day of the span is not a valid date (DD/MM/YYYY).");
    if (!to.isValid())
        return QStringLiteral("The last day of the span is not a valid date (DD/MM/YYYY).");
    if (to < from)
        return QStringLiteral("The last day of the span lies before the first; give the span in time order.");
    if (to > from.addYears(10))
        return QStringLiteral("The span may cover at most ten years; choose a shorter one.");
    return {};
}

QString MuhuClockMessage(const QString &which)
{
    return QStringLiteral("The %1 time must be a clock time HH.MM from 00.00 to 23.59.").arg(which);
}

QString MuhuPredictionBand(double percent)
{
    if (percent >= 75)
        return QStringLiteral("EXCELLENT");
    if (percent >= 50)
        return QStringLiteral("GOOD");
    if (percent >= 25)
        return QStringLiteral("FAIR");
    return QStringLiteral("WEAK");
}
