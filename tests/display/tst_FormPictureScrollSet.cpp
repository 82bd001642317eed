// FormPictureScrollSet: the scale shows the allowance, and the set button
// keeps it in PictureSizeAllowVal.dat.
#include "display/FormPictureScrollSet.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const QString kAllowanceFile = QStringLiteral("Lumentas/ForProgramRun_KDR/PictureSizeAllowVal.dat");

} // namespace

class TestFormPictureScrollSet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void commandWordSet_data();
    void commandWordSet();
    void commandEndUnloads();
};

void TestFormPictureScrollSet::commandWordSet_data()
{
    QTest::addColumn<int>("loaded"); // PictureSizeAllowVal when the window loads
    QTest::addColumn<int>("moved");  // where the user puts the bar, -1: left alone
    QTest::addColumn<bool>("fileThere");
    QTest::addColumn<QByteArray>("bytes"); // of the file afterwards, empty: none
    QTest::addColumn<int>("allowance");
    QTest::newRow("kept in the file") << 20 << 45 << true << QByteArray("45\r\n") << 45;
    QTest::newRow("no file, nothing written") << 20 << 45 << false << QByteArray() << 45;
    QTest::newRow("to the left end") << 60 << 0 << true << QByteArray("0\r\n") << 0;
    QTest::newRow("as loaded") << 35 << -1 << true << QByteArray("35\r\n") << 35;
    // Loading 0 moves nothing, so the label still reads its first "20": that
    // is what goes to the file and what is read back.
    QTest::newRow("the label is what is kept") << 0 << -1 << true << QByteArray("20\r\n") << 20;
    QTest::newRow("off the scale is refused") << 150 << -1 << true << QByteArray("20\r\n") << 20;
    QTest::newRow("without a file the bar's value") << 0 << -1 << false << QByteArray() << 0;
}

void TestFormPictureScrollSet::commandWordSet()
{
    BasicsFixture f;
    if (FETCH(bool, fileThere))
        f.home.writeFile(kAllowanceFile, "99\r\n");
    f.state.PictureSizeAllowVal = FETCH(int, loaded);
    FormPictureScrollSet form(f.basics);
    form.showForm();
    QCOMPARE(f.state.PictureSizeAllowVal, FETCH(int, loaded)); // loading changes nothing
    saveShot(&form, QStringLiteral("FormPictureScrollSet"));
    if (const int moved = FETCH(int, moved); moved >= 0)
        form.HScroll1->setValue(moved);

    qint32 colourInWait = -1;
    QByteArray bytesInWait;
    f.clock.onWait = [&](qint64) {
        colourInWait = backColor(form.CommandWordSet);
        if (f.home.exists(kAllowanceFile))
            bytesInWait = f.home.readFile(kAllowanceFile);
    };
    QTest::mouseClick(form.findChild<QPushButton*>("CommandWordSet"), Qt::LeftButton);

    QFETCH(QByteArray, bytes);
    QCOMPARE(f.home.exists(kAllowanceFile), FETCH(bool, fileThere));
    if (FETCH(bool, fileThere)) {
        QCOMPARE(f.home.readFile(kAllowanceFile), bytes);
        QCOMPARE(bytesInWait, bytes); // written before the wait
    }
    QCOMPARE(f.state.PictureSizeAllowVal, FETCH(int, allowance));
    QCOMPARE(f.ui.beeps, 21);
    QCOMPARE(f.clock.waits, QList<qint64>{300});
    QCOMPARE(colourInWait, 65535);
    QCOMPARE(backColor(form.CommandWordSet), 8421504);
}

void TestFormPictureScrollSet::commandEndUnloads()
{
    BasicsFixture f;
    FormPictureScrollSet form(f.basics);
    form.showForm();
    form.HScroll1->setValue(70);
    QTest::mouseClick(form.CommandEnd, Qt::LeftButton);
    QVERIFY(!form.isVisible());
    QVERIFY(!form.isLoaded());
    QCOMPARE(f.state.PictureSizeAllowVal, 20);
    QVERIFY(!f.home.exists(kAllowanceFile));
    // Shown again, the scale shows the allowance, not where it was left.
    form.showForm();
    QCOMPARE(form.HScroll1->value(), 20);
    QCOMPARE(form.LabelVal->text(), QStringLiteral("20"));
}

QTEST_MAIN(TestFormPictureScrollSet)
#include "tst_FormPictureScrollSet.moc"
