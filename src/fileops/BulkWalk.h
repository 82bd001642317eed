// The walk of bulk work along the main files of ListArray: each row is shown
// with its target, looked at page by page when the user confirms each file,
// and copied, copied under a new name or deleted. The window around it
// (FormFileOption) shows what the walk tells it and sets the answers; the
// walk itself holds no control.
#pragma once

#include "fileops/BulkWork.h"

#include <QString>
#include <optional>

namespace lumen {

class VeroProcedure_Basical;

// What the walk needs from its window.
class BulkView {
public:
    virtual ~BulkView() = default;
    virtual BulkTexts texts() const = 0;
    virtual int rowCount() const = 0;   // Val(TextTotal) of the main window
    virtual bool lowerCase() const = 0; // CheckChangeChara
    virtual void showOriginal(const QString& file) = 0;
    virtual void showNew(const QString& target) = 0;
    virtual QString newName() const = 0; // the target as TextNew holds it after an answer
    virtual void showPage(int row) = 0;  // PicNo and TakeMainAction
    virtual void cancelRun() = 0;        // the question was answered No: CommandCancel
    virtual void runFinished() = 0;
};

class BulkWalk {
public:
    BulkWalk(VeroProcedure_Basical& basics, BulkView& view);

    BulkOptions options; // the flags, as ReadOptions last took them
    bool AnswerOK = false;
    bool AnswerSkip = false;
    bool AnswerCancel = false;
    bool AnswerBack = false;
    qint16 NextNumber = 0;
    qint16 NumberStep = 1;

    // Each asks its question once (No cancels) and then walks the rows.
    // `mode` is "ALLCOPY", "ALLDELEAT", "SELECTCOPY" or "SELECTDELEAT";
    // `scope` "ALL" or "SELECT".
    void DoCopyOrDelete(const QString& mode);
    void DoNumberedCopy(const QString& scope, const QString& stem, qint16 number);
    void DoReplaceCopy(const QString& find, const QString& replacement);

    bool running() const { return running_; }
    bool numbering() const;          // a numbered run is going on
    int row() const { return row_; } // the row in work, from 1
    // The numbered target of a file with the number and stem of now, put in
    // lower case when the window asks for it.
    QString numberedName(const QString& file) const;

    // Ends the wait of a confirmed file and the run (the window goes).
    void abandon() { AnswerCancel = true; }

    // The time between two looks at the answers while a file waits.
    static constexpr double kAnswerPollMs = 50;

private:
    enum class Answer { OK, Skip, Cancel, Back };

    bool ask(BulkMode mode);
    void walk(BulkMode mode);
    std::optional<QString> targetOf(BulkMode mode, const QString& file) const;
    Answer awaitAnswer();
    void act(BulkMode mode, const QString& file, const QString& target);
    void copy(const QString& file, const QString& target);
    QString finalName(const QString& target) const;

    VeroProcedure_Basical& basics_;
    BulkView& view_;
    QString stem_;        // of a numbered run
    QString find_;        // of a replacing run
    QString replacement_; // of a replacing run
    bool running_ = false;
    BulkMode mode_ = BulkMode::AllCopy; // of the run going on
    int row_ = 0;
};

} // namespace lumen
