// The editor text: every row of EditArray as one record of a fixed width, so
// that the row under a caret is found by plain arithmetic; and the row's
// items as FormEditText shows them.
#include "editor/CommentForms.h"
#include "editor/EditRows.h"
#include "editor/EditTextModel.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "state/ProgramState.h"

namespace lumen {
namespace {

using namespace basic;

const QString kCrLf = QStringLiteral("\r\n");

// The product of two 16-bit integers, when it fits in one.
std::optional<int> product16(int a, int b)
{
    const qint64 value = qint64(a) * b;
    if (value < -32768 || value > 32767)
        return std::nullopt;
    return int(value);
}

} // namespace

int EditTextModel::recordWidth() const
{
    return basics_.state().EditMaxLineLength + 10;
}

void EditTextModel::appendEditorLine(QString& out, int row) const
{
    const ProgramState& s = basics_.state();
    const StringGrid& a = s.EditArray;
    const QStringList& words = s.CommandWord;
    appendLineHead(out, a, row, words);
    // A file comment too stands under the COMMENT word, and values go in as
    // they are held: a comment with its line breaks.
    if (!a.view(kColComment, row).isEmpty())
        appendItem(out, words, kComment, a.view(kColComment, row));
    if (!a.view(kColOption, row).isEmpty())
        appendItem(out, words, kOption, a.view(kColOption, row));
}

QString EditTextModel::editorLine(int row) const
{
    QString line;
    appendEditorLine(line, row);
    return line;
}

QString EditTextModel::buildEditorText()
{
    const ProgramState& s = state();
    const int width = s.EditMaxLineLength + 8;
    QString out;
    out.reserve(qsizetype(s.EditRowCount) * (width + 2));
    for (int row = 1; row <= s.EditRowCount; ++row) {
        const qsizetype start = out.size();
        appendEditorLine(out, row);
        const qsizetype length = out.size() - start;
        if (length <= width) {
            out.resize(start + width, QLatin1Char(' '));
        } else {
            // PadToWidth tells the user and gives nothing: a bare line break.
            const QString line = out.mid(start);
            out.truncate(start);
            out += basics_.PadToWidth(line, width);
        }
        out += kCrLf;
    }
    return out;
}

std::optional<QString> EditTextModel::TextConvertToEditorText(const QString& standardText)
{
    if (!writeTempFile(standardText))
        return std::nullopt;
    state().EditorOn = true;
    basics_.WaitMilliseconds(100);
    PutDataFromFileToArray();
    return buildEditorText();
}

QString EditTextModel::ArrayToEditorText()
{
    ProgramState& s = state();
    s.EditorOn = true;
    // A last row without a delay (an insertion taken back) gets "9999".
    if (s.EditRowCount >= 1 && Trim(s.EditArray.at(kColDelay, s.EditRowCount)).isEmpty())
        s.EditArray.set(kColDelay, s.EditRowCount, u"9999");
    return buildEditorText();
}

EditRowView EditTextModel::SelectRow(int caretOffset)
{
    ProgramState& s = state();
    EditRowView view;
    const int w = recordWidth();
    StoreInt16(s.EditRow, double(qMax(0, caretOffset) / w));
    view.selStart = product16(s.EditRow, w);
    view.selLength = w;

    const int r = s.EditRow + 1;
    const StringGrid& a = s.EditArray;
    view.LabelYourPos = s.EditRow + 1;
    if (r > a.upperRow())
        return view; // past the array: every cell read fails, the form stays cleared
    const QString main = a.at(kColMain, r);
    if (!main.isEmpty()) {
        view.CheckMain = true;
        view.TextFileName = main;
    }
    if (!a.view(kColWith, r).isEmpty()) {
        view.CheckWith = true;
        view.TextSubFileName = a.at(kColWith, r);
    }
    if (TrimView(a.view(kColDelay, r)) != u"9999") {
        view.CheckDelay = true;
        view.TextWaitTime = a.at(kColDelay, r);
    }
    const QString comment = a.at(kColComment, r);
    if (!comment.isEmpty()) {
        if (isFileComment(comment)) {
            view.CheckTextComment = true;
            view.TextCommentFileName = comment;
            view.TextBigger = basics_.ReadTextOfFile(comment);
            view.biggerVisible = false;
        } else {
            view.CheckComment = true;
            view.TextText = comment;
            view.TextBigger = comment;
            view.biggerVisible = true;
        }
    }
    if (!a.view(kColOption, r).isEmpty()) {
        view.CheckOption = true;
        view.ComboCommandList = a.at(kColOption, r);
    }
    const QString caps = UCase(main);
    if (caps.contains(QLatin1String(".JPG")) || caps.contains(QLatin1String(".BMP")) ||
        caps.contains(QLatin1String(".PNG")))
        view.picture = main;
    return view;
}

std::optional<int> EditTextModel::CommandUp() const
{
    const ProgramState& s = basics_.state();
    if (s.EditRow < 1)
        return std::nullopt;
    const auto offset = product16(s.EditRow - 1, recordWidth());
    return offset ? std::optional<int>(*offset + 1) : std::nullopt;
}

std::optional<int> EditTextModel::CommandDoun() const
{
    const ProgramState& s = basics_.state();
    if (s.EditRow >= s.EditRowCount - 1)
        return std::nullopt;
    const auto offset = product16(s.EditRow + 1, recordWidth());
    return offset ? std::optional<int>(*offset + 1) : std::nullopt;
}

QRectF EditTextModel::thumbnailRect(QSizeF picture, QSizeF box)
{
    if (picture.isEmpty() || box.isEmpty())
        return {};
    const double ratio = picture.width() / picture.height();
    if (picture.width() >= picture.height()) {
        const double height = box.width() / ratio;
        return {0, (box.height() - height) / 2, box.width(), height};
    }
    const double width = box.height() * ratio;
    return {(box.width() - width) / 2, 0, width, box.height()};
}

} // namespace lumen
