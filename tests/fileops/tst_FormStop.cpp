// FormStop: LabelStop asks a running read to stop; the host shows texts in it.
#include "fileops/FormStop.h"
#include "fileops/FormsBasicHost.h"
#include "platform/ClickLabel.h"
#include "support/BasicsFixture.h"
#include "support/Shots.h"

#include <QLineEdit>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestFormStop : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void hostShowsProgressAndCaption();
    void clickDuringReadStopsIt();
};

void TestFormStop::hostShowsProgressAndCaption()
{
    ProgramState state;
    FormStop stop(state);
    FormsBasicHost host(stop);
    QWidget main;
    host.mainWindow = &main;
    int refreshed = 0;
    host.fileControlRefreshers << [&] { ++refreshed; } << [&] { ++refreshed; };
    host.showStop();
    host.setStopText(QStringLiteral("C:\\写真\\a.jpg"));
    host.setMainCaption(QStringLiteral("ファイル複製中 "));
    host.refreshFileControls();
    QVERIFY(stop.isVisible());
    QCOMPARE(stop.findChild<QLineEdit*>("Text1")->text(), QStringLiteral("C:\\写真\\a.jpg"));
    QCOMPARE(main.windowTitle(), QStringLiteral("ファイル複製中 "));
    QCOMPARE(refreshed, 2);
    QVERIFY(!host.askForcedDrive(QStringLiteral("?:"))); // no drive window linked
    saveShot(&stop, QStringLiteral("FormStop"));
    host.unloadStop();
    QVERIFY(!stop.isVisible());
    QVERIFY(!stop.isLoaded());
}

void TestFormStop::clickDuringReadStopsIt()
{
    BasicsFixture f;
    FormStop stop(f.state);
    FormsBasicHost host(stop);
    VeroProcedure_Basical basics(f.state, f.services, host);
    QByteArray lines;
    for (int i = 0; i < 3000; ++i)
        lines += "C:\\a" + QByteArray::number(i) + ".jpg\r\n";
    f.home.writeFile("big.lst", lines);
    f.clock.onDoEvents = [&] {
        if (stop.isVisible())
            QTest::mouseClick(stop.LabelStop, Qt::LeftButton);
    };
    QCOMPARE(basics.ReadTextOfFile(QStringLiteral("C:\\big.lst")), QString());
    QVERIFY(!stop.isVisible());
    QVERIFY(f.ui.boxes.isEmpty());
}

QTEST_MAIN(TestFormStop)
#include "tst_FormStop.moc"
