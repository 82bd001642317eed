// Reading and writing the program's text: Shift-JIS bytes as Windows writes
// them, UTF-8 with and without a byte-order mark, damaged bytes, fields cut
// to a byte width, and the parting of lines.
#include "platform/TextCodec.h"

#include <QTest>

#include <optional>

using namespace lumen::text;
using namespace Qt::StringLiterals;

namespace {

QByteArray hex(const char* digits)
{
    return QByteArray::fromHex(digits);
}

const QByteArray kBom = hex("EF BB BF");

} // namespace

class TestTextCodec : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void decodeBytes_data();
    void decodeBytes();
    void largeListDecodesEveryLine();
    void encodeCp932_data();
    void encodeCp932();
    void encodeForFile_data();
    void encodeForFile();
    void encodeField_data();
    void encodeField();
    void splitLines_data();
    void splitLines();
};

void TestTextCodec::decodeBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");

    const QChar bad = QChar::ReplacementCharacter;
    QTest::newRow("CP932 katakana") << hex("83 74 83 40 83 43 83 8B") << u"ファイル"_s;
    QTest::newRow("CP932 trail byte 5C") << hex("95 5C 2E 6A 70 67") << u"表.jpg"_s;
    QTest::newRow("UTF-8 without BOM")
        << hex("E3 83 95 E3 82 A1 E3 82 A4 E3 83 AB") << u"ファイル"_s;
    QTest::newRow("UTF-8 outside CP932") << hex("ED 95 9C F0 9F 98 80") << u"한😀"_s;
    QTest::newRow("BOM before ASCII") << kBom + "a\r\n" << u"a\r\n"_s;
    QTest::newRow("lone lead byte at the end") << hex("41 81") << u"A"_s + bad;
    QTest::newRow("lead byte with bad trail") << hex("81 20 41") << bad + u" A"_s;
    QTest::newRow("bad byte between characters")
        << hex("83 74 FF 83 40 A0 83 43") << u"フ"_s + bad + u"ァ"_s + bad + u"イ"_s;
}

void TestTextCodec::decodeBytes()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, expected);
    QCOMPARE(decode(bytes), expected);
}

// A list of the largest size the program takes, with one damaged byte in the
// middle: every line before and after it reads.
void TestTextCodec::largeListDecodesEveryLine()
{
    const QByteArray line = hex("83 74 83 40 83 43 83 8B") + " C:\\pics\\" + hex("BA D2 DD C4") +
                            ".jpg,9999," + hex("81 60 87 40") + QByteArray(60, 'x') + "\r\n";
    const int count = 32767;
    QByteArray bytes;
    bytes.reserve(line.size() * count);
    for (int i = 0; i < count; ++i)
        bytes += line;
    bytes[line.size() * (count / 2) + 2] = '\xFF'; // in place of the second lead byte

    const QStringList lines = lumen::text::splitLines(decode(bytes));
    QCOMPARE(lines.size(), count);
    const QString expected = u"ファイル C:\\pics\\ｺﾒﾝﾄ.jpg,9999,～①"_s + QString(60, u'x');
    QCOMPARE(lines.first(), expected);
    QCOMPARE(lines.last(), expected);
    QCOMPARE(lines[count / 2], QString(expected).replace(1, 1, u"\uFFFD@"_s));
    QCOMPARE(lines[count / 2 + 1], expected);
}

void TestTextCodec::encodeCp932_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<std::optional<QByteArray>>("expected");

    const std::optional<QByteArray> none;
    QTest::newRow("ASCII with backslash")
        << u"C:\\a.jpg"_s << std::optional(hex("43 3A 5C 61 2E 6A 70 67"));
    QTest::newRow("Hangul") << u"한"_s << none;
    QTest::newRow("yen sign maps one way") << u"¥100"_s << none;
    QTest::newRow("wave dash maps one way") << u"\u301C"_s << none;
    QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << none;
}

void TestTextCodec::encodeCp932()
{
    QFETCH(QString, text);
    QFETCH(std::optional<QByteArray>, expected);
    const std::optional<QByteArray> bytes = lumen::text::encodeCp932(text);
    QCOMPARE(bytes, expected);
    if (bytes)
        QCOMPARE(decodeCp932(*bytes), text);
}

void TestTextCodec::encodeForFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("Japanese in CP932") << u"ファイル\r\n"_s << hex("83 74 83 40 83 43 83 8B 0D 0A");
    QTest::newRow("tilde and circled one in CP932") << u"～①"_s << hex("81 60 87 40");
    QTest::newRow("Hangul in UTF-8") << u"ファイル한\r\n"_s
                                     << kBom + hex("E3 83 95 E3 82 A1 E3 82 A4 E3 83 AB "
                                                   "ED 95 9C 0D 0A");
    QTest::newRow("yen sign in UTF-8") << u"¥1"_s << kBom + hex("C2 A5 31");
    // In CP932 these would be C3 BD, which reads as UTF-8 "ý".
    QTest::newRow("kana that look like UTF-8") << u"ﾃｽ"_s << kBom + hex("EF BE 83 EF BD BD");
}

void TestTextCodec::encodeForFile()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, expected);
    const QByteArray bytes = lumen::text::encodeForFile(text);
    QCOMPARE(bytes, expected);
    QCOMPARE(decode(bytes), text);
}

void TestTextCodec::encodeField_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("CP932 cut inside a character") << u"ファイル"_s << 7 << hex("83 74 83 40 83 43");
    QTest::newRow("CP932 cut after ASCII") << u"aファ"_s << 2 << hex("61");
    QTest::newRow("CP932 first character too wide") << u"ファイル"_s << 1 << QByteArray();
    QTest::newRow("CP932 trail byte 5C") << u"表a"_s << 2 << hex("95 5C");
    QTest::newRow("UTF-8 cut inside a character") << u"aファ한"_s << 5 << hex("61 E3 83 95");
    QTest::newRow("UTF-8 first character too wide") << u"한a"_s << 2 << QByteArray();
    QTest::newRow("kana that look like UTF-8")
        << u"ﾃｽ.jpg"_s << 20 << hex("EF BE 83 EF BD BD 2E 6A 70 67");
}

void TestTextCodec::encodeField()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QFETCH(QByteArray, expected);
    const QByteArray field = lumen::text::encodeField(text, width);
    QCOMPARE(field, expected);
    QVERIFY(text.startsWith(decode(field)));
}

void TestTextCodec::splitLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("mixed") << u"a\r\nb\nc\rd"_s << QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    QTest::newRow("empty last line") << u"a\r\n\r\n"_s << QStringList{u"a"_s, QString()};
    QTest::newRow("LF then CR is two breaks") << u"\n\r"_s << QStringList{QString(), QString()};
    QTest::newRow("CR before CR LF") << u"a\r\r\nb"_s << QStringList{u"a"_s, QString(), u"b"_s};
    QTest::newRow("blanks and tabs kept") << u" a \t\r\n\t"_s << QStringList{u" a \t"_s, u"\t"_s};
}

void TestTextCodec::splitLines()
{
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    QCOMPARE(lumen::text::splitLines(text), expected);
}

QTEST_APPLESS_MAIN(TestTextCodec)
#include "tst_TextCodec.moc"
