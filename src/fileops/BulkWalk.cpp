#include "fileops/BulkWalk.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

namespace lumen {

using namespace basic;

BulkWalk::BulkWalk(VeroProcedure_Basical& basics, BulkView& view)
    : basics_(basics)
    , view_(view)
{}

void BulkWalk::DoCopyOrDelete(const QString& mode)
{
    const std::optional<BulkMode> run = copyOrDeleteMode(mode);
    if (run && ask(*run))
        walk(*run);
}

void BulkWalk::DoNumberedCopy(const QString& scope, const QString& stem, qint16 number)
{
    const BulkMode mode =
        scope == QLatin1String("ALL") ? BulkMode::NumberedAll : BulkMode::NumberedSelect;
    if (!ask(mode))
        return;
    stem_ = stem;
    NextNumber = number;
    walk(mode);
}

void BulkWalk::DoReplaceCopy(const QString& find, const QString& replacement)
{
    // Nothing to do without a word, its replacement and a folder.
    if (find.isEmpty() || replacement.isEmpty() || view_.texts().directory.isEmpty())
        return;
    if (!ask(BulkMode::Replace))
        return;
    find_ = find;
    replacement_ = replacement;
    walk(BulkMode::Replace);
}

bool BulkWalk::ask(BulkMode mode)
{
    if (basics_.services().ui.askYesNo(bulkQuestion(mode, view_.texts())) == kAnswerYes)
        return true;
    view_.cancelRun();
    return false;
}

QString BulkWalk::finalName(const QString& target) const
{
    return view_.lowerCase() ? LCase(target) : target;
}

QString BulkWalk::numberedName(const QString& file) const
{
    return finalName(numberedTarget(view_.texts().directory, stem_, NextNumber, file));
}

std::optional<QString> BulkWalk::targetOf(BulkMode mode, const QString& file) const
{
    const QString folder = view_.texts().directory;
    switch (mode) {
    case BulkMode::AllDelete:
    case BulkMode::SelectDelete:
        return QString();
    case BulkMode::AllCopy:
    case BulkMode::SelectCopy:
        return finalName(copyTarget(folder, file));
    case BulkMode::NumberedAll:
    case BulkMode::NumberedSelect:
        return numberedName(file);
    case BulkMode::Replace:
        if (const auto target = replaceTarget(folder, file, find_, replacement_))
            return finalName(*target);
        return std::nullopt;
    }
    return std::nullopt;
}

bool BulkWalk::numbering() const
{
    return running_ && (mode_ == BulkMode::NumberedAll || mode_ == BulkMode::NumberedSelect);
}

void BulkWalk::walk(BulkMode mode)
{
    running_ = true;
    mode_ = mode;
    AnswerOK = AnswerSkip = AnswerCancel = AnswerBack = false;
    const ProgramState& state = basics_.state();
    const Clock& clock = basics_.services().clock;
    row_ = 1;
    while (row_ <= view_.rowCount()) {
        basics_.DoEvents();
        if (AnswerCancel || clock.ending())
            break;
        const QString file = Trim(state.ListArray.at(kColMain, row_));
        if (file.isEmpty()) {
            ++row_;
            continue;
        }
        view_.showOriginal(file);
        if (isSelectMode(mode) && !holdsWord(file, view_.texts().word)) {
            ++row_;
            continue;
        }
        const std::optional<QString> target = targetOf(mode, file);
        view_.showNew(target.value_or(QString()));
        if (!target) { // the word stands only in a folder's name
            ++row_;
            continue;
        }
        QString chosen = *target;
        if (options.Confirming) {
            // The page is shown, so the user sees what is about to happen.
            view_.showPage(row_);
            const Answer answer = awaitAnswer();
            if (answer == Answer::Cancel)
                break;
            if (answer == Answer::Back) {
                if (row_ >= 2)
                    --row_;
                continue;
            }
            if (answer == Answer::Skip) {
                ++row_;
                continue;
            }
            // The target as TextNew holds it now: the user may have reset it.
            chosen = view_.newName();
        }
        act(mode, file, Trim(chosen));
        ++row_;
    }
    running_ = false;
    view_.runFinished();
}

BulkWalk::Answer BulkWalk::awaitAnswer()
{
    const Clock& clock = basics_.services().clock;
    for (;;) {
        if (AnswerCancel || clock.ending()) {
            AnswerCancel = false;
            return Answer::Cancel;
        }
        if (AnswerBack) {
            AnswerBack = false;
            return Answer::Back;
        }
        if (AnswerSkip) {
            AnswerSkip = false;
            return Answer::Skip;
        }
        if (AnswerOK) {
            AnswerOK = false;
            return Answer::OK;
        }
        basics_.WaitMilliseconds(kAnswerPollMs);
    }
}

// The kind of work may have changed during the wait (CommandOK reads the
// option buttons again): the flags of now decide, within the run's kind.
void BulkWalk::act(BulkMode mode, const QString& file, const QString& target)
{
    switch (mode) {
    case BulkMode::AllCopy:
    case BulkMode::SelectCopy:
    case BulkMode::AllDelete:
    case BulkMode::SelectDelete:
        if (options.Deleting)
            basics_.DeleteFileForced(file);
        else if (options.JustCopy)
            copy(file, target);
        return;
    case BulkMode::NumberedAll:
    case BulkMode::NumberedSelect:
        if (options.AutoRename) {
            copy(file, target);
            // A file that is copied takes its number; a number past the
            // 16-bit range isn't taken, and the last one stays.
            StoreInt16(NextNumber, double(NextNumber) + NumberStep);
        }
        return;
    case BulkMode::Replace:
        if (options.Replacing)
            copy(file, target);
        return;
    }
}

// FileCopy, made safe: a target that is the file itself is passed over, and
// an old target is replaced only by a complete copy, so a failed copy
// leaves it as it was.
void BulkWalk::copy(const QString& file, const QString& target)
{
    if (target.isEmpty())
        return;
    basics_.services().fs.copyFile(file, target);
}

} // namespace lumen
