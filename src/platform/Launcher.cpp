#include "platform/Launcher.h"

#include "platform/FileSystem.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace lumen {

namespace {

constexpr int kOpened = 42; // ShellExecute's answers
constexpr int kNotFound = 2;

// A word holding ":\" is a program-form path; one on an unknown drive
// stays as written.
QString argumentWord(const QString& word, const FileSystem& fs)
{
    if (!word.contains(u":\\"))
        return word;
    const QString native = fs.toNative(word);
    return native.isEmpty() ? word : native;
}

} // namespace

bool isExecutableFile(const QString& native)
{
    if (native.isEmpty())
        return false;
    const QFileInfo info(native);
    constexpr auto kExecBits =
        QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    return info.isFile() && (info.permissions() & kExecBits);
}

std::optional<QStringList> splitCommandLine(const QString& commandLine, const FileSystem& fs)
{
    qsizetype start = 0;
    while (start < commandLine.size() && commandLine.at(start) == u' ')
        ++start;
    // Kept with empty words, so that a prefix joined again is the text as written.
    const QStringList words = commandLine.mid(start).split(u' ');
    for (qsizetype count = 1; count <= words.size(); ++count) {
        const QString program = fs.toNative(words.first(count).join(u' '));
        if (!isExecutableFile(program))
            continue;
        QStringList argv{program};
        for (const QString& word : words.sliced(count)) {
            if (!word.isEmpty())
                argv.append(argumentWord(word, fs));
        }
        return argv;
    }
    return std::nullopt;
}

bool ProcessLauncher::shell(const QString& commandLine)
{
    const auto argv = splitCommandLine(commandLine, fs_);
    if (!argv)
        return false;
    const QString folder = fs_.toNative(fs_.curDir());
    const QString workingFolder = QFileInfo(folder).isDir() ? folder : QString();
    return QProcess::startDetached(argv->first(), argv->sliced(1), workingFolder);
}

int ProcessLauncher::shellExecuteOpen(const QString& programPath)
{
    const QString native = fs_.toNative(programPath);
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (native.isEmpty() || !QFileInfo::exists(native) || opener.isEmpty())
        return kNotFound;
    return QProcess::startDetached(opener, {native}) ? kOpened : kNotFound;
}

} // namespace lumen
