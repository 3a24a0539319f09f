// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What the annual pages share: the session's reading, the annual chart and the words of the
// heads "Varsha" and "Gen".

#include "output/ui/TopicPage.h"
#include "sky/clsPlanets.h"
#include "varsha/AnnualReading.h"
#include "varsha/clsVarsha.h"

// The word of key under head "Varsha", read through chart c.
inline QString VarshaLabel(const clsPlanets &c, const char *key)
{
    return c.GetHeadValue(1, QString::fromLatin1(key), QStringLiteral("Varsha")).toString();
}

// A framed annual page: it fills itself from the session's reading, and stays empty without one.
class VarshaPage : public TopicPage
{
    Q_OBJECT
public:
    using TopicPage::TopicPage;

protected:
    void fill() final
    {
        if (const clsVarsha *v = SessionVarsha())
            fillYear(*v);
    }
    virtual void fillYear(const clsVarsha &v) = 0;
    // The page's title: its own heading and the calendar year of the reading.
    void yearTitle(const clsVarsha &v, const QString &heading)
    {
        lblTitle->setText(heading + QStringLiteral(" - ") + QString::number(v.Annual().Person().Year()));
    }
};
