// The classic BASIC text and number functions that the program's procedures
// are written against. Positions are 1-based, comparisons are binary
// (case-sensitive), "blank" means U+0020 only, numbers use the C locale.
#pragma once

#include <QString>
#include <QtGlobal>

namespace lumen::basic {

// Val: the leading number of a text. Blanks, tabs and line feeds are skipped
// anywhere before and inside the number; "&H" reads hexadecimal and "&O"
// octal (four or fewer hex digits without a "&" suffix give a 16-bit signed
// value, so "&HFFFF" is -1; more digits or the suffix give 32 bits). Leading
// zeros don't count: "&H0000FFFF" is -1 too, as the literal was. An exponent
// "E" or "D" is read. Anything else ends the number; no number is 0.
// Overflows: a hex or octal value past 32 bits is 0; a decimal one past the
// range of a double is an infinity, so that storing it fails.
double Val(const QString& text);

// IsNumeric: the text is a number that the numeric conversions take (a
// decimal number or an "&H"/"&O" literal, blanks around it allowed).
// Anything else would be a type mismatch.
bool IsNumeric(const QString& text);

// Str: the number's text with a leading blank when it is not negative and no
// zero before the decimal point: Str(5) = " 5", Str(0.5) = " .5", Str(-2) = "-2".
// Up to 15 significant digits; beyond them E notation: " 1E+16", " 1E-07".
QString Str(double value);

// Format with a numeric pattern of "0", "#", "." and literal text around them:
// "000" gives "007", "##0.000" gives "1.500", "##0" gives "12". Halves round
// away from zero, as Format does, on the number's 15 significant digits (so
// 1.0005 with "0.000" is "1.001"). "0" places are always shown, "#" places
// only when needed; the first "." is the decimal point and stays even with no
// digit after it. Text before the first place and after the last is copied.
// A negative value gets "-" in front, even when it rounds to zero ("-0.00").
// No sections (";"), grouping (",") or exponents. An empty pattern gives the
// general form, as CStr: "2.5".
QString Format(double value, const QString& pattern);

QString Trim(const QString& text);      // blanks (U+0020) at both ends
QStringView TrimView(QStringView text); // Trim without a copy
QString LTrim(const QString& text);
QString RTrim(const QString& text);
QString UCase(const QString& text); // capitals, full-width letters included
QString LCase(const QString& text);
QString Space(int count);

// Where the classic functions raise "invalid procedure call" (a start below
// 1, a negative count), these give the empty result: 0 or "".

// InStr: 1-based position of `find` in `text` from `start`, 0 when absent.
// An empty `find` gives `start` (when start <= Len + 1); an empty `text`
// always gives 0.
int InStr(const QString& text, const QString& find);
int InStr(int start, const QString& text, const QString& find);
// InStrRev: 1-based position of the last occurrence, 0 when absent. An empty
// `find` gives Len(text); an empty `text` 0.
int InStrRev(const QString& text, const QString& find);

QString Left(const QString& text, int count);
QString Right(const QString& text, int count);
// Start is 1-based; a negative count means "to the end".
QString Mid(const QString& text, int start, int count = -1);

// Conversions to whole numbers round halves to even, as CInt and CLng do.
// A value that doesn't fit is an overflow: the store fails and the target
// keeps its value, so callers see the statement passed over.
bool StoreInt16(qint16& target, double value);
bool StoreInt32(qint32& target, double value);
qint16 ClampInt16(double value);    // for geometry kept in 16-bit record fields; NaN is 0
qint64 RoundHalfEven(double value); // beyond 64 bits: the nearest limit; NaN is 0

} // namespace lumen::basic
