// A two-dimensional array of texts addressed (column, row), as the program's
// tables are: ListArray(0 To 4, 0 To n) is StringGrid(5, n + 1). Reading
// outside the bounds gives "" and writing there does nothing, the way a
// statement that fails on a bad subscript is passed over.
#pragma once

#include <QList>
#include <QString>

namespace lumen {

class StringGrid {
public:
    StringGrid() = default;
    StringGrid(int columns, int rows) { redim(columns, rows); }

    // ReDim without Preserve: every cell becomes "".
    void redim(int columns, int rows)
    {
        columns_ = qMax(0, columns);
        rows_ = qMax(0, rows);
        cells_ = QList<QString>(qsizetype(columns_) * rows_);
    }
    // ReDim Preserve of the last dimension: rows are added or dropped at the end.
    void redimPreserveRows(int rows)
    {
        rows_ = qMax(0, rows);
        cells_.resize(qsizetype(columns_) * rows_);
    }

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    int upperRow() const { return rows_ - 1; } // UBound of the row index

    bool contains(int column, int row) const
    {
        return column >= 0 && column < columns_ && row >= 0 && row < rows_;
    }
    QString at(int column, int row) const
    {
        return contains(column, row) ? cells_[index(column, row)] : QString();
    }
    bool set(int column, int row, const QString& text)
    {
        if (!contains(column, row))
            return false;
        cells_[index(column, row)] = text;
        return true;
    }

private:
    qsizetype index(int column, int row) const { return qsizetype(row) * columns_ + column; }
    int columns_ = 0;
    int rows_ = 0;
    QList<QString> cells_;
};

} // namespace lumen
