// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/mdiMother.h"

#include "session/AppSettings.h"
#include "session/Session.h"
#include "session/ui/frmCalcOptions.h"
#include "session/ui/frmEditLongLat.h"
#include "session/ui/frmLogin.h"
#include "session/ui/frmWizard.h"
#include "sky/Functions.h"

#include <QCloseEvent>
#include <QDate>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace {
bool g_askOnExit = true;

const char *const kPlanetNames[13] = {"Lagna", "Sun", "Mercury", "Venus", "Mars", "Jupiter", "Saturn",
                                      "Moon", "Rahu", "Ketu", "Uranus", "Neptune", "Pluto"};

// A plain table of the chart's positions, shown until the topic pages take the session over.
QString summaryOf(const clsPlanets &c)
{
    const clsPerson &p = c.Person();
    QString html = QStringLiteral("<h3>%1</h3><p>%2/%3/%4 %5 &nbsp; %6, %7 &nbsp; %8 %9 &nbsp; Ayanamsa %10</p>"
                                  "<table cellspacing=0 cellpadding=3 border=1><tr><th>Planet</th><th>Longitude</th>"
                                  "<th>Sign</th><th>In sign</th><th>Motion</th></tr>")
                       .arg(p.Name().toHtmlEscaped(), p.DayText(), p.MonthText(), QString::number(p.Year()), p.GetBirthTime(),
                            p.PLOB().toHtmlEscaped(), p.Country().toHtmlEscaped(), p.GetLatitudeFull(), p.GetLongitudeFull(),
                            clsPlanets::DecToDeg(c.PlanetLongi(13)));
    for (int n = 0; n <= 12; ++n) {
        const double l = c.PlanetLongi(n);
        const int sign = static_cast<int>(Int(l / 30)) % 12 + 1;
        html += QStringLiteral("<tr><td>%1</td><td>%2</td><td align=center>%3</td><td>%4</td><td align=center>%5</td></tr>")
                    .arg(QString::fromLatin1(kPlanetNames[n]), clsPlanets::DecToDeg(l), QString::number(sign),
                         clsPlanets::ConvertValNoDeg(l - (sign - 1) * 30.0),
                         n == 0 ? QStringLiteral("-") : (c.RetroGrade(n) ? QStringLiteral("R") : QStringLiteral("D")));
    }
    return html + QStringLiteral("</table>");
}
} // namespace

void mdiMother::setAskOnExit(bool ask) { g_askOnExit = ask; }

mdiMother::mdiMother(QWidget *parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mdiMother"));
    setWindowTitle(QStringLiteral("Orbanta-Entry Screen"));
    resize(960, 680);

    m_stack = new QStackedWidget;
    m_login = new frmLogin;
    m_sessionPage = new QWidget;
    m_nameStrip = new QLabel;
    m_nameStrip->setObjectName(QStringLiteral("lblNameStrip"));
    QFont f = m_nameStrip->font();
    f.setPointSize(f.pointSize() + 3);
    f.setBold(true);
    m_nameStrip->setFont(f);
    m_summary = new QTextBrowser;
    auto *session = new QVBoxLayout(m_sessionPage);
    session->addWidget(m_nameStrip);
    session->addWidget(m_summary, 1);
    m_stack->addWidget(m_login);
    m_stack->addWidget(m_sessionPage);
    setCentralWidget(m_stack);

    buildMenus();
    statusBar()->showMessage(QStringLiteral("Ready"));
    connect(m_login, &frmLogin::generated, this, &mdiMother::StartSession);
    connect(m_login, &frmLogin::optionsRequested, this, &mdiMother::wizardRequested);

    // The settings dialogs write the store at once; the next cast reads it.
    connect(this, &mdiMother::settingsRequested, this, [this](int page) { frmEditLongLat(page, this).exec(); });
    connect(this, &mdiMother::wizardRequested, this, [this] { frmWizard(this).exec(); });
    connect(this, &mdiMother::regionalSettingsRequested, this, [this] { frmCalcOptions(this).exec(); });
}

void mdiMother::buildMenus()
{
    QMenu *file = menuBar()->addMenu(QStringLiteral("&File"));
    QAction *entry = file->addAction(QStringLiteral("&Entry Screen"), this, &mdiMother::ShowEntryScreen);
    entry->setObjectName(QStringLiteral("mnuEntry"));
    file->addSeparator();
    file->addAction(QStringLiteral("E&xit"), this, &QWidget::close);

    QMenu *settings = menuBar()->addMenu(QStringLiteral("&Settings"));
    settings->addAction(QStringLiteral("&Setup Wizard..."), this, &mdiMother::wizardRequested)->setObjectName(QStringLiteral("mnuSettSetupWiz"));
    settings->addSeparator();
    const struct
    {
        const char *name, *text;
        int page;
    } pages[] = {{"mnuSettingsAyanamsh", "&Ayanamsh...", 2},
                 {"mnuSettingsCalc", "&Calculation Method...", 2},
                 {"mnuSettingsRahMode", "&Rahu && Ketu's Motion...", 2},
                 {"mnuSettCity", "C&ities...", 0},
                 {"mnuCountryDet", "C&ountries...", 1},
                 {"mnuEstDet", "&Your Details...", 3}};
    for (const auto &pg : pages) {
        const int page = pg.page;
        settings->addAction(QString::fromLatin1(pg.text), this, [this, page] { Q_EMIT settingsRequested(page); })
            ->setObjectName(QString::fromLatin1(pg.name));
    }
    settings->addAction(QStringLiteral("R&egional Settings..."), this, &mdiMother::regionalSettingsRequested)
        ->setObjectName(QStringLiteral("mnuSetRegion"));

    m_tools = addToolBar(QStringLiteral("Tools"));
    m_tools->setObjectName(QStringLiteral("tbMain"));
    m_tools->addAction(QStringLiteral("Entry Screen"), this, &mdiMother::ShowEntryScreen);
    m_tools->setVisible(false);

    m_yearBar = addToolBar(QStringLiteral("Year"));
    m_yearBar->addWidget(new QLabel(QStringLiteral(" Year ")));
    m_years = new QComboBox;
    m_years->setObjectName(QStringLiteral("cmbYearList"));
    m_yearBar->addWidget(m_years);
    m_yearBar->setVisible(false);
    connect(m_years, &QComboBox::currentIndexChanged, this, [](int i) {
        if (i >= 0)
            Session().VarshaYear = i + 1;
    });
}

void mdiMother::FillYearList(int birthYear)
{
    const QSignalBlocker block(m_years);
    m_years->clear();
    for (int n = 0; n < 100; ++n)
        m_years->addItem(QString::number(birthYear + n));
}

void mdiMother::StartSession()
{
    const SessionGlobals &s = Session();
    m_nameStrip->setText(s.ProgMode == 2 ? m_login->boy->cmbName->currentText() + QStringLiteral(" & ")
                                               + m_login->gal->cmbName->currentText()
                                         : m_login->single->cmbName->currentText());
    QString html;
    if (s.ProgMode == 2 && s.BoyPlanets && s.GalPlanets)
        html = summaryOf(*s.BoyPlanets) + summaryOf(*s.GalPlanets);
    else if (s.CurPlanets)
        html = summaryOf(*s.CurPlanets);
    m_summary->setHtml(html);
    m_tools->setVisible(AppSettings::value(QStringLiteral("Settings"), QStringLiteral("ToolBar"), true).toBool());
    m_yearBar->setVisible(s.ProgMode == 4);
    if (s.ProgMode == 4 && s.CurPlanets) {
        const int birthYear = static_cast<int>(Val(m_login->single->txtDate->text().right(4)));
        FillYearList(birthYear);
        const int item = QDate::currentDate().year() - birthYear - 1;
        m_years->setCurrentIndex(item >= 0 && item <= 99 ? item : 0);
    }
    m_stack->setCurrentWidget(m_sessionPage);
    setWindowTitle(QStringLiteral("Orbanta"));
}

void mdiMother::ShowEntryScreen()
{
    Session().ReleaseCharts();
    m_tools->setVisible(false);
    m_yearBar->setVisible(false);
    m_stack->setCurrentWidget(m_login);
    setWindowTitle(QStringLiteral("Orbanta-Entry Screen"));
}

void mdiMother::closeEvent(QCloseEvent *event)
{
    if (g_askOnExit
        && QMessageBox::question(this, QStringLiteral("Orbanta"), QStringLiteral("Do you really want to exit?"))
               != QMessageBox::Yes) {
        event->ignore();
        return;
    }
    Session().ReleaseCharts();
    event->accept();
}
