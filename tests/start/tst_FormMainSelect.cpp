// The file selection inside the whole program, on fakes: the main window's
// buttons that open it and the list search, files dropped on
// CommandOpenFileList, a folder on the command line listed through the
// selection window, and RefreshFileControls reaching its boxes.
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "select/FormSelectFile.h"
#include "show/FormMain.h"
#include "start/AppFixture.h"
#include "start/Lumenta.h"
#include "support/FakeMedia.h"
#include "support/Fakes.h"
#include "support/Fetch.h"
#include "support/TestHome.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

// Lumenta over the fakes, past its first start, with C:\pics holding a tree
// before it starts.
struct SelectApp : App {
    explicit SelectApp(const QStringList& names = {})
    {
        home.writeFile("pics/a.jpg", "x");
        home.writeFile("pics/b.txt", "x");
        home.writeFile("pics/sub/c.jpg", "x");
        QStringList arguments;
        for (const QString& name : names)
            arguments << home.native(name);
        start(arguments);
    }
    FormSelectFile* select()
    {
        return static_cast<FormSelectFile*>(app->forms().existing(u"FormSelectFile"_s));
    }
    // Drags the files over the widget and lets them go there.
    void drop(QWidget* target, const QStringList& names)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& name : names)
            urls << QUrl::fromLocalFile(home.native(name));
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &enter);
        QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(target, &drop);
    }
};

} // namespace

class TestFormMainSelect : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void buttonsOpenTheWindows();
    void dropOnOpenFileList_data();
    void dropOnOpenFileList();
    void folderOnTheCommandLine();
    void refreshReachesTheBoxes();
};

void TestFormMainSelect::buttonsOpenTheWindows()
{
    SelectApp a;
    a.app->Main();
    for (const char* name : {"CommandSelectFile", "CommandGiveFilter"}) {
        auto* button = a.main().findChild<QPushButton*>(QLatin1String(name));
        QVERIFY(button->isEnabled());
        button->click();
    }
    QVERIFY(a.select()->isVisible());
    QCOMPARE(a.select()->Dir1->path(), u"C:\\Lumentas"_s);
    QVERIFY(a.app->forms().existing(u"FormGiveFilter"_s)->isVisible());
    // Back: the selection window makes way for the main window.
    a.select()->CommandExit->click();
    QVERIFY(!a.select()->isVisible());
    QVERIFY(a.main().isVisible());
}

void TestFormMainSelect::dropOnOpenFileList_data()
{
    QTest::addColumn<bool>("quick");
    QTest::newRow("quick: shown at once on the whole screen") << true;
    QTest::newRow("otherwise only built") << false;
}

void TestFormMainSelect::dropOnOpenFileList()
{
    SelectApp a;
    a.app->Main();
    const bool quick = FETCH(bool, quick);
    a.main().CheckQuiCkWork->setChecked(quick);
    QPushButton* button = a.main().CommandOpenFileList;
    a.drop(button, {"pics", "pics/b.txt"});
    // Yellow while the drag is over it, for a second.
    QCOMPARE(backColor(button), kColorYellow);
    QTRY_COMPARE(a.home.readFile("Lumentas/TempList.lst"),
                 QByteArray("C:\\pics\\a.jpg\r\nC:\\pics\\b.txt\r\nC:\\pics\\sub\\c.jpg\r\n"
                            "C:\\pics\\b.txt\r\n"));
    QCOMPARE(a.main().TextTotal->text(), quick ? u"4"_s : QString());
    QCOMPARE(a.main().FillMode, quick);
    if (quick)
        a.main().FORMNORMALSIZE();
    QTRY_COMPARE_WITH_TIMEOUT(backColor(button), kColorGrey, 3000);
}

void TestFormMainSelect::folderOnTheCommandLine()
{
    SelectApp a({"pics"});
    a.main().CheckQuiCkWork->setChecked(true);
    a.app->Main();
    // The selection window listed it: its Dir1 went there, its text holds it.
    QVERIFY(a.select() && a.select()->isLoaded());
    QCOMPARE(a.select()->Dir1->path(), u"C:\\pics"_s);
    const QByteArray tree("C:\\pics\\a.jpg\r\nC:\\pics\\b.txt\r\nC:\\pics\\sub\\c.jpg\r\n");
    QCOMPARE(a.home.readFile("Lumentas/TempList.lst"), tree);
    QCOMPARE(a.main().TextTotal->text(), u"3"_s);
    QVERIFY(!a.home.exists("Lumentas/ForProgramRun_KDR/Head.txt"));
}

void TestFormMainSelect::refreshReachesTheBoxes()
{
    SelectApp a;
    a.app->Main();
    a.main().CommandSelectFile->click();
    a.select()->Dir1->setPath(u"C:\\pics"_s);
    const int before = a.select()->File1->count();
    a.home.writeFile("pics/new.jpg", "x");
    a.app->basics().RefreshFileControls();
    QCOMPARE(a.select()->File1->count(), before + 1);
}

QTEST_MAIN(TestFormMainSelect)
#include "tst_FormMainSelect.moc"
