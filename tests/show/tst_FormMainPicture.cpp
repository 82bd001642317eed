// Where a picture lands in the display area: fitted, centred, or at its own
// size with scroll bars; pictures made by the test.
#include "MainFixture.h"
#include "display/PictureBox.h"
#include "platform/Controls.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QCheckBox>
#include <QFile>
#include <QScrollBar>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestFormMainPicture : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void smallPictureSitsCentred();
    void largePictureIsFitted_data();
    void largePictureIsFitted();
    void exactlyAsWideTakesTheShrinkPath();
    void tallPictureAtItsOwnSizeOpensAtItsMiddle();
    void badPicturesLeaveTheAreaBlank_data();
    void badPicturesLeaveTheAreaBlank();
    void hugePictureStaysBounded();
    void allowanceMarksOnlyLargeWebPages_data();
    void allowanceMarksOnlyLargeWebPages();
};

void TestFormMainPicture::smallPictureSitsCentred()
{
    MainFixture f;
    f.open({f.picture("small.png", 100, 60)});
    PictureBox* p1 = f.main.Picture1;
    PictureBox* p2 = f.main.Picture2;
    QVERIFY(p2->isVisible());
    QVERIFY(!f.main.Picture3->isVisible());
    QCOMPARE(p2->size(), QSize(100, 60));
    QVERIFY(qAbs(twLeft(p2) - (twWidth(p1) - 1500) / 2) <= 15);
    QVERIFY(qAbs(twTop(p2) - (twHeight(p1) - 900) / 2) <= 15);
    saveShot(&f.main, QStringLiteral("FormMain_small_picture"));
}

void TestFormMainPicture::largePictureIsFitted_data()
{
    QTest::addColumn<int>("w");
    QTest::addColumn<int>("h");
    QTest::newRow("wide") << 3000 << 1000;
    QTest::newRow("tall") << 800 << 2400;
}

void TestFormMainPicture::largePictureIsFitted()
{
    MainFixture f;
    QFETCH(int, w);
    QFETCH(int, h);
    f.open({f.picture("big.jpg", w, h)});
    PictureBox* p1 = f.main.Picture1;
    PictureBox* p3 = f.main.Picture3;
    QVERIFY(p3->isVisible());
    QCOMPARE(f.main.Picture2->size(), QSize(0, 0)); // the measuring rectangle is spent
    const double fit = qMax(w / double(p1->width()), h / double(p1->height()));
    QVERIFY(qAbs(p3->width() - w / fit) <= 1);
    QVERIFY(qAbs(p3->height() - h / fit) <= 1);
    // Centred in the other direction, flush in the one that fits.
    QVERIFY(qAbs(p3->x() - (p1->width() - p3->width()) / 2) <= 1);
    QVERIFY(qAbs(p3->y() - (p1->height() - p3->height()) / 2) <= 1);
    saveShot(&f.main, QStringLiteral("FormMain_fitted_") + QTest::currentDataTag());
}

void TestFormMainPicture::exactlyAsWideTakesTheShrinkPath()
{
    MainFixture f;
    f.main.showForm();
    const int width = f.main.Picture1->width();
    f.open({f.picture("edge.png", width, 40)});
    QCOMPARE(f.main.FitRatio, 1.0);
    QVERIFY(f.main.Picture3->isVisible());
    QCOMPARE(f.main.Picture3->size(), QSize(width, 40));
}

void TestFormMainPicture::tallPictureAtItsOwnSizeOpensAtItsMiddle()
{
    MainFixture f;
    f.main.showForm(); // loading takes the box from the record
    f.main.CheckOriginalSize->setChecked(true);
    f.open({f.picture("tall.png", 300, 2000)});
    PictureBox* p2 = f.main.Picture2;
    QScrollBar* bar = f.main.VScroll1;
    const int excess = int(twHeight(p2) - twHeight(f.main.Picture1));
    QCOMPARE(f.main.ExcessHeight, excess);
    QCOMPARE(bar->maximum(), int(excess * 1.1 / 15));
    QCOMPARE(bar->value(), bar->maximum() / 2);
    // Opens at its middle: the top is above the area.
    QVERIFY(twTop(p2) < 0 && twTop(p2) > -excess);
    bar->setValue(0);
    QCOMPARE(twTop(p2), 0.f); // not Picture1's top: clamped at 0
    bar->setValue(bar->maximum());
    QCOMPARE(twTop(p2), float(-excess));
    saveShot(&f.main, QStringLiteral("FormMain_tall_original_size"));
}

void TestFormMainPicture::badPicturesLeaveTheAreaBlank_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("zero bytes") << QByteArray();
    QTest::newRow("truncated JPEG") << QByteArray("\xFF\xD8\xFF\xE0\x00\x10JFIF\x00", 11);
}

void TestFormMainPicture::badPicturesLeaveTheAreaBlank()
{
    MainFixture f;
    f.home.writeFile("bad.jpg", FETCH(QByteArray, bytes));
    f.open({f.picture("good.png", 50, 50), QStringLiteral("C:\\bad.jpg")});
    QVERIFY(f.main.Picture2->hasPicture());
    QTest::mouseClick(f.main.CommandRight, Qt::LeftButton);
    QVERIFY(!f.main.Picture2->hasPicture()); // not the last page's picture
    QVERIFY(!f.main.Picture3->isVisible() || f.main.Picture3->picture().isNull());
    QCOMPARE(f.main.TextFileName->text(), QStringLiteral("C:\\bad.jpg"));
}

void TestFormMainPicture::hugePictureStaysBounded()
{
    MainFixture f;
    {
        QImage huge(20000, 20000, QImage::Format_Mono); // 48 KB as a PNG
        huge.fill(0);
        QVERIFY(huge.save(f.home.native("huge.png")));
    }
    const auto peakKb = [] {
        QFile status(QStringLiteral("/proc/self/status"));
        status.open(QIODevice::ReadOnly);
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:"))
                return line.mid(6).trimmed().split(' ').first().toLong();
        }
        return 0L;
    };
    const long before = peakKb();
    f.main.CheckOriginalSize->setChecked(false);
    f.open({QStringLiteral("C:\\huge.png")});
    f.main.CheckOriginalSize->setChecked(true);
    f.main.Form_Resize(); // and at its own size
    f.main.repaint();
    QVERIFY2(peakKb() - before < 300 * 1024, "a 20000 by 20000 picture is refused, not decoded");
    QVERIFY(f.main.Picture3->picture().isNull());
}

void TestFormMainPicture::allowanceMarksOnlyLargeWebPages_data()
{
    QTest::addColumn<int>("allowance");
    QTest::addColumn<int>("excessTwips");
    QTest::addColumn<bool>("large");
    QTest::newRow("default 20, excess 2100") << 20 << 2100 << true;
    QTest::newRow("default 20, excess 2085") << 20 << 2085 << false;
    QTest::newRow("allowance 40, excess 3000") << 40 << 3000 << false;
}

void TestFormMainPicture::allowanceMarksOnlyLargeWebPages()
{
    MainFixture f;
    f.main.showForm();
    f.state.PictureSizeAllowVal = FETCH(int, allowance);
    // The web page's rectangle stands in Picture2.
    twResize(f.main.Picture2, twWidth(f.main.Picture1),
             twHeight(f.main.Picture1) + FETCH(int, excessTwips));
    f.main.LargePictureFlag = false;
    f.main.SetWebScrollBars();
    QCOMPARE(f.main.LargePictureFlag, FETCH(bool, large));
    QVERIFY(f.main.VScroll1->isVisibleTo(&f.main));
}

QTEST_MAIN(TestFormMainPicture)
#include "tst_FormMainPicture.moc"
