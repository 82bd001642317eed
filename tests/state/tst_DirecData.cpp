// The settings record: its bytes at their offsets, damaged files, safe writes.
#include "fileops/BasicText.h"
#include "platform/SafeFile.h"
#include "state/DirecData.h"

#include "support/Fetch.h"
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

using namespace lumen;
using namespace Qt::StringLiterals;

namespace {

QByteArray cp932(std::initializer_list<int> bytes)
{
    QByteArray out;
    for (int b : bytes)
        out.append(char(b));
    return out;
}

QByteArray padded(QByteArray bytes, int width, char pad = ' ')
{
    bytes.append(QByteArray(width - bytes.size(), pad));
    return bytes;
}

QByteArray le16(qint16 value)
{
    return QByteArray(1, char(value & 0xFF)) + QByteArray(1, char((value >> 8) & 0xFF));
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestDirecData : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fieldsAtTheirOffsets_data();
    void fieldsAtTheirOffsets();
    void textsArePaddedAndCut_data();
    void textsArePaddedAndCut();
    void anyBytesRoundTrip();
    void shortAndLongFiles_data();
    void shortAndLongFiles();
    void missingFileIsCreatedEmpty();
    void interruptedWriteKeepsTheOldRecord();
    void unwritableFolderKeepsTheOldRecord();
};

void TestDirecData::fieldsAtTheirOffsets_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("expected");

    // One record with a distinct value in each kind of field.
    QTest::newRow("PictureEditorPath") << 0 << padded("Z:\\usr\\bin\\gimp", 100);
    QTest::newRow("CommentFontName") << 900 << QByteArray("MS UI Gothic   ");
    QTest::newRow("PictBackColor") << 1080 << padded("12632256", 15);
    QTest::newRow("AutoPageInterval") << 1095 << le16(3);
    QTest::newRow("MainWindowHeight") << 1111 << le16(32767);
    QTest::newRow("OriginalSizeOn true") << 1113 << le16(-1);
    QTest::newRow("HtmlDelFolderFlag") << 1117 << le16(1);
    QTest::newRow("FormModPic text 2") << 1148 << padded("&HFF&", 15);
    QTest::newRow("FormPastComment height") << 1173 << le16(4000);
    QTest::newRow("LastListFile Shift-JIS")
        << 1445
        << padded(cp932({'C', ':', '\\', 0x83, 0x74, 0x83, 0x40, 0x83, 0x43, 0x83, 0x8B, '.', 'l',
                         's', 't'}),
                  100);
    QTest::newRow("ListAutoStart true") << 1545 << le16(-1);
}

void TestDirecData::fieldsAtTheirOffsets()
{
    QFETCH(int, offset);
    QFETCH(QByteArray, expected);
    DirecDataRecord r;
    r.PictureEditorPath = QStringLiteral("Z:\\usr\\bin\\gimp");
    r.CommentFontName = QStringLiteral("MS UI Gothic");
    r.PictBackColor = QStringLiteral("12632256");
    r.AutoPageInterval = 3;
    r.MainWindowHeight = 32767;
    r.OriginalSizeOn = kTrue;
    r.HtmlDelFolderFlag = 1;
    r.ModPicTexts[1] = QStringLiteral("&HFF&");
    r.PastCommentHeight = 4000;
    r.LastListFile = QStringLiteral("C:\\ファイル.lst");
    r.ListAutoStart = kTrue;

    const QByteArray bytes = r.toBytes();
    QCOMPARE(bytes.size(), 1547);
    QCOMPARE(bytes.mid(offset, expected.size()), expected);
    // And read back from the bytes, the whole record is the same.
    QCOMPARE(DirecDataRecord::fromBytes(bytes).toBytes(), bytes);
}

void TestDirecData::textsArePaddedAndCut_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("fixedText");
    QTest::newRow("long, cut") << u"IPAPGothic Extra"_s << QByteArray("IPAPGothic Extr")
                               << u"IPAPGothic Extr"_s;
    // 8 double-byte characters need 16 bytes: the last whole one is dropped.
    QTest::newRow("Japanese cut at a character")
        << "ＭＳ　Ｐゴシック体"
        << padded(cp932({0x82, 0x6C, 0x82, 0x72, 0x81, 0x40, 0x82, 0x6F, 0x83, 0x53, 0x83, 0x56,
                         0x83, 0x62}),
                  15)
        << "ＭＳ　Ｐゴシッ";
    QTest::newRow("not CP932: UTF-8") << "한글" << padded("\xED\x95\x9C\xEA\xB8\x80", 15) << "한글";
}

void TestDirecData::textsArePaddedAndCut()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    FixedString<15> field;
    field = text;
    QCOMPARE(field.bytes(), bytes);
    QCOMPARE(FixedText(field), FETCH(QString, fixedText));
}

void TestDirecData::anyBytesRoundTrip()
{
    // A damaged record reads without harm and writes back byte for byte.
    QByteArray garbage(1547, '\0');
    QRandomGenerator random(42);
    for (char& c : garbage)
        c = char(random.bounded(256));
    const DirecDataRecord record = DirecDataRecord::fromBytes(garbage);
    QCOMPARE(record.toBytes(), garbage);
    (void)FixedText(record.CommentFontName); // decodes without trouble
}

void TestDirecData::shortAndLongFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("autoPageInterval");
    QTest::addColumn<QString>("commentFont");
    QByteArray full = DirecDataRecord().toBytes();
    full.replace(900, 5, "Arial");
    full[1095] = 7;
    QTest::newRow("short: font only") << full.left(910) << 0 << "Arial";
    QTest::newRow("cut inside the integer") << full.left(1096) << 7 << "Arial";
    QTest::newRow("long: record 1 only") << full + QByteArray(500, 'x') << 7 << "Arial";
}

void TestDirecData::shortAndLongFiles()
{
    QFETCH(QByteArray, content);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("DirecData.ran"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    const DirecDataRecord record = readDirecData(path);
    QCOMPARE(int(record.AutoPageInterval), FETCH(int, autoPageInterval));
    QCOMPARE(FixedText(record.CommentFontName), FETCH(QString, commentFont));
    QCOMPARE(readAll(path), content); // reading never changes the file
}

void TestDirecData::missingFileIsCreatedEmpty()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("DirecData.ran"));
    const DirecDataRecord record = readDirecData(path);
    QVERIFY(QFile::exists(path));
    QCOMPARE(record.toBytes(), QByteArray(1547, '\0'));
}

void TestDirecData::interruptedWriteKeepsTheOldRecord()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("DirecData.ran"));
    DirecDataRecord old;
    old.CommentFontName = QStringLiteral("Old");
    QVERIFY(writeDirecData(path, old));

    // A child process writes a new record and dies before the write is done.
    const pid_t child = fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        lumen::testing::setBeforeCommitHook([] { _exit(3); });
        DirecDataRecord fresh;
        fresh.CommentFontName = QStringLiteral("New");
        writeDirecData(path, fresh);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    QVERIFY(WIFEXITED(status));
    QCOMPARE(WEXITSTATUS(status), 3);
    QCOMPARE(readAll(path), old.toBytes());
}

void TestDirecData::unwritableFolderKeepsTheOldRecord()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("missing-folder/DirecData.ran"));
    QVERIFY(!writeDirecData(path, DirecDataRecord()));
    QVERIFY(!QFile::exists(path));
}

QTEST_GUILESS_MAIN(TestDirecData)
#include "tst_DirecData.moc"
