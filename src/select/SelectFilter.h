// The patterns that narrow the file box of the selection window: the 17
// extension boxes (named by the slots of ExtType.dat) with the box for all
// files, a search word, and a free extension. Plain functions of what the
// boxes hold; the window applies the results.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace lumen {

class StringGrid;

// The pattern that shows nothing.
inline const QString kNoFilesPattern = QStringLiteral("*.999");

// The extension boxes as they stand: one check and one slot name a box.
struct ExtensionBoxes {
    QStringList names;   // the slot names, "?" for a slot without "="
    QList<bool> checked; // as many as names
    bool any = false;    // CheckANY
};

// BuildPatternFromChecks. Each box that is on adds "*.<name>"; a box on
// clears CheckANY unless `viaAny` (the change came from CheckANY itself).
// CheckANY still on then clears every box and shows every file ("*.*").
// With nothing on the box gets kNoFilesPattern. `boxes` is left as the
// boxes must stand afterwards; the result is the file box's pattern.
QString patternFromChecks(ExtensionBoxes& boxes, bool viaAny);

// BuildPatternWithWord: "*<word>*.<name>" for each box that is on, joined by
// ";"; with no box on "*<word>.*". The word is trimmed.
QString patternWithWord(const QString& word, const ExtensionBoxes& boxes);

// CommandSerc_Click: with `extensionsCount` the pattern above; otherwise
// "*<word>*.<extension>" when the free extension's frame is up, else
// "*<word>*". The word and extension are trimmed; a leading ";" is dropped.
QString patternOfWordSearch(const QString& word, bool extensionsCount, const ExtensionBoxes& boxes,
                            bool extensionFrameShown, const QString& extension);

// CommandExtSelect_Click: "*.<extension>", trimmed.
QString patternOfExtension(const QString& extension);

// SerchWordList.txt as it is written when missing, line by line.
QStringList defaultSearchWordLines();
// The words of SerchWordList.txt: every line that is neither blank nor a
// comment ("'"), trimmed.
QStringList searchWordsOf(const QString& text);

// FormGiveFilter's search of the loaded list: from row `from`, stepping by
// `step` (1 or -1) within rows 1 to `last`, the first row whose main file in
// capitals holds the trimmed word in capitals (InStr: an empty word is found
// in any main file that isn't empty). 0 when none is.
int findRowByWord(const StringGrid& list, const QString& word, int from, int step, int last);

} // namespace lumen
