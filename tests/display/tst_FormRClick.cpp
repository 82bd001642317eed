// The popups of the text pane (FormRClick4) and of a picture (FormRClick5):
// the main window's links, the outside programs and the file dialogs.
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
    // Shows the popup where it is asked and clicks one of its buttons.
    void click(FormBase* form, const QString& button)
    {
        if (form == &text)
            text.showAt(3000, 1500);
        else
            picture.showAt(3000, 1500);
        QCOMPARE(QPointF(twLeft(form), twTop(form)), QPointF(3000, 1500));
        auto* control = form->findChild<QPushButton*>(button);
        QVERIFY2(control, qPrintable(button));
        QTest::mouseClick(control, Qt::LeftButton);
    }
};

} // namespace

class TestFormRClick : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void setFontOpensTheTextSettings();
    void smallAndBigSizeTheMainWindow_data();
    void smallAndBigSizeTheMainWindow();
    void buttonsReachTheirActions_data();
    void buttonsReachTheirActions();
    void toFileSavesTheText_data();
    void toFileSavesTheText();
    void saveCopiesThePicture_data();
    void saveCopiesThePicture();
};

void TestFormRClick::setFontOpensTheTextSettings()
{
    PopupFixture f;
    f.forms.add(QStringLiteral("FormSetFontAndColor"),
                []() -> FormBase* { return new FormBase(QStringLiteral("FormSetFontAndColor")); });
    FormBase* settings = f.forms.form(QStringLiteral("FormSetFontAndColor"));
    settings->resize(120, 80); // small enough to stand beside the popup on the screen
    f.click(&f.text, QStringLiteral("CommandSetFont"));
    QVERIFY(!f.text.isVisible() && settings->isVisible());
    QCOMPARE(settings->property("mode").toString(), QStringLiteral("TEXT"));
    QCOMPARE(QPointF(twLeft(settings), twTop(settings)), QPointF(3000 + twWidth(&f.text), 1500));
}

void TestFormRClick::smallAndBigSizeTheMainWindow_data()
{
    const QSize screen = QGuiApplication::primaryScreen()->geometry().size();
    QTest::addColumn<QString>("button");
    QTest::addColumn<QSize>("before"); // the window with its frame, pixels
    QTest::addColumn<QSize>("after");  // 100 pixels to a step of 1500 twips
    QTest::addColumn<QPoint>("place"); // where the window's frame ends
    QTest::newRow("smaller") << "CommandSmall" << QSize(500, 400) << QSize(400, 300)
                             << QPoint(30, 20);
    // As large as the screen, the window moves to stay on it whole.
    QTest::newRow("not beyond the screen")
        << "CommandBig" << screen - QSize(30, 60) << screen << QPoint(0, 0);
}

void TestFormRClick::smallAndBigSizeTheMainWindow()
{
    PopupFixture f;
    f.main.show();
    f.main.move(30, 20);
    const QSize frame = f.main.frameGeometry().size() - f.main.size();
    f.main.resize(FETCH(QSize, before) - frame);
    f.click(&f.text, FETCH(QString, button));
    QCOMPARE(f.main.frameGeometry().size(), FETCH(QSize, after));
    QCOMPARE(f.main.pos(), FETCH(QPoint, place));
    QVERIFY(f.text.isVisible()); // stays for the next step
}

void TestFormRClick::buttonsReachTheirActions_data()
{
    QTest::addColumn<QString>("popup");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("editor");
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("starts");
    QTest::addColumn<QStringList>(
        "started"); // files opened, command lines, the main window's calls
    QTest::addColumn<int>("beeps");
    const auto row = [](const char* name, const char* popup, const char* button, const char* editor,
                        const char* file, bool starts, const QStringList& started, int beeps) {
        QTest::newRow(name) << QString(popup) << QString(button) << QString(editor) << QString(file)
                            << starts << started << beeps;
    };
    const char* see = "CommandOpenSee";
    const char* edit = "CommandOpenEdit";
    const char* page = "C:\\pics\\a.jpg";
    row("text shown", "FormRClick4", see, "", "C:\\t\\a.txt", true, {"C:\\t\\a.txt"}, 0);
    row("viewer fails", "FormRClick4", see, "", "C:\\t\\a.txt", false, {"C:\\t\\a.txt"}, 1);
    row("no text", "FormRClick4", see, "", "", true, {}, 1);
    row("editor and picture", "FormRClick5", edit, "Z:\\usr\\bin\\gimp", page, true,
        {"Z:\\usr\\bin\\gimp C:\\pics\\a.jpg"}, 0);
    row("no page: the editor alone", "FormRClick5", edit, " Z:\\usr\\bin\\gimp ", "", true,
        {"Z:\\usr\\bin\\gimp"}, 0);
    row("no editor set", "FormRClick5", edit, "", page, true, {}, 1);
    row("Auto", "FormRClick5", "CommandShowAutoRun", "", page, true, {"auto"}, 0);
    row("recover", "FormRClick5", "CommandRecover", "", page, true, {"recover"}, 0);
    row("delete", "FormRClick5", "CommandDeleat", "", page, true, {"delete"}, 0);
    row("open the chosen file", "FormRClick5", see, "", page, true, {"open C:\\keep\\c.png"}, 0);
    row("close", "FormRClick5", "CommandClose", "", page, true, {}, 0);
}

void TestFormRClick::buttonsReachTheirActions()
{
    PopupFixture f;
    FormBase* popup = f.popup(FETCH(QString, popup));
    f.state.DirecData.PictureEditorPath = FETCH(QString, editor);
    f.pageFile = FETCH(QString, file);
    f.launcher.succeed = FETCH(bool, starts);
    f.home.writeFile(QStringLiteral("keep/c.png"), "png");
    f.ui.fileNames.enqueue(f.home.native(QStringLiteral("keep/c.png")));
    QStringList called;
    bool shownWhileCalled = false;
    auto hook = [&](const QString& name) {
        called << name;
        shownWhileCalled |= popup->isVisible();
    };
    f.picture.openAutoPage = [&] { hook(QStringLiteral("auto")); };
    f.picture.recover = [&] { hook(QStringLiteral("recover")); };
    f.picture.deleteFile = [&] { hook(QStringLiteral("delete")); };
    f.picture.open = [&](const QString& file) { hook(QStringLiteral("open ") + file); };
    f.click(popup, FETCH(QString, button));
    QCOMPARE(f.launcher.opened + f.launcher.commandLines + called, FETCH(QStringList, started));
    QCOMPARE(f.ui.beeps, FETCH(int, beeps));
    QVERIFY(!popup->isVisible() && !popup->isLoaded());
    QVERIFY(!shownWhileCalled); // the popup steps aside first
    // Only Open asks, where the page's file is.
    QCOMPARE(f.ui.dialogStarts, f.ui.fileNames.isEmpty()
                                    ? QStringList{f.home.native(QStringLiteral("pics"))}
                                    : QStringList{});
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
    f.click(&f.text, QStringLiteral("CommandToFile"));
    QCOMPARE(f.home.readFile(QStringLiteral("keep/b.txt")), FETCH(QByteArray, bytes));
    QCOMPARE(f.ui.dialogFilters, QStringList{"(*.txt)|*.txt|(*.*)|*.*"});
    QCOMPARE(f.ui.dialogStarts, QStringList{f.home.native(QStringLiteral("texts"))});
    // An accepted dialog moves the current folder.
    QCOMPARE(f.home.fs.curDir(), answered ? QStringLiteral("C:\\keep") : QStringLiteral("C:\\"));
    QVERIFY(!f.text.isVisible());
}

void TestFormRClick::saveCopiesThePicture_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("answer"); // under the home, "" cancels
    QTest::addColumn<bool>("asked");
    QTest::addColumn<QString>("folder"); // current folder afterwards
    QTest::newRow("over an older copy") << "C:\\PICS\\A.JPG"
                                        << "keep/old.jpg" << true << "C:\\keep";
    QTest::newRow("cancelled") << "C:\\pics\\a.jpg"
                               << "" << true << "C:\\";
    QTest::newRow("the page's file is gone") << "C:\\pics\\gone.jpg"
                                             << "keep/old.jpg" << false << "C:\\";
}

void TestFormRClick::saveCopiesThePicture()
{
    PopupFixture f;
    f.home.writeFile(QStringLiteral("keep/old.jpg"), "older");
    f.pageFile = FETCH(QString, file);
    const QString answer = FETCH(QString, answer);
    const bool asked = FETCH(bool, asked);
    if (!answer.isEmpty())
        f.ui.fileNames.enqueue(f.home.native(answer));
    f.click(&f.picture, QStringLiteral("CommandSave"));
    QCOMPARE(f.ui.dialogFilters, asked ? QStringList{"(*.*)|*.*"} : QStringList{});
    if (asked)
        QCOMPARE(f.ui.dialogStarts, QStringList{f.home.native(QStringLiteral("pics/a.jpg"))});
    QCOMPARE(f.home.readFile(QStringLiteral("keep/old.jpg")),
             QByteArray(asked && !answer.isEmpty() ? "JPEG bytes of a" : "older"));
    QCOMPARE(f.ui.beeps, asked ? 0 : 1);
    QCOMPARE(f.home.fs.curDir(), FETCH(QString, folder));
}

QTEST_MAIN(TestFormRClick)
#include "tst_FormRClick.moc"
