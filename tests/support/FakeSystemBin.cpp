#include "support/FakeSystemBin.h"

#include <QDir>
#include <QFile>

namespace lumen::test {

FakeSystemBin::FakeSystemBin(FileSystem& fs)
    : oldPath_(qgetenv("PATH"))
    , hadPath_(qEnvironmentVariableIsSet("PATH"))
{
    QDir().mkpath(folder());
    fs.drives().setDrive(QLatin1Char('Z'), Drive{root_.path(), QString()});
    qputenv("PATH", QFile::encodeName(folder()));
}

FakeSystemBin::~FakeSystemBin()
{
    if (hadPath_)
        qputenv("PATH", oldPath_);
    else
        qunsetenv("PATH");
}

QString FakeSystemBin::folder() const
{
    return root_.filePath(QStringLiteral("usr/bin"));
}

QString FakeSystemBin::add(const QString& name, bool executable) const
{
    const QString path = QDir(folder()).filePath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write("#!/bin/sh\n");
    file.close();
    QFile::Permissions permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    if (executable)
        permissions |= QFileDevice::ExeOwner | QFileDevice::ExeGroup | QFileDevice::ExeOther;
    file.setPermissions(permissions);
    return path;
}

} // namespace lumen::test
