// The basic procedures' host on the real windows: the main window's caption,
// FormStop, the file boxes and the drive window are reached through links
// that the application sets as the windows come to stand.
#pragma once

#include "fileops/BasicHost.h"

#include <QElapsedTimer>
#include <QList>
#include <QPointer>
#include <QTimer>
#include <functional>

class QWidget;

namespace lumen {

class FormStop;

class FormsBasicHost : public BasicHost {
public:
    explicit FormsBasicHost(FormStop& stop);
    ~FormsBasicHost() override;

    QPointer<QWidget> mainWindow;                        // FormMain
    QList<std::function<void()>> fileControlRefreshers;  // one per window with file boxes
    std::function<void(const QString& mark)> driveAsker; // FormHatenaDrive

    void setMainCaption(const QString& caption) override;
    void showStop() override;
    void setStopText(const QString& text) override;
    void unloadStop() override;
    void refreshFileControls() override;
    bool askForcedDrive(const QString& mark) override;

private:
    void applyStopText();

    FormStop& stop_;
    QString pendingStopText_;
    QElapsedTimer sinceStopText_;
    QTimer* stopTextTimer_ = nullptr;
};

} // namespace lumen
