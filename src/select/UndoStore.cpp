#include "select/UndoStore.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "state/ProgramState.h"

#include <QRegularExpression>

namespace lumen {

namespace {

using basic::Trim;

QString recordName(const QString& programRunDir)
{
    return programRunDir + QStringLiteral("\\DelTempFName.txt");
}

QString copyPrefix(const QString& programRunDir)
{
    return programRunDir + QStringLiteral("\\DelTempF.");
}

} // namespace

UndoRecord parseUndoRecord(const QString& line, const QString& programRunDir)
{
    const QString record = TrimLineEnds(line);
    const QString prefix = copyPrefix(programRunDir);
    const qsizetype copyAt = record.lastIndexOf(u',' + prefix, -1, Qt::CaseInsensitive);
    if (copyAt > 0)
        return {Trim(record.left(copyAt)), Trim(record.mid(copyAt + 1))};
    if (record.startsWith(prefix, Qt::CaseInsensitive)) {
        // Copy first: the original begins at the first drive behind a comma.
        static const QRegularExpression drive(QStringLiteral(",\\s*[A-Za-z]:\\\\"));
        const QRegularExpressionMatch match = drive.match(record, prefix.size());
        if (match.hasMatch()) {
            return {Trim(record.mid(match.capturedStart() + 1)),
                    Trim(record.left(match.capturedStart()))};
        }
    }
    const FilePair pair = SplitFilePair(record);
    return {Trim(pair.from), Trim(pair.to)};
}

QString undoCopyName(const QString& programRunDir, const QString& file)
{
    const QString extension = TextAfterFirstDot(FileNameOfPath(file));
    if (extension.isEmpty())
        return QString();
    return copyPrefix(programRunDir) + extension;
}

bool deleteKeepingUndo(VeroProcedure_Basical& basics, const QString& file)
{
    const QString programRunDir = basics.state().ProgramRunDir;
    const QString copy = undoCopyName(programRunDir, file);
    FileSystem& fs = basics.services().fs;
    if (copy.isEmpty() || !fs.copyFile(file, copy))
        return false;
    basics.WriteTextToFile(file + u',' + copy, recordName(programRunDir));
    if (!fs.dir(file).isEmpty())
        basics.DeleteFileConfirmed(file);
    return true;
}

QString recoverFromUndo(VeroProcedure_Basical& basics)
{
    const QString programRunDir = basics.state().ProgramRunDir;
    const QString recordFile = recordName(programRunDir);
    if (!basics.FileExists(recordFile))
        return QString();
    const UndoRecord record = parseUndoRecord(basics.ReadTextOfFile(recordFile), programRunDir);
    if (record.original.isEmpty() || record.copy.isEmpty())
        return record.original;
    FileSystem& fs = basics.services().fs;
    if (!fs.copyFile(record.copy, record.original))
        return record.original;
    if (!fs.dir(record.copy).isEmpty())
        basics.DeleteFileConfirmed(record.copy);
    if (!fs.dir(recordFile).isEmpty())
        basics.DeleteFileConfirmed(recordFile);
    return record.original;
}

} // namespace lumen
