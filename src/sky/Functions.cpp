// SPDX-License-Identifier: AGPL-3.0-or-later
#include "sky/Functions.h"

#include <algorithm>
#include <cmath>

double Frac(double v) { return v - std::trunc(v); }
double Fix(double v) { return std::trunc(v); }
double Int(double v) { return std::floor(v); }
long CLng(double v) { return static_cast<long>(std::nearbyint(v)); }
int Sgn(double v) { return v > 0 ? 1 : (v < 0 ? -1 : 0); }

namespace {
// Brings v into (0, n] by whole steps of n, without loops that a huge value would make slow.
double foldOneBased(double v, double n)
{
    if (v > n)
        v -= n * std::floor((v - n) / n + 1.0);
    // floating rounding can leave v a hair above n or at 0; finish with the plain steps
    while (v > n)
        v -= n;
    while (v <= 0)
        v += n;
    return v;
}

// Subtracts n while above n and adds n while below 0: the result lies in [0, n], both ends kept.
double foldClosed(double v, double n)
{
    while (v > n)
        v -= n;
    while (v < 0)
        v += n;
    return v;
}
} // namespace

double Norm360(double v)
{
    const bool negative = v < 0;
    while (v > 360)
        v -= 360;
    if (negative)
        while (v <= 0)
            v += 360;
    return v;
}

double Norm30(double v) { return foldClosed(v, 30); }

double Norm27(double v) { return foldClosed(v, 27); }

int Norm12(int v)
{
    int r = v % 12;
    if (r <= 0)
        r += 12;
    return r;
}

int Norm9(int v)
{
    int r = v % 9;
    if (r <= 0)
        r += 9;
    return r;
}

double Norm7(double v) { return foldClosed(v, 7); }

double Clock12(double h) { return foldOneBased(h, 12); }

double ModOneBased(double x, double y) { return foldOneBased(x, y); }

int Mod9(long v)
{
    long r = v % 9;
    if (r <= 0)
        r += 9;
    return static_cast<int>(r);
}

int DirectGroup(int sign)
{
    switch (sign) {
    case 1: case 2: case 3: case 7: case 8: case 9:
        return 1;
    default:
        return 2;
    }
}

int SignClass(int sign) { return (Norm12(sign) - 1) % 3 + 1; }

double MinToDec(double x) { return Fix(x) + Frac(x) / 0.6; }

QString NumText(double v)
{
    if (v == 0)
        return QStringLiteral("0");
    QString s = QString::number(v, 'g', 15);
    if (s.contains(QLatin1Char('e'))) {
        // keep a plain positional form for the digit-reading rules
        s = QString::number(v, 'f', 15);
        if (s.contains(QLatin1Char('.'))) {
            while (s.endsWith(QLatin1Char('0')))
                s.chop(1);
            if (s.endsWith(QLatin1Char('.')))
                s.chop(1);
        }
    }
    return s;
}

double RoundBala(double v)
{
    const QString s = NumText(std::fabs(v));
    const int dot = s.indexOf(QLatin1Char('.'));
    double whole = 0;
    QString digits;
    if (dot < 0) {
        whole = s.toDouble();
    } else {
        whole = s.left(dot).toDouble();
        digits = s.mid(dot + 1);
    }
    digits = digits.leftJustified(3, QLatin1Char('0'));
    double r = whole + digits.left(2).toInt() / 100.0;
    if (digits.at(2).digitValue() >= 6)
        r += 0.01;
    r = std::round(r * 100.0) / 100.0;
    return v < 0 ? -r : r;
}

QString FormatHalfEven2(double v)
{
    // A half is judged on the value written to 15 significant digits, the form in which the
    // user reads it: 2.675, stored a hair below, still counts as a half and goes to 2.68.
    const double a = std::fabs(v);
    const int intDigits = a >= 1 ? static_cast<int>(std::floor(std::log10(a))) + 1 : 1;
    const int decimals = std::clamp(15 - intDigits, 3, 15);
    const QString s = QString::number(a, 'f', decimals);
    const int dot = s.indexOf(QLatin1Char('.'));
    const QString frac = s.mid(dot + 1);
    long long cents = s.left(dot).toLongLong() * 100 + frac.left(2).toInt();
    const QString rest = frac.mid(2);
    const int first = rest.at(0).digitValue();
    bool tailNonZero = false;
    for (int i = 1; i < rest.size(); ++i)
        tailNonZero = tailNonZero || rest.at(i) != QLatin1Char('0');
    if (first > 5 || (first == 5 && (tailNonZero || cents % 2 != 0)))
        ++cents;
    QString out = QStringLiteral("%1.%2").arg(cents / 100).arg(cents % 100, 2, 10, QLatin1Char('0'));
    if (v < 0 && cents != 0)
        out.prepend(QLatin1Char('-'));
    return out;
}

double RoundHalfEven2(double v) { return FormatHalfEven2(v).toDouble(); }

double Val(const QString &text)
{
    int i = 0;
    const int n = text.size();
    auto skipBlanks = [&] {
        while (i < n && (text.at(i) == QLatin1Char(' ') || text.at(i) == QLatin1Char('\t')))
            ++i;
    };
    skipBlanks();
    QString num;
    if (i < n && (text.at(i) == QLatin1Char('+') || text.at(i) == QLatin1Char('-'))) {
        num += text.at(i);
        ++i;
        skipBlanks();
    }
    bool dot = false;
    bool any = false;
    for (; i < n; ++i) {
        const QChar c = text.at(i);
        if (c.isDigit() && c.unicode() < 128) {
            num += c;
            any = true;
        } else if (c == QLatin1Char('.') && !dot) {
            num += c;
            dot = true;
        } else if (c == QLatin1Char(' ')) {
            continue; // the classic Val reads "1 2" as 12
        } else {
            break;
        }
    }
    if (!any)
        return 0;
    return num.toDouble();
}

QString Two(long v)
{
    if (v < 0)
        return QLatin1Char('-') + QStringLiteral("%1").arg(-v, 2, 10, QLatin1Char('0'));
    return QStringLiteral("%1").arg(v, 2, 10, QLatin1Char('0'));
}

QString GetRomanNumeral(int n)
{
    static const char *const kRoman[] = {"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X", "XI", "XII"};
    return n >= 1 && n <= 12 ? QString::fromLatin1(kRoman[n - 1]) : QString();
}
