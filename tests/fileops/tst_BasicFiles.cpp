// The basic procedures on a real temporary home as drive C:: existence tests,
// file changes, waits, messages and pictures.
#include "support/BasicsFixture.h"

#include "support/Fetch.h"
#include "support/FileSizeLimit.h"
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>

#include <optional>

#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

// The files under the home, by relative path, sorted.
QStringList filesUnder(const TestHome& home)
{
    QStringList files;
    QDirIterator it(home.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files << QDir(home.path()).relativeFilePath(it.next());
    files.sort();
    return files;
}

} // namespace

class TestBasicFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void exists_data();
    void exists();
    void transfer_data();
    void transfer();
    void copyKeepsWhatItWasNotAskedToReplace_data();
    void copyKeepsWhatItWasNotAskedToReplace();
    void copyAutoByDate();
    void makeFolderTreeChangesFolder();
    void deleteFileForced();
    void deleteFileConfirmed_data();
    void deleteFileConfirmed();
    void deleteFolderTree();
    void writeTextToFile();
    void waitMilliseconds();
    void waitForFolderGoneAsksEveryHalfMinute_data();
    void waitForFolderGoneAsksEveryHalfMinute();
    void floatingMessage();
    void padToWidth();
    void movieWrapperPage();
    void browseForFolder();
    void picturesRoundTrip_data();
    void picturesRoundTrip();
};

void TestBasicFiles::exists_data()
{
    QTest::addColumn<bool>("folder"); // FolderExists, else FileExists
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("exists");
    QTest::newRow("file: blanks and line end around") << false << "  C:\\pics\\a.jpg \r\n" << true;
    QTest::newRow("file: missing") << false << "C:\\pics\\b.jpg" << false;
    QTest::newRow("file: hidden name") << false << "C:\\pics\\.secret.jpg" << false;
    QTest::newRow("file: wildcard that matches") << false << "C:\\pics\\*.jpg" << true;
    QTest::newRow("file: any address") << false << "://" << true;
    QTest::newRow("folder: blanks and line end around") << true << " C:\\pics \r\n" << true;
    QTest::newRow("folder: no colon, though it exists") << true << "pics" << false;
    QTest::newRow("folder: data folder, even missing") << true << "C:\\Lumentas" << true;
    QTest::newRow("folder: root") << true << "C:\\" << true;
}

void TestBasicFiles::exists()
{
    BasicsFixture f;
    f.home.writeFile("pics/a.jpg", "x");
    f.home.writeFile("pics/.secret.jpg", "x");
    QDir(f.home.native("Lumentas")).removeRecursively();
    QFETCH(bool, folder);
    QFETCH(QString, path);
    const auto test = [&](auto&& p) {
        return folder ? f.basics.FolderExists(p) : f.basics.FileExists(p);
    };
    QCOMPARE(test(std::as_const(path)), FETCH(bool, exists));
    QString variable = path; // the caller's variable comes back trimmed
    test(variable);
    QCOMPARE(variable, path.trimmed());
}

void TestBasicFiles::transfer_data()
{
    QTest::addColumn<bool>("move");
    QTest::addColumn<QString>("pair");
    QTest::addColumn<QStringList>("files"); // under the home afterwards, all like a.jpg
    QTest::addColumn<QStringList>("captions");
    QTest::addColumn<QList<qint64>>("waits");
    const auto row = [](const char* tag, bool move, const QString& pair, const QStringList& files,
                        const QStringList& captions, const QList<qint64>& waits = {}) {
        QTest::newRow(tag) << move << pair << files << captions << waits;
    };
    row("copy into a new folder tree", false, "C:\\a.jpg,C:\\out\\deep\\b.jpg",
        {"a.jpg", "out/deep/b.jpg"}, {"ファイル複製中 1.500MB", ""}, {10});
    row("copy, missing source", false, "C:\\none.jpg,C:\\x.jpg", {"a.jpg"}, {""});
    row("copy, wildcard", false, "C:\\a.jpg,C:\\b?.jpg", {"a.jpg"},
        {"[*]と[?]は使うことができません。"});
    row("move, wildcard", true, "C:\\a.jpg,C:\\b?.jpg", {"a.jpg"},
        {"[*] と [?] は使うことができません。"});
    // The folder is made and 100 ms pass, then the 10 ms readiness pause.
    row("move into a new folder", true, "C:\\a.jpg,C:\\new\\b.jpg", {"new/b.jpg"}, {}, {100, 10});
}

void TestBasicFiles::transfer()
{
    BasicsFixture f;
    const QByteArray bytes(1500000, 'x');
    f.home.writeFile("a.jpg", bytes);
    QFETCH(QString, pair);
    FETCH(bool, move) ? f.basics.MoveFileByPair(pair) : f.basics.CopyFileByPair(pair);
    const QStringList files = filesUnder(f.home);
    QCOMPARE(files, FETCH(QStringList, files));
    for (const QString& file : files)
        QCOMPARE(f.home.readFile(file), bytes);
    QCOMPARE(f.host.captions, FETCH(QStringList, captions));
    QCOMPARE(f.host.refreshes, 1);
    QCOMPARE(f.clock.waits, FETCH(QList<qint64>, waits));
}

void TestBasicFiles::copyKeepsWhatItWasNotAskedToReplace_data()
{
    QTest::addColumn<QString>("to");
    QTest::addColumn<bool>("diskFull");
    QTest::addColumn<QByteArray>("target"); // the bytes of old.jpg afterwards
    // The source a.jpg holds 4000 "n"; old.jpg held 10 "o" before.
    const QByteArray source(4000, 'n');
    const QByteArray old(10, 'o');
    QTest::newRow("onto itself, as written") << "C:\\pics\\a.jpg" << false << old;
    QTest::newRow("onto itself, in capitals") << "C:\\PICS\\A.JPG" << false << old;
    QTest::newRow("onto itself, through a link") << "C:\\link.jpg" << false << old;
    QTest::newRow("onto another file: replaced") << "C:\\pics\\old.jpg" << false << source;
    QTest::newRow("onto another file, disk full: kept") << "C:\\pics\\old.jpg" << true << old;
}

void TestBasicFiles::copyKeepsWhatItWasNotAskedToReplace()
{
    BasicsFixture f;
    const QByteArray source(4000, 'n');
    f.home.writeFile("pics/a.jpg", source);
    f.home.writeFile("pics/old.jpg", QByteArray(10, 'o'));
    QFile::link(f.home.native("pics/a.jpg"), f.home.native("link.jpg"));
    {
        std::optional<FileSizeLimit> full;
        if (FETCH(bool, diskFull))
            full.emplace(1000);
        f.basics.CopyFileByPair("C:\\pics\\a.jpg," + FETCH(QString, to));
    }
    QCOMPARE(f.home.readFile("pics/a.jpg"), source);
    QCOMPARE(f.home.readFile("pics/old.jpg"), FETCH(QByteArray, target));
    QCOMPARE(QDir(f.home.native("pics")).entryList(QDir::Files | QDir::Hidden),
             (QStringList{"a.jpg", "old.jpg"})); // nothing staged is left behind
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
    f.home.writeFile("keep.txt", "x");
    f.home.fs.chDir(QStringLiteral("C:\\site")); // standing in it: the procedure steps out first
    f.basics.DeleteFolderTree(QStringLiteral("C:\\site"));
    QVERIFY(!f.home.exists("site"));
    QCOMPARE(f.host.captions, (QStringList{"フォルダー削除中 ", ""}));
    QCOMPARE(f.home.fs.curDir(), QStringLiteral("C:\\"));
    QCOMPARE(f.clock.waits.mid(0, 3), (QList<qint64>{100, 300, 10}));

    f.basics.DeleteFolderTree(QStringLiteral("C:\\")); // never the home
    QVERIFY(f.home.exists("keep.txt"));
    QCOMPARE(f.host.captions.last(), QStringLiteral("Folder Not Deleated"));
}

void TestBasicFiles::writeTextToFile()
{
    BasicsFixture f;
    f.home.writeFile("out.txt", "an older and longer text");
    f.basics.WriteTextToFile(QStringLiteral("ｺﾒﾝﾄ～"), QStringLiteral("C:\\out.txt"));
    QCOMPARE(f.home.readFile("out.txt"), QByteArray("\xBA\xD2\xDD\xC4\x81\x60\r\n"));
    f.basics.WriteTextToFile(QString(), QStringLiteral("C:\\out.txt"));
    QCOMPARE(f.home.readFile("out.txt"), QByteArray("\r\n"));
}

void TestBasicFiles::waitMilliseconds()
{
    BasicsFixture f;
    f.basics.WaitMilliseconds(0.5); // a fraction rounds up to the next tick
    QCOMPARE(f.clock.now, qint64(1));
    f.basics.WaitMilliseconds(-5.0);
    QCOMPARE(f.clock.now, qint64(1));
}

void TestBasicFiles::waitForFolderGoneAsksEveryHalfMinute_data()
{
    QTest::addColumn<QList<int>>("answers");
    QTest::newRow("No at once") << QList<int>{kAnswerNo};
    QTest::newRow("Yes, then No") << QList<int>{kAnswerYes, kAnswerNo};
}

void TestBasicFiles::waitForFolderGoneAsksEveryHalfMinute()
{
    BasicsFixture f;
    f.home.makeFolder("stuck");
    QFETCH(QList<int>, answers);
    for (int answer : answers)
        f.ui.answers.enqueue(answer);
    f.basics.WaitForFolderGone(QStringLiteral("C:\\stuck"));
    const QString question = u"フォルダーの削除を待って30秒経過しました。継続しますか？"_s;
    QCOMPARE(f.ui.questions, QStringList(answers.size(), question));
    QCOMPARE(f.clock.now, qint64(30000) * answers.size());
}

void TestBasicFiles::floatingMessage()
{
    // Quiet in Auto Page, without counting; then the odd calls show, each for
    // 1000 ms, and the message is down again.
    BasicsFixture f;
    f.state.AutoPageOn = true;
    f.basics.ShowFloatingMessage(0, 0, QStringLiteral("auto"));
    f.state.AutoPageOn = false;
    for (int i = 1; i <= 5; ++i)
        f.basics.ShowFloatingMessage(100 * i, 50, QStringLiteral("hint %1").arg(i));
    QCOMPARE(f.ui.messages.size(), 3);
    QCOMPARE(f.ui.messages[0].text, QStringLiteral("hint 1"));
    QCOMPARE(f.ui.messages[1].text, QStringLiteral("hint 3"));
    QCOMPARE(f.ui.messages[1].left, 300);
    QCOMPARE(f.clock.waits, (QList<qint64>{1000, 1000, 1000}));
    QVERIFY(!f.ui.messageShown);
}

void TestBasicFiles::padToWidth()
{
    BasicsFixture f;
    QCOMPARE(f.basics.PadToWidth(QStringLiteral("abcde"), 5), QStringLiteral("abcde"));
    QVERIFY(f.ui.boxes.isEmpty());
    QCOMPARE(f.basics.PadToWidth(QStringLiteral("abcdef"), 5), QString());
    QCOMPARE(f.ui.boxes, QStringList{" Line text is bigger than you want"});
}

void TestBasicFiles::movieWrapperPage()
{
    BasicsFixture f;
    f.basics.MakeMovieWrapperHtml(QStringLiteral("C:\\movies\\trip.mov"),
                                  QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR\\TempHTML.HTML"));
    const QByteArray expected =
        "<HTML>\r\n<HEAD>\r\n<TITLE></TITLE>\r\n</HEAD>\r\n<BODY BGCOLOR=#000048>\r\n"
        "<BODY TOPMARGIN=0 MARGINHEIGHT=0 LEFTMARGIN=0 MARGINWIDTH=0 scroll=\"no\">\r\n"
        "<OBJECT CLASSID=\"clsid:02BF25D5-8C17-4B23-BC80-D3488ABDDC6B\" WIDTH=100% HEIGHT=100% "
        "CODEBASE=\"http://www.apple.com/qtactivex/qtplugin.lzh\" scale=\"tofit\">\r\n"
        "<PARAM NAME=\"BgColor\" VALUE=\"#000048\">\r\n"
        "<param name=\"SRC\" value=C:\\movies\\trip.mov>\r\n"
        "<PARAM name=\"AUTOPLAY\" VALUE=\"true\">\r\n<PARAM name=\"CONTROLLER\" VALUE=\"true\">\r\n"
        "</OBJECT>\r\n</BODY BGCOLOR>\r\n</BODY>\r\n</HTML>\r\n";
    QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/TempHTML.HTML"), expected);
}

void TestBasicFiles::browseForFolder()
{
    BasicsFixture f;
    f.home.makeFolder("chosen/inner");
    f.ui.folders.enqueue(f.home.native("chosen/inner/"));
    QString title = QStringLiteral("フォルダー");
    QCOMPARE(f.basics.BrowseForFolder(title), QStringLiteral("C:\\chosen\\inner"));
    QCOMPARE(f.home.fs.curDir().toUpper(), QStringLiteral("C:\\CHOSEN\\INNER"));
    QCOMPARE(f.basics.BrowseForFolder(title), QString()); // cancelled
}

void TestBasicFiles::picturesRoundTrip_data()
{
    QTest::addColumn<bool>("png");
    QTest::newRow("PNG") << true;
    QTest::newRow("JPEG") << false;
}

void TestBasicFiles::picturesRoundTrip()
{
    BasicsFixture f;
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(QColor(200, 40, 40));
    QFETCH(bool, png);
    const QString path = png ? QStringLiteral("C:\\p.png") : QStringLiteral("C:\\p.jpg");
    QVERIFY(png ? f.basics.SavePictureAsPNG(picture, path)
                : f.basics.SavePictureAsJPG(picture, path));
    QCOMPARE(f.clock.waits, QList<qint64>{10}); // the readiness pause
    const QImage back = f.basics.LoadPictureByPNGObject(path);
    QCOMPARE(back.size(), picture.size());
    QVERIFY(qAbs(back.pixelColor(20, 15).red() - 200) < 8);
    QVERIFY(f.basics.LoadPictureByPNGObject(QStringLiteral("C:\\none.png")).isNull());
}

QTEST_MAIN(TestBasicFiles)
#include "tst_BasicFiles.moc"
