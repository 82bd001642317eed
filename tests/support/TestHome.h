// A temporary home folder for a test: the drive C: of a FileSystem points at
// it, Z: at the real root, and the current folder starts at C:\.
#pragma once

#include "platform/FileSystem.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace lumen::test {

class TestHome {
public:
    TestHome();

    QString path() const { return dir_.path(); } // native
    // Native path of a program-form path under C:.
    QString native(const QString& relative) const;
    // Writes a file under the home (folders made as needed); returns its native path.
    QString writeFile(const QString& relative, const QByteArray& bytes) const;
    QByteArray readFile(const QString& relative) const;
    bool exists(const QString& relative) const;
    void makeFolder(const QString& relative) const;

    FileSystem fs;

private:
    QTemporaryDir dir_;
};

} // namespace lumen::test
