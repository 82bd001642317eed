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
// value, so "&HFFFF" is -1; more digits or the suffix give 32 bits). An
// exponent "E" or "D" is read. Anything else ends the number; no number is 0.
double Val(const QString& text);

// Str: the number's text with a leading blank when it is not negative and no
// zero before the decimal point: Str(5) = " 5", Str(0.5) = " .5", Str(-2) = "-2".
QString Str(double value);

// Format with a numeric pattern of "0", "#", "." and literal text around them:
// "000" gives "007", "##0.000" gives "1.500", "##0" gives "12". Halves round
// away from zero, as Format does.
QString Format(double value, const QString& pattern);

QString Trim(const QString& text);  // blanks (U+0020) at both ends
QString LTrim(const QString& text);
QString RTrim(const QString& text);
QString UCase(const QString& text); // capitals, full-width letters included
QString LCase(const QString& text);
QString Space(int count);

// InStr: 1-based position of `find` in `text` from `start`, 0 when absent.
// An empty `find` gives `start` (when start <= Len + 1).
int InStr(const QString& text, const QString& find);
int InStr(int start, const QString& text, const QString& find);
// InStrRev: 1-based position of the last occurrence, 0 when absent.
int InStrRev(const QString& text, const QString& find);

QString Left(const QString& text, int count);
QString Right(const QString& text, int count);
QString Mid(const QString& text, int start, int count = -1); // start is 1-based

// Conversions to whole numbers round halves to even, as CInt and CLng do.
// A value that doesn't fit is an overflow: the store fails and the target
// keeps its value, so callers see the statement passed over.
bool StoreInt16(qint16& target, double value);
bool StoreInt32(qint32& target, double value);
qint16 ClampInt16(double value); // for geometry kept in 16-bit record fields
qint64 RoundHalfEven(double value);

} // namespace lumen::basic
