// SPDX-License-Identifier: AGPL-3.0-or-later
#include "output/ui/TopicPage.h"

#include "chartdraw/ui/Kundali.h"
#include "output/ui/PageOutput.h"
#include "output/ui/PageParts.h"
#include "output/ui/PageStyle.h"
#include "session/Session.h"
#include "sky/clsPlanets.h"

namespace {
constexpr int kMargin = 20;
constexpr int kFootY = 1040;

void applyStyle(QLabel *l, TopicPage::Style s)
{
    switch (s) {
    case TopicPage::Heading: StyleHeading(l); break;
    case TopicPage::Body: StyleBody(l); break;
    case TopicPage::SubHead: StyleSubHead(l); break;
    case TopicPage::English: StyleEnglish(l); break;
    case TopicPage::EnglishSmall: StyleEnglishSmall(l); break;
    case TopicPage::Small: StyleSmall(l); break;
    case TopicPage::SmallBold: StyleSmallBold(l); break;
    }
}

void setBack(QLabel *l, const QColor &c)
{
    l->setAutoFillBackground(true);
    QPalette p = l->palette();
    p.setColor(QPalette::Window, c);
    l->setPalette(p);
}
} // namespace

TopicPage::TopicPage(const QString &name, QWidget *parent, bool framed) : QWidget(parent), m_framed(framed)
{
    setObjectName(name);
    setFixedSize(kWidth, kHeight);
    PageColors::Reload();
    PageFonts::Reload();
    // A page is paper wherever it stands: its roles are not taken from the area that holds it.
    setBackgroundRole(QPalette::Window);
    setForegroundRole(QPalette::WindowText);
    setAutoFillBackground(true);
    QPalette pal = palette();
    pal.setColor(QPalette::Window, Qt::white);
    setPalette(pal);

    lblTitle = addLabel(QRect(kMargin, 12, kWidth - 2 * kMargin, 34), QString(), Heading, Qt::AlignCenter);
    lblTitle->setObjectName(QStringLiteral("lblTitle"));
    lblPageNo = addLabel(QRect(kWidth - kMargin - 80, kFootY + 4, 80, 22), QString(), Small, Qt::AlignRight | Qt::AlignVCenter);
    lblPageNo->setObjectName(QStringLiteral("lblPageNo"));
    if (!framed) {
        lblTitle->hide();
        lblPageNo->hide();
        return;
    }
    auto *top = addLine(QPointF(kMargin, 50), QPointF(kWidth - kMargin, 50), 1.5);
    top->setObjectName(QStringLiteral("linTop"));
    addLine(QPointF(kMargin, kFootY), QPointF(kWidth - kMargin, kFootY));
}

const clsPlanets &TopicPage::chart() const
{
    // The pages of a couple read their words through the boy's chart.
    const SessionGlobals &s = Session();
    return s.ProgMode == 2 && s.BoyPlanets ? *s.BoyPlanets : *s.CurPlanets;
}

void TopicPage::Load()
{
    const SessionGlobals &s = Session();
    const bool couple = s.ProgMode == 2 && s.BoyPlanets && s.GalPlanets;
    if (m_loaded || (!couple && !s.CurPlanets))
        return;
    m_loaded = true;
    if (!m_framed) {
        fill();
        return;
    }
    // The person's name at the foot, in the colour of names.
    QLabel *name = addLabel(QRect(kMargin, kFootY + 4, 500, 22), couple ? HeaderName(QStringLiteral(" & ")) : chart().Person().Name(), SmallBold);
    name->setObjectName(QStringLiteral("lblPerName"));
    QPalette p = name->palette();
    p.setColor(QPalette::WindowText, PageColors::Current().PerNameCol);
    name->setPalette(p);
    fill();
}

QLabel *TopicPage::addLabel(const QRect &r, const QString &text, Style style, Qt::Alignment align)
{
    auto *l = new QLabel(text, this);
    l->setGeometry(r);
    l->setAlignment(align);
    applyStyle(l, style);
    l->show();
    return l;
}

PageLine *TopicPage::addLine(QPointF a, QPointF b, double width)
{
    auto *l = new PageLine(a, b, PageColors::Current().TopLineCol, width, this);
    l->show();
    return l;
}

PageShape *TopicPage::addRect(const QRect &r, const QColor &fill)
{
    auto *s = new PageShape(r, PageShape::Rectangle, PageColors::Current().CircleBorderCol, fill, this);
    s->show();
    return s;
}

Kundali *TopicPage::addChart(const QRect &r, const QString &title)
{
    if (!title.isEmpty())
        addLabel(QRect(r.left(), r.top() - 24, r.width(), 22), title, SubHead, Qt::AlignCenter);
    auto *k = new Kundali(this);
    k->setGeometry(r);
    StyleChart(k);
    k->show();
    return k;
}

TopicPage::Table TopicPage::addTable(int x, int y, const QList<int> &widths, int rowHeight, const QStringList &heads, int rows,
                                     Style bodyStyle, bool firstColumnLeft)
{
    Table t;
    const PageColors &c = PageColors::Current();
    int width = 0;
    for (int w : widths)
        width += w;
    const int headRows = heads.isEmpty() ? 0 : 1;
    t.rect = QRect(x, y, width, rowHeight * (rows + headRows));

    const auto place = [&](int row, int col, int top) {
        int left = x;
        for (int i = 0; i < col; ++i)
            left += widths[i];
        return QRect(left + 1, top + 1, widths[col] - 1, rowHeight - 1);
    };
    for (int col = 0; headRows && col < widths.size(); ++col) {
        QLabel *h = addLabel(place(0, col, y), heads.value(col), SmallBold, Qt::AlignCenter);
        setBack(h, c.TableHeadCol);
        QPalette p = h->palette();
        p.setColor(QPalette::WindowText, c.TableHeadText);
        h->setPalette(p);
        t.head.append(h);
    }
    for (int row = 0; row < rows; ++row) {
        QVector<QLabel *> line;
        const int top = y + (row + headRows) * rowHeight;
        for (int col = 0; col < widths.size(); ++col) {
            const Qt::Alignment a = col == 0 && firstColumnLeft ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter;
            QLabel *l = addLabel(place(row, col, top), QString(), bodyStyle, a);
            if (col == 0 && firstColumnLeft)
                l->setIndent(4);
            setBack(l, c.TableBackCol);
            line.append(l);
        }
        t.cells.append(line);
    }
    // The grid last, so that it stands over the cells.
    for (int r = 0; r <= rows + headRows; ++r)
        addLine(QPointF(x, y + r * rowHeight), QPointF(x + width, y + r * rowHeight), r == 0 || r == headRows || r == rows + headRows ? 1.2 : 0.6);
    int left = x;
    for (int col = 0; col <= widths.size(); ++col) {
        addLine(QPointF(left, y), QPointF(left, t.rect.bottom() + 1), col == 0 || col == widths.size() ? 1.2 : 0.6);
        if (col < widths.size())
            left += widths[col];
    }
    return t;
}

int TopicPage::addFacts(int x, int y, int labelWidth, int valueWidth, const QString &heading, const Facts &rows, int rowHeight)
{
    if (!heading.isEmpty()) {
        addLabel(QRect(x, y, labelWidth + valueWidth, 24), heading, SubHead);
        y += 26;
        addLine(QPointF(x, y - 2), QPointF(x + labelWidth + valueWidth, y - 2), 0.6);
    }
    for (const auto &[label, value] : rows) {
        addLabel(QRect(x, y, labelWidth, rowHeight), label, SmallBold);
        QLabel *v = addLabel(QRect(x + labelWidth, y, valueWidth, rowHeight), value, Small);
        v->setToolTip(value);
        y += rowHeight;
    }
    return y;
}
