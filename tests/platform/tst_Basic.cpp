// The BASIC text and number functions, row by row against the results the
// classic functions give; colours as BGR integers and their texts, system
// colours from the desktop's palette.
#include "platform/Basic.h"
#include "platform/Colors.h"

#include "support/Fetch.h"

#include <QGuiApplication>
#include <QLocale>
#include <QPalette>
#include <QTest>

#include <clocale>
#include <limits>

using namespace lumen;
using namespace lumen::basic;
using namespace Qt::StringLiterals;

namespace {

const double kNaN = std::numeric_limits<double>::quiet_NaN();

} // namespace

class TestBasic : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QPalette palette;
        palette.setColor(QPalette::Button, QColor(1, 2, 3));
        palette.setColor(QPalette::Base, QColor(7, 8, 9));
        QGuiApplication::setPalette(palette);
    }

    void bgrText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("bgr");
        QTest::addColumn<bool>("written"); // bgrToHexText gives the text back
        QTest::newRow("long hex with suffix") << u"&H00FF8080&"_s << qint32(16744576) << true;
        QTest::newRow("yellow without suffix is -1") << u"&HFFFF"_s << qint32(-1) << false;
        QTest::newRow("system button face") << u"&H8000000F&"_s << kColorButtonFace << true;
        QTest::newRow("negative decimal") << u"-2147483633"_s << kColorButtonFace << false;
        QTest::newRow("not a number") << u"red"_s << qint32(0) << false;
        QTest::newRow("past 32 bits") << u"4294967295"_s << qint32(0) << false;
    }
    void bgrText()
    {
        const QString text = FETCH(QString, text);
        const qint32 bgr = FETCH(qint32, bgr);
        QCOMPARE(bgrFromText(text), bgr);
        if (FETCH(bool, written))
            QCOMPARE(bgrToHexText(bgr), text);
    }

    void colorFromBgr_data()
    {
        QTest::addColumn<qint32>("bgr");
        QTest::addColumn<QColor>("color");
        QTest::newRow("blue") << qint32(0xFF0000) << QColor(0, 0, 255);
        QTest::newRow("text colour") << qint32(0x808040) << QColor(0x40, 0x80, 0x80);
        QTest::newRow("button face from the palette") << kColorButtonFace << QColor(1, 2, 3);
    }
    void colorFromBgr()
    {
        const qint32 bgr = FETCH(qint32, bgr);
        QCOMPARE(lumen::colorFromBgr(bgr), FETCH(QColor, color));
        if (bgr >= 0) // not a system colour
            QCOMPARE(bgrFromColor(FETCH(QColor, color)), bgr);
    }
    void val_data()
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
        QTest::newRow("hex with blanks") << " &H F F" << 255.0;
        QTest::newRow("hex stops at non-digit") << "&H1G" << 1.0;
        QTest::newRow("hex past 32 bits") << "&H1FFFFFFFF" << 0.0;
        QTest::newRow("octal 16 bit") << "&O177777" << -1.0;
        QTest::newRow("overflow") << "-1E400" << -std::numeric_limits<double>::infinity();
    }
    void val() { QCOMPARE(Val(FETCH(QString, text)), FETCH(double, expected)); }

    void str_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("expected");
        QTest::newRow("negative zero") << -0.0 << " 0";
        QTest::newRow("sum rounded to 15 digits") << 0.1 + 0.2 << " .3";
        QTest::newRow("a third") << 1.0 / 3 << " .333333333333333";
        QTest::newRow("16 digits") << 1e16 << " 1E+16";
    }
    void str() { QCOMPARE(Str(FETCH(double, value)), FETCH(QString, expected)); }

    void format_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, double value, const char* pattern, const char* text) {
            QTest::newRow(name) << value << QString(pattern) << QString(text);
        };
        row("zero padding carries", 999.5, "000", "1000");
        row("half rounds up", 12.5, "##0", "13");
        row("half as decimal text", 1.0005, "0.000", "1.001");
        row("carry into whole part", 9.9996, "0.000", "10.000");
        row("negative half away from zero", -2.5, "0", "-3");
        row("point kept without decimals", 1.0, "0.##", "1.");
        row("literal suffix", 1.5, "##0.000MB", "1.500MB");
        row("first point is the decimal point", 5.0, "No.000", "No5.000");
    }
    void format()
    {
        QCOMPARE(Format(FETCH(double, value), FETCH(QString, pattern)), FETCH(QString, expected));
    }

    // Both the Qt default and, where it is installed, the C library's locale.
    void numbersIgnoreTheLocale()
    {
        const QLocale oldDefault;
        const QByteArray oldC = std::setlocale(LC_ALL, nullptr);
        const auto restore = qScopeGuard([&] {
            QLocale::setDefault(oldDefault);
            std::setlocale(LC_ALL, oldC.constData());
        });
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        std::setlocale(LC_ALL, "de_DE.UTF-8");

        QCOMPARE(Format(1500000.0 / 1000000, "##0.000"), u"1.500"_s);
        QCOMPARE(Str(1.5), u" 1.5"_s);
        QCOMPARE(Val("1.5"), 1.5);
        QCOMPARE(Val("1,5"), 1.0);
    }

    void trim_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("trimmed");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("right");
        QTest::newRow("blanks") << u"  a b  "_s << u"a b"_s << u"a b  "_s << u"  a b"_s;
        QTest::newRow("blank before tab") << u" \t a "_s << u"\t a"_s << u"\t a "_s << u" \t a"_s;
        QTest::newRow("ideographic space kept")
            << u" 　a　 "_s << u"　a　"_s << u"　a　 "_s << u" 　a　"_s;
    }
    void trim()
    {
        const QString text = FETCH(QString, text);
        QCOMPARE(Trim(text), FETCH(QString, trimmed));
        QCOMPARE(LTrim(text), FETCH(QString, left));
        QCOMPARE(RTrim(text), FETCH(QString, right));
    }

    void inStr_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("find");
        QTest::addColumn<int>("expected");
        QTest::newRow("first") << 1 << u"abcabc"_s << u"c"_s << 3;
        QTest::newRow("start past end") << 7 << u"abcabc"_s << u"c"_s << 0;
        QTest::newRow("empty find") << 1 << u"abc"_s << QString() << 1;
        QTest::newRow("empty find beyond") << 5 << u"abc"_s << QString() << 0;
        QTest::newRow("full-width") << 1 << u"ファイル．ｊｐｇ"_s << u"．"_s << 5;
    }
    void inStr()
    {
        const int start = FETCH(int, start);
        const int expected = FETCH(int, expected);
        QCOMPARE(InStr(start, FETCH(QString, text), FETCH(QString, find)), expected);
        if (start == 1)
            QCOMPARE(InStr(FETCH(QString, text), FETCH(QString, find)), expected);
    }

    void mid_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("expected");
        QTest::newRow("count past end") << "abc" << 2 << 10 << "bc";
        QTest::newRow("start just past end") << "abc" << 4 << -1 << "";
        QTest::newRow("start below 1") << "abc" << 0 << 1 << "";
    }
    void mid()
    {
        const int count = FETCH(int, count);
        QCOMPARE(Mid(FETCH(QString, text), FETCH(int, start), count), FETCH(QString, expected));
        if (count == -1)
            QCOMPARE(Mid(FETCH(QString, text), FETCH(int, start)), FETCH(QString, expected));
    }

    void storeInt_data()
    {
        QTest::addColumn<int>("bits");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("stored");
        QTest::addColumn<qint64>("after"); // the target starts at 77
        const auto row = [](const char* name, int bits, double value, bool stored, qint64 after) {
            QTest::newRow(name) << bits << value << stored << after;
        };
        row("16: 2.5 to even 2", 16, 2.5, true, 2);
        row("16: rounds up past largest", 16, 32767.5, false, 77);
        row("16: one past largest", 16, 32768.0, false, 77);
        row("16: rounds to even smallest", 16, -32768.5, true, -32768);
        row("16: not a number", 16, kNaN, false, 77);
        row("32: rounds up past largest", 32, 2147483647.5, false, 77);
        row("32: rounds to even smallest", 32, -2147483648.5, true, -2147483648LL);
        row("32: infinity", 32, Val("1E400"), false, 77);
    }
    void storeInt()
    {
        qint16 small = 77;
        qint32 large = 77;
        const bool wide = FETCH(int, bits) == 32;
        const double value = FETCH(double, value);
        QCOMPARE(wide ? StoreInt32(large, value) : StoreInt16(small, value), FETCH(bool, stored));
        QCOMPARE(wide ? qint64(large) : qint64(small), FETCH(qint64, after));
    }

    void clampInt16()
    {
        QCOMPARE(ClampInt16(57600.0), qint16(32767)); // a wide screen in twips
        QCOMPARE(ClampInt16(kNaN), qint16(0));
    }
};

QTEST_MAIN(TestBasic)
#include "tst_Basic.moc"
