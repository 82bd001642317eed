// One grammar for the show and the editor: a list of every line form is read
// by the show's loader into ListArray and by the editor into EditArray, and
// each row must come out the same in both. The one difference on purpose is
// the editor's: a COMMENT naming a ".TXT" file is a file comment there.
#include "EditorFixture.h"
#include "list/ListLoader.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

struct LineForm {
    const char* tag;
    QString line;
    QString row;           // main|with|delay|comment|option, "\n" for CR LF
    QString loaderComment; // the loader's comment where the editor's own step differs
};

// The lines of each list, with comment and blank lines between them that
// neither reader makes a row of.
const QList<LineForm>& forms(bool english)
{
    static const QList<LineForm> englishForms = {
        {"bare file", "a.jpg", "a.jpg||9999||", {}},
        {"every item",
         "C:\\p\\a.jpg @WITH=C:\\s\\a.wav ENDWITH @DELAY=5 ENDDELAY "
         "@COMMENT=<<<<<first<<<<<second ENDCOMMENT @OPTION=PICTURESCROLL ENDOPTION",
         "C:\\p\\a.jpg|C:\\s\\a.wav|5|<<<<<\nfirst\nsecond|PICTURESCROLL",
         {}},
        {"items in another order",
         "b.jpg @OPTION=STOPSOUND ENDOPTION @WITH=b.wav ENDWITH",
         "b.jpg|b.wav|9999||STOPSOUND",
         {}},
        {"lower-case words", "c.jpg @with=c.wav endwith @delay= 3 enddelay", "c.jpg|c.wav|3||", {}},
        {"mixed-case end word", "d.jpg @WITH=d.wav EndWith", "d.jpg||9999||", {}},
        {"missing end word", "e.jpg @DELAY=4 @WITH=e.wav ENDWITH", "e.jpg||9999||", {}},
        {"= without @", "f.jpg = b", "f.jpg = b||9999||", {}},
        {"@ without =", "photo@2x.png", "photo@2x.png||9999||", {}},
        {"only an item", "@WITH=g.wav ENDWITH", "|g.wav|9999||", {}},
        {"comment without mark", "h.jpg @COMMENT=hello ENDCOMMENT", "h.jpg||9999|<<<<<hello|", {}},
        {"@ inside a value",
         "i.jpg @COMMENT=<<<<<me@example.jp ENDCOMMENT @DELAY=1 ENDDELAY",
         "i.jpg||1|<<<<<\nme@example.jp|",
         {}},
        {"repeated item", "j.jpg @DELAY=3 ENDDELAY @DELAY=7 ENDDELAY", "j.jpg||7||", {}},
        {"delay 9999", "k.jpg @DELAY=9999 ENDDELAY", "k.jpg||9999||", {}},
        {"file comment",
         "l.jpg @FILECOMMENT=C:\\l.txt ENDFILECOMMENT",
         "l.jpg||9999|C:\\l.txt|",
         {}},
        {"blank before the word", "m.jpg @ WITH=m.wav ENDWITH", "m.jpg||9999||", {}},
        {"@ with no = after an item", "n.jpg @WITH=n.wav ENDWITH @note", "n.jpg|n.wav|9999||", {}},
        {"drive mark", "*:\\o.jpg @WITH=*:\\o.wav ENDWITH", "C:\\o.jpg|C:\\o.wav|9999||", {}},
        {"end word inside a value",
         "p.jpg @WITH=C:\\endwith\\p.wav ENDWITH",
         "p.jpg|C:\\|9999||",
         {}},
        {"delay kept as text", "q.jpg @DELAY=soon ENDDELAY", "q.jpg||soon||", {}},
        {"comment naming a .txt (the editor's own step)", "r.jpg @COMMENT=note.txt ENDCOMMENT",
         "r.jpg||9999|note.txt|", "<<<<<note.txt"},
        {"unknown start word", "s.jpg @X=1 @WITH=s.wav ENDWITH", "s.jpg||9999||", {}},
        {"unknown start word: @ in the main file", "t@u.jpg @WITH=t.wav ENDWITH", "t||9999||", {}},
        {"unknown start word: empty word", "v.jpg @=1 @DELAY=2 ENDDELAY", "v.jpg||9999||", {}},
    };
    static const QList<LineForm> userForms = {
        {"user words",
         "a.jpg @ト=b.wav デス @オクレ=6 デス @オプションコマンド=画像スクロール デス",
         "a.jpg|b.wav|6||画像スクロール",
         {}},
        {"user words: shared end word",
         "c.jpg @コメント=<<<<<x デス @ト=c.wav デス",
         "c.jpg|c.wav|9999|<<<<<\nx|",
         {}},
        {"user words: file comment",
         "d.jpg @ファイルコメント=d.txt デス",
         "d.jpg||9999|d.txt|",
         {}},
        {"user words: comment naming a .txt (the editor's own step)", "e.jpg @コメント=e.txt デス",
         "e.jpg||9999|e.txt|", "<<<<<e.txt"},
        {"user words: unknown start word",
         "f.jpg @サイズ=3 デス @ト=f.wav デス",
         "f.jpg||9999||",
         {}},
    };
    return english ? englishForms : userForms;
}

QString listOf(bool english)
{
    QStringList lines{"' every line form"};
    for (const LineForm& form : forms(english))
        lines << form.line << QString() << "   ' between the rows";
    return lines.join(QStringLiteral("\r\n"));
}

QStringList rowsOf(const StringGrid& grid, int count)
{
    QStringList rows;
    for (int r = 1; r <= count; ++r) {
        QStringList cells;
        for (int c = 0; c < kListColumns; ++c)
            cells << grid.at(c, r);
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}

struct BothReadings {
    QStringList loader;
    QStringList editor;
};

// The list of one language read once by each reader.
const BothReadings& readings(bool english)
{
    static QMap<bool, BothReadings> done;
    if (!done.contains(english)) {
        EditorFixture f;
        const QString list = listOf(english);
        f.home.writeFile(QStringLiteral("list.lst"), text::encodeForFile(list));
        QString text;
        const int count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\list.lst"), &text);
        const ListFill fill = fillListArray(f.basics, text, count, false);
        BothReadings both;
        both.loader = rowsOf(f.state.ListArray, fill.fileCount);
        f.setEnglish(english);
        f.read(list);
        both.editor = f.rows();
        done.insert(english, both);
    }
    return done[english];
}

} // namespace

class TestOneGrammar : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void sameRows_data();
    void sameRows();
};

void TestOneGrammar::sameRows_data()
{
    QTest::addColumn<bool>("english");
    QTest::addColumn<int>("index");
    for (bool english : {true, false}) {
        const QList<LineForm>& list = forms(english);
        for (int i = 0; i < list.size(); ++i)
            QTest::newRow(list[i].tag) << english << i;
    }
}

void TestOneGrammar::sameRows()
{
    const bool english = FETCH(bool, english);
    const int index = FETCH(int, index);
    const LineForm& form = forms(english)[index];
    const BothReadings& both = readings(english);
    QCOMPARE(both.editor.size(), forms(english).size());
    QCOMPARE(both.loader.size(), both.editor.size());
    const QString expected = crlf(form.row);
    QCOMPARE(both.editor[index], expected);
    QString loaderExpected = expected;
    if (!form.loaderComment.isEmpty()) {
        QStringList cells = expected.split(QLatin1Char('|'));
        cells[kColComment] = form.loaderComment;
        loaderExpected = cells.join(QLatin1Char('|'));
    }
    QCOMPARE(both.loader[index], loaderExpected);
}

QTEST_GUILESS_MAIN(TestOneGrammar)
#include "tst_OneGrammar.moc"
