#include "editor/ReplaceEditModel.h"

#include "fileops/BasicText.h"
#include "platform/UserDialogs.h"

namespace lumen {

ReplaceEditModel::ReplaceEditModel(UserDialogs& ui)
    : ui_(ui)
{}

void ReplaceEditModel::SerchAndReplace(const QString& source, const QString& find,
                                       const QString& replacement, QString& result) const
{
    result = lumen::SerchAndReplace(source, find, replacement);
}

QString ReplaceEditModel::CommandReplace(const QString& text, const QString& find,
                                         const QString& replacement)
{
    UndoText = text;
    QString result;
    SerchAndReplace(text, find, replacement, result);
    ui_.beep();
    return result;
}

QString ReplaceEditModel::CommandUndo()
{
    ui_.beep();
    return UndoText;
}

} // namespace lumen
