// The two windows of SendToList.txt driven by their object names: FormSendTo
// with its send-to list and the command line handed to the launcher, and
// FormSendApliSet with the file's text for editing, the program boxes and
// the path they give, the save with its bytes and beeps, and the reset.
#include "platform/FileBoxes.h"
#include "platform/TextCodec.h"
#include "settings/FormSendApliSet.h"
#include "settings/FormSendTo.h"
#include "settings/SendToList.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QComboBox>
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

QStringList texts(const QAbstractItemModel* model)
{
    QStringList rows;
    for (int row = 0; row < model->rowCount(); ++row)
        rows << model->index(row, 0).data().toString();
    return rows;
}

struct Windows {
    BasicsFixture f;
    FormSendTo sendTo{f.basics};
    FormSendApliSet apliSet{f.basics};
    QString mainFile;
    int settingsShown = 0;

    Windows()
    {
        sendTo.links.currentMainFile = [this] { return mainFile; };
        sendTo.links.showSendApliSet = [this] { ++settingsShown; };
    }
    void writeList(const QString& text)
    {
        f.home.writeFile(kSendToList, text::encodeCp932(text).value());
    }
    static void click(QWidget& form, const char* button)
    {
        QTest::mouseClick(form.findChild<QPushButton*>(button), Qt::LeftButton);
    }
    QComboBox* combo() { return sendTo.findChild<QComboBox*>("ComboSend"); }
    QPlainTextEdit* text1() { return apliSet.findChild<QPlainTextEdit*>("Text1"); }
    QLineEdit* textDirectry() { return apliSet.findChild<QLineEdit*>("TextDirectry"); }
    FileListBox* file1() { return apliSet.findChild<FileListBox*>("File1"); }
    QRadioButton* option() { return apliSet.findChild<QRadioButton*>("OptionZenbuHyouji"); }
    // A file under C:; a program when it has the exec bit.
    void put(const QString& relative, bool program)
    {
        const QString path = f.home.writeFile(relative, "#!/bin/sh\n");
        QFile::setPermissions(path,
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner |
                                  (program ? QFileDevice::ExeOwner : QFileDevice::Permission()));
    }
    void clickFile(const QString& name)
    {
        const QList<QListWidgetItem*> found = file1()->findItems(name, Qt::MatchExactly);
        QCOMPARE(found.size(), 1);
        file1()->scrollToItem(found.first());
        QTest::mouseClick(file1()->viewport(), Qt::LeftButton, {},
                          file1()->visualItemRect(found.first()).center());
    }
};

} // namespace

class TestFormSendTo : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void fillsComboSend_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("items");

        QTest::newRow("trimmed, cut at the first comma")
            << "C:\\Tools\\paint\r\n   C:\\My Tools\\view  , anything\r\n"
            << QStringList{"C:\\Tools\\paint", "C:\\My Tools\\view"};
        QTest::newRow("comments and empty lines")
            << "'C:\\hidden\r\n\r\n    \r\n  'C:\\also hidden\r\nZ:\\usr\\bin\\gimp"
            << QStringList{"Z:\\usr\\bin\\gimp"};
        QTest::newRow("forcing line to a program")
            << "C:\\WINDOWS\\EXPLORER.EXE, AUTO_START,.JPG,.BMP"
            << QStringList{"C:\\WINDOWS\\EXPLORER.EXE"};
        QTest::newRow("show words in any case")
            << "SHOW_NON,AUTO_START,.BAT\r\nshow_text,AUTO_START,.LOG\r\nShow_Picture\r\n"
               "SHOW_MEDIAPL2,AUTO_START,.AVI\r\nSHOW_CDMUSIC,AUTO_START,.CDA\r\nC:\\Tools\\paint"
            << QStringList{"C:\\Tools\\paint"};
        // Looked for in the whole name before the comma, not only behind it.
        QTest::newRow("show word in a path, not after it")
            << "C:\\show_non_tools\\x\r\nC:\\Tools\\paint,SHOW_TEXT"
            << QStringList{"C:\\Tools\\paint"};
    }
    void fillsComboSend()
    {
        Windows w;
        // Each load reads the file again.
        w.writeList("C:\\Tools\\old\r\nC:\\Tools\\older");
        w.sendTo.showForm();
        QCOMPARE(texts(w.combo()->model()), (QStringList{"C:\\Tools\\old", "C:\\Tools\\older"}));
        w.sendTo.unload();
        w.writeList(FETCH(QString, text));
        w.sendTo.showForm();
        QTEST(texts(w.combo()->model()), "items");
        QCOMPARE(w.combo()->currentText(), QString());
        QVERIFY(!w.f.clock.waits.contains(100)); // the file was there: nothing written
    }

    void commandDoHandsTheCommandLine_data()
    {
        QTest::addColumn<int>("chosen"); // item chosen, or -1 for typed text
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("mainFile");
        QTest::addColumn<QStringList>("commandLines");

        const auto row = [](const char* name, int chosen, const char* typed, const char* mainFile,
                            const QStringList& commandLines) {
            QTest::newRow(name) << chosen << QString(typed) << QString(mainFile) << commandLines;
        };
        row("blanks in both names, unquoted", 1, "", "C:\\my pics\\b c.jpg",
            {"C:\\My Tools\\view C:\\my pics\\b c.jpg"});
        row("typed and padded, trimmed", -1, "  Z:\\usr\\bin\\gimp  ", "  C:\\a.jpg  ",
            {"Z:\\usr\\bin\\gimp C:\\a.jpg"});
        row("no page: the blank stays", 0, "", "", {"C:\\Tools\\paint "});
        row("no program: nothing starts", -1, "   ", "C:\\tools\\run.sh", {});
    }
    void commandDoHandsTheCommandLine()
    {
        QFETCH(int, chosen);
        Windows w;
        w.writeList("C:\\Tools\\paint\r\nC:\\My Tools\\view ,x");
        w.sendTo.showForm();
        if (chosen >= 0)
            w.combo()->setCurrentIndex(chosen);
        else
            w.combo()->setEditText(FETCH(QString, typed));
        w.mainFile = FETCH(QString, mainFile);
        Windows::click(w.sendTo, "CommandDo");
        if (chosen == 1)
            saveShot(&w.sendTo, QStringLiteral("FormSendTo_chosen"));
        Windows::click(w.sendTo, "CommandSetting");
        QCOMPARE(w.settingsShown, 1);
        QTEST(w.f.launcher.commandLines, "commandLines");
        QVERIFY(w.f.launcher.opened.isEmpty());
    }

    void optionZenbuHyoujiSwitchesTheFiles()
    {
        Windows w;
        w.put("my viewer", true);
        w.put("run.EXE", false); // a Windows name, but no program here
        w.put("readme.txt", false);
        w.put("setup.sh", true);
        w.apliSet.showForm();
        QCOMPARE(texts(w.file1()->model()), (QStringList{"my viewer", "setup.sh"}));
        w.clickFile("my viewer");
        QCOMPARE(w.textDirectry()->text(), QStringLiteral("C:\\my viewer")); // one separator

        w.option()->click();
        QCOMPARE(w.option()->text(), QStringLiteral("Exe表示"));
        QCOMPARE(texts(w.file1()->model()),
                 (QStringList{"my viewer", "readme.txt", "run.EXE", "setup.sh"}));
        w.clickFile("readme.txt");
        QCOMPARE(w.textDirectry()->text(), QStringLiteral("C:\\readme.txt"));
        saveShot(&w.apliSet, QStringLiteral("FormSendApliSet_all"));

        // A new load starts with the programs again.
        w.apliSet.unload();
        w.apliSet.showForm();
        QCOMPARE(w.option()->text(), QStringLiteral("全部表示"));
        QCOMPARE(texts(w.file1()->model()), (QStringList{"my viewer", "setup.sh"}));
    }

    // Loaded, edited and saved: the text shown, then the bytes written.
    void commandDoWritesTheFile_data()
    {
        QTest::addColumn<QByteArray>("file"); // null: no file at load
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray sjis(
            "'\x95\x5C\x8E\xA6\r\nC:\\My Tools\\view\r\n\r\nSHOW_NON,AUTO_START,.BAT\r\n");
        const QString text = u"'表示\nC:\\My Tools\\view\n\nSHOW_NON,AUTO_START,.BAT"_s;
        const QString defaults = defaultSendToListLines().join("\n");
        const QByteArray old("old\r\n");
        QTest::newRow("Shift-JIS, CR LF, as loaded") << sjis << text << text << sjis;
        QTest::newRow("missing: the default")
            << QByteArray() << defaults << defaults << defaultBytes();
        QTest::newRow("last line break: an empty line")
            << old << u"old"_s << u"C:\\Tools\\paint\n"_s << QByteArray("C:\\Tools\\paint\r\n\r\n");
        QTest::newRow("empty text") << old << u"old"_s << QString() << QByteArray("\r\n");
    }
    void commandDoWritesTheFile()
    {
        QFETCH(QByteArray, file);
        Windows w;
        if (!file.isNull())
            w.f.home.writeFile(kSendToList, file);
        QStringList events;
        w.apliSet.onSaved = [&] {
            events << QStringLiteral("saved after %1 beeps, %2 ms, %3 bytes")
                          .arg(w.f.ui.beeps)
                          .arg(w.f.clock.totalWaited())
                          .arg(w.f.home.readFile(kSendToList).size());
        };
        w.apliSet.showForm();
        QTEST(w.text1()->toPlainText(), "shown");
        QCOMPARE(w.f.home.readFile(kSendToList), file.isNull() ? defaultBytes() : file);
        w.text1()->setPlainText(FETCH(QString, typed));
        Windows::click(w.apliSet, "CommandDo");
        QTEST(w.f.home.readFile(kSendToList), "bytes");
        QCOMPARE(w.f.ui.beeps, 21);
        QVERIFY(w.f.clock.waits.endsWith(300));
        QCOMPARE(events, QStringList{QStringLiteral("saved after 21 beeps, %1 ms, %2 bytes")
                                         .arg(w.f.clock.totalWaited())
                                         .arg(FETCH(QByteArray, bytes).size())});
        QVERIFY(w.f.ui.boxes.isEmpty());
    }

    void commandResetLetsTheDefaultComeBack()
    {
        Windows w;
        w.f.home.writeFile(kSendToList, "C:\\Tools\\paint\r\n");
        w.apliSet.showForm();
        Windows::click(w.apliSet, "CommandReset");
        QVERIFY(!w.f.home.exists(kSendToList));
        QCOMPARE(w.text1()->toPlainText(), QStringLiteral("C:\\Tools\\paint")); // left for editing
        Windows::click(w.apliSet, "CommandReset");                              // nothing to delete
        QVERIFY(!w.f.home.exists(kSendToList));
        QVERIFY(w.f.ui.boxes.isEmpty());
        Windows::click(w.apliSet, "CommandExit");
        QVERIFY(!w.apliSet.isVisible());
        QVERIFY(!w.apliSet.isLoaded());

        w.sendTo.showForm();
        QCOMPARE(texts(w.combo()->model()), QStringList{});
        QCOMPARE(w.f.home.readFile(kSendToList), defaultBytes());
    }
};

QTEST_MAIN(TestFormSendTo)
#include "tst_FormSendTo.moc"
