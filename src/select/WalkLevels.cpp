#include "select/WalkLevels.h"

#include <utility>

namespace lumen {

namespace {

const QByteArray kLineEnd = QByteArrayLiteral("\r\n");

} // namespace

WalkLevels::WalkLevels(const QString& headFile, const QString& nextHeadFile)
    : headFile_(headFile)
    , nextHeadFile_(nextHeadFile)
    , inMemory_(headFile.isEmpty() || nextHeadFile.isEmpty())
{
    if (inMemory_)
        return;
    removeFiles(); // left over from a walk that never ended
    next_.setFileName(nextHeadFile_);
    // Unbuffered, so that a failed write shows at once and that folder is
    // kept in memory instead.
    next_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
}

WalkLevels::~WalkLevels()
{
    head_.close();
    next_.close();
    if (!inMemory_)
        removeFiles();
}

void WalkLevels::removeFiles()
{
    QFile::remove(headFile_);
    QFile::remove(nextHeadFile_);
}

void WalkLevels::add(const QString& folder)
{
    if (next_.isOpen() && nextExtra_.isEmpty()) {
        const QByteArray line = folder.toUtf8() + kLineEnd;
        if (next_.write(line) == line.size()) {
            ++nextInFile_;
            return;
        }
        // A short write leaves a cut line, which the reading passes over;
        // from here on this level is kept in memory.
        next_.close();
    }
    nextExtra_.append(folder);
}

bool WalkLevels::take(QString& folder)
{
    while (!takeFromThisLevel(folder)) {
        if (!beginNextLevel())
            return false;
    }
    return true;
}

bool WalkLevels::takeFromThisLevel(QString& folder)
{
    while (head_.isOpen()) {
        const QByteArray line = head_.readLine();
        if (!line.endsWith(kLineEnd)) {
            head_.close(); // the end, or a cut line
            break;
        }
        folder = QString::fromUtf8(line.chopped(kLineEnd.size()));
        if (!folder.trimmed().isEmpty())
            return true;
    }
    if (headExtraAt_ < headExtra_.size()) {
        folder = headExtra_.at(headExtraAt_++);
        return true;
    }
    return false;
}

bool WalkLevels::beginNextLevel()
{
    if (nextInFile_ == 0 && nextExtra_.isEmpty())
        return false; // a level with no new folders ends the walk
    head_.close();
    next_.close();
    headExtra_ = std::exchange(nextExtra_, {});
    headExtraAt_ = 0;
    if (inMemory_)
        return true;
    if (nextInFile_ > 0) {
        QFile::remove(headFile_);
        // Head2.txt becomes Head.txt; where it can't be renamed, the two
        // names change roles instead.
        if (!QFile::rename(nextHeadFile_, headFile_))
            std::swap(headFile_, nextHeadFile_);
        head_.setFileName(headFile_);
        head_.open(QIODevice::ReadOnly);
    }
    nextInFile_ = 0;
    next_.setFileName(nextHeadFile_);
    next_.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered);
    return true;
}

} // namespace lumen
