// The popups of the text pane (FormRClick4) and of a picture (FormRClick5)
// driven by their object names: captions, the main window's links, the
// outside programs and the file dialogs.
#include "display/FormRClick4.h"
#include "display/FormRClick5.h"
#include "platform/Controls.h"
#include "platform/FormRegistry.h"
#include "platform/TextCodec.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

struct PopupFixture : BasicsFixture {
    FormRegistry forms;
    FormRClick4 text{basics, forms};
    FormRClick5 picture{basics};
    QWidget main;
    QString pageFile = QStringLiteral("C:\\pics\\a.jpg");

    PopupFixture()
    {
        text.mainWindow = [this] { return &main; };
        text.currentFile = [this] { return pageFile; };
        picture.currentFile = [this] { return pageFile; };
        home.writeFile(QStringLiteral("pics/a.jpg"), "JPEG bytes of a");
        home.makeFolder(QStringLiteral("keep"));
    }
    FormBase* popup(const QString& name)
    {
        return name == "FormRClick4" ? static_cast<FormBase*>(&text) : &picture;
    }
    void click(FormBase* form, const char* button)
    {
        auto* control = form->findChild<QPushButton*>(button);
        QVERIFY2(control, button);
        QTest::mouseClick(control, Qt::LeftButton);
    }
};

FormBase* addFontAndColorWindow(FormRegistry& forms)
{
    forms.add(QStringLiteral("FormSetFontAndColor"),
              []() -> FormBase* { return new FormBase(QStringLiteral("FormSetFontAndColor")); });
    return forms.form(QStringLiteral("FormSetFontAndColor"));
}

} // namespace

class TestFormRClick : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void captions_data();
    void captions();
    void showAtThePlaceGiven_data();
    void showAtThePlaceGiven();
    void setFontOpensTheTextSettings_data();
    void setFontOpensTheTextSettings();
    void smallAndBigSizeTheMainWindow_data();
    void smallAndBigSizeTheMainWindow();
    void openSeeHandsTheFileToTheViewer_data();
    void openSeeHandsTheFileToTheViewer();
    void toFileSavesTheText_data();
    void toFileSavesTheText();
    void pictureActionsOfTheMainWindow_data();
    void pictureActionsOfTheMainWindow();
    void openEditStartsThePictureEditor_data();
    void openEditStartsThePictureEditor();
    void saveCopiesThePicture_data();
    void saveCopiesThePicture();
    void openShowsTheChosenFile_data();
    void openShowsTheChosenFile();
};

void TestFormRClick::captions_data()
{
    QTest::addColumn<QString>("popup");
    QTest::addColumn<QString>("control");
    QTest::addColumn<QString>("caption");
    const QString text = QStringLiteral("FormRClick4");
    const QString picture = QStringLiteral("FormRClick5");
    QTest::newRow("4 font") << text << "CommandSetFont"
                            << "ﾌｫﾝﾄ/ｶﾗｰ";
    QTest::newRow("4 small") << text << "CommandSmall"
                             << "画面縮小";
    QTest::newRow("4 big") << text << "CommandBig"
                           << "画面拡大";
    QTest::newRow("4 see") << text << "CommandOpenSee"
                           << "すぐ見る";
    QTest::newRow("4 save") << text << "CommandToFile"
                            << "Save";
    QTest::newRow("4 close") << text << "CommandClose"
                             << "";
    QTest::newRow("5 auto") << picture << "CommandShowAutoRun"
                            << "Auto";
    QTest::newRow("5 recover") << picture << "CommandRecover"
                               << "復元";
    QTest::newRow("5 delete") << picture << "CommandDeleat"
                              << "削除";
    QTest::newRow("5 editor") << picture << "CommandOpenEdit"
                              << "ｴﾃﾞｨﾀｰ";
    QTest::newRow("5 save") << picture << "CommandSave"
                            << "Save";
    QTest::newRow("5 open") << picture << "CommandOpenSee"
                            << "Open";
    QTest::newRow("5 close") << picture << "CommandClose"
                             << "";
}

void TestFormRClick::captions()
{
    PopupFixture f;
    FormBase* popup = f.popup(FETCH(QString, popup));
    QCOMPARE(popup->objectName(), FETCH(QString, popup));
    auto* button = popup->findChild<QPushButton*>(FETCH(QString, control));
    QVERIFY(button);
    QCOMPARE(button->text(), FETCH(QString, caption));
}

void TestFormRClick::showAtThePlaceGiven_data()
{
    QTest::addColumn<QString>("popup");
    QTest::newRow("text") << "FormRClick4";
    QTest::newRow("picture") << "FormRClick5";
}

void TestFormRClick::showAtThePlaceGiven()
{
    PopupFixture f;
    const QString name = FETCH(QString, popup);
    FormBase* popup = f.popup(name);
    if (name == "FormRClick4")
        f.text.showAt(3000, 1500);
    else
        f.picture.showAt(3000, 1500);
    QVERIFY(popup->isVisible());
    QCOMPARE(twLeft(popup), 3000.f);
    QCOMPARE(twTop(popup), 1500.f);
    saveShot(popup, name);
    f.click(popup, "CommandClose");
    QVERIFY(!popup->isVisible());
    QVERIFY(!popup->isLoaded());
}

void TestFormRClick::setFontOpensTheTextSettings_data()
{
    QTest::addColumn<bool>("known");
    QTest::newRow("settings window known") << true;
    QTest::newRow("not yet in the program") << false;
}

void TestFormRClick::setFontOpensTheTextSettings()
{
    PopupFixture f;
    FormBase* settings = FETCH(bool, known) ? addFontAndColorWindow(f.forms) : nullptr;
    f.text.showAt(1500, 1500);
    const float besideLeft = twLeft(&f.text) + twWidth(&f.text);
    f.click(&f.text, "CommandSetFont");
    QVERIFY(!f.text.isVisible());
    if (!settings) {
        QVERIFY(!f.forms.existing(QStringLiteral("FormSetFontAndColor")));
        return;
    }
    QVERIFY(settings->isVisible());
    QCOMPARE(settings->property("mode").toString(), QStringLiteral("TEXT"));
    QCOMPARE(twLeft(settings), besideLeft);
    QCOMPARE(twTop(settings), 1500.f);
}

void TestFormRClick::smallAndBigSizeTheMainWindow_data()
{
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    QTest::addColumn<QString>("button");
    QTest::addColumn<QSize>("before"); // the window with its frame, pixels
    QTest::addColumn<QSize>("after");  // 100 pixels to a step of 1500 twips
    QTest::newRow("smaller") << "CommandSmall" << QSize(500, 400) << QSize(400, 300);
    QTest::newRow("larger") << "CommandBig" << QSize(500, 400) << QSize(600, 500);
    QTest::newRow("not below the smallest") << "CommandSmall" << QSize(250, 160) << QSize(200, 150);
    QTest::newRow("not beyond the screen") << "CommandBig" << screen - QSize(30, 60) << screen;
}

void TestFormRClick::smallAndBigSizeTheMainWindow()
{
    PopupFixture f;
    f.main.show();
    f.main.move(30, 20);
    const QSize frame = f.main.frameGeometry().size() - f.main.size();
    f.main.resize(FETCH(QSize, before) - frame);
    f.text.showAt(0, 0);
    f.click(&f.text, FETCH(QString, button).toLatin1().constData());
    QCOMPARE(f.main.frameGeometry().size(), FETCH(QSize, after));
    QCOMPARE(f.main.pos(), QPoint(30, 20));
    QVERIFY(f.text.isVisible()); // stays for the next step
}

void TestFormRClick::openSeeHandsTheFileToTheViewer_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("viewerStarts");
    QTest::addColumn<QStringList>("opened");
    QTest::addColumn<int>("beeps");
    QTest::newRow("shown") << "C:\\texts\\a.txt" << true << QStringList{"C:\\texts\\a.txt"} << 0;
    QTest::newRow("viewer fails") << "C:\\texts\\a.txt" << false << QStringList{"C:\\texts\\a.txt"}
                                  << 1;
    QTest::newRow("no page") << "" << true << QStringList{} << 1;
}

void TestFormRClick::openSeeHandsTheFileToTheViewer()
{
    PopupFixture f;
    f.pageFile = FETCH(QString, file);
    f.launcher.succeed = FETCH(bool, viewerStarts);
    f.text.showAt(0, 0);
    f.click(&f.text, "CommandOpenSee");
    QCOMPARE(f.launcher.opened, FETCH(QStringList, opened));
    QCOMPARE(f.ui.beeps, FETCH(int, beeps));
    QVERIFY(!f.text.isVisible());
}

void TestFormRClick::toFileSavesTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("answered");
    QTest::addColumn<QByteArray>("bytes"); // of keep/b.txt afterwards
    const QByteArray old("old text that is longer than the new");
    QTest::newRow("lines end in CR LF, Shift-JIS")
        << "春の写真\n二行目 ①\r\n"
        << true << text::encodeCp932(QStringLiteral("春の写真\r\n二行目 ①\r\n")).value();
    QTest::newRow("beyond Shift-JIS: UTF-8 with its mark")
        << "한국어\n"
        << true << QByteArray("\xEF\xBB\xBF") + QStringLiteral("한국어\r\n").toUtf8();
    QTest::newRow("cancelled") << "text" << false << old;
}

void TestFormRClick::toFileSavesTheText()
{
    PopupFixture f;
    f.pageFile = QStringLiteral("C:\\texts\\a.txt");
    f.home.makeFolder(QStringLiteral("texts"));
    f.home.writeFile(QStringLiteral("keep/b.txt"), "old text that is longer than the new");
    const QString text = FETCH(QString, text);
    f.text.shownText = [&] { return text; };
    const bool answered = FETCH(bool, answered);
    if (answered)
        f.ui.fileNames.enqueue(f.home.native(QStringLiteral("keep/b.txt")));
    f.text.showAt(0, 0);
    f.click(&f.text, "CommandToFile");
    QCOMPARE(f.home.readFile(QStringLiteral("keep/b.txt")), FETCH(QByteArray, bytes));
    QCOMPARE(f.ui.dialogFilters, QStringList{"(*.txt)|*.txt|(*.*)|*.*"});
    QCOMPARE(f.ui.dialogStarts, QStringList{f.home.native(QStringLiteral("texts"))});
    // An accepted dialog moves the current folder.
    QCOMPARE(f.home.fs.curDir(), answered ? QStringLiteral("C:\\keep") : QStringLiteral("C:\\"));
    QVERIFY(!f.text.isVisible());
}

void TestFormRClick::pictureActionsOfTheMainWindow_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QStringList>("called");
    QTest::newRow("Auto") << "CommandShowAutoRun" << QStringList{"auto"};
    QTest::newRow("recover") << "CommandRecover" << QStringList{"recover"};
    QTest::newRow("delete") << "CommandDeleat" << QStringList{"delete"};
    QTest::newRow("close") << "CommandClose" << QStringList{};
}

void TestFormRClick::pictureActionsOfTheMainWindow()
{
    PopupFixture f;
    QStringList called;
    bool shownWhileCalled = true;
    auto hook = [&](const char* name) {
        return [&, name] {
            called << QString::fromLatin1(name);
            shownWhileCalled = f.picture.isVisible();
        };
    };
    f.picture.openAutoPage = hook("auto");
    f.picture.recover = hook("recover");
    f.picture.deleteFile = hook("delete");
    f.picture.showAt(1500, 1500);
    f.click(&f.picture, FETCH(QString, button).toLatin1().constData());
    QCOMPARE(called, FETCH(QStringList, called));
    QVERIFY(!f.picture.isVisible());
    QVERIFY(!shownWhileCalled || called.isEmpty()); // the popup stepped aside first
}

void TestFormRClick::openEditStartsThePictureEditor_data()
{
    QTest::addColumn<QString>("editor");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("commandLines");
    QTest::addColumn<int>("beeps");
    QTest::newRow("editor and picture")
        << "Z:\\usr\\bin\\gimp"
        << "C:\\pics\\a.jpg" << QStringList{"Z:\\usr\\bin\\gimp C:\\pics\\a.jpg"} << 0;
    QTest::newRow("no page: the editor alone") << " Z:\\usr\\bin\\gimp "
                                               << "" << QStringList{"Z:\\usr\\bin\\gimp"} << 0;
    QTest::newRow("no editor set") << ""
                                   << "C:\\pics\\a.jpg" << QStringList{} << 1;
}

void TestFormRClick::openEditStartsThePictureEditor()
{
    PopupFixture f;
    f.state.DirecData.PictureEditorPath = FETCH(QString, editor);
    f.pageFile = FETCH(QString, file);
    f.picture.showAt(0, 0);
    f.click(&f.picture, "CommandOpenEdit");
    QCOMPARE(f.launcher.commandLines, FETCH(QStringList, commandLines));
    QCOMPARE(f.ui.beeps, FETCH(int, beeps));
    QVERIFY(!f.picture.isVisible());
}

void TestFormRClick::saveCopiesThePicture_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("answer"); // under the home, "" cancels
    QTest::addColumn<bool>("asked");
    QTest::addColumn<QString>("folder"); // current folder afterwards
    QTest::newRow("copied") << "C:\\pics\\a.jpg"
                            << "keep/b.jpg" << true << "C:\\keep";
    QTest::newRow("over an older copy") << "C:\\PICS\\A.JPG"
                                        << "keep/old.jpg" << true << "C:\\keep";
    QTest::newRow("cancelled") << "C:\\pics\\a.jpg"
                               << "" << true << "C:\\";
    QTest::newRow("the page's file is gone") << "C:\\pics\\gone.jpg"
                                             << "keep/b.jpg" << false << "C:\\";
}

void TestFormRClick::saveCopiesThePicture()
{
    PopupFixture f;
    f.home.writeFile(QStringLiteral("keep/old.jpg"), "older");
    f.pageFile = FETCH(QString, file);
    const QString answer = FETCH(QString, answer);
    if (!answer.isEmpty())
        f.ui.fileNames.enqueue(f.home.native(answer));
    f.picture.showAt(0, 0);
    f.click(&f.picture, "CommandSave");
    const bool asked = FETCH(bool, asked);
    QCOMPARE(f.ui.dialogFilters, asked ? QStringList{"(*.*)|*.*"} : QStringList{});
    if (asked)
        QCOMPARE(f.ui.dialogStarts, QStringList{f.home.native(QStringLiteral("pics/a.jpg"))});
    if (asked && !answer.isEmpty())
        QCOMPARE(f.home.readFile(answer), QByteArray("JPEG bytes of a"));
    else
        QVERIFY(!f.home.exists(QStringLiteral("keep/b.jpg")));
    QCOMPARE(f.ui.beeps, asked ? 0 : 1);
    QCOMPARE(f.home.fs.curDir(), FETCH(QString, folder));
    QCOMPARE(f.home.readFile(QStringLiteral("pics/a.jpg")), QByteArray("JPEG bytes of a"));
}

void TestFormRClick::openShowsTheChosenFile_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QStringList>("opened");
    QTest::newRow("chosen") << "keep/c.png" << QStringList{"C:\\keep\\c.png"};
    QTest::newRow("cancelled") << "" << QStringList{};
}

void TestFormRClick::openShowsTheChosenFile()
{
    PopupFixture f;
    f.home.writeFile(QStringLiteral("keep/c.png"), "png");
    QStringList opened;
    f.picture.open = [&](const QString& file) { opened << file; };
    const QString answer = FETCH(QString, answer);
    if (!answer.isEmpty())
        f.ui.fileNames.enqueue(f.home.native(answer));
    f.picture.showAt(0, 0);
    f.click(&f.picture, "CommandOpenSee");
    QCOMPARE(opened, FETCH(QStringList, opened));
    QCOMPARE(f.ui.dialogFilters, QStringList{"(*.*)|*.*"});
    QCOMPARE(f.ui.dialogStarts, QStringList{f.home.native(QStringLiteral("pics"))});
    QVERIFY(!f.picture.isVisible());
}

QTEST_MAIN(TestFormRClick)
#include "tst_FormRClick.moc"
