// The extension table: 17 slots of ExtType.dat that the file selection shows
// and that may mark an extension as text, and CheckExtHat, which sorts a file
// name into a kind.
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

class StringGrid;
class VeroProcedure_Basical;

// The default ExtType.dat, line by line.
QStringList defaultExtTypeLines();

// PutExtTypeToArray: writes the default ExtType.dat when it is missing.
void PutExtTypeToArray(VeroProcedure_Basical& basics);

// ReadExtTypeToArray: the 17 slots from ExtType.dat into ExtTypeArray.
void ReadExtTypeToArray(VeroProcedure_Basical& basics);
// The same on a text: slots the text doesn't reach keep what they held.
void readExtTypeSlots(StringGrid& slots, const QString& extTypeText);

// CheckExtHat: "PIC", "AVI", "IE", "SND", "MIDI", "TXT", "CDM", "EXE", "WRL",
// "NFF" or "NON" for a name holding ":" and "."; "" otherwise.
QString CheckExtHat(const QString& fileName, const StringGrid& slots, bool textAsAvi);

} // namespace lumen
