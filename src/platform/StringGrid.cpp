#include "platform/StringGrid.h"

#include <algorithm>

namespace lumen {

void StringGrid::redim(int columns, int rows)
{
    columns_ = qMax(0, columns);
    rows_ = qMax(0, rows);
    cells_ = QList<Cell>(qsizetype(columns_) * rows_);
    text_.clear();
    live_ = 0;
}

void StringGrid::redimPreserveRows(int rows)
{
    rows = qMax(0, rows);
    for (qsizetype i = qsizetype(columns_) * rows; i < cells_.size(); ++i)
        live_ -= cells_[i].length;
    rows_ = rows;
    cells_.resize(qsizetype(columns_) * rows_);
}

QStringView StringGrid::view(int column, int row) const
{
    if (!contains(column, row))
        return {};
    const Cell& cell = cells_[index(column, row)];
    return QStringView(text_).mid(cell.offset, cell.length);
}

bool StringGrid::set(int column, int row, QStringView text)
{
    if (!contains(column, row))
        return false;
    Cell& cell = cells_[index(column, row)];
    const bool ownText =
        text.data() >= text_.constData() && text.data() < text_.constData() + text_.size();
    if (!ownText && text.size() <= cell.length) {
        // Fits where the old text was.
        std::copy(text.begin(), text.end(), text_.begin() + cell.offset);
        live_ -= cell.length - text.size();
        cell.length = text.size();
        return true;
    }
    live_ += text.size() - cell.length;
    const qsizetype offset = text_.size();
    if (ownText)
        text_ += text.toString(); // the text lies in this grid's own buffer, which may move
    else
        text_ += text;
    cell.offset = offset;
    cell.length = text.size();
    if (text_.size() > 4096 && live_ * 2 < text_.size())
        pack();
    return true;
}

void StringGrid::pack()
{
    QString packed;
    packed.reserve(live_);
    for (Cell& cell : cells_) {
        const qsizetype offset = packed.size();
        packed += QStringView(text_).mid(cell.offset, cell.length);
        cell.offset = offset;
    }
    text_ = std::move(packed);
}

} // namespace lumen
