// The curve of the line tool: knots, and points of open and closed curves
// checked against a de Boor evaluation (open) and the closed form of the
// uniform B-spline (closed) written here in double precision; the last
// span's closing test, X kept as text, orders above the number of points,
// and the drawing of a curve on a canvas.
#include "display/DrawSettings.h"
#include "picture/Canvas.h"
#include "picture/CurveLine.h"
#include "support/Fetch.h"

#include <QImage>
#include <QPointF>
#include <QTest>

#include <cmath>
#include <vector>

using namespace lumen;

namespace {

using Points = QList<QPointF>;

CurveLine curveOf(const Points& points, int order, bool closed)
{
    CurveLine curve;
    curve.closed = [closed] { return closed; };
    for (const QPointF& p : points)
        curve.addPoint(float(p.x()), float(p.y()));
    curve.CurveOrder = qint16(order);
    curve.CurveMaxT = curve.maxT(closed);
    return curve;
}

// The clamped uniform knots of an open curve of n + 1 points and order k.
std::vector<double> openKnots(int n, int k)
{
    std::vector<double> knots;
    for (int j = 0; j <= n + k; ++j)
        knots.push_back(j < k ? 0 : j <= n ? j - k + 1 : n - k + 2);
    return knots;
}

// De Boor's algorithm on the clamped knots (the end of the range in the
// last span that isn't empty).
QPointF deBoor(const Points& points, int k, double t)
{
    const int n = int(points.size()) - 1;
    const std::vector<double> u = openKnots(n, k);
    int span = k - 1;
    while (span < n && !(t >= u[size_t(span)] && t < u[size_t(span) + 1]))
        ++span;
    const int p = k - 1;
    std::vector<QPointF> d;
    for (int j = 0; j <= p; ++j)
        d.push_back(points[j + span - p]);
    for (int r = 1; r <= p; ++r) {
        for (int j = p; j >= r; --j) {
            const double lo = u[size_t(j + span - p)];
            const double hi = u[size_t(j + 1 + span - r)];
            const double alpha = hi == lo ? 0 : (t - lo) / (hi - lo);
            d[size_t(j)] = (1 - alpha) * d[size_t(j) - 1] + alpha * d[size_t(j)];
        }
    }
    return d[size_t(p)];
}

// The uniform B-spline of order k on [0, k), in closed form.
double cardinal(int k, double x)
{
    double sum = 0;
    double choose = 1;
    for (int j = 0; j <= k; ++j) {
        const double part = x - j;
        if (part > 0)
            sum += (j % 2 ? -1 : 1) * choose * std::pow(part, k - 1);
        choose = choose * (k - j) / (j + 1);
    }
    return sum / std::tgamma(k);
}

// The closed curve: each point's basis is the first one moved round the loop.
QPointF periodic(const Points& points, int k, double t)
{
    const int loop = int(points.size());
    QPointF sum;
    for (int i = 0; i < loop; ++i)
        sum += cardinal(k, std::fmod(t - i + 2 * loop, loop)) * points[i];
    return sum;
}

const Points kFive = {{10, 20}, {60, 110}, {140, 90}, {200, 30}, {120, 10}};
const Points kSeven = {{5, 5}, {40, 80}, {90, 100}, {150, 60}, {170, 10}, {120, -20}, {60, -10}};

} // namespace

class TestCurveLine : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void knots_data()
    {
        QTest::addColumn<int>("points");
        QTest::addColumn<int>("order");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<QList<int>>("knots"); // Knot(0), Knot(1), ...
        QTest::newRow("open, 5 points, order 3")
            << 5 << 3 << false << QList<int>{0, 0, 0, 1, 2, 3, 3, 3};
        QTest::newRow("open, 3 points, order 3") << 3 << 3 << false << QList<int>{0, 0, 0, 1, 1, 1};
        QTest::newRow("open, 4 points, order 2") << 4 << 2 << false << QList<int>{0, 0, 1, 2, 3, 3};
        QTest::newRow("closed: the index itself")
            << 4 << 3 << true << QList<int>{0, 1, 2, 3, 4, 5, 6};
    }
    void knots()
    {
        Points points;
        for (int i = 0; i < FETCH(int, points); ++i)
            points << QPointF(i, i);
        const CurveLine curve = curveOf(points, FETCH(int, order), FETCH(bool, closed));
        QList<int> knots;
        for (int i = 0; i < FETCH(QList<int>, knots).size(); ++i)
            knots << curve.Knot(qint16(i));
        QCOMPARE(knots, FETCH(QList<int>, knots));
    }

    // Every quarter step of the range, its ends included: an open curve
    // starts and ends on its end points, a closed one joins itself.
    void pointsAgreeWithAnIndependentEvaluation_data()
    {
        QTest::addColumn<Points>("points");
        QTest::addColumn<int>("order");
        QTest::addColumn<bool>("closed");
        QTest::addColumn<float>("maxT");
        // Clamped knots 0 0 0 1 1 1: spans of no width at both ends, passed
        // over, never divided by.
        QTest::newRow("open, 3 points, order 3: one span")
            << Points{{0, 0}, {50, 100}, {100, 0}} << 3 << false << 1.0f;
        QTest::newRow("open, order 3") << kFive << 3 << false << 3.0f;
        QTest::newRow("open, order 4") << kSeven << 4 << false << 4.0f;
        QTest::newRow("open, order 5") << kSeven << 5 << false << 3.0f;
        QTest::newRow("open, order 2: a polyline") << kSeven << 2 << false << 6.0f;
        QTest::newRow("closed, order 3") << kFive << 3 << true << 5.0f;
        QTest::newRow("closed, order 4") << kSeven << 4 << true << 7.0f;
        QTest::newRow("closed, order as many as the points") << kFive << 5 << true << 5.0f;
    }
    void pointsAgreeWithAnIndependentEvaluation()
    {
        QFETCH(Points, points);
        QFETCH(int, order);
        QFETCH(bool, closed);
        const CurveLine curve = curveOf(points, order, closed);
        QCOMPARE(curve.CurveMaxT, FETCH(float, maxT));
        if (!closed) {
            QCOMPARE(QPointF(curve.X(0), curve.Y(0)), points.first());
            QCOMPARE(QPointF(curve.X(curve.CurveMaxT), curve.Y(curve.CurveMaxT)), points.last());
        }
        for (float t = 0; t <= curve.CurveMaxT; t += 0.25f) {
            const QPointF expected = closed ? periodic(points, order, t) : deBoor(points, order, t);
            QVERIFY2(std::abs(curve.X(t) - expected.x()) < 1e-3 &&
                         std::abs(curve.Y(t) - expected.y()) < 1e-3,
                     qPrintable(QStringLiteral("T %1: (%2, %3), expected (%4, %5)")
                                    .arg(t)
                                    .arg(curve.X(t))
                                    .arg(curve.Y(t))
                                    .arg(expected.x())
                                    .arg(expected.y())));
        }
    }

    void lastSpanHoldsTheEndOfTheRange()
    {
        CurveLine curve = curveOf(kFive, 3, false);
        const float end = curve.CurveMaxT;
        QCOMPARE(curve.Blend(4, 3, end), 1.0f);
        // Without the closing test the last span is open at its end, and every
        // basis is 0 there: the curve would end at the origin.
        curve.CurveMaxT = end + 1;
        QCOMPARE(curve.Blend(4, 3, end), 0.0f);
        QCOMPARE(QPointF(curve.X(end), curve.Y(end)), QPointF(0, 0));
    }

    // X is kept as text and read from it at each use.
    void xReadFromItsText()
    {
        CurveLine curve = curveOf(Points{{12.5, 7.25}, {300, 40}}, 2, false);
        QCOMPARE(curve.CurveX, (QStringList{"12.5", "300"}));
        curve.CurveX[1] = QStringLiteral("abc");
        QCOMPARE(curve.pointX(1), 0.0f);
        QCOMPARE(curve.X(curve.CurveMaxT), 0.0f);
    }

    void orderAboveThePointsDrawsOnlyTheClosingLine()
    {
        // Two points of order 3: the range is 0 long, so the steps are never
        // drawn; the closing line goes to the curve's point at the end, the origin.
        const CurveLine curve = curveOf(Points{{20, 20}, {30, 30}}, 3, false);
        QCOMPARE(curve.CurveMaxT, 0.0f);
        QImage image(40, 40, QImage::Format_RGB32);
        image.fill(Qt::white);
        DrawSettings settings;
        settings.ScaleMode = kScalePixels;
        Canvas canvas(image, settings);
        traceCurve(canvas, curve, 0, curve.CurveMaxT, 0.05f);
        QCOMPARE(image.pixel(0, 0), qRgb(0, 0, 0));
        QCOMPARE(image.pixel(20, 20), qRgb(255, 255, 255));
        QCOMPARE(image.pixel(30, 30), qRgb(255, 255, 255));
        QCOMPARE(QPointF(settings.CurrentX, settings.CurrentY), QPointF(0, 0));
    }

    void traceDrawsThroughTheEnds()
    {
        const Points points = {{10, 30}, {40, 5}, {70, 55}, {100, 30}};
        const CurveLine curve = curveOf(points, 3, false);
        QImage image(120, 70, QImage::Format_RGB32);
        image.fill(Qt::white);
        DrawSettings settings;
        settings.ScaleMode = kScalePixels;
        settings.ForeColor = 0x0000FF;
        Canvas canvas(image, settings);
        traceCurve(canvas, curve, 0, curve.CurveMaxT, 0.05f);
        const QRgb red = qRgb(255, 0, 0);
        QCOMPARE(image.pixel(10, 30), red);
        QCOMPARE(image.pixel(100, 30), red);
        // The curve's middle, from the independent evaluation.
        const QPointF middle = deBoor(points, 3, curve.CurveMaxT / 2);
        bool near = false;
        for (int dy = -1; dy <= 1; ++dy)
            for (int dx = -1; dx <= 1; ++dx)
                near = near || image.pixel(int(middle.x()) + dx, int(middle.y()) + dy) == red;
        QVERIFY(near);
        // The control points in between aren't on the curve.
        QCOMPARE(image.pixel(40, 5), qRgb(255, 255, 255));
    }
};

QTEST_GUILESS_MAIN(TestCurveLine)
#include "tst_CurveLine.moc"
