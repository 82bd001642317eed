// Things that stand where a file is expected: named pipes, devices, links to
// them or to nothing, folders. Made by the test in its own folder (a device
// only where the system lets the test make one), and described, so that a
// test can show that nothing about them changed.
#pragma once

#include <QString>

namespace lumen::test {

enum class OddFile { Pipe, LinkToPipe, Device, LinkToDevice, LinkToNothing, Folder, LinkToFolder };

// Makes the thing at `native`; what a link names goes beside it, under a
// name of its own. False when it can't be made (a device needs privilege).
bool makeOddFile(OddFile kind, const QString& native);

// The kind of what stands at the path, with a link's target and the kind of
// that ("link:/tmp/x/pipe.target>pipe"), a regular file's size and bytes'
// checksum: equal texts before and after mean nothing changed.
QString describePath(const QString& native);

// Ends the test process if the scope isn't left within `seconds`: a test
// that would otherwise hang on a pipe fails at once.
class Watchdog {
public:
    explicit Watchdog(unsigned seconds);
    ~Watchdog();
    Watchdog(const Watchdog&) = delete;
    Watchdog& operator=(const Watchdog&) = delete;
};

// While it lives, the thread is held to the permission bits of files even
// when the tests run as root: the capabilities that override them leave its
// effective set (they stay permitted, and come back at the end). Run as
// another user, the bits hold anyway.
class PermissionBitsHold {
public:
    PermissionBitsHold();
    ~PermissionBitsHold();
    PermissionBitsHold(const PermissionBitsHold&) = delete;
    PermissionBitsHold& operator=(const PermissionBitsHold&) = delete;

private:
    unsigned effective_ = 0;
    bool changed_ = false;
};

} // namespace lumen::test
