#include "editor/WordFiles.h"

#include "editor/EditTextModel.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "list/ExtTable.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

QString settingsFile(const VeroProcedure_Basical& basics, const char* name)
{
    return basics.state().ProgramRunDir + QLatin1Char('\\') + QLatin1String(name);
}

const char* const kCommandList = "CommandList.txt";
const char* const kExtType = "ExtType.dat";

} // namespace

QString commandListText(VeroProcedure_Basical& basics)
{
    return basics.ReadTextOfFile(settingsFile(basics, kCommandList));
}

QString extTypeText(VeroProcedure_Basical& basics)
{
    return basics.ReadTextOfFile(settingsFile(basics, kExtType));
}

QString storeCommandList(VeroProcedure_Basical& basics, EditTextModel& editor, const QString& text)
{
    basics.WriteTextToFile(text, settingsFile(basics, kCommandList));
    SetCommandWords(basics, QStringLiteral("EG"));
    editor.CommandUpdate();
    SetCommandWords(basics, QStringLiteral("JP"));
    const QString editorText = editor.CommandUpdate();
    basics.services().ui.beep();
    return editorText;
}

void resetCommandList(VeroProcedure_Basical& basics)
{
    basics.WriteTextToFile(defaultCommandListLines().join(QStringLiteral("\r\n")),
                           settingsFile(basics, kCommandList));
}

QStringList storeExtType(VeroProcedure_Basical& basics, const QString& text)
{
    basics.WriteTextToFile(text, settingsFile(basics, kExtType));
    ReadExtTypeToArray(basics);
    QStringList names;
    for (int slot = 0; slot < kExtSlots; ++slot)
        names << basics.state().ExtTypeArray.at(slot, 0);
    basics.BeepBurst();
    return names;
}

void resetExtType(VeroProcedure_Basical& basics)
{
    basics.DeleteFileForced(settingsFile(basics, kExtType));
    PutExtTypeToArray(basics);
}

} // namespace lumen
