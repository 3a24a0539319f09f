// SPDX-License-Identifier: AGPL-3.0-or-later
#pragma once
// The small numeric helpers that every part of the program shares.
// Each follows the exact edge behaviour its callers rely on; see docs/decisions.md.

#include <QString>

// Value less its truncation toward zero: Frac(-1.25) = -0.25.
double Frac(double v);
// Truncation toward zero (the classic Fix).
double Fix(double v);
// The largest whole number not above v (the classic Int): Int(-1.5) = -2.
double Int(double v);
// Rounds to a whole number, halves to even, as a whole-number assignment does.
long CLng(double v);
// Sign of v: -1, 0 or 1.
int Sgn(double v);

// Subtracts 360 while above 360, adds 360 while not above 0 when it began below 0.
// The result lies in [0, 360]: 360 stays 360, 0 stays 0, -360 gives 360.
double Norm360(double v);
// Subtracts 30 while above 30, adds 30 while below 0: exact 0 and exact 30 stay.
double Norm30(double v);
// As Norm30 with 27.
double Norm27(double v);
// Folds a whole number into 1..12; a multiple of 12 gives 12.
int Norm12(int v);
// Folds a whole number into 1..9; a multiple of 9 gives 9.
int Norm9(int v);
// Takes 7 off while above 7, adds 7 while below 0: the result lies in [0, 7].
double Norm7(double v);
// Reduces an hour into (0, 12] by steps of 12, keeping any fraction: 0 and 12 give 12.
double Clock12(double h);
// Subtracts y while x > y, then adds y while x <= 0: the result lies in (0, y].
double ModOneBased(double x, double y);
// ModOneBased of a whole number with y = 9: 1..9.
int Mod9(long v);

// 1 for the signs 1, 2, 3, 7, 8, 9 and 2 for the others.
int DirectGroup(int sign);
// 1 movable (1, 4, 7, 10), 2 fixed (2, 5, 8, 11), 3 dual (3, 6, 9, 12).
int SignClass(int sign);

// hh.mm to decimal hours: Fix(x) + Frac(x) / 0.6.
double MinToDec(double x);
// Whole part and two digits of the fraction as written, plus 0.01 if the third digit is 6 or more.
double RoundBala(double v);
// Two decimals, halves to even, as "0.00" (the Shadbala and pinda figures).
QString FormatHalfEven2(double v);
// The value rounded as FormatHalfEven2 shows it.
double RoundHalfEven2(double v);

// The numeric prefix of a text, as the classic Val reads it: blanks skipped, optional sign,
// digits with one decimal point. "+05.30" gives 5.3, "-01.00" gives -1, "" and "abc" give 0.
double Val(const QString &text);
// A number as the classic Str/CStr writes it: up to 15 significant digits, no trailing zeros.
QString NumText(double v);
// Two-digit zero-padded text of a whole number ("00" format); negative keeps its sign.
QString Two(long v);

// Roman numeral of 1..12 ("I" .. "XII"); empty outside.
QString GetRomanNumeral(int n);
