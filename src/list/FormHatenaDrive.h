// FormHatenaDrive: asks which drive stands for a drive mark of a list ("?:"
// above all). The user may look through a drive with the three boxes and
// take its letter into ComboNewDrive.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QComboBox;
class QPushButton;

namespace lumen {

class DirListBox;
class DriveListBox;
class FileListBox;
class VeroProcedure_Basical;

class FormHatenaDrive : public FormBase {
    Q_OBJECT
public:
    explicit FormHatenaDrive(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // Links to the main window: the drive in its TextFileName is replaced,
    // and the page is shown once the drive is known.
    std::function<void(const QString& from, const QString& to)> replaceDriveInFileName;
    std::function<void()> takeMainAction;

    // Shows the window modally with the mark in ComboHatenaDrive.
    void ask(const QString& mark);

    QComboBox* ComboHatenaDrive;
    QComboBox* ComboNewDrive;
    DriveListBox* Drive1;
    DirListBox* Dir1;
    FileListBox* File1;
    QPushButton* CommandDo;
    QPushButton* CommandExit;

    void Drive1_Change();
    void Dir1_Change();
    void CommandDo_Click();
    void CommandExit_Click();

protected:
    void Form_Load() override;

private:
    VeroProcedure_Basical& basics_;
};

} // namespace lumen
