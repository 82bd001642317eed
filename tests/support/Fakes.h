// Recording fakes of the platform services.
#pragma once

#include "platform/Clock.h"
#include "platform/Launcher.h"
#include "platform/UserDialogs.h"

#include <QList>
#include <QQueue>
#include <QString>
#include <QStringList>
#include <functional>

namespace lumen::test {

// A clock that jumps: a wait moves the time to its end at once, after
// letting the waiting events run once. `onWait` lets a test act inside a
// wait, as a user would (press a stop button, say).
class FakeClock : public Clock {
public:
    qint64 now = 0;
    qint64 tickStep = 0;                // each look at the clock moves it on by this much
    QList<qint64> waits;                // length of each wait, in order
    std::function<void(qint64)> onWait; // called with the wait's length
    std::function<void()> onDoEvents;   // called at every DoEvents
    int doEventsCount = 0;

    qint64 tickCount() override { return now += tickStep; }
    void waitUntil(qint64 tick) override;
    void doEvents() override;
    qint64 totalWaited() const;
};

// Records what was said to the user and answers from a script.
class FakeDialogs : public UserDialogs {
public:
    struct Message {
        int left, top;
        QString text;
    };
    QStringList boxes;                        // texts of message boxes and questions, in order
    QStringList questions;                    // texts of the Yes/No questions only
    QQueue<int> answers;                      // answers to questions; kAnswerYes when empty
    QQueue<std::optional<QString>> inputs;    // answers of input boxes
    QQueue<std::optional<QString>> fileNames; // answers of file dialogs
    QQueue<QString> folders;                  // answers of the folder dialog
    int beeps = 0;
    QList<Message> messages; // FormMessage shows
    bool messageShown = false;
    std::function<void(const QString&)> onBox; // runs when a box shows

    void msgBox(const QString& text) override;
    void msgBoxExclamation(const QString& text) override;
    QStringList exclamations; // texts of the boxes with the exclamation mark (also in boxes)
    int askYesNo(const QString& text) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& defaultText) override;
    void beep() override { ++beeps; }
    void showMessage(int left, int top, const QString& text) override;
    void hideMessage() override { messageShown = false; }
    std::optional<QString> openFileName(const QString& title, const QString& startPath,
                                        const QString& filter) override;
    std::optional<QString> saveFileName(const QString& title, const QString& startPath,
                                        const QString& filter) override;
    QString browseForFolder(const QString& title, const QString& startPath) override;

    QQueue<std::optional<qint32>> colors;    // answers of the colour dialog
    QQueue<std::optional<FontChoice>> fonts; // answers of the font dialog
    std::optional<qint32> chooseColor(qint32) override
    {
        return colors.isEmpty() ? std::nullopt : colors.dequeue();
    }
    std::optional<FontChoice> chooseFont(const QString&, double) override
    {
        return fonts.isEmpty() ? std::nullopt : fonts.dequeue();
    }

    QStringList dialogStarts;  // start paths the file and folder dialogs were given
    QStringList dialogFilters; // filters the file dialogs were given
};

class FakeLauncher : public Launcher {
public:
    QStringList commandLines; // shell() calls
    QStringList opened;       // shellExecuteOpen() calls
    bool succeed = true;

    bool shell(const QString& commandLine) override;
    int shellExecuteOpen(const QString& programPath) override;
};

} // namespace lumen::test
