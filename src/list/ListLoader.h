// The steps of OpenFileList that touch no window: the working copy, its
// count, the language of the list and the rows of ListArray.
#pragma once

#include <QString>

namespace lumen {

class VeroProcedure_Basical;

inline constexpr int kMostListRows = 32767;

// Steps 1 to 3: LastListFile, AppDrive, the copy to TempList.Lst and its
// count. -1 when the list is refused (too many rows; the message is shown).
// `text` receives the working copy's text, lines ended by CR LF. When the
// copy can't be written (a read-only settings folder), the chosen file itself
// is read and cleaned, unchanged on disk, so that the list shown is the one
// chosen and never an old copy; `source` receives the file that was read.
int prepareWorkingCopy(VeroProcedure_Basical& basics, const QString& fileName, QString* text,
                       QString* source = nullptr);

// The working copy in ProgramRunDir.
QString workingCopyName(const VeroProcedure_Basical& basics);

struct ListFill {
    int fileCount = 0;   // rows counted, comment lines left out
    QString displayText; // the list as it is shown, trimmed, with a CR behind
    bool stopped = false;
};

// Steps 6 to 9 on the working copy's text: the language test and
// SetCommandWords, then every line into ListArray (sized for `count` rows),
// with the missing-end-word messages. Every 50 lines FormStop shows the count
// and events run, and every 64K characters within a long line; a stop leaves
// with the rows as far as read (a line cut short by it isn't stored),
// `fileCount` counting them.
// The display text is made only when `withDisplayText` (quick mode never shows it).
ListFill fillListArray(VeroProcedure_Basical& basics, const QString& text, int count,
                       bool withDisplayText = true);

// The list text as the list view shows it: lines longer than a screen can
// show are cut (the list itself is unchanged), so that one huge line can't
// hold up the view's layout.
inline constexpr int kLongestViewLine = 2000;
QString listViewText(const QString& displayText);

} // namespace lumen
