#include "settings/WordFiles.h"

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

} // namespace

QString commandListFile(const VeroProcedure_Basical& basics)
{
    return settingsFile(basics, "CommandList.txt");
}

QString extTypeFile(const VeroProcedure_Basical& basics)
{
    return settingsFile(basics, "ExtType.dat");
}

QString searchWordFile(const VeroProcedure_Basical& basics)
{
    return settingsFile(basics, "SerchWordList.txt");
}

QString wordFileText(VeroProcedure_Basical& basics, const QString& file)
{
    if (!basics.FileExists(file))
        return QString();
    return basics.ReadTextOfFile(file, kSettingsFileLimit);
}

bool storeCommandList(VeroProcedure_Basical& basics, const QString& text,
                      const std::function<void()>& rebuild)
{
    if (!basics.WriteTextToFile(text, commandListFile(basics)))
        return false;
    SetCommandWords(basics, QStringLiteral("EG"));
    if (rebuild)
        rebuild();
    SetCommandWords(basics, QStringLiteral("JP"));
    if (rebuild)
        rebuild();
    basics.services().ui.beep();
    return true;
}

void resetCommandList(VeroProcedure_Basical& basics)
{
    basics.WriteTextToFile(defaultCommandListLines().join(QStringLiteral("\r\n")),
                           commandListFile(basics));
}

std::optional<QStringList> storeExtType(VeroProcedure_Basical& basics, const QString& text)
{
    if (!basics.WriteTextToFile(text, extTypeFile(basics)))
        return std::nullopt;
    ReadExtTypeToArray(basics);
    QStringList names;
    for (int slot = 0; slot < kExtSlots; ++slot)
        names << basics.state().ExtTypeArray.at(slot, 0);
    return names;
}

void resetExtType(VeroProcedure_Basical& basics)
{
    basics.DeleteFileForced(extTypeFile(basics));
    PutExtTypeToArray(basics);
}

bool storeSearchWords(VeroProcedure_Basical& basics, const QString& text)
{
    return basics.WriteTextToFile(text, searchWordFile(basics));
}

} // namespace lumen
