// The folders that a walk has still to list, one level after another: the
// folders of the level being listed, and the folders found for the next.
// They live in memory, or in two files as the selection window keeps them
// (Head.txt for this level, Head2.txt for the next), with memory taking over
// whatever the files can't hold. Used by the folder walk only.
#pragma once

#include <QFile>
#include <QString>
#include <QStringList>

namespace lumen {

class WalkLevels {
public:
    // Native paths of the two files; empty ones keep everything in memory.
    WalkLevels(const QString& headFile = {}, const QString& nextHeadFile = {});
    ~WalkLevels(); // both files removed
    WalkLevels(const WalkLevels&) = delete;
    WalkLevels& operator=(const WalkLevels&) = delete;

    // A folder of the next level.
    void add(const QString& folder);
    // The next folder of this level, going on to the next level when this
    // one is used up; false when no level is left.
    bool take(QString& folder);

private:
    bool takeFromThisLevel(QString& folder);
    bool beginNextLevel();
    void removeFiles();

    QString headFile_;
    QString nextHeadFile_;
    QFile head_;            // this level, read line by line
    QFile next_;            // the next level, written line by line
    QStringList headExtra_; // this level's folders that no file holds
    QStringList nextExtra_;
    qsizetype headExtraAt_ = 0;
    qsizetype nextInFile_ = 0;
    bool inMemory_ = false;
};

} // namespace lumen
