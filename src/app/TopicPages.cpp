// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/TopicPages.h"

#include "dasha/pages/frmVimsot.h"
#include "muhurtha/pages/frmMuhuCover.h"
#include "muhurtha/pages/frmMuhuText.h"
#include "output/ui/TopicPage.h"
#include "sky/pages/frmPage1.h"
#include "sky/pages/frmPage2.h"
#include "sky/pages/frmSodash.h"
#include "strength/pages/frmAshtak.h"
#include "strength/pages/frmBhav.h"
#include "strength/pages/frmShadbala.h"
#include "text/pages/frmForText.h"
#include "yoga/pages/frmPrediYogas.h"

namespace {
template <typename Page> void page(const char *name)
{
    RegisterTopicPage(QString::fromLatin1(name), [](QWidget *parent) -> TopicPage * { return new Page(parent); });
}
template <int Part> TopicPage *bhinna(QWidget *parent) { return new frmBhinnaAshtak(Part, parent); }
} // namespace

void RegisterTopicPages()
{
    page<frmPage1>("frmPage1");
    page<frmPage2>("frmPage2");
    page<frmSodash>("frmSodash");
    page<frmBhav>("frmBhav");
    RegisterTopicPage(QStringLiteral("frmBhinnaAshtak"), bhinna<1>);
    RegisterTopicPage(QStringLiteral("frmBhinnaAshtak2"), bhinna<2>);
    page<frmAshtak>("frmAshtak");
    page<frmShadbala>("frmShadbala");
    page<frmVimsot>("frmVimsot");
    page<frmPratyan>("frmPratyan");
    page<frmPrediYogas>("frmPrediYogas");
    page<frmForText>("frmForText");
    page<frmMuhuCover>("frmMuhuCover");
    page<frmMuhuText>("frmMuhuText");
}
