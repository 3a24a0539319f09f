// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The main window: menus, tool bar, status bar, the name strip, and the area that shows the
// entry screen or the session's topics.

#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>
#include <QTextBrowser>

class frmLogin;

class mdiMother : public QMainWindow
{
    Q_OBJECT
public:
    explicit mdiMother(QWidget *parent = nullptr);

    frmLogin *login() const { return m_login; }
    // Back to the entry screen: the session's charts are released, the fields keep their contents.
    void ShowEntryScreen();
    // After Generate: the name strip and the session area.
    void StartSession();
    // The year list of the annual reading: the birth year and the 99 after it.
    void FillYearList(int birthYear);
    QComboBox *cmbYearList() const { return m_years; }
    // When false, closing asks nothing (tests).
    static void setAskOnExit(bool ask);

Q_SIGNALS:
    void settingsRequested(int page);
    void wizardRequested();
    void regionalSettingsRequested();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void buildMenus();
    QStackedWidget *m_stack;
    frmLogin *m_login;
    QWidget *m_sessionPage;
    QLabel *m_nameStrip;
    QTextBrowser *m_summary;
    QToolBar *m_tools;
    QToolBar *m_yearBar;
    QComboBox *m_years;
};
