// SPDX-License-Identifier: AGPL-3.0-or-later
// The entry screen's Muhurtha mode: the act, the span, the clock times, the couple of a marriage
// and the place; Generate checks them and runs the search under the status window.
#include "session/ui/frmLogin.h"

#include "muhurtha/MuhurthaSpan.h"
#include "output/ui/frmStatus.h"
#include "session/Session.h"
#include "sky/Functions.h"

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QProgressBar>
#include <QSettings>

namespace {

QLineEdit *maskedField(const QString &mask, const QString &text, int width, const char *name)
{
    auto *e = new QLineEdit;
    e->setInputMask(mask);
    e->setText(text);
    e->setFixedWidth(width);
    e->setObjectName(QString::fromLatin1(name));
    return e;
}

// The status window as the search's progress: its bar follows the days, its button stops the run.
class StatusProgress : public MuhurthaProgress
{
public:
    // Modal: while the search yields to the window's events, nothing else on screen may start.
    explicit StatusProgress(QWidget *parent) : m_status(parent) { m_status.setWindowModality(Qt::ApplicationModal); }
    void start(const QString &, const QString &) override
    {
        m_status.MuhurthaStatus();
        m_status.Proggy->setValue(0);
        m_status.show();
        QApplication::processEvents();
    }
    bool progress(double percent) override
    {
        m_status.Proggy->setValue(static_cast<int>(percent));
        QApplication::processEvents();
        return !m_status.CancelRequested();
    }
    void finish() override { m_status.hide(); }
    frmStatus &status() { return m_status; }

private:
    frmStatus m_status;
};

EntryMessage muhuMessage(const QString &text) { return {0, text, QStringLiteral("Muhurtha")}; }

} // namespace

void frmLogin::buildMuhurthaPanel()
{
    frmMuhu = new QGroupBox(QStringLiteral("Muhurtha: choose the act and the span of days to search"));
    frmMuhu->setObjectName(QStringLiteral("frmMuhu"));
    lstMuhu = new QListWidget;
    lstMuhu->setObjectName(QStringLiteral("lstMuhu"));
    lstMuhu->setMinimumHeight(170);
    const QDate today = QDate::currentDate();
    txtMuhuFrom = maskedField(QStringLiteral("00/00/0000"), today.toString(QStringLiteral("dd/MM/yyyy")), 90, "txtMuhuFrom");
    txtMuhuTo = maskedField(QStringLiteral("00/00/0000"), today.addMonths(3).toString(QStringLiteral("dd/MM/yyyy")), 90, "txtMuhuTo");
    txtMuhuStart = maskedField(QStringLiteral("00.00"), QStringLiteral("06.00"), 60, "txtMuhuStart");
    txtMuhuEnd = maskedField(QStringLiteral("00.00"), QStringLiteral("18.00"), 60, "txtMuhuEnd");
    cmbMuhuBoy = new QComboBox;
    cmbMuhuBoy->setObjectName(QStringLiteral("cmbMuhuBoy"));
    cmbMuhuGal = new QComboBox;
    cmbMuhuGal->setObjectName(QStringLiteral("cmbMuhuGal"));
    for (QComboBox *c : {cmbMuhuBoy, cmbMuhuGal})
        c->setMinimumWidth(200);

    auto *grid = new QGridLayout(frmMuhu);
    grid->setHorizontalSpacing(8);
    grid->addWidget(lstMuhu, 0, 0, 1, 5);
    grid->setColumnStretch(4, 1); // the fields keep to the left
    grid->addWidget(new QLabel(QStringLiteral("From")), 1, 0);
    grid->addWidget(txtMuhuFrom, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("To")), 1, 2, Qt::AlignRight);
    grid->addWidget(txtMuhuTo, 1, 3, Qt::AlignLeft);
    grid->addWidget(new QLabel(QStringLiteral("Each day from")), 2, 0);
    grid->addWidget(txtMuhuStart, 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("until")), 2, 2, Qt::AlignRight);
    grid->addWidget(txtMuhuEnd, 2, 3, Qt::AlignLeft);
    frmMuhuCouple = new QWidget;
    auto *couple = new QGridLayout(frmMuhuCouple);
    couple->setContentsMargins(0, 0, 0, 0);
    couple->addWidget(new QLabel(QStringLiteral("Groom")), 0, 0);
    couple->addWidget(cmbMuhuBoy, 0, 1);
    couple->addWidget(new QLabel(QStringLiteral("Bride")), 1, 0);
    couple->addWidget(cmbMuhuGal, 1, 1);
    couple->setColumnStretch(2, 1);
    grid->addWidget(frmMuhuCouple, 3, 0, 1, 5);
    frmMuhuCouple->hide();
    frmMuhu->hide();

    muhuPlace = new BirthPanel(QStringLiteral("Muhu"), false);
    muhuPlace->setTitle(QStringLiteral("Place of the Muhurtha"));
    muhuPlace->ShowPlaceOnly();
    muhuPlace->hide();

    clsMuhurtha acts;
    m_acts = acts.Acts();
    lstMuhu->addItems(acts.FillMuhuList());
    connect(lstMuhu, &QListWidget::currentRowChanged, this, [this] { muhuActChosen(); });
    for (QLineEdit *e : {txtMuhuFrom, txtMuhuStart})
        connect(e, &QLineEdit::editingFinished, this, [this] {
            syncMuhuPlace();
            if (!muhuPlace->placeZone.isEmpty())
                applyZoneHistory(muhuPlace);
        });
}

void frmLogin::cmdMuhurtha_Click()
{
    frmSingleGuy->hide();
    frmMatch->hide();
    frmMuhu->show();
    muhuPlace->show();
    Session().ProgMode = 3;
    if (lstMuhu->currentRow() < 0 && lstMuhu->count() > 0)
        lstMuhu->setCurrentRow(0);
    if (lstMuhu->count() == 0)
        postText(QStringLiteral("The list of acts is empty: the file %1 is missing or holds no acts.")
                     .arg(QDir::toNativeSeparators(clsMuhurtha::DefaultPath())));
    else
        postText(QStringLiteral("Choose the act, the span of days and the clock times to search, and the place where the act "
                                "will be done; then press Generate."));
    saveStartMode(QStringLiteral("Muhu"));
}

void frmLogin::muhuActChosen()
{
    const int row = lstMuhu->currentRow();
    const bool marriage = row >= 0 && row < static_cast<int>(m_acts.size())
        && m_acts[static_cast<size_t>(row)].category.toUpper() == QLatin1String("MARRIAGE");
    frmMuhuCouple->setVisible(marriage);
}

void frmLogin::syncMuhuPlace()
{
    muhuPlace->txtDate->setText(txtMuhuFrom->text());
    muhuPlace->txtTime->setText(txtMuhuStart->text());
}

bool frmLogin::generateMuhurtha()
{
    const int row = lstMuhu->currentRow();
    if (row < 0 || row >= static_cast<int>(m_acts.size())) {
        showMessage(muhuMessage(QStringLiteral("Choose the act from the list.")));
        return false;
    }
    const MuhuAct act = m_acts[static_cast<size_t>(row)];
    const QDate from = ParseEntryDate(txtMuhuFrom->text());
    const QDate to = ParseEntryDate(txtMuhuTo->text());
    const QString spanMessage = CheckMuhuSpan(from, to);
    if (!spanMessage.isEmpty()) {
        showMessage(muhuMessage(spanMessage));
        return false;
    }
    const auto start = ReadMuhuClock(txtMuhuStart->text());
    if (!start) {
        showMessage(muhuMessage(MuhuClockMessage(QStringLiteral("start"))));
        return false;
    }
    const auto end = ReadMuhuClock(txtMuhuEnd->text());
    if (!end) {
        showMessage(muhuMessage(MuhuClockMessage(QStringLiteral("end"))));
        return false;
    }
    const bool marriage = act.category.toUpper() == QLatin1String("MARRIAGE");
    std::optional<PersonRow> groom, bride;
    if (marriage) {
        groom = store().FindPerson(cmbMuhuBoy->currentText());
        bride = store().FindPerson(cmbMuhuGal->currentText());
        if (!groom || !bride) {
            showMessage(muhuMessage(QStringLiteral("A marriage muhurtha reads the charts of the groom and the bride: choose both "
                                                   "from the stored persons (save them first in Horoscope mode).")));
            return false;
        }
    }
    syncMuhuPlace();
    if (!ValidateEntry())
        return false;

    auto muhu = std::make_unique<clsMuhurtha>();
    if (!muhu->IsOpen()) {
        showMessage(muhuMessage(QStringLiteral("The Muhurtha database %1 is missing.").arg(QDir::toNativeSeparators(muhu->FilePath()))));
        return false;
    }
    SessionGlobals &s = Session();
    s.ReleaseCharts();
    s.CurPlanets = std::make_unique<clsPlanets>();
    s.CurPlanets->setTextDB(s.TextDB, s.RecDB);
    fillPerson(muhuPlace, s.CurPlanets->Person(), 1);
    if (marriage) {
        FillFromRecord(boy, *groom);
        FillFromRecord(gal, *bride);
        s.BoyPlanets = std::make_unique<clsPlanets>();
        s.GalPlanets = std::make_unique<clsPlanets>();
        for (clsPlanets *c : {s.BoyPlanets.get(), s.GalPlanets.get()})
            c->setTextDB(s.TextDB, s.RecDB);
        fillPerson(boy, s.BoyPlanets->Person(), 1);
        fillPerson(gal, s.GalPlanets->Person(), 2);
        s.BoyPlanets->Calculate();
        s.GalPlanets->Calculate();
        s.CurPlanets->Person().setName(groom->Name + QStringLiteral(" & ") + bride->Name);
    } else {
        s.CurPlanets->Person().setName(act.name);
    }
    s.CurPlanets->Calculate();

    muhu->setTextDB(s.TextDB);
    muhu->setNatalCharts(nullptr, s.BoyPlanets.get(), s.GalPlanets.get());
    StatusProgress progress(this);
    muhu->setProgress(&progress);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    muhu->CheckMuhurtha(act.name, act.category, from, to, *start, *end, *s.CurPlanets);
    QApplication::restoreOverrideCursor();
    muhu->setProgress(nullptr);
    if (muhu->Cancelled() || !muhu->HasResult()) {
        s.ReleaseCharts();
        postText(muhu->Cancelled() ? QStringLiteral("The search was stopped before its end; nothing was chosen.")
                                   : QStringLiteral("The span held no moment to search."));
        return false;
    }
    s.Muhurtha = std::move(muhu);
    Q_EMIT generated();
    return true;
}
