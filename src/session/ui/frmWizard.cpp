// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/frmWizard.h"

#include "sky/AppSettings.h"
#include "session/clsIni.h"
#include "session/ui/frmMessage.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>

#include <cmath>

namespace {
const QString kInit = QStringLiteral("Init");
const QString kSettings = QStringLiteral("Settings");
constexpr QSize kPictureSize(168, 318);

QRadioButton *option(const char *name, const QString &text, QWidget *parent)
{
    auto *o = new QRadioButton(text, parent);
    o->setObjectName(QLatin1String(name));
    return o;
}

QLabel *heading(const QString &text)
{
    auto *l = new QLabel(text);
    QFont f = l->font();
    f.setPointSizeF(f.pointSizeF() * 1.35);
    f.setBold(true);
    l->setFont(f);
    return l;
}

QLabel *para(const QString &text)
{
    auto *l = new QLabel(text);
    l->setWordWrap(true);
    l->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return l;
}

QGroupBox *group(const QString &title, std::initializer_list<QRadioButton *> options)
{
    auto *g = new QGroupBox(title);
    auto *v = new QVBoxLayout(g);
    v->setSpacing(4);
    for (QRadioButton *o : options) {
        o->setParent(g);
        v->addWidget(o);
    }
    return g;
}

// A frame of one step: a heading, then its content from top to bottom.
QFrame *stepFrame(const char *name, const QString &title, QVBoxLayout **body)
{
    auto *f = new QFrame;
    f->setObjectName(QLatin1String(name));
    auto *v = new QVBoxLayout(f);
    v->setContentsMargins(0, 0, 0, 0);
    v->setSpacing(10);
    v->addWidget(heading(title));
    *body = v;
    return f;
}

void check(QRadioButton *o)
{
    o->setChecked(true);
}

// ---- side pictures ----

const QColor kGold(0xe8, 0xc1, 0x6a);
const QColor kGoldSoft(0xe8, 0xc1, 0x6a, 110);

void drawStars(QPainter &p, const QSizeF &s)
{
    // A fixed scatter, the same on every step.
    static constexpr std::array<std::array<double, 3>, 14> kStars{{{0.12, 0.06, 1.4},
                                                                   {0.33, 0.11, 1.0},
                                                                   {0.71, 0.05, 1.6},
                                                                   {0.88, 0.14, 1.0},
                                                                   {0.55, 0.19, 1.2},
                                                                   {0.18, 0.27, 0.9},
                                                                   {0.83, 0.31, 1.3},
                                                                   {0.08, 0.45, 1.0},
                                                                   {0.92, 0.52, 0.9},
                                                                   {0.26, 0.70, 1.1},
                                                                   {0.78, 0.74, 1.2},
                                                                   {0.10, 0.80, 0.9},
                                                                   {0.62, 0.79, 1.0},
                                                                   {0.45, 0.04, 0.8}}};
    static_assert(kStars.size() == 14);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(255, 255, 255, 190));
    for (const auto &st : kStars)
        p.drawEllipse(QPointF(st[0] * s.width(), st[1] * s.height()), st[2], st[2]);
}

void drawSun(QPainter &p, QPointF c, double r)
{
    p.setPen(QPen(kGold, 2));
    for (int i = 0; i < 12; ++i) {
        const double a = i * M_PI / 6;
        p.drawLine(c + QPointF(std::cos(a), std::sin(a)) * (r + 6), c + QPointF(std::cos(a), std::sin(a)) * (r + 16));
    }
    QRadialGradient g(c, r);
    g.setColorAt(0, QColor(0xff, 0xe6, 0xa0));
    g.setColorAt(1, kGold);
    p.setBrush(g);
    p.drawEllipse(c, r, r);
}

void drawMotif(QPainter &p, int step, const QRectF &box)
{
    const QPointF c = box.center();
    const double w = box.width();
    p.setRenderHint(QPainter::Antialiasing);
    switch (step) {
    case 1: { // the sun over the horizon
        drawSun(p, c, w * 0.2);
        p.setPen(QPen(kGoldSoft, 1.5));
        p.drawLine(QPointF(box.left(), c.y() + w * 0.45), QPointF(box.right(), c.y() + w * 0.45));
        break;
    }
    case 2: { // a South Indian chart: twelve houses round an empty centre
        const double side = w * 0.8, cell = side / 4;
        const QPointF o = c - QPointF(side / 2, side / 2);
        p.setPen(QPen(kGold, 1.6));
        p.setBrush(QColor(255, 255, 255, 18));
        for (int r = 0; r < 4; ++r)
            for (int k = 0; k < 4; ++k)
                if (r == 0 || r == 3 || k == 0 || k == 3)
                    p.drawRect(QRectF(o + QPointF(k * cell, r * cell), QSizeF(cell, cell)));
        p.setPen(QPen(kGoldSoft, 1));
        p.drawLine(o + QPointF(cell, cell), o + QPointF(3 * cell, 3 * cell));
        p.drawLine(o + QPointF(3 * cell, cell), o + QPointF(cell, 3 * cell));
        break;
    }
    case 3: { // the Moon's path crossing the ecliptic at the two nodes
        const double r = w * 0.36;
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(kGold, 1.6));
        p.drawEllipse(c, r, r * 0.38);
        p.save();
        p.translate(c);
        p.rotate(-18);
        p.setPen(QPen(QColor(0xb8, 0xd0, 0xff), 1.6));
        p.drawEllipse(QPointF(0, 0), r, r * 0.38);
        p.restore();
        p.setPen(Qt::NoPen);
        p.setBrush(kGold);
        const double dx = r * 0.94;
        p.drawEllipse(c + QPointF(-dx, 0.16 * r), 5, 5);
        p.drawEllipse(c + QPointF(dx, -0.16 * r), 5, 5);
        p.setBrush(QColor(0xf4, 0xf4, 0xe8));
        p.drawEllipse(c, 7, 7);
        break;
    }
    case 4: { // the user
        p.setPen(Qt::NoPen);
        p.setBrush(kGold);
        p.drawEllipse(c - QPointF(0, w * 0.16), w * 0.13, w * 0.13);
        QPainterPath body;
        body.addRoundedRect(QRectF(c.x() - w * 0.25, c.y() + w * 0.02, w * 0.5, w * 0.32), w * 0.16, w * 0.16);
        p.drawPath(body);
        break;
    }
    case 5: { // a compass rose for the regions
        const double r = w * 0.32;
        p.setPen(QPen(kGoldSoft, 1.2));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(c, r, r);
        for (int i = 0; i < 4; ++i) {
            QPainterPath arm;
            const double a = i * M_PI / 2 - M_PI / 2, b = a + M_PI / 4;
            arm.moveTo(c + QPointF(std::cos(a), std::sin(a)) * (r * 1.05));
            arm.lineTo(c + QPointF(std::cos(b), std::sin(b)) * (r * 0.22));
            arm.lineTo(c + QPointF(std::cos(a - M_PI / 4), std::sin(a - M_PI / 4)) * (r * 0.22));
            arm.closeSubpath();
            p.setPen(Qt::NoPen);
            p.setBrush(i == 0 ? kGold : QColor(0xd0, 0xb0, 0x70, 200));
            p.drawPath(arm);
        }
        break;
    }
    case 6: { // leaves of a palm-leaf manuscript
        p.setBrush(QColor(0xd9, 0xc0, 0x8c));
        for (int i = 0; i < 3; ++i) {
            const QRectF leaf(box.left() + w * 0.08, c.y() - w * 0.3 + i * w * 0.22, w * 0.84, w * 0.15);
            p.setPen(QPen(QColor(0x8a, 0x6a, 0x3a), 1));
            p.drawRoundedRect(leaf, leaf.height() / 2, leaf.height() / 2);
            p.setPen(QPen(QColor(0x6a, 0x4a, 0x22), 1));
            for (int l = 1; l <= 2; ++l) {
                const double y = leaf.top() + l * leaf.height() / 3;
                p.drawLine(QPointF(leaf.left() + 14, y), QPointF(leaf.right() - 14, y));
            }
            p.setBrush(QColor(0x5a, 0x3a, 0x1a));
            p.drawEllipse(QPointF(leaf.center().x(), leaf.center().y()), 2.5, 2.5);
            p.setBrush(QColor(0xd9, 0xc0, 0x8c));
        }
        break;
    }
    default: { // done: a tick in a ring
        const double r = w * 0.3;
        p.setPen(QPen(kGold, 3));
        p.setBrush(QColor(255, 255, 255, 20));
        p.drawEllipse(c, r, r);
        QPainterPath tick;
        tick.moveTo(c + QPointF(-r * 0.45, 0));
        tick.lineTo(c + QPointF(-r * 0.1, r * 0.35));
        tick.lineTo(c + QPointF(r * 0.5, -r * 0.4));
        p.setPen(QPen(kGold, 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        p.drawPath(tick);
        break;
    }
    }
}
} // namespace

QPixmap frmWizard::StepPicture(int n, const QSize &size)
{
    QPixmap pm(size);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, size.height());
    sky.setColorAt(0, QColor(0x14, 0x1e, 0x46));
    sky.setColorAt(1, QColor(0x43, 0x26, 0x62));
    p.fillRect(pm.rect(), sky);
    drawStars(p, size);
    const QRectF box(12, size.height() * 0.22, size.width() - 24, size.width() - 24);
    drawMotif(p, n, box);
    QFont f = p.font();
    f.setPointSizeF(13);
    f.setBold(true);
    f.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    p.setFont(f);
    p.setPen(kGold);
    p.drawText(QRectF(0, size.height() - 44, size.width(), 24), Qt::AlignCenter, QStringLiteral("ORBANTA"));
    f.setPointSizeF(8);
    f.setBold(false);
    f.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
    p.setFont(f);
    p.setPen(QColor(255, 255, 255, 170));
    p.drawText(QRectF(0, size.height() - 24, size.width(), 16), Qt::AlignCenter,
               QStringLiteral("Step %1 of %2").arg(n).arg(kSteps));
    return pm;
}

frmWizard::frmWizard(QWidget *parent)
    : QDialog(parent), m_rerun(AppSettings::value(kSettings, QStringLiteral("DoneSetup"), false).toBool())
{
    setObjectName(QStringLiteral("frmWizard"));
    setWindowTitle(QStringLiteral("Orbanta Setup Wizard"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);

    imgSide = new QLabel;
    imgSide->setObjectName(QStringLiteral("imgSide"));
    imgSide->setFixedSize(kPictureSize);
    imgSide->setFrameShape(QFrame::NoFrame);
    for (int i = 0; i < kSteps; ++i)
        m_pictures[static_cast<size_t>(i)] = StepPicture(i + 1, kPictureSize);

    frames = new QStackedWidget;
    buildSteps();

    cmdBack = new QPushButton(QStringLiteral("< &Back"));
    cmdBack->setObjectName(QStringLiteral("cmdBack"));
    cmdNext = new QPushButton(QStringLiteral("&Next >"));
    cmdNext->setObjectName(QStringLiteral("cmdNext"));
    cmdFinish = new QPushButton(QStringLiteral("&Finish"));
    cmdFinish->setObjectName(QStringLiteral("cmdFinish"));
    cmdCancel = new QPushButton(QStringLiteral("Cancel"));
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    for (QPushButton *b : {cmdBack, cmdNext, cmdFinish, cmdCancel}) {
        b->setAutoDefault(false);
        b->setMinimumWidth(84);
    }

    auto *top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(imgSide, 0, Qt::AlignTop);
    top->addWidget(frames, 1);
    auto *rule = new QFrame;
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(cmdBack);
    buttons->addWidget(cmdNext);
    buttons->addSpacing(12);
    buttons->addWidget(cmdFinish);
    buttons->addWidget(cmdCancel);
    auto *v = new QVBoxLayout(this);
    v->setContentsMargins(12, 12, 12, 12);
    v->addLayout(top, 1);
    v->addWidget(rule);
    v->addLayout(buttons);

    connect(cmdNext, &QPushButton::clicked, this, [this] { GoToStep(m_step + 1); });
    connect(cmdBack, &QPushButton::clicked, this, [this] { GoToStep(m_step - 1); });
    connect(cmdFinish, &QPushButton::clicked, this, &frmWizard::cmdFinish_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmWizard::cmdCancel_Click);

    loadAnswers();
    GoToStep(1);
    setFixedSize(640, 400);
}

void frmWizard::buildSteps()
{
    QVBoxLayout *b = nullptr;

    // 1: welcome
    frmSteps[0] = stepFrame("frmStep1", QStringLiteral("Welcome to Orbanta"), &b);
    b->addWidget(
        para(QStringLiteral("This wizard sets up Orbanta for the way you work. In a few short steps you choose the style of the "
                            "chart and the ayanamsh, the method for Rahu and Ketu, your name and address for the cover pages of "
                            "reports, the regional reckonings of marriage matching, and the method of calculation.")));
    b->addWidget(para(QStringLiteral("Each of these settings can be changed later from the 'Settings' menu.")));
    b->addWidget(para(QStringLiteral("Click 'Next' to begin, or 'Cancel' to run Orbanta on its default settings.")));
    b->addStretch(1);

    // 2: chart style and ayanamsh
    frmSteps[1] = stepFrame("frmStep2", QStringLiteral("Kundli Style & Ayanamsh"), &b);
    optNorthKundli = option("optNorthKundli", QStringLiteral("North Indian Style(Default)"), nullptr);
    optEastKundli = option("optEastKundli", QStringLiteral("East Indian Style"), nullptr);
    optSouthKundli = option("optSouthKundli", QStringLiteral("South Indian Style"), nullptr);
    optLahiri = option("optLahiri", QStringLiteral("&N C Lahiri (Default)"), nullptr);
    optRaman = option("optRaman", QStringLiteral("&B V Raman"), nullptr);
    optKP = option("optKP", QStringLiteral("&Krishnamurthy(KP)"), nullptr);
    optSayan = option("optSayan", QStringLiteral("&Sayan (Without Ayanamsh)"), nullptr);
    optAyanVakya = option("optAyanVakya", QStringLiteral("Vakya Ayanamsh"), nullptr);
    // An ayanamsh chosen in the settings that the wizard does not list is kept as it is.
    optAyanKeep = option("optAyanKeep", QStringLiteral("Keep the current one"), nullptr);
    optAyanKeep->hide();
    {
        auto *row = new QHBoxLayout;
        row->setSpacing(10);
        auto *styles = group(QStringLiteral("Kundli Style"), {optNorthKundli, optEastKundli, optSouthKundli});
        static_cast<QVBoxLayout *>(styles->layout())->addStretch(1);
        row->addWidget(styles, 1);
        row->addWidget(group(QStringLiteral("Ayanamsh"), {optLahiri, optRaman, optKP, optSayan, optAyanVakya, optAyanKeep}), 1);
        b->addLayout(row);
    }
    b->addWidget(para(QStringLiteral(
        "Ayanamsh is a special value subtracted from planet longitudes. Please select an Ayanamsh of your preference.")));
    b->addStretch(1);

    // 3: Rahu and Ketu
    frmSteps[2] = stepFrame("frmStep3", QStringLiteral("Rahu/Ketu Positions"), &b);
    optRahuMean = option("optRahuMean", QStringLiteral("Mean Position (Default)"), nullptr);
    optRahuTrue = option("optRahuTrue", QStringLiteral("True Position"), nullptr);
    b->addWidget(para(QStringLiteral("There are two distinct methods of calculating Rahu & Ketu positions. ") +
                      QStringLiteral("Click on the formula you want for Rahu calculation!")));
    b->addWidget(group(QStringLiteral("Rahu && Ketu"), {optRahuMean, optRahuTrue}));
    b->addStretch(1);

    // 4: the user's details
    frmSteps[3] = stepFrame("frmStep4", QStringLiteral("Your Details"), &b);
    txtName = new QLineEdit;
    txtName->setObjectName(QStringLiteral("txtName"));
    txtAddress = new QPlainTextEdit;
    txtAddress->setObjectName(QStringLiteral("txtAddress"));
    txtAddress->setTabChangesFocus(true);
    txtAddress->setFixedHeight(110);
    b->addWidget(para(QStringLiteral("Your name and address are printed on the cover page of every report.")));
    auto *nameLabel = new QLabel(QStringLiteral("&Name:"));
    nameLabel->setBuddy(txtName);
    auto *addLabel = new QLabel(QStringLiteral("&Address or other details:"));
    addLabel->setBuddy(txtAddress);
    b->addWidget(nameLabel);
    b->addWidget(txtName);
    b->addWidget(addLabel);
    b->addWidget(txtAddress);
    b->addStretch(1);

    // 5: regional settings
    frmSteps[4] = stepFrame("frmStep5", QStringLiteral("Regional Settings"), &b);
    optMangNorth = option("optMangNorth", QStringLiteral("North India (1,4,7,8,12)"), nullptr);
    optMangSouth = option("optMangSouth", QStringLiteral("South India (2,4,7,8,12)"), nullptr);
    optVarnNorth = option("optVarnNorth", QStringLiteral("North Indian Method (based on Muhurtha Chintamani)"), nullptr);
    optVarnSouth = option("optVarnSouth", QStringLiteral("South Indian Method"), nullptr);
    b->addWidget(para(QStringLiteral(
        "Astrology principles differ in different regions, please choose settings that are appropriate for your needs.")));
    b->addWidget(group(QStringLiteral("Manglik Calculation"), {optMangNorth, optMangSouth}));
    b->addWidget(group(QStringLiteral("Varna Calculation"), {optVarnNorth, optVarnSouth}));
    b->addStretch(1);

    // 6: method of calculation
    frmSteps[5] = stepFrame("frmStepVakya", QStringLiteral("Select Calculation Method"), &b);
    optCalcModern = option("optCalcModern", QStringLiteral("Modern Calculations / Drik Kanitha Panchang"), nullptr);
    OptVakya = option("OptVakya", QStringLiteral("Vakya Panchang/Surya Siddhanta Calculations (Default)"), nullptr);
    b->addWidget(para(QStringLiteral("Although the modern method of calculations is followed usually, you can also select "
                                     "the Vakya Panchang / Surya Siddhanta if you wish.")));
    b->addWidget(group(QStringLiteral("Method"), {optCalcModern, OptVakya}));
    b->addStretch(1);

    // 7: closing
    frmSteps[6] = stepFrame("frmStepFinal", QStringLiteral("Thank You!"), &b);
    b->addWidget(para(QStringLiteral("Orbanta is now set up with the choices you made.")));
    b->addWidget(para(QStringLiteral("Click 'Finish' to save them and start Orbanta. You can change any of them later "
                                     "from the 'Settings' menu, or run this wizard again with 'Settings-->Setup Wizard'.")));
    b->addStretch(1);

    for (QFrame *f : frmSteps)
        frames->addWidget(f);
}

void frmWizard::loadAnswers()
{
    // The wizard opens on the settings in force, so Finish without a change changes nothing.
    const int style = AppSettings::KundStyle();
    check(style == 0 ? optNorthKundli : style == 1 ? optEastKundli : optSouthKundli);
    switch (AppSettings::AyanType()) {
    case 2:
        check(optRaman);
        break;
    case 3:
        check(optKP);
        break;
    case 12:
        check(optSayan);
        break;
    case 15:
        check(optAyanVakya);
        break;
    case 1:
        check(optLahiri);
        break;
    default:
        optAyanKeep->setText(QStringLiteral("Keep the current one (choice %1 of the Ayanamsh settings)").arg(AppSettings::AyanType()));
        optAyanKeep->show();
        check(optAyanKeep);
        break;
    }
    check(AppSettings::RahuKetuMode() == 2 ? optRahuTrue : optRahuMean);
    txtName->setText(clsIni::DispName());
    txtAddress->setPlainText(clsIni::DispAdd());
    check(AppSettings::value(kSettings, QStringLiteral("CalcMangMod"), 1).toInt() == 2 ? optMangSouth : optMangNorth);
    check(AppSettings::value(kSettings, QStringLiteral("CalcVarMod"), 1).toInt() == 2 ? optVarnSouth : optVarnNorth);
    check(AppSettings::Vakya() ? OptVakya : optCalcModern);
}

void frmWizard::GoToStep(int n)
{
    m_step = std::clamp(n, 1, kSteps);
    imgSide->setPixmap(m_pictures[static_cast<size_t>(m_step - 1)]);
    frames->setCurrentWidget(frmSteps[static_cast<size_t>(m_step - 1)]);
    cmdBack->setEnabled(m_step != 1);
    cmdNext->setEnabled(m_step != kSteps);
    cmdFinish->setEnabled(m_step == kSteps);
    (m_step == kSteps ? cmdFinish : cmdNext)->setDefault(true);
}

void frmWizard::cmdFinish_Click()
{
    clsIni::WriteIniString(QStringLiteral("DispName"), txtName->text());
    clsIni::WriteIniString(QStringLiteral("DispAdd"), txtAddress->toPlainText());
    AppSettings::setValue(kInit, QStringLiteral("RahuKetuMode"), optRahuMean->isChecked() ? 1 : 2);
    if (!optAyanKeep->isChecked()) {
        const int ayan = optLahiri->isChecked()  ? 1
                         : optRaman->isChecked() ? 2
                         : optKP->isChecked()    ? 3
                         : optSayan->isChecked() ? 12
                                                 : 15;
        AppSettings::setValue(kInit, QStringLiteral("AyanType"), ayan);
    }
    AppSettings::setValue(kInit, QStringLiteral("KundStyle"),
                          optNorthKundli->isChecked()  ? 0
                          : optEastKundli->isChecked() ? 1
                                                       : 2);
    AppSettings::setValue(kInit, QStringLiteral("Vakya"), OptVakya->isChecked());
    AppSettings::setValue(kSettings, QStringLiteral("CalcVarMod"), optVarnNorth->isChecked() ? 1 : 2);
    AppSettings::setValue(kSettings, QStringLiteral("CalcMangMod"), optMangNorth->isChecked() ? 1 : 2);
    AppSettings::setValue(kSettings, QStringLiteral("DoneSetup"), true);
    m_ended = true;
    accept();
}

void frmWizard::cmdCancel_Click()
{
    if (m_ended)
        return;
    m_ended = true;
    // Run again from the menu, Cancel leaves the settings in force, and says so.
    frmMessage::Notify(this, QMessageBox::Information, QStringLiteral("Setup not completed"),
                       m_rerun ? QStringLiteral("You have chosen to cancel Setup Wizard; the settings stay as they were.")
                               : QStringLiteral("You have chosen to cancel Setup Wizard, ") + QStringLiteral("Orbanta") +
                                     QStringLiteral(" will run on default settings.") + QLatin1Char('\n') +
                                     QStringLiteral("You can run Setup Wizard later by clicking on 'Settings-->Setup Wizard.'"));
    AppSettings::setValue(kSettings, QStringLiteral("DoneSetup"), true);
    QDialog::reject();
}

void frmWizard::reject()
{
    if (m_ended)
        QDialog::reject();
    else
        cmdCancel_Click();
}
