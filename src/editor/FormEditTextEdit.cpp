// FormEditText: the editing operations, the comment field and its big box,
// the hints over the buttons while no item is selected, and the file dialogs.
#include "editor/FormEditText.h"

#include "fileops/BasicText.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Twips.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace lumen {
namespace {

constexpr qint32 kColorResting = 0x00C0C0; // 49344
constexpr int kColumnOption = 0;
constexpr int kColumnMark = 2;

} // namespace

QString FormEditText::commentText() const
{
    return TextText->toPlainText().replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
}

void FormEditText::CommandAdd_Click()
{
    const EditItem item = selectedItem();
    QString value;
    switch (item) {
    case EditItem::Main:
        value = TextFileName->text();
        break;
    case EditItem::With:
        value = TextSubFileName->text();
        break;
    case EditItem::Delay:
        value = TextWaitTime->text();
        break;
    case EditItem::Comment:
        value = commentText();
        break;
    case EditItem::TextComment:
        value = TextCommentFileName->text();
        break;
    case EditItem::Option:
        value = ComboCommandList->currentText();
        break;
    case EditItem::None:
        return;
    }
    closeChange(model_.CommandAdd(item, value));
}

void FormEditText::CommandCut_Click()
{
    closeChange(model_.CommandCut(selectedItem()));
}

void FormEditText::CommandCopy_Click()
{
    model_.CommandCopy(selectedItem());
}

void FormEditText::CommandPast_Click()
{
    closeChange(model_.CommandPast(selectedItem()));
}

void FormEditText::CommandInsertLine_Click()
{
    closeChange(model_.CommandInsertLine());
}

void FormEditText::CommandRecover_Click()
{
    const auto text = model_.CommandRecover();
    if (!text)
        return;
    rowCountShown();
    showEditorText(*text);
}

void FormEditText::CheckAllwaysUpdate_Click()
{
    const bool ticked = CheckAllwaysUpdate->isChecked();
    model_.allwaysUpdate = ticked;
    const qint32 colour = ticked ? kColorResting : kColorYellow;
    setBackColor(CheckAllwaysUpdate, colour);
    setForeColor(ShapeAllwaysUpdate, colour);
}

// ---- The comment and its big box ------------------------------------------

void FormEditText::TextText_Change()
{
    const auto bigger = model_.commentTextChanged(commentText());
    if (!bigger)
        return;
    QString shown = *bigger;
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    if (TextBigger->toPlainText() != shown)
        TextBigger->setPlainText(shown);
}

void FormEditText::TextBigger_Change()
{
    // Filling the fields for a row leaves the item unchosen; what the user
    // writes in the big box is the row's comment.
    if (filling_ || !model_.biggerGoesToComment())
        return;
    const QString bigger = TextBigger->toPlainText();
    if (TextText->toPlainText() != bigger)
        TextText->setPlainText(bigger);
    OptionSelectComment->setChecked(true);
}

// ---- Hints ----------------------------------------------------------------

void FormEditText::hoverHint(QWidget* button)
{
    if (hinting_)
        return; // moves during a hint's second pass
    hinting_ = true;
    const QPoint place = button->mapTo(this, QPoint(0, 0));
    const int formLeft = int(twLeft(this));
    const int formTop = int(twTop(this));
    if (button == CheckEnglishCommand) {
        basics_.ShowFloatingMessage(
            formLeft + 100, formTop + 100,
            QStringLiteral(" 標準コマンドは英語です。コマンドは[ｺﾏﾝﾄﾞ設定]で、"
                           "自分で作った単語で定義できます　"));
    } else if (OptionNone->isChecked()) {
        if (button == CommandAdd) {
            ShowItemHint(formLeft + int(pixelsToTwips(place.x())) - 100,
                         formTop + int(pixelsToTwips(place.y())) - 1300, itemHintWithFramesText(),
                         true);
        } else {
            // The three small buttons all measure from CommandCut.
            const QPoint cut = CommandCut->mapTo(this, QPoint(0, 0));
            ShowItemHint(formLeft + int(pixelsToTwips(cut.x())) - 100,
                         formTop + int(pixelsToTwips(cut.y())) + 300, itemHintText(), false);
        }
    }
    hinting_ = false;
}

void FormEditText::ShowItemHint(int leftTwips, int topTwips, const QString& text, bool withFrames)
{
    if (!model_.takeHintTurn())
        return; // only every other call acts: mouse moves come in runs
    UserDialogs& ui = basics_.services().ui;
    ui.showMessage(leftTwips, topTwips, text);
    optionsBesideItems(true);
    if (withFrames) {
        Shape1[0]->setGeometry(fieldsRect({TextFileName, TextSubFileName, TextWaitTime, TextText,
                                           TextCommentFileName, ComboCommandList}));
        Shape1[1]->setGeometry(fieldsRect({TextBigger}));
        for (QFrame* frame : Shape1) {
            setForeColor(frame, kColorResting);
            frame->show();
            frame->raise();
        }
    }
    basics_.WaitMilliseconds(1000);
    for (QFrame* frame : Shape1)
        frame->hide();
    optionsBesideItems(false);
    ui.hideMessage();
}

void FormEditText::optionsBesideItems(bool beside)
{
    // The marks beside the fields show, and the option buttons stand at
    // their left edge, so that the user sees which button means which field.
    for (size_t i = 0; i < options_.size(); ++i) {
        items_->removeWidget(options_[i]);
        items_->addWidget(options_[i], int(i) + 1, beside ? kColumnMark : kColumnOption,
                          beside ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
        LabelItem[i]->setVisible(beside);
        if (beside)
            options_[i]->raise();
    }
    items_->activate();
}

QRect FormEditText::fieldsRect(std::initializer_list<QWidget*> fields) const
{
    QRect united;
    for (QWidget* field : fields) {
        if (field->isVisible())
            united |= QRect(field->mapTo(this, QPoint(0, 0)), field->size());
    }
    return united.adjusted(-4, -4, 4, 4);
}

// ---- File dialogs -----------------------------------------------------------

void FormEditText::chooseFileInto(QLineEdit* field)
{
    FileSystem& fs = basics_.services().fs;
    const QString start = CollapseDoubleBackslash(
        basic::Trim(field->text()).isEmpty() ? lastChosen_ : basic::Trim(field->text()));
    const auto chosen = basics_.services().ui.openFileName(
        windowTitle(), start.isEmpty() ? QString() : fs.toNative(start),
        QStringLiteral("(*.*)|*.*"));
    if (!chosen)
        return; // cancelled: nothing changes
    lastChosen_ = fs.toProgram(*chosen);
    field->setText(lastChosen_);
}

void FormEditText::CommandMainFileOpen_Click()
{
    chooseFileInto(TextFileName);
}

void FormEditText::CommandSab_Click()
{
    chooseFileInto(TextSubFileName);
}

void FormEditText::CommandFileComment_Click()
{
    chooseFileInto(TextCommentFileName);
}

} // namespace lumen
