// A diagnostic for people and for the whole-program test: on SIGUSR1 the
// program writes StateDump.txt in its settings folder, one line per field of
// the main window ("TextFileName=C:\pics\a.jpg"), the windows on show with
// their place on the screen, and the centres of the buttons of the running
// show that are on show, for a test to click. Nothing else reads or changes
// state.
#pragma once

#include <QObject>

class QSocketNotifier;

namespace lumen {

class Lumenta;

class StateDump : public QObject {
    Q_OBJECT
public:
    explicit StateDump(Lumenta& app);
    ~StateDump() override;

    // The text that is written.
    QString text() const;

private:
    void write();
    Lumenta& app_;
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace lumen
