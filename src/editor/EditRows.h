// Small helpers that the editor's conversions share: the lines of a text as
// a line-by-line reader gives them, and the shape of a row's line.
#pragma once

#include "list/CommandWords.h"
#include "platform/Basic.h"
#include "platform/StringGrid.h"
#include "state/ProgramState.h"

#include <QString>
#include <QStringList>
#include <QStringView>

namespace lumen {

// Calls `f` with each line of `text`, parted at CR LF, LF or CR; a final
// line break doesn't start an empty line.
template <typename F> void forEachLine(QStringView text, F&& f)
{
    qsizetype pos = 0;
    while (pos < text.size()) {
        qsizetype end = text.indexOf(u'\n', pos);
        if (end < 0)
            end = text.size();
        const qsizetype cr = text.mid(pos, end - pos).indexOf(u'\r');
        if (cr >= 0)
            end = pos + cr;
        f(text.mid(pos, end - pos));
        pos = end;
        if (pos < text.size() && text[pos] == u'\r') {
            ++pos;
            if (pos < text.size() && text[pos] == u'\n')
                ++pos;
        } else if (pos < text.size()) {
            ++pos; // a line feed alone
        }
    }
}

// " @WORD=value ENDWORD" with the words of CommandWord at `start` and `start` + 1.
inline void appendItem(QString& line, const QStringList& words, int start, QStringView value)
{
    line += QStringLiteral(" @");
    line += words.value(start);
    line += QLatin1Char('=');
    line += value;
    line += QLatin1Char(' ');
    line += words.value(start + 1);
}

// The start of a row's line in every form: the main file, then the WITH
// item and the DELAY item where the row has them.
inline void appendLineHead(QString& line, const StringGrid& rows, int row, const QStringList& words)
{
    line += rows.view(kColMain, row);
    if (!rows.view(kColWith, row).isEmpty())
        appendItem(line, words, kWith, rows.view(kColWith, row));
    if (basic::TrimView(rows.view(kColDelay, row)) != u"9999")
        appendItem(line, words, kDelay, rows.view(kColDelay, row));
}

} // namespace lumen
