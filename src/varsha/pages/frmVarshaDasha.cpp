// SPDX-License-Identifier: AGPL-3.0-or-later
#include "varsha/pages/frmVarshaDasha.h"

#include "sky/Functions.h"
#include "text/GenLabel.h"

namespace {
constexpr int kRowH = 21;
QString date(const QDateTime &d) { return d.toString(QStringLiteral("dd/MM/yyyy")); }
QString orDash(const QString &s) { return s.isEmpty() ? QStringLiteral("-") : s; }
} // namespace

void frmVarshaDasha::fillYear(const clsVarsha &v)
{
    const clsPlanets &a = v.Annual();
    const auto var = [&a](const char *key) { return VarshaLabel(a, key); };
    const QString planets = GenLabel(QStringLiteral("TPlanets"), a), state = GenLabel(QStringLiteral("State"), a);
    const QString days = QLatin1Char(' ') + var("Days");
    yearTitle(v, var("DashaTitle"));
    addLabel(QRect(30, 56, 700, 22), a.Person().Name(), SubHead, Qt::AlignCenter);

    int y = 86;
    const auto heading = [&](const char *key) {
        addLabel(QRect(30, y, 700, 24), var(key), SubHead, Qt::AlignCenter);
        y += 26;
    };

    // Patyayini and Mudda Vimshottari: each lord with its span, its dates and its dignity.
    const auto lordTable = [&](const std::vector<VarshaDashaRow> &rows) {
        const Table t = addTable(90, y, {160, 90, 110, 110, 110}, kRowH, {planets, var("Span"), var("From"), var("To"), state},
                                 static_cast<int>(rows.size()), Small, true);
        for (size_t i = 0; i < rows.size(); ++i) {
            const VarshaDashaRow &r = rows[i];
            const int row = static_cast<int>(i);
            t.cell(row, 0)->setText(r.Name);
            t.cell(row, 1)->setText(QString::number(CLng(r.Days)) + days);
            t.cell(row, 2)->setText(date(r.Start));
            t.cell(row, 3)->setText(date(r.End));
            t.cell(row, 4)->setText(orDash(a.ExaltClass(r.Lord)));
        }
        y = t.rect.bottom() + 22;
    };

    heading("Patyayini");
    lordTable(v.PatyayiniRows());

    heading("MuddaYogini");
    const std::vector<VarshaDashaRow> yog = v.MuddaYoginiRows();
    const Table t = addTable(90, y, {130, 120, 90, 120, 120}, kRowH, {var("Dasha"), planets, var("Span"), var("From"), var("To")},
                             static_cast<int>(yog.size()), Small, true);
    for (size_t i = 0; i < yog.size(); ++i) {
        const VarshaDashaRow &r = yog[i];
        const int row = static_cast<int>(i);
        t.cell(row, 0)->setText(r.Name);
        t.cell(row, 1)->setText(a.GetHeadValue(1, r.Place, QStringLiteral("YogiCycleLordName")).toString());
        t.cell(row, 2)->setText(QString::number(CLng(r.Days)) + days);
        t.cell(row, 3)->setText(date(r.Start));
        t.cell(row, 4)->setText(date(r.End));
    }
    y = t.rect.bottom() + 22;

    heading("MuddaVimshottari");
    lordTable(v.MuddaVimshottariRows());
}
