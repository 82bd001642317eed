#include "platform/Launcher.h"

#include "platform/FileSystem.h"
#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QFile>
#include <QTest>

#include <memory>

using lumen::ProcessLauncher;
using lumen::test::TestHome;

namespace {

const QFile::Permissions kExecutable = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

// Writes the marker file whole: the working folder, then each argument on a line.
const QByteArray kMarkerScript =
    "#!/bin/sh\n"
    "out=\"$1\"; shift\n"
    "{ pwd; printf '%s\\n' \"$@\"; } > \"$out.part\" && mv \"$out.part\" \"$out\"\n";

} // namespace

class TestLauncher : public QObject {
    Q_OBJECT

private:
    std::unique_ptr<TestHome> home_;

    void makeExecutable(const QString& relative, const QByteArray& bytes = "#!/bin/sh\n")
    {
        QVERIFY(QFile::setPermissions(home_->writeFile(relative, bytes), kExecutable));
    }
    // The file a started program writes, with "~" for the home; empty: none comes.
    void expectWritten(const QString& relative, QByteArray bytes)
    {
        if (bytes.isEmpty()) {
            QTest::qWait(200);
            QVERIFY(!home_->exists(relative));
            return;
        }
        QTRY_VERIFY_WITH_TIMEOUT(home_->exists(relative), 10000);
        QCOMPARE(home_->readFile(relative), bytes.replace('~', QFile::encodeName(home_->path())));
    }

private Q_SLOTS:
    void init() { home_ = std::make_unique<TestHome>(); }
    void cleanup() { home_.reset(); }

    void splitCommandLine_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<QStringList>("argv"); // "~/" is the home; none: no program found
        const auto row = [](const char* name, const char* commandLine, const QStringList& argv) {
            QTest::newRow(name) << QString(commandLine) << argv;
        };
        row("blank in the program's folder", "C:\\My Tool\\t C:\\a b.jpg",
            {"~/My Tool/t", "~/a", "b.jpg"});
        row("shortest prefix wins", "C:\\ed it C:\\f.txt", {"~/ed", "it", "~/f.txt"});
        row("longer name when the short one is no program", "C:\\view it C:\\f.txt",
            {"~/view it", "~/f.txt"});
        row("semicolon stays text", "C:\\t C:\\a.jpg;rm -rf ~", {"~/t", "~/a.jpg;rm", "-rf", "~"});
        row("case and trailing blank", "c:\\mplayer2.exe  C:\\PICS\\A.JPG",
            {"~/MPLAYER2.EXE", "~/pics/a.jpg"});
        row("unknown drive stays as written", "C:\\t Q:\\x", {"~/t", "Q:\\x"});
        row("folder is no program", "C:\\My Tool x", {});
        row("file without exec bit", "C:\\plain.txt a", {});
        row("missing program", "C:\\none a b", {});
    }
    void splitCommandLine()
    {
        for (const char* name : {"My Tool/t", "t", "ed", "ed it", "view it", "MPLAYER2.EXE"})
            makeExecutable(QString::fromUtf8(name));
        home_->writeFile("plain.txt", "text");
        home_->writeFile("pics/a.jpg", "jpg");
        QVERIFY(QFile::setPermissions(home_->native("My Tool"),
                                      kExecutable | QFile::ExeGroup | QFile::ExeOther));

        QStringList expected = FETCH(QStringList, argv);
        for (QString& word : expected) {
            if (word.startsWith(u"~/"))
                word.replace(0, 1, home_->path());
        }
        const auto result = lumen::splitCommandLine(FETCH(QString, commandLine), home_->fs);
        QCOMPARE(result.has_value(), !expected.isEmpty());
        if (result)
            QCOMPARE(*result, expected);
    }

    void shell_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<bool>("started");
        QTest::addColumn<QByteArray>("marker"); // the working folder, then the arguments
        QTest::newRow("detached, in the current folder")
            << "C:\\my tool\\MARK C:\\marker.txt a;b C:\\Work\\x.jpg" << true
            << QByteArray("~/work\na;b\n~/work/x.jpg\n");
        QTest::newRow("empty") << "" << false << QByteArray();
    }
    void shell()
    {
        makeExecutable("My Tool/mark", kMarkerScript);
        home_->makeFolder("work");
        QVERIFY(home_->fs.chDir("C:\\WORK"));
        ProcessLauncher launcher(home_->fs);
        QCOMPARE(launcher.shell(FETCH(QString, commandLine)), FETCH(bool, started));
        expectWritten("marker.txt", FETCH(QByteArray, marker));
    }

    void shellExecuteOpen_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<bool>("openerOnPath");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QByteArray>("opened");
        QTest::newRow("file") << "C:\\DOCS\\HELP.CHM" << true << 42
                              << QByteArray("~/docs/help.chm");
        QTest::newRow("missing file") << "C:\\docs\\none.chm" << true << 2 << QByteArray();
        QTest::newRow("no opener") << "C:\\docs\\help.chm" << false << 2 << QByteArray();
    }
    void shellExecuteOpen()
    {
        home_->writeFile("docs/help.chm", "chm");
        // A stand-in opener that records what it was given.
        makeExecutable("bin/xdg-open", "#!/bin/sh\nprintf '%s' \"$1\" > \"$0.part\" && "
                                       "/bin/mv \"$0.part\" \"$0.log\"\n");
        home_->makeFolder("empty");

        const QByteArray savedPath = qgetenv("PATH");
        qputenv("PATH",
                QFile::encodeName(home_->native(FETCH(bool, openerOnPath) ? "bin" : "empty")));
        const int answer = ProcessLauncher(home_->fs).shellExecuteOpen(FETCH(QString, path));
        qputenv("PATH", savedPath);
        QCOMPARE(answer, FETCH(int, answer));
        expectWritten("bin/xdg-open.log", FETCH(QByteArray, opened));
    }
};

QTEST_GUILESS_MAIN(TestLauncher)
#include "tst_Launcher.moc"
