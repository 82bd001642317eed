// The word files as whole texts, the work behind FormSetCommand (the command
// words of CommandList.txt) and FormWordSet (the extension slots of
// ExtType.dat). The windows show the text and call these.
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

class EditTextModel;
class VeroProcedure_Basical;

// The text of CommandList.txt or ExtType.dat in ProgramRunDir.
QString commandListText(VeroProcedure_Basical& basics);
QString extTypeText(VeroProcedure_Basical& basics);

// FormSetCommand's CommandDo: the text becomes CommandList.txt and the
// editor's rows are rebuilt with the English words and then with the
// user's. The editor text after the second rebuild.
QString storeCommandList(VeroProcedure_Basical& basics, EditTextModel& editor, const QString& text);
// CommandInitialSet: CommandList.txt as it is first written.
void resetCommandList(VeroProcedure_Basical& basics);

// FormWordSet's CommandDo for the extensions: the text becomes ExtType.dat
// and the slots are read again; slots the text doesn't reach keep what they
// held. The slot names, for the captions of Check1 of the file selection.
QStringList storeExtType(VeroProcedure_Basical& basics, const QString& text);
// CommandReset: ExtType.dat deleted and written with its default.
void resetExtType(VeroProcedure_Basical& basics);

} // namespace lumen
