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
    void readFile_data();
    void readFile();
    void interruptedWriteKeepsTheOldRecord();
    void unwritableFolderWritesNothing();
};

void TestDirecData::fieldsAtTheirOffsets_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<QByteArray>("expected");
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
        << 1445 << padded("C:\\\x83\x74\x83\x40\x83\x43\x83\x8B.lst", 100);
    QTest::newRow("ListAutoStart true") << 1545 << le16(-1);
}

void TestDirecData::fieldsAtTheirOffsets()
{
    DirecDataRecord r;
    r.PictureEditorPath = u"Z:\\usr\\bin\\gimp"_s;
    r.CommentFontName = u"MS UI Gothic"_s;
    r.PictBackColor = u"12632256"_s;
    r.AutoPageInterval = 3;
    r.MainWindowHeight = 32767;
    r.OriginalSizeOn = kTrue;
    r.HtmlDelFolderFlag = 1;
    r.ModPicTexts[1] = u"&HFF&"_s;
    r.PastCommentHeight = 4000;
    r.LastListFile = u"C:\\ファイル.lst"_s;
    r.ListAutoStart = kTrue;
    const QByteArray bytes = r.toBytes();
    QFETCH(QByteArray, expected);
    QCOMPARE(bytes.size(), 1547);
    QCOMPARE(bytes.mid(FETCH(int, offset), expected.size()), expected);
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
        << u"ＭＳ　Ｐゴシック体"_s
        << padded("\x82\x6C\x82\x72\x81\x40\x82\x6F\x83\x53\x83\x56\x83\x62", 15)
        << u"ＭＳ　Ｐゴシッ"_s;
    QTest::newRow("not CP932: UTF-8")
        << u"한글"_s << padded("\xED\x95\x9C\xEA\xB8\x80", 15) << u"한글"_s;
}

void TestDirecData::textsArePaddedAndCut()
{
    FixedString<15> field;
    field = FETCH(QString, text);
    QCOMPARE(field.bytes(), FETCH(QByteArray, bytes));
    QCOMPARE(FixedText(field), FETCH(QString, fixedText));
}

void TestDirecData::readFile_data()
{
    QTest::addColumn<QByteArray>("content"); // null: no file
    QTest::addColumn<int>("autoPageInterval");
    QTest::addColumn<QString>("commentFont");
    QByteArray full = DirecDataRecord().toBytes();
    full.replace(900, 5, "Arial");
    full[1095] = 7;
    QTest::newRow("missing: made, reads empty") << QByteArray() << 0 << QString();
    QTest::newRow("short: font only") << full.left(910) << 0 << u"Arial"_s;
    QTest::newRow("cut inside the integer") << full.left(1096) << 7 << u"Arial"_s;
    // A damaged record reads without harm and writes back byte for byte.
    QByteArray damaged(1547, '\0');
    QRandomGenerator random(42);
    for (char& c : damaged)
        c = char(random.bounded(256));
    damaged.replace(900, 15, full.mid(900, 15)).replace(1095, 2, full.mid(1095, 2));
    QTest::newRow("damaged") << damaged << 7 << u"Arial"_s;
    QTest::newRow("long: record 1 only") << full + QByteArray(500, 'x') << 7 << u"Arial"_s;
}

void TestDirecData::readFile()
{
    QFETCH(QByteArray, content);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("DirecData.ran"));
    QFile file(path);
    if (!content.isNull()) {
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
    }
    const DirecDataRecord record = readDirecData(path);
    QCOMPARE(int(record.AutoPageInterval), FETCH(int, autoPageInterval));
    QCOMPARE(FixedText(record.CommentFontName), FETCH(QString, commentFont));
    QCOMPARE(record.toBytes(), QByteArray(content + QByteArray(1547, 0)).left(1547));
    QVERIFY(file.exists());
    QCOMPARE(readAll(path), content); // reading never changes the file
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

void TestDirecData::unwritableFolderWritesNothing()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("missing-folder/DirecData.ran"));
    QVERIFY(!writeDirecData(path, DirecDataRecord()));
    QVERIFY(!QFile::exists(path));
}

QTEST_GUILESS_MAIN(TestDirecData)
#include "tst_DirecData.moc"
