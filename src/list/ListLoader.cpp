#include "list/ListLoader.h"

#include "fileops/BasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "list/CommandWords.h"
#include "list/ListGrammar.h"
#include "platform/Basic.h"
#include "platform/FileSystem.h"
#include "platform/UserDialogs.h"
#include "state/ProgramState.h"

#include <algorithm>

namespace lumen {
namespace {

using namespace basic;

constexpr int kChunkLines = 50;

void setRow(StringGrid& grid, int row, const ListRowViews& values)
{
    grid.set(kColMain, row, values.main);
    grid.set(kColWith, row, values.with);
    grid.set(kColDelay, row, values.delay);
    grid.set(kColComment, row, values.comment);
    grid.set(kColOption, row, values.option);
}

} // namespace

QString workingCopyName(const VeroProcedure_Basical& basics)
{
    return basics.state().ProgramRunDir + QStringLiteral("\\TempList.Lst");
}

int prepareWorkingCopy(VeroProcedure_Basical& basics, const QString& fileName, QString* text,
                       QString* source)
{
    ProgramState& state = basics.state();
    state.DirecData.LastListFile = fileName;
    state.AppDrive = Left(state.ProgramFolder, 2);
    const QString copy = workingCopyName(basics);
    FileSystem& fs = basics.services().fs;
    const bool copied = fs.toNative(fileName) == fs.toNative(copy) || fs.copyFile(fileName, copy);
    const QString read = copied ? copy : fileName;
    if (source)
        *source = read;
    const int count = basics.CleanListFile(read, text, copied);
    if (count > kMostListRows) {
        basics.services().ui.msgBox(
            QStringLiteral("選択したファイル数は ") + QString::number(count) +
            QStringLiteral("個です。エディターでファイル数を32763個未満にして"
                           "ください。"));
        return -1;
    }
    return count;
}

ListFill fillListArray(VeroProcedure_Basical& basics, const QString& text, int count,
                       bool withDisplayText)
{
    ProgramState& state = basics.state();
    state.ListArray.redim(kListColumns, count + 1);
    state.ListArray.reserveText(text.size());
    SetCommandWords(basics, listLanguageOf(text));
    state.ListFileName = workingCopyName(basics);

    const ListWords words(state.CommandWord);
    // Within a long line too, events run and a stop acts.
    const auto stop = [&basics, &state] {
        basics.DoEvents();
        return state.StopRequested;
    };
    ListFill fill;
    QString display;
    if (withDisplayText)
        display.reserve(text.size());
    const QStringView all(text);
    qsizetype pos = 0;
    int lineNo = 0;
    while (pos < all.size()) {
        qsizetype end = all.indexOf(QLatin1Char('\n'), pos);
        if (end < 0)
            end = all.size();
        QStringView view = all.mid(pos, end - pos);
        if (view.endsWith(QLatin1Char('\r')))
            view.chop(1);
        pos = end + 1;

        if (++lineNo % kChunkLines == 0)
            basics.DoEvents();
        if (state.StopRequested) {
            fill.stopped = true;
            return fill;
        }
        ++fill.fileCount;
        if (lineNo % kChunkLines == 0)
            basics.host().setStopText(QString::number(fill.fileCount));
        const QStringView line = view;
        switch (lineKindOf(line)) {
        case LineKind::TooIndented:
            continue;
        case LineKind::Comment:
            --fill.fileCount;
            continue;
        case LineKind::Command:
            break;
        }
        ListRowViews parsed;
        parseListLineViews(line, words, parsed, stop);
        if (state.StopRequested) {
            fill.stopped = true;
            return fill;
        }
        setRow(state.ListArray, fill.fileCount, parsed);
        if (!parsed.missingEndWord.isEmpty())
            basics.services().ui.msgBox(parsed.missingEndWord);
        const QStringView trimmed = withDisplayText ? TrimView(line) : QStringView();
        if (!trimmed.isEmpty()) {
            display += trimmed;
            display += QStringLiteral("\r\n");
        }
    }
    // The chunks are joined: the count goes by in steps of 50.
    for (int shown = kChunkLines; shown <= lineNo / kChunkLines * kChunkLines + kChunkLines;
         shown += kChunkLines)
        basics.host().setStopText(QString::number(shown));
    if (withDisplayText)
        fill.displayText = Trim(display) + QLatin1Char('\r');
    return fill;
}

QString listViewText(const QString& displayText)
{
    QString view;
    view.reserve(std::min<qsizetype>(displayText.size(), qsizetype(kLongestViewLine) * 64));
    for (QStringView line : QStringView(displayText).split(u'\n')) {
        if (!view.isEmpty())
            view += u'\n';
        if (line.endsWith(u'\r'))
            line.chop(1);
        if (line.size() > kLongestViewLine) {
            view += line.left(kLongestViewLine);
            view += u'…';
        } else {
            view += line;
        }
    }
    // The line ends behind the text go; blanks were trimmed already, and tabs
    // and ideographic spaces stay.
    while (view.endsWith(u'\n'))
        view.chop(1);
    return view;
}

} // namespace lumen
