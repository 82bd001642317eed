// The one-step undo of a deletion in the file box of the selection window:
// the copy of the file deleted last, "DelTempF." + the text after the first
// dot of its name, in the settings folder, and "DelTempFName.txt" beside it,
// one line "original,copy". Each deletion replaces both.
#pragma once

#include <QString>

namespace lumen {

class VeroProcedure_Basical;

struct UndoRecord {
    QString original;
    QString copy;
};

// The record's line read back. The copy is known by its place: a line that
// ends in "," and a DelTempF name of the settings folder keeps the commas
// of the original's path; a line written the other way round (copy first,
// as the main window's delete writes it) is read too. Otherwise the line is
// split at its first comma.
UndoRecord parseUndoRecord(const QString& line, const QString& programRunDir);

// The undo copy for a file: "" for a name without a dot, which gets none.
QString undoCopyName(const QString& programRunDir, const QString& file);

// CommandDel1: the file copied to the undo store, the record written, and
// the file deleted (DeleteFileConfirmed) when a directory search finds it.
// A file that has no undo copy (no dot in its name, or a copy that failed)
// is not deleted. True when it was copied.
bool deleteKeepingUndo(VeroProcedure_Basical& basics, const QString& file);

// CommandRecover: the copy put back at its original path, then the copy and
// the record deleted (DeleteFileConfirmed), each if found. The copy and the
// record stay when the copy can't be put back. The original path, or ""
// without a record.
QString recoverFromUndo(VeroProcedure_Basical& basics);

} // namespace lumen
