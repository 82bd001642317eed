// FormRClick4: the popup of the text pane Text1. It opens the font and
// colour settings of the text, makes the main window smaller or larger by
// one step, hands the page's file to the desktop's viewer, and saves the
// text shown into a file of the user's choice.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QPushButton;

namespace lumen {

class FormRegistry;
class VeroProcedure_Basical;

class FormRClick4 : public FormBase {
    Q_OBJECT
public:
    // One step of CommandSmall and CommandBig, in twips each way, and the
    // smallest window CommandSmall leaves.
    static constexpr double kSizeStep = 1500;
    static constexpr double kSmallestWidth = 3000;
    static constexpr double kSmallestHeight = 2250;

    FormRClick4(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);

    // Links to the main window, wired by the application.
    std::function<QWidget*()> mainWindow; // the window CommandSmall and CommandBig size
    std::function<QString()> currentFile; // the page's file, program form
    std::function<QString()> shownText;   // the text of Text1

    // Loads the popup and shows it with its left top corner at a screen place.
    void showAt(double leftTwips, double topTwips);

    QPushButton* CommandSetFont;
    QPushButton* CommandSmall;
    QPushButton* CommandBig;
    QPushButton* CommandOpenSee;
    QPushButton* CommandToFile;
    QPushButton* CommandClose;

    void CommandSetFont_Click();
    void CommandSmall_Click();
    void CommandBig_Click();
    void CommandOpenSee_Click();
    void CommandToFile_Click();
    void CommandClose_Click();

private:
    void resizeMainBy(double step);
    QString fileOnShow() const;

    VeroProcedure_Basical& basics_;
    FormRegistry& forms_;
};

} // namespace lumen
