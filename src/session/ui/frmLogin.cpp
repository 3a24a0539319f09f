// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/frmLogin.h"

#include "text/TextDB.h"

#include "sky/AppSettings.h"
#include "sky/DataPaths.h"
#include "session/Hints.h"
#include "session/Languages.h"
#include "session/Session.h"
#include "session/ZoneHistory.h"
#include "session/clsCity.h"
#include "sky/Functions.h"

#include <QApplication>
#include <QDateTime>
#include <QEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QSettings>
#include <QSqlQuery>
#include <QVBoxLayout>

#include <array>

namespace {
frmLogin::MessageHandler g_messageHandler;

// The program's own INI file of the installation's choices (language, mode), in the user's folder.
QSettings gendat()
{
    return QSettings(DataPaths::UserFolder() + QStringLiteral("/GENDAT.INI"), QSettings::IniFormat);
}

// A field whose leaving is checked, by the panel's field and its check.
std::optional<EntryMessage> fieldCheck(BirthPanel *p, QWidget *field)
{
    const QString title = QStringLiteral("Orbanta");
    if (field == p->txtDate)
        return CheckDateField(p->txtDate->text());
    if (field == p->txtTime)
        return CheckTimeField(p->txtTime->text());
    if (field == p->txtGMT)
        return CheckGmtField(p->txtGMT->text(), title);
    if (field == p->txtLati)
        return CheckLatitudeField(p->txtLati->text(), title);
    if (field == p->txtLongi)
        return CheckLongitudeField(p->txtLongi->text());
    return std::nullopt;
}

class FieldGuard : public QObject
{
public:
    FieldGuard(frmLogin *screen, BirthPanel *panel, std::function<bool(BirthPanel *, QWidget *)> check)
        : QObject(panel), m_panel(panel), m_check(std::move(check))
    {
        Q_UNUSED(screen);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusOut && !m_busy) {
            m_busy = true;
            auto *w = static_cast<QWidget *>(watched);
            if (!m_check(m_panel, w)) {
                if (auto *e = qobject_cast<QLineEdit *>(w))
                    e->selectAll();
                w->setFocus();
            }
            m_busy = false;
        }
        return false;
    }

private:
    BirthPanel *m_panel;
    std::function<bool(BirthPanel *, QWidget *)> m_check;
    bool m_busy = false;
};
} // namespace

void frmLogin::setMessageHandler(MessageHandler handler) { g_messageHandler = std::move(handler); }

frmLogin::frmLogin(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("frmLogin"));
    single = new BirthPanel(QString(), true);
    boy = new BirthPanel(QStringLiteral("Boy"), false);
    gal = new BirthPanel(QStringLiteral("Gal"), false);
    frmSingleGuy = single;
    frmSingleGuy->setObjectName(QStringLiteral("frmSingleGuy"));
    frmSingleGuy->setTitle(QStringLiteral("Horoscope"));
    boy->setTitle(QStringLiteral("Fill the Male's details here."));
    gal->setTitle(QStringLiteral("Fill the Female's details here."));
    frmMatch = new QWidget;
    frmMatch->setObjectName(QStringLiteral("frmMatch"));
    auto *match = new QVBoxLayout(frmMatch);
    match->setContentsMargins(0, 0, 0, 0);
    match->addWidget(boy);
    match->addWidget(gal);
    frmMatch->hide();
    buildMuhurthaPanel();

    tbTools = new QToolBar;
    tbTools->setObjectName(QStringLiteral("tbTools"));
    tbTools->setToolButtonStyle(Qt::ToolButtonTextOnly);
    const struct
    {
        const char *key, *text;
        int hint;
        std::function<void()> run;
    } tools[] = {
        {"Save", "&Save", 105, [this] { SavePerson(); }},
        {"Delete", "&Delete", 106, [this] { DeletePerson(); }},
        {"SaveFile", "Save to File", 122, [this] { ExportPersonFile(); }},
        {"GetFile", "Get from File", 123, [this] { ImportPersons(false); }},
        {"SaveDB", "Export All", 124, [this] { ExportPersonDB(); }},
        {"GetDB", "Merge File", 125, [this] { ImportPersons(true); }},
    };
    for (const auto &t : tools) {
        QAction *a = tbTools->addAction(QString::fromLatin1(t.text), this, t.run);
        a->setObjectName(QString::fromLatin1(t.key));
        a->setToolTip(HintText(t.hint));
    }
    // The person's tools belong to the single person's frame, below its fields: away from the
    // main window's tool bar, and hidden with the frame in Marriage mode.
    single->addFooter(tbTools);

    cmdHoroscope = new QPushButton(QStringLiteral("&Horoscope"));
    cmdMatch = new QPushButton(QStringLiteral("&Marriage"));
    cmdVarshaphala = new QPushButton(QStringLiteral("&Varshaphala"));
    cmdMuhurtha = new QPushButton(QStringLiteral("M&uhurtha"));
    cmdMuhurtha->setObjectName(QStringLiteral("cmdMuhurtha"));
    cmdGenerate = new QPushButton(QStringLiteral("&Generate"));
    cmdOptions = new QPushButton(QStringLiteral("&Options"));
    cmdGenerate->setDefault(true);
    cmbLangu = new QComboBox;
    cmbLangu->setObjectName(QStringLiteral("cmbLangu"));
    lblHints = new QLabel;
    lblHints->setObjectName(QStringLiteral("lblHints"));
    lblHints->setWordWrap(true);
    lblHints->setMinimumHeight(44);
    lblHints->setFrameShape(QFrame::StyledPanel);
    lblHints->setMargin(6);
    cmdUndoDelete = new QPushButton(QStringLiteral("&Undo Delete"));
    cmdUndoDelete->setObjectName(QStringLiteral("cmdUndoDelete"));
    cmdUndoDelete->setToolTip(QStringLiteral("Bring back the person deleted last."));
    cmdUndoDelete->hide();
    for (QPushButton *b : {cmdHoroscope, cmdMatch, cmdVarshaphala, cmdMuhurtha, cmdGenerate, cmdOptions})
        b->setMinimumWidth(110);
    cmdOptions->installEventFilter(this);
    cmbLangu->installEventFilter(this);

    auto *modes = new QVBoxLayout;
    modes->addWidget(cmdHoroscope);
    modes->addWidget(cmdMatch);
    modes->addWidget(cmdVarshaphala);
    modes->addWidget(cmdMuhurtha);
    modes->addSpacing(16);
    modes->addWidget(new QLabel(QStringLiteral("Select Language")));
    modes->addWidget(cmbLangu);
    modes->addStretch();
    modes->addWidget(cmdOptions);
    modes->addWidget(cmdGenerate);

    auto *fields = new QVBoxLayout;
    fields->addWidget(frmSingleGuy);
    fields->addWidget(frmMatch);
    fields->addWidget(frmMuhu);
    fields->addWidget(muhuPlace);
    fields->addStretch();

    auto *top = new QHBoxLayout;
    top->addLayout(fields, 1);
    top->addLayout(modes);
    auto *outer = new QVBoxLayout(this);
    outer->addLayout(top);
    auto *hintArea = new QHBoxLayout;
    hintArea->addWidget(lblHints, 1);
    hintArea->addWidget(cmdUndoDelete, 0, Qt::AlignVCenter);
    outer->addLayout(hintArea);

    connect(cmdHoroscope, &QPushButton::clicked, this, &frmLogin::cmdHoroscope_Click);
    connect(cmdMatch, &QPushButton::clicked, this, &frmLogin::cmdMatch_Click);
    connect(cmdVarshaphala, &QPushButton::clicked, this, &frmLogin::cmdVarshaphala_Click);
    connect(cmdMuhurtha, &QPushButton::clicked, this, &frmLogin::cmdMuhurtha_Click);
    connect(cmdGenerate, &QPushButton::clicked, this, [this] { cmdGenerate_Click(); });
    connect(cmdOptions, &QPushButton::clicked, this, &frmLogin::optionsRequested);
    connect(single->cmdNowCast, &QToolButton::clicked, this, &frmLogin::cmdNowCast_Click);
    connect(single->cmdAddCity, &QToolButton::clicked, this, &frmLogin::cmdAdHorCity_Click);
    connect(cmdUndoDelete, &QPushButton::clicked, this, &frmLogin::UndoDelete);
    for (BirthPanel *p : {single, boy, gal, muhuPlace})
        wirePanel(p);

    // Lists and the remembered state.
    FillPersonLists();
    {
        QSqlQuery q(QStringLiteral("SELECT Name FROM Country ORDER BY Name"), Session().RecDB);
        QStringList countries;
        while (q.next())
            countries << q.value(0).toString();
        for (BirthPanel *p : {single, boy, gal, muhuPlace}) {
            const QSignalBlocker block(p->cmbCountry);
            p->cmbCountry->addItems(countries);
            p->cmbCountry->setCurrentText(QStringLiteral("India"));
        }
        fillPlaces({single, boy, gal, muhuPlace}, QStringLiteral("India"));
    }
    m_languages = Languages::Offered(Languages::Load());
    for (const LanguageRow &l : m_languages)
        cmbLangu->addItem(l.style.Name);
    if (cmbLangu->count() == 0)
        cmbLangu->addItem(QStringLiteral("English"));
    QSettings ini = gendat();
    const int selLang = ini.value(QStringLiteral("Orbanta/SelLang"), 0).toInt();
    cmbLangu->setCurrentIndex(selLang >= 0 && selLang < cmbLangu->count() ? selLang : 0);
    selectLanguage(cmbLangu->currentIndex());
    connect(cmbLangu, &QComboBox::currentIndexChanged, this, [this](int i) {
        gendat().setValue(QStringLiteral("Orbanta/SelLang"), i);
        selectLanguage(i);
        postHint(115);
    });
    Session().ProgMode = 1;
    if (single->cmbName->count() > 0) {
        // The first person is selected, and the fields show that person.
        const QSignalBlocker block(single->cmbName);
        single->cmbName->setCurrentIndex(0);
        if (const auto row = store().FindPerson(single->cmbName->currentText()))
            FillFromRecord(single, *row);
    }
    const QString mode = ini.value(QStringLiteral("Orbanta/StartMode")).toString();
    if (mode == QLatin1String("Marr"))
        cmdMatch_Click();
    else if (mode == QLatin1String("Varsh"))
        cmdVarshaphala_Click();
    else if (mode == QLatin1String("Muhu"))
        cmdMuhurtha_Click();
    postHint(101);
}

void frmLogin::selectLanguage(int index)
{
    // The language's sizes become the pages' globals, and its text database the session's.
    SessionGlobals &s = Session();
    s.Language = index >= 0 && index < static_cast<int>(m_languages.size()) ? m_languages[static_cast<size_t>(index)].style
                                                                            : LanguageStyle();
    ClearSymbolCache();
    QSqlDatabase opened;
    if (!OpenTextDB(s.Language.Directory, opened))
        return; // reported; the database in use stays
    if (s.TextDB.isValid() && s.TextDB.connectionName() != opened.connectionName())
        CloseTextDB(s.TextDB);
    s.TextDB = opened;
}

PersonStore frmLogin::store() const { return PersonStore(Session().RecDB); }

void frmLogin::postHint(int number) { lblHints->setText(HintText(number)); }

bool frmLogin::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::Enter) {
        if (watched == cmbLangu)
            postHint(115);
        else if (watched == cmdOptions)
            postHint(116);
    }
    return QWidget::eventFilter(watched, event);
}
void frmLogin::postText(const QString &text) { lblHints->setText(text); }

void frmLogin::showMessage(const EntryMessage &m)
{
    if (g_messageHandler)
        g_messageHandler(m);
    else
        QMessageBox::warning(this, m.title, m.text);
}

void frmLogin::wirePanel(BirthPanel *p)
{
    connect(p, &BirthPanel::hint, this, &frmLogin::postHint);
    connect(p->cmbName, &QComboBox::editTextChanged, this, [this, p](const QString &t) { personTyped(p, t, false); });
    connect(p->cmbName, &QComboBox::activated, this, [this, p](int) { personTyped(p, p->cmbName->currentText(), true); });
    connect(p->cmbName->lineEdit(), &QLineEdit::returnPressed, this, [this, p] { personTyped(p, p->cmbName->currentText(), true); });
    connect(p->cmbCountry, &QComboBox::editTextChanged, this, [this, p](const QString &t) { countryTyped(p, t, false); });
    connect(p->cmbCountry, &QComboBox::activated, this, [this, p](int) { countryTyped(p, p->cmbCountry->currentText(), true); });
    connect(p->cmbPlace, &QComboBox::editTextChanged, this, [this, p](const QString &t) { placeTyped(p, t, false); });
    connect(p->cmbPlace, &QComboBox::activated, this, [this, p](int) { placeTyped(p, p->cmbPlace->currentText(), true); });
    connect(p->txtDate, &QLineEdit::editingFinished, this, [this, p] { applyZoneHistory(p); });
    connect(p->txtTime, &QLineEdit::editingFinished, this, [this, p] { applyZoneHistory(p); });

    // AM and PM move the 24-hour clock; the clock's hour selects AM or PM.
    connect(p->optPM, &QRadioButton::clicked, this, [p] {
        const int h = static_cast<int>(Val(p->txtTime->text().left(2)));
        if (h < 12)
            p->txtTime->setText(Two(h + 12) + p->txtTime->text().mid(2));
    });
    connect(p->optAM, &QRadioButton::clicked, this, [p] {
        const int h = static_cast<int>(Val(p->txtTime->text().left(2)));
        if (h >= 12)
            p->txtTime->setText(Two(h - 12) + p->txtTime->text().mid(2));
    });
    connect(p->txtTime, &QLineEdit::textChanged, this, [p](const QString &t) {
        (Val(t) < 12 ? p->optAM : p->optPM)->setChecked(true);
    });
    connect(p->cmbTCorr, &QComboBox::currentIndexChanged, this, [p](int i) {
        p->txtTCorr->setText(i == 0 || i == 4 ? QStringLiteral("-00.00") : QStringLiteral("-01.00"));
        p->txtTCorr->setReadOnly(i != 4);
    });

    auto *guard = new FieldGuard(this, p, [this](BirthPanel *panel, QWidget *field) { return checkField(panel, field); });
    for (QWidget *w : {static_cast<QWidget *>(p->txtDate), static_cast<QWidget *>(p->txtTime), static_cast<QWidget *>(p->txtGMT),
                       static_cast<QWidget *>(p->txtLati), static_cast<QWidget *>(p->txtLongi)})
        w->installEventFilter(guard);
}

bool frmLogin::checkField(BirthPanel *p, QWidget *field)
{
    const auto m = fieldCheck(p, field);
    if (!m)
        return true;
    showMessage(*m);
    return false;
}

void frmLogin::personTyped(BirthPanel *p, const QString &text, bool fill)
{
    if (text.isEmpty())
        return;
    std::optional<PersonRow> row = fill ? store().FindPerson(text.trimmed()) : std::nullopt;
    if (!row)
        row = store().FindByPrefix(text);
    if (!row) {
        postText(text + QStringLiteral(" is not in database, please don't forget to fill in Date, Time & Place of birth."));
        return;
    }
    postText(QStringLiteral("If the Person is '%1', Press 'Enter' to update automatically.").arg(row->Name));
    if (fill)
        FillFromRecord(p, *row);
}

void frmLogin::FillFromRecord(BirthPanel *p, const PersonRow &r)
{
    const QSignalBlocker b1(p->cmbName), b2(p->cmbCountry), b3(p->cmbPlace);
    p->cmbName->setEditText(r.Name);
    p->txtDate->setText(Two(r.Day) + QLatin1Char('/') + Two(r.Month) + QLatin1Char('/') + QString::number(r.Year));
    p->txtTime->setText(Two(r.Hour) + QLatin1Char('.') + Two(r.Minutes));
    p->cmbCountry->setEditText(r.Country);
    p->cmbPlace->setEditText(r.City);
    p->txtLati->setText(QStringLiteral("%1:%2").arg(r.LatDeg, 3, 10, QLatin1Char('0')).arg(Two(r.LatMT)));
    p->txtLongi->setText(QStringLiteral("%1:%2").arg(r.LongDeg, 3, 10, QLatin1Char('0')).arg(Two(r.LongMT)));
    p->txtNS->setText(r.TextNS);
    p->txtEW->setText(r.TextEW);
    if (p->optMale)
        (r.Sex == 1 ? p->optMale : p->optFemale)->setChecked(true);
    (r.AMPM == 1 ? p->optAM : p->optPM)->setChecked(true);
    p->txtGMT->setText(r.GMTDIFF);
    p->placeZone.clear();
    p->placeId = 0;
    if (!r.TCorrVal.isNull()) {
        p->cmbTCorr->setCurrentIndex(r.Tcorrinde.toInt());
        p->txtTCorr->setText(r.TCorrVal.toString());
    } else {
        p->cmbTCorr->setCurrentIndex(0);
        p->txtTCorr->setText(QStringLiteral("-00.00"));
    }
}

void frmLogin::countryTyped(BirthPanel *p, const QString &text, bool picked)
{
    if (text.contains(QLatin1Char('[')) || text.isEmpty())
        return;
    QSqlQuery q(Session().RecDB);
    q.prepare(picked ? QStringLiteral("SELECT Name, GMTDIF FROM Country WHERE Name = ? LIMIT 1")
                     : QStringLiteral("SELECT Name, GMTDIF FROM Country WHERE Name LIKE ? ESCAPE '\\' ORDER BY Name LIMIT 1"));
    q.addBindValue(picked ? text : LikePrefix(text));
    if (!q.exec() || !q.next()) {
        postText(text + QStringLiteral(" is not in database, you'll have to provide GMT Difference manually."));
        p->txtGMT->setText(QStringLiteral("+00.00"));
        return;
    }
    const QString gmt = q.value(1).toString();
    p->txtGMT->setText(gmt.isEmpty() ? (picked ? QStringLiteral("-00.00") : QStringLiteral("+00.00")) : gmt);
    if (picked)
        fillPlaces({p}, q.value(0).toString());
    else
        postText(QStringLiteral("If the country is %1, Press 'Enter' to update automatically.").arg(q.value(0).toString()));
}

namespace {
const QString kCityColumns = QStringLiteral("rowid, City, Lat, Longy, NOSO, EaWe, Country, GMTDIFF, TimeZone");
constexpr int kPlaceNameRole = Qt::UserRole + 1;

// "02838" and "N" as the list shows a place's latitude, "28:38 N".
QString coordinate(const QString &column, const QString &letter)
{
    const QString c = column.rightJustified(5, QLatin1Char('0'));
    return QStringLiteral("%1:%2 %3").arg(static_cast<int>(Val(c.left(3)))).arg(c.right(2), letter);
}
} // namespace

void frmLogin::fillPlaces(std::initializer_list<BirthPanel *> panels, const QString &country)
{
    QSqlQuery q(Session().RecDB);
    q.prepare(QStringLiteral("SELECT rowid, City, Lat, Longy, NOSO, EaWe FROM City WHERE Country = ? ORDER BY City, rowid"));
    q.addBindValue(country);
    struct Place
    {
        qint64 id;
        QString name, where;
    };
    std::vector<Place> places;
    QHash<QString, int> seen;
    if (q.exec())
        while (q.next()) {
            places.push_back({q.value(0).toLongLong(), q.value(1).toString(),
                              coordinate(q.value(2).toString(), q.value(4).toString()) + QStringLiteral(", ")
                                  + coordinate(q.value(3).toString(), q.value(5).toString())});
            ++seen[places.back().name.toCaseFolded()];
        }
    // Places of one name in one country are told apart by where they lie.
    QStringList shown;
    shown.reserve(static_cast<qsizetype>(places.size()));
    for (const Place &place : places)
        shown << (seen.value(place.name.toCaseFolded()) > 1 ? QStringLiteral("%1 (%2)").arg(place.name, place.where) : place.name);
    for (BirthPanel *p : panels) {
        const QSignalBlocker block(p->cmbPlace);
        const QString current = p->cmbPlace->currentText();
        p->cmbPlace->clear();
        for (size_t i = 0; i < places.size(); ++i) {
            p->cmbPlace->addItem(shown[static_cast<qsizetype>(i)], places[i].id);
            p->cmbPlace->setItemData(p->cmbPlace->count() - 1, places[i].name, kPlaceNameRole);
        }
        p->cmbPlace->setEditText(current);
    }
}

void frmLogin::placeTyped(BirthPanel *p, const QString &text, bool picked)
{
    if (text.isEmpty())
        return;
    QSqlQuery q(Session().RecDB);
    const int item = p->cmbPlace->currentIndex();
    if (picked && item >= 0 && p->cmbPlace->itemText(item) == text) {
        // A pick from the list: that very row, also where the country has two places of its name.
        q.prepare(QStringLiteral("SELECT %1 FROM City WHERE rowid = ?").arg(kCityColumns));
        q.addBindValue(p->cmbPlace->itemData(item));
    } else {
        // A shown entry of a shared name is the list's own text: its pick fills the fields.
        const int shown = p->cmbPlace->findText(text, Qt::MatchExactly);
        if (!picked && shown >= 0 && p->cmbPlace->itemData(shown, kPlaceNameRole).toString() != text)
            return;
        q.prepare(QStringLiteral("SELECT %1 FROM City WHERE City %2 AND Country LIKE ? ESCAPE '\\' ORDER BY City, rowid LIMIT 1")
                      .arg(kCityColumns, picked ? QStringLiteral("= ?") : QStringLiteral("LIKE ? ESCAPE '\\'")));
        q.addBindValue(picked ? text : LikePrefix(text));
        q.addBindValue(LikePrefix(p->cmbCountry->currentText()));
    }
    if (!q.exec() || !q.next()) {
        postText(text + QStringLiteral(" is not in database, you'll have to provide Longitude & Latitude manually."));
        p->txtLati->setText(QStringLiteral("000:00"));
        p->txtLongi->setText(QStringLiteral("000:00"));
        p->placeZone.clear();
        p->placeId = 0;
        return;
    }
    const QString name = q.value(1).toString();
    const QString lat = q.value(2).toString().rightJustified(5, QLatin1Char('0'));
    const QString lon = q.value(3).toString().rightJustified(5, QLatin1Char('0'));
    p->txtLati->setText(lat.left(3) + QLatin1Char(':') + lat.right(2));
    p->txtLongi->setText(lon.left(3) + QLatin1Char(':') + lon.right(2));
    p->txtNS->setText(q.value(4).toString());
    p->txtEW->setText(q.value(5).toString());
    {
        const QSignalBlocker block(p->cmbCountry);
        p->cmbCountry->setEditText(q.value(6).toString());
    }
    p->txtGMT->setText(q.value(7).toString());
    p->placeZone = q.value(8).toString();
    p->placeId = q.value(0).toLongLong();
    if (picked) {
        const QSignalBlocker block(p->cmbPlace);
        p->cmbPlace->setEditText(name); // the place's own name, without the coordinates that told it apart
    }
    postText(QStringLiteral("If the City is %1, Press 'Enter' to update automatically.").arg(name));
    applyZoneHistory(p);
}

void frmLogin::applyZoneHistory(BirthPanel *p)
{
    if (p->placeZone.isEmpty())
        return;
    const QDate date = ParseEntryDate(p->txtDate->text());
    const int h = static_cast<int>(Val(p->txtTime->text().left(2)));
    const int m = static_cast<int>(Val(p->txtTime->text().right(2)));
    if (!date.isValid() || h > 24 || m > 59)
        return;
    const ZoneMoment z = ZoneHistory::At(p->placeZone, date, QTime(h % 24, m));
    if (!z.valid)
        return;
    p->txtGMT->setText(z.standardText);
    const QSignalBlocker block(p->cmbTCorr);
    p->cmbTCorr->setCurrentIndex(z.correctionIndex);
    p->txtTCorr->setText(z.correctionIndex > 0 ? z.correctionText : QStringLiteral("-00.00"));
    postText(z.correctionIndex > 0
                 ? QStringLiteral("GMT and %1 (%2) are those that %3 kept on that date, from the time-zone history. You may change them.")
                       .arg(p->cmbTCorr->currentText(), z.correctionText, p->placeZone)
                 : QStringLiteral("GMT is the standard time that %1 kept on that date, from the time-zone history. You may change it.")
                       .arg(p->placeZone));
}

void frmLogin::saveStartMode(const QString &mode) { gendat().setValue(QStringLiteral("Orbanta/StartMode"), mode); }

void frmLogin::cmdHoroscope_Click()
{
    frmMatch->hide();
    frmMuhu->hide();
    muhuPlace->hide();
    frmSingleGuy->show();
    frmSingleGuy->setTitle(QStringLiteral("Horoscope"));
    Session().ProgMode = 1;
    saveStartMode(QStringLiteral("Horo"));
}

void frmLogin::cmdVarshaphala_Click()
{
    frmMatch->hide();
    frmMuhu->hide();
    muhuPlace->hide();
    frmSingleGuy->show();
    frmSingleGuy->setTitle(QStringLiteral("Varsha Phala"));
    Session().ProgMode = 4;
    saveStartMode(QStringLiteral("Varsh"));
}

void frmLogin::cmdMatch_Click()
{
    frmSingleGuy->hide();
    frmMuhu->hide();
    muhuPlace->hide();
    frmMatch->show();
    Session().ProgMode = 2;
    for (BirthPanel *p : {boy, gal})
        if (p->cmbName->count() > 0) {
            p->cmbName->setCurrentIndex(0);
            personTyped(p, p->cmbName->currentText(), true);
        }
    saveStartMode(QStringLiteral("Marr"));
}

bool frmLogin::ValidateEntry()
{
    std::vector<EntryMessage> messages;
    const int mode = Session().ProgMode;
    const std::vector<BirthPanel *> panels = mode == 2   ? std::vector<BirthPanel *>{boy, gal}
                                             : mode == 3 ? std::vector<BirthPanel *>{muhuPlace}
                                                         : std::vector<BirthPanel *>{single};
    for (BirthPanel *p : panels)
        for (const EntryMessage &m : ::ValidateEntry(p->Fields()))
            messages.push_back(m);
    if (AppSettings::Vakya())
        for (BirthPanel *p : panels)
            if (const auto m = CheckVakyaLatitude(p->txtLati->text()))
                messages.push_back(*m);
    for (const EntryMessage &m : messages)
        showMessage(m);
    return messages.empty();
}

void frmLogin::fillPerson(BirthPanel *p, clsPerson &person, int sex) const
{
    // Generate has passed ValidateEntry: the boxes read as their checks read them.
    SetBirthNumbers(person, ReadBirthValues(p->Fields()).value_or(BirthValues{}));
    person.setName(p->cmbName->currentText().trimmed());
    person.setAMPM(p->optAM->isChecked() ? 1 : 2);
    person.setPLOB(p->cmbPlace->currentText());
    person.setSex(sex);
    person.setCountry(p->cmbCountry->currentText());
    person.setTextNS(p->txtNS->text());
    person.setTextEW(p->txtEW->text());
    person.setTimeCorr(p->txtTCorr->text());
    person.setTimeCorrInde(p->cmbTCorr->currentIndex());
}

bool frmLogin::cmdGenerate_Click()
{
    if (Session().ProgMode == 3)
        return generateMuhurtha();
    if (!ValidateEntry())
        return false;
    SessionGlobals &s = Session();
    s.ReleaseCharts();
    if (s.ProgMode == 2) {
        s.BoyPlanets = std::make_unique<clsPlanets>();
        s.GalPlanets = std::make_unique<clsPlanets>();
        s.VarshaPlanets = std::make_unique<clsPlanets>();
        for (clsPlanets *c : {s.BoyPlanets.get(), s.GalPlanets.get(), s.VarshaPlanets.get()})
            c->setTextDB(s.TextDB, s.RecDB);
        fillPerson(boy, s.BoyPlanets->Person(), 1);
        fillPerson(gal, s.GalPlanets->Person(), 2);
        s.BoyPlanets->Calculate();
        s.GalPlanets->Calculate();
    } else {
        s.CurPlanets = std::make_unique<clsPlanets>();
        s.CurPlanets->setTextDB(s.TextDB, s.RecDB);
        fillPerson(single, s.CurPlanets->Person(), single->optMale->isChecked() ? 1 : 2);
        if (s.ProgMode == 4) {
            const int age = QDate::currentDate().year() - s.CurPlanets->Person().Year();
            s.VarshaYear = age < 1 || age > 99 ? 1 : age;
        }
        s.CurPlanets->Calculate();
    }
    Q_EMIT generated();
    return true;
}

void frmLogin::cmdNowCast_Click()
{
    const QDateTime now = QDateTime::currentDateTime();
    single->txtDate->setText(now.toString(QStringLiteral("dd/MM/yyyy")));
    single->txtTime->setText(now.toString(QStringLiteral("HH.mm")));
    (now.time().hour() > 12 ? single->optPM : single->optAM)->setChecked(true);
    cmdGenerate_Click();
}

void frmLogin::FillPersonLists()
{
    const std::array<BirthPanel *, 3> panels{single, boy, gal};
    std::array<QString, 3> shown;
    for (size_t i = 0; i < panels.size(); ++i) {
        shown[i] = panels[i]->cmbName->currentText();
        const QSignalBlocker block(panels[i]->cmbName);
        panels[i]->cmbName->clear();
    }
    const QString muhuBoy = cmbMuhuBoy->currentText(), muhuGal = cmbMuhuGal->currentText();
    cmbMuhuBoy->clear();
    cmbMuhuGal->clear();
    for (const auto &[name, sex] : store().PersonNames()) {
        const QSignalBlocker b1(single->cmbName), b2(boy->cmbName), b3(gal->cmbName);
        single->cmbName->addItem(name);
        (sex == 1 ? boy : gal)->cmbName->addItem(name);
        (sex == 1 ? cmbMuhuBoy : cmbMuhuGal)->addItem(name);
    }
    cmbMuhuBoy->setCurrentIndex(qMax(0, cmbMuhuBoy->findText(muhuBoy)));
    cmbMuhuGal->setCurrentIndex(qMax(0, cmbMuhuGal->findText(muhuGal)));
    // Each name box keeps the name it showed, so that it still names the person of the fields.
    for (size_t i = 0; i < panels.size(); ++i) {
        QComboBox *box = panels[i]->cmbName;
        const QSignalBlocker block(box);
        box->setCurrentIndex(box->findText(shown[i], Qt::MatchFixedString));
        box->setEditText(shown[i]);
    }
}

PersonRow frmLogin::rowFromPanel(BirthPanel *p, const QString &name) const
{
    return PersonRow::fromFields(name, !p->optMale || p->optMale->isChecked(), p->txtDate->text(), p->txtTime->text(),
                                 p->optAM->isChecked(), p->cmbCountry->currentText(), p->cmbPlace->currentText(), p->txtLati->text(),
                                 p->txtNS->text(), p->txtLongi->text(), p->txtEW->text(), p->txtGMT->text(), p->txtTCorr->text(),
                                 p->cmbTCorr->currentIndex());
}

bool frmLogin::checkBeforeStoring(const QString &name, const QString &title)
{
    if (name.isEmpty()) {
        showMessage({0, QStringLiteral("Please type the person's name first."), title});
        return false;
    }
    // What is stored must cast: the fields pass Generate's checks first.
    const std::vector<EntryMessage> refused = ::ValidateEntry(single->Fields());
    for (const EntryMessage &m : refused)
        showMessage(m);
    return refused.empty();
}

void frmLogin::SavePerson()
{
    const QString name = single->cmbName->currentText().trimmed();
    if (!checkBeforeStoring(name, QStringLiteral("Save")))
        return;
    const StoreResult r = store().SavePerson(rowFromPanel(single, name));
    if (!r.ok) {
        showMessage({0, r.message, QStringLiteral("Orbanta")});
        return;
    }
    {
        const QSignalBlocker block(single->cmbName);
        single->cmbName->setEditText(name);
    }
    FillPersonLists();
    postHint(117);
}

void frmLogin::DeletePerson()
{
    const QString name = single->cmbName->currentText().trimmed();
    const std::optional<PersonRow> row = name.isEmpty() ? std::nullopt : store().FindPerson(name);
    if (!row) {
        showMessage({0,
                     name.isEmpty() ? QStringLiteral("Please choose the person to delete first.")
                                    : QStringLiteral("%1 is not in the database; nothing was deleted.").arg(name),
                     QStringLiteral("Delete")});
        return;
    }
    const StoreResult r = store().DeletePerson(name);
    if (!r.ok) {
        showMessage({0, r.message, QStringLiteral("Orbanta")});
        return;
    }
    // The record can be brought back until the next delete.
    m_deleted = *row;
    cmdUndoDelete->show();
    FillPersonLists();
    postHint(118);
}

void frmLogin::UndoDelete()
{
    if (!m_deleted)
        return;
    const StoreResult r = store().InsertRow(*m_deleted);
    if (!r.ok) {
        showMessage({0, r.message, QStringLiteral("Orbanta")});
        return;
    }
    const PersonRow back = *m_deleted;
    m_deleted.reset();
    cmdUndoDelete->hide();
    {
        const QSignalBlocker block(single->cmbName);
        single->cmbName->setEditText(back.Name);
    }
    FillPersonLists();
    FillFromRecord(single, back);
    postText(QStringLiteral("%1 is back in the database.").arg(back.Name));
}

void frmLogin::cmdAdHorCity_Click()
{
    BirthPanel *p = single;
    const CityFields f{p->cmbPlace->currentText().trimmed(),
                       clsCity::BoxToColumn(p->txtLati->text()),
                       clsCity::BoxToColumn(p->txtLongi->text()),
                       p->txtNS->text(),
                       p->txtEW->text(),
                       p->cmbCountry->currentText().trimmed(),
                       p->txtGMT->text()};
    if (!ParseEntryAngle(p->txtLati->text()) || !ParseEntryAngle(p->txtLongi->text())) {
        showMessage({0, QStringLiteral("Please fill the latitude and longitude of the place first."), QStringLiteral("Orbanta")});
        return;
    }
    clsCity cities(Session().RecDB);
    // The place rewrites its own row: the one picked from the list, or the only one of its name
    // in its country. Otherwise it is a new place, and two places of one name both stay.
    const std::vector<int> rows = cities.RowsOfPlace(f.City, f.Country);
    int row = -1;
    for (int r : rows)
        if (p->placeId != 0 && cities.RowId(r) == p->placeId)
            row = r;
    if (row < 0 && rows.size() == 1)
        row = rows.front();
    const AtlasEditResult r = row >= 0 ? cities.ChangeCity(row, f) : cities.AddCity(f);
    if (!r.ok) {
        showMessage({0, r.text, r.title});
        return;
    }
    fillPlaces({p}, f.Country);
    postText(QStringLiteral("%1, %2 is saved in the atlas.").arg(f.City, f.Country));
}

void frmLogin::ExportPersonFile()
{
    const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Save Person Details To File"),
                                                      single->cmbName->currentText().trimmed() + QStringLiteral(".JKP"),
                                                      QStringLiteral("Person Details (*.JKP)"));
    if (!file.isEmpty())
        ExportPersonFileTo(WithExtension(file, QStringLiteral(".JKP")));
}

void frmLogin::ExportPersonDB()
{
    const QString file = QFileDialog::getSaveFileName(this, QStringLiteral("Save Database To File"), QStringLiteral("Untitled.JKD"),
                                                      QStringLiteral("JKD Database (*.JKD)"));
    if (!file.isEmpty())
        ExportPersonDBTo(WithExtension(file, QStringLiteral(".JKD")));
}

void frmLogin::ImportPersons(bool whole)
{
    const QString file = QFileDialog::getOpenFileName(this, whole ? QStringLiteral("Merge Database") : QStringLiteral("Import Person Details"),
                                                      QString(), whole ? QStringLiteral("JKD Database (*.JKD)")
                                                                       : QStringLiteral("Person Details (*.JKP)"));
    if (!file.isEmpty())
        ImportPersonsFrom(file);
}

QString frmLogin::WithExtension(const QString &file, const QString &extension)
{
    return QFileInfo(file).suffix().isEmpty() ? file + extension : file;
}

bool frmLogin::ExportPersonFileTo(const QString &file)
{
    if (!checkBeforeStoring(single->cmbName->currentText().trimmed(), QStringLiteral("Save to File")))
        return false;
    const QString tmpl = DataPaths::StuffFolder() + QStringLiteral("/COMMON/ExpTemp.JKP");
    const StoreResult r = PersonStore::ExportPersons(tmpl, {rowFromPanel(single, single->cmbName->currentText().trimmed())}, file);
    if (!r.ok)
        showMessage({0, r.message, QStringLiteral("Orbanta")});
    return r.ok;
}

bool frmLogin::ExportPersonDBTo(const QString &file)
{
    const QString tmpl = DataPaths::StuffFolder() + QStringLiteral("/COMMON/ExpTemp.JKP");
    const StoreResult r = PersonStore::ExportPersons(tmpl, store().AllPersons(), file);
    if (!r.ok)
        showMessage({0, r.message, QStringLiteral("Orbanta")});
    return r.ok;
}

bool frmLogin::ImportPersonsFrom(const QString &file)
{
    const StoreResult r = store().ImportPersons(file);
    if (!r.ok) {
        showMessage({0, r.message, QStringLiteral("Import")});
        return false;
    }
    FillPersonLists();
    return true;
}
