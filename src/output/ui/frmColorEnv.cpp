// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/frmColorEnv.h"

#include "chartdraw/ui/Kundali.h"
#include "chartdraw/ui/LookControls.h"
#include "output/ui/FontBox.h"
#include "output/ui/PageStyle.h"
#include "session/Session.h"
#include "sky/MessageSink.h"

#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
// The captions of the page colours, in the order of the scheme's page keys.
constexpr std::array<const char *, Themes::kPageKeys> kPageCaptions{
    "Rules and grid",    "Top emblem background", "Top emblem",       "Person's name",  "Cover emblem",
    "Cover background",  "Headings",              "Sub-headings",     "Body text",      "Table background",
    "Table head",        "Your name",             "Your address",     "Circles and frames", "Table head text",
};

enum PageKey { TopLine, TopLogoBack, TopLogo, PerName, FrontLogo, FrontLogoBack, Heading, SubHead, NormText, TableBack,
               TableHead, CompanyName, CompanyAddress, CircleBorder, TableHeadText };

// A small page in the colours and fonts of the boxes: the head with its emblem, a heading, a few
// lines of text, a table and the foot, so that every page colour can be seen at work. Its sizes
// are the page's made smaller, and follow the fonts' sizes as the page's do.
class PagePreview : public QWidget
{
public:
    explicit PagePreview(const frmColorEnv *form, QWidget *parent) : QWidget(parent), m_form(form)
    {
        setObjectName(QStringLiteral("pagePreview"));
        setFixedSize(250, 340);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const Themes::Scheme s = m_form->scheme();
        const auto c = [&s](PageKey k) { return Kundali::ColorFromLong(s.page(k)); };
        const LanguageStyle &lang = Session().Language;
        const auto head = [&](int size) { return RoleFont(s.HeadFont, size, lang.HeaderSize, true); };
        const auto body = [&](int size, bool bold) { return RoleFont(s.BodyFont, size, lang.NormalSize, bold); };
        QFont emblem(QStringLiteral("FreeSerif"));
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        p.fillRect(rect(), Qt::white);
        p.setPen(QColor(Qt::gray));
        p.drawRect(rect().adjusted(0, 0, -1, -1));

        // Head: emblem in its circle, the person's name, the rule.
        p.setBrush(c(TopLogoBack));
        p.setPen(QPen(c(CircleBorder), 1.2));
        p.drawEllipse(QRectF(12, 10, 30, 30));
        p.setPen(c(TopLogo));
        emblem.setPointSize(14);
        p.setFont(emblem);
        p.drawText(QRectF(12, 10, 30, 30), Qt::AlignCenter, QStringLiteral("\u0950"));
        p.setFont(body(8, true));
        p.setPen(c(PerName));
        p.drawText(QRectF(50, 16, 190, 18), Qt::AlignRight | Qt::AlignVCenter, LookText("SampleName", "Asha Sharma"));
        p.setPen(QPen(c(TopLine), 1.5));
        p.drawLine(QPointF(10, 46), QPointF(240, 46));

        p.setFont(head(11));
        p.setPen(c(Heading));
        p.drawText(QRectF(10, 52, 230, 22), Qt::AlignCenter, LookText("SampleHeading", "Lagna & Planet Positions"));
        p.setFont(head(8));
        p.setPen(c(SubHead));
        p.drawText(QRectF(10, 78, 230, 16), Qt::AlignLeft, LookText("SampleSubHead", "Birth details"));
        p.setFont(body(7, false));
        p.setPen(c(NormText));
        p.drawText(QRectF(10, 96, 230, 40), Qt::AlignLeft | Qt::TextWordWrap,
                   LookText("SampleText", "Born on a Friday in the nakshatra Rohini, with Taurus rising."));

        // A table of three columns: its head and two rows.
        const double x = 10, y = 140, w = 230, row = 18;
        p.fillRect(QRectF(x, y, w, row), c(TableHead));
        p.fillRect(QRectF(x, y + row, w, 2 * row), c(TableBack));
        p.setPen(c(TableHeadText));
        p.setFont(body(7, true));
        const QStringList heads{LookText("SamplePlanetHead", "Planet"), LookText("SampleSignHead", "Sign"),
                                LookText("SampleDegreeHead", "Degree")};
        for (int i = 0; i < 3; ++i)
            p.drawText(QRectF(x + i * w / 3, y, w / 3, row), Qt::AlignCenter, heads[i]);
        p.setFont(body(7, false));
        p.setPen(c(NormText));
        const QStringList cells{QStringLiteral("Sun"), QStringLiteral("Leo"), QStringLiteral("29:07"),
                                QStringLiteral("Moon"), QStringLiteral("Taurus"), QStringLiteral("12:44")};
        for (int i = 0; i < 6; ++i)
            p.drawText(QRectF(x + (i % 3) * w / 3, y + row * (1 + i / 3), w / 3, row), Qt::AlignCenter, cells[i]);
        p.setPen(QPen(c(TopLine), 0.8));
        for (int r = 0; r <= 3; ++r)
            p.drawLine(QPointF(x, y + r * row), QPointF(x + w, y + r * row));
        for (int i = 0; i <= 3; ++i)
            p.drawLine(QPointF(x + i * w / 3, y), QPointF(x + i * w / 3, y + 3 * row));

        // The cover's emblem and the maker's name and address at the foot.
        p.setBrush(c(FrontLogoBack));
        p.setPen(QPen(c(CircleBorder), 1.2));
        p.drawRect(QRectF(95, 216, 60, 60));
        p.setPen(c(FrontLogo));
        emblem.setPointSize(24);
        p.setFont(emblem);
        p.drawText(QRectF(95, 216, 60, 60), Qt::AlignCenter, QStringLiteral("\u0950"));
        p.setFont(body(8, true));
        p.setPen(c(CompanyName));
        p.drawText(QRectF(10, 290, 230, 16), Qt::AlignCenter, LookText("SampleCompany", "Your name"));
        p.setFont(body(7, false));
        p.setPen(c(CompanyAddress));
        p.drawText(QRectF(10, 306, 230, 16), Qt::AlignCenter, LookText("SampleAddress", "Your address"));
        p.setPen(QPen(c(TopLine), 1));
        p.drawLine(QPointF(10, 326), QPointF(240, 326));
    }

private:
    const frmColorEnv *m_form;
};

constexpr std::array<const char *, Themes::kPageKeys> kCaptionKeys{
    "TopLineCol",   "TopLogoBackCol", "TopLogoCol",     "PerNameCol",        "FrontLogoCol",
    "FrontLogoBackCol", "HeadingCol", "SubHeadCol",     "NormTextCol",       "TableBackCol",
    "TableHeadCol", "CompanyNameCol", "CompanyAddressCol", "CircleBorderCol", "TableHeadText",
};

// Tells the user what went wrong, in a message box of the program.
void tell(const QString &text) { messageSink().warn(LookText("DesignerTitle", "Page Designer"), text); }
} // namespace

frmColorEnv::frmColorEnv(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmColorEnv"));
    setWindowTitle(LookText("DesignerTitle", "Page Designer"));

    // The schemes.
    cmbTheme = new QComboBox(this);
    cmbTheme->setObjectName(QStringLiteral("cmbTheme"));
    cmbTheme->setEditable(true);
    cmbTheme->setInsertPolicy(QComboBox::NoInsert);
    cmbTheme->setMinimumWidth(200);
    cmbTheme->lineEdit()->setMaxLength(Themes::kMaxName);
    cmdSaveTheme = new QPushButton(LookText("SaveScheme", "Save Scheme"), this);
    cmdSaveTheme->setObjectName(QStringLiteral("cmdSaveTheme"));
    cmdDelTheme = new QPushButton(LookText("DeleteScheme", "Delete"), this);
    cmdDelTheme->setObjectName(QStringLiteral("cmdDelTheme"));
    auto *schemes = new QHBoxLayout;
    schemes->addWidget(new QLabel(LookText("Scheme", "Colour scheme:"), this));
    schemes->addWidget(cmbTheme, 1);
    schemes->addWidget(cmdSaveTheme);
    schemes->addWidget(cmdDelTheme);

    // The page colours, in two columns.
    auto *pageBox = new QGroupBox(LookText("PageColours", "Pages"), this);
    auto *grid = new QGridLayout(pageBox);
    for (int i = 0; i < Themes::kPageKeys; ++i) {
        auto *box = new ColorBox(QStringLiteral("pic") + Themes::KeyName(i), pageBox);
        picPage[static_cast<size_t>(i)] = box;
        const int row = i % 8, col = (i / 8) * 2;
        grid->addWidget(new QLabel(LookText(kCaptionKeys[static_cast<size_t>(i)], kPageCaptions[static_cast<size_t>(i)]), pageBox), row, col);
        grid->addWidget(box, row, col + 1);
        connect(box, &ColorBox::colourChosen, this, [this] { pagePreview->update(); });
    }
    grid->setColumnMinimumWidth(2, 140);

    // The chart colours and widths, with the sample chart.
    auto *chartGroup = new QGroupBox(LookText("ChartColours", "Charts"), this);
    auto *chartForm = new QFormLayout;
    const auto colour = [&](const char *name, const char *key, const char *text) {
        auto *b = new ColorBox(QString::fromLatin1(name), chartGroup);
        chartForm->addRow(LookText(key, text), b);
        connect(b, &ColorBox::colourChosen, this, &frmColorEnv::chartChanged);
        return b;
    };
    picBackColor = colour("picBackColor", "KunBackColor", "Background");
    picLineColor = colour("picLineColor", "KunLineColor", "Lines");
    picBorderColor = colour("picBorderColor", "KunBorderColor", "Border");
    picTxtColor = colour("picTxtColor", "KunTxtColor", "Planets");
    picNumberColor = colour("picNumberColor", "KunNumColor", "Sign numbers");
    txtLineWidth = new WidthSpin(QStringLiteral("txtLineWidth"), chartGroup);
    txtBorderWidth = new WidthSpin(QStringLiteral("txtBorderWidth"), chartGroup);
    chartForm->addRow(LookText("LineWidth", "Lines"), txtLineWidth);
    chartForm->addRow(LookText("BorderWidth", "Border"), txtBorderWidth);
    connect(txtLineWidth, &QSpinBox::valueChanged, this, &frmColorEnv::chartChanged);
    connect(txtBorderWidth, &QSpinBox::valueChanged, this, &frmColorEnv::chartChanged);
    kunDemo = new Kundali(chartGroup);
    kunDemo->setObjectName(QStringLiteral("kunDemo"));
    kunDemo->setFixedSize(200, 200);
    kunDemo->setHouseNumber(1);
    for (int i = 1; i <= 12; ++i)
        kunDemo->PlanetPlace(i, LookText("SamplePlanet", "Planet"));
    auto *chartLayout = new QHBoxLayout(chartGroup);
    chartLayout->addLayout(chartForm);
    chartLayout->addWidget(kunDemo, 0, Qt::AlignTop);

    auto *previewGroup = new QGroupBox(LookText("Preview", "Sample page"), this);
    pagePreview = new PagePreview(this, previewGroup);
    auto *previewLayout = new QVBoxLayout(previewGroup);
    previewLayout->addWidget(pagePreview);

    // The two page fonts.
    auto *fontGroup = new QGroupBox(LookText("PageFonts", "Fonts"), this);
    auto *fontForm = new QFormLayout(fontGroup);
    cmdHeadFont = new FontBox(QStringLiteral("cmdHeadFont"), Session().Language.HeaderSize, fontGroup);
    cmdBodyFont = new FontBox(QStringLiteral("cmdBodyFont"), Session().Language.NormalSize, fontGroup);
    fontForm->addRow(LookText("HeadFont", "Headings"), cmdHeadFont);
    fontForm->addRow(LookText("BodyFont", "Body text"), cmdBodyFont);
    connect(cmdHeadFont, &FontBox::fontPicked, this, [this](const QFont &f) { fontPicked(cmdHeadFont, f, true); });
    connect(cmdBodyFont, &FontBox::fontPicked, this, [this](const QFont &f) { fontPicked(cmdBodyFont, f, false); });
    auto *rightColumn = new QVBoxLayout;
    rightColumn->addWidget(previewGroup);
    rightColumn->addWidget(fontGroup);
    rightColumn->addStretch();

    cmdSaveAyanKundStyle = new QPushButton(LookText("Save", "&Save"), this);
    cmdSaveAyanKundStyle->setObjectName(QStringLiteral("cmdSaveAyanKundStyle"));
    cmdCancel = new QPushButton(LookText("Cancel", "&Cancel"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));

    auto *leftColumn = new QVBoxLayout;
    leftColumn->addWidget(pageBox);
    leftColumn->addWidget(chartGroup);
    auto *middle = new QHBoxLayout;
    middle->addLayout(leftColumn);
    middle->addLayout(rightColumn);
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(cmdSaveAyanKundStyle);
    buttons->addWidget(cmdCancel);
    auto *all = new QVBoxLayout(this);
    all->addLayout(schemes);
    all->addLayout(middle);
    all->addLayout(buttons);

    Form_Load();

    connect(cmbTheme, &QComboBox::textActivated, this, &frmColorEnv::cmbTheme_Click);
    connect(cmdSaveTheme, &QPushButton::clicked, this, &frmColorEnv::cmdSaveTheme_Click);
    connect(cmdDelTheme, &QPushButton::clicked, this, &frmColorEnv::cmdDelTheme_Click);
    connect(cmdSaveAyanKundStyle, &QPushButton::clicked, this, &frmColorEnv::cmdSaveAyanKundStyle_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

ColorBox *frmColorEnv::chartBox(ChartLook::Key k) const
{
    switch (k) {
    case ChartLook::BackColor: return picBackColor;
    case ChartLook::LineColor: return picLineColor;
    case ChartLook::BorderColor: return picBorderColor;
    case ChartLook::TxtColor: return picTxtColor;
    case ChartLook::NumColor: return picNumberColor;
    default: return nullptr;
    }
}

void frmColorEnv::Form_Load()
{
    // The sample chart stands in the user's own style.
    kunDemo->setChartStyle(ChartLook::Read().Style);
    showScheme(Themes::InForce());
    fillThemeList(Themes::InForceName());
}

void frmColorEnv::fillThemeList(const QString &select)
{
    const QSignalBlocker block(cmbTheme);
    cmbTheme->clear();
    cmbTheme->addItems(Themes::Names(Session().RecDB));
    const int at = cmbTheme->findText(select, Qt::MatchFixedString);
    cmbTheme->setCurrentIndex(at);
    if (at < 0)
        cmbTheme->setEditText(QString());
}

Themes::Scheme frmColorEnv::scheme() const
{
    Themes::Scheme s;
    for (int i = 0; i < Themes::kPageKeys; ++i)
        s.Values[static_cast<size_t>(i)] = picPage[static_cast<size_t>(i)]->value();
    s.setChart(ChartLook::LineWidth, txtLineWidth->value());
    s.setChart(ChartLook::BorderWidth, txtBorderWidth->value());
    for (int k = ChartLook::BackColor; k < ChartLook::kKeyCount; ++k)
        s.setChart(static_cast<ChartLook::Key>(k), chartBox(static_cast<ChartLook::Key>(k))->value());
    s.HeadFont = cmdHeadFont->pageFont();
    s.BodyFont = cmdBodyFont->pageFont();
    return s;
}

void frmColorEnv::showScheme(const Themes::Scheme &scheme)
{
    for (int i = 0; i < Themes::kPageKeys; ++i)
        picPage[static_cast<size_t>(i)]->setValue(scheme.page(i));
    for (int k = ChartLook::BackColor; k < ChartLook::kKeyCount; ++k)
        chartBox(static_cast<ChartLook::Key>(k))->setValue(scheme.chart(static_cast<ChartLook::Key>(k)));
    {
        const QSignalBlocker a(txtLineWidth), b(txtBorderWidth);
        txtLineWidth->setValue(static_cast<int>(scheme.chart(ChartLook::LineWidth)));
        txtBorderWidth->setValue(static_cast<int>(scheme.chart(ChartLook::BorderWidth)));
    }
    cmdHeadFont->setPageFont(scheme.HeadFont);
    cmdBodyFont->setPageFont(scheme.BodyFont);
    bodyFontChanged();
    chartChanged();
    pagePreview->update();
}

void frmColorEnv::chartChanged()
{
    kunDemo->setBackColor(picBackColor->colour());
    kunDemo->setLineColor(picLineColor->colour());
    kunDemo->setBorderColor(picBorderColor->colour());
    kunDemo->setTextColor(picTxtColor->colour());
    kunDemo->setNumberColor(picNumberColor->colour());
    kunDemo->setLineWidth(txtLineWidth->value());
    kunDemo->setBorderWidth(txtBorderWidth->value());
}

void frmColorEnv::fontPicked(FontBox *box, const QFont &chosen, bool heading)
{
    const Themes::PageFont f = box->fromDialog(chosen);
    if (const QString error = Themes::FontError(f, heading); !error.isEmpty()) {
        tell(error);
        return;
    }
    box->setPageFont(f);
    bodyFontChanged();
    pagePreview->update();
}

void frmColorEnv::bodyFontChanged()
{
    // The sample chart writes in the body family, as the pages' charts do, at its own sizes.
    QFont planet = kunDemo->PlanetFont(), house = kunDemo->HouseFont();
    planet.setFamily(cmdBodyFont->pageFont().Family);
    house.setFamily(cmdBodyFont->pageFont().Family);
    kunDemo->setPlanetFont(planet);
    kunDemo->setHouseFont(house);
}

void frmColorEnv::cmbTheme_Click(const QString &name)
{
    if (name.trimmed().isEmpty())
        return;
    const Themes::ReadResult r = Themes::Read(Session().RecDB, name, scheme());
    showScheme(r.scheme);
    if (!r.ok())
        tell(r.error);
}

void frmColorEnv::cmdSaveTheme_Click()
{
    const QString name = cmbTheme->currentText().trimmed();
    const QString error = Themes::Save(Session().RecDB, name, scheme());
    if (!error.isEmpty()) {
        tell(error);
        return;
    }
    fillThemeList(name);
}

void frmColorEnv::cmdDelTheme_Click()
{
    const QString name = cmbTheme->currentText().trimmed();
    if (name.isEmpty() || !Themes::Delete(Session().RecDB, name)) {
        tell(name.isEmpty() ? LookText("NoSchemeChosen", "Choose the colour scheme to delete first.")
                            : QStringLiteral("There is no colour scheme called \"%1\" to delete.").arg(name));
        return;
    }
    fillThemeList(QString());
}

void frmColorEnv::cmdSaveAyanKundStyle_Click()
{
    // The name is kept only when the boxes hold a scheme of the list.
    const QString name = cmbTheme->findText(cmbTheme->currentText(), Qt::MatchFixedString) >= 0 ? cmbTheme->currentText() : QString();
    Themes::Apply(scheme(), name);
    PageColors::Reload();
    PageFonts::Reload();
    accept();
}
