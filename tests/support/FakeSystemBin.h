// A stand-in for the machine's program folder: while it lives, Z: of the
// given file system is a temporary root, and PATH names only its usr/bin, so
// a program put there is found as "Z:\usr\bin\<name>". PATH comes back
// when it goes.
#pragma once

#include "platform/FileSystem.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace lumen::test {

class FakeSystemBin {
public:
    explicit FakeSystemBin(FileSystem& fs);
    ~FakeSystemBin();
    FakeSystemBin(const FakeSystemBin&) = delete;
    FakeSystemBin& operator=(const FakeSystemBin&) = delete;

    // Puts a small file of that name in usr/bin, executable unless told
    // otherwise; returns its native path.
    QString add(const QString& name, bool executable = true) const;
    QString folder() const; // native usr/bin

private:
    QTemporaryDir root_;
    QByteArray oldPath_;
    bool hadPath_;
};

} // namespace lumen::test
