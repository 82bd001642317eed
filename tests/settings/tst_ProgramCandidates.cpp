// The helper programs looked for at the first start: which one a machine's
// PATH gives for each role, and what stands when none is there.
#include "settings/ProgramCandidates.h"
#include "support/FakeSystemBin.h"
#include "support/TestHome.h"

#include <QDir>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

Q_DECLARE_METATYPE(lumen::ProgramRole)

namespace {
const QString kSystemFolder = QStringLiteral("Z:\\usr\\bin");
}

class TestProgramCandidates : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void findsTheFirstOnPath_data();
    void findsTheFirstOnPath();
    void programFiles_data();
    void programFiles();
};

void TestProgramCandidates::findsTheFirstOnPath_data()
{
    QTest::addColumn<ProgramRole>("role");
    QTest::addColumn<QStringList>("installed");
    QTest::addColumn<QStringList>("notExecutable");
    QTest::addColumn<QString>("expected");

    const auto paint = ProgramRole::PictureEditor;
    QTest::newRow("gimp before the opener")
        << paint << QStringList{"xdg-open", "gimp"} << QStringList{} << "Z:\\usr\\bin\\gimp";
    QTest::newRow("gimp before kolourpaint")
        << paint << QStringList{"kolourpaint", "gimp"} << QStringList{} << "Z:\\usr\\bin\\gimp";
    QTest::newRow("a gimp without execute bit is passed over")
        << paint << QStringList{"xdg-open"} << QStringList{"gimp"} << "Z:\\usr\\bin\\xdg-open";
    QTest::newRow("nothing at all: the opener's place stands")
        << paint << QStringList{} << QStringList{} << "Z:\\usr\\bin\\xdg-open";
    QTest::newRow("programs of other roles don't count")
        << paint << QStringList{"gedit", "vlc", "audacity"} << QStringList{}
        << "Z:\\usr\\bin\\xdg-open";

    QTest::newRow("browser: the user's choice before firefox")
        << ProgramRole::WebBrowser << QStringList{"firefox-esr", "x-www-browser"} << QStringList{}
        << "Z:\\usr\\bin\\x-www-browser";
}

void TestProgramCandidates::findsTheFirstOnPath()
{
    QFETCH(ProgramRole, role);
    QFETCH(QStringList, installed);
    QFETCH(QStringList, notExecutable);
    QFETCH(QString, expected);
    TestHome home;
    FakeSystemBin bin(home.fs);
    for (const QString& name : installed)
        bin.add(name);
    for (const QString& name : notExecutable)
        bin.add(name, false);
    QCOMPARE(findProgram(role, kSystemFolder, home.fs), expected);
}

void TestProgramCandidates::programFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("expected");
    QTest::newRow("executable file") << "gimp" << true;
    QTest::newRow("file without execute bit") << "notes.txt" << false;
    QTest::newRow("folder") << "share" << false;
}

void TestProgramCandidates::programFiles()
{
    QFETCH(QString, name);
    TestHome home;
    FakeSystemBin bin(home.fs);
    bin.add(QStringLiteral("gimp"));
    bin.add(QStringLiteral("notes.txt"), false);
    QDir(bin.folder()).mkdir(QStringLiteral("share"));
    const QString path = name.isEmpty() ? QString() : QDir(bin.folder()).filePath(name);
    QTEST(isProgramFile(path), "expected");
}

QTEST_GUILESS_MAIN(TestProgramCandidates)
#include "tst_ProgramCandidates.moc"
