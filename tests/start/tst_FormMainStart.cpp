// The program's start and end through Main, on fakes: the first start, the
// small settings files, the command line, and the fixed order of closing.
#include "platform/FormBase.h"
#include "settings/SendToList.h"
#include "show/FormMain.h"
#include "start/AppFixture.h"
#include "start/Lumenta.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace lumen;
using namespace lumen::test;

class TestFormMainStart : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void firstStartShowsOnlyTheAccessWindow();
    void normalStartWritesItsDefaults();
    void existingSettingsAreRead();
    void startWithAListOnTheCommandLine();
    void closingEndsInTheFixedOrder();
};

void TestFormMainStart::firstStartShowsOnlyTheAccessWindow()
{
    App a(QStringList(), false);
    a.app->Main();
    QCOMPARE(a.settings("DirecData.ran"), QByteArray()); // created empty
    QCOMPARE(a.settings("StartFromWhere.dat"), QByteArray("C:\\bin\\lumenta.exe\r\n"));
    QVERIFY(a.shown("FormSetAccessDirectry"));
    QVERIFY(!a.shown("FormMain"));
    QVERIFY(a.app->state().InSubMain);

    // Completing it goes on into the normal start without a restart.
    a.app->forms()
        .form("FormSetAccessDirectry")
        ->findChild<QPushButton*>("CommandExit")
        ->setEnabled(true);
    a.app->forms().form("FormSetAccessDirectry")->findChild<QPushButton*>("CommandExit")->click();
    QVERIFY(a.shown("FormMain"));
    QVERIFY(!a.shown("FormSetAccessDirectry"));
    QVERIFY(!a.app->state().InSubMain);
    QCOMPARE(
        readDirecData(a.home.native("Lumentas/ForProgramRun_KDR/DirecData.ran")).AutoPageInterval,
        qint16(3));
}

void TestFormMainStart::normalStartWritesItsDefaults()
{
    App a;
    a.app->Main();
    QVERIFY(a.shown("FormMain"));
    QCOMPARE(a.settings("PictureSizeAllowVal.dat"), QByteArray("20\r\n"));
    QCOMPARE(a.settings("AccessPass.dat"), QByteArray("C:\\Lumentas\r\n"));
    QCOMPARE(a.settings("AccessLockDir.dat"), QByteArray("C:\\Lumentas\r\n1\r\n"));
    QCOMPARE(a.app->state().DirectryLock, 0); // the box stays as designed on the default path
    QCOMPARE(a.settings("SendToList.txt"),
             text::encodeForFile(defaultSendToListLines().join("\r\n") + "\r\n"));
}

void TestFormMainStart::existingSettingsAreRead()
{
    App a;
    a.home.writeFile("Lumentas/ForProgramRun_KDR/PictureSizeAllowVal.dat", "35\r\n");
    a.home.writeFile("Lumentas/ForProgramRun_KDR/AccessPass.dat", "C:\\shows\r\n");
    a.home.writeFile("Lumentas/ForProgramRun_KDR/AccessLockDir.dat", "C:\\locked\r\n1\r\n");
    a.app->Main();
    QCOMPARE(a.app->state().PictureSizeAllowVal, 35);
    QCOMPARE(a.app->state().AccessPassDir, QStringLiteral("C:\\shows"));
    QCOMPARE(a.app->state().AccessLockDir, QStringLiteral("C:\\locked"));
    QCOMPARE(a.app->state().DirectryLock, 1);
}

void TestFormMainStart::startWithAListOnTheCommandLine()
{
    App a({QStringLiteral("my pics/a.jpg"), QStringLiteral("my pics/b.jpg")});
    a.home.writeFile("my pics/a.jpg", "x");
    a.home.writeFile("my pics/b.jpg", "x");
    a.app->formMain().CheckQuiCkWork->setChecked(true);
    a.app->Main();
    FormMain& main = a.app->formMain();
    QCOMPARE(main.TextTotal->text(), QStringLiteral("2"));
    QCOMPARE(main.TextFileName->text(), QStringLiteral("C:\\my pics\\a.jpg"));
    QVERIFY(main.CheckUseCyberView->isChecked());
    QVERIFY(a.app->state().ListReady);
    QCOMPARE(a.home.readFile("Lumentas/TempList.lst"),
             QByteArray("C:\\my pics\\a.jpg\r\nC:\\my pics\\b.jpg\r\n"));
}

void TestFormMainStart::closingEndsInTheFixedOrder()
{
    App a;
    QStringList unloaded;
    for (const QString& name :
         {QStringLiteral("FormSetAccessDirectry"), QStringLiteral("FormHatenaDrive")}) {
        FormBase* form = a.app->forms().form(name);
        QObject::connect(form, &FormBase::unloaded, form, [&unloaded, name] { unloaded << name; });
        form->load();
    }
    a.app->Main();
    a.app->formMain().CommandExit->click();
    // The record first, then the windows in their order, then the end.
    QVERIFY(a.settings("DirecData.ran").size() == 1547);
    QCOMPARE(unloaded, (QStringList{"FormSetAccessDirectry", "FormHatenaDrive"}));
    QVERIFY(a.app->ended());
    QTRY_COMPARE(a.quits, 1);
    QVERIFY(a.clock.ending());
    QVERIFY(!a.shown("FormMain"));
}

QTEST_MAIN(TestFormMainStart)
#include "tst_FormMainStart.moc"
