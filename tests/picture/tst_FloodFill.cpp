// The paint tool's flood fill on small maps drawn as text ('#' black, '.'
// white, 'r' red, 'g' green; the fill paints 'y' yellow): the border kind
// and the surface kind, 4-connected, the refusals, and a 24-megapixel
// picture whose one region winds through the whole of it.
#include "picture/FloodFill.h"
#include "support/Fetch.h"

#include <QElapsedTimer>
#include <QImage>
#include <QTest>

using namespace lumen;

namespace {

QRgb colourOf(QChar c)
{
    switch (c.toLatin1()) {
    case '#':
        return qRgb(0, 0, 0);
    case 'r':
        return qRgb(255, 0, 0);
    case 'g':
        return qRgb(0, 160, 0);
    case 'y':
        return qRgb(255, 255, 0);
    default:
        return qRgb(255, 255, 255);
    }
}

QChar charOf(QRgb pixel)
{
    for (QChar c : {'#', 'r', 'g', 'y', '.'})
        if ((pixel & 0xFFFFFF) == (colourOf(c) & 0xFFFFFF))
            return c;
    return '?';
}

QImage imageOf(const QStringList& map)
{
    QImage image(int(map.first().size()), int(map.size()), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, colourOf(map[y][x]));
    return image;
}

QStringList mapOf(const QImage& image)
{
    QStringList map;
    for (int y = 0; y < image.height(); ++y) {
        QString row;
        for (int x = 0; x < image.width(); ++x)
            row += charOf(image.pixel(x, y));
        map << row;
    }
    return map;
}

} // namespace

class TestFloodFill : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fill_data()
    {
        QTest::addColumn<QStringList>("map");
        QTest::addColumn<QPoint>("seed");
        QTest::addColumn<int>("type");
        QTest::addColumn<QChar>("colour"); // the border's or the surface's
        QTest::addColumn<bool>("filled");
        QTest::addColumn<QStringList>("after");
        const int border = int(FillType::Border);
        const int surface = int(FillType::Surface);

        QTest::newRow("border: the bounded region only")
            << QStringList{"........", ".####...", ".#..#...", ".#.r#...", ".####...", "........"}
            << QPoint(2, 2) << border << QChar('#') << true
            << QStringList{"........", ".####...", ".#yy#...", ".#yy#...", ".####...", "........"};
        QTest::newRow("border: a diagonal of the colour stops it")
            << QStringList{"...#", "..#.", ".#..", "#..."} << QPoint(0, 0) << border << QChar('#')
            << true << QStringList{"yyy#", "yy#.", "y#..", "#..."};
        QTest::newRow("border: a one-pixel gap lets it through")
            << QStringList{"..#..", "..#..", ".....", "..#.."} << QPoint(0, 0) << border
            << QChar('#') << true << QStringList{"yy#yy", "yy#yy", "yyyyy", "yy#yy"};
        QTest::newRow("border: none of the colour floods the whole picture")
            << QStringList{"..r.", "g...", "...#"} << QPoint(1, 1) << border << QChar('y') << true
            << QStringList{"yyyy", "yyyy", "yyyy"};
        QTest::newRow("border: filled in the border's own colour")
            << QStringList{"yyyy", "y.#y", "yyyy", "...."} << QPoint(1, 1) << border << QChar('y')
            << true << QStringList{"yyyy", "yyyy", "yyyy", "...."};
        QTest::newRow("border: a click on the border fills nothing")
            << QStringList{"#..", "#.."} << QPoint(0, 1) << border << QChar('#') << false
            << QStringList{"#..", "#.."};
        QTest::newRow("surface: the connected pixels of the colour")
            << QStringList{"rr.rr", "r..#r", "rrr.r", "....."} << QPoint(0, 0) << surface
            << QChar('r') << true << QStringList{"yy.rr", "y..#r", "yyy.r", "....."};
        QTest::newRow("surface: a diagonal step doesn't join")
            << QStringList{"r.", ".r"} << QPoint(0, 0) << surface << QChar('r') << true
            << QStringList{"y.", ".r"};
        QTest::newRow("surface: a click on another colour changes nothing")
            << QStringList{"r.", ".r"} << QPoint(1, 0) << surface << QChar('r') << false
            << QStringList{"r.", ".r"};
        QTest::newRow("surface: filled in its own colour, nothing changes")
            << QStringList{"y.", "yy"} << QPoint(0, 0) << surface << QChar('y') << true
            << QStringList{"y.", "yy"};
        QTest::newRow("a seed outside the picture")
            << QStringList{"..", ".."} << QPoint(2, 0) << border << QChar('#') << false
            << QStringList{"..", ".."};
    }

    void fill()
    {
        QFETCH(QStringList, map);
        QFETCH(QPoint, seed);
        QImage image = imageOf(map);
        const bool filled = ExtFloodFill(image, seed.x(), seed.y(), colourOf(FETCH(QChar, colour)),
                                         colourOf('y'), FillType(FETCH(int, type)));
        QCOMPARE(filled, FETCH(bool, filled));
        QCOMPARE(mapOf(image), FETCH(QStringList, after));
    }

    void windingRegionOfTwentyFourMegapixels()
    {
        // 6000 by 4000, black walls every other column with the gap alternately
        // at the top and the bottom: one white corridor through the whole
        // picture, which a fill that recursed per pixel couldn't follow.
        QImage image(6000, 4000, QImage::Format_RGB32);
        image.fill(Qt::white);
        for (int x = 1; x < image.width(); x += 2) {
            const int gap = (x / 2) % 2 == 0 ? image.height() - 1 : 0;
            for (int y = 0; y < image.height(); ++y)
                if (y != gap)
                    image.setPixel(x, y, qRgb(0, 0, 0));
        }
        QElapsedTimer timer;
        timer.start();
        QVERIFY(ExtFloodFill(image, 0, 0, qRgb(0, 0, 0), qRgb(255, 255, 0), FillType::Border));
        qInfo("border fill of the winding region: %lld ms", timer.elapsed());
        QCOMPARE(image.pixel(5998, 1234), qRgb(255, 255, 0));
        QCOMPARE(image.pixel(5999, 0), qRgb(255, 255, 0)); // the last gap
        QCOMPARE(image.pixel(5999, 3999), qRgb(0, 0, 0));
        QVERIFY(ExtFloodFill(image, 0, 0, qRgb(255, 255, 0), qRgb(0, 0, 255), FillType::Surface));
        QCOMPARE(image.pixel(5998, 3999), qRgb(0, 0, 255));
    }
};

QTEST_GUILESS_MAIN(TestFloodFill)
#include "tst_FloodFill.moc"
