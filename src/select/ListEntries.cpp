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
    const QStringList itself = staysOneMainFile(name) ? QStringList{name} : QStringList();
    if (!basic::UCase(name).contains(QStringLiteral(".LST")))
        return itself;
    const QString nativeName = fs.toNative(name);
    const QStringList lines = text::splitLines(
        nativeName.isEmpty() ? QString() : readTextFile(nativeName).value_or(QString()));
    if (!holdsColonAndDot(lines.value(0)))
        return itself;
    QStringList kept;
    for (const QString& line : lines) {
        if (holdsColonAndDot(line))
            kept.append(line);
    }
    return kept;
}

} // namespace

QStringList listEntryLines(const FileSystem& fs, const QString& name, EntryRule rule,
                           const TreeLister& tree)
{
    const auto treeLines = [&] { return tree ? tree(name) : walkFolderTree(fs, name).files; };
    switch (rule) {
    case EntryRule::CommandLine:
        return fs.isFolder(name) ? treeLines() : fileLines(fs, name);
    case EntryRule::Dropped:
        if (!name.contains(u':'))
            return {};
        return name.contains(u'.') ? fileLines(fs, name) : treeLines();
    }
    return {};
}

} // namespace lumen
