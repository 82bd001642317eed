// Whole-file writes: they replace the old file completely or not at all, also
// when the process dies in the middle of the write.
#include "platform/SafeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

using namespace lumen;
using namespace Qt::StringLiterals;

namespace {

QByteArray readBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool putBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

QStringList entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

} // namespace

class TestSafeFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void writeReplacesWholeFile_data();
    void writeReplacesWholeFile();
    void failedWriteLeavesNothing();
    void interruptedWriteKeepsOldFile_data();
    void interruptedWriteKeepsOldFile();
    void readTextFile_data();
    void readTextFile();
};

void TestSafeFile::writeReplacesWholeFile_data()
{
    QTest::addColumn<std::optional<QByteArray>>("old");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("longer by shorter") << std::optional(QByteArray(100, 'x')) << QByteArray("ab");
}

void TestSafeFile::writeReplacesWholeFile()
{
    QFETCH(std::optional<QByteArray>, old);
    QFETCH(QByteArray, bytes);
    QTemporaryDir dir;
    const QString target = dir.filePath(u"Settings.dat"_s);
    if (old)
        QVERIFY(putBytes(target, *old));

    QVERIFY(writeFileSafely(target, bytes));
    QCOMPARE(readBytes(target), bytes);
    QCOMPARE(entries(dir.path()), QStringList{u"Settings.dat"_s}); // no temporary file left
}

void TestSafeFile::failedWriteLeavesNothing()
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(u"f"_s);
    QVERIFY(!writeFileSafely(folder + u"/a.lst"_s, "new")); // the folder is missing
    QVERIFY(!QFile::exists(folder));
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(!writeFileSafely(folder, "new")); // the target is a folder
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(entries(dir.path()), QStringList{u"f"_s});
}

void TestSafeFile::interruptedWriteKeepsOldFile_data()
{
    QTest::addColumn<bool>("hasOld");
    QTest::addColumn<bool>("killed"); // by a signal, else by _exit

    QTest::newRow("old file, process killed") << true << true;
    QTest::newRow("no old file, process exits") << false << false;
}

// A child process writes new bytes and dies just before they replace the
// target. The target must then be the old file, whole, or still absent.
void TestSafeFile::interruptedWriteKeepsOldFile()
{
    QFETCH(bool, hasOld);
    QFETCH(bool, killed);
    QTemporaryDir dir;
    const QString target = dir.filePath(u"RunFile.Lst"_s);
    const QByteArray old = QByteArray("old line\r\n").repeated(1000);
    const QByteArray next = QByteArray("new\r\n").repeated(5000);
    if (hasOld)
        QVERIFY(putBytes(target, old));

    const pid_t child = fork();
    QVERIFY(child >= 0);
    if (child == 0) {
        testing::setBeforeCommitHook([killed] {
            if (killed)
                std::raise(SIGKILL);
            _exit(1);
        });
        writeFileSafely(target, next);
        _exit(2); // the hook never ran
    }
    int status = 0;
    QCOMPARE(waitpid(child, &status, 0), child);
    if (killed) {
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGKILL);
    } else {
        QVERIFY(WIFEXITED(status));
        QCOMPARE(WEXITSTATUS(status), 1);
    }

    QCOMPARE(QFile::exists(target), hasOld);
    if (hasOld)
        QCOMPARE(readBytes(target), old);

    // The next write goes through as usual.
    QVERIFY(writeFileSafely(target, next));
    QCOMPARE(readBytes(target), next);
}

void TestSafeFile::readTextFile_data()
{
    QTest::addColumn<QString>("situation");
    QTest::addColumn<std::optional<QString>>("expected");

    QTest::newRow("missing file") << u"missing"_s << std::optional<QString>();
    QTest::newRow("empty file") << u"empty"_s << std::optional(QString());
}

void TestSafeFile::readTextFile()
{
    QFETCH(QString, situation);
    QFETCH(std::optional<QString>, expected);
    QTemporaryDir dir;
    const QString path = dir.filePath(u"x.txt"_s);
    if (situation == u"empty")
        QVERIFY(putBytes(path, QByteArray()));

    const std::optional<QString> text = lumen::readTextFile(path);
    QCOMPARE(text.has_value(), expected.has_value());
    if (expected)
        QCOMPARE(*text, *expected);
}

QTEST_GUILESS_MAIN(TestSafeFile)
#include "tst_SafeFile.moc"
