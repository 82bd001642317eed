// The steps of OpenFileList that touch no window: the working copy, its
// count, the language of the list and the rows of ListArray.
#pragma once

#include <QString>

namespace lumen {

class VeroProcedure_Basical;

inline constexpr int kMostListRows = 32767;

// Steps 1 to 3: LastListFile, AppDrive, the copy to TempList.Lst and its
// count. -1 when the list is refused (too many rows; the message is shown).
// `text` receives the working copy's text, lines ended by CR LF.
int prepareWorkingCopy(VeroProcedure_Basical& basics, const QString& fileName, QString* text);

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
// and events run; a stop leaves with the rows as far as read, `fileCount`
// counting them.
// The display text is made only when `withDisplayText` (quick mode never shows it).
ListFill fillListArray(VeroProcedure_Basical& basics, const QString& text, int count,
                       bool withDisplayText = true);

} // namespace lumen
