// The editor's reading of one list line into a row of EditArray. It follows
// the show's grammar step for step, with two steps of its own: a COMMENT
// item on a line that names a ".TXT" file is kept as a file comment (and the
// user is told "Check"), and the reader notes which kinds of item it met.
#pragma once

#include "list/ListGrammar.h"

#include <QString>
#include <QStringList>
#include <QStringView>

namespace lumen {

// The item words of CommandWord, prepared once for a whole reading.
struct EditItemWords {
    explicit EditItemWords(const QStringList& commandWord);

    struct Item {
        int start;           // index of the start word in CommandWord
        QString startCaps;   // the start word in capitals
        QString end;         // the end word as stored
        QString endLower;    // the end word in lower case
        const char* endName; // the English end word, named in the message
    };
    Item items[5]; // WITH, DELAY, COMMENT, FILECOMMENT, OPTION, in that order
    // What every lower-case end word that differs from its stored form
    // begins with ("end" for the English words): a line without it holds no
    // lower-case end word, and those searches are spared.
    QString lowerPrefix;
    bool anyLowerDiffers = false;
    QString commentWord; // the COMMENT word exactly as CommandWord holds it
    const Item& comment() const { return items[2]; }
};

// What reading one line gives.
struct EditLine {
    enum class Kind {
        Row,      // a row of the list
        Dropped,  // a comment line or a blank line: no row
        LeftAlone // more than 20 leading blanks: counted, cells untouched
    };
    Kind kind = Kind::Row;
    ListRow row;
    QStringList messages; // "Check" and " There is no word ENDWITH" ..., in order
    bool withSeen = false;
    bool delaySeen = false;
    bool commentSeen = false; // COMMENT or FILECOMMENT
    bool optionSeen = false;
};

EditLine readEditLine(QStringView line, const EditItemWords& words);

// The steps of one line that the show's loader takes in the same way.
namespace linesteps {

// A line without both an "@" and a "=" is one main file, whole.
bool isBareMainFile(QStringView line);

// The next item from `from`: the "@", the "=" after it and the word between.
// False when no "@" is left or no "=" follows it.
struct ItemStart {
    qsizetype at = -1;
    qsizetype equals = -1;
    QStringView word;
};
bool nextItemStart(QStringView line, qsizetype from, ItemStart& item);

// The item whose start word the word is, compared in capitals; null for a
// word that is none of them.
const EditItemWords::Item* itemOfWord(QStringView word, const EditItemWords& words);

// The end word from the "=" on: in lower case first, then as stored. -1
// when absent; a mixed-case end word is not found.
qsizetype endWordFrom(QStringView line, qsizetype equals, const EditItemWords::Item& item,
                      bool lowerPossible = true);
// False when no lower-case end word can stand in the line.
bool lowerEndWordPossible(QStringView line, const EditItemWords& words);

// The trimmed text between the "=" and the end word.
QStringView itemValue(QStringView line, qsizetype equals, qsizetype end);

// " There is no word ENDWITH" and its fellows.
QString missingEndWordMessage(const EditItemWords::Item& item);

} // namespace linesteps

} // namespace lumen
