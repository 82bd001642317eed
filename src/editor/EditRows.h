// Small helpers that the editor's conversions share: the lines of a text as
// a line-by-line reader gives them, and the shape of one item of a line.
#pragma once

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

} // namespace lumen
