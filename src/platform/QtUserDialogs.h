// The user dialogs on Qt Widgets.
#pragma once

#include "platform/UserDialogs.h"

#include <QPointer>
#include <QWidget>

class QWidget;

namespace lumen {

class FormMessage;

class QtUserDialogs : public UserDialogs {
public:
    QtUserDialogs();
    ~QtUserDialogs() override;

    // The window that owns the dialogs when none of the program is active
    // (FormMain once it stands).
    void setOwner(QWidget* owner) { owner_ = owner; }

    void msgBox(const QString& text) override;
    int askYesNo(const QString& text) override;
    std::optional<QString> inputBox(const QString& prompt, const QString& title,
                                    const QString& defaultText) override;
    void beep() override;
    void showMessage(int leftTwips, int topTwips, const QString& text) override;
    void hideMessage() override;
    std::optional<QString> openFileName(const QString& title, const QString& startPath,
                                        const QString& filter) override;
    std::optional<QString> saveFileName(const QString& title, const QString& startPath,
                                        const QString& filter) override;
    QString browseForFolder(const QString& title, const QString& startPath) override;
    std::optional<qint32> chooseColor(qint32 initialBgr) override;
    std::optional<FontChoice> chooseFont(const QString& family, double pointSize) override;

    FormMessage* formMessage();

private:
    QWidget* dialogParent() const;

    QPointer<QWidget> owner_;
    FormMessage* message_ = nullptr;
    qint64 lastBeep_ = -1000;
};

} // namespace lumen
