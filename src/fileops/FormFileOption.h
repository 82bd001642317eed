// FormFileOption: bulk work on the files of the loaded list. The main files
// of ListArray are copied into a folder, copied under numbered names or with
// a word replaced, or deleted; at once, or file by file with the page on
// show and the user's answer (OK, skip, back, cancel) awaited. The walk is
// BulkWalk's; this window holds the controls and answers its questions.
#pragma once

#include "fileops/BulkWalk.h"
#include "platform/FormBase.h"

#include <QElapsedTimer>

#include <functional>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace lumen {

class DirListBox;
class DriveListBox;
class FileListBox;
class FormRegistry;
class VeroProcedure_Basical;

// What the window needs of the main window, wired by the application.
struct FormFileOptionLinks {
    std::function<QString()> mainFileName; // TextFileName of FormMain
    std::function<QString()> listTotal;    // TextTotal of FormMain
    std::function<void()> takeMainAction;  // shows page PicNo
};

class FormFileOption : public FormBase, private BulkView {
    Q_OBJECT
public:
    FormFileOption(VeroProcedure_Basical& basics, FormRegistry& forms, QWidget* parent = nullptr);

    FormFileOptionLinks links;
    BulkWalk& walk() { return walk_; }

    // ---- FrameItem: the kind of work
    QGroupBox* FrameItem;
    QRadioButton* OptionJustCopy;
    QRadioButton* OptionDeleate;
    QRadioButton* OptionAutoRename;
    QComboBox* TextFileName;
    QLineEdit* TextNom;
    QWidget* ReplaceLine; // OptionReplace, the word, TextReplace
    QRadioButton* OptionReplace;
    QLabel* LabelReplaceWord; // the word of TextSelect, in the replace line
    QLineEdit* TextReplace;
    QCheckBox* CheckChangeChara;
    QPushButton* CommandReset;

    // ---- FrameSElect: which files
    QGroupBox* FrameSElect;
    QRadioButton* OptionAll;
    QRadioButton* OptionInclude;
    QLineEdit* TextSelect;

    // ---- FrameTarget: the folder copies go to
    QGroupBox* FrameTarget;
    DriveListBox* Drive1;
    DirListBox* Dir1;
    FileListBox* File1;
    QLineEdit* TextDirectry;
    QPushButton* CommandMakeDirectry;
    QPushButton* CommandDelDir;

    // ---- FrameDo: the run
    QGroupBox* FrameDo;
    QRadioButton* OptionConfirm;
    QRadioButton* OptionDoAll;
    QPushButton* CommandDo;
    QPushButton* CommandOK;
    QPushButton* CommandSkip;
    QPushButton* CommandCancel;
    QPushButton* CommandBack;
    QLineEdit* TextOriginal;
    QLineEdit* TextNew;
    QPushButton* CommandEnd;
    QPushButton* CommandToSmall;
    QPushButton* CommandToBig;
    QPushButton* CommandScannerWordHelp;

    // ---- FrameForScanner: stem words of scanners and cameras
    QGroupBox* FrameForScanner;
    QComboBox* ComboWordScanner;
    QPushButton* CommandCopy;
    QPushButton* CommandClose;

    void ReadOptions();
    void CommandDo_Click();
    void CommandOK_Click();
    void CommandSkip_Click();
    void CommandCancel_Click();
    void CommandBack_Click();
    void CommandReset_Click();
    void CommandMakeDirectry_Click();
    void CommandDelDir_Click();
    void CommandEnd_Click();
    void CommandToSmall_Click();
    void CommandToBig_Click();
    void CommandScannerWordHelp_Click();
    void CommandCopy_Click();
    void CommandClose_Click();
    void Drive1_Change();
    void Dir1_Change();
    void OptionAll_Click();
    void OptionInclude_Click();
    void OptionKind_Click(); // any of the four kinds of work

    // The three file boxes read the disk again (RefreshFileControls).
    void RefreshBoxes();

    // How long an answer button stays green, and CommandDo grey at the end.
    static constexpr double kAnswerShownMs = 100;
    // How often a run that goes through shows its row, at most.
    static constexpr qint64 kRowShownMs = 40;

protected:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // BulkView
    BulkTexts texts() const override;
    int rowCount() const override;
    bool lowerCase() const override;
    void showOriginal(const QString& file) override;
    void showNew(const QString& target) override;
    QString newName() const override;
    void showPage(int row) override;
    void cancelRun() override;
    void runFinished() override;

    void buildItem();
    void buildSelect();
    void buildTarget();
    void buildDo();
    void buildScanner();
    void layOut();
    void connectHandlers();
    void setAnswersEnabled(bool enabled);
    void answer(QPushButton* button, bool& flag);
    void showFileMenu(const QPoint& global);
    void flushRow();

    VeroProcedure_Basical& basics_;
    FormRegistry& forms_;
    BulkWalk walk_;
    QString shownOriginal_; // the row in work, shown at the next flush
    QString shownNew_;
    QElapsedTimer sinceShown_;
};

} // namespace lumen
