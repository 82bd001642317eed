// A two-dimensional array of texts addressed (column, row), as the program's
// tables are: ListArray(0 To 4, 0 To n) is StringGrid(5, n + 1). Reading
// outside the bounds gives "" and writing there does nothing, the way a
// statement that fails on a bad subscript is passed over.
//
// The texts live in one buffer, each cell an offset and a length into it,
// so that a list of 32,000 rows is filled and dropped without 160,000 small
// allocations. A changed cell takes new room at the end; the buffer is
// packed again when more than half of it is dead.
#pragma once

#include <QList>
#include <QString>
#include <QStringView>

namespace lumen {

class StringGrid {
public:
    StringGrid() = default;
    StringGrid(int columns, int rows) { redim(columns, rows); }

    // ReDim without Preserve: every cell becomes "".
    void redim(int columns, int rows);
    // ReDim Preserve of the last dimension: rows are added or dropped at the end.
    void redimPreserveRows(int rows);

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    int upperRow() const { return rows_ - 1; } // UBound of the row index

    bool contains(int column, int row) const
    {
        return column >= 0 && column < columns_ && row >= 0 && row < rows_;
    }
    QString at(int column, int row) const { return view(column, row).toString(); }
    QStringView view(int column, int row) const; // valid until the grid changes
    bool set(int column, int row, QStringView text);
    bool set(int column, int row, const QString& text)
    {
        return set(column, row, QStringView(text));
    }
    bool set(int column, int row, const char16_t* text)
    {
        return set(column, row, QStringView(text));
    }

    // Room for this many characters, for a fill that knows its size.
    void reserveText(qsizetype characters) { text_.reserve(characters); }

private:
    struct Cell {
        qsizetype offset = 0;
        qsizetype length = 0;
    };
    qsizetype index(int column, int row) const { return qsizetype(row) * columns_ + column; }
    void pack();

    int columns_ = 0;
    int rows_ = 0;
    QList<Cell> cells_;
    QString text_;
    qsizetype live_ = 0; // characters that cells still use
};

} // namespace lumen
