// SendToList.txt: the outside programs of the send-to list and the
// AUTO_START lines that route pages to a program or one of the show's own
// surfaces. Its default text is written when the file is missing.
#pragma once

#include <QStringList>

namespace lumen {

class VeroProcedure_Basical;

// The default SendToList.txt, line by line (written with CR LF after each).
QStringList defaultSendToListLines();

// Writes the default SendToList.txt into the settings folder when it is missing.
void writeDefaultSendToList(VeroProcedure_Basical& basics);

} // namespace lumen
