// SPDX-License-Identifier: AGPL-3.0-or-later
#include "kp/pages/KPPage.h"

#include "kp/KPSession.h"
#include "kp/clsKPSystem.h"
#include "sky/clsPlanets.h"

const clsKPSystem &KPPage::kp() const
{
    // The pages load only once the session has its chart, so the recast is there.
    return *SessionKP();
}

QString KPPage::head(const char *key) const
{
    return chart().GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("Krishnamurthy")).toString();
}

QString KPPage::dash() const { return chart().GetHeadValue(1, QStringLiteral("-"), QStringLiteral("Symbols")).toString(); }

QString KPPage::lordName(int p) const { return p >= 1 && p <= 9 ? chart().PlanetName(p) : dash(); }

QString KPPage::lordNameFull(int p) const { return p >= 1 && p <= 9 ? chart().PlanetNameFull(p) : dash(); }

QStringList KPPage::bandHeads() const { return {head("Weako"), head("Moderate"), head("Strongy"), head("VeryStrong")}; }

void KPPage::addToBand(Bands &b, int score, const QString &item) const
{
    b[static_cast<size_t>(clsKPSystem::SignifBand(score))] += item + QLatin1Char(' ');
}

void KPPage::fillBands(Bands &b) const
{
    for (QString &s : b)
        s = s.trimmed().isEmpty() ? dash() : s.trimmed();
}
