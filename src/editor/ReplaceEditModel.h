// FormReplaceEdit without its window: one text replaced by another through
// the whole of Text1 of the file selection, with one step back.
#pragma once

#include <QString>

namespace lumen {

class UserDialogs;

class ReplaceEditModel {
public:
    explicit ReplaceEditModel(UserDialogs& ui);

    // Every `find` in `source` replaced, left to right, case-sensitive, never
    // looking at text it produced; the same routine serves the page maker.
    void SerchAndReplace(const QString& source, const QString& find, const QString& replacement,
                         QString& result) const;

    // CommandReplace: `text` is Text1 of the file selection; the text that
    // goes back into it. Find and replacement are taken untrimmed.
    QString CommandReplace(const QString& text, const QString& find, const QString& replacement);
    // CommandUndo: Text1 as it was before the last replacement.
    QString CommandUndo();

    QString UndoText;

private:
    UserDialogs& ui_;
};

} // namespace lumen
