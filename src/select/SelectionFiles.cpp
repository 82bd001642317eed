#include "select/SelectionFiles.h"

#include "fileops/VeroProcedure_Basical.h"
#include "list/ListGrammar.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/TextCodec.h"
#include "select/SelectFilter.h"
#include "state/ProgramState.h"

namespace lumen {

namespace {

using basic::Val;

const QString kCrLf = QStringLiteral("\r\n");

QString settingsFile(const VeroProcedure_Basical& basics, const char* name)
{
    return basics.state().ProgramRunDir + u'\\' + QLatin1String(name);
}

// The text of a settings file; "" without a word when it is missing.
QString readSettingsFile(VeroProcedure_Basical& basics, const char* name)
{
    const QString file = settingsFile(basics, name);
    return basics.FileExists(file) ? basics.ReadTextOfFile(file) : QString();
}

} // namespace

FolderLock readFolderLock(VeroProcedure_Basical& basics)
{
    const QStringList lines = readSettingsFile(basics, "AccessLockDir.dat").split(kCrLf);
    return {TrimLineEnds(lines.value(0)), Val(lines.value(1)) == 1 ? 1 : 0};
}

void writeFolderLock(VeroProcedure_Basical& basics, const FolderLock& lock)
{
    basics.WriteTextToFile(lock.folder + kCrLf + QString::number(lock.value),
                           settingsFile(basics, "AccessLockDir.dat"));
}

QString readAccessPass(VeroProcedure_Basical& basics)
{
    return TrimLineEnds(readSettingsFile(basics, "AccessPass.dat").section(u'\r', 0, 0));
}

void writeAccessPass(VeroProcedure_Basical& basics, const QString& folder)
{
    basics.WriteTextToFile(folder, settingsFile(basics, "AccessPass.dat"));
}

QString listDialogFolder(VeroProcedure_Basical& basics)
{
    const ProgramState& state = basics.state();
    const QString lastList = TrimLineEnds(QString(state.DirecData.LastListFile));
    if (basics.FileExists(lastList))
        return FolderOfPath(lastList);
    return state.DirectryLock == 1 ? state.AccessLockDir : state.AccessPassDir;
}

SelectionList readSelectionList(VeroProcedure_Basical& basics, const QString& chosen)
{
    const QString workingCopy = settingsFile(basics, "TempList.Lst");
    SelectionList list;
    if (basics.services().fs.copyFile(chosen, workingCopy)) {
        list.count = basics.CleanListFile(workingCopy, &list.text);
        if (list.count == 0)
            list.text = basics.ReadTextOfFile(workingCopy) + kCrLf;
    } else {
        // Never the copy of an earlier list: the chosen file, as it stands.
        list.text = basics.ReadTextOfFile(chosen) + kCrLf;
        for (const QString& line : text::splitLines(list.text))
            list.count += basic::Trim(line).isEmpty() ? 0 : 1;
    }
    list.english = listLanguageOf(list.text) == u"EG";
    return list;
}

QString tooManyLinesMessage(int count)
{
    return QStringLiteral("選択したファイル数は ") + QString::number(count) +
           QStringLiteral("個で、32763個を超えているため正常に機能しません。");
}

QString dropListName(const VeroProcedure_Basical& basics)
{
    return basics.state().DataDir + QStringLiteral("\\TempList.lst");
}

QStringList dropListLines(const VeroProcedure_Basical& basics, const QStringList& names,
                          const TreeLister& tree, const std::function<bool()>& stop)
{
    QStringList lines;
    for (const QString& name : names) {
        if (stop && stop())
            break;
        lines += listEntryLines(basics.services().fs, name, EntryRule::Dropped, tree);
    }
    return lines;
}

QStringList readSearchWords(VeroProcedure_Basical& basics)
{
    const QString file = settingsFile(basics, "SerchWordList.txt");
    if (!basics.FileExists(file))
        basics.WriteTextToFile(defaultSearchWordLines().join(kCrLf), file);
    return searchWordsOf(basics.ReadTextOfFile(file));
}

std::optional<QString> readOtherExtension(VeroProcedure_Basical& basics)
{
    const QString file = settingsFile(basics, "OtherExtType.dat");
    if (!basics.FileExists(file))
        return std::nullopt;
    return basics.ReadTextOfFile(file);
}

void writeOtherExtension(VeroProcedure_Basical& basics, const QString& extension)
{
    basics.WriteTextToFile(extension, settingsFile(basics, "OtherExtType.dat"));
}

} // namespace lumen
