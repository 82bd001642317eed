// The program-wide variables that all windows share, and the settings record.
// One ProgramState is owned by the application and handed to the windows.
#pragma once

#include "platform/StringGrid.h"
#include "state/DirecData.h"

#include <QString>
#include <QStringList>

namespace lumen {

// Columns of ListArray and EditArray.
enum ListColumn : int {
    kColMain = 0,    // main file
    kColWith = 1,    // WITH file
    kColDelay = 2,   // DELAY text, "9999" = none
    kColComment = 3, // comment ("<<<<<..." inline) or comment file
    kColOption = 4,  // option word
    kListColumns = 5
};

inline constexpr int kCommandWords = 34;
inline constexpr int kExtSlots = 17;

struct ProgramState {
    ProgramState();

    StringGrid ListArray{kListColumns, 1}; // rows from 1
    StringGrid EditArray{kListColumns, 1}; // the editor's working copy
    qint16 EditRowCount = 0;               // rows of EditArray in use
    qint16 EditMaxLineLength = 0;          // longest line of the list last read by the editor
    qint16 EditRow = 0;                    // selected row, from 0: EditArray row EditRow + 1
    bool EditorOn = false;                 // Text1 of the file selection holds editor text
    bool ReplaceOpen = false;              // FormReplaceEdit is open
    bool WordSetExt = false;               // FormWordSet edits ExtType.dat
    bool WordSetSearch = false;            // FormWordSet edits SerchWordList.txt
    QStringList CommandWord;               // 1 To 34; index 0 unused
    StringGrid ExtTypeArray{kExtSlots, 2}; // (0 To 16, 0 To 1): name, marker

    qint16 PicNo = 0;      // current page, from 1
    QString ListFileName;  // working copy of the list being shown
    QString StartFileName; // file opened at start or last opened
    QString DataDir;       // "C:\Lumentas"
    QString ProgramRunDir; // DataDir + "\ForProgramRun_KDR"
    QString AccessPassDir;
    QString AccessLockDir;
    QString ForcedDriveFrom; // drive mark of the list: "*:", "?:" or "%:"
    QString ForcedDriveTo;   // the drive that stands for it
    QString SelectedFile;
    int DirectryLock = 0; // CheckDirectryLock of the file selection: 1 locks AccessLockDir
    qint32 PictureSizeAllowVal = 20;
    QString AppDrive; // first two characters of the program's folder
    QString WindowsFolder;
    QString SystemFolder;
    QString ProgramFolder; // the program's own folder, in program form
    QString ProgramName;   // its file name without extension

    bool AutoPageOn = false;
    bool StopRequested = false;
    bool MediaEnded = false;
    bool WebPageShown = false;
    bool HatenaDriveAsked = false;
    bool ListReady = false;
    bool InSubMain = false;

    DirecDataRecord DirecData;
};

} // namespace lumen
