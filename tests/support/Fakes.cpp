#include "support/Fakes.h"

#include <QCoreApplication>

namespace lumen::test {

void FakeClock::waitUntil(qint64 tick)
{
    const qint64 length = tick - now;
    waits.append(length);
    doEvents();
    if (onWait)
        onWait(length);
    if (tick > now)
        now = tick;
}

void FakeClock::doEvents()
{
    ++doEventsCount;
    if (onDoEvents)
        onDoEvents();
    if (QCoreApplication::instance())
        QCoreApplication::processEvents();
}

qint64 FakeClock::totalWaited() const
{
    qint64 total = 0;
    for (qint64 w : waits)
        total += qMax<qint64>(0, w);
    return total;
}

void FakeDialogs::msgBox(const QString& text)
{
    boxes.append(text);
    if (onBox)
        onBox(text);
}

void FakeDialogs::msgBoxExclamation(const QString& text)
{
    exclamations.append(text);
    msgBox(text);
}

int FakeDialogs::askYesNo(const QString& text)
{
    boxes.append(text);
    questions.append(text);
    if (onBox)
        onBox(text);
    return answers.isEmpty() ? kAnswerYes : answers.dequeue();
}

std::optional<QString> FakeDialogs::inputBox(const QString& prompt, const QString&,
                                             const QString& defaultText)
{
    boxes.append(prompt);
    if (inputs.isEmpty())
        return defaultText;
    return inputs.dequeue();
}

void FakeDialogs::showMessage(int left, int top, const QString& text)
{
    messages.append({left, top, text});
    messageShown = true;
}

std::optional<QString> FakeDialogs::openFileName(const QString&, const QString& startPath,
                                                 const QString& filter)
{
    dialogStarts.append(startPath);
    dialogFilters.append(filter);
    return fileNames.isEmpty() ? std::nullopt : fileNames.dequeue();
}

std::optional<QString> FakeDialogs::saveFileName(const QString&, const QString& startPath,
                                                 const QString& filter)
{
    dialogStarts.append(startPath);
    dialogFilters.append(filter);
    return fileNames.isEmpty() ? std::nullopt : fileNames.dequeue();
}

QString FakeDialogs::browseForFolder(const QString&, const QString& startPath)
{
    dialogStarts.append(startPath);
    return folders.isEmpty() ? QString() : folders.dequeue();
}

bool FakeLauncher::shell(const QString& commandLine)
{
    commandLines.append(commandLine);
    return succeed;
}

int FakeLauncher::shellExecuteOpen(const QString& programPath)
{
    opened.append(programPath);
    return succeed ? 42 : 2;
}

} // namespace lumen::test
