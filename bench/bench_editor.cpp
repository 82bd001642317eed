// The list editor's model on a 32,000-line list with items on every line:
// the list into the editor text (PutDataFromFileToArray and
// ArrayToEditorText) against a plain read of the same file, the row under a
// click at row 31,000, and CommandUpdate after one change. The program's own
// fixed waits are left out: a jumping clock counts them.
#include "editor/CaretOffsets.h"
#include "editor/EditTextModel.h"
#include "list/CommandWords.h"
#include "platform/TextCodec.h"
#include "support/BasicsFixture.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>

using namespace lumen;

namespace {

QString makeList(int lines)
{
    QString text;
    for (int i = 1; i <= lines; ++i) {
        text +=
            QStringLiteral("C:\\写真\\旅行\\京都_%1.jpg @WITH=C:\\音\\鐘_%1.wav ENDWITH @DELAY=5 "
                           "ENDDELAY @COMMENT=<<<<<清水寺<<<<<朝 ENDCOMMENT @OPTION=PICTURESCROLL "
                           "ENDOPTION\r\n")
                .arg(i, 5, 10, QLatin1Char('0'));
    }
    return text;
}

double msSince(const QElapsedTimer& timer)
{
    return timer.nsecsElapsed() / 1e6;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    test::BasicsFixture f;
    f.state.ProgramFolder = QStringLiteral("C:\\bin");
    PutCommandToArray(f.basics);
    SetCommandWords(f.basics, QStringLiteral("EG"));
    EditTextModel editor(f.basics);
    editor.englishCommand = true;

    const int lines = 32000;
    const int clickRow = 31000;
    const QString list = makeList(lines);
    const QByteArray bytes = text::encodeForFile(list);
    const QString native =
        f.home.writeFile(QStringLiteral("Lumentas/ForProgramRun_KDR/TempFile.txt"), bytes);

    double plain = 1e9;
    double intoText = 1e9;
    double offsetsBuild = 1e9;
    double click = 1e9;
    double update = 1e9;
    QString editorText;
    for (int run = 0; run < 5; ++run) {
        QElapsedTimer timer;
        timer.start();
        QFile in(native);
        in.open(QIODevice::ReadOnly);
        const QString read = text::decode(in.readAll());
        plain = qMin(plain, msSince(timer));
        if (read.size() != list.size())
            return 1;

        timer.restart();
        editor.PutDataFromFileToArray();
        editorText = editor.ArrayToEditorText();
        intoText = qMin(intoText, msSince(timer));
        if (f.state.EditRowCount != lines)
            return 1;

        // The box holds the text with one character per line break.
        const QString box = QString(editorText).replace(QLatin1String("\r\n"), QLatin1String("\n"));
        const int w = editor.recordWidth();
        const int clickAt =
            int(box.indexOf(QStringLiteral("京都_%1").arg(clickRow, 5, 10, QLatin1Char('0')))) +
            w / 2;
        timer.restart();
        const CaretOffsets offsets(box);
        offsetsBuild = qMin(offsetsBuild, msSince(timer));
        timer.restart();
        const EditRowView view = editor.SelectRow(offsets.toCrLf(clickAt));
        const int start = offsets.toBox(f.state.EditRow * w);
        click = qMin(click, msSince(timer));
        if (f.state.EditRow != clickRow - 1 || start > clickAt || !view.CheckMain)
            return 1;

        editor.CommandAdd(EditItem::Delay, QString::number(run + 6));
        timer.restart();
        editor.CommandUpdate();
        update = qMin(update, msSince(timer));
        // Back to the list as it was, for the next run.
        f.home.writeFile(QStringLiteral("Lumentas/ForProgramRun_KDR/TempFile.txt"), bytes);
    }
    std::printf("list: %d lines, %lld bytes, editor text %lld characters\n", lines,
                qint64(bytes.size()), qint64(editorText.size()));
    std::printf("plain read                          %8.1f ms\n", plain);
    std::printf("PutDataFromFileToArray + ArrayToEditorText %8.1f ms   ratio %.2f (target <= 5)\n",
                intoText, intoText / plain);
    std::printf("click at row %d: offsets of the box %8.2f ms (once per text)\n", clickRow,
                offsetsBuild);
    std::printf("click at row %d: row and selection  %8.3f ms (target < 16 ms with the above)\n",
                clickRow, click);
    std::printf("CommandUpdate after one change      %8.1f ms (target < 500 ms)\n", update);
    std::printf("fixed waits left out                %8lld ms\n", f.clock.totalWaited());
    return 0;
}
