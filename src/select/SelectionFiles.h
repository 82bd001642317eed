// The files of the selection window, without the window: the locked folder
// and the last folder (AccessLockDir.dat, AccessPass.dat), the start folder
// of its list dialogs, a list file read into the list text, the list built
// from dropped names (TempList.lst of the data folder), the search words and
// the free extension. Paths are in program form.
#pragma once

#include "select/ListEntries.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace lumen {

class VeroProcedure_Basical;

// AccessLockDir.dat: the locked folder and the value of CheckDirectryLock
// (1 locks), in two lines.
struct FolderLock {
    QString folder;
    int value = 0;
};
FolderLock readFolderLock(VeroProcedure_Basical& basics);
void writeFolderLock(VeroProcedure_Basical& basics, const FolderLock& lock);

// AccessPass.dat: the folder the list dialogs come back to.
QString readAccessPass(VeroProcedure_Basical& basics);
void writeAccessPass(VeroProcedure_Basical& basics, const QString& folder);

// Where the list dialogs start: the folder of LastListFile when that file
// exists; otherwise the locked folder when the lock is on (DirectryLock 1),
// else AccessPassDir. The folder, without a pattern.
QString listDialogFolder(VeroProcedure_Basical& basics);

// The most lines the selection window takes from a list file.
inline constexpr int kMostSelectionLines = 32763;

// A list file read for the list text (CommandOpenf): copied to
// TempList.Lst in the settings folder and counted with CleanListFile there.
// Where the copy can't be written, the chosen file itself is read, and left
// as it is.
struct SelectionList {
    int count = 0;        // lines that aren't blank
    QString text;         // the text, with CR LF behind it
    bool english = false; // it holds an English item word
};
SelectionList readSelectionList(VeroProcedure_Basical& basics, const QString& chosen);

// The refusal of a list with more than kMostSelectionLines lines.
QString tooManyLinesMessage(int count);

// TempList.lst of the data folder, which a drop builds.
QString dropListName(const VeroProcedure_Basical& basics);

// What the dropped names (program form) give, line by line: the rule of
// dropped names (ListEntries), trees listed by `tree`. `stop` is asked
// before each name and ends the list there.
QStringList dropListLines(const VeroProcedure_Basical& basics, const QStringList& names,
                          const TreeLister& tree, const std::function<bool()>& stop);

// SerchWordList.txt, written with its default when missing; its words.
QStringList readSearchWords(VeroProcedure_Basical& basics);

// OtherExtType.dat: the free extension last searched; nothing when missing.
std::optional<QString> readOtherExtension(VeroProcedure_Basical& basics);
void writeOtherExtension(VeroProcedure_Basical& basics, const QString& extension);

} // namespace lumen
