// The editor model over the fakes: a temporary home with the default
// CommandList.txt, and short ways to put a list through the editor's forms.
#pragma once

#include "editor/EditTextModel.h"
#include "list/CommandWords.h"
#include "platform/TextCodec.h"
#include "state/ProgramState.h"
#include "support/BasicsFixture.h"

#include <QStringList>

namespace lumen::test {

inline constexpr const char* kTempFile = "Lumentas/ForProgramRun_KDR/TempFile.txt";
inline constexpr const char* kCommandListFile = "Lumentas/ForProgramRun_KDR/CommandList.txt";

struct EditorFixture : BasicsFixture {
    EditTextModel editor{basics};

    EditorFixture()
    {
        state.ProgramFolder = QStringLiteral("C:\\bin");
        PutCommandToArray(basics);
    }

    // English or the user's words, as CheckEnglishCommand says.
    void setEnglish(bool english)
    {
        editor.englishCommand = english;
        SetCommandWords(basics, english ? QStringLiteral("EG") : QStringLiteral("JP"));
    }

    // The text of TempFile.txt, decoded.
    QString tempText() const { return text::decode(home.readFile(kTempFile)); }

    // A list text read by the editor, as TextConvertToEditorText reads it.
    QString read(const QString& list) { return editor.TextConvertToEditorText(list).value_or("?"); }

    // The written standard file after reading `list`.
    QString trip(const QString& list)
    {
        read(list);
        editor.ArrayToStanderdFile();
        return tempText();
    }

    // Row r of EditArray as "main|with|delay|comment|option".
    QString row(int r) const
    {
        QStringList cells;
        for (int c = 0; c < kListColumns; ++c)
            cells << state.EditArray.at(c, r);
        return cells.join(QLatin1Char('|'));
    }

    QStringList rows() const
    {
        QStringList all;
        for (int r = 1; r <= state.EditRowCount; ++r)
            all << row(r);
        return all;
    }

    void setRow(int r, const QString& cells)
    {
        const QStringList parts = cells.split(QLatin1Char('|'));
        for (int c = 0; c < kListColumns; ++c)
            state.EditArray.set(c, r, parts.value(c));
    }
};

// "a" CR LF "b": rows and texts in the tables write line breaks as "\n".
inline QString crlf(QString text)
{
    return text.replace(QLatin1String("\n"), QLatin1String("\r\n"));
}

} // namespace lumen::test
