#include "fileops/WorkingFolders.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "state/ProgramState.h"

namespace lumen {

void setWorkingFolderNames(ProgramState& state)
{
    state.DataDir = QStringLiteral("C:\\Lumentas");
    state.ProgramRunDir = state.DataDir + QStringLiteral("\\ForProgramRun_KDR");
}

void makeWorkingFolders(VeroProcedure_Basical& basics)
{
    FileSystem& fs = basics.services().fs;
    for (const QString& folder : {basics.state().DataDir, basics.state().ProgramRunDir}) {
        if (fs.dir(folder + QStringLiteral("\\*.*")).isEmpty())
            fs.makeFolder(folder);
    }
}

void removeStagedLeftovers(VeroProcedure_Basical& basics)
{
    const FileSystem& fs = basics.services().fs;
    for (const QString& folder : {basics.state().DataDir, basics.state().ProgramRunDir}) {
        if (const QString native = fs.toNative(folder); !native.isEmpty())
            removeStaleStagedFiles(native);
    }
}

} // namespace lumen
