// FormEditText: the list editor beside the file selection. While it is open
// Text1 of FormSelectFile shows every row of the list as one padded record;
// a click on a record fills this window with the row's five items, and its
// buttons change one item, add a row, move the selection, take one step
// back, rebuild the text through TempFile.txt, switch between the English
// and the user's command words, and lead back to standard text.
//
// The window is thin: the rows, the conversions and the operations are
// EditTextModel's; this class owns the controls and shows what it gives.
#pragma once

#include "editor/EditTextModel.h"
#include "platform/FormBase.h"

#include <array>

class QCheckBox;
class QComboBox;
class QFrame;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;

namespace lumen {

class FormRegistry;
class FormSelectFile;
class PreviewBox;
class VeroProcedure_Basical;

class FormEditText : public FormBase {
    Q_OBJECT
public:
    FormEditText(VeroProcedure_Basical& basics, FormSelectFile& select, FormRegistry& forms);
    ~FormEditText() override;

    EditTextModel& model() { return model_; }

    // ---- The items of the selected row
    QGroupBox* Frame1;
    QRadioButton* OptionSelectMain;
    QRadioButton* OptionSelectWith;
    QRadioButton* OptionSelectDelay;
    QRadioButton* OptionSelectComment;
    QRadioButton* OptionSelectTextComment;
    QRadioButton* OptionSelectOption;
    QRadioButton* OptionNone; // no item: hidden, selected by each row selection
    QCheckBox* CheckMain;
    QCheckBox* CheckWith;
    QCheckBox* CheckDelay;
    QCheckBox* CheckComment;
    QCheckBox* CheckTextComment;
    QCheckBox* CheckOption;
    QLineEdit* TextFileName;
    QLineEdit* TextSubFileName;
    QLineEdit* TextWaitTime;
    QPlainTextEdit* TextText;
    QLineEdit* TextCommentFileName;
    QComboBox* ComboCommandList;
    QPlainTextEdit* TextBigger;
    QPushButton* CommandMainFileOpen;
    QPushButton* CommandSab;
    QPushButton* CommandFileComment;
    std::array<QLabel*, 6> LabelItem{}; // marks beside the fields while a hint shows
    std::array<QFrame*, 2> Shape1{};    // frames round the fields while a hint shows

    // ---- Operations
    QPushButton* CommandAdd;
    QPushButton* CommandCut;
    QPushButton* CommandCopy;
    QPushButton* CommandPast;
    QPushButton* CommandInsertLine;
    QPushButton* CommandRecover;
    QPushButton* CommandUp;
    QPushButton* CommandDoun;
    QPushButton* CommandUpdate;
    QCheckBox* CheckAllwaysUpdate;
    QFrame* ShapeAllwaysUpdate;
    QLabel* LabelNom;     // the row count
    QLabel* LabelYourPos; // the selected row, from 1
    PreviewBox* Picture1; // hidden: the picture as loaded
    PreviewBox* Picture2; // the thumbnail

    // ---- Ways out and words
    QPushButton* CommandStanderdText;
    QPushButton* CommandEditOff;
    QPushButton* Command1;
    QCheckBox* CheckEnglishCommand;
    QPushButton* CommandSetCommand;

    // ---- Interfaces
    // The standard text of the selection's Text1 into the editor text; the
    // window opens beside the selection with row 1 selected.
    void TextConvertToEditorText();
    // A click in the selection's Text1 while the editor text is there.
    void Text1_Click();
    // A list was opened in the selection: the words it uses, and the editor
    // text is gone.
    void listOpened(bool english);
    // The item an operation means, by the option buttons.
    EditItem selectedItem() const;

    // ---- Handlers
    void CommandAdd_Click();
    void CommandCut_Click();
    void CommandCopy_Click();
    void CommandPast_Click();
    void CommandInsertLine_Click();
    void CommandRecover_Click();
    void CommandUpdate_Click();
    void CheckAllwaysUpdate_Click();
    void CommandUp_Click();
    void CommandDoun_Click();
    void CommandMainFileOpen_Click();
    void CommandSab_Click();
    void CommandFileComment_Click();
    void CheckEnglishCommand_Click();
    void CommandSetCommand_Click();
    void CommandStanderdText_Click();
    void Command1_Click();
    void CommandEditOff_Click();

protected:
    void Form_Load() override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildItems();
    void buildCommands();
    void layOut();
    void connectHandlers();
    void watchFields();
    void fillCombo();
    void applyRecordLook();
    void placeBesideSelection();

    // Row selection and the editor text in the selection's Text1.
    void clearItems();
    void showRow(const EditRowView& view);
    void PictureInImage1(const QString& file);
    void showEditorText(const QString& text, std::optional<int> selStart = std::nullopt);
    void rowCountShown();
    void closeChange(const EditChange& change);
    void ShowMessageAt(int leftTwips, int topTwips, const QString& text);
    void standardTextHint();

    // The comment field and its big box feed each other.
    void TextText_Change();
    void TextBigger_Change();
    QString commentText() const; // TextText with CR LF line ends

    // Hints over the buttons while no item is selected.
    void hoverHint(QWidget* button);
    void ShowItemHint(int leftTwips, int topTwips, const QString& text, bool withFrames);
    void optionsBesideItems(bool beside);
    QRect fieldsRect(std::initializer_list<QWidget*> fields) const;

    // The open dialog for a file field; the chosen name in program form.
    void chooseFileInto(QLineEdit* field);

    VeroProcedure_Basical& basics_;
    FormSelectFile& select_;
    FormRegistry& forms_;
    EditTextModel model_;
    QGridLayout* items_ = nullptr;
    std::array<QRadioButton*, 6> options_{};
    bool hinting_ = false; // a hint shows: mouse moves meanwhile pass
    bool filling_ = false; // the fields are being filled for a row
    QString lastChosen_;   // the name the file dialog gave last
};

} // namespace lumen
