// SPDX-License-Identifier: AGPL-3.0-or-later
#include "session/ui/frmSplash.h"

#include "sky/AppSettings.h"
#include "session/Startup.h"
#include "session/ui/frmMessage.h"
#include "session/ui/frmWizard.h"

#include <QApplication>
#include <QFontDatabase>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>

frmSplash::frmSplash(QWidget *parent) : QWidget(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("frmSplash"));
    setFixedSize(520, 300);
    lblVerNo = new QLabel(QStringLiteral("Release ") + QStringLiteral(ORBANTA_VERSION));
    lblStatus = new QLabel;
    lblVerNo->setObjectName(QStringLiteral("lblVerNo"));
    lblStatus->setObjectName(QStringLiteral("lblStatus"));
    for (QLabel *l : {lblVerNo, lblStatus})
        l->setStyleSheet(QStringLiteral("color: #f3e7c9;"));
    auto *v = new QVBoxLayout(this);
    v->setContentsMargins(28, 24, 28, 18);
    v->addStretch();
    v->addWidget(lblVerNo);
    v->addWidget(lblStatus);
}

void frmSplash::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    QLinearGradient g(0, 0, 0, height());
    g.setColorAt(0, QColor(0x3b, 0x1d, 0x4f));
    g.setColorAt(1, QColor(0x12, 0x0a, 0x24));
    p.fillRect(rect(), g);
    // a wheel of the twelve signs
    const QPointF c(width() - 120, 118);
    p.setPen(QPen(QColor(0xe8, 0xb8, 0x4a), 1.5));
    p.drawEllipse(c, 86, 86);
    p.drawEllipse(c, 56, 56);
    for (int i = 0; i < 12; ++i) {
        const double a = i * 30 * 3.14159265358979 / 180;
        p.drawLine(c + QPointF(56 * std::cos(a), 56 * std::sin(a)), c + QPointF(86 * std::cos(a), 86 * std::sin(a)));
    }
    p.setBrush(QColor(0xe8, 0xb8, 0x4a));
    p.drawEllipse(c, 10, 10);
    QFont f(QStringLiteral("FreeSerif"), 30, QFont::Bold);
    p.setFont(f);
    p.setPen(QColor(0xf3, 0xe7, 0xc9));
    p.drawText(QPointF(28, 80), QStringLiteral("Orbanta"));
    p.setFont(QFont(QStringLiteral("DejaVu Sans"), 10));
    p.drawText(QPointF(30, 106), QStringLiteral("Vedic astrology, cast to the arc-second"));
}

void frmSplash::stage(const QString &text)
{
    lblStatus->setText(text);
    repaint();
    QApplication::processEvents();
}

bool frmSplash::DoLoad()
{
    if (!Startup::DecimalPointIsDot()) {
        QMessageBox::critical(this, QStringLiteral("Error in Regional Settings."),
                              QStringLiteral("Orbanta Supports only '.' for decimal numbers:\n"
                                             "Please change the Control Panel ---> Regional Settings to English as this software "
                                             "supports only the '.' symbol for calculating decimal numbers."));
        return false;
    }
    // The setup wizard runs once, before anything else; cancelling it also counts as done.
    if (!AppSettings::value(QStringLiteral("Settings"), QStringLiteral("DoneSetup"), false).toBool()) {
        frmWizard wizard;
        wizard.exec();
    }
    stage(QStringLiteral("Checking Files..."));
    const QString missing = Startup::FirstMissingFile();
    if (!missing.isEmpty()) {
        QMessageBox::critical(this, QStringLiteral("Orbanta"),
                              QStringLiteral("The data file STUFF/%1 is missing. Please install the program again.").arg(missing));
        return false;
    }
    QString error;
    if (!Startup::SeedUserData(&error) || !Startup::OpenRecDB(&error)) {
        QMessageBox::critical(this, QStringLiteral("Orbanta"), error);
        return false;
    }
    stage(QStringLiteral("Checking Display..."));
    if (const QScreen *screen = QApplication::primaryScreen())
        frmMessage::CheckDisplay(screen->geometry().width(), this);
    stage(QStringLiteral("Checking Fonts..."));
    QStringList missingFonts;
    const QStringList families = QFontDatabase::families();
    for (const QString &family : {QStringLiteral("FreeSerif"), QStringLiteral("DejaVu Sans")})
        if (!families.contains(family))
            missingFonts << family;
    if (!missingFonts.isEmpty())
        QMessageBox::information(this, QStringLiteral("Fonts Not Installed"),
                                 QStringLiteral("Some Fonts are not installed. May not be able to display some regional languages "
                                                "correctly.\n\nMissing: %1\n\nInstall the Debian packages fonts-freefont-ttf and "
                                                "fonts-dejavu-core.\n\nTo continue running the software, click 'OK'.")
                                     .arg(missingFonts.join(QStringLiteral(", "))));
    stage(QStringLiteral("Checking Languages..."));
    stage(QStringLiteral("Loading Application..."));
    return true;
}
