// The BASIC text and number functions, row by row against the results the
// classic functions give.
#include "platform/Basic.h"

#include <QLocale>
#include <QTest>

#include <clocale>
#include <cmath>
#include <limits>

using namespace lumen::basic;
using namespace Qt::StringLiterals;

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
    void letterCase_data();
    void letterCase();
    void space();
    void inStr_data();
    void inStr();
    void inStrRev_data();
    void inStrRev();
    void leftRight_data();
    void leftRight();
    void mid_data();
    void mid();
    void storeInt16_data();
    void storeInt16();
    void storeInt32_data();
    void storeInt32();
    void clampInt16_data();
    void clampInt16();
    void roundHalfEven_data();
    void roundHalfEven();
};

void TestBasic::val_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");

    QTest::newRow("integer") << "123" << 123.0;
    QTest::newRow("blanks inside") << " 1 2 3" << 123.0;
    QTest::newRow("tabs and line feeds inside") << "\t7\n8" << 78.0;
    QTest::newRow("carriage return ends") << "12\r3" << 12.0;
    QTest::newRow("letters end") << "  12abc" << 12.0;
    QTest::newRow("comma ends") << "1,000" << 1.0;
    QTest::newRow("negative decimal") << "-3.5" << -3.5;
    QTest::newRow("blank after sign") << "- 3" << -3.0;
    QTest::newRow("plus sign") << "+4" << 4.0;
    QTest::newRow("no zero before point") << ".5" << 0.5;
    QTest::newRow("negative without zero") << "-.5" << -0.5;
    QTest::newRow("point without decimals") << "1." << 1.0;
    QTest::newRow("second point ends") << "1.2.3" << 1.2;
    QTest::newRow("exponent e") << "1.5e2" << 150.0;
    QTest::newRow("exponent D") << "2D3" << 2000.0;
    QTest::newRow("negative exponent") << "25E-2" << 0.25;
    QTest::newRow("exponent with blanks") << "1 E 2" << 100.0;
    QTest::newRow("E without digits") << "7E" << 7.0;
    QTest::newRow("E sign without digits") << "7E+x" << 7.0;
    QTest::newRow("letters only") << "abc" << 0.0;
    QTest::newRow("empty") << "" << 0.0;
    QTest::newRow("sign only") << "-" << 0.0;
    QTest::newRow("point only") << "." << 0.0;
    QTest::newRow("full-width digits") << u"１２３"_s << 0.0;
    QTest::newRow("hex 16 bit all ones") << "&HFFFF" << -1.0;
    QTest::newRow("hex 16 bit sign") << "&H8000" << -32768.0;
    QTest::newRow("hex 16 bit positive") << "&H7FFF" << 32767.0;
    QTest::newRow("hex lower case") << "&hff" << 255.0;
    QTest::newRow("hex leading zeros") << "&H0000FFFF" << -1.0;
    QTest::newRow("hex 32 bit") << "&H80000008" << -2147483640.0;
    QTest::newRow("hex six digits") << "&H808040" << 8421440.0;
    QTest::newRow("hex long suffix") << "&HFFFF&" << 65535.0;
    QTest::newRow("hex colour text") << "&H00FF8080&" << 16744576.0;
    QTest::newRow("hex 32 bit all ones") << "&HFFFFFFFF&" << -1.0;
    QTest::newRow("hex with blanks") << " &H F F" << 255.0;
    QTest::newRow("hex stops at non-digit") << "&H1G" << 1.0;
    QTest::newRow("hex prefix alone") << "&H" << 0.0;
    QTest::newRow("hex without digits") << "&HG" << 0.0;
    QTest::newRow("hex past 32 bits") << "&H1FFFFFFFF" << 0.0;
    QTest::newRow("octal") << "&O17" << 15.0;
    QTest::newRow("octal 16 bit") << "&O177777" << -1.0;
    QTest::newRow("octal stops at 8") << "&O18" << 1.0;
    QTest::newRow("ampersand alone") << "&12" << 0.0;
    QTest::newRow("underflow") << "1E-400" << 0.0;
    QTest::newRow("overflow") << "-1E400" << -std::numeric_limits<double>::infinity();
}

void TestBasic::val()
{
    QFETCH(QString, text);
    QFETCH(double, expected);
    QCOMPARE(Val(text), expected);
}

void TestBasic::str_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");

    QTest::newRow("positive") << 5.0 << " 5";
    QTest::newRow("zero") << 0.0 << " 0";
    QTest::newRow("negative zero") << -0.0 << " 0";
    QTest::newRow("negative") << -2.0 << "-2";
    QTest::newRow("half") << 0.5 << " .5";
    QTest::newRow("negative half") << -0.5 << "-.5";
    QTest::newRow("decimals") << 123.456 << " 123.456";
    QTest::newRow("whole number") << 100.0 << " 100";
    QTest::newRow("sum rounded to 15 digits") << 0.1 + 0.2 << " .3";
    QTest::newRow("a third") << 1.0 / 3 << " .333333333333333";
    QTest::newRow("15 digits") << 123456789012345.0 << " 123456789012345";
    QTest::newRow("16 digits") << 1e16 << " 1E+16";
    QTest::newRow("large with digits") << -1.5e20 << "-1.5E+20";
    QTest::newRow("small") << 1e-7 << " 1E-07";
}

void TestBasic::str()
{
    QFETCH(double, value);
    QFETCH(QString, expected);
    QCOMPARE(Str(value), expected);
}

void TestBasic::format_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");

    QTest::newRow("zero padded") << 7.0 << "000"
                                 << "007";
    QTest::newRow("wider than pattern") << 1234.0 << "000"
                                        << "1234";
    QTest::newRow("zero padding carries") << 999.5 << "000"
                                          << "1000";
    QTest::newRow("three decimals") << 1.5 << "##0.000"
                                    << "1.500";
    QTest::newRow("zero with decimals") << 0.0 << "##0.000"
                                        << "0.000";
    QTest::newRow("decimals rounded") << 123.4567 << "##0.000"
                                      << "123.457";
    QTest::newRow("size in MB") << 1500000.0 / 1000000 << "##0.000"
                                << "1.500";
    QTest::newRow("half rounds up") << 12.5 << "##0"
                                    << "13";
    QTest::newRow("odd half rounds up") << 13.5 << "##0"
                                        << "14";
    QTest::newRow("half as decimal text") << 1.0005 << "0.000"
                                          << "1.001";
    QTest::newRow("carry into whole part") << 9.9996 << "0.000"
                                           << "10.000";
    QTest::newRow("negative half away from zero") << -2.5 << "0"
                                                  << "-3";
    QTest::newRow("negative decimals") << -1.25 << "0.0"
                                       << "-1.3";
    QTest::newRow("negative rounding to zero") << -0.004 << "0.00"
                                               << "-0.00";
    QTest::newRow("no whole digit with #") << 0.5 << "#.00"
                                           << ".50";
    QTest::newRow("optional decimals") << 1.25 << "0.##"
                                       << "1.25";
    QTest::newRow("optional decimals dropped") << 1.2 << "0.##"
                                               << "1.2";
    QTest::newRow("point kept without decimals") << 1.0 << "0.##"
                                                 << "1.";
    QTest::newRow("literal suffix") << 1.5 << "##0.000MB"
                                    << "1.500MB";
    QTest::newRow("literal prefix") << 5.0 << "No 000"
                                    << "No 005";
    QTest::newRow("first point is the decimal point") << 5.0 << "No.000"
                                                      << "No5.000";
    QTest::newRow("large value") << 1e20 << "0"
                                 << "100000000000000000000";
    QTest::newRow("empty pattern") << 2.5 << ""
                                   << "2.5";
}

void TestBasic::format()
{
    QFETCH(double, value);
    QFETCH(QString, pattern);
    QFETCH(QString, expected);
    QCOMPARE(Format(value, pattern), expected);
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

    QTest::newRow("blanks") << "  a b  "
                            << "a b"
                            << "a b  "
                            << "  a b";
    QTest::newRow("only blanks") << "   "
                                 << ""
                                 << ""
                                 << "";
    QTest::newRow("empty") << ""
                           << ""
                           << ""
                           << "";
    QTest::newRow("tabs kept") << "\ta\t"
                               << "\ta\t"
                               << "\ta\t"
                               << "\ta\t";
    QTest::newRow("blank before tab") << " \t a "
                                      << "\t a"
                                      << "\t a "
                                      << " \t a";
    QTest::newRow("ideographic space kept")
        << u" 　a　 "_s << u"　a　"_s << u"　a　 "_s << u" 　a　"_s;
    QTest::newRow("line breaks kept") << "a\r\n "
                                      << "a\r\n"
                                      << "a\r\n "
                                      << "a\r\n";
}

void TestBasic::trim()
{
    QFETCH(QString, text);
    QFETCH(QString, trimmed);
    QFETCH(QString, left);
    QFETCH(QString, right);
    QCOMPARE(Trim(text), trimmed);
    QCOMPARE(LTrim(text), left);
    QCOMPARE(RTrim(text), right);
}

void TestBasic::letterCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("upper");
    QTest::addColumn<QString>("lower");

    QTest::newRow("ASCII") << "a.Jpg"
                           << "A.JPG"
                           << "a.jpg";
    QTest::newRow("full-width letters") << u"ａＢｃ"_s << u"ＡＢＣ"_s << u"ａｂｃ"_s;
    QTest::newRow("kana unchanged") << u"ﾌｧｲﾙファイル"_s << u"ﾌｧｲﾙファイル"_s << u"ﾌｧｲﾙファイル"_s;
    QTest::newRow("drive path") << "c:\\Lumentas"
                                << "C:\\LUMENTAS"
                                << "c:\\lumentas";
}

void TestBasic::letterCase()
{
    QFETCH(QString, text);
    QFETCH(QString, upper);
    QFETCH(QString, lower);
    QCOMPARE(UCase(text), upper);
    QCOMPARE(LCase(text), lower);
}

void TestBasic::space()
{
    QCOMPARE(Space(3), u"   "_s);
    QCOMPARE(Space(0), QString());
    QCOMPARE(Space(-1), QString());
}

void TestBasic::inStr_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<int>("expected");

    QTest::newRow("first") << 1 << "abcabc"
                           << "c" << 3;
    QTest::newRow("from start") << 4 << "abcabc"
                                << "c" << 6;
    QTest::newRow("start on match") << 3 << "abcabc"
                                    << "c" << 3;
    QTest::newRow("start past end") << 7 << "abcabc"
                                    << "c" << 0;
    QTest::newRow("absent") << 1 << "abc"
                            << "x" << 0;
    QTest::newRow("case matters") << 1 << "abc"
                                  << "B" << 0;
    QTest::newRow("find longer than text") << 1 << "abc"
                                           << "abcd" << 0;
    QTest::newRow("empty find") << 1 << "abc"
                                << "" << 1;
    QTest::newRow("empty find at start") << 3 << "abc"
                                         << "" << 3;
    QTest::newRow("empty find just past end") << 4 << "abc"
                                              << "" << 4;
    QTest::newRow("empty find beyond") << 5 << "abc"
                                       << "" << 0;
    QTest::newRow("empty text") << 1 << ""
                                << "a" << 0;
    QTest::newRow("both empty") << 1 << ""
                                << "" << 0;
    QTest::newRow("start below 1") << 0 << "abc"
                                   << "a" << 0;
    QTest::newRow("full-width") << 1 << u"ファイル．ｊｐｇ"_s << u"．"_s << 5;
    QTest::newRow("drive colon") << 1 << "C:\\a"
                                 << ":" << 2;
}

void TestBasic::inStr()
{
    QFETCH(int, start);
    QFETCH(QString, text);
    QFETCH(QString, find);
    QFETCH(int, expected);
    QCOMPARE(InStr(start, text, find), expected);
    if (start == 1)
        QCOMPARE(InStr(text, find), expected);
}

void TestBasic::inStrRev_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("find");
    QTest::addColumn<int>("expected");

    QTest::newRow("last backslash") << "C:\\a\\b.jpg"
                                    << "\\" << 5;
    QTest::newRow("absent") << "abc"
                            << "x" << 0;
    QTest::newRow("overlapping") << "aaa"
                                 << "aa" << 2;
    QTest::newRow("whole text") << "abc"
                                << "abc" << 1;
    QTest::newRow("case matters") << "abc"
                                  << "A" << 0;
    QTest::newRow("empty find") << "abc"
                                << "" << 3;
    QTest::newRow("empty text") << ""
                                << "a" << 0;
    QTest::newRow("both empty") << ""
                                << "" << 0;
}

void TestBasic::inStrRev()
{
    QFETCH(QString, text);
    QFETCH(QString, find);
    QFETCH(int, expected);
    QCOMPARE(InStrRev(text, find), expected);
}

void TestBasic::leftRight_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");

    QTest::newRow("part") << "abcde" << 2 << "ab"
                          << "de";
    QTest::newRow("all") << "abc" << 3 << "abc"
                         << "abc";
    QTest::newRow("count past end") << "abc" << 5 << "abc"
                                    << "abc";
    QTest::newRow("zero") << "abc" << 0 << ""
                          << "";
    QTest::newRow("negative") << "abc" << -1 << ""
                              << "";
    QTest::newRow("empty text") << "" << 2 << ""
                                << "";
    QTest::newRow("double-byte") << u"ファイル"_s << 2 << u"ファ"_s << u"イル"_s;
}

void TestBasic::leftRight()
{
    QFETCH(QString, text);
    QFETCH(int, count);
    QFETCH(QString, left);
    QFETCH(QString, right);
    QCOMPARE(Left(text, count), left);
    QCOMPARE(Right(text, count), right);
}

void TestBasic::mid_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("expected");

    QTest::newRow("middle") << "abcdef" << 2 << 3 << "bcd";
    QTest::newRow("to the end") << "abcdef" << 4 << -1 << "def";
    QTest::newRow("count past end") << "abc" << 2 << 10 << "bc";
    QTest::newRow("start at last") << "abc" << 3 << -1 << "c";
    QTest::newRow("start just past end") << "abc" << 4 << -1 << "";
    QTest::newRow("start far past end") << "abc" << 9 << 2 << "";
    QTest::newRow("zero count") << "abc" << 1 << 0 << "";
    QTest::newRow("start below 1") << "abc" << 0 << 1 << "";
    QTest::newRow("double-byte") << u"ファイル名"_s << 3 << 2 << u"イル"_s;
}

void TestBasic::mid()
{
    QFETCH(QString, text);
    QFETCH(int, start);
    QFETCH(int, count);
    QFETCH(QString, expected);
    QCOMPARE(Mid(text, start, count), expected);
    if (count == -1)
        QCOMPARE(Mid(text, start), expected);
}

void TestBasic::storeInt16_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("stored");
    QTest::addColumn<int>("expected"); // the target afterwards; it starts at 77

    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("whole") << 1234.0 << true << 1234;
    QTest::newRow("2.5 to even 2") << 2.5 << true << 2;
    QTest::newRow("3.5 to even 4") << 3.5 << true << 4;
    QTest::newRow("0.5 to even 0") << 0.5 << true << 0;
    QTest::newRow("-2.5 to even -2") << -2.5 << true << -2;
    QTest::newRow("below half") << 2.49 << true << 2;
    QTest::newRow("largest") << 32767.0 << true << 32767;
    QTest::newRow("rounds down to largest") << 32767.4 << true << 32767;
    QTest::newRow("rounds up past largest") << 32767.5 << false << 77;
    QTest::newRow("one past largest") << 32768.0 << false << 77;
    QTest::newRow("smallest") << -32768.0 << true << -32768;
    QTest::newRow("rounds to even smallest") << -32768.5 << true << -32768;
    QTest::newRow("one past smallest") << -32769.0 << false << 77;
    QTest::newRow("huge") << 1e300 << false << 77;
    QTest::newRow("not a number") << nan << false << 77;
}

void TestBasic::storeInt16()
{
    QFETCH(double, value);
    QFETCH(bool, stored);
    QFETCH(int, expected);
    qint16 target = 77;
    QCOMPARE(StoreInt16(target, value), stored);
    QCOMPARE(int(target), expected);
}

void TestBasic::storeInt32_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("stored");
    QTest::addColumn<qint64>("expected"); // the target afterwards; it starts at 77

    QTest::newRow("2.5 to even 2") << 2.5 << true << qint64(2);
    QTest::newRow("beyond 16 bits") << 40000.0 << true << qint64(40000);
    QTest::newRow("largest") << 2147483647.0 << true << qint64(2147483647);
    QTest::newRow("rounds up past largest") << 2147483647.5 << false << qint64(77);
    QTest::newRow("rounds to even smallest") << -2147483648.5 << true << qint64(-2147483648LL);
    QTest::newRow("one past smallest") << -2147483649.0 << false << qint64(77);
    QTest::newRow("infinity") << Val("1E400") << false << qint64(77);
}

void TestBasic::storeInt32()
{
    QFETCH(double, value);
    QFETCH(bool, stored);
    QFETCH(qint64, expected);
    qint32 target = 77;
    QCOMPARE(StoreInt32(target, value), stored);
    QCOMPARE(qint64(target), expected);
}

void TestBasic::clampInt16_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("expected");

    QTest::newRow("inside") << 1500.0 << 1500;
    QTest::newRow("half to even") << 2.5 << 2;
    QTest::newRow("wide screen") << 57600.0 << 32767;
    QTest::newRow("far left") << -40000.0 << -32768;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0;
}

void TestBasic::clampInt16()
{
    QFETCH(double, value);
    QFETCH(int, expected);
    QCOMPARE(int(ClampInt16(value)), expected);
}

void TestBasic::roundHalfEven_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("expected");

    QTest::newRow("2.5") << 2.5 << qint64(2);
    QTest::newRow("3.5") << 3.5 << qint64(4);
    QTest::newRow("-2.5") << -2.5 << qint64(-2);
    QTest::newRow("-3.5") << -3.5 << qint64(-4);
    QTest::newRow("-0.5") << -0.5 << qint64(0);
    QTest::newRow("2.6") << 2.6 << qint64(3);
    QTest::newRow("-2.4") << -2.4 << qint64(-2);
    QTest::newRow("beyond 64 bits") << 1e20 << std::numeric_limits<qint64>::max();
    QTest::newRow("below 64 bits") << -1e20 << std::numeric_limits<qint64>::min();
}

void TestBasic::roundHalfEven()
{
    QFETCH(double, value);
    QFETCH(qint64, expected);
    QCOMPARE(RoundHalfEven(value), expected);
}

QTEST_APPLESS_MAIN(TestBasic)
#include "tst_Basic.moc"
