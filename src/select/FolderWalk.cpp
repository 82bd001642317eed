#include "select/FolderWalk.h"

#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "select/WalkLevels.h"

#include <QRegularExpression>

namespace lumen {

namespace {

QString collapseBackslashes(QString path)
{
    static const QRegularExpression runs(QStringLiteral("\\\\{2,}"));
    return path.replace(runs, QStringLiteral("\\"));
}

// "*.jpg; *.bmp" as single patterns; none at all means every file.
QStringList patternsOf(const QString& pattern)
{
    QStringList patterns;
    for (const QString& part : pattern.split(u';')) {
        const QString trimmed = basic::Trim(part);
        if (!trimmed.isEmpty())
            patterns.append(trimmed);
    }
    if (patterns.isEmpty())
        patterns.append(QStringLiteral("*.*"));
    return patterns;
}

class WordFilter {
public:
    explicit WordFilter(const FolderWalkOptions& options)
        : word_(basic::UCase(basic::Trim(options.word)))
        , excluding_(options.includeMode == u"EXC")
        , nameOnly_(options.target == u"FILE")
    {}

    bool keeps(const QString& path, const QString& name) const
    {
        if (word_.isEmpty())
            return true;
        const bool holdsWord = basic::UCase(nameOnly_ ? name : path).contains(word_);
        return holdsWord != excluding_;
    }

private:
    QString word_;
    bool excluding_;
    bool nameOnly_;
};

// The folders never entered, in program form ("Z:\proc").
class SkippedFolders {
public:
    SkippedFolders(const FileSystem& fs, const QStringList& nativeFolders)
    {
        for (const QString& folder : nativeFolders) {
            const QString programForm = fs.toProgram(folder);
            if (!programForm.isEmpty())
                folders_.append(programForm);
        }
    }

    bool contains(const QString& path) const
    {
        return folders_.contains(path, Qt::CaseInsensitive);
    }

private:
    QStringList folders_;
};

QString levelFile(const FileSystem& fs, const QString& folder, const char* name)
{
    if (folder.isEmpty())
        return QString();
    return fs.toNative(folder + u'\\' + QLatin1String(name));
}

} // namespace

QString FolderWalkResult::listText() const
{
    QString text;
    for (const QString& path : files)
        text += path + QStringLiteral("\r\n");
    return text;
}

QString joinFolderAndName(const QString& folder, const QString& name)
{
    if (folder.endsWith(u'\\'))
        return folder + name;
    return folder + u'\\' + name;
}

bool staysOneMainFile(const QString& path)
{
    if (path.contains(u'\r') || path.contains(u'\n'))
        return false;
    return !(path.contains(u'@') && path.contains(u'='));
}

FolderWalkResult walkFolderTree(const FileSystem& fs, const QString& top,
                                const FolderWalkOptions& options, const FolderWalkHooks& hooks)
{
    FolderWalkResult result;
    const QString topFolder = collapseBackslashes(top);
    if (!fs.isFolder(topFolder))
        return result;
    const auto stopNow = [&hooks, &result] {
        result.stopped = hooks.stop && hooks.stop();
        return result.stopped;
    };
    const WordFilter filter(options);
    const SkippedFolders skipped(fs, options.systemFolders);
    WalkLevels levels(levelFile(fs, options.levelFolder, "Head.txt"),
                      levelFile(fs, options.levelFolder, "Head2.txt"));

    // Each folder's sub-folders join the next level, behind those of the
    // folders listed before it.
    QString folder = topFolder;
    do {
        if (stopNow())
            return result;
        const QStringList patterns = patternsOf(hooks.pattern ? hooks.pattern() : options.pattern);
        const FileSystem::FolderListing listing = fs.listFolder(folder, patterns);
        ++result.folderCount;
        const qsizetype first = result.files.size();
        for (const QString& name : listing.files) {
            if (stopNow())
                return result;
            const QString path = joinFolderAndName(folder, name);
            if (staysOneMainFile(path) && filter.keeps(path, name))
                result.files.append(path);
        }
        if (hooks.folderListed)
            hooks.folderListed(folder, result.files.mid(first));
        for (const QString& name : listing.folders) {
            const QString path = joinFolderAndName(folder, name);
            if (!skipped.contains(path))
                levels.add(path);
        }
    } while (levels.take(folder));
    return result;
}

} // namespace lumen
