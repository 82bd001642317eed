// FormOption: Auto Page. It pages through the list by itself, forward, back
// or round and round, waiting on each page the interval, or the page's own
// DELAY, after its medium has played to the end. The walk runs inside
// CommandStart_Click; its waits let events run, so that CommandStop and the
// ends of media arrive while it waits. Timer1 only draws the progress bar.
#pragma once

#include "platform/FormBase.h"

class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollBar;
class QTimer;

namespace lumen {

class ClickLabel;
class FormMain;
class VeroProcedure_Basical;

class FormOption : public FormBase {
    Q_OBJECT
public:
    FormOption(VeroProcedure_Basical& basics, FormMain& main, QWidget* parent = nullptr);

    QGroupBox* Frame1;
    QLineEdit* TextIntervalTime; // seconds
    QScrollBar* HScroll1;        // the same, whole seconds
    QRadioButton* OptionFowerd;
    QRadioButton* OptionBack;
    QRadioButton* OptionLoop;
    ClickLabel* ImageFowerd;
    ClickLabel* ImageBack;
    ClickLabel* ImageLoop;
    QPushButton* CommandStart;
    QPushButton* CommandStop;
    QTimer* Timer1;
    QLabel* LabelBack;  // the full bar
    QLabel* LabelTimer; // the growing bar, inside it

    bool StopPressed = false;
    float BarStep = 0; // twips per tick
    int TickCount = 0;
    bool ZeroInterval = false;
    QString KeptInterval; // the interval while a page has its own delay

    void CommandStart_Click();
    void CommandStop_Click();
    void Timer1_Timer();
    void HScroll1_Change();
    void Frame1_MouseMove();

protected:
    void Form_Load() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Step { Next, Leave, NextRound };
    Step step(int row, int direction, bool looping, int walk);
    void waitOnPage(int row, bool backOrLoop);
    void waitForMedium();
    double interval() const;
    void setBarStep(double seconds);
    void resetBar();
    bool walkGoesOn(int walk) const;
    void layOut();

    VeroProcedure_Basical& basics_;
    FormMain& main_;
    int walks_ = 0; // a walk begun in another's wait makes the older one give up
    int shownThisRound_ = 0;
};

} // namespace lumen
