// Caret offsets in the editor text. The row arithmetic counts each line
// break as CR LF, two characters; a text box counts it as one. An offset in
// CR LF counting is the box position plus the number of line breaks before
// it, and the other way round.
#pragma once

#include <QList>
#include <QStringView>

namespace lumen {

class CaretOffsets {
public:
    CaretOffsets() = default;
    // The text as the box holds it; its line breaks are "\n".
    explicit CaretOffsets(QStringView boxText);

    int toCrLf(int boxPosition) const;
    // An offset on the LF of a pair gives the position of the line break.
    int toBox(int crLfOffset) const;

private:
    QList<int> breaks_; // box positions of the line breaks, ascending
};

} // namespace lumen
