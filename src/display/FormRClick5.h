// FormRClick5: the popup of a picture on show. It starts Auto Page, brings
// back or deletes the page's file through the main window, opens the picture
// in the picture editor, saves a copy of it, and opens another file.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QPushButton;

namespace lumen {

class VeroProcedure_Basical;

class FormRClick5 : public FormBase {
    Q_OBJECT
public:
    explicit FormRClick5(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // Links to the main window, wired by the application.
    std::function<void()> openAutoPage;            // Auto Page's window
    std::function<void()> recover;                 // CommandRecov of the main window
    std::function<void()> deleteFile;              // CommandDeleate of the main window
    std::function<QString()> currentFile;          // the page's file, program form
    std::function<void(const QString& file)> open; // shows a chosen file (program form)

    // Loads the popup and shows it with its left top corner at a screen place.
    void showAt(double leftTwips, double topTwips);

    QPushButton* CommandShowAutoRun;
    QPushButton* CommandRecover;
    QPushButton* CommandDeleat;
    QPushButton* CommandOpenEdit;
    QPushButton* CommandSave;
    QPushButton* CommandOpenSee;
    QPushButton* CommandClose;

    void CommandShowAutoRun_Click();
    void CommandRecover_Click();
    void CommandDeleat_Click();
    void CommandOpenEdit_Click();
    void CommandSave_Click();
    void CommandOpenSee_Click();
    void CommandClose_Click();

private:
    QString fileOnShow() const;
    void closeAndRun(const std::function<void()>& action);

    VeroProcedure_Basical& basics_;
};

} // namespace lumen
