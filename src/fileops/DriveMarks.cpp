// ResolveDriveName: the drive marks of a list line made real. "*:" is the
// drive the program runs from, "?:" a drive the user names, "%:" the folder
// of the list itself.
#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

const QString kAppMark = QStringLiteral("*:");
const QString kAskMark = QStringLiteral("?:");
const QString kListMark = QStringLiteral("%:");

QString collapseAll(QString text)
{
    while (text.contains(QLatin1String("\\\\")))
        text.replace(QLatin1String("\\\\"), QLatin1String("\\"));
    return text;
}

// Every "%:" stands for the whole folder part of its name: only the name
// behind the last "\" before the next "." survives.
QString replaceListMarks(QString line, const QString& listFolder)
{
    qsizetype from = 0;
    for (;;) {
        const qsizetype mark = line.indexOf(kListMark, from);
        if (mark < 0)
            break;
        qsizetype dot = line.indexOf(QLatin1Char('.'), mark + 2);
        if (dot < 0)
            dot = line.size();
        const qsizetype slash = line.lastIndexOf(QLatin1Char('\\'), dot - 1);
        const QString rest =
            slash > mark ? line.mid(slash) : QLatin1Char('\\') + line.mid(mark + 2);
        line = line.left(mark) + listFolder + rest;
        from = mark + listFolder.size();
    }
    return collapseAll(line);
}

} // namespace

QString VeroProcedure_Basical::ResolveDriveName(const QString& line)
{
    ProgramState& s = state_;
    bool app = false;
    bool ask = false;
    bool list = false;
    for (qsizetype colon = line.indexOf(QLatin1Char(':'), 1); colon > 0;
         colon = line.indexOf(QLatin1Char(':'), colon + 1)) {
        const QChar mark = line[colon - 1];
        app = app || mark == QLatin1Char('*');
        ask = ask || mark == QLatin1Char('?');
        list = list || mark == QLatin1Char('%');
    }
    QString result = line;

    if (app || ask || list) {
        // A mark before an address only protects it.
        if (UCase(line).contains(QLatin1String("://")) &&
            (line.startsWith(kAppMark) || line.startsWith(kAskMark) || line.startsWith(kListMark)))
            return collapseAll(Mid(line, 3));

        if (app) {
            s.ForcedDriveFrom = kAppMark;
            if (Trim(s.AppDrive).isEmpty() || !s.AppDrive.contains(QLatin1Char(':')))
                s.AppDrive = Left(s.ProgramFolder, 2);
            s.ForcedDriveTo = s.AppDrive;
            const qsizetype colon = s.ForcedDriveTo.indexOf(QLatin1Char(':'));
            if (colon < 0) {
                services_.ui.msgBox(QStringLiteral("強制ドライブ名を正しく検出していません。"));
                return line;
            }
            s.ForcedDriveTo = s.ForcedDriveTo.left(colon + 1);
        } else if (ask) {
            s.ForcedDriveFrom = kAskMark;
            // Asked until a drive is given.
            while (Trim(s.ForcedDriveTo).isEmpty() && !services_.clock.ending()) {
                if (!host_.askForcedDrive(kAskMark))
                    break;
            }
        } else {
            s.ForcedDriveFrom = kListMark;
            return replaceListMarks(line, FolderOfPath(s.StartFileName));
        }
    }

    if (!s.ForcedDriveFrom.isEmpty() && UCase(result).contains(s.ForcedDriveFrom) &&
        !Trim(s.ForcedDriveTo).isEmpty()) {
        result.replace(s.ForcedDriveFrom, s.ForcedDriveTo);
        if (result.contains(QLatin1String("\\\\")))
            result = collapseAll(result);
    }
    return result;
}

} // namespace lumen
