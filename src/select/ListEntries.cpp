#include "select/ListEntries.h"

#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/SafeFile.h"
#include "platform/TextCodec.h"

namespace lumen {

namespace {

bool holdsColonAndDot(const QString& text)
{
    return text.contains(u':') && text.contains(u'.');
}

// A file's own line, or the list lines of a list file.
QStringList fileLines(const FileSystem& fs, const QString& name)
{
    if (!basic::UCase(name).contains(QStringLiteral(".LST")))
        return {name};
    const QString nativeName = fs.toNative(name);
    const QStringList lines = text::splitLines(
        nativeName.isEmpty() ? QString() : readTextFile(nativeName).value_or(QString()));
    if (!holdsColonAndDot(lines.value(0)))
        return {name};
    QStringList kept;
    for (const QString& line : lines) {
        if (holdsColonAndDot(line))
            kept.append(line);
    }
    return kept;
}

} // namespace

QStringList listEntryLines(const FileSystem& fs, const QString& name, EntryRule rule,
                           const FolderWalkOptions& options, const std::function<bool()>& stop)
{
    const auto tree = [&] { return walkFolderTree(fs, name, options, stop).files; };
    switch (rule) {
    case EntryRule::CommandLine:
        return fs.isFolder(name) ? tree() : fileLines(fs, name);
    case EntryRule::Dropped:
        if (!name.contains(u':'))
            return {};
        return name.contains(u'.') ? fileLines(fs, name) : tree();
    }
    return {};
}

} // namespace lumen
