// The 34 words of the list language and the user's own words for them in
// CommandList.txt.
#pragma once

#include <QString>
#include <QStringList>

namespace lumen {

class VeroProcedure_Basical;

// Indexes into CommandWord, from 1.
enum CommandIndex : int {
    kStopSound = 1,
    kFormMaximamSize = 2,
    kFormNormalSize = 3,
    kPictureScroll = 4,
    kPutPictureInImage = 5,
    kAnimeDefaultSize = 6,
    kAnimeFullScreen = 7,
    kCommentSet1 = 8,
    kTextSet1 = 13,
    kPictBackCol1 = 18,
    kWith = 23,
    kEndWith = 24,
    kDelay = 25,
    kEndDelay = 26,
    kComment = 27,
    kEndComment = 28,
    kFileComment = 29,
    kEndFileComment = 30,
    kOption = 31,
    kEndOption = 32,
    kListAutoStartOn = 33,
    kListAutoStartOff = 34,
};

// The English words, index 1 to 34 (index 0 is empty).
const QStringList& englishCommandWords();

// The default CommandList.txt, line by line (written with CR LF after each).
QStringList defaultCommandListLines();

// PutCommandToArray: makes the settings folder if missing, writes the default
// CommandList.txt if missing, then SetCommandWords "JP".
void PutCommandToArray(VeroProcedure_Basical& basics);

// SetCommandWords: the English words, then for "JP" the user's words from
// CommandList.txt on top.
void SetCommandWords(VeroProcedure_Basical& basics, const QString& mode);

// The user's words of a CommandList.txt text applied to a word table.
void applyUserCommandWords(QStringList& words, const QString& commandListText);

} // namespace lumen
