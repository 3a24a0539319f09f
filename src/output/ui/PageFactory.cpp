// SPDX-License-Identifier: AGPL-3.0-or-later
// The pages built into the program, by name.
#include "output/ui/TopicPage.h"

#include "dasha/pages/frmVimsot.h"
#include "sky/pages/frmPage1.h"
#include "sky/pages/frmPage2.h"
#include "sky/pages/frmSodash.h"
#include "strength/pages/frmAshtak.h"
#include "strength/pages/frmBhav.h"
#include "strength/pages/frmShadbala.h"

TopicPage *CreateTopicPage(const QString &name, QWidget *parent)
{
    if (name == QLatin1String("frmPage1"))
        return new frmPage1(parent);
    if (name == QLatin1String("frmPage2"))
        return new frmPage2(parent);
    if (name == QLatin1String("frmSodash"))
        return new frmSodash(parent);
    if (name == QLatin1String("frmBhav"))
        return new frmBhav(parent);
    if (name == QLatin1String("frmBhinnaAshtak"))
        return new frmBhinnaAshtak(1, parent);
    if (name == QLatin1String("frmBhinnaAshtak2"))
        return new frmBhinnaAshtak(2, parent);
    if (name == QLatin1String("frmAshtak"))
        return new frmAshtak(parent);
    if (name == QLatin1String("frmShadbala"))
        return new frmShadbala(parent);
    if (name == QLatin1String("frmVimsot"))
        return new frmVimsot(parent);
    if (name == QLatin1String("frmPratyan"))
        return new frmPratyan(parent);
    return nullptr;
}
