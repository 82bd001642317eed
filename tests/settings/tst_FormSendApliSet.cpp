// FormSendApliSet driven by its object names: the file's text for editing,
// the program boxes and the path they give, the save with its bytes and
// beeps, and the reset that lets the default come back.
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileBoxes.h"
#include "platform/TextCodec.h"
#include "settings/AutoStartTable.h"
#include "settings/FormSendApliSet.h"
#include "settings/FormSendTo.h"
#include "settings/SendToList.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kSendToList = QStringLiteral("Lumentas/ForProgramRun_KDR/SendToList.txt");

QByteArray defaultBytes()
{
    return text::encodeForFile(defaultSendToListLines().join("\r\n") + "\r\n");
}

struct Window {
    BasicsFixture f;
    FormSendApliSet form{f.basics};

    QPushButton* button(const char* name) { return form.findChild<QPushButton*>(name); }
    QPlainTextEdit* text1() { return form.findChild<QPlainTextEdit*>("Text1"); }
    QLineEdit* textDirectry() { return form.findChild<QLineEdit*>("TextDirectry"); }
    FileListBox* file1() { return form.findChild<FileListBox*>("File1"); }
    QRadioButton* option() { return form.findChild<QRadioButton*>("OptionZenbuHyouji"); }
    QStringList files()
    {
        QStringList names;
        for (int i = 0; i < file1()->count(); ++i)
            names << file1()->item(i)->text();
        return names;
    }
    // A file under C:; a program when it has the exec bit.
    void put(const QString& relative, bool program)
    {
        const QString path = f.home.writeFile(relative, "#!/bin/sh\n");
        QFile::Permissions permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
        if (program)
            permissions |= QFileDevice::ExeOwner;
        QFile::setPermissions(path, permissions);
    }
    void clickFile(const QString& name)
    {
        const QList<QListWidgetItem*> found = file1()->findItems(name, Qt::MatchExactly);
        QVERIFY(found.size() == 1);
        file1()->scrollToItem(found.first());
        QTest::mouseClick(file1()->viewport(), Qt::LeftButton, {},
                          file1()->visualItemRect(found.first()).center());
    }
};

} // namespace

class TestFormSendApliSet : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void controls();
    void loadShowsTheFileText();
    void missingFileShowsTheDefault();
    void file1ClickFillsTextDirectry_data();
    void file1ClickFillsTextDirectry();
    void optionZenbuHyoujiSwitchesTheFiles();
    void commandDoWritesTheFile_data();
    void commandDoWritesTheFile();
    void savedTextRoutesTheNextPage();
    void commandResetLetsTheDefaultComeBack();
};

void TestFormSendApliSet::controls()
{
    Window w;
    QCOMPARE((QStringList{w.form.windowTitle(), w.button("CommandDo")->text(),
                          w.button("CommandReset")->text(), w.button("CommandExit")->text(),
                          w.option()->text(), w.file1()->pattern()}),
             (QStringList{"ｱﾌﾟﾘｹｰｼｮﾝ設定", "設定", "初期設定", "終了", "全部表示", "*.exe"}));
    w.form.showForm();
    QTest::mouseClick(w.button("CommandExit"), Qt::LeftButton);
    QVERIFY(!w.form.isVisible());
    QVERIFY(!w.form.isLoaded());
}

void TestFormSendApliSet::loadShowsTheFileText()
{
    Window w;
    w.f.home.writeFile(kSendToList, "'\x95\x5C\x8E\xA6\r\nC:\\Tools\\paint\r\n\r\nSHOW_NON,"
                                    "AUTO_START,.BAT\r\n");
    w.form.showForm();
    QCOMPARE(w.text1()->toPlainText(),
             QStringLiteral("'表示\nC:\\Tools\\paint\n\nSHOW_NON,AUTO_START,.BAT"));
    QVERIFY(w.f.ui.boxes.isEmpty());
}

void TestFormSendApliSet::missingFileShowsTheDefault()
{
    Window w;
    w.form.showForm();
    QCOMPARE(w.f.home.readFile(kSendToList), defaultBytes());
    QCOMPARE(w.text1()->toPlainText(), defaultSendToListLines().join("\n"));
}

void TestFormSendApliSet::file1ClickFillsTextDirectry_data()
{
    QTest::addColumn<QString>("folder"); // current folder at load
    QTest::addColumn<QString>("file");   // under C:
    QTest::addColumn<QString>("path");

    QTest::newRow("at the drive root, one separator")
        << u"C:\\"_s << u"viewer"_s << u"C:\\viewer"_s;
    QTest::newRow("blanks kept") << u"C:\\my tools"_s << u"my tools/my viewer"_s
                                 << u"C:\\my tools\\my viewer"_s;
}

void TestFormSendApliSet::file1ClickFillsTextDirectry()
{
    QFETCH(QString, file);
    Window w;
    w.put(file, true);
    QVERIFY(w.f.home.fs.chDir(FETCH(QString, folder)));
    w.form.showForm();
    w.clickFile(file.section('/', -1));
    QTEST(w.textDirectry()->text(), "path");
}

void TestFormSendApliSet::optionZenbuHyoujiSwitchesTheFiles()
{
    Window w;
    w.put("tools/viewer", true);
    w.put("tools/run.EXE", false); // a Windows name, but no program here
    w.put("tools/readme.txt", false);
    w.put("tools/setup.sh", true);
    w.f.home.fs.chDir("C:\\tools");
    w.form.showForm();
    QCOMPARE(w.files(), (QStringList{"setup.sh", "viewer"}));
    saveShot(&w.form, QStringLiteral("FormSendApliSet_programs"));

    w.option()->click();
    QCOMPARE(w.option()->text(), QStringLiteral("Exe表示"));
    QCOMPARE(w.files(), (QStringList{"readme.txt", "run.EXE", "setup.sh", "viewer"}));
    w.clickFile("readme.txt");
    QCOMPARE(w.textDirectry()->text(), QStringLiteral("C:\\tools\\readme.txt"));
    saveShot(&w.form, QStringLiteral("FormSendApliSet_all"));

    // A new load starts with the programs again.
    w.form.unload();
    w.form.showForm();
    QCOMPARE(w.option()->text(), QStringLiteral("全部表示"));
    QCOMPARE(w.files(), (QStringList{"setup.sh", "viewer"}));
}

void TestFormSendApliSet::commandDoWritesTheFile_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("Shift-JIS with CR LF")
        << u"'表示\nC:\\My Tools\\view\n\nSHOW_NON,AUTO_START,.BAT"_s
        << QByteArray(
               "'\x95\x5C\x8E\xA6\r\nC:\\My Tools\\view\r\n\r\nSHOW_NON,AUTO_START,.BAT\r\n");
    QTest::newRow("a last line break gives an empty line")
        << u"C:\\Tools\\paint\n"_s << QByteArray("C:\\Tools\\paint\r\n\r\n");
    QTest::newRow("empty text") << QString() << QByteArray("\r\n");
}

void TestFormSendApliSet::commandDoWritesTheFile()
{
    Window w;
    w.f.home.writeFile(kSendToList, "old\r\n");
    QStringList events;
    w.form.onSaved = [&] {
        events << QStringLiteral("saved after %1 beeps, %2 ms")
                      .arg(w.f.ui.beeps)
                      .arg(w.f.clock.totalWaited());
    };
    w.form.showForm();
    w.text1()->setPlainText(FETCH(QString, typed));
    QTest::mouseClick(w.button("CommandDo"), Qt::LeftButton);
    QTEST(w.f.home.readFile(kSendToList), "bytes");
    QCOMPARE(w.f.ui.beeps, 21);
    QVERIFY(w.f.clock.waits.endsWith(300));
    QCOMPARE(
        events,
        QStringList{QStringLiteral("saved after 21 beeps, %1 ms").arg(w.f.clock.totalWaited())});
    QVERIFY(w.f.ui.boxes.isEmpty());
}

void TestFormSendApliSet::savedTextRoutesTheNextPage()
{
    Window w;
    AutoStartTable table;
    w.form.onSaved = [&] { CheckAuto_With(w.f.basics, table); };
    w.form.showForm();
    // The default text, unchanged, is written back byte for byte.
    QTest::mouseClick(w.button("CommandDo"), Qt::LeftButton);
    QCOMPARE(w.f.home.readFile(kSendToList), defaultBytes());

    w.text1()->appendPlainText(QStringLiteral("show_text, auto_start, 日記"));
    QTest::mouseClick(w.button("CommandDo"), Qt::LeftButton);
    QString kind;
    QCOMPARE(CheckAutoWith(QStringLiteral("C:\\日記\\a.jpg"), table, kind),
             QStringLiteral("show_text"));
    QCOMPARE(CheckAutoWith(QStringLiteral("C:\\a.BAT"), table, kind), QStringLiteral("SHOW_NON"));
}

void TestFormSendApliSet::commandResetLetsTheDefaultComeBack()
{
    Window w;
    FormSendTo sendTo(w.f.basics);
    w.f.home.writeFile(kSendToList, "C:\\Tools\\paint\r\n");
    w.form.showForm();
    QTest::mouseClick(w.button("CommandReset"), Qt::LeftButton);
    QVERIFY(!w.f.home.exists(kSendToList));
    QCOMPARE(w.text1()->toPlainText(), QStringLiteral("C:\\Tools\\paint")); // left for editing
    QTest::mouseClick(w.button("CommandReset"), Qt::LeftButton);            // nothing to delete
    QVERIFY(!w.f.home.exists(kSendToList));
    QVERIFY(w.f.ui.boxes.isEmpty());

    sendTo.showForm();
    QCOMPARE(w.f.home.readFile(kSendToList), defaultBytes());
}

QTEST_MAIN(TestFormSendApliSet)
#include "tst_FormSendApliSet.moc"
