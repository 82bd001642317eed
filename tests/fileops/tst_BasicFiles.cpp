// Existence tests and the file changes of the basic procedures, on a real
// temporary home folder as drive C:.
#include "support/BasicsFixture.h"

#include "support/Fetch.h"
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <QTest>

#include <sys/stat.h>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

class TestBasicFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fileExists_data();
    void fileExists();
    void fileExistsTrimsTheVariable();
    void folderExists_data();
    void folderExists();
    void fileSizeInMB_data();
    void fileSizeInMB();
    void copyByPair_data();
    void copyByPair();
    void copyAutoByDate();
    void wildcardsRefused_data();
    void wildcardsRefused();
    void moveByPair();
    void makeFolderTreeChangesFolder();
    void deleteFileForced();
    void deleteFileConfirmed_data();
    void deleteFileConfirmed();
    void deleteFolderTree();
    void deleteFolderTreeRefusesHome();
    void writeTextToFile_data();
    void writeTextToFile();
};

void TestBasicFiles::fileExists_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("exists");
    QTest::newRow("blanks and line end around") << "  C:\\pics\\a.jpg \r\n" << true;
    QTest::newRow("missing") << "C:\\pics\\b.jpg" << false;
    QTest::newRow("hidden name") << "C:\\pics\\.secret.jpg" << false;
    QTest::newRow("wildcard that matches") << "C:\\pics\\*.jpg" << true;
    QTest::newRow("any address") << "://" << true;
}

void TestBasicFiles::fileExists()
{
    BasicsFixture f;
    f.home.writeFile("pics/a.jpg", "x");
    f.home.writeFile("pics/.secret.jpg", "x");
    QFETCH(QString, path);
    QCOMPARE(f.basics.FileExists(std::as_const(path)), FETCH(bool, exists));
}

void TestBasicFiles::fileExistsTrimsTheVariable()
{
    BasicsFixture f;
    QString path = QStringLiteral(" C:\\x.jpg\r\n");
    f.basics.FileExists(path);
    QCOMPARE(path, QStringLiteral("C:\\x.jpg"));
}

void TestBasicFiles::folderExists_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("exists");
    QTest::newRow("no colon, though it exists") << "data" << false;
    QTest::newRow("data folder, even missing") << "C:\\Lumentas" << true;
    QTest::newRow("root") << "C:\\" << true;
}

void TestBasicFiles::folderExists()
{
    BasicsFixture f;
    f.home.writeFile("data/f.txt", "x");
    QDir(f.home.native("Lumentas")).removeRecursively();
    QFETCH(QString, path);
    QCOMPARE(f.basics.FolderExists(std::as_const(path)), FETCH(bool, exists));
}

void TestBasicFiles::fileSizeInMB_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("size");
    QTest::newRow("1,500,000 bytes") << u"C:\\big.bin"_s << u"1.500MB"_s;
    QTest::newRow("missing") << u"C:\\none.bin"_s << u"0.000MB"_s;
    QTest::newRow("no colon") << u"big.bin"_s << QString();
}

void TestBasicFiles::fileSizeInMB()
{
    BasicsFixture f;
    f.home.writeFile("big.bin", QByteArray(1500000, 'x'));
    QFETCH(QString, path);
    QCOMPARE(f.basics.FileSizeInMB(path), FETCH(QString, size));
}

void TestBasicFiles::copyByPair_data()
{
    QTest::addColumn<QString>("pair");
    QTest::addColumn<QString>("target"); // relative native path that must hold "new"
    QTest::addColumn<QStringList>("captions");
    const auto row = [](const char* tag, const QString& pair, const QString& target,
                        const QStringList& captions) {
        QTest::newRow(tag) << pair << target << captions;
    };
    row("into a new folder tree", "C:\\src.jpg,C:\\out\\deep\\dst.jpg", "out/deep/dst.jpg",
        QStringList{"ファイル複製中 0.000MB", ""});
    row("missing source: nothing but a refresh", "C:\\none.jpg,C:\\x.jpg", "", QStringList{""});
}

void TestBasicFiles::copyByPair()
{
    BasicsFixture f;
    f.home.writeFile("src.jpg", "new");
    f.home.writeFile("old.jpg", "old");
    QFETCH(QString, pair);
    QFETCH(QString, target);
    f.basics.CopyFileByPair(pair);
    if (!target.isEmpty()) {
        QCOMPARE(f.home.readFile(target), QByteArray("new"));
        QCOMPARE(f.home.readFile("src.jpg"), QByteArray("new"));
    } else {
        QVERIFY(!f.home.exists("x.jpg"));
    }
    QCOMPARE(f.host.captions, FETCH(QStringList, captions));
    QCOMPARE(f.host.refreshes, 1);
}

void TestBasicFiles::copyAutoByDate()
{
    BasicsFixture f;
    f.home.writeFile("shots/cat.pic.jpg", "meow");
    f.basics.CopyFileByPair(QStringLiteral("C:\\shots\\cat.pic.jpg, auto_by_date "));
    const QStringList made = QDir(f.home.native("Lumentas")).entryList(QDir::Files);
    QCOMPARE(made.size(), 1);
    QVERIFY2(QRegularExpression(QStringLiteral("^cat_\\d{4}(_\\d\\d){5}\\.pic\\.jpg$"))
                 .match(made.first())
                 .hasMatch(),
             qPrintable(made.first()));
}

void TestBasicFiles::wildcardsRefused_data()
{
    QTest::addColumn<bool>("move");
    QTest::addColumn<QString>("caption");
    QTest::newRow("move") << true << "[*] と [?] は使うことができません。";
    QTest::newRow("copy") << false << "[*]と[?]は使うことができません。";
}

void TestBasicFiles::wildcardsRefused()
{
    BasicsFixture f;
    f.home.writeFile("a.jpg", "x");
    QFETCH(bool, move);
    const QString pair = QStringLiteral("C:\\a.jpg,C:\\b?.jpg");
    move ? f.basics.MoveFileByPair(pair) : f.basics.CopyFileByPair(pair);
    QCOMPARE(f.host.captions.first(), FETCH(QString, caption));
    QCOMPARE(f.host.refreshes, 1);
    QVERIFY(f.home.exists("a.jpg"));
    QCOMPARE(QDir(f.home.path()).entryList(QDir::Files).size(), 1);
}

void TestBasicFiles::moveByPair()
{
    BasicsFixture f;
    f.home.writeFile("a.jpg", "x");
    f.basics.MoveFileByPair(QStringLiteral("C:\\a.jpg,C:\\new\\b.jpg"));
    QVERIFY(!f.home.exists("a.jpg"));
    QCOMPARE(f.home.readFile("new/b.jpg"), QByteArray("x"));
    // The folder was made and 100 ms passed, then the 10 ms readiness pause.
    QCOMPARE(f.clock.waits, (QList<qint64>{100, 10}));
}

void TestBasicFiles::makeFolderTreeChangesFolder()
{
    BasicsFixture f;
    QString path = QStringLiteral("C:\\one\\two\\three ");
    f.basics.MakeFolderTree(path);
    QCOMPARE(path, QStringLiteral("C:\\one\\two\\three"));
    QVERIFY(QFileInfo(f.home.native("one/two/three")).isDir());
    QCOMPARE(f.home.fs.curDir().toUpper(), QStringLiteral("C:\\ONE\\TWO\\THREE"));
}

void TestBasicFiles::deleteFileForced()
{
    BasicsFixture f;
    const QString file = f.home.writeFile("ro.txt", "x");
    QFile::setPermissions(file, QFile::ReadOwner);
    f.basics.DeleteFileForced(QStringLiteral("C:\\ro.txt"));
    QVERIFY(!f.home.exists("ro.txt"));
    QCOMPARE(f.host.captions, (QStringList{"ファイル削除中", ""}));
    QCOMPARE(f.host.refreshes, 1);
    f.basics.DeleteFileForced(QStringLiteral("C:\\ro.txt")); // gone: nothing at all
    QCOMPARE(f.host.captions.size(), 2);
}

void TestBasicFiles::deleteFileConfirmed_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("question"); // "" when none is asked
    QTest::addColumn<bool>("deleted");
    QTest::addColumn<int>("beeps");
    const QString readOnly =
        QStringLiteral("このファイルは読み出し専用です。それでも消去しますか？");
    const QString hidden = QStringLiteral("このファイルは隠しファイルです。それでも消去しますか？");
    QTest::newRow("plain file goes at once") << "a.txt" << false << kAnswerYes << "" << true << 0;
    QTest::newRow("read-only, No") << "a.txt" << true << kAnswerNo << readOnly << false << 0;
    QTest::newRow("hidden, Yes") << ".a.txt" << false << kAnswerYes << hidden << true << 21;
    QTest::newRow("hidden read-only (3) goes at once")
        << ".a.txt" << true << kAnswerNo << "" << true << 0;
}

void TestBasicFiles::deleteFileConfirmed()
{
    BasicsFixture f;
    QFETCH(QString, name);
    const QString file = f.home.writeFile(name, "x");
    if (FETCH(bool, readOnly))
        QFile::setPermissions(file, QFile::ReadOwner | QFile::ReadGroup);
    f.ui.answers.enqueue(FETCH(int, answer));
    f.basics.DeleteFileConfirmed(QStringLiteral("C:\\") + name);
    QFETCH(QString, question);
    QCOMPARE(f.ui.questions, question.isEmpty() ? QStringList() : QStringList{question});
    QCOMPARE(!QFileInfo::exists(file), FETCH(bool, deleted));
    QCOMPARE(f.ui.beeps, FETCH(int, beeps));
}

void TestBasicFiles::deleteFolderTree()
{
    BasicsFixture f;
    f.home.writeFile("site/a/b.html", "x");
    // Standing in the folder: the procedure steps out first.
    f.home.fs.chDir(QStringLiteral("C:\\site"));
    f.basics.DeleteFolderTree(QStringLiteral("C:\\site"));
    QVERIFY(!f.home.exists("site"));
    QCOMPARE(f.host.captions, (QStringList{"フォルダー削除中 ", ""}));
    QCOMPARE(f.home.fs.curDir(), QStringLiteral("C:\\"));
    QCOMPARE(f.clock.waits.mid(0, 3), (QList<qint64>{100, 300, 10}));
}

void TestBasicFiles::deleteFolderTreeRefusesHome()
{
    BasicsFixture f;
    f.home.writeFile("keep.txt", "x");
    f.basics.DeleteFolderTree(QStringLiteral("C:\\"));
    QVERIFY(f.home.exists("keep.txt"));
    QCOMPARE(f.host.captions.last(), QStringLiteral("Folder Not Deleated"));
}

void TestBasicFiles::writeTextToFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("Shift-JIS") << "ｺﾒﾝﾄ～" << QByteArray("\xBA\xD2\xDD\xC4\x81\x60\r\n");
    QTest::newRow("empty") << "" << QByteArray("\r\n");
}

void TestBasicFiles::writeTextToFile()
{
    BasicsFixture f;
    f.home.writeFile("out.txt", "an older and longer text");
    f.basics.WriteTextToFile(FETCH(QString, text), QStringLiteral("C:\\out.txt"));
    QCOMPARE(f.home.readFile("out.txt"), FETCH(QByteArray, bytes));
}

QTEST_MAIN(TestBasicFiles)
#include "tst_BasicFiles.moc"
