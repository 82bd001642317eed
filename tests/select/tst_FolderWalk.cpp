// The folder walk: order, patterns, the word filter, folders left out, stop.
#include "select/FolderWalk.h"

#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QFile>
#include <QTest>

#include <memory>

using namespace lumen;
using namespace lumen::test;

namespace {

// C:\top with two levels below it, a .git folder, a link back to the top,
// a link to a folder beside it, and C:\other.
void makeTree(const TestHome& home)
{
    for (const char* file : {"top/b.jpg", "top/a.jpg", "top/README", "top/a/a1.jpg",
                             "top/a/notes.txt", "top/a/deep/d.jpg", "top/B/b1.JPG",
                             "top/B/zz/z.jpg", "top/.git/config.jpg", "top/.h.jpg", "other/o.jpg"})
        home.writeFile(QString::fromLatin1(file), "x");
    QVERIFY(QFile::link(home.native("top"), home.native("top/a/loop")));
    QVERIFY(QFile::link(home.native("other"), home.native("top/outside")));
}

// Paths under C:\top, written short.
QStringList underTop(const QStringList& names)
{
    QStringList paths;
    for (const QString& name : names)
        paths << QStringLiteral("C:\\top\\") + name;
    return paths;
}

const QStringList kWholeTree = underTop({"a.jpg", "b.jpg", "README", "a\\a1.jpg", "a\\notes.txt",
                                         "B\\b1.JPG", "a\\deep\\d.jpg", "B\\zz\\z.jpg"});

} // namespace

class TestFolderWalk : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestHome> home_;

private Q_SLOTS:
    void init()
    {
        home_ = std::make_unique<TestHome>();
        makeTree(*home_);
    }
    void cleanup() { home_.reset(); }

    void walk_data();
    void walk();
    void systemFoldersNotEntered();
    void missingTop();
    void stop_data();
    void stop();
    void listText();
};

void TestFolderWalk::walk_data()
{
    QTest::addColumn<QString>("top");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("includeMode");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("folders");

    const auto row = [](const char* tag, const QString& top, const QString& pattern,
                        const QString& word, const QString& includeMode, const QString& target,
                        const QStringList& files, int folders) {
        QTest::newRow(tag) << top << pattern << word << includeMode << target << files << folders;
    };
    // Top first, then level 1 (a, B), then level 2 (a\deep, B\zz): breadth
    // first, where a depth-first walk would give a\deep before B.
    row("whole tree, level by level", "C:\\top", "*.*", "", "INC", "DIR", kWholeTree, 5);
    row("one pattern", "C:\\top", "*.jpg", "", "INC", "DIR",
        underTop({"a.jpg", "b.jpg", "a\\a1.jpg", "B\\b1.JPG", "a\\deep\\d.jpg", "B\\zz\\z.jpg"}),
        5);
    row("patterns parted by ;", "C:\\top", "*.TXT; readme;z*", "", "INC", "DIR",
        underTop({"README", "a\\notes.txt", "B\\zz\\z.jpg"}), 5);
    row("from the drive root", "C:\\", "o.jpg;z.jpg", "", "INC", "DIR",
        QStringList{"C:\\other\\o.jpg", "C:\\top\\B\\zz\\z.jpg"}, 7);
    row("INC, word trimmed, name only", "C:\\top", "*.*", "  A1 ", "INC", "FILE",
        underTop({"a\\a1.jpg"}), 5);
    row("INC, name only ignores the folders", "C:\\top", "*.*", "deep", "INC", "FILE",
        QStringList{}, 5);
    row("EXC, name only", "C:\\top", "*.*", "b", "EXC", "FILE",
        underTop(
            {"a.jpg", "README", "a\\a1.jpg", "a\\notes.txt", "a\\deep\\d.jpg", "B\\zz\\z.jpg"}),
        5);
    row("any mode but EXC includes", "C:\\top", "*.*", "b1", "exc", "FILE", underTop({"B\\b1.JPG"}),
        5);
    row("blank word: no filter", "C:\\top", "*.*", "   ", "EXC", "FILE", kWholeTree, 5);
}

void TestFolderWalk::walk()
{
    FolderWalkOptions options;
    options.pattern = FETCH(QString, pattern);
    options.word = FETCH(QString, word);
    options.includeMode = FETCH(QString, includeMode);
    options.target = FETCH(QString, target);
    // Also leaves out .git, .h.jpg, top\a\loop (back to the top) and
    // top\outside (a link to C:\other).
    const FolderWalkResult result = walkFolderTree(home_->fs, FETCH(QString, top), options);
    QCOMPARE(result.files, FETCH(QStringList, files));
    QCOMPARE(result.folderCount, FETCH(int, folders));
    QVERIFY(!result.stopped);
}

void TestFolderWalk::systemFoldersNotEntered()
{
    FolderWalkOptions options;
    options.systemFolders = {home_->native("top/a"), home_->native("top/B/zz"),
                             home_->native("top")};
    // The top itself is walked as asked; below it, a and B\zz are not entered.
    const FolderWalkResult result = walkFolderTree(home_->fs, "C:\\top", options);
    QCOMPARE(result.files, underTop({"a.jpg", "b.jpg", "README", "B\\b1.JPG"}));
    QCOMPARE(result.folderCount, 2);
}

void TestFolderWalk::missingTop()
{
    for (const QString top : {"C:\\none", "C:\\top\\a.jpg", "Q:\\", ""}) {
        const FolderWalkResult result = walkFolderTree(home_->fs, top);
        QVERIFY2(result.files.isEmpty(), qPrintable(top));
        QCOMPARE(result.folderCount, 0);
    }
}

void TestFolderWalk::stop_data()
{
    // The stop is asked before each folder is listed and before each file is
    // taken: 1 top, 2-4 its files, 5 folder a, 6-7 its files, 8 folder B ...
    QTest::addColumn<int>("stopAtCall");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<int>("folders");
    QTest::newRow("at once") << 1 << QStringList{} << 0;
    QTest::newRow("before the second folder") << 5 << underTop({"a.jpg", "b.jpg", "README"}) << 1;
    QTest::newRow("inside the second folder")
        << 7 << underTop({"a.jpg", "b.jpg", "README", "a\\a1.jpg"}) << 2;
}

void TestFolderWalk::stop()
{
    QFETCH(int, stopAtCall);
    int calls = 0;
    const FolderWalkResult result = walkFolderTree(
        home_->fs, "C:\\top", {}, [&calls, stopAtCall] { return ++calls >= stopAtCall; });
    QCOMPARE(result.files, FETCH(QStringList, files));
    QCOMPARE(result.folderCount, FETCH(int, folders));
    QVERIFY(result.stopped);
}

void TestFolderWalk::listText()
{
    FolderWalkOptions options;
    options.pattern = "*.txt;o.jpg";
    QCOMPARE(walkFolderTree(home_->fs, "C:\\", options).listText(),
             QStringLiteral("C:\\other\\o.jpg\r\nC:\\top\\a\\notes.txt\r\n"));
    QCOMPARE(walkFolderTree(home_->fs, "C:\\none").listText(), QString());
}

QTEST_GUILESS_MAIN(TestFolderWalk)
#include "tst_FolderWalk.moc"
