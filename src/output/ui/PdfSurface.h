// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The drawing surface of a PDF file, in tenths of a millimetre on A4 portrait: the document,
// font and pen state, lines, rectangles, ellipses, pictures, text at a point and text in a box
// that wraps and moves the vertical text position on.

#include <QColor>
#include <QFont>
#include <QPdfWriter>
#include <QPainter>
#include <QString>
#include <QStringList>

#include <memory>

class PdfSurface
{
public:
    static constexpr double kPageWidth = 2100;  // tenths of a millimetre
    static constexpr double kPageHeight = 2970;

    // Document properties, before BeginDoc.
    QString FileName, Author, Title, Creator;
    QStringList Keywords;
    bool EmbedFonts = true;

    // Starts the document; false when the file can't be written.
    bool BeginDoc();
    // Ends the document and closes the file; false when it could not be completed.
    bool EndDoc();
    bool isOpen() const { return m_painter && m_painter->isActive(); }
    void NewPage();
    // The number of pages begun so far.
    int PageCount() const { return m_pages; }

    // Font and pen state.
    void setFontName(const QString &name);
    QString FontName() const { return m_font.family(); }
    void setFontSize(double points);
    double FontSize() const { return m_font.pointSizeF(); }
    void setFontBold(bool on) { m_font.setBold(on); }
    bool FontBold() const { return m_font.bold(); }
    void setFontItalic(bool on) { m_font.setItalic(on); }
    void setFontStrikeOut(bool on) { m_font.setStrikeOut(on); }
    void setFontUnderline(bool on) { m_font.setUnderline(on); }
    void setTextColor(const QColor &c) { m_textColor = c; }
    void setPenColor(const QColor &c) { m_penColor = c; }
    void setPenWidth(double w) { m_penWidth = w; }

    // Drawing.
    void MoveTo(double x, double y) { m_x = x, m_y = y; }
    void LineTo(double x, double y);
    void Rectangle(double x1, double y1, double x2, double y2);
    void Ellipse(double x1, double y1, double x2, double y2);
    void StretchDraw(const QPixmap &picture, double x1, double y1, double x2, double y2);
    void TextOut(const QString &text, double x, double y);
    // Text in the box, wrapped at blanks: alignment 0 left, 1 right, 2 centre. A bottom of 0
    // lets the text flow down as far as it needs. The vertical text position moves below it.
    void TextBox(double left, double top, double right, double bottom, int alignment, int flag, const QString &text);
    double TextWidth(const QString &text) const;
    double LineHeight() const;
    double TextY = 0; // the vertical text position

    // The painter of the open document, in tenths of a millimetre.
    QPainter *painter() { return m_painter.get(); }

private:
    void applyFont();
    std::unique_ptr<QPdfWriter> m_writer;
    std::unique_ptr<QPainter> m_painter;
    QFont m_font{QStringLiteral("Arial"), 10};
    QColor m_textColor{Qt::black};
    QColor m_penColor{Qt::black};
    double m_penWidth = 1;
    double m_x = 0, m_y = 0;
    int m_pages = 0;
};
