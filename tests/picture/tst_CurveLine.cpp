// The curve of the line tool: knots, bases and points of open and closed
// curves, checked against a de Boor evaluation (open) and the closed form of
// the uniform B-spline (closed) written here in double precision; the ends,
// the last span's closing test, the loop of the closed curve, orders above
// the number of points, and the drawing of a curve on a canvas.
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
    void knots_data();
    void knots();
    void openCurveEndsOnItsEndPoints_data();
    void openCurveEndsOnItsEndPoints();
    void lastSpanHoldsTheEndOfTheRange();
    void pointsAgreeWithAnIndependentEvaluation_data();
    void pointsAgreeWithAnIndependentEvaluation();
    void closedCurveJoinsItselfAndShiftsRoundTheLoop_data();
    void closedCurveJoinsItselfAndShiftsRoundTheLoop();
    void zeroWidthSpansAddNothing();
    void xIsKeptAsTextAndYAsNumber();
    void orderAboveThePointsDrawsOnlyTheClosingLine();
    void traceDrawsThroughTheEnds();
};

void TestCurveLine::knots_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("order");
    QTest::addColumn<bool>("closed");
    QTest::addColumn<QList<int>>("knots"); // Knot(0), Knot(1), ...
    QTest::newRow("open, 5 points, order 3")
        << 5 << 3 << false << QList<int>{0, 0, 0, 1, 2, 3, 3, 3};
    QTest::newRow("open, 3 points, order 3") << 3 << 3 << false << QList<int>{0, 0, 0, 1, 1, 1};
    QTest::newRow("open, 4 points, order 2") << 4 << 2 << false << QList<int>{0, 0, 1, 2, 3, 3};
    QTest::newRow("closed: the index itself") << 4 << 3 << true << QList<int>{0, 1, 2, 3, 4, 5, 6};
}

void TestCurveLine::knots()
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

void TestCurveLine::openCurveEndsOnItsEndPoints_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<int>("order");
    QTest::addColumn<float>("maxT");
    QTest::newRow("N 2, K 3: one span") << Points{{10, 10}, {50, 90}, {90, 10}} << 3 << 1.0f;
    QTest::newRow("N 4, K 3") << kFive << 3 << 3.0f;
    QTest::newRow("N 4, K 4") << kFive << 4 << 2.0f;
    QTest::newRow("N 6, K 2: a polyline") << kSeven << 2 << 6.0f;
}

void TestCurveLine::openCurveEndsOnItsEndPoints()
{
    QFETCH(Points, points);
    const CurveLine curve = curveOf(points, FETCH(int, order), false);
    QCOMPARE(curve.CurveMaxT, FETCH(float, maxT));
    QCOMPARE(QPointF(curve.X(0), curve.Y(0)), points.first());
    QCOMPARE(QPointF(curve.X(curve.CurveMaxT), curve.Y(curve.CurveMaxT)), points.last());
}

void TestCurveLine::lastSpanHoldsTheEndOfTheRange()
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

void TestCurveLine::pointsAgreeWithAnIndependentEvaluation_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<int>("order");
    QTest::addColumn<bool>("closed");
    QTest::newRow("open, order 3") << kFive << 3 << false;
    QTest::newRow("open, order 4") << kSeven << 4 << false;
    QTest::newRow("open, order 5") << kSeven << 5 << false;
    QTest::newRow("closed, order 3") << kFive << 3 << true;
    QTest::newRow("closed, order 4") << kSeven << 4 << true;
    QTest::newRow("closed, order as many as the points") << kFive << 5 << true;
}

void TestCurveLine::pointsAgreeWithAnIndependentEvaluation()
{
    QFETCH(Points, points);
    QFETCH(int, order);
    QFETCH(bool, closed);
    const CurveLine curve = curveOf(points, order, closed);
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

void TestCurveLine::closedCurveJoinsItselfAndShiftsRoundTheLoop_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<int>("order");
    QTest::newRow("five points, order 3") << kFive << 3;
    QTest::newRow("seven points, order 4") << kSeven << 4;
}

void TestCurveLine::closedCurveJoinsItselfAndShiftsRoundTheLoop()
{
    QFETCH(Points, points);
    QFETCH(int, order);
    const CurveLine curve = curveOf(points, order, true);
    const float loop = float(points.size());
    QCOMPARE(curve.CurveMaxT, loop);
    QCOMPARE(curve.X(0), curve.X(loop));
    QCOMPARE(curve.Y(0), curve.Y(loop));
    for (qint16 i = 1; i < points.size(); ++i) {
        for (float t : {0.0f, 0.75f, 1.5f, loop - 0.5f}) {
            const float moved = std::fmod(t - i + loop, loop);
            QCOMPARE(curve.Blend(i, qint16(order), t), curve.Blend(0, qint16(order), moved));
        }
    }
}

void TestCurveLine::zeroWidthSpansAddNothing()
{
    // Three points of order 3: the clamped knots 0 0 0 1 1 1 leave spans of
    // no width at both ends; each is passed over, never divided by.
    const CurveLine curve = curveOf(Points{{0, 0}, {50, 100}, {100, 0}}, 3, false);
    QCOMPARE(curve.Blend(0, 3, 0.5f), 0.25f);
    QCOMPARE(curve.Blend(1, 3, 0.5f), 0.5f);
    QCOMPARE(curve.Blend(2, 3, 0.5f), 0.25f);
    QCOMPARE(QPointF(curve.X(0.5f), curve.Y(0.5f)), QPointF(50, 50));
}

void TestCurveLine::xIsKeptAsTextAndYAsNumber()
{
    CurveLine curve;
    curve.addPoint(12.5f, 7.25f);
    curve.addPoint(300, 40);
    QCOMPARE(curve.CurveLastPoint, qint16(1));
    QCOMPARE(curve.CurveX, (QStringList{"12.5", "300"}));
    QCOMPARE(curve.CurveY, (QList<float>{7.25f, 40}));
    // X is read from its text at each use.
    curve.CurveX[1] = QStringLiteral("abc");
    QCOMPARE(curve.pointX(1), 0.0f);
    curve.clear();
    QCOMPARE(curve.CurveLastPoint, qint16(-1));
    QVERIFY(curve.CurveX.isEmpty() && curve.CurveY.isEmpty() && curve.CurveNewLine);
}

void TestCurveLine::orderAboveThePointsDrawsOnlyTheClosingLine()
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

void TestCurveLine::traceDrawsThroughTheEnds()
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

QTEST_GUILESS_MAIN(TestCurveLine)
#include "tst_CurveLine.moc"
