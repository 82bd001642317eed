// The picture reader and writer: photos upright by their EXIF orientation,
// at their own size and scaled; pictures refused by the size their header
// declares; 16-bit pictures read straight to 8 bits; a pipe never opened;
// saves whole and without an orientation tag.
#include "platform/PictureFile.h"

#include "support/Fetch.h"
#include "support/OddFiles.h"
#include "support/PictureSamples.h"
#include "support/TestHome.h"

#include <QElapsedTimer>
#include <QFile>
#include <QImageReader>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

long peakKilobytes()
{
    QFile status(u"/proc/self/status"_s);
    status.open(QIODevice::ReadOnly);
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    return 0;
}

bool near(QColor a, QColor b)
{
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 60;
}

} // namespace

class TestPictureFile : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void photoStandsUpright_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<bool>("turned"); // stands 32 wide and 64 high
        QTest::addColumn<QColor>("topLeft");
        QTest::addColumn<QColor>("bottomRight");
        QTest::newRow("1 as stored") << 1 << false << QColor(Qt::red) << QColor(Qt::yellow);
        QTest::newRow("2 mirrored") << 2 << false << QColor(Qt::green) << QColor(Qt::blue);
        QTest::newRow("3 half a turn") << 3 << false << QColor(Qt::yellow) << QColor(Qt::red);
        QTest::newRow("4 flipped") << 4 << false << QColor(Qt::blue) << QColor(Qt::green);
        QTest::newRow("5 transposed") << 5 << true << QColor(Qt::red) << QColor(Qt::yellow);
        QTest::newRow("6 a quarter clockwise")
            << 6 << true << QColor(Qt::blue) << QColor(Qt::green);
        QTest::newRow("7 transversed") << 7 << true << QColor(Qt::yellow) << QColor(Qt::red);
        QTest::newRow("8 a quarter back") << 8 << true << QColor(Qt::green) << QColor(Qt::blue);
    }
    void photoStandsUpright()
    {
        const TestHome home;
        const QString path = home.writeFile(
            "photo.jpg", jpegWithOrientation(quarteredPicture(), FETCH(int, orientation)));
        const QSize upright = FETCH(bool, turned) ? QSize(32, 64) : QSize(64, 32);
        QCOMPARE(pictureSize(path), upright);
        const QImage whole = readPicture(path);
        QCOMPARE(whole.size(), upright);
        QVERIFY(near(whole.pixelColor(0, 0), FETCH(QColor, topLeft)));
        QVERIFY(near(whole.pixelColor(upright.width() - 1, upright.height() - 1),
                     FETCH(QColor, bottomRight)));
        // Scaled as it will be shown: the size asked for is the upright one.
        const QImage half = readPicture(path, upright / 2);
        QCOMPARE(half.size(), upright / 2);
        QVERIFY(near(half.pixelColor(0, 0), FETCH(QColor, topLeft)));
    }

    void costlyPicturesAreRefused_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("bits");
        QTest::newRow("30000 by 30000, 8 bits (900 megapixels)") << 30000 << 8;
        QTest::newRow("8000 by 8000, 16 bits (512 MB decoded)") << 8000 << 16;
    }
    // Valid pictures, a few megabytes on disk: refused by their header in
    // milliseconds, with nothing decoded.
    void costlyPicturesAreRefused()
    {
        const TestHome home;
        const int size = FETCH(int, size);
        const QString path = home.writeFile("costly.png", uniformPng(size, size, FETCH(int, bits)));
        QCOMPARE(QImageReader(path).size(), QSize(size, size)); // a picture as declared
        const long before = peakKilobytes();
        QElapsedTimer timer;
        timer.start();
        QCOMPARE(pictureSize(path), QSize());
        QVERIFY(readPicture(path).isNull());
        QVERIFY(readPicture(path, QSize(800, 800)).isNull());
        QVERIFY2(timer.elapsed() < 200, qPrintable(u"%1 ms"_s.arg(timer.elapsed())));
        QVERIFY(peakKilobytes() - before < 50 * 1024);
    }

    // 3000 by 3000 at 16 bits: 72 MB at its own depth, read at 300 by 300
    // without ever holding it (nor its 36 MB 8-bit copy).
    void deepPictureReadsStraightToEightBits()
    {
        const TestHome home;
        const QString path = home.writeFile("deep.png", uniformPng(3000, 3000, 16, 0x40));
        QCOMPARE(pictureSize(path), QSize(3000, 3000));
        const long before = peakKilobytes();
        const QImage shown = readPicture(path, QSize(300, 300));
        QVERIFY(peakKilobytes() - before < 24 * 1024);
        QCOMPARE(shown.size(), QSize(300, 300));
        QCOMPARE(shown.depth(), 32);
        QCOMPARE(shown.pixelColor(0, 0), QColor(0x40, 0x40, 0x40));
        QCOMPARE(shown.pixelColor(299, 299), QColor(0x40, 0x40, 0x40));

        // A small one at its own size, colours kept to 8 bits.
        QImage deep(3, 2, QImage::Format_RGBX64);
        deep.fill(QColor::fromRgba64(0xFFFF, 0x8000, 0x0000));
        QVERIFY(deep.save(home.native("small.png")));
        const QImage read = readPicture(home.native("small.png"));
        QCOMPARE(read.size(), QSize(3, 2));
        QCOMPARE(read.depth(), 32);
        QCOMPARE(read.pixelColor(2, 1), QColor(0xFF, 0x80, 0x00));
    }

    void pipeIsNeverOpened()
    {
        const Watchdog watchdog(20);
        const TestHome home;
        const QString path = home.native("next.jpg");
        QVERIFY(makeOddFile(OddFile::Pipe, path));
        QCOMPARE(pictureSize(path), QSize());
        QVERIFY(readPicture(path).isNull());
        QVERIFY(!writePicture(quarteredPicture(), path, "png"));
        QCOMPARE(describePath(path), u"pipe"_s);
    }

    // A photo read upright is saved upright, and reads back the same way.
    void savedPictureStandsWithoutATag()
    {
        const TestHome home;
        const QString photo =
            home.writeFile("photo.jpg", jpegWithOrientation(quarteredPicture(), 6));
        for (const char* format : {"png", "jpg"}) {
            const QString saved = home.native(u"saved."_s + QLatin1String(format));
            QVERIFY(writePicture(readPicture(photo), saved, format));
            QImageReader back(saved);
            QCOMPARE(back.transformation(), QImageIOHandler::TransformationNone);
            const QImage read = readPicture(saved);
            QCOMPARE(read.size(), QSize(32, 64));
            QVERIFY(near(read.pixelColor(0, 0), Qt::blue));
        }
    }
};

QTEST_MAIN(TestPictureFile)
#include "tst_PictureFile.moc"
