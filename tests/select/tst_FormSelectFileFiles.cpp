// FormSelectFile and its files: a list saved and opened again, the refusals
// and the start folder of the dialogs, a list that can't be written, the
// folder lock and its questions, and files dropped on the window and on
// CommandSaveFile, built into TempList.lst line by line.
#include "SelectFixture.h"

#include "list/CommandWords.h"
#include "platform/TextCodec.h"
#include "support/Fetch.h"

#include <QCheckBox>
#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kNothingChosen = u"対象となるファイルが選択されていません"_s;

// A folder that no one can write into, root included (the immutable flag
// where the file system has it); false when it can't be made so.
bool lockFolder(const QString& native, bool on)
{
    QFile::setPermissions(native, on ? QFile::ReadOwner | QFile::ExeOwner
                                     : QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const int fd = ::open(QFile::encodeName(native).constData(), O_RDONLY | O_DIRECTORY);
    if (fd >= 0) {
        int flags = 0;
        if (::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0) {
            flags = on ? flags | FS_IMMUTABLE_FL : flags & ~FS_IMMUTABLE_FL;
            ::ioctl(fd, FS_IOC_SETFLAGS, &flags);
        }
        ::close(fd);
    }
    QFile probe(native + u"/probe"_s);
    const bool writable = probe.open(QIODevice::WriteOnly);
    probe.remove();
    return on ? !writable : writable;
}

QMimeData* filesOf(const SelectFixture& f, const QStringList& names)
{
    auto* data = new QMimeData;
    QList<QUrl> urls;
    for (const QString& name : names)
        urls << QUrl::fromLocalFile(f.home.native(name));
    data->setUrls(urls);
    return data;
}

} // namespace

class TestFormSelectFileFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void saveThenOpen_data();
    void saveThenOpen();
    void saveRefusals();
    void listThatCantBeWritten();
    void dialogStartFolder_data();
    void dialogStartFolder();
    void tooManyLines_data();
    void tooManyLines();
    void folderLock_data();
    void folderLock();
    void drops_data();
    void drops();
    void dropOnSaveStartsTheShow_data();
    void dropOnSaveStartsTheShow();
};

void TestFormSelectFileFiles::saveThenOpen_data()
{
    QTest::addColumn<bool>("addToList");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("shown"); // what the main window was asked after the save
    QTest::addColumn<QString>("language");
    const QStringList shown{"show main", "clear []", "open C:\\lists\\new.lst"};
    QTest::newRow("saved and shown")
        << true << underPics({"wide.jpg", "tall.png"}) << shown << "editor: user";
    QTest::newRow("saved only") << false << underPics({"wide.jpg"}) << QStringList()
                                << "editor: user";
    QTest::newRow("English item words")
        << true << u"C:\\pics\\wide.jpg @WITH=C:\\pics\\s.wav ENDWITH\r\n"_s << shown
        << "editor: English";
}

void TestFormSelectFileFiles::saveThenOpen()
{
    SelectFixture f;
    f.home.makeFolder("lists");
    f.home.writeFile(kRun + "CommandList.txt",
                     text::encodeForFile(defaultCommandListLines().join(u"\r\n"_s) + u"\r\n"_s));
    f.select->CheckAddToList->setChecked(FETCH(bool, addToList));
    QFETCH(QString, text);
    f.select->Text1->setText(text);
    f.ui.fileNames.enqueue(f.home.native("lists/new.lst"));
    f.click("CommandSaveFile");
    // Written whole, with the line end that a print adds.
    QCOMPARE(f.home.readFile("lists/new.lst"), (text + u"\r\n"_s).toLatin1());
    QCOMPARE(f.calls, FETCH(QStringList, shown));
    QCOMPARE(f.home.readFile(kRun + "AccessPass.dat"), QByteArray("C:\\lists\r\n"));

    f.calls.clear();
    f.click("CommandClear");
    QCOMPARE(f.text(), QString());
    f.ui.fileNames.enqueue(f.home.native("lists/new.lst"));
    f.click("CommandOpenf");
    QCOMPARE(f.text(), text);
    QCOMPARE(f.home.readFile(kRun + "TempList.Lst"), text.toLatin1());
    QCOMPARE(f.calls, QStringList{FETCH(QString, language)});
    QCOMPARE(f.state.StartFileName, "C:\\lists\\new.lst");
    QCOMPARE(f.state.EditArray.rows(), int(text.count(u'\n')) + 10);
    // The item words follow the list's language: English, or the user's.
    const bool english = FETCH(QString, language) == u"editor: English";
    QCOMPARE(f.state.CommandWord == englishCommandWords(), english);
    QCOMPARE(f.select->Text1->selStart(), 0);
}

void TestFormSelectFileFiles::saveRefusals()
{
    SelectFixture f;
    f.select->Text1->setText(u"   "_s);
    f.click("CommandSaveFile");
    QCOMPARE(f.ui.boxes, QStringList{kNothingChosen});
    QVERIFY(f.ui.dialogStarts.isEmpty());

    // The dialog's cancel leaves: nothing written, nothing shown.
    f.select->Text1->setText(underPics({"wide.jpg"}));
    f.click("CommandSaveFile");
    QCOMPARE(f.ui.dialogStarts.size(), 1);
    QCOMPARE(f.ui.dialogFilters, QStringList{"(*.lst)|*.lst|(*.*)|*.*"});
    QVERIFY(f.calls.isEmpty());
    QVERIFY(!f.home.exists(kRun + "AccessLockDir.dat"));
}

void TestFormSelectFileFiles::listThatCantBeWritten()
{
    SelectFixture f;
    f.home.writeFile("locked/old.lst", "C:\\pics\\old.jpg\r\n");
    if (!lockFolder(f.home.native("locked"), true))
        QSKIP("no way to make a folder unwritable here");
    f.select->Text1->setText(underPics({"wide.jpg"}));
    f.ui.fileNames.enqueue(f.home.native("locked/old.lst"));
    f.click("CommandSaveFile");
    const QByteArray old = f.home.readFile("locked/old.lst");
    const QStringList entries =
        QDir(f.home.native("locked"))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    QVERIFY(lockFolder(f.home.native("locked"), false));
    QCOMPARE(old, QByteArray("C:\\pics\\old.jpg\r\n"));
    QCOMPARE(entries, QStringList{"old.lst"}); // no staged file left
    QCOMPARE(f.ui.boxes, QStringList{u"ファイルに保存できませんでした。\r\nC:\\locked\\old.lst"_s});
    QVERIFY(f.calls.isEmpty()); // the old list isn't shown as if it were new
}

void TestFormSelectFileFiles::dialogStartFolder_data()
{
    QTest::addColumn<QString>("lastList");
    QTest::addColumn<bool>("locked");
    QTest::addColumn<QString>("start"); // under the home
    QTest::newRow("the last list's folder") << "C:\\shows\\last.lst" << true << "shows";
    QTest::newRow("the locked folder") << "C:\\gone\\last.lst" << true << "locked";
    QTest::newRow("the last folder") << "" << false << "pics";
}

void TestFormSelectFileFiles::dialogStartFolder()
{
    SelectFixture f;
    f.home.writeFile("shows/last.lst", "x");
    f.home.makeFolder("locked");
    f.state.DirecData.LastListFile = FETCH(QString, lastList);
    f.state.AccessLockDir = "C:\\locked";
    f.select->CheckDirectryLock->setChecked(FETCH(bool, locked));
    f.click("CommandOpenf");
    QCOMPARE(QDir::cleanPath(f.ui.dialogStarts.value(0)),
             QDir::cleanPath(f.home.native(FETCH(QString, start))));
}

void TestFormSelectFileFiles::tooManyLines_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<bool>("refused");
    QTest::newRow("32763 lines are taken") << 32763 << false;
    QTest::newRow("32764 are refused") << 32764 << true;
}

void TestFormSelectFileFiles::tooManyLines()
{
    SelectFixture f;
    QFETCH(int, lines);
    QByteArray list;
    for (int i = 0; i < lines; ++i)
        list += "C:\\p\\" + QByteArray::number(i) + ".jpg\r\n";
    f.home.writeFile("big.lst", list);
    f.ui.fileNames.enqueue(f.home.native("big.lst"));
    f.click("CommandOpenf");
    if (FETCH(bool, refused)) {
        QCOMPARE(f.ui.boxes, QStringList{u"選択したファイル数は 32764個で、32763個を超えているため"
                                         u"正常に機能しません。"_s});
        QCOMPARE(f.text(), u"C:\\old.jpg\r\n"_s);
        QVERIFY(f.calls.isEmpty());
    } else {
        QVERIFY(f.ui.boxes.isEmpty());
        QCOMPARE(f.text().size(), list.size());
    }
}

void TestFormSelectFileFiles::folderLock_data()
{
    QTest::addColumn<bool>("boxOn");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("question");
    QTest::addColumn<QByteArray>("file"); // AccessLockDir.dat afterwards
    const QString first = u"今選択されているディレクトリーを優先して開くようにしますか？"_s;
    const QString again = u"今のディレクトリーは C:\\old です。"_s;
    QTest::newRow("unlocked, Yes")
        << false << kAnswerYes << first << QByteArray("C:\\pics\r\n1\r\n");
    QTest::newRow("unlocked, No") << false << kAnswerNo << first << QByteArray("C:\\old\r\n0\r\n");
    QTest::newRow("locked, Yes") << true << kAnswerYes << again << QByteArray("C:\\pics\r\n1\r\n");
    QTest::newRow("locked, No") << true << kAnswerNo << again << QByteArray("C:\\old\r\n1\r\n");
}

void TestFormSelectFileFiles::folderLock()
{
    SelectFixture f;
    QFETCH(bool, boxOn);
    f.home.writeFile(kRun + "AccessLockDir.dat", boxOn ? "C:\\old\r\n1\r\n" : "C:\\old\r\n0\r\n");
    f.select->unload();
    f.select->showForm();
    QCOMPARE(f.select->CheckDirectryLock->isChecked(), boxOn);
    // A locked folder is where the dialogs and the boxes begin.
    QCOMPARE(f.state.AccessPassDir, boxOn ? "C:\\old" : "C:\\pics");
    f.ui.answers.enqueue(FETCH(int, answer));
    f.click("CommandDirectrySet");
    QCOMPARE(f.ui.questions, QStringList{FETCH(QString, question)});
    QCOMPARE(f.home.readFile(kRun + "AccessLockDir.dat"), FETCH(QByteArray, file));
    const bool yes = FETCH(int, answer) == kAnswerYes;
    QCOMPARE(f.select->CheckDirectryLock->isChecked(), boxOn || yes);
    QCOMPARE(f.state.AccessLockDir, yes ? "C:\\pics" : "C:\\old");
}

void TestFormSelectFileFiles::drops_data()
{
    QTest::addColumn<QStringList>("names"); // under the home
    QTest::addColumn<QString>("vanishing"); // a dropped folder removed during the first walk
    QTest::addColumn<QString>("list");
    QTest::newRow("files, in order") << QStringList{"pics/wide.jpg", "pics/notes.txt"} << ""
                                     << underPics({"wide.jpg", "notes.txt"});
    QTest::newRow("a folder: its tree, top first") << QStringList{"pics"} << "" << kTree;
    QTest::newRow("a list: its lines with ':' and '.'")
        << QStringList{"shows/s.lst", "pics/tall.png"} << ""
        << u"C:\\p\\1.jpg\r\n  C:\\p\\2.jpg @DELAY=3\r\n"_s + underPics({"tall.png"});
    QTest::newRow("a list whose first line has no ':'")
        << QStringList{"shows/words.lst"} << "" << u"C:\\shows\\words.lst\r\n"_s;
    QTest::newRow("a folder gone during the walk") << QStringList{"pics", "later", "pics/wide.jpg"}
                                                   << "later" << kTree + underPics({"wide.jpg"});
}

void TestFormSelectFileFiles::drops()
{
    SelectFixture f;
    f.home.writeFile("shows/s.lst", "C:\\p\\1.jpg\r\nno colon.jpg\r\n  C:\\p\\2.jpg @DELAY=3\r\n");
    f.home.writeFile("shows/words.lst", "just words.\r\nC:\\x.jpg\r\n");
    f.home.writeFile("later/l.jpg", "x");
    const QString vanishing = FETCH(QString, vanishing);
    f.clock.onDoEvents = [&] {
        if (!vanishing.isEmpty())
            QDir(f.home.native(vanishing)).removeRecursively();
    };
    f.clock.tickStep = 20;
    // Dropped as the file manager drops: onto the window, answered at once,
    // the list built on the next turn of the event loop.
    std::unique_ptr<QMimeData> data(filesOf(f, FETCH(QStringList, names)));
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(f.select, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(f.select, &drop);
    QVERIFY(drop.isAccepted());
    QVERIFY(!f.home.exists("Lumentas/TempList.lst"));
    QTRY_VERIFY(f.home.exists("Lumentas/TempList.lst"));
    const QByteArray list = f.home.readFile("Lumentas/TempList.lst");
    QCOMPARE(QString::fromLatin1(list), FETCH(QString, list));
    QCOMPARE(f.host.stopEvents, (QStringList{"show", "unload"}));
    QVERIFY(f.calls.isEmpty());
}

void TestFormSelectFileFiles::dropOnSaveStartsTheShow_data()
{
    QTest::addColumn<bool>("quick");
    QTest::addColumn<QStringList>("calls");
    QTest::newRow("quick: shown on the whole screen")
        << true << QStringList{"show main", "open C:\\Lumentas\\TempList.lst", "full"};
    QTest::newRow("otherwise only built") << false << QStringList();
}

void TestFormSelectFileFiles::dropOnSaveStartsTheShow()
{
    SelectFixture f;
    f.quick = FETCH(bool, quick);
    std::unique_ptr<QMimeData> data(filesOf(f, {"pics/tall.png"}));
    f.select->CommandSaveFile_Drop(data.get());
    QCOMPARE(f.home.readFile("Lumentas/TempList.lst"), QByteArray("C:\\pics\\tall.png\r\n"));
    QCOMPARE(f.calls, FETCH(QStringList, calls));
}

QTEST_MAIN(TestFormSelectFileFiles)
#include "tst_FormSelectFileFiles.moc"
