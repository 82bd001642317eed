// FormSendTo driven by its object names: the send-to list read from
// SendToList.txt (the default written when it is missing), and the command
// line handed to the launcher.
#include "platform/TextCodec.h"
#include "settings/FormSendTo.h"
#include "settings/SendToList.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QComboBox>
#include <QPushButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

const QString kSendToList = QStringLiteral("Lumentas/ForProgramRun_KDR/SendToList.txt");

QByteArray defaultBytes()
{
    return text::encodeForFile(defaultSendToListLines().join("\r\n") + "\r\n");
}

struct Window {
    BasicsFixture f;
    FormSendTo form{f.basics};
    QString mainFile;
    int settingsShown = 0;

    Window()
    {
        form.links.currentMainFile = [this] { return mainFile; };
        form.links.showSendApliSet = [this] { ++settingsShown; };
    }
    void writeList(const QString& text)
    {
        f.home.writeFile(kSendToList, text::encodeCp932(text).value());
    }
    QComboBox* combo() { return form.findChild<QComboBox*>("ComboSend"); }
    QPushButton* button(const char* name) { return form.findChild<QPushButton*>(name); }
    QStringList items()
    {
        QStringList texts;
        for (int i = 0; i < combo()->count(); ++i)
            texts << combo()->itemText(i);
        return texts;
    }
};

} // namespace

class TestFormSendTo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void controls();
    void fillsComboSend_data();
    void fillsComboSend();
    void loadingAgainReadsTheFileAgain();
    void commandDoHandsTheCommandLine_data();
    void commandDoHandsTheCommandLine();
};

void TestFormSendTo::controls()
{
    Window w;
    QCOMPARE((QStringList{w.form.windowTitle(), w.combo()->currentText(),
                          w.button("CommandDo")->text(), w.button("CommandSetting")->text()}),
             (QStringList{"実行ｱﾌﾟﾘｹｰｼｮﾝ選択", "ComboSend", "Send", "設定"}));
}

void TestFormSendTo::fillsComboSend_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("items");

    QTest::newRow("programs, trimmed and cut at the first comma")
        << "C:\\Tools\\paint\r\n   C:\\My Tools\\view  , anything\r\n"
        << QStringList{"C:\\Tools\\paint", "C:\\My Tools\\view"};
    QTest::newRow("comments and empty lines left out")
        << "'C:\\hidden\r\n\r\n    \r\n  'C:\\also hidden\r\nZ:\\usr\\bin\\gimp"
        << QStringList{"Z:\\usr\\bin\\gimp"};
    QTest::newRow("a forcing line to a program gives its name")
        << "C:\\WINDOWS\\EXPLORER.EXE, AUTO_START,.JPG,.BMP"
        << QStringList{"C:\\WINDOWS\\EXPLORER.EXE"};
    QTest::newRow("the show's own words in any case are left out")
        << "SHOW_NON,AUTO_START,.BAT\r\nshow_text,AUTO_START,.LOG\r\nShow_Picture\r\n"
           "SHOW_MEDIAPL2,AUTO_START,.AVI\r\nSHOW_CDMUSIC,AUTO_START,.CDA\r\nC:\\Tools\\paint"
        << QStringList{"C:\\Tools\\paint"};
    QTest::newRow("a word after the comma doesn't count")
        << "C:\\Tools\\paint,SHOW_TEXT" << QStringList{"C:\\Tools\\paint"};
    QTest::newRow("a show word inside a path counts")
        << "C:\\show_non_tools\\x\r\nC:\\Tools\\paint" << QStringList{"C:\\Tools\\paint"};
    QTest::newRow("Shift-JIS names") << "C:\\ツール\\表示" << QStringList{"C:\\ツール\\表示"};
}

void TestFormSendTo::fillsComboSend()
{
    Window w;
    w.writeList(FETCH(QString, text));
    w.form.showForm();
    QTEST(w.items(), "items");
    QCOMPARE(w.combo()->currentText(), QString());
    QVERIFY(!w.f.clock.waits.contains(100)); // the file was there: nothing written
}

void TestFormSendTo::loadingAgainReadsTheFileAgain()
{
    Window w;
    w.writeList("C:\\Tools\\paint");
    w.form.showForm();
    QCOMPARE(w.items(), QStringList{"C:\\Tools\\paint"});
    w.form.unload();
    w.writeList("C:\\Tools\\paint\r\nC:\\Tools\\view");
    w.form.showForm();
    QCOMPARE(w.items(), (QStringList{"C:\\Tools\\paint", "C:\\Tools\\view"}));
    // Removed while unloaded: the default comes back.
    w.form.unload();
    QFile::remove(w.f.home.native(kSendToList));
    w.form.showForm();
    QCOMPARE(w.items(), QStringList{});
    QCOMPARE(w.f.home.readFile(kSendToList), defaultBytes());
}

void TestFormSendTo::commandDoHandsTheCommandLine_data()
{
    QTest::addColumn<int>("chosen"); // item chosen, or -1 for typed text
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("mainFile");
    QTest::addColumn<QStringList>("commandLines");

    const auto row = [](const char* name, int chosen, const char* typed, const char* mainFile,
                        const QStringList& commandLines) {
        QTest::newRow(name) << chosen << QString(typed) << QString(mainFile) << commandLines;
    };
    row("chosen program", 0, "", "C:\\pics\\a.jpg", {"C:\\Tools\\paint C:\\pics\\a.jpg"});
    row("blanks in both names, unquoted", 1, "", "C:\\my pics\\b c.jpg",
        {"C:\\My Tools\\view C:\\my pics\\b c.jpg"});
    row("typed program and padded page, trimmed", -1, "  Z:\\usr\\bin\\gimp  ", "  C:\\a.jpg  ",
        {"Z:\\usr\\bin\\gimp C:\\a.jpg"});
    row("no page: the blank stays", 0, "", "", {"C:\\Tools\\paint "});
    row("no program: nothing starts", -1, "   ", "C:\\tools\\run.sh", {});
}

void TestFormSendTo::commandDoHandsTheCommandLine()
{
    QFETCH(int, chosen);
    Window w;
    w.writeList("C:\\Tools\\paint\r\nC:\\My Tools\\view ,x");
    w.form.showForm();
    if (chosen >= 0)
        w.combo()->setCurrentIndex(chosen);
    else
        w.combo()->setEditText(FETCH(QString, typed));
    w.mainFile = FETCH(QString, mainFile);
    QTest::mouseClick(w.button("CommandDo"), Qt::LeftButton);
    QTEST(w.f.launcher.commandLines, "commandLines");
    QVERIFY(w.f.launcher.opened.isEmpty());
    if (chosen == 1)
        saveShot(&w.form, QStringLiteral("FormSendTo_chosen"));
}

QTEST_MAIN(TestFormSendTo)
#include "tst_FormSendTo.moc"
