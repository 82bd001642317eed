// FormRightLeftNorm: the small navigator that stays on top while the show
// takes the whole window. It turns the pages of the main window, carries a
// copy of its page bar, goes back to the normal layout, moves the web view
// back and forward, repeats the page and opens the exit choice.
#pragma once

#include "display/ShowKeys.h"
#include "platform/FormBase.h"

#include <functional>

class QFrame;
class QPushButton;
class QScrollBar;

namespace lumen {

class ClickLabel;
class VeroProcedure_Basical;

class FormRightLeftNorm : public FormBase {
    Q_OBJECT
public:
    explicit FormRightLeftNorm(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // The main window's side, wired by the application.
    struct Links {
        std::function<void()> commandLeft;    // FormMain's CommandLeft_Click
        std::function<void()> commandRight;   // FormMain's CommandRight_Click
        std::function<int()> pageBarValue;    // HScrollPicNom.Value
        std::function<void(int)> setPageBar;  // HScrollPicNom.Value = ...
        std::function<void()> toNormalSize;   // FORMNORMALSIZE
        std::function<void()> takeMainAction; // TakeMainAction
        std::function<void()> showExit;       // FormLumentaExit
        std::function<bool()> webPageShown;   // the web flag of the page
        std::function<void()> ieLeft;         // FormMain's CommandIELeft_Click
        std::function<void()> ieRight;        // FormMain's CommandIERight_Click
        std::function<void(ShowKey)> showKey; // FormMain's keys of the show
        std::function<bool()> wholeScreen;    // FormMain is in whole-screen mode
    } links;

    QPushButton* CommandLeft;
    QPushButton* CommandRight;
    QScrollBar* HScroll1;
    QPushButton* CommandToNormalSize;
    QPushButton* CommandIELeft;
    QPushButton* CommandIERight;
    QPushButton* CommandEnd;
    QFrame* Shape1;
    ClickLabel* LabelDo;

    // The page bar's value set by the program, as the main window's page
    // count changes. A value outside the bar's range is passed over.
    void setPage(int value);

    void CommandLeft_Click();
    void CommandRight_Click();
    void HScroll1_Change();
    void CommandToNormalSize_Click();
    void LabelDo_Click();
    void LabelDo_MouseMove();
    void CommandEnd_Click();
    void CommandIELeft_Click();
    void CommandIERight_Click();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    // Closed by its frame in whole-screen mode, it takes the show back to the
    // normal window, as CommandToNormalSize does.
    void closeEvent(QCloseEvent* event) override;

private:
    void copyPageBar();
    void refreshWebButtons();

    VeroProcedure_Basical& basics_;
};

} // namespace lumen
