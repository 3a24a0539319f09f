// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/TopicPages.h"

#include "dasha/pages/frmVimsot.h"
#include "muhurtha/pages/frmSadeSati.h"
#include "output/ui/TopicPage.h"
#include "sky/pages/frmPage1.h"
#include "sky/pages/frmPage2.h"
#include "sky/pages/frmSodash.h"
#include "strength/pages/frmAshtak.h"
#include "strength/pages/frmBhav.h"
#include "strength/pages/frmShadbala.h"
#include "text/pages/ReadingPage.h"
#include "text/pages/frmConj.h"
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
    page<frmSadeSati>("frmSadeSati");
    page<frmConj>("frmConj");
    page<frmConjPredi>("frmConjPredi");
    page<frmNakshatra>("frmNakshatra");
    page<frmGrahaFala>("frmGrahaFala");
    page<frmBhavaFal>("frmBhavaFal");
}
