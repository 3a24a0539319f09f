// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The main window: menus, tool bar, status bar, the name strip, and the area that shows the
// entry screen or the session's topics. After Generate one topic page shows at a time; the
// topic list, the tree, the navigation bar, the Navigate menu and Next/Previous all lead to the
// same current topic, the list's index.

#include "output/TopicList.h"

#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QStackedWidget>
#include <QTextBrowser>

#include <memory>

class frmLogin;
class BottomBar;
class TopicPage;
class PageCache;
class QTreeWidget;
class QScrollArea;
class QSplitter;
class QMenu;
class frmVisualTransits;

class mdiMother : public QMainWindow
{
    Q_OBJECT
public:
    explicit mdiMother(QWidget *parent = nullptr);
    ~mdiMother() override;

    frmLogin *login() const { return m_login; }
    // Back to the entry screen: the pages are unloaded and the session's charts released; the
    // fields keep their contents.
    void ShowEntryScreen();
    // Opens the moving sky at the place of the session's birth (Horoscope mode only).
    void ShowVisualTransits();
    // After Generate: the name strip, the topic list of the mode and its first topic.
    void StartSession();
    // The year list of the annual reading: the birth year and the 99 after it.
    void FillYearList(int birthYear);
    QComboBox *cmbYearList() const { return m_years; }
    // A choice in the year list: the annual chart of that index (the age) is cast anew, the old
    // year's pages unloaded, and the front page shown.
    void ChooseYear(int index);
    // When false, closing asks nothing (tests).
    static void setAskOnExit(bool ask);

    // Topic navigation.
    void AddTopic(const QString &caption, const QString &shortName);
    void BuildTopicList(int progMode);
    void SelectTopic(int index);
    void ShowTopic(int index);
    // Releases every loaded page; the current topic is shown again with fresh pages.
    void UnloadPages();
    // The chart style editor and the page designer; a saved change shows on the open topic at once.
    void ShowChartStyle();
    void ShowPageDesigner();
    void ToggleSideList();
    // The print screen over the session's topics; "Export PDF" is the same screen in its PDF mode.
    void PrintIt();
    void ExportPDF();
    // The print screen in its HTML mode: the chosen topics as Index.HTML and pictures in a folder.
    void ExportHTML();
    // The chosen topics exported (to a PDF file the user names, or as HTML into a working
    // folder), then the mail screen with the export as its attachment.
    void SendMailPDF();
    void SendMailHTML();
    // The page on view alone, on the printer.
    void PrintCurrentTopic();
    // Every topic of the list into file, without the selection screen. True when written.
    bool ExportHoroscope(const QString &file);
    // The page of the current topic, when one is shown.
    TopicPage *activePage() const { return m_active; }
    // A loaded page by name, or nullptr.
    TopicPage *loadedPage(const QString &name) const;
    int loadedPageCount() const;
    // The session's pages, as printing and export load them.
    PageCache &pages() { return *m_pages; }
    const QList<TopicEntry> &topics() const { return m_topicList; }

    QComboBox *cmbTopic;
    QTreeWidget *tvMap;
    BottomBar *bBar;
    QAction *mnuNavNext;
    QAction *mnuNavPrev;
    QAction *tbNext;
    QAction *tbPrevious;
    QAction *tbTopicMap;
    QAction *tbTransits;
    QAction *mnuViewTransits;
    QMenu *mnuHorNav;
    QMenu *mnuVarNav;
    QMenu *mnuMarNav;

Q_SIGNALS:
    void settingsRequested(int page);
    void wizardRequested();
    void regionalSettingsRequested();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenus();
    void buildNavigateMenus();
    void cmbTopic_Click(int index);
    // The print screen in mode 1 (print), 3 (PDF) or 5 (HTML), writing to target when given (else
    // it asks); the pages are made afresh afterwards. True when the run wrote its output; the PDF
    // file or HTML folder in *path, the HTML files in *files.
    bool runPrintScreen(int mode, const QString &target = QString(), QString *path = nullptr, QStringList *files = nullptr);
    void step(int by);
    void reloadLook();
    // The reading of the session's year, with a message when it can't be cast.
    void makeYear();
    QStackedWidget *m_stack;
    frmLogin *m_login;
    QWidget *m_sessionPage;
    QLabel *m_nameStrip;
    QTextBrowser *m_summary;
    QSplitter *m_split;
    QWidget *m_sidePanel;
    QStackedWidget *m_centre;
    QScrollArea *m_pageScroll;
    QStackedWidget *m_pageStack;
    QToolBar *m_tools;
    QToolBar *m_yearBar;
    QComboBox *m_years;
    QMenu *m_navigate;
    QList<TopicEntry> m_topicList;
    std::unique_ptr<PageCache> m_pages;
    TopicPage *m_active = nullptr;
    QList<QAction *> m_outputActions;
    QPointer<frmVisualTransits> m_transits;
};
