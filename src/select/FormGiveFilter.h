// FormGiveFilter: searches the loaded list for a word in its main files and
// shows the page found: from the first row, onwards from the page on show,
// or back from it.
#pragma once

#include "platform/FormBase.h"

#include <functional>

class QLineEdit;
class QPushButton;

namespace lumen {

class VeroProcedure_Basical;

// The main window's page bar and page, wired by the application.
struct FormGiveFilterLinks {
    std::function<int()> currentPage{}; // TextCount
    std::function<int()> pageCount{};   // FileCount
    std::function<void(int page)> setPageBar{};
    std::function<void()> pageBarChange{}; // HScrollPicNom_Change
    std::function<void()> takeMainAction{};
};

class FormGiveFilter : public FormBase {
    Q_OBJECT
public:
    explicit FormGiveFilter(VeroProcedure_Basical& basics, QWidget* parent = nullptr);

    FormGiveFilterLinks links;

    QLineEdit* TextFilter;
    QPushButton* CommandFined;
    QPushButton* CommandNext;
    QPushButton* CommandBack;

    void CommandFined_Click();
    void CommandNext_Click();
    void CommandBack_Click();

protected:
    void Form_Load() override;

private:
    // Looks from `from` by `step`; shows the row found, or says it is not.
    void search(int from, int step, bool changeFirst);
    int current() const;

    VeroProcedure_Basical& basics_;
};

} // namespace lumen
