// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/frmPrint.h"

#include "output/PageSets.h"
#include "output/PrintTree.h"
#include "output/ui/HtmlExport.h"
#include "output/ui/PageCache.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PrintRun.h"
#include "output/ui/frmStatus.h"
#include "session/Session.h"
#include "sky/Functions.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
constexpr int kKeyRole = Qt::UserRole;
constexpr int kParentRole = Qt::UserRole + 1;
constexpr int kMaxYears = 10; // years one annual run prints at most

QString personName(const clsPlanets *c) { return c ? c->Person().Name() : QString(); }
} // namespace

frmPrint::frmPrint(PageCache &pages, QWidget *parent) : QDialog(parent), m_pages(pages)
{
    setObjectName(QStringLiteral("frmPrint"));
    auto *v = new QVBoxLayout(this);
    frmSelPages = new QGroupBox;
    auto *sets = new QGridLayout(frmSelPages);
    cmbPageSel = new QComboBox;
    cmbPageSel->setObjectName(QStringLiteral("cmbPageSel"));
    cmbPageSel->setEditable(true);
    cmbPageSel->lineEdit()->setMaxLength(PageSets::kMaxName);
    cmdSelSave = new QPushButton(QStringLiteral("&Save Set"));
    cmdSelDel = new QPushButton(QStringLiteral("&Delete Set"));
    sets->addWidget(cmbPageSel, 0, 0, 1, 2);
    sets->addWidget(cmdSelSave, 1, 0);
    sets->addWidget(cmdSelDel, 1, 1);
    auto *hint = new QLabel(QStringLiteral("To make a new set, write its name and press 'Save Set'"));
    hint->setWordWrap(true);
    sets->addWidget(hint, 2, 0, 1, 2);
    sets->setRowStretch(3, 1);

    tvwPrint = new QTreeWidget;
    tvwPrint->setObjectName(QStringLiteral("tvwPrint"));
    tvwPrint->setHeaderHidden(true);
    tvwPrint->setMinimumSize(420, 380);

    auto *years = new QHBoxLayout;
    txtStartYear = new QLineEdit;
    txtStartYear->setObjectName(QStringLiteral("txtStartYear"));
    txtYearCount = new QSpinBox;
    txtYearCount->setObjectName(QStringLiteral("txtYearCount"));
    txtYearCount->setRange(1, kMaxYears);
    years->addWidget(new QLabel(QStringLiteral("Start Year")));
    years->addWidget(txtStartYear);
    years->addWidget(new QLabel(QStringLiteral("Years")));
    years->addWidget(txtYearCount);

    auto *buttons = new QHBoxLayout;
    cmdPrint = new QPushButton;
    cmdPrint->setObjectName(QStringLiteral("cmdPrint"));
    cmdPrint->setDefault(true);
    cmdPrintSet = new QPushButton(QStringLiteral("Print &Setup"));
    auto *cancel = new QPushButton(QStringLiteral("&Cancel"));
    buttons->addWidget(cmdPrintSet);
    buttons->addStretch(1);
    buttons->addWidget(cmdPrint);
    buttons->addWidget(cancel);

    auto *top = new QHBoxLayout;
    top->addWidget(tvwPrint, 1);
    top->addWidget(frmSelPages);
    v->addLayout(top);
    v->addLayout(years);
    v->addLayout(buttons);

    const SessionGlobals &s = Session();
    const bool annual = s.ProgMode == 4;
    for (int i = 0; i < years->count(); ++i)
        if (QWidget *w = years->itemAt(i)->widget())
            w->setVisible(annual);
    if (annual && s.CurPlanets)
        txtStartYear->setText(QString::number(s.CurPlanets->Person().Year() + s.VarshaYear));

    buildTree();
    fillSets();
    setMode(1);
    connect(tvwPrint, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item) { nodeTicked(item); });
    connect(cmbPageSel, &QComboBox::activated, this, [this] { cmbPageSel_Click(); });
    connect(cmdSelSave, &QPushButton::clicked, this, &frmPrint::cmdSelSave_Click);
    connect(cmdSelDel, &QPushButton::clicked, this, &frmPrint::cmdSelDel_Click);
    connect(cmdPrint, &QPushButton::clicked, this, [this] {
        if (cmdPrint_Click())
            accept();
    });
    connect(cmdPrintSet, &QPushButton::clicked, this, [this] {
        QPrinter printer;
        QPageSetupDialog(&printer, this).exec();
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    if (cmbPageSel->count() > 0) {
        cmbPageSel->setCurrentIndex(0);
        cmbPageSel_Click();
    }
}

void frmPrint::setMode(int mode)
{
    m_mode = mode == 1 ? 1 : mode == PageOutput::kHtmlMode ? mode : 3;
    const bool print = m_mode == 1;
    const QString format = m_mode == 3 ? QStringLiteral("PDF") : QStringLiteral("HTML");
    setWindowTitle(print ? QStringLiteral("Select Topics To Print") : QStringLiteral("Select Topics To Export ") + format);
    frmSelPages->setTitle(print ? QStringLiteral("Select Page Set To Print") : QStringLiteral("Select Page Set To Export ") + format);
    cmdPrint->setText(print ? QStringLiteral("&Print") : QStringLiteral("&Export"));
    cmdPrintSet->setEnabled(print);
}

void frmPrint::buildTree()
{
    const QSignalBlocker block(tvwPrint);
    tvwPrint->clear();
    QHash<QString, QTreeWidgetItem *> byName;
    for (const PrintNode &n : PrintTreeForMode(Session().ProgMode, Session().Language.Extended)) {
        QTreeWidgetItem *parent = byName.value(n.Parent);
        auto *item = parent ? new QTreeWidgetItem(parent, {n.Caption}) : new QTreeWidgetItem(tvwPrint, {n.Caption});
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(0, Qt::Checked);
        item->setData(0, kKeyRole, n.Key);
        item->setData(0, kParentRole, n.ParentCaption);
        if (!parent)
            item->setData(0, kKeyRole, QStringLiteral("Main"));
        byName.insert(n.Key.isEmpty() ? n.Caption : n.Key, item);
    }
    tvwPrint->expandAll();
}

void frmPrint::nodeTicked(QTreeWidgetItem *item)
{
    if (m_ticking)
        return;
    m_ticking = true;
    const Qt::CheckState state = item->checkState(0);
    QTreeWidgetItemIterator it(tvwPrint);
    const bool root = item->data(0, kKeyRole).toString() == QLatin1String("Main");
    for (; *it; ++it) {
        // The root gives its state to every node; another node to the nodes whose parent bears its caption.
        if (root || (*it)->data(0, kParentRole).toString() == item->text(0))
            (*it)->setCheckState(0, state);
    }
    m_ticking = false;
}

QSet<QString> frmPrint::tickedKeys() const
{
    QSet<QString> out;
    for (QTreeWidgetItemIterator it(tvwPrint); *it; ++it)
        if ((*it)->checkState(0) == Qt::Checked && !(*it)->data(0, kKeyRole).toString().isEmpty())
            out.insert((*it)->data(0, kKeyRole).toString());
    return out;
}

void frmPrint::setTicked(const QString &key, bool on)
{
    for (QTreeWidgetItemIterator it(tvwPrint); *it; ++it)
        if ((*it)->data(0, kKeyRole).toString() == key)
            (*it)->setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
}

void frmPrint::fillSets(const QString &keep)
{
    cmbPageSel->clear();
    cmbPageSel->addItems(PageSets::Names(Session().RecDB, Session().ProgMode));
    if (!keep.isEmpty())
        cmbPageSel->setEditText(keep);
}

void frmPrint::cmbPageSel_Click()
{
    const QString name = cmbPageSel->currentText();
    if (name.isEmpty())
        return;
    QStringList keys;
    for (QTreeWidgetItemIterator it(tvwPrint); *it; ++it)
        keys << (*it)->data(0, kKeyRole).toString();
    const QHash<QString, bool> ticks = PageSets::Read(name, Session().ProgMode, keys);
    m_ticking = true;
    for (QTreeWidgetItemIterator it(tvwPrint); *it; ++it)
        (*it)->setCheckState(0, ticks.value((*it)->data(0, kKeyRole).toString(), true) ? Qt::Checked : Qt::Unchecked);
    m_ticking = false;
}

void frmPrint::cmdSelSave_Click()
{
    const QString name = cmbPageSel->currentText().trimmed();
    QHash<QString, bool> ticks;
    for (QTreeWidgetItemIterator it(tvwPrint); *it; ++it)
        if (!(*it)->data(0, kKeyRole).toString().isEmpty())
            ticks.insert((*it)->data(0, kKeyRole).toString(), (*it)->checkState(0) == Qt::Checked);
    if (!PageSets::Save(Session().RecDB, name, Session().ProgMode, ticks))
        return;
    fillSets(name);
}

void frmPrint::cmdSelDel_Click()
{
    PageSets::Delete(Session().RecDB, cmbPageSel->currentText().trimmed(), Session().ProgMode);
    fillSets();
    if (cmbPageSel->count() > 0) {
        cmbPageSel->setCurrentIndex(0);
        cmbPageSel_Click();
    }
}

bool frmPrint::cmdPrint_Click(const QString &file)
{
    const SessionGlobals &s = Session();
    Output().PrintAbort = false;
    const QList<PrintStep> steps = SelectedSteps(s.ProgMode, s.Language.Extended, tickedKeys());
    // The annual walk starts at an age of the year list; anything else is refused before any output opens.
    const bool annual = s.ProgMode == 4 && s.CurPlanets;
    const int firstAge = annual ? static_cast<int>(Val(txtStartYear->text())) - static_cast<int>(s.CurPlanets->Person().Year()) : 0;
    if (annual && (firstAge < 0 || firstAge > 99)) {
        QMessageBox::warning(this, QStringLiteral("Varshaphala"),
                             QStringLiteral("The start year must lie within the birth year and the 99 years after it."));
        return false;
    }

    m_exported.clear();
    m_exportedFiles.clear();
    if (m_mode == PageOutput::kHtmlMode) {
        QString folder = file.isEmpty() ? m_target : file;
        if (folder.isEmpty())
            folder = QFileDialog::getExistingDirectory(this, QStringLiteral("Export HTML"),
                                                       QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
        if (folder.isEmpty())
            return false; // cancelled: nothing written
        return exportHtml(folder);
    }

    clsPDFExporter pdf;
    QPrinter printer(QPrinter::HighResolution);
    QPainter painter;
    if (m_mode == 3) {
        pdf.filename = file.isEmpty() ? m_target : file;
        if (pdf.filename.isEmpty()) {
            const QString name = DefaultPdfName(s.ProgMode, personName(s.CurPlanets.get()), personName(s.BoyPlanets.get()),
                                                personName(s.GalPlanets.get()));
            pdf.filename = QFileDialog::getSaveFileName(
                this, QStringLiteral("Save"),
                QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(name),
                QStringLiteral("Portable Document Format (.PDF) (*.PDF *.pdf)"));
            if (pdf.filename.isEmpty())
                return false; // cancelled: no file
        }
        if (!pdf.StartExport()) {
            QMessageBox::warning(this, QStringLiteral("Error Printing"),
                                 QStringLiteral("The file %1 can't be written.").arg(QDir::toNativeSeparators(pdf.filename)));
            return false;
        }
    } else {
        QPrintDialog dialog(&printer, this);
        if (dialog.exec() != QDialog::Accepted)
            return false;
    }

    // Numbering starts once the output is open: opening a PDF resets the counter.
    Output().PageCounter = 1;
    frmStatus status(this);
    m_mode == 3 ? status.PDFStatus() : status.PrintStatus();
    status.show();
    const auto beginJob = [&] {
        if (!painter.begin(&printer))
            return false;
        painter.scale(printer.resolution() / 96.0, printer.resolution() / 96.0);
        return true;
    };
    if (m_mode == 1 && !beginJob())
        Output().PrintAbort = true;
    PageOutput out(m_mode == 1 ? &printer : nullptr, m_mode == 1 ? &painter : nullptr, m_mode == 3 ? &pdf : nullptr);
    PrintRunHooks hooks;
    hooks.progress = [&status](int percent) { status.Proggy->setValue(percent); };
    // The front page is a job of its own on a real printer; a file keeps one document.
    hooks.frontPageDone = [&] {
        if (printer.outputFormat() == QPrinter::NativeFormat && painter.isActive()) {
            painter.end();
            beginJob();
        }
    };
    if (annual) {
        // Each year of the span gets its own reading and pages; the years end with the list's
        // hundredth.
        QString error;
        WalkAnnualYears(steps, m_pages, out, firstAge, qMin(txtYearCount->value(), 100 - firstAge), hooks, &error);
        if (!error.isEmpty())
            QMessageBox::warning(this, QStringLiteral("Varshaphala"), error);
    } else {
        WalkSteps(steps, m_pages, out, hooks);
    }
    if (painter.isActive())
        painter.end();
    bool ok = true;
    if (m_mode == 3 && !pdf.FinishFile()) {
        ok = false;
        QMessageBox::warning(this, QStringLiteral("Error Printing"),
                             QStringLiteral("The file %1 could not be completed.").arg(QDir::toNativeSeparators(pdf.filename)));
    }
    m_pages.UnloadPages();
    if (ok && m_mode == 3)
        m_exported = pdf.filename;
    return ok;
}

bool frmPrint::exportHtml(const QString &folder)
{
    const SessionGlobals &s = Session();
    Output().PrintAbort = false;
    clsHtmlExporter html;
    html.folder = folder;
    QString why;
    if (!html.StartExport(&why)) {
        QMessageBox::warning(this, QStringLiteral("Export HTML"), why);
        return false;
    }
    frmStatus status(this);
    status.ExportStatus();
    status.show();
    PageOutput out(&html);
    PrintRunHooks hooks;
    hooks.progress = [&status](int percent) { status.Proggy->setValue(percent); };
    const QList<PrintStep> steps = SelectedSteps(s.ProgMode, s.Language.Extended, tickedKeys());
    if (s.ProgMode == 4 && s.CurPlanets) {
        const int firstAge = static_cast<int>(Val(txtStartYear->text())) - static_cast<int>(s.CurPlanets->Person().Year());
        QString error;
        WalkAnnualYears(steps, m_pages, out, firstAge, qMin(txtYearCount->value(), 100 - firstAge), hooks, &error);
        if (!error.isEmpty())
            QMessageBox::warning(this, QStringLiteral("Varshaphala"), error);
    } else {
        WalkSteps(steps, m_pages, out, hooks);
    }
    m_pages.UnloadPages();
    if (!html.FinishFile(&why)) {
        QMessageBox::warning(this, QStringLiteral("Export HTML"), why);
        return false;
    }
    m_exported = folder;
    m_exportedFiles = html.files();
    return true;
}
