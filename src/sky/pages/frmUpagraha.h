// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Upagrahas & Minor Planets": the nine Sun-based points, then the day-based points and Mandi in
// both schools, each with its sign, degrees, sign lord, nakshatra and pada. Where the Sun doesn't
// rise or set on the day of the birth, the page says so in place of the day-based tables.

#include "output/ui/TopicPage.h"

class frmUpagraha : public TopicPage
{
    Q_OBJECT
public:
    explicit frmUpagraha(QWidget *parent = nullptr) : TopicPage(QStringLiteral("frmUpagraha"), parent) {}

protected:
    void fill() override;

private:
    QString upa(const char *key) const;
    // A heading and a table of the points first..last in school mode (0 for the Sun-based ones);
    // answers the y below it.
    int group(int y, const QString &heading, int first, int last, int mode);
};
