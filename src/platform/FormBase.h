// The base of the program's windows. A window is created once and lives to
// the end; "unload" hides it and marks it unloaded, and the next use loads it
// again, running Form_Load, as the classic window model did. A close by the
// window's own frame is an unload.
#pragma once

#include <QWidget>

class QEventLoop;
class QTimer;

namespace lumen {

class FormBase : public QWidget {
    Q_OBJECT
public:
    explicit FormBase(const QString& name, QWidget* parent = nullptr,
                      Qt::WindowFlags flags = Qt::Window);

    bool isLoaded() const { return loaded_; }
    // Runs Form_Load when the window isn't loaded yet; every use of the
    // window goes through here.
    void load();
    // Show: load if needed and show without waiting.
    void showForm();
    // Show modally: load, show, and return when the window is hidden or unloaded.
    void showModal();
    // Unload: Form_Unload may refuse; otherwise the window is hidden and unloaded.
    // True when the window was unloaded.
    bool unload();

Q_SIGNALS:
    void unloaded();

protected:
    virtual void Form_Load() {}
    // Sets `cancel` to refuse the unload.
    virtual void Form_Unload(bool& cancel) { Q_UNUSED(cancel); }
    // The window manager's frame is known and stands where the program put
    // it (windows the program placed before they were shown).
    virtual void windowFramed() {}

    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    bool loaded_ = false;
    bool inLoad_ = false;
    QEventLoop* modalLoop_ = nullptr;
    QTimer* framing_ = nullptr; // looks for the window manager's frame after a show
    int framingLooks_ = 0;
    int framingMoves_ = 0;
    int steadyLooks_ = 0;
    QRect lastSeen_;
    QMargins lastFrame_;
    void placeFrameOnceFramed();
};

} // namespace lumen
