// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// One person's birth fields on the entry screen: name, sex, date, time, place, zone and the
// time correction. The entry screen holds three: the single person, the male and the female.

#include "session/EntryValidation.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QToolButton>

class QGridLayout;

class BirthPanel : public QGroupBox
{
    Q_OBJECT
public:
    // prefix names the controls: "" for the single person (cmbPerson, txtBDate ...),
    // "Boy" or "Gal" for the partners (cmbBoyName, txtBoyDate ...).
    BirthPanel(const QString &prefix, bool withSex, QWidget *parent = nullptr);

    QComboBox *cmbName;
    QRadioButton *optMale = nullptr, *optFemale = nullptr;
    QLineEdit *txtDate, *txtTime;
    QRadioButton *optAM, *optPM;
    QComboBox *cmbCountry, *cmbPlace;
    QLineEdit *txtGMT, *txtLati, *txtNS, *txtLongi, *txtEW;
    QComboBox *cmbTCorr;
    QLineEdit *txtTCorr;
    QToolButton *cmdNowCast = nullptr, *cmdAddCity = nullptr;
    // optMF and optAMPM: two groups, so that choosing one never clears the other.
    QButtonGroup *grpMF = nullptr, *grpAMPM = nullptr;

    // Hides the rows of the name, the date and the time: the panel then gives a place alone.
    void ShowPlaceOnly();
    // Puts a widget on a row of its own below the fields.
    void addFooter(QWidget *w);

    // The four texts that Generate checks.
    BirthFields Fields() const;
    // The zone of the place last picked from the atlas, empty when typed by hand.
    QString placeZone;
    // The atlas row of the place last filled from the atlas, 0 when typed by hand.
    qint64 placeId = 0;

Q_SIGNALS:
    // A field wants its hint shown (resource number).
    void hint(int number);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QGridLayout *m_grid = nullptr;
    int m_nextRow = 0;
};
