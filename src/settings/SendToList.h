// SendToList.txt: the outside programs of the send-to list and the
// AUTO_START lines that route pages to a program or one of the show's own
// surfaces. Its default text is written when the file is missing.
#pragma once

#include <QStringList>

namespace lumen {

class VeroProcedure_Basical;
struct ProgramState;

// Program-form path of SendToList.txt in the settings folder.
QString sendToListPath(const ProgramState& state);

// The default SendToList.txt, line by line (written with CR LF after each).
QStringList defaultSendToListLines();

// The lines of SendToList.txt as a line-by-line reader gives them, or none
// when the file can't be read.
QStringList readSendToListLines(const VeroProcedure_Basical& basics);

// A line that the readers pass over: empty or a comment ("'" first), both
// after trimming.
bool isSendToListRemark(const QString& trimmedLine);

// Writes the default SendToList.txt into the settings folder when it is missing.
void writeDefaultSendToList(VeroProcedure_Basical& basics);

} // namespace lumen
