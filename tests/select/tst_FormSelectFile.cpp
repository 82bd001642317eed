// FormSelectFile driven by its object names over a folder tree made by the
// test: clicks and their undo, the preview, a whole file box, folder trees
// level by level with their level files and the stop, the filters, the two
// sizes of the text and its caret offsets.
#include "SelectFixture.h"

#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/TextCodec.h"
#include "select/PreviewBox.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kOld = u"C:\\old.jpg\r\n"_s;

} // namespace

class TestFormSelectFile : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void loadSetsTheBoxes();
    void clicksBuildTheText_data();
    void clicksBuildTheText();
    void previewFitsTheBox_data();
    void previewFitsTheBox();
    void commandAll_data();
    void commandAll();
    void folderTree_data();
    void folderTree();
    void filters_data();
    void filters();
    void searchWordsDefault();
    void largeText();
    void text1Offsets_data();
    void text1Offsets();
};

void TestFormSelectFile::loadSetsTheBoxes()
{
    SelectFixture f;
    QCOMPARE(f.select->Dir1->path(), "C:\\pics");
    QCOMPARE(f.fileRows(),
             (QStringList{"notes.txt", "tall.png", "wide.jpg", "x.png @WITH=y.wav ENDWITH"}));
    const QStringList captions{"JPG", "PNG", "TXT", "?", "C"};
    for (int i = 0; i < captions.size(); ++i)
        QCOMPARE(f.select->Check1[size_t(i)]->text(), captions.at(i));
    QCOMPARE(backColor(f.select->ShapeAddToList), kColorGreen);
    // The folder goes to the desktop's file manager (xdg-open), never a shell.
    f.click("CommandExploler");
    QCOMPARE(f.launcher.opened, QStringList{"C:\\pics"});
    QVERIFY(f.launcher.commandLines.isEmpty());
    f.click("CheckAddToList");
    QCOMPARE(backColor(f.select->ShapeAddToList), kColorGrey);
    saveShot(f.select, "FormSelectFile");

    // Its frame's close only hides it, so the text stays; an unload keeps the
    // text in SelectFile.txt, and the next load begins empty.
    f.select->close();
    QVERIFY(!f.select->isVisible() && f.select->isLoaded());
    QCOMPARE(f.text(), u"C:\\old.jpg\r\n"_s);
    f.select->unload();
    QCOMPARE(f.home.readFile(kRun + "SelectFile.txt"), QByteArray("C:\\old.jpg\r\n\r\n"));
    f.select->load();
    QCOMPARE(f.text(), QString());
}

void TestFormSelectFile::clicksBuildTheText_data()
{
    QTest::addColumn<bool>("addToList");
    QTest::addColumn<QStringList>("clicks");
    QTest::addColumn<bool>("undo");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("beeps");
    QTest::newRow("added in click order") << true << QStringList{"wide.jpg", "notes.txt"} << false
                                          << kOld + underPics({"wide.jpg", "notes.txt"}) << 2;
    QTest::newRow("the last click undone") << true << QStringList{"wide.jpg", "notes.txt"} << true
                                           << kOld + underPics({"wide.jpg"}) << 2;
    QTest::newRow("not added") << false << QStringList{"wide.jpg"} << false << kOld << 0;
    QTest::newRow("a name a list line would split")
        << true << QStringList{"x.png @WITH=y.wav ENDWITH"} << false << kOld << 0;
}

void TestFormSelectFile::clicksBuildTheText()
{
    SelectFixture f;
    f.select->CheckAddToList->setChecked(FETCH(bool, addToList));
    QString last;
    for (const QString& name : FETCH(QStringList, clicks)) {
        f.clickFile(name);
        last = name;
    }
    if (FETCH(bool, undo))
        f.click("CommandCancelLastPicture");
    QCOMPARE(f.text(), FETCH(QString, text));
    QCOMPARE(f.ui.beeps, FETCH(int, beeps));
    QCOMPARE(f.state.SelectedFile, u"C:\\pics\\"_s + last);
}

void TestFormSelectFile::previewFitsTheBox_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("previewOn");
    QTest::addColumn<bool>("fillsWidth"); // else the height; no preview at all when off
    QTest::addColumn<QColor>("colour");
    QTest::newRow("wide fills the width") << "wide.jpg" << true << true << QColor(200, 0, 0);
    QTest::newRow("tall fills the height") << "tall.png" << true << false << QColor(0, 0, 200);
    QTest::newRow("preview off") << "wide.jpg" << false << false << QColor();
    QTest::newRow("not a picture name") << "notes.txt" << true << false << QColor();
}

void TestFormSelectFile::previewFitsTheBox()
{
    SelectFixture f;
    f.select->CheckLumenta->setChecked(FETCH(bool, previewOn));
    f.select->Picture2->setFixedSize(240, 180);
    f.clickFile(FETCH(QString, file));
    PreviewBox* box = f.select->Picture2;
    const QRect placed = box->pictureRect();
    QFETCH(QColor, colour);
    if (!colour.isValid()) {
        QVERIFY(placed.isEmpty());
        return;
    }
    // As large as fits, centred the other way, never cut.
    QVERIFY(box->rect().contains(placed));
    if (FETCH(bool, fillsWidth)) {
        QCOMPARE(placed.width(), box->width());
        QVERIFY(qAbs(placed.top() - (box->height() - placed.bottom() - 1)) <= 1);
    } else {
        QCOMPARE(placed.height(), box->height());
        QVERIFY(qAbs(placed.left() - (box->width() - placed.right() - 1)) <= 1);
    }
    const QImage shown = box->grab().toImage();
    const QColor centre = shown.pixelColor(placed.center());
    QVERIFY2(qAbs(centre.red() - colour.red()) < 16 && qAbs(centre.blue() - colour.blue()) < 16,
             qPrintable(centre.name()));
    QCOMPARE(shown.pixelColor(0, 0), colorFromBgr(0x404040)); // the ground beside it
    saveShot(f.select, u"FormSelectFile_preview_"_s + QTest::currentDataTag());
}

void TestFormSelectFile::commandAll_data()
{
    QTest::addColumn<int>("stopAt"); // the run of events at which CommandStop is pressed
    QTest::newRow("every file, in pieces of 15") << 0;
    QTest::newRow("stopped on the way") << 3;
}

void TestFormSelectFile::commandAll()
{
    SelectFixture f;
    QStringList names;
    for (int i = 0; i < 40; ++i)
        names << QStringLiteral("p%1 (%2), [x].jpg").arg(i, 2, 10, QLatin1Char('0')).arg(i);
    for (const QString& name : std::as_const(names))
        f.home.writeFile("pics/many/" + name, "x");
    f.select->Dir1->setPath("C:\\pics\\many");
    const int stopAt = FETCH(int, stopAt);
    if (stopAt > 0)
        f.stopAtEvents(stopAt);
    f.click("CommandAll");

    QString all = kOld;
    for (const QString& name : std::as_const(names))
        all += u"C:\\pics\\many\\"_s + name + u"\r\n"_s;
    if (stopAt == 0) {
        QCOMPARE(f.text(), all);
    } else {
        // The text as far as it was built: the old text and the first names.
        QVERIFY(f.text().size() < all.size());
        QVERIFY(all.startsWith(f.text()));
        QVERIFY(f.text().size() > kOld.size());
    }
    QVERIFY(!f.select->ListingAll);
    QVERIFY(!f.state.StopRequested);
    QCOMPARE(backColor(f.select->CommandStop), kColorGrey);
}

void TestFormSelectFile::folderTree_data()
{
    QTest::addColumn<bool>("addToList");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<bool>("jpgBox");
    QTest::addColumn<int>("stopAt");
    QTest::addColumn<QString>("text");
    const auto row = [](const char* tag, bool add, const QString& word, const QString& mode,
                        bool jpg, int stopAt, const QString& text) {
        QTest::newRow(tag) << add << word << mode << jpg << stopAt << text;
    };
    row("behind the text, top first, then level by level", true, {}, "INC", false, 0, kOld + kTree);
    row("alone", false, {}, "INC", false, 0, kTree);
    row("files holding the word", true, " One ", "INC", false, 0, kOld + underPics({"a\\one.jpg"}));
    row("files without the word", false, "o", "EXC", false, 0,
        underPics({"tall.png", "wide.jpg", "a\\deep\\three.jpg"}));
    row("the extension boxes before each folder", false, {}, "INC", true, 0,
        underPics({"wide.jpg", "a\\one.jpg", "a\\deep\\three.jpg"}));
    // Events run before each folder and each file: 1-5 the top folder, 6 a.
    row("stopped on the way", true, {}, "INC", false, 8, {});
}

void TestFormSelectFile::folderTree()
{
    SelectFixture f;
    f.select->CheckAddToList->setChecked(FETCH(bool, addToList));
    if (FETCH(bool, jpgBox))
        f.click("Check1_0");
    const int stopAt = FETCH(int, stopAt);
    bool headSeen = false;
    f.clock.tickStep = 20;
    f.clock.onDoEvents = [&] {
        headSeen = headSeen || f.home.exists(kRun + "Head.txt");
        if (f.clock.doEventsCount == stopAt)
            f.click("CommandStop");
    };
    QString result;
    const bool done =
        f.select->FileSelectQuick(FETCH(QString, word), FETCH(QString, mode), "DIR", result);
    QCOMPARE(done, stopAt == 0);
    QVERIFY(headSeen);
    QVERIFY(!f.home.exists(kRun + "Head.txt"));
    QVERIFY(!f.home.exists(kRun + "Head2.txt"));
    QCOMPARE(backColor(f.select->CommandStop), kColorGrey);
    if (stopAt == 0) {
        QCOMPARE(f.text(), FETCH(QString, text));
        QVERIFY(!f.state.StopRequested);
        return;
    }
    // A stop keeps the old text and what was found until then.
    QVERIFY(f.text().startsWith(kOld));
    const QString whole = kOld + kTree;
    QVERIFY(whole.startsWith(f.text()));
    QVERIFY(f.text().size() < whole.size());
    QCOMPARE(result, f.text().mid(kOld.size()));
}

void TestFormSelectFile::filters_data()
{
    // Each action: "Name" clicks a control, "Name=text" types into it.
    QTest::addColumn<QStringList>("actions");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("boxesOn");
    const auto row = [](const char* tag, const QStringList& actions, const QStringList& files,
                        const QStringList& boxesOn) {
        QTest::newRow(tag) << actions << files << boxesOn;
    };
    const QStringList all{"apple.jpg", "Berry.JPG", "cat.png", "dog.txt",
                          "e.c",       "fig.cd",    "README"};
    row("every file at first", {}, all, {"CheckANY"});
    row("nothing on shows nothing", {"CheckANY"}, {}, {});
    row("a box clears CheckANY", {"Check1_0"}, {"apple.jpg", "Berry.JPG"}, {"Check1_0"});
    row("two boxes", {"Check1_0", "Check1_1"}, {"apple.jpg", "Berry.JPG", "cat.png"},
        {"Check1_0", "Check1_1"});
    row("a slot named ? shows one-letter extensions", {"Check1_3"}, {"e.c"}, {"Check1_3"});
    row("CheckANY clears the boxes", {"Check1_0", "Check1_1", "CheckANY"}, all, {"CheckANY"});
    row("word, extensions not counted", {"CommandSerch", "ComboWordSerch= a ", "CommandSerc"},
        {"apple.jpg", "cat.png", "README"}, {"CheckANY"});
    row("word with the extension boxes",
        {"Check1_0", "CommandSerch", "ComboWordSerch=e", "CheckExtWork", "CommandSerc"},
        {"apple.jpg", "Berry.JPG"}, {"Check1_0"});
    row("word with no box on",
        {"CheckANY", "CommandSerch", "ComboWordSerch=E", "CheckExtWork", "CommandSerc"},
        {"apple.jpg", "e.c", "README"}, {});
    row("free extension",
        {"Check1_0", "CommandKeyInFilter", "TextSerchEXT= txt ", "CommandExtSelect"}, {"dog.txt"},
        {});
}

void TestFormSelectFile::filters()
{
    SelectFixture f;
    for (const char* name :
         {"apple.jpg", "Berry.JPG", "cat.png", "dog.txt", "e.c", "fig.cd", "README"})
        f.home.writeFile(u"kinds/"_s + QLatin1String(name), "x");
    f.select->Dir1->setPath("C:\\kinds");
    for (const QString& action : FETCH(QStringList, actions)) {
        const qsizetype equals = action.indexOf(u'=');
        if (equals < 0) {
            f.click(action);
            continue;
        }
        QWidget* box = f.control<QWidget>(action.left(equals));
        if (auto* combo = qobject_cast<QComboBox*>(box))
            combo->setEditText(action.mid(equals + 1));
        else
            static_cast<QLineEdit*>(box)->setText(action.mid(equals + 1));
    }
    QCOMPARE(f.fileRows(), FETCH(QStringList, files));
    QStringList on;
    for (QCheckBox* box : f.select->Check1) {
        if (box->isChecked())
            on << box->objectName();
    }
    if (f.select->CheckANY->isChecked())
        on << QStringLiteral("CheckANY");
    QCOMPARE(on, FETCH(QStringList, boxesOn));
    if (QByteArray(QTest::currentDataTag()) == "free extension")
        QCOMPARE(f.home.readFile(kRun + "OtherExtType.dat"), QByteArray("txt\r\n"));
}

void TestFormSelectFile::searchWordsDefault()
{
    SelectFixture f;
    f.click("CommandSerch");
    const QString expected = u"'ここに頻繁に検索する単語を登録できます。\r\n'\r\n'\r\n"
                             u"ZBFI\r\nZIG\r\nT3D\r\nVXPR\r\nSMD\r\n0\r\n9\r\n18\r\n27\r\n"_s;
    QCOMPARE(f.home.readFile(kRun + "SerchWordList.txt"), *text::encodeCp932(expected));
    QStringList words;
    for (int i = 0; i < f.select->ComboWordSerch->count(); ++i)
        words << f.select->ComboWordSerch->itemText(i);
    QCOMPARE(words, (QStringList{"ZBFI", "ZIG", "T3D", "VXPR", "SMD", "0", "9", "18", "27"}));
    QVERIFY(!f.select->FrameByWord->isHidden());
    QVERIFY(f.select->FrameExtSerch->isHidden());
    // Then the free extension: its frame takes the place, with the default.
    f.click("CommandKeyInFilter");
    QVERIFY(f.select->FrameByWord->isHidden());
    QCOMPARE(f.select->TextSerchEXT->text(), "HTM");
}

void TestFormSelectFile::largeText()
{
    SelectFixture f;
    f.click("CommandSerch"); // FrameByWord up
    const int normalHeight = f.select->Text1->height();
    QTest::mouseDClick(f.select->Text1->viewport(), Qt::LeftButton);
    QVERIFY(f.select->TextLarge);
    for (QWidget* hidden : std::initializer_list<QWidget*>{
             f.select->CommandAll, f.select->Dir1, f.select->File1, f.select->Drive1,
             f.select->Picture2, f.select->Frame1, f.select->FrameByWord, f.select->FrameAccessDir})
        QVERIFY2(hidden->isHidden(), qPrintable(hidden->objectName()));
    QVERIFY(!f.select->CommandSaveFile->isHidden());
    QTest::qWait(0);
    QVERIFY(f.select->Text1->height() > normalHeight);
    saveShot(f.select, "FormSelectFile_large");
    QTest::mouseDClick(f.select->Text1->viewport(), Qt::LeftButton);
    QVERIFY(!f.select->TextLarge);
    QVERIFY(!f.select->FrameByWord->isHidden());
    QVERIFY(f.select->FrameExtSerch->isHidden()); // stays as it was
    QVERIFY(!f.select->File1->isHidden());
}

void TestFormSelectFile::text1Offsets_data()
{
    // Offsets count CR LF as two: "ab" CR LF "cd" CR LF CR LF "ef".
    QTest::addColumn<int>("position"); // in the box, a line break being one
    QTest::addColumn<int>("offset");
    QTest::newRow("start") << 0 << 0;
    QTest::newRow("end of the first line") << 2 << 2;
    QTest::newRow("second line") << 3 << 4;
    QTest::newRow("empty third line") << 6 << 8;
    QTest::newRow("last line") << 8 << 11;
}

void TestFormSelectFile::text1Offsets()
{
    RichTextBox box(QStringLiteral("Text1"));
    box.setText(QStringLiteral("ab\r\ncd\r\n\r\nef"));
    QCOMPARE(box.text(), QStringLiteral("ab\r\ncd\r\n\r\nef"));
    QFETCH(int, position);
    QFETCH(int, offset);
    QCOMPARE(box.offsetOf(position), offset);
    QCOMPARE(box.positionOf(offset), position);
    box.setSelStart(offset);
    QCOMPARE(box.selStart(), offset);
    // Between the CR and the LF is the end of that line; past the end, the end.
    QCOMPARE(box.positionOf(3), 2);
    QCOMPARE(box.positionOf(99), 9);
    box.setSelStart(4);
    box.setSelLength(4); // "cd" CR LF
    QCOMPARE(box.selText(), QStringLiteral("cd\r\n"));
    QCOMPARE(box.selLength(), 4);
}

QTEST_MAIN(TestFormSelectFile)
#include "tst_FormSelectFile.moc"
