// The curve of the line tool: a uniform B-spline of order K through the
// clicked control points, evaluated by the Cox-de Boor recursion, clamped at
// both ends when open and periodic when closed. The numbers are kept as the
// tool has always kept them: X of each point as the text of a single, parsed
// back at each use, Y as a single; knots and their differences in 16 bits;
// the bases and Y's sum in single precision, X's sum in double precision.
// Open or closed is asked at each call.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace lumen {

class Canvas;

class CurveLine {
public:
    qint16 CurveLastPoint = -1; // N, the highest point index; -1 without points
    QStringList CurveX;         // X of each point, as text
    QList<float> CurveY;        // Y of each point
    qint16 CurveOrder = 3;      // K
    float CurveMaxT = 0;        // end of the parameter range
    bool CurveNewLine = true;   // a click adds a point (else it grabs one)

    // OptionSplineClose.Value, read at each call.
    std::function<bool()> closed = [] { return false; };

    // No points; a click adds one.
    void clear();
    // Grows both arrays by one (a preserving resize) and stores the point.
    void addPoint(float x, float y);
    // Stores (x, y) as point i.
    void setPoint(int i, float x, float y);
    float pointX(int i) const; // CurveX(i) parsed
    float pointY(int i) const { return CurveY.value(i); }

    // The parameter range: N - K + 2 open, N + 1 closed.
    float maxT(bool isClosed) const;

    qint16 Knot(qint16 i) const;
    float Blend(qint16 i, qint16 k, float t) const;
    float X(float t) const;
    float Y(float t) const;

    // X's text of a single, as the conversion to text writes it.
    static QString singleText(float value);

private:
    float blendOpen(qint16 i, qint16 k, float t) const; // and closed, from the first basis
};

// DrawCurve on a canvas just refreshed: from (X(start), Y(start)) a line to
// each step's point while the parameter is below `end`, then the closing
// line to (X(end), Y(end)). The parameter grows in single precision.
void traceCurve(Canvas& canvas, const CurveLine& curve, float start, float end, float step);

} // namespace lumen
