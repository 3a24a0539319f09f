// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/TopicPages.h"

#include "cli/MatchCommand.h"
#include "dasha/pages/frmTribhagi.h"
#include "dasha/pages/frmVimsot.h"
#include "jaimini/pages/frmJaimini1.h"
#include "jaimini/pages/frmJaimini2.h"
#include "jaimini/pages/frmJaimini3.h"
#include "kp/pages/frmKP1.h"
#include "kp/pages/frmKP2.h"
#include "kp/pages/frmKP3.h"
#include "kp/pages/frmKP4.h"
#include "dasha/pages/frmYogini.h"
#include "marriage/pages/frmMarCover.h"
#include "marriage/pages/frmMarFront.h"
#include "marriage/pages/frmMarScore.h"
#include "marriage/pages/frmMarText.h"
#include "muhurtha/pages/frmHoroReckoner.h"
#include "muhurtha/pages/frmMuhuCover.h"
#include "muhurtha/pages/frmMuhuText.h"
#include "muhurtha/pages/frmSadeSati.h"
#include "output/PrintTree.h"
#include "output/ui/PdfCommand.h"
#include "output/ui/TopicPage.h"
#include "sky/pages/frmPage1.h"
#include "sky/pages/frmPage2.h"
#include "sky/pages/frmSodash.h"
#include "sky/pages/frmUpagraha.h"
#include "strength/pages/frmAshtak.h"
#include "strength/pages/frmBhav.h"
#include "strength/pages/frmKaraka.h"
#include "strength/pages/frmMaitri.h"
#include "strength/pages/frmSudarshan.h"
#include "strength/pages/frmShadbala.h"
#include "text/pages/ReadingPage.h"
#include "text/pages/frmConj.h"
#include "text/pages/frmForText.h"
#include "varsha/pages/VarshaTextPages.h"
#include "varsha/pages/frmVarBalas.h"
#include "varsha/pages/frmVarChart2.h"
#include "varsha/pages/frmVarFront.h"
#include "varsha/pages/frmVarSaham.h"
#include "varsha/pages/frmVarTripat.h"
#include "varsha/pages/frmVarshaDasha.h"
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
    page<frmHoroReckoner>("frmHoroReckoner");
    page<frmPage1>("frmPage1");
    page<frmPage2>("frmPage2");
    page<frmSodash>("frmSodash");
    page<frmBhav>("frmBhav");
    page<frmUpagraha>("frmUpagraha");
    RegisterTopicPage(QStringLiteral("frmBhinnaAshtak"), bhinna<1>);
    RegisterTopicPage(QStringLiteral("frmBhinnaAshtak2"), bhinna<2>);
    page<frmAshtak>("frmAshtak");
    page<frmMaitri>("frmMaitri");
    page<frmSudarshan>("frmSudarshan");
    page<frmKaraka>("frmKaraka");
    page<frmShadbala>("frmShadbala");
    page<frmJaimini1>("frmJaimini1");
    page<frmJaimini2>("frmJaimini2");
    page<frmJaimini3>("frmJaimini3");
    page<frmKP1>("frmKP1");
    page<frmKP2>("frmKP2");
    page<frmKP3>("frmKP3");
    page<frmKP4>("frmKP4");
    page<frmVimsot>("frmVimsot");
    page<frmPratyan>("frmPratyan");
    page<frmTribhagi>("frmTribhagi");
    page<frmYogini>("frmYogini");
    page<frmPrediYogas>("frmPrediYogas");
    page<frmForText>("frmForText");
    page<frmSadeSati>("frmSadeSati");
    page<frmMarFront>("frmMarFront");
    page<frmMarCover>("frmMarCover");
    page<frmMarScore>("frmMarScore");
    page<frmMarText>("frmMarText");
    // The marriage report of the command line is drawn by these pages.
    SetMatchPdfWriter([](const QString &file, QTextStream &out, QTextStream &err) {
        const QStringList keys = PrintKeys(2, false);
        return WriteSessionPdf(2, QSet<QString>(keys.begin(), keys.end()), file, out, err);
    });
    page<frmVarFront>("frmVarFront");
    page<frmVarshaDasha>("frmVarshaDasha");
    page<frmVarBalas>("frmVarBalas");
    page<frmVarChart2>("frmVarChart2");
    page<frmVarTripat>("frmVarTripat");
    page<frmVarSaham>("frmVarSaham");
    page<frmVarshaText>("frmVarshaText");
    page<frmVarChartTxt>("frmVarChartTxt");
    page<frmVarPlHText>("frmVarPlHText");
    page<frmMuhuCover>("frmMuhuCover");
    page<frmMuhuText>("frmMuhuText");
    page<frmConj>("frmConj");
    page<frmConjPredi>("frmConjPredi");
    page<frmNakshatra>("frmNakshatra");
    page<frmGrahaFala>("frmGrahaFala");
    page<frmBhavaFal>("frmBhavaFal");
}
