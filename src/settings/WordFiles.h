// The word files as whole texts, the work behind FormSetCommand (the command
// words of CommandList.txt) and FormWordSet (the extension slots of
// ExtType.dat, the search words of SerchWordList.txt). The windows show the
// text and call these. A text that can't be written leaves the old file
// whole and changes nothing else.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace lumen {

class VeroProcedure_Basical;

// The files in ProgramRunDir.
QString commandListFile(const VeroProcedure_Basical& basics);
QString extTypeFile(const VeroProcedure_Basical& basics);
QString searchWordFile(const VeroProcedure_Basical& basics);

// The text of one of them; "" when it is missing.
QString wordFileText(VeroProcedure_Basical& basics, const QString& file);

// FormSetCommand's CommandDo: the text becomes CommandList.txt, and
// `rebuild` (the editor's CommandUpdate) runs with the English words and
// then with the user's, so that the editor's rows are made in both word
// sets. False when the file couldn't be written.
bool storeCommandList(VeroProcedure_Basical& basics, const QString& text,
                      const std::function<void()>& rebuild);
// CommandInitialSet: CommandList.txt as it is first written.
void resetCommandList(VeroProcedure_Basical& basics);

// FormWordSet's CommandDo for the extensions: the text becomes ExtType.dat
// and the slots are read again; slots the text doesn't reach keep what they
// held. The slot names, for the captions of Check1 of the file selection;
// nothing when the file couldn't be written.
std::optional<QStringList> storeExtType(VeroProcedure_Basical& basics, const QString& text);
// CommandReset: ExtType.dat deleted and written with its default.
void resetExtType(VeroProcedure_Basical& basics);

// FormWordSet's CommandDo for the search words: the text becomes
// SerchWordList.txt. False when it couldn't be written.
bool storeSearchWords(VeroProcedure_Basical& basics, const QString& text);

} // namespace lumen
