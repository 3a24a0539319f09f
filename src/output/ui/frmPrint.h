// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The choice of topics to print or to export as PDF: the mode's tree with ticks, the saved page
// sets, and the run over the ticked topics.

#include <QDialog>
#include <QSet>

class QComboBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSpinBox;
class QLineEdit;
class QTreeWidget;
class QTreeWidgetItem;
class PageCache;

class frmPrint : public QDialog
{
    Q_OBJECT
public:
    // pages: the session's loaded pages, which the run uses and unloads at its end.
    explicit frmPrint(PageCache &pages, QWidget *parent = nullptr);

    // 1 print, 3 PDF export (2 reads as 3), 5 HTML export.
    int Mode() const { return m_mode; }
    void setMode(int mode);
    // Where the export goes without asking: the PDF file, or the HTML folder. Empty asks.
    void setTarget(const QString &path) { m_target = path; }
    // After a run that wrote a file: the PDF file, or the HTML folder.
    QString exportedPath() const { return m_exported; }
    // After an HTML run: the files written, relative to the folder.
    QStringList exportedFiles() const { return m_exportedFiles; }

    // The ticked node keys.
    QSet<QString> tickedKeys() const;
    void setTicked(const QString &key, bool on);
    // Runs the walk over the ticked topics; for PDF into file, for HTML into the folder file (asked
    // for when empty and no target is set). True when the walk ran to its end.
    bool cmdPrint_Click(const QString &file = QString());
    void cmdSelSave_Click();
    void cmdSelDel_Click();
    void cmbPageSel_Click();

    QTreeWidget *tvwPrint;
    QComboBox *cmbPageSel;
    QGroupBox *frmSelPages;
    QPushButton *cmdPrint;
    QPushButton *cmdPrintSet;
    QPushButton *cmdSelSave;
    QPushButton *cmdSelDel;
    QLineEdit *txtStartYear;
    QSpinBox *txtYearCount;

private:
    void buildTree();
    void fillSets(const QString &keep = QString());
    void nodeTicked(QTreeWidgetItem *item);
    PageCache &m_pages;
    bool exportHtml(const QString &folder);
    int m_mode = 1;
    QString m_target, m_exported;
    QStringList m_exportedFiles;
    bool m_ticking = false;
};
