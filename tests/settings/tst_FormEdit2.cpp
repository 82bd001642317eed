// FormEdit2 and the small windows around it, over a fake system folder and
// the launcher's fake: each program button's command line and the argv the
// launcher makes of it, with EditorOn and without; the file handed to the
// desktop's opener; each directory button's dialog, start and filter; the
// right-click menu and the two 3D windows; the font buttons' modes; the
// hints; and CommandClear with its question and the seven files in order.
#include "list/CommandWords.h"
#include "platform/FormRegistry.h"
#include "platform/Launcher.h"
#include "settings/FormCommandConbo.h"
#include "settings/FormEdit2.h"
#include "settings/FormFukuMan.h"
#include "settings/FormRClick.h"
#include "settings/FormSetFontAndColor.h"
#include "settings/FormViewerDir.h"
#include "settings/FormViewerSelect.h"
#include "support/BasicsFixture.h"
#include "support/FakeSystemBin.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

struct Bindings : BasicsFixture {
    FakeSystemBin bin{home.fs};
    FormRegistry forms;
    FormEdit2* edit2 = nullptr;
    bool editorOn = false;
    int ended = 0;

    Bindings()
    {
        state.CommandWord = englishCommandWords();
        forms.add(u"FormEdit2"_s, [this] { return edit2 = new FormEdit2(basics, forms); });
        forms.add(u"FormRClick"_s, [this] { return new FormRClick(*edit2, forms); });
        forms.add(u"FormViewerSelect"_s, [this] { return new FormViewerSelect(basics, *edit2); });
        forms.add(u"FormViewerDir"_s, [this] { return new FormViewerDir(*edit2, forms); });
        forms.add(u"FormFukuMan"_s, [] { return new FormFukuMan; });
        forms.add(u"FormSetFontAndColor"_s,
                  [this] { return new FormSetFontAndColor(basics, SetTargets()); });
        forms.add(u"FormCommandConbo"_s,
                  [this] { return new FormCommandConbo(basics, SetTargets()); });
        forms.form(u"FormEdit2"_s)->showForm();
        edit2->links.editorOn = [this] { return editorOn; };
        edit2->links.editorFileName = [] { return u" C:\\list\\page.txt "_s; };
        edit2->links.endProgram = [this] { ++ended; };
        // Every field names a program of the system folder, by its role.
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
        state.SelectedFile = u"C:\\pics\\a.jpg"_s;
    }
    QString program(const QString& name) const
    {
        bin.add(name);
        return u"Z:\\usr\\bin\\"_s + name;
    }
    template <class T> T* form(const char* name)
    {
        return static_cast<T*>(forms.form(QString::fromLatin1(name)));
    }
    QPushButton* button(const QString& name) const { return edit2->findChild<QPushButton*>(name); }
    void rightClick(QPushButton* target)
    {
        QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5),
                          QPointF(target->mapToGlobal(QPoint(5, 5))), Qt::RightButton,
                          Qt::RightButton, Qt::NoModifier);
        QApplication::sendEvent(target, &press);
    }
};

} // namespace

class TestFormEdit2 : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void programButtons_data();
    void programButtons();
    void threeDimensionalViewers();
    void doExeHandsTheFileToTheOpener();
    void directoryButtons_data();
    void directoryButtons();
    void rightClickMenu_data();
    void rightClickMenu();
    void fontButtonsOpenTheirModes_data();
    void fontButtonsOpenTheirModes();
    void hints();
    void clearDeletesTheSettingsInOrder();
    void notes();
};

void TestFormEdit2::programButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("editorOn");
    const QList<std::pair<const char*, const char*>> rows = {
        {"CommandMsPaint", "gimp"},
        {"CommandNotePad", "gedit"},
        {"CommandSoundPlayer", "audacity"},
        {"CommandText", "mousepad"},
        {"CommandAVI", "vlc"},
        {"CommandMidi", "totem"},
        {"CommandIntExp", "firefox"},
    };
    for (const auto& [button, program] : rows) {
        QTest::addRow("%s", button) << button << program << false;
        QTest::addRow("%s, EditorOn", button) << button << program << true;
    }
}

void TestFormEdit2::programButtons()
{
    Bindings b;
    b.editorOn = FETCH(bool, editorOn);
    b.button(FETCH(QString, button))->click();
    const QString program = FETCH(QString, program);
    const QString file = b.editorOn ? u"C:\\list\\page.txt"_s : u"C:\\pics\\a.jpg"_s;
    QCOMPARE(b.launcher.commandLines, QStringList{u"Z:\\usr\\bin\\"_s + program + u' ' + file});
    const auto argv = splitCommandLine(b.launcher.commandLines.value(0), b.home.fs);
    QVERIFY(argv);
    const QString nativeFile =
        b.editorOn ? b.home.native("list/page.txt") : b.home.native("pics/a.jpg");
    QCOMPARE(*argv, (QStringList{b.bin.folder() + u'/' + program, nativeFile}));
}

void TestFormEdit2::threeDimensionalViewers()
{
    Bindings b;
    b.edit2->move(600, 200);
    b.edit2->CommandCyberView->click();
    QVERIFY(b.launcher.commandLines.isEmpty()); // the button itself starts nothing
    auto* viewers = b.form<FormViewerSelect>("FormViewerSelect");
    QVERIFY(viewers->isVisible());
    QCOMPARE(viewers->windowTitle(), u"Viewer for"_s);
    QVERIFY(viewers->frameGeometry().right() < b.edit2->frameGeometry().left());
    viewers->CommandWRLViewer->click();
    b.editorOn = true;
    viewers->CommandCyberViewer->click();
    QCOMPARE(b.launcher.commandLines,
             (QStringList{u"Z:\\usr\\bin\\view3dscene C:\\pics\\a.jpg"_s,
                          u"Z:\\usr\\bin\\g3dviewer C:\\list\\page.txt"_s}));
}

void TestFormEdit2::doExeHandsTheFileToTheOpener()
{
    Bindings b;
    b.edit2->CommandDoExe->click();
    b.editorOn = true;
    b.edit2->CommandDoExe->click();
    QCOMPARE(b.launcher.opened, (QStringList{u"C:\\pics\\a.jpg"_s, u"C:\\list\\page.txt"_s}));
    QVERIFY(b.launcher.commandLines.isEmpty()); // never run by the program itself
}

void TestFormEdit2::directoryButtons_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("field"); // what the field holds before
    QTest::addColumn<QString>("start"); // the dialog's start, native under the home or Z:
    QTest::addColumn<QString>("filter");
    const QString filter = u"Aplication Programs to use.(*.exe)|*.exe"_s;
    QTest::newRow("picture row, a program") << "CommandPictureDirectry"
                                            << "Z:\\usr\\bin\\gimp"
                                            << "Z:/usr/bin/gimp"
                                            << "Aplication Programs to use. (*.exe)|*.exe";
    QTest::newRow("picture row, no program") << "CommandPictureDirectry"
                                             << ""
                                             << "C:/windows/pbrush.exe" << filter;
    QTest::newRow("comment row, a program") << "CommandCommentDirectry"
                                            << "Z:\\usr\\bin\\gedit"
                                            << "Z:/usr/bin/gedit" << filter;
    QTest::newRow("sound row, not a program: the default") << "CommandSoundDirectry"
                                                           << "Z:\\usr\\bin\\notes.txt"
                                                           << "C:/windows/Sndrec32.exe" << filter;
    QTest::newRow("text row") << "CommandTextDirectry"
                              << ""
                              << "C:/windows/notepad.exe" << filter;
    QTest::newRow("WRL row") << "CommandWrlDirectry"
                             << ""
                             << "C:/Program Files/Viewer/vrmlview.exe" << filter;
    QTest::newRow("NFF row") << "CommandCyberViewDirectry"
                             << ""
                             << "C:/CyberView/CyberView.exe" << filter;
    QTest::newRow("animation row")
        << "CommandAnimationDirectry"
        << ""
        << "C:/Program Files/Windows Media Player/MPLAYER2.EXE" << filter;
    QTest::newRow("MIDI row, its own field") << "CommandMidiDirectry"
                                             << "Z:\\usr\\bin\\totem"
                                             << "Z:/usr/bin/totem" << filter;
    QTest::newRow("internet row") << "CommandIntExpDirectry"
                                  << ""
                                  << "C:/Program Files/Internet Explorer/Iexplore.exe" << filter;
}

void TestFormEdit2::directoryButtons()
{
    Bindings b;
    b.bin.add(u"notes.txt"_s, false);
    const QString name = FETCH(QString, button);
    qsizetype row = -1;
    for (qsizetype i = 0; i < b.edit2->bindings().size(); ++i) {
        if (b.edit2->bindings()[i].directoryButton->objectName() == name)
            row = i;
    }
    QVERIFY(row >= 0);
    auto field = b.edit2->bindings()[row].field;
    b.state.DirecData.*field = FETCH(QString, field);
    const DirecDataRecord before = b.state.DirecData;

    // Cancelled: the field stays.
    b.ui.fileNames << std::nullopt;
    b.button(name)->click();
    QCOMPARE(FixedText(b.state.DirecData.*field), FixedText(before.*field));
    QString start = FETCH(QString, start);
    start = start.startsWith(u"C:"_s) ? b.home.path() + start.mid(2)
                                      : b.bin.folder().chopped(8) + start.mid(2);
    QCOMPARE(b.ui.dialogStarts, QStringList{start});
    QCOMPARE(b.ui.dialogFilters, QStringList{FETCH(QString, filter)});

    // Chosen: the field takes the program in program form; nothing else changes.
    const QString chosen = b.bin.add(u"kolourpaint"_s);
    b.ui.fileNames << chosen;
    b.button(name)->click();
    QCOMPARE(FixedText(b.state.DirecData.*field), u"Z:\\usr\\bin\\kolourpaint"_s);
    for (const auto& binding : b.edit2->bindings()) {
        if (binding.field != field)
            QCOMPARE(FixedText(b.state.DirecData.*binding.field), FixedText(before.*binding.field));
    }
}

void TestFormEdit2::rightClickMenu_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("fontRow");      // CommandSetFontCol offered
    QTest::addColumn<QString>("dialogFor"); // the field CommandSetApli picks ("" for 3D)
    QTest::newRow("picture") << "CommandMsPaint" << true << "PICTBACKCOL";
    QTest::newRow("comment") << "CommandNotePad" << true << "COMMENT";
    QTest::newRow("text") << "CommandText" << true << "TEXT";
    QTest::newRow("sound") << "CommandSoundPlayer" << false << "";
    QTest::newRow("animation") << "CommandAVI" << false << "";
    QTest::newRow("MIDI") << "CommandMidi" << false << "";
    QTest::newRow("internet") << "CommandIntExp" << false << "";
    QTest::newRow("3D") << "CommandCyberView" << false << "";
}

void TestFormEdit2::rightClickMenu()
{
    Bindings b;
    b.edit2->move(700, 300);
    QPushButton* target = b.button(FETCH(QString, button));
    b.rightClick(target);
    auto* menu = b.form<FormRClick>("FormRClick");
    QVERIFY(menu->isVisible());
    QVERIFY(b.launcher.commandLines.isEmpty()); // a right click starts nothing
    QCOMPARE(menu->CommandSetFontCol->isVisible(), FETCH(bool, fontRow));
    QVERIFY(menu->CommandSetApli->isVisible());
    // Left of the button, beside it.
    QCOMPARE(menu->frameGeometry().right() + 1,
             b.edit2->frameGeometry().left() + target->mapTo(b.edit2, QPoint(0, 0)).x());

    b.ui.fileNames << std::nullopt;
    menu->CommandSetApli->click();
    QVERIFY(!menu->isVisible());
    if (target == b.edit2->CommandCyberView) {
        // Two viewers: the window asks which; each runs its own dialog.
        auto* which = b.form<FormViewerDir>("FormViewerDir");
        QVERIFY(which->isVisible());
        QVERIFY(b.ui.dialogStarts.isEmpty());
        b.ui.fileNames << std::nullopt << std::nullopt;
        which->CommandWRL->click();
        which->show();
        which->CommandNffView->click();
        QCOMPARE(b.ui.dialogStarts, (QStringList{b.bin.folder() + u"/view3dscene"_s,
                                                 b.bin.folder() + u"/g3dviewer"_s}));
        which->CommandFukuMan->click();
        QVERIFY(b.form<FormFukuMan>("FormFukuMan")->isVisible());
    } else {
        QCOMPARE(b.ui.dialogStarts.size(), 1);
    }
    if (FETCH(bool, fontRow)) {
        b.rightClick(target);
        menu->CommandSetFontCol->click();
        auto* set = b.form<FormSetFontAndColor>("FormSetFontAndColor");
        QVERIFY(set->isVisible());
        QCOMPARE(set->SetKind, FETCH(QString, dialogFor));
    }
    QVERIFY(!b.edit2->RClickMsPaint && !b.edit2->RClickCyberView); // the flags are spent
}

void TestFormEdit2::fontButtonsOpenTheirModes_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("firstSet"); // the first word of the set combo
    QTest::newRow("comment") << "CommandSetComentFont"
                             << "COMMENT"
                             << "COMMENTSET1";
    QTest::newRow("text") << "CommandSetTextFont"
                          << "TEXT"
                          << "TEXTSET1";
    QTest::newRow("picture ground") << "CommandSetPictBackCol"
                                    << "PICTBACKCOL"
                                    << "PICTBACKCOL1";
}

void TestFormEdit2::fontButtonsOpenTheirModes()
{
    Bindings b;
    b.state.DirecData.CommentFontName = u"DejaVu Serif"_s;
    b.state.DirecData.CommentFontSize = u"15"_s;
    b.button(FETCH(QString, button))->click();
    auto* set = b.form<FormSetFontAndColor>("FormSetFontAndColor");
    QVERIFY(set->isVisible());
    QCOMPARE(set->SetKind, FETCH(QString, mode));
    QCOMPARE(set->Combo1->itemText(0), FETCH(QString, firstSet));
    if (FETCH(QString, mode) == u"COMMENT"_s) {
        // The option words' combo takes the comment's font as well.
        const QFont font = b.form<FormCommandConbo>("FormCommandConbo")->ComboCommandList->font();
        QCOMPARE(font.pointSizeF(), 15.0);
    }
    b.edit2->CommandCommandConbo->click();
    QVERIFY(b.form<FormCommandConbo>("FormCommandConbo")->isVisible());
}

void TestFormEdit2::hints()
{
    Bindings b;
    b.edit2->move(400, 500);
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(b.edit2->CommandClear, &enter);
    QCOMPARE(b.ui.messages.size(), 1);
    QCOMPARE(b.ui.messages[0].text, u" ｱﾌﾟﾘｹｰｼｮﾝとﾌｫﾝﾄなどの情報の再設定用 "_s);
    const QPoint at = b.edit2->CommandClear->mapTo(b.edit2, QPoint(0, 0));
    QCOMPARE(b.ui.messages[0].top, (b.edit2->frameGeometry().y() + at.y()) * 15 - 2000);
    QCOMPARE(b.ui.messages[0].left, (b.edit2->frameGeometry().x() + at.x()) * 15);
    // Every other hint is shown, as the floating message alternates.
    QApplication::sendEvent(b.edit2->CommandPictureDirectry, &enter);
    QApplication::sendEvent(b.edit2->CommandPictureDirectry, &enter);
    QCOMPARE(b.ui.messages.size(), 2);
    QCOMPARE(b.ui.messages[1].text, u" 画像ｴﾃﾞｨﾀｰの選択 "_s);
}

void TestFormEdit2::clearDeletesTheSettingsInOrder()
{
    Bindings b;
    const QStringList files = {"DirecData.ran",          "CommandList.txt",   "ExtType.dat",
                               "SendToList.txt",         "AccessLockDir.dat", "AccessPass.dat",
                               "PictureSizeAllowVal.dat"};
    const QString folder = u"Lumentas/ForProgramRun_KDR/"_s;
    for (const QString& name : files) {
        const QString native = b.home.writeFile(folder + name, "x");
        QFile::setPermissions(native, QFile::ReadOwner); // each asks before it goes
    }
    b.home.writeFile(folder + u"HTMLFormValKeep.txt"_s, "kept");

    b.ui.answers << kAnswerNo;
    b.edit2->CommandClear->click();
    QCOMPARE(b.ui.questions,
             QStringList{u"すべてのｱﾌﾟﾘｹｰｼｮﾝとﾌｫﾝﾄなどの情報を持つﾌｧｲﾙを消去します。\r\n"
                         u"(これを実行しても重大な問題は起きません)\r\n継続しますか？ "_s});
    QVERIFY(b.home.exists(folder + files[0]));
    QCOMPARE(b.ended, 0);

    // The order: at each read-only question, the files not yet asked about stand.
    QStringList order;
    b.ui.onBox = [&](const QString& text) {
        if (text != u"このファイルは読み出し専用です。それでも消去しますか？"_s)
            return;
        for (const QString& name : files) {
            if (b.home.exists(folder + name)) {
                order << name;
                break;
            }
        }
    };
    b.edit2->CommandClear->click();
    QCOMPARE(order, files);
    for (const QString& name : files)
        QVERIFY2(!b.home.exists(folder + name), qPrintable(name));
    QVERIFY(b.home.exists(folder + u"HTMLFormValKeep.txt"_s));
    QCOMPARE(b.ui.boxes.last(),
             u"一度プログラムを終了します。\r\n再度プログラムを実行してください。"_s);
    QCOMPARE(b.ended, 1);
    QCOMPARE(FixedText(b.state.DirecData.CommentFontName), QString()); // nothing to write back
}

void TestFormEdit2::notes()
{
    Bindings b;
    saveShot(b.edit2, u"FormEdit2"_s);
    auto* note = b.form<FormFukuMan>("FormFukuMan");
    note->showForm();
    QVERIFY(note->LabelNote->text().contains(u"sudo apt install vlc"_s));
    note->CommandClose->click();
    QVERIFY(!note->isVisible());
    QVERIFY(b.launcher.commandLines.isEmpty() && b.launcher.opened.isEmpty());
}

QTEST_MAIN(TestFormEdit2)
#include "tst_FormEdit2.moc"
