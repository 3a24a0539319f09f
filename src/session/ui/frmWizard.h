// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The setup wizard, run once at first start and again from the Settings menu: seven steps for
// the chart style and ayanamsh, Rahu and Ketu, the user's details, the regional reckonings and
// the method of calculation. Finish writes every answer and DoneSetup; Cancel writes DoneSetup
// alone. Either way the dialog ends (finished()), and start-up goes on.

#include <QDialog>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include <array>

class frmWizard : public QDialog
{
    Q_OBJECT
public:
    explicit frmWizard(QWidget *parent = nullptr);

    static constexpr int kSteps = 7;
    // The step on screen, 1..7.
    int Step() const { return m_step; }
    // Shows step n (1..7): its frame, its picture, and the buttons it allows.
    void GoToStep(int n);

    // Ends the wizard as Cancel does (also Esc and the window's close box).
    void reject() override;

    QLabel *imgSide;
    QStackedWidget *frames;
    std::array<QFrame *, kSteps> frmSteps{}; // frmStep1 .. frmStep5, frmStepVakya, frmStepFinal
    QRadioButton *optNorthKundli, *optEastKundli, *optSouthKundli;
    QRadioButton *optLahiri, *optRaman, *optKP, *optSayan, *optAyanVakya;
    // Shown only when the ayanamsh in force is none of the five above.
    QRadioButton *optAyanKeep;
    QRadioButton *optRahuMean, *optRahuTrue;
    QLineEdit *txtName;
    QPlainTextEdit *txtAddress;
    QRadioButton *optMangNorth, *optMangSouth, *optVarnNorth, *optVarnSouth;
    QRadioButton *optCalcModern, *OptVakya;
    QPushButton *cmdBack, *cmdNext, *cmdFinish, *cmdCancel;

    // The side picture of step n (1..7), drawn for the wizard's picture area.
    static QPixmap StepPicture(int n, const QSize &size);

private:
    void buildSteps();
    void loadAnswers();
    void cmdFinish_Click();
    void cmdCancel_Click();

    int m_step = 1;
    bool m_ended = false;
    bool m_rerun = false; // setup was done before: the wizard runs again from the menu
    std::array<QPixmap, kSteps> m_pictures; // imgStep1 .. imgStep5, imgVakya, imgLastScreen
};
