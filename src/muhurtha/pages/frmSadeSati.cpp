// SPDX-License-Identifier: AGPL-3.0-or-later
#include "muhurtha/pages/frmSadeSati.h"

#include "muhurtha/clsSadeSati.h"
#include "sky/clsPlanets.h"
#include "text/GenLabel.h"

void frmSadeSati::fill()
{
    const clsPlanets &c = chart();
    const auto sade = [&c](const QString &key) {
        return c.GetHeadValue(1, key, QStringLiteral("SHANISADESATI")).toString();
    };
    lblTitle->setText(sade(QStringLiteral("TITLE")));
    addLabel(QRect(30, 60, 700, 22), c.Person().Name(), SubHead, Qt::AlignCenter);

    QSqlDatabase db;
    if (!clsSadeSati::OpenDB(db)) {
        addLabel(QRect(60, 110, 640, 60),
                 QStringLiteral("The table of Saturn's sign entries (SADESAT.Dat) could not be opened. "
                                "Please re-install the program."),
                 Body, Qt::AlignCenter)
            ->setWordWrap(true);
        return;
    }
    const std::vector<SadeSatiRow> rows = clsSadeSati::MakeSadeSati(c, db);
    clsSadeSati::CloseDB(db);

    const int shown = std::max<int>(static_cast<int>(rows.size()), 1);
    const Table t = addTable(35, 90, {170, 100, 100, 90, 100, 130}, 24,
                             {QString(), sade(QStringLiteral("RASHI")), sade(QStringLiteral("ENTRY")),
                              GenLabel(QStringLiteral("Degrees"), c), sade(QStringLiteral("EXIT")), sade(QStringLiteral("MURTI"))},
                             shown, Body, true);
    for (size_t i = 0; i < rows.size(); ++i) {
        const SadeSatiRow &r = rows[i];
        const int row = static_cast<int>(i);
        t.cell(row, 0)->setText(sade(clsSadeSati::PhaseKey(r.phase)));
        // The sign's name is read from Saturn's longitude at entry, which also gives the degrees.
        t.cell(row, 1)->setText(c.ConvertToDegNoVal(r.longitude));
        t.cell(row, 2)->setText(clsSadeSati::ShowDate(r.entry));
        t.cell(row, 3)->setText(clsPlanets::ConvertValNoDeg(r.longitude));
        t.cell(row, 4)->setText(clsSadeSati::ShowDate(r.exit));
        t.cell(row, 5)->setText(c.GetHeadValue(1, r.paya, QStringLiteral("PAYA")).toString());
    }
    // A chart whose ayanamsa has no table of entries gets the page's own word for it.
    if (rows.empty())
        t.cell(0, 0)->setText(sade(QStringLiteral("NOROWS")));

    QLabel *note = addLabel(QRect(35, t.rect.bottom() + 14, 690, 1000 - t.rect.bottom() - 14), sade(QStringLiteral("NOTE")), Small,
                            Qt::AlignLeft | Qt::AlignTop);
    note->setWordWrap(true);
}
