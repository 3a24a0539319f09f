// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// "Options": the atlas editor (page 0 cities, page 1 countries, on the session's records
// database), the calculation settings (page 2) and the user's details (page 3).
// The lists stand in the tables' row order, so a list index is a row number.

#include "session/clsCity.h"
#include "session/clsCountry.h"

#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>

#include <memory>

class frmEditLongLat : public QDialog
{
    Q_OBJECT
public:
    enum Page { CitiesPage = 0, CountriesPage = 1, CalculationPage = 2, DetailsPage = 3 };
    explicit frmEditLongLat(int page = CitiesPage, QWidget *parent = nullptr);
    ~frmEditLongLat() override;

    // 0 viewing, 1 modifying, 2 adding; one state for the cities and the countries.
    int EditState() const { return m_editState; }

    QTabWidget *EditTab;
    // page 0
    QComboBox *cmbCityList;
    QLineEdit *txtLat, *txtLong;
    QRadioButton *optNorth, *optSouth, *optEast, *optWest;
    QComboBox *cbocCountry;
    QLineEdit *txtCitGMT;
    QPushButton *cmdAdd, *cmdChange, *cmdDelete, *cmdSave;
    // page 1
    QComboBox *cboCNTRY;
    QLineEdit *txtGMTDiff;
    QPushButton *cmdCAdd, *cmdCModify, *cmdCDel, *cmdCSave;
    // page 2
    QRadioButton *optLahiri, *optRaman, *optKP, *optSayan, *optCustom, *optVakya;
    QLineEdit *txtCustAyan;
    QRadioButton *optRahuMean, *optRahuTrue, *optCalcEphem, *optCalcVakya;
    QPushButton *cmdSaveAyanKundStyle;
    // page 3
    QLineEdit *txtName;
    QPlainTextEdit *txtAddress;
    QPushButton *cmdSaveYourDet;

    QPushButton *cmdClose;

    // The text of a masked coordinate box, "ddd:mm" with unfilled places read as 0.
    static QString BoxText(const QLineEdit *box);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *buildCitiesPage();
    QWidget *buildCountriesPage();
    QWidget *buildCalculationPage();
    QWidget *buildDetailsPage();
    void openAtlas();
    void fillCityList(int select);
    void fillCountryLists(int select);
    void showCity(int index);
    void showCountry(int index);
    void cmdAdd_Click();
    void cmdChange_Click();
    void cmdSave_Click();
    void cmdDelete_Click();
    void cmdCAdd_Click();
    void cmdCModify_Click();
    void cmdCSave_Click();
    void cmdCDel_Click();
    void cmdSaveAyanKundStyle_Click();
    void cmdSaveYourDet_Click();
    void setCountryEditing(bool on);
    void refuse(const AtlasEditResult &r);

    int m_editState = 0;
    bool m_filling = false;
    std::unique_ptr<clsCity> m_cities;
    std::unique_ptr<clsCountry> m_countries;
};
