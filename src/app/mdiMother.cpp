// SPDX-License-Identifier: AGPL-3.0-or-later
#include "app/mdiMother.h"
#include "chartdraw/ui/frmKunEdit.h"
#include "output/ui/frmColorEnv.h"

#include "output/ui/BottomBar.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/TextPage.h"
#include "output/HtmlBook.h"
#include "output/ui/frmEmail.h"
#include "output/ui/frmPrint.h"
#include "output/ui/frmStatus.h"
#include "output/ui/TopicPage.h"
#include "muhurtha/ui/frmVisualTransits.h"

#include "sky/AppSettings.h"
#include "session/Session.h"
#include "session/ui/frmCalcOptions.h"
#include "session/ui/frmEditLongLat.h"
#include "session/ui/frmLogin.h"
#include "session/ui/frmWizard.h"
#include "sky/Functions.h"
#include "varsha/AnnualReading.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHeaderView>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QScrollArea>
#include <QSplitter>
#include <QStyle>
#include <QTreeWidget>
#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <tuple>

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

mdiMother::~mdiMother() = default;

namespace {
QVariant viewSetting(const char *key, bool def)
{
    return AppSettings::value(QStringLiteral("Settings"), QString::fromLatin1(key), def);
}
} // namespace

mdiMother::mdiMother(QWidget *parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mdiMother"));
    setWindowTitle(QStringLiteral("Orbanta-Entry Screen"));
    resize(1100, 800);

    m_stack = new QStackedWidget;
    m_login = new frmLogin;
    m_sessionPage = new QWidget;
    m_nameStrip = new QLabel;
    m_nameStrip->setObjectName(QStringLiteral("lblNameStrip"));
    QFont f = m_nameStrip->font();
    f.setPointSize(f.pointSize() + 3);
    f.setBold(true);
    m_nameStrip->setFont(f);

    // The side panel with the topic tree, a splitter, and the page area.
    tvMap = new QTreeWidget;
    tvMap->setObjectName(QStringLiteral("tvMap"));
    tvMap->setHeaderHidden(true);
    tvMap->setRootIsDecorated(false);
    m_sidePanel = new QWidget;
    auto *side = new QVBoxLayout(m_sidePanel);
    side->setContentsMargins(0, 0, 0, 0);
    side->addWidget(tvMap);
    m_pageStack = new QStackedWidget;
    m_pageStack->setFixedSize(TopicPage::kWidth, TopicPage::kHeight);
    m_pages = std::make_unique<PageCache>(m_pageStack);
    m_pageScroll = new QScrollArea;
    m_pageScroll->setObjectName(QStringLiteral("pageArea"));
    m_pageScroll->setWidget(m_pageStack);
    m_pageScroll->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    m_pageScroll->setBackgroundRole(QPalette::Dark);
    m_summary = new QTextBrowser;
    m_centre = new QStackedWidget;
    m_centre->addWidget(m_pageScroll);
    m_centre->addWidget(m_summary);
    m_split = new QSplitter(Qt::Horizontal);
    m_split->setObjectName(QStringLiteral("Picture1"));
    m_split->addWidget(m_sidePanel);
    m_split->addWidget(m_centre);
    m_split->setStretchFactor(1, 1);
    m_split->setSizes({220, 880});
    bBar = new BottomBar;

    auto *session = new QVBoxLayout(m_sessionPage);
    session->setContentsMargins(4, 4, 4, 4);
    session->addWidget(m_nameStrip);
    session->addWidget(m_split, 1);
    session->addWidget(bBar);
    m_stack->addWidget(m_login);
    m_stack->addWidget(m_sessionPage);
    setCentralWidget(m_stack);

    cmbTopic = new QComboBox;
    cmbTopic->setObjectName(QStringLiteral("cmbTopic"));
    cmbTopic->setMinimumWidth(260);
    cmbTopic->setMaxVisibleItems(20);
    buildMenus();
    statusBar()->showMessage(QStringLiteral("Ready"));
    statusBar()->setVisible(viewSetting("StatusBar", true).toBool());
    bBar->setVisible(viewSetting("BotBar", true).toBool());
    m_sidePanel->setVisible(viewSetting("TopicListVis", true).toBool());
    tbTopicMap->setChecked(m_sidePanel->isVisible());

    connect(m_login, &frmLogin::generated, this, &mdiMother::StartSession);
    connect(m_login, &frmLogin::optionsRequested, this, &mdiMother::wizardRequested);
    connect(cmbTopic, &QComboBox::currentIndexChanged, this, &mdiMother::cmbTopic_Click);
    connect(bBar, &BottomBar::ItemClick, this, &mdiMother::SelectTopic);
    // The tree leads to its topic by mouse and by keyboard alike.
    connect(tvMap, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem *item) {
        const int index = item ? tvMap->indexOfTopLevelItem(item) : -1;
        if (index >= 0 && index != cmbTopic->currentIndex())
            SelectTopic(index);
    });

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
    m_outputActions = {
        file->addAction(QStringLiteral("&Print Horoscope..."), this, &mdiMother::PrintIt),
        file->addAction(QStringLiteral("Print This &Topic"), this, &mdiMother::PrintCurrentTopic),
        file->addAction(QStringLiteral("Export &PDF..."), this, &mdiMother::ExportPDF),
        file->addAction(QStringLiteral("&Export HTML..."), this, &mdiMother::ExportHTML),
        file->addAction(QStringLiteral("&Send HTML By Email..."), this, &mdiMother::SendMailHTML),
        file->addAction(QStringLiteral("Send &PDF by Email..."), this, &mdiMother::SendMailPDF),
    };
    m_outputActions[0]->setObjectName(QStringLiteral("mnuPrint"));
    m_outputActions[1]->setObjectName(QStringLiteral("mnuPrintTopic"));
    m_outputActions[2]->setObjectName(QStringLiteral("mnuExportPDF"));
    m_outputActions[3]->setObjectName(QStringLiteral("mnuExportHTML"));
    m_outputActions[4]->setObjectName(QStringLiteral("mnuSendHTML"));
    m_outputActions[5]->setObjectName(QStringLiteral("mnuSendPDF"));
    for (QAction *a : m_outputActions)
        a->setEnabled(false);

    file->addSeparator();
    file->addAction(QStringLiteral("E&xit"), this, &QWidget::close);

    QMenu *view = menuBar()->addMenu(QStringLiteral("&View"));
    const struct
    {
        const char *name, *text, *key;
    } bars[] = {{"mnuViewNavBar", "&Navigation Bar", "BotBar"},
                {"mnuViewToolbar", "&Toolbar", "Toolbar"},
                {"mnuViewStatusBar", "&Status Bar", "StatusBar"}};
    for (const auto &b : bars) {
        QAction *a = view->addAction(QString::fromLatin1(b.text));
        a->setObjectName(QString::fromLatin1(b.name));
        a->setCheckable(true);
        a->setChecked(viewSetting(b.key, true).toBool());
        const QString key = QString::fromLatin1(b.key);
        connect(a, &QAction::toggled, this, [this, key](bool on) {
            if (key == QLatin1String("BotBar"))
                bBar->setVisible(on && m_stack->currentWidget() == m_sessionPage);
            else if (key == QLatin1String("Toolbar"))
                m_tools->setVisible(on && m_stack->currentWidget() == m_sessionPage);
            else
                statusBar()->setVisible(on);
            AppSettings::setValue(QStringLiteral("Settings"), key, on);
        });
    }

    view->addSeparator();
    mnuViewTransits = view->addAction(QStringLiteral("Visual &Transits..."), this, &mdiMother::ShowVisualTransits);
    mnuViewTransits->setObjectName(QStringLiteral("mnuViewTransits"));

    m_navigate = menuBar()->addMenu(QStringLiteral("&Navigate"));
    m_navigate->setObjectName(QStringLiteral("mnuNavigate"));
    mnuNavPrev = m_navigate->addAction(QStringLiteral("&Previous Topic"), this, [this] { step(-1); });
    mnuNavPrev->setObjectName(QStringLiteral("mnuNavPrev"));
    mnuNavPrev->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageUp));
    mnuNavNext = m_navigate->addAction(QStringLiteral("&Next Topic"), this, [this] { step(1); });
    mnuNavNext->setObjectName(QStringLiteral("mnuNavNext"));
    mnuNavNext->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_PageDown));
    m_navigate->addSeparator();
    buildNavigateMenus();
    m_navigate->menuAction()->setVisible(false);

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
    settings->addSeparator();
    settings->addAction(QStringLiteral("&Kundli Style..."), this, &mdiMother::ShowChartStyle)
        ->setObjectName(QStringLiteral("mnuSettingsKundStyle"));
    settings->addAction(QStringLiteral("&Page Designer..."), this, &mdiMother::ShowPageDesigner)
        ->setObjectName(QStringLiteral("mnuPageDesigner"));

    m_tools = addToolBar(QStringLiteral("Tools"));
    m_tools->setObjectName(QStringLiteral("tbMain"));
    m_tools->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    const auto tool = [this](const char *key, const char *text, QStyle::StandardPixmap icon) {
        QAction *a = m_tools->addAction(style()->standardIcon(icon), QString::fromLatin1(text));
        a->setObjectName(QString::fromLatin1(key));
        return a;
    };
    connect(tool("Exit", "Exit", QStyle::SP_DialogCloseButton), &QAction::triggered, this, &QWidget::close);
    connect(tool("Entry", "Entry", QStyle::SP_FileDialogBack), &QAction::triggered, this, &mdiMother::ShowEntryScreen);
    m_tools->addSeparator();
    tbPrevious = tool("Previous", "Previous", QStyle::SP_ArrowBack);
    connect(tbPrevious, &QAction::triggered, this, [this] { step(-1); });
    tbNext = tool("Next", "Next", QStyle::SP_ArrowForward);
    connect(tbNext, &QAction::triggered, this, [this] { step(1); });
    tbTopicMap = tool("TopicMap", "Topics", QStyle::SP_FileDialogListView);
    tbTopicMap->setCheckable(true);
    connect(tbTopicMap, &QAction::triggered, this, [this] { ToggleSideList(); });
    m_tools->addSeparator();
    QAction *printTopic = tool("PrintTopic", "Print Topic", QStyle::SP_FileDialogDetailedView);
    QAction *print = tool("Print", "Print", QStyle::SP_DialogSaveButton);
    QAction *pdf = tool("PDFExport", "PDF", QStyle::SP_DriveFDIcon);
    connect(printTopic, &QAction::triggered, this, &mdiMother::PrintCurrentTopic);
    connect(print, &QAction::triggered, this, &mdiMother::PrintIt);
    connect(pdf, &QAction::triggered, this, &mdiMother::ExportPDF);
    m_tools->addSeparator();
    tbTransits = tool("Transits", "Transits", QStyle::SP_BrowserReload);
    connect(tbTransits, &QAction::triggered, this, &mdiMother::ShowVisualTransits);
    // The moving sky waits for a Horoscope session (see BuildTopicList).
    tbTransits->setEnabled(false);
    mnuViewTransits->setEnabled(false);
    // Output and stepping act on topics: they wait until a session has some.
    m_outputActions << printTopic << print << pdf << tbPrevious << tbNext << mnuNavPrev << mnuNavNext;
    for (QAction *a : m_outputActions)
        a->setEnabled(false);
    m_tools->addSeparator();
    m_tools->addWidget(new QLabel(QStringLiteral(" Topic ")));
    m_tools->addWidget(cmbTopic);
    m_tools->setVisible(false);

    m_yearBar = addToolBar(QStringLiteral("Year"));
    m_yearBar->addWidget(new QLabel(QStringLiteral(" Year ")));
    m_years = new QComboBox;
    m_years->setObjectName(QStringLiteral("cmbYearList"));
    m_yearBar->addWidget(m_years);
    // The spin beside the list: a step up or down moves the list by one year within it.
    for (const auto &[name, arrow, by] : {std::tuple{"udYearDown", Qt::LeftArrow, -1}, std::tuple{"udYearUp", Qt::RightArrow, 1}}) {
        auto *b = new QToolButton;
        b->setObjectName(QString::fromLatin1(name));
        b->setArrowType(arrow);
        m_yearBar->addWidget(b);
        connect(b, &QToolButton::clicked, this, [this, by = by] {
            const int index = m_years->currentIndex() + by;
            if (index >= 0 && index < m_years->count())
                m_years->setCurrentIndex(index);
        });
    }
    m_yearBar->setVisible(false);
    // The list holds the birth year and the 99 after it: the index is the age of the year.
    connect(m_years, &QComboBox::currentIndexChanged, this, &mdiMother::ChooseYear);
}

void mdiMother::buildNavigateMenus()
{
    // The numbered lists are fixed; an item leads to the topic its number names, where that topic
    // has its page in this program.
    const struct
    {
        QMenu **menu;
        const char *name, *title;
        int mode;
    } lists[] = {{&mnuHorNav, "mnuHorNav", "&Horoscope Topics", 1},
                 {&mnuVarNav, "mnuVarNav", "&Varshaphala Topics", 4},
                 {&mnuMarNav, "mnuMarNav", "&Marriage Topics", 2}};
    for (const auto &l : lists) {
        QMenu *menu = m_navigate->addMenu(QString::fromLatin1(l.title));
        menu->setObjectName(QString::fromLatin1(l.name));
        *l.menu = menu;
        const QStringList captions = NavigateMenuCaptions(l.mode);
        for (int i = 0; i < captions.size(); ++i) {
            QAction *a = menu->addAction(captions[i]);
            a->setObjectName(QStringLiteral("%1_%2").arg(QString::fromLatin1(l.name)).arg(i));
            // Horoscope mode numbers its topics from 1 after Quick View, which the list has at 0.
            const int fullIndex = l.mode == 1 ? i + 1 : i;
            connect(a, &QAction::triggered, this, [this, fullIndex] {
                for (int t = 0; t < m_topicList.size(); ++t) {
                    if (m_topicList[t].Number == fullIndex) {
                        SelectTopic(t);
                        return;
                    }
                }
            });
        }
        menu->menuAction()->setVisible(false);
    }
}

void mdiMother::AddTopic(const QString &caption, const QString &shortName)
{
    {
        const QSignalBlocker block(cmbTopic);
        cmbTopic->addItem(caption);
    }
    bBar->setItemCount(bBar->ItemCount() + 1);
    bBar->setItemCaption(bBar->ItemCount() - 1, shortName);
    auto *node = new QTreeWidgetItem(tvMap, {caption});
    node->setIcon(0, style()->standardIcon(QStyle::SP_FileIcon)); // the "Page" icon
}

void mdiMother::BuildTopicList(int progMode)
{
    {
        const QSignalBlocker block(cmbTopic);
        cmbTopic->clear();
    }
    bBar->Clear();
    tvMap->clear();
    m_topicList = TopicsForMode(progMode, Session().Language.Extended);
    // The moving sky turns at the birth's place: it belongs to the Horoscope.
    for (QAction *a : {tbTransits, mnuViewTransits}) {
        a->setEnabled(progMode == 1);
        a->setToolTip(progMode == 1 ? QStringLiteral("Visual Transits.") : QStringLiteral("Valid Only in Horoscope Mode."));
    }
    for (const TopicEntry &t : m_topicList)
        AddTopic(t.Caption, t.ShortName);
    // Only the numbered list of this mode shows, its items enabled where the topic is here.
    for (auto [menu, mode] : {std::pair{mnuHorNav, 1}, std::pair{mnuVarNav, 4}, std::pair{mnuMarNav, 2}}) {
        menu->menuAction()->setVisible(mode == progMode);
        const QList<QAction *> items = menu->actions();
        for (int i = 0; i < items.size(); ++i) {
            const int fullIndex = mode == 1 ? i + 1 : i;
            bool here = false;
            for (const TopicEntry &t : m_topicList)
                here = here || t.Number == fullIndex;
            items[i]->setEnabled(here);
        }
    }
    m_navigate->menuAction()->setVisible(true);
}

void mdiMother::SelectTopic(int index)
{
    if (index < 0 || index >= cmbTopic->count())
        return;
    if (cmbTopic->currentIndex() == index)
        cmbTopic_Click(index); // every route ends here, also when the index stays
    else
        cmbTopic->setCurrentIndex(index);
}

void mdiMother::step(int by)
{
    const int index = qBound(0, cmbTopic->currentIndex() + by, cmbTopic->count() - 1);
    if (index != cmbTopic->currentIndex())
        SelectTopic(index);
}

void mdiMother::cmbTopic_Click(int index)
{
    if (index < 0)
        return;
    const bool last = index == cmbTopic->count() - 1;
    tbNext->setEnabled(!last);
    mnuNavNext->setEnabled(!last);
    tbPrevious->setEnabled(index != 0);
    mnuNavPrev->setEnabled(index != 0);
    ShowTopic(index);
    bBar->setSelectedItem(index);
    if (QTreeWidgetItem *node = tvMap->topLevelItem(index))
        tvMap->setCurrentItem(node);
    if (m_active && index < m_topicList.size()) {
        const TopicEntry &t = m_topicList[index];
        // Horoscope pages number as their place in the full list (Quick View shows none); in the
        // other modes the first page keeps its own number and the later ones show their index.
        if (Session().ProgMode == 1)
            m_active->lblPageNo->setText(t.Number == 0 ? QString() : QString::number(t.Number));
        else if (index != 0)
            m_active->lblPageNo->setText(QString::number(index));
    }
}

void mdiMother::ShowTopic(int index)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (m_active)
        m_active->hide();
    m_active = nullptr;
    const int mode = Session().ProgMode;
    if (mode >= 1 && mode <= 4 && index >= 0 && index < m_topicList.size()) {
        const TopicEntry &t = m_topicList[index];
        if (TopicPage *page = m_pages->load(t.Page)) {
            if (t.PageArg > 0)
                page->MakePage(t.PageArg);
            m_pageStack->setCurrentWidget(page);
            page->show();
            m_active = page;
        }
    }
    setWindowTitle(QStringLiteral("Orbanta-") + cmbTopic->itemText(index));
    QApplication::restoreOverrideCursor();
}

void mdiMother::ShowChartStyle()
{
    frmKunEdit editor(this);
    if (editor.exec() == QDialog::Accepted)
        reloadLook();
}

void mdiMother::ShowPageDesigner()
{
    frmColorEnv designer(this);
    if (designer.exec() == QDialog::Accepted)
        reloadLook();
}

void mdiMother::reloadLook()
{
    // A page takes its look when it loads: the open pages are made again in the new look.
    if (!m_active)
        return;
    UnloadPages();
    ShowTopic(cmbTopic->currentIndex());
}

void mdiMother::UnloadPages()
{
    m_active = nullptr;
    m_pages->UnloadPages();
}

TopicPage *mdiMother::loadedPage(const QString &name) const { return m_pages->loaded(name); }
int mdiMother::loadedPageCount() const { return m_pages->count(); }

void mdiMother::ToggleSideList()
{
    const bool show = !m_sidePanel->isVisible();
    m_sidePanel->setVisible(show);
    AppSettings::setValue(QStringLiteral("Settings"), QStringLiteral("TopicListVis"), show);
    tbTopicMap->setChecked(show);
}

void mdiMother::PrintIt() { runPrintScreen(1); }

void mdiMother::ExportPDF() { runPrintScreen(3); }

void mdiMother::ExportHTML()
{
    QString folder;
    if (runPrintScreen(PageOutput::kHtmlMode, QString(), &folder))
        statusBar()->showMessage(
            QStringLiteral("Written to %1").arg(QDir::toNativeSeparators(QDir(folder).filePath(QLatin1String(HtmlBook::kIndexFile)))));
}

void mdiMother::SendMailPDF()
{
    QString file;
    if (!runPrintScreen(3, QString(), &file))
        return;
    frmEmail(frmEmail::Pdf, QFileInfo(file).absolutePath(), {QFileInfo(file).fileName()}, this).exec();
}

void mdiMother::SendMailHTML()
{
    // The pages go into a working folder of their own, emptied first, so that the archive holds
    // this export alone.
    QDir folder(QDir(QStandardPaths::writableLocation(QStandardPaths::CacheLocation)).filePath(QStringLiteral("html")));
    folder.removeRecursively();
    QString path;
    QStringList files;
    if (!runPrintScreen(PageOutput::kHtmlMode, folder.path(), &path, &files))
        return;
    frmEmail(frmEmail::Html, path, files, this).exec();
}

bool mdiMother::runPrintScreen(int mode, const QString &target, QString *path, QStringList *files)
{
    if (m_topicList.isEmpty())
        return false;
    m_active = nullptr;
    bool done = false;
    {
        frmPrint dialog(*m_pages, this);
        dialog.setMode(mode);
        dialog.setTarget(target);
        done = dialog.exec() == QDialog::Accepted && !dialog.exportedPath().isEmpty();
        if (path)
            *path = dialog.exportedPath();
        if (files)
            *files = dialog.exportedFiles();
    }
    UnloadPages();
    ShowTopic(cmbTopic->currentIndex());
    return done;
}

void mdiMother::PrintCurrentTopic()
{
    if (!m_active)
        return;
    QPrinter printer(QPrinter::HighResolution);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QPainter painter;
    if (!painter.begin(&printer)) {
        QMessageBox::warning(this, QStringLiteral("Printer Error"),
                             QStringLiteral("Printer Performed an Invalid Operation. Please Check if Printer is Connected or Has Enough Paper."));
        return;
    }
    painter.scale(printer.resolution() / 96.0, printer.resolution() / 96.0);
    Output().PrintAbort = false;
    Output().PageCounter = 1;
    PageOutput out(&printer, &painter, nullptr);
    if (auto *text = qobject_cast<TextPage *>(m_active))
        out.OutputTextPage(*text);
    else
        out.OutputPage(*m_active);
    painter.end();
    // The page shows its screen number again.
    cmbTopic_Click(cmbTopic->currentIndex());
}

bool mdiMother::ExportHoroscope(const QString &file)
{
    clsPDFExporter pdf;
    pdf.filename = file;
    if (!pdf.StartExport())
        return false;
    frmStatus status(this);
    status.PDFStatus();
    status.show();
    PageOutput out(nullptr, nullptr, &pdf);
    const int count = cmbTopic->count();
    for (int index = 0; index < count; ++index) {
        ++Output().PageCounter;
        SelectTopic(index);
        if (m_active) {
            if (auto *text = qobject_cast<TextPage *>(m_active))
                out.OutputTextPage(*text);
            else
                out.OutputPage(*m_active);
        }
        const int percent = 100 * index / qMax(1, count);
        if (percent <= 100 && status.Proggy->value() < 100)
            status.Proggy->setValue(percent);
    }
    const bool ok = pdf.FinishFile();
    UnloadPages();
    ShowTopic(cmbTopic->currentIndex());
    return ok;
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
                                         : s.ProgMode == 3 && s.CurPlanets ? s.CurPlanets->Person().Name()
                                                                           : m_login->single->cmbName->currentText());
    UnloadPages();
    m_tools->setVisible(viewSetting("Toolbar", true).toBool());
    bBar->setVisible(viewSetting("BotBar", true).toBool());
    m_yearBar->setVisible(s.ProgMode == 4);
    if (s.ProgMode == 4 && s.CurPlanets) {
        const int birthYear = static_cast<int>(Val(m_login->single->txtDate->text().right(4)));
        FillYearList(birthYear);
        const int item = QDate::currentDate().year() - birthYear - 1;
        const QSignalBlocker block(m_years);
        m_years->setCurrentIndex(item >= 0 && item <= 99 ? item : 0);
        Session().VarshaYear = m_years->currentIndex();
        makeYear();
    }
    m_stack->setCurrentWidget(m_sessionPage);
    BuildTopicList(s.ProgMode);
    if (m_topicList.isEmpty()) {
        // A mode whose pages are still to come shows the positions of its charts.
        QString html;
        if (s.ProgMode == 2 && s.BoyPlanets && s.GalPlanets)
            html = summaryOf(*s.BoyPlanets) + summaryOf(*s.GalPlanets);
        else if (s.CurPlanets)
            html = summaryOf(*s.CurPlanets);
        m_summary->setHtml(html);
        m_centre->setCurrentWidget(m_summary);
        setWindowTitle(QStringLiteral("Orbanta"));
        return;
    }
    m_centre->setCurrentWidget(m_pageScroll);
    for (QAction *a : m_outputActions)
        a->setEnabled(true);
    SelectTopic(0);
}

void mdiMother::makeYear()
{
    const QString error = MakeVarsha();
    if (!error.isEmpty())
        QMessageBox::warning(this, QStringLiteral("Varshaphala"), error);
}

void mdiMother::ChooseYear(int index)
{
    if (index < 0 || Session().ProgMode != 4 || !Session().CurPlanets)
        return;
    // The annual pages of the old year go; the new year opens on its front page.
    UnloadPages();
    Session().VarshaYear = index;
    makeYear();
    SelectTopic(0);
}

void mdiMother::ShowEntryScreen()
{
    UnloadPages();
    ReleaseVarsha();
    Session().ReleaseCharts();
    m_tools->setVisible(false);
    m_yearBar->setVisible(false);
    bBar->setVisible(false);
    m_navigate->menuAction()->setVisible(false);
    for (QAction *a : m_outputActions)
        a->setEnabled(false);
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
    UnloadPages();
    ReleaseVarsha();
    Session().ReleaseCharts();
    event->accept();
}

void mdiMother::ShowVisualTransits()
{
    if (Session().ProgMode != 1 || !Session().CurPlanets)
        return;
    // One window at a time; it keeps turning while the user reads the pages. Closed, it is made
    // again for the birth now in session.
    if (m_transits && !m_transits->isVisible())
        delete m_transits;
    if (!m_transits)
        m_transits = new frmVisualTransits(*Session().CurPlanets, this);
    m_transits->show();
    m_transits->raise();
}
