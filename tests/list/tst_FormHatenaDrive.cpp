// FormHatenaDrive driven by its object names, alone and as the drive window
// of ResolveDriveName.
#include "fileops/FormStop.h"
#include "fileops/FormsBasicHost.h"
#include "list/FormHatenaDrive.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace lumen;
using namespace lumen::test;

class TestFormHatenaDrive : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void loadShowsTheDriveAndItsLists();
    void commandDoTakesThePair_data();
    void commandDoTakesThePair();
    void commandExit();
    void asksForListLinesThroughTheRealWindow();
};

void TestFormHatenaDrive::loadShowsTheDriveAndItsLists()
{
    BasicsFixture f;
    f.home.writeFile("a.lst", "x");
    f.home.writeFile("B.LST", "x");
    f.home.writeFile("c.txt", "x");
    f.home.makeFolder("shows");
    FormHatenaDrive form(f.basics);
    form.load();
    QCOMPARE(form.Drive1->drive(), "c:");
    QCOMPARE(form.ComboNewDrive->currentText(), "C:");
    QStringList names;
    for (int i = 0; i < form.File1->count(); ++i)
        names << form.File1->item(i)->text();
    QCOMPARE(names, (QStringList{"a.lst", "B.LST"}));

    form.show();
    saveShot(&form, QStringLiteral("FormHatenaDrive"));
    form.Drive1->setDrive(QStringLiteral("z:"));
    QCOMPARE(form.ComboNewDrive->currentText(), "Z:");
    QCOMPARE(form.Dir1->path(), "Z:\\");
}

void TestFormHatenaDrive::commandDoTakesThePair_data()
{
    QTest::addColumn<QString>("mark");
    QTest::addColumn<QString>("drive");
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    const auto row = [](const char* tag, const QString& mark, const QString& drive,
                        const QString& from,
                        const QString& to) { QTest::newRow(tag) << mark << drive << from << to; };
    row("trimmed, capitals, cut at the colon", " ?: ", " e:\\media ", "?:", "E:");
    row("no colon gives no drive", "?:", "D", "?:", "");
}

void TestFormHatenaDrive::commandDoTakesThePair()
{
    BasicsFixture f;
    FormHatenaDrive form(f.basics);
    QStringList replaced;
    form.replaceDriveInFileName = [&](const QString& a, const QString& b) { replaced << a << b; };
    form.load();
    form.ComboHatenaDrive->setEditText(FETCH(QString, mark));
    form.ComboNewDrive->setEditText(FETCH(QString, drive));
    QTest::mouseClick(form.CommandDo, Qt::LeftButton);
    QFETCH(QString, from);
    QFETCH(QString, to);
    QCOMPARE(f.state.ForcedDriveFrom, from);
    QCOMPARE(f.state.ForcedDriveTo, to);
    QCOMPARE(replaced, (QStringList{from, to}));
    QCOMPARE(f.clock.waits, QList<qint64>{300}); // the yellow flash
    QCOMPARE(backColor(form.CommandDo), 0x80FF80);
}

void TestFormHatenaDrive::commandExit()
{
    BasicsFixture f;
    FormHatenaDrive form(f.basics);
    int pages = 0;
    form.takeMainAction = [&] { ++pages; };
    form.showForm();
    form.CommandExit->click(); // opened by hand: just unloads
    QVERIFY(!form.isLoaded());

    // Asked for by a list: not without a drive, then on to the page.
    f.state.HatenaDriveAsked = true;
    form.showForm();
    form.CommandExit->click();
    QCOMPARE(f.ui.boxes, QStringList{"ﾄﾞﾗｲﾌﾞがまだ指定されていませんので指定してください"});
    QVERIFY(form.isVisible());
    QCOMPARE(pages, 0);
    f.state.ForcedDriveTo = QStringLiteral("D:");
    form.CommandExit->click();
    QVERIFY(!form.isVisible());
    QCOMPARE(pages, 1);
}

void TestFormHatenaDrive::asksForListLinesThroughTheRealWindow()
{
    BasicsFixture f;
    FormStop stop(f.state);
    FormsBasicHost host(stop);
    VeroProcedure_Basical basics(f.state, f.services, host);
    FormHatenaDrive form(basics);
    host.driveAsker = [&form](const QString& mark) { form.ask(mark); };
    QString shownMark;
    // The user, inside the modal window: types a drive, sets it, leaves.
    QTimer::singleShot(0, &form, [&] {
        shownMark = form.ComboHatenaDrive->currentText();
        form.ComboNewDrive->setEditText(QStringLiteral("d:"));
        form.CommandDo->click();
        form.CommandExit->click();
    });
    QCOMPARE(basics.ResolveDriveName(QStringLiteral("?:\\pics\\a.jpg")), "D:\\pics\\a.jpg");
    QCOMPARE(shownMark, "?:");
    QVERIFY(!form.isVisible());
}

QTEST_MAIN(TestFormHatenaDrive)
#include "tst_FormHatenaDrive.moc"
