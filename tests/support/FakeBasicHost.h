// A recording host for the basic procedures: captions, FormStop's life and
// texts, refreshes of file boxes, and a drive window answered by a script.
#pragma once

#include "fileops/BasicHost.h"
#include "state/ProgramState.h"

#include <QStringList>
#include <functional>

namespace lumen::test {

class FakeBasicHost : public BasicHost {
public:
    QStringList captions;   // every caption set, in order
    QStringList stopEvents; // "show", "unload"
    QStringList stopTexts;
    int refreshes = 0;
    QStringList askedMarks;
    // Answers the drive window: called with the mark; may set the state's pair.
    std::function<void(const QString&)> onAskDrive;

    void setMainCaption(const QString& caption) override { captions << caption; }
    void showStop() override { stopEvents << QStringLiteral("show"); }
    void setStopText(const QString& text) override { stopTexts << text; }
    void unloadStop() override { stopEvents << QStringLiteral("unload"); }
    void refreshFileControls() override { ++refreshes; }
    bool askForcedDrive(const QString& mark) override
    {
        askedMarks << mark;
        if (onAskDrive)
            onAskDrive(mark);
        return true;
    }
};

} // namespace lumen::test
