#include "platform/SafeFile.h"

#include "platform/TextCodec.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>
#include <utility>

namespace lumen {

namespace {

std::function<void()>& beforeCommitHook()
{
    static std::function<void()> hook;
    return hook;
}

} // namespace

bool writeFileSafely(const QString& nativePath, const QByteArray& bytes)
{
    QSaveFile file(nativePath);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    if (file.write(bytes) != bytes.size()) {
        file.cancelWriting();
        return false;
    }
    if (const auto& hook = beforeCommitHook())
        hook();
    return file.commit();
}

bool writeTextFileSafely(const QString& nativePath, const QString& text)
{
    return writeFileSafely(nativePath, text::encodeForFile(text));
}

bool writeFileQuickly(const QString& nativePath, const QByteArray& bytes)
{
    const QFileInfo target(nativePath);
    const QString staged = target.path() + QStringLiteral("/.") + target.fileName() +
                           QStringLiteral(".%1.part").arg(QCoreApplication::applicationPid());
    QFile::remove(staged); // a leftover of a write that was cut short
    QFile file(staged);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    const bool written = file.write(bytes) == bytes.size();
    file.close();
    if (written && file.error() == QFileDevice::NoError &&
        std::rename(QFile::encodeName(staged).constData(),
                    QFile::encodeName(nativePath).constData()) == 0)
        return true;
    QFile::remove(staged);
    return false;
}

bool writeTextFileQuickly(const QString& nativePath, const QString& text)
{
    return writeFileQuickly(nativePath, text::encodeForFile(text));
}

std::optional<QString> readTextFile(const QString& nativePath)
{
    QFile file(nativePath);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    return text::decode(bytes);
}

namespace testing {

void setBeforeCommitHook(std::function<void()> hook)
{
    beforeCommitHook() = std::move(hook);
}

} // namespace testing

} // namespace lumen
