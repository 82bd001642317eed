// FormSetAccessDirectry: the window of the first start. It looks for the
// helper programs, lets the user point to the ones that weren't found, and
// writes the whole settings record with its defaults; then the program goes
// on into its normal start. It also serves for later corrections.
#pragma once

#include "platform/FormBase.h"

#include <array>
#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace lumen {

class VeroProcedure_Basical;

class FormSetAccessDirectry : public FormBase {
    Q_OBJECT
public:
    static constexpr int kRows = 6;

    explicit FormSetAccessDirectry(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    // Run when the window closes: completed, after the record is written and
    // the closing message is shown (the application goes on into its normal
    // start); or closed without completing (the application ends).
    std::function<void()> onCompleted;
    std::function<void()> onAbandoned;

    // The six program rows, in this order.
    QLineEdit* TextComment;
    QLineEdit* TextText;
    QLineEdit* TextMpl2;
    QLineEdit* TextSnd;
    QLineEdit* TextIE;
    QLineEdit* TextPic;
    QLineEdit* TextIntialAccessDirectry;
    QLineEdit* TextDirectryProgramRunning;
    std::array<QPushButton*, kRows> CommandApliPos{};
    std::array<QLabel*, kRows> Label11{};
    QPushButton* CommandExit;

    void CheckFoundApps();
    void CommandApliPos_Click(int index);
    void CommandExit_Click();

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

private:
    QLineEdit* rowBox(int index) const;
    QString rowField(int index) const;
    void setRowField(int index, const QString& path);
    bool checkRow(int index); // blue when found, red and a beep otherwise
    void updateCommandExit();
    void searchPrograms();
    bool acceptsChoice(int index, const QString& nativePath, const QString& programPath);
    void layOut(const std::array<QLabel*, 6>& notes);

    VeroProcedure_Basical& basics_;
    std::array<QLineEdit*, kRows> rowBoxes_{}; // TextComment ... TextPic
    std::array<bool, kRows> found_{};
    bool completed_ = false;
};

} // namespace lumen
