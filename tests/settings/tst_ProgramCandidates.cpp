// The helper programs looked for at the first start: which one a machine's
// PATH gives for each role, and what stands when none is there.
#include "settings/ProgramCandidates.h"
#include "support/FakeSystemBin.h"
#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QDir>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

Q_DECLARE_METATYPE(lumen::ProgramRole)

class TestProgramCandidates : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void findsTheFirstOnPath_data()
    {
        QTest::addColumn<ProgramRole>("role");
        QTest::addColumn<QStringList>("installed"); // "-name": without the execute bit
        QTest::addColumn<QString>("expected");

        const auto paint = ProgramRole::PictureEditor;
        const auto row = [](const char* tag, ProgramRole role, const QStringList& installed,
                            const char* expected) {
            QTest::newRow(tag) << role << installed << QStringLiteral("Z:\\usr\\bin\\") + expected;
        };
        row("gimp before the opener", paint, {"xdg-open", "gimp"}, "gimp");
        row("gimp before kolourpaint", paint, {"kolourpaint", "gimp"}, "gimp");
        row("gimp without execute bit", paint, {"xdg-open", "-gimp"}, "xdg-open");
        row("nothing: the opener's place", paint, {}, "xdg-open");
        row("other roles' programs", paint, {"gedit", "vlc", "audacity"}, "xdg-open");
        row("browser: user's choice first", ProgramRole::WebBrowser,
            {"firefox-esr", "x-www-browser"}, "x-www-browser");
    }
    void findsTheFirstOnPath()
    {
        QFETCH(ProgramRole, role);
        TestHome home;
        FakeSystemBin bin(home.fs);
        for (const QString& name : FETCH(QStringList, installed))
            bin.add(name.startsWith('-') ? name.mid(1) : name, !name.startsWith('-'));
        QTEST(findProgram(role, QStringLiteral("Z:\\usr\\bin"), home.fs), "expected");
    }

    void programFiles()
    {
        TestHome home;
        FakeSystemBin bin(home.fs);
        const QDir folder(bin.folder());
        bin.add(QStringLiteral("gimp"));
        bin.add(QStringLiteral("notes.txt"), false);
        QVERIFY(folder.mkdir(QStringLiteral("share")));
        QVERIFY(isProgramFile(folder.filePath("gimp")));
        QVERIFY(!isProgramFile(folder.filePath("notes.txt")));
        QVERIFY(!isProgramFile(folder.filePath("share")));
    }
};

QTEST_GUILESS_MAIN(TestProgramCandidates)
#include "tst_ProgramCandidates.moc"
