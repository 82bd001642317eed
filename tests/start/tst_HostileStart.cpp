// The program started on hostile settings, over the fakes: settings files
// that are links to pipes and devices stay untouched through a start and an
// end; a pipe in place of the record, the drive table, a list or the next
// page's picture never blocks; staged files of killed writes go at start;
// numbers that don't fit a setting are passed over.
#include "display/PictureBox.h"
#include "platform/SafeFile.h"
#include "start/AppFixture.h"
#include "support/Fetch.h"
#include "support/OddFiles.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>
#include <utime.h>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(lumen::test::OddFile)

namespace {

const QString kSettingsFolder = u"Lumentas/ForProgramRun_KDR"_s;

QString settingsPath(const App& a, const QString& name)
{
    return a.home.native(kSettingsFolder + u'/' + name);
}

QStringList stagedIn(const QString& folder)
{
    QStringList staged;
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        if (stagedFileOwner(name))
            staged << name;
    }
    return staged;
}

// Ends the program as the user does, by its exit button, which saves the
// record (the first-start window ends it directly); the quit it posts is run
// before the program goes.
void endProgram(App& a)
{
    if (a.shown(QStringLiteral("FormMain")))
        a.main().CommandExit->click();
    else
        a.app->End();
    QVERIFY(a.app->ended());
    QTRY_COMPARE(a.quits, 1);
}

} // namespace

class TestHostileStart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void settingsThatAreNoFilesStayUntouched_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<OddFile>("kind");
        for (const char* name : {"DirecData.ran", "StartFromWhere.dat", "PictureSizeAllowVal.dat",
                                 "AccessPass.dat", "AccessLockDir.dat", "SendToList.txt",
                                 "CommandList.txt", "ExtType.dat", "Drives.txt"}) {
            QTest::addRow("%s, link to a pipe", name)
                << QString::fromLatin1(name) << OddFile::LinkToPipe;
            QTest::addRow("%s, link to a device", name)
                << QString::fromLatin1(name) << OddFile::LinkToDevice;
        }
    }
    // Nothing opens them: a start and an end leave them as they were, and
    // the program comes up all the same.
    void settingsThatAreNoFilesStayUntouched()
    {
        const Watchdog watchdog(60);
        const QString name = FETCH(QString, name);
        App a;
        const QString path = settingsPath(a, name);
        QFile::remove(path);
        if (!makeOddFile(FETCH(OddFile, kind), path))
            QSKIP("the system doesn't let this test make a device");
        const QString before = describePath(path);
        a.home.fs.loadDrivesFile(a.home.native(kSettingsFolder));
        a.app->Main();
        // An unreadable record is an empty one: the first-start window.
        QVERIFY(a.shown(name == u"DirecData.ran"_s ? u"FormSetAccessDirectry"_s : u"FormMain"_s));
        endProgram(a);
        QCOMPARE(describePath(path), before);
        QCOMPARE(stagedIn(a.home.native(kSettingsFolder)), QStringList());
    }

    void pipesNeverBlock_data()
    {
        QTest::addColumn<QString>("where");
        QTest::newRow("the record") << u"DirecData.ran"_s;
        QTest::newRow("the drive table") << u"Drives.txt"_s;
        QTest::newRow("a list on the command line") << u"list"_s;
        QTest::newRow("the next page's picture") << u"picture"_s;
    }
    void pipesNeverBlock()
    {
        const Watchdog watchdog(30);
        const QString where = FETCH(QString, where);
        const bool list = where == u"list"_s;
        App a(list ? QStringList{u"piped.lst"_s} : QStringList());
        if (list) {
            QVERIFY(makeOddFile(OddFile::Pipe, a.home.native(u"piped.lst"_s)));
        } else if (where != u"picture"_s) {
            QFile::remove(settingsPath(a, where));
            QVERIFY(makeOddFile(OddFile::Pipe, settingsPath(a, where)));
        }
        a.home.fs.loadDrivesFile(a.home.native(kSettingsFolder));
        if (where == u"picture"_s) {
            QVERIFY(makeOddFile(OddFile::Pipe, a.home.native(u"b.jpg"_s)));
            a.openList({a.home.picture(u"a.png"_s), u"C:\\b.jpg"_s});
            QCOMPARE(a.main().TextTotal->text(), u"2"_s);
            a.main().CommandRight_Click(); // the piped picture, prepared ahead already
            QCOMPARE(a.app->state().PicNo, 2);
            QCOMPARE(a.main().windowTitle(), u"File Niot Found C:\\b.jpg"_s); // no file to show
            QVERIFY(!a.main().Picture2->hasPicture());
            QVERIFY(a.main().Picture3->picture().isNull());
        } else {
            a.main().CheckQuiCkWork->setChecked(true);
            a.app->Main();
        }
        endProgram(a);
    }

    // Staged files of an ended process, older than a minute, go from both
    // working folders; what is fresh, of a running process or no staged
    // file stays.
    void staleStagedFilesGoAtStart()
    {
        App a;
        const pid_t child = fork();
        if (child == 0)
            _exit(0);
        waitpid(child, nullptr, 0);
        const QString dead = QString::number(child);
        const QString mine = QString::number(getpid());
        const QStringList stale = {kSettingsFolder + u"/.DirecData.ran.lumenta-"_s + dead +
                                       u"-k1ll3d"_s,
                                   u"Lumentas/.TempList.lst.lumenta-"_s + dead + u"-0ld0ne"_s};
        const QStringList kept = {
            kSettingsFolder + u"/.TempList.Lst.lumenta-"_s + dead + u"-fresh1"_s,
            kSettingsFolder + u"/.SelectFile.txt.lumenta-"_s + mine + u"-alive1"_s,
            u"Lumentas/RunFile.Lst.Xy12ab"_s, u"Lumentas/.TempList.lst.lumenta-x-abcdef"_s,
            u"Lumentas/photo.jpg"_s};
        for (const QString& name : stale + kept) {
            a.home.writeFile(name, "x");
            if (name.contains(u"fresh"_s))
                continue;
            const time_t then = time(nullptr) - 120;
            const utimbuf times{then, then};
            utime(QFile::encodeName(a.home.native(name)).constData(), &times);
        }
        a.app->Main();
        for (const QString& name : stale)
            QVERIFY2(!a.home.exists(name), qPrintable(name));
        for (const QString& name : kept)
            QVERIFY2(a.home.exists(name), qPrintable(name));
    }

    void numbersThatDontFitArePassedOver_data()
    {
        QTest::addColumn<QByteArray>("allowance");
        QTest::addColumn<int>("expected");
        QTest::newRow("a number") << QByteArray("35\r\n") << 35;
        QTest::newRow("beyond double") << QByteArray("1e400\r\n") << 20;
        QTest::newRow("below double") << QByteArray("-1e400\r\n") << 20;
        QTest::newRow("beyond 32 bits") << QByteArray("99999999999\r\n") << 20;
    }
    void numbersThatDontFitArePassedOver()
    {
        App a;
        a.home.writeFile(kSettingsFolder + u"/PictureSizeAllowVal.dat"_s,
                         FETCH(QByteArray, allowance));
        a.app->Main();
        QCOMPARE(a.app->state().PictureSizeAllowVal, FETCH(int, expected));
    }

    // Typed into the page boxes: a number the page bar can't hold is passed
    // over, and the bar stays.
    void typedNumbersThatDontFitArePassedOver()
    {
        App a;
        a.openList({a.home.picture(u"a.png"_s), a.home.picture(u"b.png"_s)});
        QScrollBar* bar = a.main().HScrollPicNom;
        const int value = bar->value();
        const int maximum = bar->maximum();
        for (const QString& typed : {u"1e400"_s, u"99999"_s, u"-1e400"_s}) {
            a.main().TextCount->setText(typed);
            a.main().TextTotal->setText(typed);
            QCOMPARE(bar->value(), value);
            QCOMPARE(bar->maximum(), maximum);
        }
    }
};

QTEST_MAIN(TestHostileStart)
#include "tst_HostileStart.moc"
