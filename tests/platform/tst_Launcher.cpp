#include "platform/Launcher.h"

#include "platform/FileSystem.h"
#include "support/TestHome.h"

#include <QFile>
#include <QTest>

#include <memory>

using lumen::ProcessLauncher;
using lumen::splitCommandLine;
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

    QString makeExecutable(const QString& relative, const QByteArray& bytes = "#!/bin/sh\n")
    {
        const QString file = home_->writeFile(relative, bytes);
        QFile::setPermissions(file, kExecutable);
        return file;
    }
    QString expand(QString text) const
    {
        if (text.startsWith(u'~'))
            text.replace(0, 1, home_->path());
        return text;
    }

private Q_SLOTS:
    void init() { home_ = std::make_unique<TestHome>(); }
    void cleanup() { home_.reset(); }

    void splitCommandLine_data();
    void splitCommandLine();
    void shellStartsDetached();
    void shellWithoutProgram();
    void shellExecuteOpen_data();
    void shellExecuteOpen();
};

void TestLauncher::splitCommandLine_data()
{
    QTest::addColumn<QString>("commandLine");
    QTest::addColumn<bool>("found");
    QTest::addColumn<QStringList>("argv"); // "~" is the home

    QTest::newRow("blank in the program's folder")
        << "C:\\My Tool\\t C:\\a b.jpg" << true << QStringList{"~/My Tool/t", "~/a", "b.jpg"};
    QTest::newRow("shortest prefix wins")
        << "C:\\ed it C:\\f.txt" << true << QStringList{"~/ed", "it", "~/f.txt"};
    QTest::newRow("longer name when the short one is no program")
        << "C:\\view it C:\\f.txt" << true << QStringList{"~/view it", "~/f.txt"};
    QTest::newRow("semicolon stays text")
        << "C:\\t C:\\a.jpg;rm -rf ~" << true << QStringList{"~/t", "~/a.jpg;rm", "-rf", "~"};
    QTest::newRow("case and trailing blank") << "c:\\mplayer2.exe  C:\\PICS\\A.JPG" << true
                                             << QStringList{"~/MPLAYER2.EXE", "~/pics/a.jpg"};
    QTest::newRow("unknown drive stays as written")
        << "C:\\t Q:\\x" << true << QStringList{"~/t", "Q:\\x"};
    QTest::newRow("folder is no program") << "C:\\My Tool x" << false << QStringList{};
    QTest::newRow("file without exec bit") << "C:\\plain.txt a" << false << QStringList{};
    QTest::newRow("missing program") << "C:\\none a b" << false << QStringList{};
}

void TestLauncher::splitCommandLine()
{
    QFETCH(QString, commandLine);
    QFETCH(bool, found);
    QFETCH(QStringList, argv);
    for (const char* name : {"My Tool/t", "t", "ed", "ed it", "view it", "MPLAYER2.EXE"})
        makeExecutable(QString::fromUtf8(name));
    home_->writeFile(QStringLiteral("plain.txt"), "text");
    home_->writeFile(QStringLiteral("pics/a.jpg"), "jpg");
    QVERIFY(QFile::setPermissions(home_->native(QStringLiteral("My Tool")),
                                  kExecutable | QFile::ExeGroup | QFile::ExeOther));

    const auto result = lumen::splitCommandLine(expand(commandLine), home_->fs);
    QCOMPARE(result.has_value(), found);
    if (found) {
        QStringList expected;
        for (const QString& word : std::as_const(argv))
            expected.append(word.startsWith(u"~/") ? expand(word) : word);
        QCOMPARE(*result, expected);
    }
}

void TestLauncher::shellStartsDetached()
{
    makeExecutable(QStringLiteral("My Tool/mark"), kMarkerScript);
    home_->makeFolder(QStringLiteral("work"));
    QVERIFY(home_->fs.chDir(QStringLiteral("C:\\WORK")));

    ProcessLauncher launcher(home_->fs);
    QVERIFY(launcher.shell(QStringLiteral("C:\\my tool\\MARK C:\\marker.txt a;b C:\\Work\\x.jpg")));
    QTRY_VERIFY_WITH_TIMEOUT(home_->exists(QStringLiteral("marker.txt")), 10000);
    const QByteArray expected =
        QFile::encodeName(home_->native(QStringLiteral("work"))) + "\na;b\n" +
        QFile::encodeName(home_->native(QStringLiteral("work/x.jpg"))) + "\n";
    QCOMPARE(home_->readFile(QStringLiteral("marker.txt")), expected);
}

void TestLauncher::shellWithoutProgram()
{
    home_->writeFile(QStringLiteral("script.sh"), kMarkerScript); // no exec bit
    ProcessLauncher launcher(home_->fs);
    QVERIFY(!launcher.shell(QStringLiteral("C:\\script.sh C:\\marker.txt")));
    QVERIFY(!launcher.shell(QString()));
    QTest::qWait(200);
    QVERIFY(!home_->exists(QStringLiteral("marker.txt")));
}

void TestLauncher::shellExecuteOpen_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("openerOnPath");
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("opened"); // native, "" when nothing is opened

    QTest::newRow("file") << "C:\\DOCS\\HELP.CHM" << true << 42 << "docs/help.chm";
    QTest::newRow("missing file") << "C:\\docs\\none.chm" << true << 2 << "";
    QTest::newRow("no opener") << "C:\\docs\\help.chm" << false << 2 << "";
}

void TestLauncher::shellExecuteOpen()
{
    QFETCH(QString, path);
    QFETCH(bool, openerOnPath);
    QFETCH(int, answer);
    QFETCH(QString, opened);
    home_->writeFile(QStringLiteral("docs/help.chm"), "chm");
    // A stand-in opener that records what it was given.
    const QByteArray opener =
        "#!/bin/sh\nprintf '%s' \"$1\" > \"$0.part\" && /bin/mv \"$0.part\" \"$0.log\"\n";
    makeExecutable(QStringLiteral("bin/xdg-open"), opener);
    home_->makeFolder(QStringLiteral("empty"));

    const QByteArray savedPath = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(home_->native(openerOnPath ? "bin" : "empty")));
    ProcessLauncher launcher(home_->fs);
    const int result = launcher.shellExecuteOpen(path);
    qputenv("PATH", savedPath);

    QCOMPARE(result, answer);
    if (opened.isEmpty()) {
        QTest::qWait(200);
        QVERIFY(!home_->exists(QStringLiteral("bin/xdg-open.log")));
    } else {
        QTRY_VERIFY_WITH_TIMEOUT(home_->exists(QStringLiteral("bin/xdg-open.log")), 10000);
        QCOMPARE(home_->readFile(QStringLiteral("bin/xdg-open.log")),
                 QFile::encodeName(home_->native(opened)));
    }
}

QTEST_GUILESS_MAIN(TestLauncher)
#include "tst_Launcher.moc"
