// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/frmEditLongLat.h"

#include "sky/AppSettings.h"
#include "session/Session.h"
#include "session/clsIni.h"
#include "session/ui/frmMessage.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {
const QString kInit = QStringLiteral("Init");

QRadioButton *option(const char *name, const QString &text, QWidget *parent)
{
    auto *o = new QRadioButton(text, parent);
    o->setObjectName(QLatin1String(name));
    return o;
}

QPushButton *button(const char *name, const QString &text)
{
    auto *b = new QPushButton(text);
    b->setObjectName(QLatin1String(name));
    b->setAutoDefault(false);
    b->setMinimumWidth(90);
    return b;
}

template <typename W> W *named(W *w, const char *name)
{
    w->setObjectName(QLatin1String(name));
    return w;
}

QLabel *label(const QString &text, QWidget *buddy)
{
    auto *l = new QLabel(text);
    l->setBuddy(buddy);
    return l;
}

// A column of buttons beside a page's fields.
QVBoxLayout *buttonColumn(std::initializer_list<QPushButton *> buttons)
{
    auto *v = new QVBoxLayout;
    v->setSpacing(6);
    for (QPushButton *b : buttons)
        v->addWidget(b);
    v->addStretch(1);
    return v;
}
} // namespace

frmEditLongLat::frmEditLongLat(int page, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmEditLongLat"));
    setWindowTitle(QStringLiteral("Options"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    EditTab = named(new QTabWidget, "EditTab");
    EditTab->addTab(buildCitiesPage(), QStringLiteral("Cities"));
    EditTab->addTab(buildCountriesPage(), QStringLiteral("Countries"));
    EditTab->addTab(buildCalculationPage(), QStringLiteral("Calculation"));
    EditTab->addTab(buildDetailsPage(), QStringLiteral("Your Details"));

    cmdClose = button("cmdClose", QStringLiteral("&Close"));
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    auto *bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(cmdClose);
    auto *v = new QVBoxLayout(this);
    v->setContentsMargins(12, 12, 12, 12);
    v->addWidget(EditTab, 1);
    v->addLayout(bottom);

    EditTab->setCurrentIndex(std::clamp(page, 0, 3));
    if (EditTab->currentIndex() <= CountriesPage)
        openAtlas();
    connect(EditTab, &QTabWidget::currentChanged, this, [this](int index) {
        if (index <= CountriesPage)
            openAtlas();
    });
    setFixedSize(620, 370);
}

frmEditLongLat::~frmEditLongLat() = default;

// ---- pages ----

QWidget *frmEditLongLat::buildCitiesPage()
{
    auto *w = new QWidget;
    cmbCityList = named(new QComboBox, "cmbCityList");
    cmbCityList->setEditable(true);
    cmbCityList->setInsertPolicy(QComboBox::NoInsert);
    cmbCityList->setMaxVisibleItems(20);
    cmbCityList->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbCityList->setMinimumContentsLength(24);
    txtLat = named(new QLineEdit, "txtLat");
    txtLong = named(new QLineEdit, "txtLong");
    for (QLineEdit *box : {txtLat, txtLong}) {
        box->setInputMask(QStringLiteral("999:99;_"));
        box->setText(QStringLiteral("000:00"));
        box->setFixedWidth(70);
        box->installEventFilter(this);
    }
    auto *ns = new QWidget;
    optNorth = option("optNorth", QStringLiteral("&North"), ns);
    optSouth = option("optSouth", QStringLiteral("S&outh"), ns);
    auto *nsl = new QHBoxLayout(ns);
    nsl->setContentsMargins(0, 0, 0, 0);
    nsl->addWidget(optNorth);
    nsl->addWidget(optSouth);
    nsl->addStretch(1);
    auto *ew = new QWidget;
    optEast = option("optEast", QStringLiteral("&East"), ew);
    optWest = option("optWest", QStringLiteral("&West"), ew);
    auto *ewl = new QHBoxLayout(ew);
    ewl->setContentsMargins(0, 0, 0, 0);
    ewl->addWidget(optEast);
    ewl->addWidget(optWest);
    ewl->addStretch(1);
    optNorth->setChecked(true);
    optEast->setChecked(true);
    cbocCountry = named(new QComboBox, "cbocCountry");
    cbocCountry->setEditable(true);
    cbocCountry->setInsertPolicy(QComboBox::NoInsert);
    cbocCountry->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbocCountry->setMinimumContentsLength(24);
    txtCitGMT = named(new QLineEdit, "txtCitGMT");
    txtCitGMT->setMaxLength(6);
    txtCitGMT->setFixedWidth(70);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->addWidget(label(QStringLiteral("C&ity:"), cmbCityList), 0, 0);
    grid->addWidget(cmbCityList, 0, 1, 1, 2);
    grid->addWidget(label(QStringLiteral("&Latitude:"), txtLat), 1, 0);
    grid->addWidget(txtLat, 1, 1);
    grid->addWidget(ns, 1, 2);
    grid->addWidget(label(QStringLiteral("Lon&gitude:"), txtLong), 2, 0);
    grid->addWidget(txtLong, 2, 1);
    grid->addWidget(ew, 2, 2);
    grid->addWidget(label(QStringLiteral("Co&untry:"), cbocCountry), 3, 0);
    grid->addWidget(cbocCountry, 3, 1, 1, 2);
    grid->addWidget(label(QStringLiteral("GMT &Difference:"), txtCitGMT), 4, 0);
    grid->addWidget(txtCitGMT, 4, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(5, 1);

    cmdAdd = button("cmdAdd", QStringLiteral("&Add"));
    cmdChange = button("cmdChange", QStringLiteral("&Change"));
    cmdDelete = button("cmdDelete", QStringLiteral("De&lete"));
    cmdSave = button("cmdSave", QStringLiteral("&Save"));
    cmdSave->setEnabled(false);
    auto *h = new QHBoxLayout(w);
    h->setContentsMargins(14, 14, 14, 14);
    h->setSpacing(18);
    h->addLayout(grid, 1);
    h->addLayout(buttonColumn({cmdAdd, cmdChange, cmdDelete, cmdSave}));

    connect(cmbCityList, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (!m_filling)
            showCity(i);
    });
    connect(cbocCountry, &QComboBox::currentIndexChanged, this, [this](int) {
        if (m_filling || !m_countries)
            return;
        const int row = m_countries->FindFirst(cbocCountry->currentText());
        if (row >= 0) {
            m_countries->MoveTo(row);
            txtCitGMT->setText(m_countries->GMT());
        }
    });
    connect(cmdAdd, &QPushButton::clicked, this, &frmEditLongLat::cmdAdd_Click);
    connect(cmdChange, &QPushButton::clicked, this, &frmEditLongLat::cmdChange_Click);
    connect(cmdDelete, &QPushButton::clicked, this, &frmEditLongLat::cmdDelete_Click);
    connect(cmdSave, &QPushButton::clicked, this, &frmEditLongLat::cmdSave_Click);
    return w;
}

QWidget *frmEditLongLat::buildCountriesPage()
{
    auto *w = new QWidget;
    cboCNTRY = named(new QComboBox, "cboCNTRY");
    cboCNTRY->setInsertPolicy(QComboBox::NoInsert);
    cboCNTRY->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cboCNTRY->setMinimumContentsLength(24);
    cboCNTRY->setMaxVisibleItems(20);
    txtGMTDiff = named(new QLineEdit, "txtGMTDiff");
    txtGMTDiff->setMaxLength(6);
    txtGMTDiff->setFixedWidth(70);
    txtGMTDiff->setReadOnly(true);

    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(10);
    grid->addWidget(label(QStringLiteral("Co&untry:"), cboCNTRY), 0, 0);
    grid->addWidget(cboCNTRY, 0, 1, 1, 2);
    grid->addWidget(label(QStringLiteral("GMT &Difference:"), txtGMTDiff), 1, 0);
    grid->addWidget(txtGMTDiff, 1, 1);
    auto *hint = new QLabel(QStringLiteral("The difference from Greenwich in hours and minutes, such as +05.30."));
    hint->setWordWrap(true);
    hint->setEnabled(false);
    grid->addWidget(hint, 2, 0, 1, 3);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(3, 1);

    cmdCAdd = button("cmdCAdd", QStringLiteral("&Add"));
    cmdCModify = button("cmdCModify", QStringLiteral("&Modify"));
    cmdCDel = button("cmdCDel", QStringLiteral("De&lete"));
    cmdCSave = button("cmdCSave", QStringLiteral("&Save"));
    cmdCSave->setEnabled(false);
    auto *h = new QHBoxLayout(w);
    h->setContentsMargins(14, 14, 14, 14);
    h->setSpacing(18);
    h->addLayout(grid, 1);
    h->addLayout(buttonColumn({cmdCAdd, cmdCModify, cmdCDel, cmdCSave}));

    connect(cboCNTRY, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (!m_filling)
            showCountry(i);
    });
    connect(cmdCAdd, &QPushButton::clicked, this, &frmEditLongLat::cmdCAdd_Click);
    connect(cmdCModify, &QPushButton::clicked, this, &frmEditLongLat::cmdCModify_Click);
    connect(cmdCDel, &QPushButton::clicked, this, &frmEditLongLat::cmdCDel_Click);
    connect(cmdCSave, &QPushButton::clicked, this, &frmEditLongLat::cmdCSave_Click);
    return w;
}

QWidget *frmEditLongLat::buildCalculationPage()
{
    auto *w = new QWidget;
    auto *ayan = new QGroupBox(QStringLiteral("Ayanamsh"));
    optLahiri = option("optLahiri", QStringLiteral("&N C Lahiri (Default)"), ayan);
    optRaman = option("optRaman", QStringLiteral("&B V Raman"), ayan);
    optKP = option("optKP", QStringLiteral("&Krishnamurthy(KP)"), ayan);
    optSayan = option("optSayan", QStringLiteral("&Sayan (Without Ayanamsh)"), ayan);
    optCustom = option("optCustom", QStringLiteral("Custom Ayanamsh"), ayan);
    optVakya = option("optVakya", QStringLiteral("S&urya Siddhanta (Vakya Panchang)"), ayan);
    txtCustAyan = named(new QLineEdit, "txtCustAyan");
    txtCustAyan->setFixedWidth(60);
    auto *av = new QVBoxLayout(ayan);
    av->setSpacing(4);
    for (QRadioButton *o : {optLahiri, optRaman, optKP, optSayan})
        av->addWidget(o);
    auto *custom = new QHBoxLayout;
    custom->addWidget(optCustom);
    custom->addWidget(txtCustAyan);
    custom->addStretch(1);
    av->addLayout(custom);
    av->addWidget(optVakya);
    av->addStretch(1);

    auto *rahu = new QGroupBox(QStringLiteral("Rahu && Ketu"));
    optRahuMean = option("optRahuMean", QStringLiteral("Mean Position (Default)"), rahu);
    optRahuTrue = option("optRahuTrue", QStringLiteral("True Position"), rahu);
    auto *rv = new QVBoxLayout(rahu);
    rv->setSpacing(4);
    rv->addWidget(optRahuMean);
    rv->addWidget(optRahuTrue);

    auto *method = new QGroupBox(QStringLiteral("Calculation Method"));
    optCalcEphem = option("optCalcEphem", QStringLiteral("Modern Ephemeris"), method);
    optCalcVakya = option("optCalcVakya", QStringLiteral("Vakya Panchang/Surya Siddhanta"), method);
    auto *mv = new QVBoxLayout(method);
    mv->setSpacing(4);
    mv->addWidget(optCalcEphem);
    mv->addWidget(optCalcVakya);

    cmdSaveAyanKundStyle = button("cmdSaveAyanKundStyle", QStringLiteral("&OK"));
    auto *right = new QVBoxLayout;
    right->setSpacing(10);
    right->addWidget(rahu);
    right->addWidget(method);
    right->addStretch(1);
    auto *ok = new QHBoxLayout;
    ok->addStretch(1);
    ok->addWidget(cmdSaveAyanKundStyle);
    right->addLayout(ok);
    auto *h = new QHBoxLayout(w);
    h->setContentsMargins(14, 14, 14, 14);
    h->setSpacing(12);
    h->addWidget(ayan, 1);
    h->addLayout(right, 1);

    // The options as the store holds them; an ayanamsa that the page doesn't offer leaves none set.
    switch (AppSettings::AyanType()) {
    case 1:
        optLahiri->setChecked(true);
        break;
    case 2:
        optRaman->setChecked(true);
        break;
    case 3:
        optKP->setChecked(true);
        break;
    case 12:
        optSayan->setChecked(true);
        break;
    case 13:
        optCustom->setChecked(true);
        break;
    case 15:
        optVakya->setChecked(true);
        break;
    default:
        break;
    }
    txtCustAyan->setText(AppSettings::CustAyan());
    txtCustAyan->setEnabled(optCustom->isChecked());
    connect(optCustom, &QRadioButton::toggled, txtCustAyan, &QLineEdit::setEnabled);
    (AppSettings::RahuKetuMode() == 2 ? optRahuTrue : optRahuMean)->setChecked(true);
    (AppSettings::Vakya() ? optCalcVakya : optCalcEphem)->setChecked(true);

    connect(cmdSaveAyanKundStyle, &QPushButton::clicked, this, &frmEditLongLat::cmdSaveAyanKundStyle_Click);
    return w;
}

QWidget *frmEditLongLat::buildDetailsPage()
{
    auto *w = new QWidget;
    txtName = named(new QLineEdit, "txtName");
    txtAddress = named(new QPlainTextEdit, "txtAddress");
    txtAddress->setTabChangesFocus(true);
    txtName->setText(clsIni::DispName());
    txtAddress->setPlainText(clsIni::DispAdd());
    cmdSaveYourDet = button("cmdSaveYourDet", QStringLiteral("Save Details"));
    auto *note = new QLabel(QStringLiteral("Your name and address are printed on the cover page of every report."));
    note->setWordWrap(true);
    auto *v = new QVBoxLayout(w);
    v->setContentsMargins(14, 14, 14, 14);
    v->setSpacing(6);
    v->addWidget(note);
    v->addSpacing(4);
    v->addWidget(label(QStringLiteral("&Name:"), txtName));
    v->addWidget(txtName);
    v->addWidget(label(QStringLiteral("&Address or other details:"), txtAddress));
    v->addWidget(txtAddress, 1);
    auto *h = new QHBoxLayout;
    h->addStretch(1);
    h->addWidget(cmdSaveYourDet);
    v->addLayout(h);
    connect(cmdSaveYourDet, &QPushButton::clicked, this, &frmEditLongLat::cmdSaveYourDet_Click);
    return w;
}

// ---- the atlas ----

void frmEditLongLat::openAtlas()
{
    if (m_cities)
        return;
    m_countries = std::make_unique<clsCountry>(Session().RecDB);
    m_cities = std::make_unique<clsCity>(Session().RecDB);
    fillCountryLists(0);
    fillCityList(0);
}

void frmEditLongLat::fillCityList(int select)
{
    m_filling = true;
    m_cities->MoveFirst();
    cmbCityList->clear();
    cmbCityList->addItems(m_cities->FillInCombo());
    m_filling = false;
    const int row = std::min(select, cmbCityList->count() - 1);
    cmbCityList->setCurrentIndex(row);
    showCity(row);
}

void frmEditLongLat::fillCountryLists(int select)
{
    m_filling = true;
    m_countries->MoveFirst();
    const QStringList names = m_countries->FillInCombo();
    const QString cityCountry = cbocCountry->currentText();
    cbocCountry->clear();
    cbocCountry->addItems(names);
    cbocCountry->setCurrentIndex(names.indexOf(cityCountry));
    cbocCountry->setEditText(cityCountry);
    cboCNTRY->clear();
    cboCNTRY->addItems(names);
    m_filling = false;
    const int row = std::min(select, cboCNTRY->count() - 1);
    cboCNTRY->setCurrentIndex(row);
    showCountry(row);
}

void frmEditLongLat::showCity(int index)
{
    if (!m_cities || index < 0 || index >= m_cities->CityCount())
        return;
    m_cities->MoveTo(index);
    txtLat->setText(clsCity::ColumnToBox(m_cities->Lat()));
    txtLong->setText(clsCity::ColumnToBox(m_cities->Longi()));
    m_filling = true;
    cbocCountry->setCurrentIndex(m_countries ? m_countries->FindFirst(m_cities->Country()) : -1);
    cbocCountry->setEditText(m_cities->Country());
    m_filling = false;
    txtCitGMT->setText(m_cities->GMTDIFF());
    (m_cities->NS() == QStringLiteral("N") ? optNorth : optSouth)->setChecked(true);
    (m_cities->EW() == QStringLiteral("E") ? optEast : optWest)->setChecked(true);
}

void frmEditLongLat::showCountry(int index)
{
    if (!m_countries || index < 0 || index >= m_countries->Count())
        return;
    m_countries->MoveTo(index);
    txtGMTDiff->setText(m_countries->GMT());
}

QString frmEditLongLat::BoxText(const QLineEdit *box)
{
    QString t = box->displayText();
    t.replace(QLatin1Char('_'), QLatin1Char('0'));
    return t;
}

bool frmEditLongLat::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusOut && (watched == txtLat || watched == txtLong)) {
        const bool latitude = watched == txtLat;
        if (auto m = clsCity::CheckCoordinate(BoxText(latitude ? txtLat : txtLong), latitude))
            frmMessage::Notify(this, QMessageBox::Warning, m->title, m->text);
    }
    return QDialog::eventFilter(watched, event);
}

void frmEditLongLat::refuse(const AtlasEditResult &r)
{
    frmMessage::Notify(this, QMessageBox::Warning, r.title, r.text);
}

void frmEditLongLat::cmdAdd_Click()
{
    openAtlas();
    m_editState = 2;
    cmbCityList->setEditText(QString());
    txtLat->setText(QStringLiteral("000:00"));
    txtLong->setText(QStringLiteral("000:00"));
    optNorth->setChecked(true);
    optEast->setChecked(true);
    cmdSave->setEnabled(true);
    cmbCityList->setFocus();
}

void frmEditLongLat::cmdChange_Click()
{
    openAtlas();
    m_editState = 1;
    cmdSave->setEnabled(true);
}

void frmEditLongLat::cmdSave_Click()
{
    openAtlas();
    const CityFields f{cmbCityList->currentText().trimmed(),
                       clsCity::BoxToColumn(BoxText(txtLat)),
                       clsCity::BoxToColumn(BoxText(txtLong)),
                       optNorth->isChecked() ? QStringLiteral("N") : QStringLiteral("S"),
                       optEast->isChecked() ? QStringLiteral("E") : QStringLiteral("W"),
                       cbocCountry->currentText().trimmed(),
                       txtCitGMT->text().trimmed()};
    if (m_editState == 2) {
        const AtlasEditResult r = m_cities->AddCity(f);
        if (!r.ok)
            return refuse(r);
        fillCityList(m_cities->CityCount() - 1);
    } else if (m_editState == 1) {
        const int row = cmbCityList->currentIndex();
        const AtlasEditResult r = m_cities->ChangeCity(row, f);
        if (!r.ok)
            return refuse(r);
        m_filling = true;
        cmbCityList->setItemText(row, f.City);
        m_filling = false;
        showCity(row);
    }
    m_editState = 0;
    cmdSave->setEnabled(false);
}

void frmEditLongLat::cmdDelete_Click()
{
    openAtlas();
    const QString name = cmbCityList->currentText().trimmed();
    // The row on show when its name is the one in the box, else the first row of that name.
    int row = cmbCityList->currentIndex();
    if (row < 0 || cmbCityList->itemText(row).compare(name, Qt::CaseInsensitive) != 0)
        row = m_cities->FindFirst(name);
    if (row < 0)
        return;
    const AtlasEditResult r = m_cities->DeleteRow(row);
    if (!r.ok)
        return refuse(r);
    m_editState = 0;
    cmdSave->setEnabled(false);
    fillCityList(std::min(row, m_cities->CityCount() - 1));
}

void frmEditLongLat::setCountryEditing(bool on)
{
    m_filling = true;
    cboCNTRY->setEditable(on);
    if (on)
        cboCNTRY->setInsertPolicy(QComboBox::NoInsert);
    m_filling = false;
    txtGMTDiff->setReadOnly(!on);
    cmdCSave->setEnabled(on);
}

void frmEditLongLat::cmdCAdd_Click()
{
    openAtlas();
    m_editState = 2;
    setCountryEditing(true);
    cboCNTRY->setEditText(QString());
    txtGMTDiff->setText(QStringLiteral("+00.00"));
    cboCNTRY->setFocus();
}

void frmEditLongLat::cmdCModify_Click()
{
    openAtlas();
    m_editState = 1;
    setCountryEditing(true);
    cboCNTRY->setFocus();
}

void frmEditLongLat::cmdCSave_Click()
{
    openAtlas();
    const QString name = cboCNTRY->currentText().trimmed();
    const QString gmt = txtGMTDiff->text().trimmed();
    AtlasEditResult r;
    int select = cboCNTRY->currentIndex();
    if (m_editState == 2) {
        r = m_countries->AddCountry(name, gmt);
        select = m_countries->Count() - 1;
    } else if (m_editState == 1) {
        r = m_countries->ModifyCountry(select, name, gmt);
    }
    if (!r.ok)
        return refuse(r);
    m_editState = 0;
    setCountryEditing(false);
    fillCountryLists(std::max(select, 0));
}

void frmEditLongLat::cmdCDel_Click()
{
    openAtlas();
    const int row = cboCNTRY->currentIndex();
    const AtlasEditResult r = m_countries->DeleteCountry(cboCNTRY->currentText().trimmed());
    if (!r.ok)
        return refuse(r);
    m_editState = 0;
    setCountryEditing(false);
    fillCountryLists(std::clamp(row, 0, std::max(m_countries->Count() - 1, 0)));
}

// ---- settings ----

void frmEditLongLat::cmdSaveAyanKundStyle_Click()
{
    const struct
    {
        QRadioButton *option;
        int ayanType;
    } choices[] = {{optLahiri, 1}, {optRaman, 2}, {optKP, 3}, {optSayan, 12}, {optCustom, 13}, {optVakya, 15}};
    for (const auto &c : choices)
        if (c.option->isChecked())
            AppSettings::setValue(kInit, QStringLiteral("AyanType"), c.ayanType);
    if (optCustom->isChecked())
        AppSettings::setValue(kInit, QStringLiteral("CustAyan"), txtCustAyan->text());
    AppSettings::setValue(kInit, QStringLiteral("RahuKetuMode"), optRahuMean->isChecked() ? 1 : 2);
    AppSettings::setValue(kInit, QStringLiteral("Vakya"), optCalcVakya->isChecked());
    accept();
}

void frmEditLongLat::cmdSaveYourDet_Click()
{
    clsIni::WriteIniString(QStringLiteral("DispName"), txtName->text());
    clsIni::WriteIniString(QStringLiteral("DispAdd"), txtAddress->toPlainText());
    accept();
}
