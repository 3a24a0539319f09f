// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// One run of printing or PDF export over the chosen steps of a mode's walk: each page is loaded
// if needed, drawn, and counted; text pages count their own sheets.

#include "output/PrintTree.h"

#include <functional>

class PageCache;
class PageOutput;

struct PrintRunHooks
{
    // Called with 0..100 as the run goes on.
    std::function<void(int)> progress;
    // Called after the front page of a printer run: the front page is a job of its own.
    std::function<void()> frontPageDone;
};

// Walks steps in their order onto out, loading pages from pages. Pages not in this program are
// passed over. Returns the number of steps drawn.
int WalkSteps(const QList<PrintStep> &steps, PageCache &pages, PageOutput &out, const PrintRunHooks &hooks = {});

// The annual walk: for each of count years from the age firstAge on, the year's reading is made
// and its pages walked anew; afterwards the session's year is what it was. Returns the steps
// drawn; a year that can't be cast ends the run, its reason in *error when given.
int WalkAnnualYears(const QList<PrintStep> &steps, PageCache &pages, PageOutput &out, int firstAge, int count,
                    const PrintRunHooks &hooks = {}, QString *error = nullptr);
