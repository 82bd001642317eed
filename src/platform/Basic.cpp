#include "platform/Basic.h"

#include <QRegularExpression>
#include <QStringView>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace lumen::basic {

namespace {

// Reads a text for Val: blanks, tabs and line feeds are passed over wherever
// they stand. Copyable, so that a reader can look ahead and come back.
class ValReader {
public:
    explicit ValReader(QStringView text)
        : text_(text)
    {}

    // The next character that counts, or 0 at the end.
    char16_t peek()
    {
        while (pos_ < text_.size() && isSkipped(text_[pos_]))
            ++pos_;
        return pos_ < text_.size() ? text_[pos_].unicode() : u'\0';
    }
    void next() { ++pos_; }
    bool take(char16_t upper)
    {
        const char16_t c = peek();
        if (c != upper && c != upper + (u'a' - u'A'))
            return false;
        next();
        return true;
    }
    // Appends the ASCII digits that follow to `out`; returns how many.
    int takeDigits(std::string& out)
    {
        int count = 0;
        for (char16_t c = peek(); c >= u'0' && c <= u'9'; c = peek()) {
            out += char(c);
            next();
            ++count;
        }
        return count;
    }

private:
    static bool isSkipped(QChar c) { return c == u' ' || c == u'\t' || c == u'\n'; }

    QStringView text_;
    qsizetype pos_ = 0;
};

int digitValue(char16_t c, int radix)
{
    int value = -1;
    if (c >= u'0' && c <= u'9')
        value = c - u'0';
    else if (c >= u'A' && c <= u'F')
        value = c - u'A' + 10;
    else if (c >= u'a' && c <= u'f')
        value = c - u'a' + 10;
    return value < radix ? value : -1;
}

// The digits after "&H" or "&O". Without a "&" suffix a value that fits in
// 16 bits is an Integer, so "&HFFFF" is -1; otherwise a Long.
double valRadix(ValReader& in, int radix)
{
    quint64 value = 0;
    bool any = false;
    for (int digit = digitValue(in.peek(), radix); digit >= 0;
         digit = digitValue(in.peek(), radix)) {
        in.next();
        any = true;
        value = value * quint64(radix) + quint64(digit);
        if (value > 0xFFFFFFFFu)
            return 0; // overflow: more than a Long holds
    }
    if (!any)
        return 0;
    if (in.peek() != u'&' && value <= 0xFFFFu)
        return qint16(quint16(value));
    return qint32(quint32(value));
}

// [sign] digits [. digits] [E|D [sign] digits]
double valDecimal(ValReader& in)
{
    std::string number;
    if (in.peek() == u'-' || in.peek() == u'+') {
        number += char(in.peek());
        in.next();
    }
    int mantissaDigits = in.takeDigits(number);
    if (in.peek() == u'.') {
        in.next();
        number += '.';
        mantissaDigits += in.takeDigits(number);
    }
    if (mantissaDigits == 0)
        return 0;

    bool smallExponent = false;
    ValReader exponent = in;
    if (exponent.take(u'E') || exponent.take(u'D')) {
        std::string digits = "e";
        if (exponent.peek() == u'-' || exponent.peek() == u'+') {
            digits += char(exponent.peek());
            exponent.next();
        }
        if (exponent.takeDigits(digits) > 0) {
            number += digits;
            smallExponent = digits[1] == '-';
        }
    }

    // from_chars reads the C locale's form whatever the locale, but no "+".
    const char* first = number.data() + (number[0] == '+' ? 1 : 0);
    double value = 0;
    if (std::from_chars(first, number.data() + number.size(), value).ec == std::errc())
        return value;
    // Out of range: too small is 0, too large an overflow, given as infinity.
    if (smallExponent)
        return 0;
    return number[0] == '-' ? -HUGE_VAL : HUGE_VAL;
}

// The general form of a number, as CStr gives it: up to fifteen significant
// digits, "E+16" beyond them, C locale.
QString generalText(double value)
{
    if (value == 0)
        value = 0; // no negative zero
    char buffer[40];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15).ptr;
    return QString::fromLatin1(buffer, end - buffer).toUpper();
}

// Decimal digits of a non-negative value rounded half away from zero to
// `decimals` places: the whole part without leading zeros, and the fraction.
struct Digits {
    std::string whole;
    std::string fraction;
};

Digits roundedDigits(double magnitude, int decimals)
{
    // Fifteen significant digits, as the number is shown everywhere else.
    char buffer[40];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, magnitude, std::chars_format::scientific, 14)
            .ptr;
    const std::string text(buffer, end); // d.ddddddddddddddde[+-]xx
    const auto e = text.find('e');
    std::string digits = text.substr(0, 1) + text.substr(2, e - 2);
    int exponent = 0;
    std::from_chars(text.data() + e + (text[e + 1] == '+' ? 2 : 1), text.data() + text.size(),
                    exponent);

    // Put the point after `point` digits, with zeros added on either side.
    int point = exponent + 1;
    if (point < 0) {
        digits.insert(0, std::size_t(-point), '0');
        point = 0;
    }
    if (std::size_t(point) > digits.size())
        digits.append(std::size_t(point) - digits.size(), '0');

    const std::size_t keep = std::size_t(point + decimals);
    if (digits.size() > keep) {
        const bool up = digits[keep] >= '5';
        digits.resize(keep);
        if (up) {
            std::size_t i = keep;
            while (i > 0 && digits[i - 1] == '9')
                digits[--i] = '0';
            if (i == 0) {
                digits.insert(0, 1, '1');
                ++point;
            } else {
                ++digits[i - 1];
            }
        }
    }
    digits.append(std::size_t(point + decimals) - digits.size(), '0');

    Digits result{digits.substr(0, std::size_t(point)), digits.substr(std::size_t(point))};
    result.whole.erase(0, result.whole.find_first_not_of('0'));
    return result;
}

// A pattern: literal text, a run of "0", "#" and at most one ".", literal text.
struct NumberPattern {
    QString prefix;
    QString suffix;
    int wholeMin = 0;    // "0" places before the point, from the first "0" on
    int fractionMin = 0; // up to the last "0" after the point
    int fractionMax = 0; // all places after the point
    bool point = false;
};

NumberPattern parsePattern(const QString& pattern)
{
    NumberPattern result;
    auto isPlace = [](QChar c) { return c == u'0' || c == u'#'; };
    qsizetype i = 0;
    while (i < pattern.size() && !isPlace(pattern[i]) && pattern[i] != u'.')
        ++i;
    result.prefix = pattern.left(i);

    int wholePlaces = 0;
    int firstZero = -1;
    for (; i < pattern.size() && isPlace(pattern[i]); ++i, ++wholePlaces) {
        if (pattern[i] == u'0' && firstZero < 0)
            firstZero = wholePlaces;
    }
    result.wholeMin = firstZero < 0 ? 0 : wholePlaces - firstZero;

    if (i < pattern.size() && pattern[i] == u'.') {
        result.point = true;
        for (++i; i < pattern.size() && isPlace(pattern[i]); ++i) {
            ++result.fractionMax;
            if (pattern[i] == u'0')
                result.fractionMin = result.fractionMax;
        }
    }
    result.suffix = pattern.mid(i);
    return result;
}

} // namespace

double Val(const QString& text)
{
    ValReader in(text);
    if (in.take(u'&')) {
        if (in.take(u'H'))
            return valRadix(in, 16);
        if (in.take(u'O'))
            return valRadix(in, 8);
        return 0;
    }
    return valDecimal(in);
}

QString Str(double value)
{
    QString text = generalText(value);
    if (text.startsWith(u"0."))
        text.remove(0, 1);
    else if (text.startsWith(u"-0."))
        text.remove(1, 1);
    return text.startsWith(u'-') ? text : u' ' + text;
}

QString Format(double value, const QString& pattern)
{
    if (pattern.isEmpty() || !std::isfinite(value))
        return generalText(value);
    const NumberPattern p = parsePattern(pattern);
    Digits digits = roundedDigits(std::fabs(value), p.fractionMax);

    if (int(digits.whole.size()) < p.wholeMin)
        digits.whole.insert(0, std::size_t(p.wholeMin) - digits.whole.size(), '0');
    while (int(digits.fraction.size()) > p.fractionMin && digits.fraction.back() == '0')
        digits.fraction.pop_back();

    QString number = QString::fromStdString(digits.whole);
    if (p.point)
        number += u'.' + QString::fromStdString(digits.fraction);
    return (value < 0 ? u"-" : u"") + p.prefix + number + p.suffix;
}

QString Trim(const QString& text)
{
    return LTrim(RTrim(text));
}

QStringView TrimView(QStringView text)
{
    qsizetype start = 0;
    qsizetype end = text.size();
    while (start < end && text[start] == u' ')
        ++start;
    while (end > start && text[end - 1] == u' ')
        --end;
    return text.mid(start, end - start);
}

QString LTrim(const QString& text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start] == u' ')
        ++start;
    return text.mid(start);
}

QString RTrim(const QString& text)
{
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == u' ')
        --end;
    return text.left(end);
}

QString UCase(const QString& text)
{
    return text.toUpper();
}
QString LCase(const QString& text)
{
    return text.toLower();
}
QString Space(int count)
{
    return QString(std::max(count, 0), u' ');
}

int InStr(const QString& text, const QString& find)
{
    return InStr(1, text, find);
}

int InStr(int start, const QString& text, const QString& find)
{
    if (start < 1 || text.isEmpty() || start > text.size() + 1)
        return 0;
    if (find.isEmpty())
        return start;
    return int(text.indexOf(find, start - 1)) + 1;
}

int InStrRev(const QString& text, const QString& find)
{
    if (text.isEmpty())
        return 0;
    if (find.isEmpty())
        return int(text.size());
    return int(text.lastIndexOf(find)) + 1;
}

QString Left(const QString& text, int count)
{
    return text.left(std::max(count, 0));
}

QString Right(const QString& text, int count)
{
    return text.right(std::max(count, 0));
}

QString Mid(const QString& text, int start, int count)
{
    if (start < 1)
        return QString();
    return text.mid(start - 1, count < 0 ? -1 : count);
}

bool StoreInt16(qint16& target, double value)
{
    const qint64 rounded = RoundHalfEven(value);
    if (std::isnan(value) || rounded < -32768 || rounded > 32767)
        return false;
    target = qint16(rounded);
    return true;
}

bool StoreInt32(qint32& target, double value)
{
    const qint64 rounded = RoundHalfEven(value);
    if (std::isnan(value) || rounded < std::numeric_limits<qint32>::min() ||
        rounded > std::numeric_limits<qint32>::max())
        return false;
    target = qint32(rounded);
    return true;
}

qint16 ClampInt16(double value)
{
    return qint16(std::clamp<qint64>(RoundHalfEven(value), -32768, 32767));
}

qint64 RoundHalfEven(double value)
{
    if (std::isnan(value))
        return 0;
    double whole = std::floor(value);
    const double rest = value - whole;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(whole, 2.0) != 0))
        whole += 1;
    if (whole >= 0x1p63)
        return std::numeric_limits<qint64>::max();
    if (whole < -0x1p63)
        return std::numeric_limits<qint64>::min();
    return qint64(whole);
}

bool IsNumeric(const QString& text)
{
    static const QRegularExpression number(
        QStringLiteral("^ *[-+]?(") +
        QStringLiteral("&[Hh][0-9A-Fa-f]+&?|&[Oo][0-7]+&?|") +               // &H and &O literals
        QStringLiteral("([0-9]+\\.?[0-9]*|\\.[0-9]+)([EeDd][-+]?[0-9]+)?") + // decimal
        QStringLiteral(") *$"));
    return number.match(text).hasMatch();
}

} // namespace lumen::basic
