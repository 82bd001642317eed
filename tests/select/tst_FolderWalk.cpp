// The folder walk: order, patterns, the word filter, folders left out, stop.
#include "select/FolderWalk.h"

#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QFile>
#include <QTest>

#include <memory>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

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

    std::unique_ptr<TestHome> home_;

private Q_SLOTS:
    // C:\top with two levels below it, a .git folder, a link back to the top,
    // a link to a folder beside it, and C:\other.
    void init()
    {
        home_ = std::make_unique<TestHome>();
        for (const char* file :
             {"top/b.jpg", "top/a.jpg", "top/README", "top/a/a1.jpg", "top/a/notes.txt",
              "top/a/deep/d.jpg", "top/B/b1.JPG", "top/B/zz/z.jpg", "top/.git/config.jpg",
              "top/.h.jpg", "other/o.jpg"})
            home_->writeFile(QString::fromLatin1(file), "x");
        QVERIFY(QFile::link(home_->native("top"), home_->native("top/a/loop")));
        QVERIFY(QFile::link(home_->native("other"), home_->native("top/outside")));
    }
    void cleanup() { home_.reset(); }

    void walk_data()
    {
        QTest::addColumn<QString>("top");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("includeMode");
        QTest::addColumn<QString>("target");
        QTest::addColumn<QStringList>("systemFolders");
        QTest::addColumn<int>("stopAtCall"); // 0: never stopped
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<int>("folders");

        const auto row = [](const char* tag, const QString& top, const QString& pattern,
                            const QStringList& files, int folders, const QString& word = {},
                            const QString& mode = "INC", const QString& target = "DIR",
                            const QStringList& systemFolders = {}, int stopAtCall = 0) {
            QTest::newRow(tag) << top << pattern << word << mode << target << systemFolders
                               << stopAtCall << files << folders;
        };
        // Top first, then level 1 (a, B), then level 2 (a\deep, B\zz): breadth
        // first, where a depth-first walk would give a\deep before B.
        row("whole tree", "C:\\top", "*.*", kWholeTree, 5);
        row("one pattern", "C:\\top", "*.jpg",
            underTop(
                {"a.jpg", "b.jpg", "a\\a1.jpg", "B\\b1.JPG", "a\\deep\\d.jpg", "B\\zz\\z.jpg"}),
            5);
        row("patterns parted by ;", "C:\\top", "*.TXT; readme;z*",
            underTop({"README", "a\\notes.txt", "B\\zz\\z.jpg"}), 5);
        row("drive root", "C:\\", "o.jpg;z.jpg", {"C:\\other\\o.jpg", "C:\\top\\B\\zz\\z.jpg"}, 7);
        row("INC name, word trimmed", "C:\\top", "*.*", underTop({"a\\a1.jpg"}), 5, "  A1 ", "INC",
            "FILE");
        row("INC name skips folders", "C:\\top", "*.*", {}, 5, "deep", "INC", "FILE");
        row("INC path", "C:\\top", "*.*", underTop({"a\\deep\\d.jpg"}), 5, "deep", "INC", "DIR");
        row("EXC name", "C:\\top", "*.*",
            underTop(
                {"a.jpg", "README", "a\\a1.jpg", "a\\notes.txt", "a\\deep\\d.jpg", "B\\zz\\z.jpg"}),
            5, "b", "EXC", "FILE");
        row("exc is INC", "C:\\top", "*.*", underTop({"B\\b1.JPG"}), 5, "b1", "exc", "FILE");
        row("blank word", "C:\\top", "*.*", kWholeTree, 5, "   ", "EXC", "FILE");
        // The top itself is walked as asked; below it, a and B\zz are not entered.
        row("system folders", "C:\\top", "*.*", underTop({"a.jpg", "b.jpg", "README", "B\\b1.JPG"}),
            2, {}, "INC", "DIR", {"top/a", "top/B/zz", "top"});
        row("missing top", "C:\\none", "*.*", {}, 0);
        row("top is a file", "C:\\top\\a.jpg", "*.*", {}, 0);
        row("missing drive", "Q:\\", "*.*", {}, 0);
        row("empty top", "", "*.*", {}, 0);
        // The stop is asked before each folder is listed and before each file is
        // taken: 1 top, 2-4 its files, 5 folder a, 6-7 its files, 8 folder B ...
        const QStringList topFiles = underTop({"a.jpg", "b.jpg", "README"});
        row("stop at once", "C:\\top", "*.*", {}, 0, {}, "INC", "DIR", {}, 1);
        row("stop before folder 2", "C:\\top", "*.*", topFiles, 1, {}, "INC", "DIR", {}, 5);
        row("stop in folder 2", "C:\\top", "*.*", topFiles + underTop({"a\\a1.jpg"}), 2, {}, "INC",
            "DIR", {}, 7);
    }
    void walk()
    {
        FolderWalkOptions options;
        options.pattern = FETCH(QString, pattern);
        options.word = FETCH(QString, word);
        options.includeMode = FETCH(QString, includeMode);
        options.target = FETCH(QString, target);
        for (const QString& folder : FETCH(QStringList, systemFolders))
            options.systemFolders << home_->native(folder);
        // Also leaves out .git, .h.jpg, top\a\loop (back to the top) and
        // top\outside (a link to C:\other).
        QFETCH(int, stopAtCall);
        int calls = 0;
        const FolderWalkResult result = walkFolderTree(
            home_->fs, FETCH(QString, top), options,
            {.stop = [&calls, stopAtCall] { return stopAtCall > 0 && ++calls >= stopAtCall; }});
        QCOMPARE(result.files, FETCH(QStringList, files));
        QCOMPARE(result.folderCount, FETCH(int, folders));
        QCOMPARE(result.stopped, stopAtCall > 0);
    }

    // Names that a list line can't hold as one main file are left out of a
    // walk; the rest of the same folder is listed.
    void oddNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("listed");
        QTest::newRow("companion words in the name") << "x.png @WITH=y.wav ENDWITH" << false;
        QTest::newRow("'@' and '=' apart") << "a=b@c.jpg" << false;
        QTest::newRow("line feed") << "two\nlines.jpg" << false;
        QTest::newRow("carriage return") << "cr\r.jpg" << false;
        QTest::newRow("'@' alone") << "photo@2x.png" << true;
        QTest::newRow("'=' alone") << "a=b.jpg" << true;
        QTest::newRow("blanks, commas, brackets") << "my (1), [b].jpg" << true;
        QTest::newRow("Japanese") << u"写真 一.jpg"_s << true;
    }
    void oddNames()
    {
        QFETCH(QString, name);
        home_->writeFile("odd/" + name, "x");
        home_->writeFile("odd/plain.jpg", "x");
        QStringList expected{"C:\\odd\\plain.jpg"};
        if (FETCH(bool, listed))
            expected.prepend("C:\\odd\\" + name);
        expected.sort(Qt::CaseInsensitive);
        QCOMPARE(walkFolderTree(home_->fs, "C:\\odd").files, expected);
    }

    // The selection window keeps the levels in Head.txt and Head2.txt:
    // while the walk runs they hold the folders of two levels, and both are
    // gone when it ends, stopped or not. A folder where they can't be
    // written loses nothing.
    void levelFiles_data()
    {
        QTest::addColumn<QString>("levelFolder");
        QTest::addColumn<int>("stopAfterFolders"); // 0: never stopped
        QTest::addColumn<int>("folders");
        QTest::newRow("whole walk") << "C:\\run" << 0 << 5;
        QTest::newRow("stopped on level 2") << "C:\\run" << 4 << 4;
        QTest::newRow("level files can't be written") << "C:\\run\\missing" << 0 << 5;
    }
    void levelFiles()
    {
        home_->makeFolder("run");
        FolderWalkOptions options;
        options.levelFolder = FETCH(QString, levelFolder);
        const int stopAfter = FETCH(int, stopAfterFolders);
        QStringList headsSeen; // Head.txt's lines when each folder was listed
        int listed = 0;
        FolderWalkHooks hooks;
        hooks.stop = [&] { return stopAfter > 0 && listed >= stopAfter; };
        hooks.folderListed = [&](const QString&, const QStringList&) {
            ++listed;
            headsSeen << QString::fromUtf8(home_->readFile("run/Head.txt")).trimmed();
        };
        const FolderWalkResult result = walkFolderTree(home_->fs, "C:\\top", options, hooks);
        QCOMPARE(result.folderCount, FETCH(int, folders));
        if (stopAfter == 0)
            QCOMPARE(result.files, kWholeTree);
        QVERIFY(!home_->exists("run/Head.txt"));
        QVERIFY(!home_->exists("run/Head2.txt"));
        if (options.levelFolder == "C:\\run") {
            // Level 1 (a, B) is read from Head.txt while its folders are listed.
            QCOMPARE(headsSeen.value(1), "C:\\top\\a\r\nC:\\top\\B");
            QCOMPARE(headsSeen.value(2), "C:\\top\\a\r\nC:\\top\\B");
        }
    }

    void listText()
    {
        FolderWalkOptions options;
        options.pattern = "*.txt;o.jpg";
        QCOMPARE(walkFolderTree(home_->fs, "C:\\", options).listText(),
                 QStringLiteral("C:\\other\\o.jpg\r\nC:\\top\\a\\notes.txt\r\n"));
        QCOMPARE(walkFolderTree(home_->fs, "C:\\none").listText(), QString());
    }
};

QTEST_GUILESS_MAIN(TestFolderWalk)
#include "tst_FolderWalk.moc"
