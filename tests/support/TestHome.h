// A temporary home folder for a test: the drive C: of a FileSystem points at
// it, Z: at the real root, and the current folder starts at C:\.
#pragma once

#include "platform/FileSystem.h"

#include <QByteArray>
#include <QColor>
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
    // A PNG or JPEG (by the name) of one colour under the home; its program-form path.
    QString picture(const QString& relative, int w = 40, int h = 30,
                    QColor colour = QColor(90, 140, 200)) const;

    FileSystem fs;

private:
    QTemporaryDir dir_;
};

} // namespace lumen::test
