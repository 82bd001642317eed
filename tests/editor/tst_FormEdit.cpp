// FormEdit, the entry window, over the launcher's fake and a fake system
// folder, the main window stood in for by links: each viewer button's
// command line by the table, with a page and without; a comment's round trip
// through TextTemp.txt to the list line and to a _Com.txt file; a recorded
// WAV and a MIDI file stored as the page's companion; deletions in each mode;
// the delay frame; the unreachable program's question; and ArrayToFile with
// SelectFile.txt and ListBackup.Lst.
#include "editor/FormEdit.h"

#include "editor/FormPrint.h"
#include "list/CommandWords.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/TextCodec.h"
#include "support/BasicsFixture.h"
#include "support/FakeSystemBin.h"
#include "support/Fetch.h"
#include "support/FileSizeLimit.h"
#include "support/Shots.h"

#include <QGroupBox>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <optional>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kRun = u"Lumentas/ForProgramRun_KDR/"_s;
const QString kRunDir = u"C:\\Lumentas\\ForProgramRun_KDR"_s;

struct Entry : BasicsFixture {
    FakeSystemBin bin{home.fs};
    FormRegistry forms;
    FormEdit* edit = new FormEdit(basics, forms);
    QList<int> pagesShown;
    QString mainText;              // FormMain.TextFileName
    qint32 mainBack = 0;           // and its back colour
    QStringList comments;          // what FormComment was given
    std::optional<QImage> picture; // Picture2 on show
    QStringList setUps;            // FormEdit2's directory buttons run

    explicit Entry(const QStringList& lines = {u"C:\\pics\\a.jpg"_s})
    {
        state.CommandWord = englishCommandWords();
        forms.add(u"FormEdit"_s, [this] { return edit; });
        forms.add(u"FormPrint"_s, [] { return new FormPrint; });
        DirecDataRecord& r = state.DirecData;
        r.PictureEditorPath = program("gimp");
        r.CommentEditorPath = program("gedit");
        r.SoundPlayerPath = program("audacity");
        r.TextEditorPath = program("mousepad");
        r.VrmlViewerPath = program("view3dscene");
        r.CyberViewPath = program("g3dviewer");
        r.MediaPlayerPath = program("vlc");
        r.MediaPlayerPath2 = program("totem");
        r.InternetViewerPath = program("firefox");
        home.writeFile("pics/a.jpg", "jpeg");
        // The list on show, as the loader leaves it.
        state.ListFileName = kRunDir + u"\\TempList.Lst"_s;
        home.writeFile(kRun + u"TempList.Lst"_s, lines.join(u"\r\n"_s).toUtf8() + "\r\n");
        state.ListArray.redim(kListColumns, int(lines.size()) + 1);
        for (int i = 0; i < lines.size(); ++i) {
            const QStringList cells = lines[i].split(u'|');
            for (int c = 0; c < kListColumns; ++c)
                state.ListArray.set(c, i + 1,
                                    c == kColDelay && cells.value(c).isEmpty() ? u"9999"_s
                                                                               : cells.value(c));
        }
        state.PicNo = 1;
        FormEditLinks& l = edit->links;
        l.takeMainAction = [this] { pagesShown << state.PicNo; };
        l.showOnMain = [this](const QString& text, qint32 back) {
            mainText = text;
            mainBack = back;
        };
        l.showComment = [this](const QString& text) { comments << text; };
        const int total = int(lines.size());
        l.listTotal = [total] { return QString::number(total); };
        l.shownPicture = [this] { return picture; };
        l.setUpCommentProgram = [this] { setUps << u"comment"_s; };
        l.setUpSoundProgram = [this] { setUps << u"sound"_s; };
        l.setUpMidiProgram = [this] { setUps << u"midi"_s; };
        edit->showForm();
    }
    QString program(const char* name) const
    {
        bin.add(QString::fromLatin1(name));
        return u"Z:\\usr\\bin\\"_s + QString::fromLatin1(name);
    }
    QString cell(int c) const { return state.ListArray.at(c, state.PicNo); }
    QString file(const QString& relative) const { return text::decode(home.readFile(relative)); }
    QString listFile() const { return file(kRun + u"TempList.Lst"_s); }
    // The outside program saves over the scratch file.
    void saveAs(const QString& name, const QByteArray& bytes)
    {
        home.writeFile(kRun + name, bytes);
    }
};

} // namespace

class TestFormEdit : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void viewerButtons_data();
    void viewerButtons();
    void commentRoundTrip_data();
    void commentRoundTrip();
    void recordedCompanion_data();
    void recordedCompanion();
    void deletion_data();
    void deletion();
    void delayFrame();
    void unreachableProgramIsAsked();
    void arrayToFileKeepsTheOldList();
    void arrayToFileWholeOrNotAtAll();
    void printerNote();
};

void TestFormEdit::viewerButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("mainFile"); // "" for no page (PicNo 0)
    QTest::addColumn<QString>("command");  // "" when nothing starts
    const auto row = [](const char* tag, const char* button, const QString& file,
                        const QString& command) {
        QTest::newRow(tag) << QString::fromLatin1(button) << file << command;
    };
    const QString bin = u"Z:\\usr\\bin\\"_s;
    row("AVI, a film", "CommandAVI", u"C:\\m\\a.avi"_s, bin + u"vlc C:\\m\\a.avi"_s);
    row("AVI, a DAT film", "CommandAVI", u"C:\\m\\a.DAT"_s, bin + u"vlc C:\\m\\a.DAT"_s);
    row("AVI, a picture", "CommandAVI", u"C:\\m\\a.jpg"_s, bin + u"vlc"_s);
    row("AVI, no page", "CommandAVI", QString(), bin + u"vlc"_s);
    row("3D, WRL", "CommandCyberView", u"C:\\w\\a.wrl"_s, bin + u"view3dscene C:\\w\\a.wrl"_s);
    row("3D, NFF", "CommandCyberView", u"C:\\w\\a.nff"_s, bin + u"g3dviewer C:\\w\\a.nff"_s);
    row("3D, a picture: nothing", "CommandCyberView", u"C:\\w\\a.jpg"_s, QString());
    row("3D, no page: nothing", "CommandCyberView", QString(), QString());
    row("IE, a page", "CommandIntExp", u"C:\\h\\a.html"_s, bin + u"firefox C:\\h\\a.html"_s);
    row("IE, a film", "CommandIntExp", u"C:\\h\\a.MOV"_s, bin + u"firefox C:\\h\\a.MOV"_s);
    row("IE, a picture", "CommandIntExp", u"C:\\h\\a.jpg"_s, bin + u"firefox"_s);
    row("text, TXT", "CommandText", u"C:\\t\\a.txt"_s, bin + u"mousepad C:\\t\\a.txt"_s);
    row("text, a slot marked TEXT", "CommandText", u"C:\\t\\a.ini"_s,
        bin + u"mousepad C:\\t\\a.ini"_s);
    row("text, a picture", "CommandText", u"C:\\t\\a.jpg"_s, bin + u"mousepad"_s);
    row("picture, a page", "CommandMsPaint", u"C:\\p\\a.png"_s, bin + u"gimp C:\\p\\a.png"_s);
    row("picture, no page, nothing shown", "CommandMsPaint", QString(), bin + u"gimp"_s);
    row("picture, no page, a picture shown", "CommandMsPaint", u"shown"_s,
        bin + u"gimp "_s + kRunDir + u"\\Temp.bmp"_s);
    row("comment, no page", "CommandNotePad", QString(), bin + u"gedit"_s);
    row("sound, no page", "CommandSoundPlayer", QString(), bin + u"audacity"_s);
    row("MIDI, no page", "CommandMidi", QString(), bin + u"totem"_s);
}

void TestFormEdit::viewerButtons()
{
    QFETCH(QString, mainFile);
    Entry e({mainFile == u"shown"_s ? QString() : mainFile});
    e.state.ExtTypeArray.set(3, 0, u"INI"_s);
    e.state.ExtTypeArray.set(3, 1, u"TEXT"_s);
    if (mainFile.isEmpty() || mainFile == u"shown"_s)
        e.state.PicNo = 0;
    if (mainFile == u"shown"_s) {
        QImage shown(30, 20, QImage::Format_RGB32);
        shown.fill(Qt::red);
        e.picture = shown;
    }
    e.edit->findChild<QPushButton*>(FETCH(QString, button))->click();
    const QString command = FETCH(QString, command);
    QCOMPARE(e.launcher.commandLines, command.isEmpty() ? QStringList() : QStringList{command});
    if (mainFile == u"shown"_s)
        QCOMPARE(QImage(e.home.native(kRun + u"Temp.bmp"_s)).size(), QSize(30, 20));
    QVERIFY(!e.edit->FrameSave->isVisible()); // no page, no work
}

void TestFormEdit::commentRoundTrip_data()
{
    QTest::addColumn<QString>("save");     // "line" or "file"
    QTest::addColumn<QString>("listLine"); // the page's line of the list afterwards
    QTest::addColumn<QString>("comFile");  // a_Com.txt afterwards
    QTest::newRow("onto the command line")
        << "line"
        << "C:\\pics\\a.jpg @COMMENT=<<<<<hello <<<<<world ENDCOMMENT"
        << "";
    QTest::newRow("into a file beside the picture")
        << "file"
        << "C:\\pics\\a.jpg @FILECOMMENT=C:\\pics\\a_Com.txt ENDFILECOMMENT"
        << "hello\r\nworld\r\n";
}

void TestFormEdit::commentRoundTrip()
{
    Entry e;
    FormEdit& w = *e.edit;
    w.CommandNotePad->click();
    // An empty comment gets the notice, which the comment window shows.
    QCOMPARE(e.cell(kColComment), EntryWork::kCommentNotice);
    QCOMPARE(e.file(kRun + u"TextTemp.txt"_s), EntryWork::kCommentNotice + u"\r\n"_s);
    QCOMPARE(e.comments.value(0), EntryWork::kCommentNotice.mid(6));
    QCOMPARE(e.mainText, u"C:\\pics\\a.jpg"_s);
    QCOMPARE(e.mainBack, kColorGrey);
    QVERIFY(w.FrameSave->isVisible() && w.OptionToComLine->isVisible());
    QVERIFY(w.OptionToComLine->isChecked());

    w.CommandOpenEdit->click();
    QCOMPARE(backColor(w.CommandDo), kColorRed);
    QCOMPARE(e.launcher.commandLines,
             QStringList{u"Z:\\usr\\bin\\gedit "_s + kRunDir + u"\\TextTemp.txt"_s});
    QCOMPARE(e.mainText, EntryWork::kSaveNote);
    QCOMPARE(e.mainBack, kColorYellow);

    e.saveAs(u"TextTemp.txt"_s, "hello\r\nworld\r\n"); // the user saves in the editor
    (FETCH(QString, save) == u"file"_s ? w.OptionSaveToFile : w.OptionToComLine)->click();
    w.CommandDo->click();
    QCOMPARE(e.listFile(), FETCH(QString, listLine) + u"\r\n"_s);
    QCOMPARE(e.file(kRun + u"SelectFile.txt"_s), e.listFile());
    QCOMPARE(e.file(u"pics/a_Com.txt"_s), FETCH(QString, comFile));
    QVERIFY(!e.home.exists(kRun + u"TextTemp.txt"_s));
    QCOMPARE(e.pagesShown, QList<int>{1});
    QCOMPARE(e.mainText, u"C:\\pics\\a.jpg"_s); // shown again
    QCOMPARE(backColor(w.CommandDo), kColorButtonFace);
}

void TestFormEdit::recordedCompanion_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("scratch");
    QTest::addColumn<QString>("command"); // what CommandOpenEdit starts
    QTest::addColumn<QString>("companion");
    QTest::newRow("a recorded sound") << "CommandSoundPlayer"
                                      << "SoundTemp.wav"
                                      << "Z:\\usr\\bin\\audacity " + kRunDir + "\\SoundTemp.wav"
                                      << "a.wav";
    QTest::newRow("a MIDI file") << "CommandMidi"
                                 << "MidiTemp.mid"
                                 << "Z:\\usr\\bin\\totem"
                                 << "a.mid";
}

void TestFormEdit::recordedCompanion()
{
    Entry e;
    FormEdit& w = *e.edit;
    const QString scratch = kRun + FETCH(QString, scratch);
    w.findChild<QPushButton*>(FETCH(QString, button))->click();
    QVERIFY(w.FrameSave->isVisible());
    QVERIFY(!w.OptionToComLine->isVisible());
    w.CommandOpenEdit->click();
    QCOMPARE(e.launcher.commandLines, QStringList{FETCH(QString, command)});
    if (FETCH(QString, button) == u"CommandMidi"_s) {
        QCOMPARE(e.mainText, u"更新するためには、"_s + kRunDir +
                                 u"\\MidiTemp.midとして上書き保存してください。"_s);
        QCOMPARE(e.mainBack, kColorYellow);
    }
    QVERIFY(e.home.exists(scratch)); // an empty scratch file to save over
    QCOMPARE(e.home.readFile(scratch), QByteArray());

    const QByteArray recorded("RIFF....WAVEfmt recorded bytes");
    e.saveAs(FETCH(QString, scratch), recorded);
    w.CommandDo->click();
    const QString companion = FETCH(QString, companion);
    QCOMPARE(e.home.readFile(u"pics/"_s + companion), recorded);
    QCOMPARE(e.cell(kColWith), u"C:\\pics\\"_s + companion);
    QCOMPARE(e.listFile(), u"C:\\pics\\a.jpg @WITH=C:\\pics\\"_s + companion + u" ENDWITH\r\n"_s);
    QVERIFY(!e.home.exists(scratch));
    QCOMPARE(e.pagesShown, QList<int>{1});
}

void TestFormEdit::deletion_data()
{
    QTest::addColumn<QString>("row"); // the page's cells
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("cells");    // main|with|comment afterwards
    QTest::addColumn<QString>("listLine"); // the list file afterwards
    const QString old = u"OLD LIST"_s;
    QTest::newRow("comment: the column, not yet the file") << "C:\\pics\\a.jpg|||<<<<<hi"
                                                           << "CommandNotePad"
                                                           << "C:\\pics\\a.jpg||" << old;
    QTest::newRow("sound companion")
        << "C:\\pics\\a.jpg|C:\\pics\\a.wav|9999|<<<<<" + QString() << "CommandSoundPlayer"
        << "C:\\pics\\a.jpg||<<<<<"
        << "C:\\pics\\a.jpg @COMMENT= ENDCOMMENT";
    QTest::newRow("a sound page's own file") << "C:\\pics\\a.wav|||"
                                             << "CommandSoundPlayer"
                                             << "||"
                                             << "";
    QTest::newRow("MIDI companion") << "C:\\pics\\a.jpg|C:\\pics\\a.MID||"
                                    << "CommandMidi"
                                    << "C:\\pics\\a.jpg||"
                                    << "C:\\pics\\a.jpg";
}

void TestFormEdit::deletion()
{
    Entry e({FETCH(QString, row)});
    e.home.writeFile(kRun + u"TempList.Lst"_s, "OLD LIST\r\n");
    FormEdit& w = *e.edit;
    w.findChild<QPushButton*>(FETCH(QString, button))->click();
    w.OptionDeleate->click();
    w.CommandDo->click();
    QCOMPARE(e.cell(kColMain) + u'|' + e.cell(kColWith) + u'|' + e.cell(kColComment),
             FETCH(QString, cells));
    QCOMPARE(e.listFile(), FETCH(QString, listLine) + u"\r\n"_s);
    QCOMPARE(e.pagesShown, QList<int>{1});
    QVERIFY(e.launcher.commandLines.isEmpty());
}

void TestFormEdit::delayFrame()
{
    Entry e({u"C:\\pics\\a.jpg||9999"_s, u"C:\\pics\\b.jpg||5"_s});
    FormEdit& w = *e.edit;
    w.CommandWaitTime->click();
    QVERIFY(w.FrameAddDelay->isVisible());
    QCOMPARE(w.TextWait->text(), u"0"_s);
    w.TextWait->setText(u" 7 "_s);
    w.CommandAddWait->click();
    QCOMPARE(e.cell(kColDelay), u"7"_s);
    QCOMPARE(e.ui.beeps, 21);
    QCOMPARE(backColor(w.CommandAddWait), kColorButtonFace);
    QCOMPARE(e.listFile(), u"C:\\pics\\a.jpg @DELAY=7 ENDDELAY\r\n"
                           u"C:\\pics\\b.jpg @DELAY=5 ENDDELAY\r\n"_s);
    e.state.PicNo = 2;
    w.CommandWaitTime->click();
    QCOMPARE(w.TextWait->text(), u"5"_s);
    w.TextWait->setText(u"0"_s);
    w.CommandAddWait->click();
    QCOMPARE(e.cell(kColDelay), u"9999"_s);
    w.CommandEndWait->click();
    QVERIFY(!w.FrameAddDelay->isVisible());

    // Paging hides both frames.
    w.CommandWaitTime->click();
    w.CommandNotePad->click();
    QVERIFY(w.FrameAddDelay->isVisible() && w.FrameSave->isVisible());
    w.hideEntryFrames();
    QVERIFY(!w.FrameAddDelay->isVisible() && !w.FrameSave->isVisible());
}

void TestFormEdit::unreachableProgramIsAsked()
{
    Entry e;
    FormEdit& w = *e.edit;
    e.state.DirecData.CommentEditorPath = u"C:\\nowhere\\notepad.exe"_s;
    w.CommandNotePad->click();
    e.ui.answers << kAnswerNo;
    w.CommandOpenEdit->click();
    QCOMPARE(e.ui.questions,
             QStringList{u"プログラムがNotepadへ到達できません。今再設定しますか？"_s});
    QVERIFY(e.setUps.isEmpty());
    QVERIFY(e.launcher.commandLines.isEmpty());
    // Yes: FormEdit2's comment button sets the program up, and work goes on.
    e.edit->links.setUpCommentProgram = [&e] {
        e.setUps << u"comment"_s;
        e.state.DirecData.CommentEditorPath = u"Z:\\usr\\bin\\mousepad"_s;
    };
    w.CommandOpenEdit->click();
    QCOMPARE(e.setUps, QStringList{u"comment"_s});
    QCOMPARE(e.launcher.commandLines,
             QStringList{u"Z:\\usr\\bin\\mousepad "_s + kRunDir + u"\\TextTemp.txt"_s});
}

void TestFormEdit::arrayToFileKeepsTheOldList()
{
    // Row 2's comment is one line long and EditArray holds none: the rule of
    // the list writer empties it, and ListBackup.Lst keeps the list as it was.
    Entry e({u"C:\\pics\\a.jpg|C:\\s\\a.wav||<<<<<\r\nfirst\r\nsecond|PICTURESCROLL"_s,
             u"C:\\pics\\b.jpg||3|<<<<<one line"_s, u"C:\\pics\\c.jpg|||C:\\t\\c.txt"_s});
    const QByteArray before = "the list as the user had it\r\n";
    e.home.writeFile(kRun + u"TempList.Lst"_s, before);
    QVERIFY(e.edit->work().ArrayToFile());
    const QString written =
        u"C:\\pics\\a.jpg @WITH=C:\\s\\a.wav ENDWITH @COMMENT=<<<<<first <<<<<second ENDCOMMENT "
        u"@OPTION=PICTURESCROLL ENDOPTION\r\n"
        u"C:\\pics\\b.jpg @DELAY=3 ENDDELAY @COMMENT= ENDCOMMENT\r\n"
        u"C:\\pics\\c.jpg @FILECOMMENT=C:\\t\\c.txt ENDFILECOMMENT\r\n"_s;
    QCOMPARE(e.listFile(), written);
    QCOMPARE(e.file(kRun + u"SelectFile.txt"_s), written);
    QCOMPARE(e.home.readFile(kRun + u"ListBackup.Lst"_s), before);
    // With the comment in EditArray, the line keeps it.
    e.state.EditArray.redim(kListColumns, 4);
    e.state.EditArray.set(kColComment, 2, u"<<<<<one line"_s);
    e.edit->work().ArrayToFile();
    QVERIFY(e.listFile().contains(u"C:\\pics\\b.jpg @DELAY=3 ENDDELAY @COMMENT=<<<<<one line "
                                  u"ENDCOMMENT\r\n"_s));
    QCOMPARE(e.file(kRun + u"ListBackup.Lst"_s), written); // one generation
}

void TestFormEdit::arrayToFileWholeOrNotAtAll()
{
    Entry e({u"C:\\pics\\" + QString(3000, u'x') + u".jpg"});
    const QByteArray before = "short list\r\n";
    e.home.writeFile(kRun + u"TempList.Lst"_s, before);
    bool written = true;
    {
        FileSizeLimit full(1000); // the list no longer fits on the disk
        written = e.edit->work().ArrayToFile();
    }
    QVERIFY(!written);
    QCOMPARE(e.home.readFile(kRun + u"TempList.Lst"_s), before);
    QCOMPARE(e.ui.boxes.size(), 1); // the user is told
}

void TestFormEdit::printerNote()
{
    Entry e;
    e.edit->move(600, 300);
    e.edit->PicturePrinter->click();
    FormBase* print = e.forms.existing(u"FormPrint"_s);
    QVERIFY(print && print->isVisible());
    const QRect me = e.edit->frameGeometry();
    QCOMPARE(print->frameGeometry().x(), me.x() - me.width());
    QCOMPARE(print->frameGeometry().bottom(), me.bottom());
    QVERIFY(e.launcher.commandLines.isEmpty()); // a note: nothing is started
    e.edit->CommandNotePad->click();
    saveShot(e.edit, u"FormEdit"_s);
}

QTEST_MAIN(TestFormEdit)
#include "tst_FormEdit.moc"
