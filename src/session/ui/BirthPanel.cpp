// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/BirthPanel.h"

#include <QButtonGroup>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

namespace {
QLineEdit *masked(const QString &mask, const QString &text, int width)
{
    auto *e = new QLineEdit;
    e->setInputMask(mask);
    e->setText(text);
    e->setFixedWidth(width);
    return e;
}
} // namespace

BirthPanel::BirthPanel(const QString &prefix, bool withSex, QWidget *parent) : QGroupBox(parent)
{
    const bool single = prefix.isEmpty();
    auto name = [&](QWidget *w, const QString &singleName, const QString &partnerName) {
        w->setObjectName(single ? singleName : partnerName.arg(prefix));
    };

    cmbName = new QComboBox;
    cmbName->setEditable(true);
    cmbName->setInsertPolicy(QComboBox::NoInsert);
    cmbName->setMinimumWidth(220);
    name(cmbName, QStringLiteral("cmbPerson"), QStringLiteral("cmb%1Name"));
    cmbName->lineEdit()->installEventFilter(this);

    txtDate = masked(QStringLiteral("00/00/0000"), QStringLiteral("01/01/2000"), 90);
    name(txtDate, QStringLiteral("txtBDate"), QStringLiteral("txt%1Date"));
    txtTime = masked(QStringLiteral("00.00"), QStringLiteral("12.00"), 60);
    name(txtTime, QStringLiteral("txtBTime"), QStringLiteral("txt%1Time"));
    optAM = new QRadioButton(QStringLiteral("AM"));
    optPM = new QRadioButton(QStringLiteral("PM"));
    optPM->setChecked(true);
    // Sex and the half of the day are two choices of their own: each pair is its own group.
    grpAMPM = new QButtonGroup(this);
    grpAMPM->addButton(optAM, 0);
    grpAMPM->addButton(optPM, 1);
    name(optAM, QStringLiteral("optAM"), QStringLiteral("opt%1AM"));
    name(optPM, QStringLiteral("optPM"), QStringLiteral("opt%1PM"));

    cmbCountry = new QComboBox;
    cmbCountry->setEditable(true);
    cmbCountry->setInsertPolicy(QComboBox::NoInsert);
    cmbCountry->setMinimumWidth(180);
    name(cmbCountry, QStringLiteral("cmbCountry"), QStringLiteral("cmb%1Country"));
    txtGMT = masked(QStringLiteral("#00.00"), QStringLiteral("+05.30"), 60);
    name(txtGMT, QStringLiteral("txtGMT"), QStringLiteral("txt%1GMT"));
    cmbPlace = new QComboBox;
    cmbPlace->setEditable(true);
    cmbPlace->setInsertPolicy(QComboBox::NoInsert);
    cmbPlace->setMinimumWidth(180);
    name(cmbPlace, QStringLiteral("cmbCity"), QStringLiteral("cmb%1Place"));
    txtLati = masked(QStringLiteral("000:00"), QStringLiteral("028:38"), 60);
    name(txtLati, QStringLiteral("txtLati"), QStringLiteral("txt%1Latti"));
    txtNS = masked(QStringLiteral(">A"), QStringLiteral("N"), 26);
    name(txtNS, QStringLiteral("TextNS"), QStringLiteral("txt%1NS"));
    txtLongi = masked(QStringLiteral("000:00"), QStringLiteral("077:12"), 60);
    name(txtLongi, QStringLiteral("txtLongi"), QStringLiteral("txt%1Longi"));
    txtEW = masked(QStringLiteral(">A"), QStringLiteral("E"), 26);
    name(txtEW, QStringLiteral("TextEW"), QStringLiteral("txt%1EW"));
    cmbTCorr = new QComboBox;
    cmbTCorr->addItems({QStringLiteral("None"), QStringLiteral("DST"), QStringLiteral("Summer Time"), QStringLiteral("War Time"),
                        QStringLiteral("Custom!")});
    name(cmbTCorr, QStringLiteral("cmbTimeCorr"), QStringLiteral("cmb%1TCorr"));
    txtTCorr = masked(QStringLiteral("#00.00"), QStringLiteral("-00.00"), 60);
    txtTCorr->setReadOnly(true);
    name(txtTCorr, QStringLiteral("txtTimeCorr"), QStringLiteral("txt%1TCorr"));

    auto *grid = new QGridLayout(this);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    int row = 0;
    grid->addWidget(new QLabel(QStringLiteral("Name")), row, 0);
    grid->addWidget(cmbName, row, 1, 1, 3);
    if (withSex) {
        optMale = new QRadioButton(QStringLiteral("Male"));
        optFemale = new QRadioButton(QStringLiteral("Female"));
        optMale->setChecked(true);
        optMale->setObjectName(QStringLiteral("optMale"));
        optFemale->setObjectName(QStringLiteral("optFemale"));
        grpMF = new QButtonGroup(this);
        grpMF->addButton(optMale, 0);
        grpMF->addButton(optFemale, 1);
        auto *sex = new QHBoxLayout;
        sex->addWidget(optMale);
        sex->addWidget(optFemale);
        sex->addStretch();
        grid->addLayout(sex, row, 4, 1, 2);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("Date of birth")), row, 0);
    grid->addWidget(txtDate, row, 1);
    grid->addWidget(new QLabel(QStringLiteral("Time")), row, 2, Qt::AlignRight);
    auto *time = new QHBoxLayout;
    time->addWidget(txtTime);
    time->addWidget(optAM);
    time->addWidget(optPM);
    time->addStretch();
    grid->addLayout(time, row, 3, 1, 3);
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("Country")), row, 0);
    grid->addWidget(cmbCountry, row, 1, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("GMT")), row, 3, Qt::AlignRight);
    grid->addWidget(txtGMT, row, 4);
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("Place")), row, 0);
    grid->addWidget(cmbPlace, row, 1, 1, 2);
    if (single) {
        cmdAddCity = new QToolButton;
        cmdAddCity->setText(QStringLiteral("+"));
        cmdAddCity->setToolTip(QStringLiteral("Save city details to database."));
        cmdAddCity->setObjectName(QStringLiteral("cmdAdHorCity"));
        grid->addWidget(cmdAddCity, row, 3, Qt::AlignLeft);
    }
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("Latitude")), row, 0);
    auto *lat = new QHBoxLayout;
    lat->addWidget(txtLati);
    lat->addWidget(txtNS);
    lat->addStretch();
    grid->addLayout(lat, row, 1);
    grid->addWidget(new QLabel(QStringLiteral("Longitude")), row, 2, Qt::AlignRight);
    auto *lon = new QHBoxLayout;
    lon->addWidget(txtLongi);
    lon->addWidget(txtEW);
    lon->addStretch();
    grid->addLayout(lon, row, 3, 1, 2);
    ++row;
    grid->addWidget(new QLabel(QStringLiteral("Correction")), row, 0);
    grid->addWidget(cmbTCorr, row, 1);
    grid->addWidget(txtTCorr, row, 2);
    if (single) {
        cmdNowCast = new QToolButton;
        cmdNowCast->setText(QStringLiteral("Cast for &Now"));
        cmdNowCast->setObjectName(QStringLiteral("cmdNowCast"));
        grid->addWidget(cmdNowCast, row, 3, 1, 2, Qt::AlignLeft);
    }
    grid->setColumnStretch(5, 1);
    m_grid = grid;
    m_nextRow = row + 1;

    // Each field posts its hint when it gets the focus.
    const std::pair<QWidget *, int> hints[] = {{cmbName, 101}, {txtDate, 104}, {txtTime, 107}, {optAM, 108}, {optPM, 109},
                                               {cmbCountry, 110}, {txtGMT, 111}, {cmbPlace, 112}, {txtLati, 113},
                                               {txtLongi, 114}};
    for (const auto &[w, n] : hints) {
        w->setProperty("hintNumber", n);
        w->installEventFilter(this);
        if (auto *combo = qobject_cast<QComboBox *>(w); combo && combo->lineEdit()) {
            combo->lineEdit()->setProperty("hintNumber", n);
            combo->lineEdit()->installEventFilter(this);
        }
    }
    if (optMale) {
        optMale->setProperty("hintNumber", 102);
        optFemale->setProperty("hintNumber", 103);
        optMale->installEventFilter(this);
        optFemale->installEventFilter(this);
    }
}

void BirthPanel::addFooter(QWidget *w)
{
    m_grid->addWidget(w, m_nextRow++, 0, 1, 6);
}

BirthFields BirthPanel::Fields() const
{
    return {txtDate->text(), txtTime->text(), txtLati->text(), txtLongi->text(), txtGMT->text()};
}

bool BirthPanel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        const QVariant n = watched->property("hintNumber");
        if (n.isValid())
            Q_EMIT hint(n.toInt());
    }
    // The name goes into the store's look-ups: an apostrophe is not taken.
    if (event->type() == QEvent::KeyPress && watched == cmbName->lineEdit()) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->text() == QLatin1String("'"))
            return true;
    }
    return QGroupBox::eventFilter(watched, event);
}

void BirthPanel::ShowPlaceOnly()
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    if (!grid)
        return;
    for (int i = 0; i < grid->count(); ++i) {
        int row = 0, col = 0, rows = 0, cols = 0;
        grid->getItemPosition(i, &row, &col, &rows, &cols);
        if (row > 1)
            continue;
        QLayoutItem *item = grid->itemAt(i);
        if (QWidget *w = item->widget())
            w->hide();
        else if (QLayout *l = item->layout())
            for (int j = 0; j < l->count(); ++j)
                if (QWidget *w = l->itemAt(j)->widget())
                    w->hide();
    }
}
