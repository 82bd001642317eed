// The BASIC text and number functions, row by row against the results the
// classic functions give.
#include "platform/Basic.h"

#include "support/Fetch.h"

#include <QLocale>
#include <QTest>

#include <clocale>
#include <cmath>
#include <limits>

using namespace lumen::basic;
using namespace Qt::StringLiterals;

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();

} // namespace

class TestBasic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void val_data();
    void val();
    void str_data();
    void str();
    void format_data();
    void format();
    void numbersIgnoreTheLocale_data();
    void numbersIgnoreTheLocale();
    void trim_data();
    void trim();
    void inStr_data();
    void inStr();
    void mid_data();
    void mid();
    void storeInt16_data();
    void storeInt16();
    void storeInt32_data();
    void storeInt32();
    void clampInt16_data();
    void clampInt16();
};

void TestBasic::val_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");

    QTest::newRow("blanks, tabs and line feeds inside") << " 1 2\t3\n4" << 1234.0;
    QTest::newRow("carriage return ends") << "12\r3" << 12.0;
    QTest::newRow("letters end") << "  12abc" << 12.0;
    QTest::newRow("blank after sign") << "- 3" << -3.0;
    QTest::newRow("exponent D") << "2D3" << 2000.0;
    QTest::newRow("full-width digits") << u"１２３"_s << 0.0;
    QTest::newRow("hex 16 bit all ones") << "&HFFFF" << -1.0;
    QTest::newRow("hex 16 bit sign") << "&H8000" << -32768.0;
    QTest::newRow("hex leading zeros") << "&H0000FFFF" << -1.0;
    QTest::newRow("hex 32 bit") << "&H80000008" << -2147483640.0;
    QTest::newRow("hex long suffix") << "&HFFFF&" << 65535.0;
    QTest::newRow("hex 32 bit all ones") << "&HFFFFFFFF&" << -1.0;
    QTest::newRow("hex with blanks") << " &H F F" << 255.0;
    QTest::newRow("hex stops at non-digit") << "&H1G" << 1.0;
    QTest::newRow("hex past 32 bits") << "&H1FFFFFFFF" << 0.0;
    QTest::newRow("octal 16 bit") << "&O177777" << -1.0;
    QTest::newRow("overflow") << "-1E400" << -std::numeric_limits<double>::infinity();
}

void TestBasic::val()
{
    QCOMPARE(Val(FETCH(QString, text)), FETCH(double, expected));
}

void TestBasic::str_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("negative zero") << -0.0 << " 0";
    QTest::newRow("sum rounded to 15 digits") << 0.1 + 0.2 << " .3";
    QTest::newRow("a third") << 1.0 / 3 << " .333333333333333";
    QTest::newRow("16 digits") << 1e16 << " 1E+16";
}

void TestBasic::str()
{
    QCOMPARE(Str(FETCH(double, value)), FETCH(QString, expected));
}

void TestBasic::format_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, double value, const char* pattern, const char* text) {
        QTest::newRow(name) << value << QString(pattern) << QString(text);
    };
    row("zero padding carries", 999.5, "000", "1000");
    row("size in MB", 1500000.0 / 1000000, "##0.000", "1.500");
    row("half rounds up", 12.5, "##0", "13");
    row("half as decimal text", 1.0005, "0.000", "1.001");
    row("carry into whole part", 9.9996, "0.000", "10.000");
    row("negative half away from zero", -2.5, "0", "-3");
    row("point kept without decimals", 1.0, "0.##", "1.");
    row("literal suffix", 1.5, "##0.000MB", "1.500MB");
    row("first point is the decimal point", 5.0, "No.000", "No5.000");
}

void TestBasic::format()
{
    QCOMPARE(Format(FETCH(double, value), FETCH(QString, pattern)), FETCH(QString, expected));
}

void TestBasic::numbersIgnoreTheLocale_data()
{
    QTest::addColumn<bool>("cLibrary");
    QTest::newRow("Qt default locale German") << false;
    QTest::newRow("C library locale German") << true;
}

void TestBasic::numbersIgnoreTheLocale()
{
    QFETCH(bool, cLibrary);
    const QLocale oldDefault;
    const QByteArray oldC = std::setlocale(LC_ALL, nullptr);
    if (cLibrary && !std::setlocale(LC_ALL, "de_DE.UTF-8"))
        QSKIP("the de_DE.UTF-8 locale isn't installed");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const auto restore = qScopeGuard([&] {
        QLocale::setDefault(oldDefault);
        std::setlocale(LC_ALL, oldC.constData());
    });

    QCOMPARE(Format(1500000.0 / 1000000, "##0.000"), u"1.500"_s);
    QCOMPARE(Str(1.5), u" 1.5"_s);
    QCOMPARE(Val("1.5"), 1.5);
    QCOMPARE(Val("1,5"), 1.0);
}

void TestBasic::trim_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("trimmed");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    const auto row = [](const char* name, const QString& text, const QString& trimmed,
                        const QString& left, const QString& right) {
        QTest::newRow(name) << text << trimmed << left << right;
    };
    row("blanks", u"  a b  "_s, u"a b"_s, u"a b  "_s, u"  a b"_s);
    row("blank before tab", u" \t a "_s, u"\t a"_s, u"\t a "_s, u" \t a"_s);
    row("ideographic space kept", u" 　a　 "_s, u"　a　"_s, u"　a　 "_s, u" 　a　"_s);
}

void TestBasic::trim()
{
    const QString text = FETCH(QString, text);
    QCOMPARE(Trim(text), FETCH(QString, trimmed));
    QCOMPARE(LTrim(text), FETCH(QString, left));
    QCOMPARE(RTrim(text), FETCH(QString, right));
}

void TestBasic::inStr_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<int>("expected");
    const auto row = [](const char* name, int start, const QString& text, const QString& find,
                        int expected) { QTest::newRow(name) << start << text << find << expected; };
    row("first", 1, u"abcabc"_s, u"c"_s, 3);
    row("start past end", 7, u"abcabc"_s, u"c"_s, 0);
    row("empty find", 1, u"abc"_s, {}, 1);
    row("empty find beyond", 5, u"abc"_s, {}, 0);
    row("full-width", 1, u"ファイル．ｊｐｇ"_s, u"．"_s, 5);
}

void TestBasic::inStr()
{
    const int start = FETCH(int, start);
    const int expected = FETCH(int, expected);
    QCOMPARE(InStr(start, FETCH(QString, text), FETCH(QString, find)), expected);
    if (start == 1)
        QCOMPARE(InStr(FETCH(QString, text), FETCH(QString, find)), expected);
}

void TestBasic::mid_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("expected");

    QTest::newRow("count past end") << "abc" << 2 << 10 << "bc";
    QTest::newRow("start just past end") << "abc" << 4 << -1 << "";
    QTest::newRow("start below 1") << "abc" << 0 << 1 << "";
}

void TestBasic::mid()
{
    const int count = FETCH(int, count);
    QCOMPARE(Mid(FETCH(QString, text), FETCH(int, start), count), FETCH(QString, expected));
    if (count == -1)
        QCOMPARE(Mid(FETCH(QString, text), FETCH(int, start)), FETCH(QString, expected));
}

void TestBasic::storeInt16_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("stored");
    QTest::addColumn<int>("expected"); // the target afterwards; it starts at 77

    QTest::newRow("2.5 to even 2") << 2.5 << true << 2;
    QTest::newRow("rounds up past largest") << 32767.5 << false << 77;
    QTest::newRow("one past largest") << 32768.0 << false << 77;
    QTest::newRow("rounds to even smallest") << -32768.5 << true << -32768;
    QTest::newRow("not a number") << kNaN << false << 77;
}

void TestBasic::storeInt16()
{
    qint16 target = 77;
    QCOMPARE(StoreInt16(target, FETCH(double, value)), FETCH(bool, stored));
    QCOMPARE(int(target), FETCH(int, expected));
}

void TestBasic::storeInt32_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("stored");
    QTest::addColumn<qint64>("expected"); // the target afterwards; it starts at 77

    QTest::newRow("rounds up past largest") << 2147483647.5 << false << qint64(77);
    QTest::newRow("rounds to even smallest") << -2147483648.5 << true << qint64(-2147483648LL);
    QTest::newRow("infinity") << Val("1E400") << false << qint64(77);
}

void TestBasic::storeInt32()
{
    qint32 target = 77;
    QCOMPARE(StoreInt32(target, FETCH(double, value)), FETCH(bool, stored));
    QCOMPARE(qint64(target), FETCH(qint64, expected));
}

void TestBasic::clampInt16_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");

    QTest::newRow("wide screen") << 57600.0 << 32767;
    QTest::newRow("not a number") << kNaN << 0;
}

void TestBasic::clampInt16()
{
    QCOMPARE(int(ClampInt16(FETCH(double, value))), FETCH(int, expected));
}

QTEST_APPLESS_MAIN(TestBasic)
#include "tst_Basic.moc"
