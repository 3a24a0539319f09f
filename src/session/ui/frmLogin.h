// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The entry screen: the three modes, the birth fields, the person list, and Generate.

#include "session/EntryValidation.h"
#include "session/Languages.h"
#include "session/PersonStore.h"
#include "sky/clsPerson.h"
#include "session/ui/BirthPanel.h"

#include "muhurtha/clsMuhurtha.h"

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QToolBar>
#include <QWidget>

#include <functional>

class frmLogin : public QWidget
{
    Q_OBJECT
public:
    explicit frmLogin(QWidget *parent = nullptr);

    // Where the screen's message boxes go; tests set a recorder so nothing blocks.
    using MessageHandler = std::function<void(const EntryMessage &)>;
    static void setMessageHandler(MessageHandler handler);

    void cmdHoroscope_Click();
    void cmdMatch_Click();
    void cmdVarshaphala_Click();
    void cmdMuhurtha_Click();
    // Validates, makes the session's charts and casts them; false when a field was refused.
    bool cmdGenerate_Click();
    void cmdNowCast_Click();
    // Generate's checks with their messages, on the fields of the mode.
    bool ValidateEntry();
    void FillPersonLists();
    void SavePerson();
    void DeletePerson();
    // Brings back the person deleted last; possible until the next delete.
    void UndoDelete();
    // Writes the shown place into the atlas.
    void cmdAdHorCity_Click();
    // file with extension added when it has none.
    static QString WithExtension(const QString &file, const QString &extension);
    // The exchange files, with their dialogs; the *To/*From forms take the path directly.
    void ExportPersonFile();
    void ExportPersonDB();
    void ImportPersons(bool whole);
    bool ExportPersonFileTo(const QString &file);
    bool ExportPersonDBTo(const QString &file);
    bool ImportPersonsFrom(const QString &file);
    // Copies a stored person into a panel.
    void FillFromRecord(BirthPanel *panel, const PersonRow &row);

    BirthPanel *single;
    BirthPanel *boy;
    BirthPanel *gal;
    // Muhurtha mode: the acts, the span of days, the clock times, the couple of a marriage and
    // the place (a panel that shows its place rows only).
    QGroupBox *frmMuhu;
    QListWidget *lstMuhu;
    QLineEdit *txtMuhuFrom, *txtMuhuTo, *txtMuhuStart, *txtMuhuEnd;
    QWidget *frmMuhuCouple;
    QComboBox *cmbMuhuBoy, *cmbMuhuGal;
    BirthPanel *muhuPlace;
    QGroupBox *frmSingleGuy;
    QWidget *frmMatch;
    QComboBox *cmbLangu;
    QPushButton *cmdHoroscope, *cmdMatch, *cmdVarshaphala, *cmdMuhurtha, *cmdGenerate, *cmdOptions;
    QLabel *lblHints;
    QPushButton *cmdUndoDelete;
    QToolBar *tbTools;

Q_SIGNALS:
    // Generate has cast the session's charts: the main window takes over.
    void generated();
    void optionsRequested();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // The Muhurtha mode's part of Generate: its checks, the couple, the place chart and the search.
    bool generateMuhurtha();
    void buildMuhurthaPanel();
    void muhuActChosen();
    // The span's first day and start time into the place panel's hidden birth fields, which the
    // zone history and Generate's place checks read.
    void syncMuhuPlace();
    std::vector<MuhuAct> m_acts;
    // The name must be there and the fields pass Generate's checks before a person is stored.
    bool checkBeforeStoring(const QString &name, const QString &title);
    std::optional<PersonRow> m_deleted;
    // Takes the language of list entry index: its sizes and its text database.
    void selectLanguage(int index);
    std::vector<LanguageRow> m_languages;
    void postHint(int number);
    void postText(const QString &text);
    void showMessage(const EntryMessage &m);
    void wirePanel(BirthPanel *p);
    void personTyped(BirthPanel *p, const QString &text, bool fill);
    void countryTyped(BirthPanel *p, const QString &text, bool picked);
    void placeTyped(BirthPanel *p, const QString &text, bool picked);
    void applyZoneHistory(BirthPanel *p);
    // The places of a country into the place lists of the panels, read once for all of them.
    void fillPlaces(std::initializer_list<BirthPanel *> panels, const QString &country);
    bool checkField(BirthPanel *p, QWidget *field);
    PersonRow rowFromPanel(BirthPanel *p, const QString &name) const;
    void fillPerson(BirthPanel *p, clsPerson &person, int sex) const;
    void saveStartMode(const QString &mode);
    PersonStore store() const;
};
