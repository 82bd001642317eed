// Bulk work along the loaded list: the kinds of work, the question asked
// before each run and the names of the copies. Nothing here touches a file
// or a window.
#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

namespace lumen {

// The run a click on CommandDo dispatches to, with the mode words of
// DoCopyOrDelete where it has them.
enum class BulkMode {
    AllCopy,        // "ALLCOPY"
    AllDelete,      // "ALLDELEAT"
    SelectCopy,     // "SELECTCOPY"
    SelectDelete,   // "SELECTDELEAT"
    NumberedAll,    // DoNumberedCopy "ALL"
    NumberedSelect, // DoNumberedCopy "SELECT"
    Replace,        // DoReplaceCopy
};

// "ALLCOPY", "ALLDELEAT", "SELECTCOPY", "SELECTDELEAT"; nothing for another word.
std::optional<BulkMode> copyOrDeleteMode(const QString& mode);
bool isSelectMode(BulkMode mode);
bool isDeleteMode(BulkMode mode);

// The flags ReadOptions takes from the option buttons.
struct BulkOptions {
    bool AllSelected = true;
    bool JustCopy = false;
    bool Deleting = false;
    bool AutoRename = false;
    bool Replacing = false;
    bool Confirming = false;

    bool anyWork() const { return JustCopy || Deleting || AutoRename || Replacing; }
    // The run that CommandDo starts with these flags; nothing without work
    // (a replace is a choice of the selected files only).
    std::optional<BulkMode> mode() const;
};

// The texts of the window that a run's question and names are made of.
struct BulkTexts {
    QString directory;   // T, TextDirectry
    QString word;        // W, TextSelect
    QString stem;        // S, TextFileName
    QString number;      // N, TextNom
    QString replacement; // TextReplace
};

// The Yes-No question asked once before a run.
QString bulkQuestion(BulkMode mode, const BulkTexts& texts);

// A row takes part in a "SELECT" run when its file holds the word, capitals
// or not.
bool holdsWord(const QString& file, const QString& word);

// Targets, from the folder T and a main file of the list (program form).
// Copy: T\name. Numbered: T\S + the number as "000" + "." + the text after
// the first "." of the file's name. Replace: T\ + the name with the first
// place of the word (capitals or not) given the replacement; nothing when
// the name doesn't hold the word (a word only in a folder's name).
QString copyTarget(const QString& folder, const QString& file);
QString numberedTarget(const QString& folder, const QString& stem, qint16 number,
                       const QString& file);
std::optional<QString> replaceTarget(const QString& folder, const QString& file,
                                     const QString& word, const QString& replacement);

} // namespace lumen
