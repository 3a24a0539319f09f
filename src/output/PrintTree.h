// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// What can be printed or exported in each mode: the selection tree (its node keys are the
// identity of a selection and of a saved page set) and the walk, the order in which the ticked
// nodes become pages, which is not the tree's order.

#include <QList>
#include <QSet>
#include <QString>

struct PrintNode
{
    QString Key;     // empty for a group without a key of its own
    QString Caption;
    QString Parent;  // the parent's key; "Main" for the root's children; empty for the root
    QString ParentCaption;
};

enum class StepKind { Form, Text };

struct PrintStep
{
    QString Key;  // the tree node that asks for it
    QString Page; // the page that draws it
    int MakePage = 0;
    StepKind Kind = StepKind::Form;
};

// The tree of a mode, root first, parents before their children. Extended languages add the
// three result nodes of Horoscope mode.
QList<PrintNode> PrintTreeForMode(int progMode, bool extended);
// The walk of a mode (Muhurtha has none), in its own order.
QList<PrintStep> PrintWalkForMode(int progMode, bool extended);
// The steps of the walk that the ticked keys select.
QList<PrintStep> SelectedSteps(int progMode, bool extended, const QSet<QString> &ticked);
// Every node key of a mode's tree (the keys a page set stores).
QStringList PrintKeys(int progMode, bool extended);
// The default name of an exported file: "<Name>-Horoscope.PDF", "<Name>-Varshaphala.PDF", or
// "<Boy> & <Girl>-Match.PDF".
QString DefaultPdfName(int progMode, const QString &name, const QString &boy, const QString &girl);
