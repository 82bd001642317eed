#include "start/ModuleStartWithFile.h"

#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "platform/TextCodec.h"
#include "platform/UserDialogs.h"
#include "select/ListEntries.h"
#include "state/ProgramState.h"

#include <utility>

namespace lumen {

namespace {

using namespace basic;

const QString kCrLf = QStringLiteral("\r\n");
const QString kStartList = QStringLiteral("TempList.lst");
const QString kNamePositions = QStringLiteral("TempList0.dat");
const QString kOccupiedMessage =
    QStringLiteral("This file name is ocupied by this program. Please select other files");

// Where a name stands in the command line text, 1-based, both ends included.
struct NamePosition {
    qsizetype first;
    qsizetype last;
};

void call(const std::function<void()>& hook)
{
    if (hook)
        hook();
}

} // namespace

ModuleStartWithFile::ModuleStartWithFile(VeroProcedure_Basical& basics, StartWithFileHooks hooks)
    : basics_(basics)
    , hooks_(std::move(hooks))
{}

QString ModuleStartWithFile::programRunFile(const QString& name) const
{
    return basics_.state().ProgramRunDir + u'\\' + name;
}

QString ModuleStartWithFile::dataFile(const QString& name) const
{
    return basics_.state().DataDir + u'\\' + name;
}

bool ModuleStartWithFile::stopRequested()
{
    basics_.DoEvents();
    return basics_.state().StopRequested || basics_.services().clock.ending();
}

void ModuleStartWithFile::StartWithFile(const QStringList& nativeArguments)
{
    ProgramState& state = basics_.state();
    state.StopRequested = false;
    if (!ParseCommandLine(nativeArguments) || !commandLineText_.contains(u':'))
        return;
    BuildStartList();
    call(hooks_.setCyberViewOn);
    state.ListReady = true;
    state.StopRequested = false;
    call(hooks_.showMainAndStop);
    if (hooks_.openFileList)
        hooks_.openFileList(dataFile(kStartList));
}

bool ModuleStartWithFile::namesStartList() const
{
    const QString occupied =
        UCase(Trim(basics_.state().DataDir)) + QStringLiteral("\\TEMPLIST.LST");
    return UCase(Trim(commandLineText_)).contains(occupied);
}

bool ModuleStartWithFile::ParseCommandLine(const QStringList& nativeArguments)
{
    const FileSystem& fs = basics_.services().fs;
    basics_.host().showStop();

    // Relative arguments are taken against the working folder by toProgram.
    commandLineText_.clear();
    QList<NamePosition> positions;
    for (const QString& argument : nativeArguments) {
        const QString name = fs.toProgram(argument);
        if (name.isEmpty())
            continue;
        if (!commandLineText_.isEmpty())
            commandLineText_ += u' ';
        positions.append({commandLineText_.size() + 1, commandLineText_.size() + name.size()});
        commandLineText_ += name;
    }

    if (namesStartList()) {
        basics_.services().ui.msgBox(dataFile(kStartList) + kCrLf + kOccupiedMessage);
        call(hooks_.endProgram);
        return false;
    }

    QString lines;
    for (const NamePosition& position : std::as_const(positions)) {
        if (stopRequested())
            break;
        lines += QStringLiteral("Pos, %1, %2").arg(position.first).arg(position.last) + kCrLf;
    }
    lines += commandLineText_ + kCrLf;
    writeTextFileSafely(fs.toNative(programRunFile(kNamePositions)), lines);
    return true;
}

void ModuleStartWithFile::BuildStartList()
{
    FileSystem& fs = basics_.services().fs;
    const QString positionsFile = fs.toNative(programRunFile(kNamePositions));
    const QStringList lines = text::splitLines(
        positionsFile.isEmpty() ? QString() : readSettingsFile(positionsFile).value_or(QString()));
    const TreeLister tree =
        hooks_.listFolder ? hooks_.listFolder : [this, &fs](const QString& folder) {
            return walkFolderTree(fs, folder, {}, {.stop = [this] { return stopRequested(); }})
                .files;
        };

    QString list;
    for (const QString& line : lines) {
        const QStringList fields = line.split(u',');
        if (UCase(Trim(fields.at(0))) != u"POS" || fields.size() < 3)
            continue;
        if (stopRequested())
            break;
        qint32 first = 0; // a position that doesn't fit is passed over
        qint32 last = 0;
        StoreInt32(first, Val(fields.at(1)));
        StoreInt32(last, Val(fields.at(2)));
        if (first < 1 || last < first)
            continue;
        const QString name = Mid(commandLineText_, first, last - first + 1);
        for (const QString& entry : listEntryLines(fs, name, EntryRule::CommandLine, tree))
            list += entry + kCrLf;
    }
    writeTextFileSafely(fs.toNative(dataFile(kStartList)), list);
    fs.deleteFile(programRunFile(kNamePositions));
}

} // namespace lumen
