// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// A topic page: a widget of fixed size whose children stand at fixed places (labels, lines,
// shapes, charts). It fills itself once, when it loads; the same children are what printing and
// PDF draw, so the page is the one description of the topic on every surface.

#include <QLabel>
#include <QList>
#include <QVector>
#include <QWidget>

#include <functional>

class clsPlanets;
class Kundali;
class PageLine;
class PageShape;

class TopicPage : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kWidth = 760;
    static constexpr int kHeight = 1075;
    // Label styles, after the style operations of the pages.
    enum Style { Heading, Body, SubHead, English, EnglishSmall, Small, SmallBold };

    // name: the page's name ("frmPage1"); the page of the session's chart, or of its two charts
    // in Marriage mode. A framed page has a
    // title, rules and a foot with the name and page number; a text page has none of them shown.
    explicit TopicPage(const QString &name, QWidget *parent = nullptr, bool framed = true);

    // Fills the page from the chart, once.
    void Load();
    // Shows part n of a page that holds several (the Shodash charts); others ignore it.
    virtual void MakePage(int n) { Q_UNUSED(n); }
    bool isLoaded() const { return m_loaded; }
    // The page number, shown at the foot; empty for none.
    QLabel *lblPageNo;
    // The page's title at its head.
    QLabel *lblTitle;

protected:
    // What the page shows; runs once from Load.
    virtual void fill() = 0;
    // The chart of the page; in Marriage mode the boy's, through which the words are read.
    const clsPlanets &chart() const;

    QLabel *addLabel(const QRect &r, const QString &text, Style style, Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter);
    PageLine *addLine(QPointF a, QPointF b, double width = 1.0);
    PageShape *addRect(const QRect &r, const QColor &fill = QColor());
    // A chart in the user's style with the chart font of the language, and a title above it when given.
    Kundali *addChart(const QRect &r, const QString &title = QString());

    // A table at (x, y): one head row (skipped when heads is empty) and `rows` body rows of the given
    // column widths and row height. Cells are labels, centred; column 0 may be aligned left.
    struct Table
    {
        QVector<QLabel *> head;
        QVector<QVector<QLabel *>> cells; // [row][column]
        QRect rect;
        QLabel *cell(int row, int col) const { return cells[row][col]; }
    };
    Table addTable(int x, int y, const QList<int> &widths, int rowHeight, const QStringList &heads, int rows,
                   Style bodyStyle = Small, bool firstColumnLeft = false);

    // A block of facts: a sub-heading, then label and value pairs in two columns. Answers the
    // y below the block.
    using Facts = QList<QPair<QString, QString>>;
    int addFacts(int x, int y, int labelWidth, int valueWidth, const QString &heading, const Facts &rows, int rowHeight = 19);

private:
    bool m_loaded = false;
    bool m_framed = true;
};

// The topic pages of the program, by name. Output knows pages only through this registry: the
// program's start (and a test's) registers every page once, and topic lists and print walks ask
// for them by name.
using TopicPageMaker = std::function<TopicPage *(QWidget *parent)>;
void RegisterTopicPage(const QString &name, TopicPageMaker make);
// A new page of that name; nullptr for a page no one registered (a topic still to come).
TopicPage *CreateTopicPage(const QString &name, QWidget *parent = nullptr);
