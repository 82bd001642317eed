#include "picture/CurveLine.h"

#include "picture/Canvas.h"
#include "platform/Basic.h"

namespace lumen {

void CurveLine::clear()
{
    CurveLastPoint = -1;
    CurveX.clear();
    CurveY.clear();
    CurveNewLine = true;
}

void CurveLine::addPoint(float x, float y)
{
    ++CurveLastPoint;
    CurveX.resize(CurveLastPoint + 1);
    CurveY.resize(CurveLastPoint + 1);
    setPoint(CurveLastPoint, x, y);
}

void CurveLine::setPoint(int i, float x, float y)
{
    if (i < 0 || i > CurveLastPoint)
        return;
    CurveX[i] = singleText(x);
    CurveY[i] = y;
}

float CurveLine::pointX(int i) const
{
    return float(basic::Val(CurveX.value(i)));
}

QString CurveLine::singleText(float value)
{
    return QString::number(double(value), 'g', 7);
}

float CurveLine::maxT(bool isClosed) const
{
    const int n = CurveLastPoint;
    return isClosed ? float(n + 1) : float(n - CurveOrder + 2);
}

qint16 CurveLine::Knot(qint16 i) const
{
    if (closed())
        return i;
    const qint16 n = CurveLastPoint;
    const qint16 k = CurveOrder;
    if (i < k)
        return 0;
    if (i <= n)
        return qint16(i - k + 1);
    return qint16(n - k + 2);
}

float CurveLine::blendOpen(qint16 i, qint16 k, float t) const
{
    if (k > 1) {
        // Differences of knots in 16 bits; a span of no width adds nothing.
        const auto d1 = qint16(Knot(qint16(i + k - 1)) - Knot(i));
        float a = 0;
        if (d1 != 0)
            a = (t - float(Knot(i))) * Blend(i, qint16(k - 1), t) / float(d1);
        const auto d2 = qint16(Knot(qint16(i + k)) - Knot(qint16(i + 1)));
        float b = 0;
        if (d2 != 0)
            b = (float(Knot(qint16(i + k))) - t) * Blend(qint16(i + 1), qint16(k - 1), t) /
                float(d2);
        return a + b;
    }
    if (k == 1) {
        const float from = Knot(i);
        const float to = Knot(qint16(i + 1));
        if (from <= t && t < to)
            return 1;
        // The very end of the range belongs to the last span.
        if (t == CurveMaxT && from <= t && t <= to)
            return 1;
    }
    return 0; // an order below 1 has no basis
}

float CurveLine::Blend(qint16 i, qint16 k, float t) const
{
    if (i > 0 && closed()) {
        // Every basis of the closed curve is the first one shifted round the loop.
        const qint16 n = CurveLastPoint;
        const float loop = float(n + 1);
        float t2 = t - float(i) + float(n) + 1.0f;
        while (t2 >= loop)
            t2 -= loop;
        while (t2 < 0)
            t2 += loop;
        return Blend(0, k, t2);
    }
    return blendOpen(i, k, t);
}

float CurveLine::Y(float t) const
{
    float sum = 0;
    for (qint16 i = 0; i <= CurveLastPoint; ++i)
        sum += Blend(i, CurveOrder, t) * CurveY.value(i);
    return sum;
}

float CurveLine::X(float t) const
{
    double sum = 0;
    for (qint16 i = 0; i <= CurveLastPoint; ++i)
        sum += double(Blend(i, CurveOrder, t)) * basic::Val(CurveX.value(i));
    return float(sum);
}

void traceCurve(Canvas& canvas, const CurveLine& curve, float start, float end, float step)
{
    const float px = curve.X(start);
    const float py = curve.Y(start);
    DrawSettings& settings = canvas.settings();
    settings.CurrentX = px;
    settings.CurrentY = py;
    float t = start + step;
    while (t < end) {
        canvas.LineTo(curve.X(t), curve.Y(t));
        t += step;
    }
    canvas.LineTo(curve.X(end), curve.Y(end));
}

} // namespace lumen
