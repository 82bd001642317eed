// The AUTO_START lines of SendToList.txt as a table, and the look-up that
// routes a page to a program or to one of the show's own surfaces when its
// main file's name holds a trigger word.
#pragma once

#include "platform/StringGrid.h"

#include <QString>
#include <QStringList>

namespace lumen {

class VeroProcedure_Basical;

// AutoStartTable(0 To 50, 0 To 50). Row I (from 1) is the Ith forcing line:
// its name in column 0 and its trigger words, in capitals, in columns 1 to 50.
struct AutoStartTable {
    static constexpr int kLimit = 50;

    StringGrid cells{kLimit + 1, kLimit + 1}; // (column, row)
    int AutoStartCount = 0;                   // rows held

    QString name(int row) const { return cells.at(0, row); }
    QString word(int row, int index) const { return cells.at(index, row); }
};

// The words that name the show's own surfaces rather than a program.
const QStringList& showKindWords();

// Fills the table from SendToList.txt. A missing file is written with one
// empty line first. The 51st forcing line brings a message and ends the
// reading; the 51st word of a line brings a message and ends that line.
void CheckAuto_With(VeroProcedure_Basical& basics, AutoStartTable& table);
// The reading itself, from the file's lines: the messages to show, in order.
QStringList fillAutoStartTable(AutoStartTable& table, const QStringList& lines);

// The name of the first row, in table order, one of whose words the file
// name holds (both compared in capitals), or "" when none does. The rows end
// at the first empty name. `forcedShowKind` is cleared first and then takes
// the name of the row found.
QString CheckAutoWith(const QString& fileName, const AutoStartTable& table,
                      QString& forcedShowKind);

} // namespace lumen
