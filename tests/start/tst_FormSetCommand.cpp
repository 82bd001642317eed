// The word windows in the whole program: FormSetCommand (opened modally by
// the editor's CommandSetCommand) stores CommandList.txt and the editor's
// rows are rebuilt in the new words; FormWordSet (opened by CommandExtSet or
// CommandWordSet of the selection) stores ExtType.dat, and the captions of
// the selection's Check1 follow at once, or SerchWordList.txt, and the word
// combo follows; both put their default back.
#include "EditorApp.h"
#include "platform/TextCodec.h"
#include "settings/FormSetCommand.h"
#include "settings/FormWordSet.h"
#include "support/Fetch.h"
#include "support/Shots.h"

#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QTimer>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const char* const kRun = "Lumentas/ForProgramRun_KDR/";

QString settingsText(const EditorApp& a, const char* name)
{
    return text::decode(a.home.readFile(QLatin1String(kRun) + QLatin1String(name)));
}

// The Text1 of a word window, as the user sees it.
QPlainTextEdit* wordText(QWidget* window)
{
    return window->findChild<QPlainTextEdit*>(u"Text1"_s);
}

void press(QWidget* window, const char* name)
{
    window->findChild<QPushButton*>(QLatin1String(name))->click();
}

QStringList captions(const EditorApp& a)
{
    QStringList names;
    for (QCheckBox* box : a.select->Check1)
        names << box->text();
    return names;
}

} // namespace

class TestFormSetCommand : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void commandWordsRebuildTheEditor();
    void extensionSlotsBecomeCaptions_data();
    void extensionSlotsBecomeCaptions();
    void searchWordsFillTheCombo();
};

void TestFormSetCommand::commandWordsRebuildTheEditor()
{
    EditorApp a;
    QStringList seen;
    // The window is modal: the user works in it while CommandSetCommand waits.
    QTimer::singleShot(0, [&] {
        auto* words = a.app->forms().existing(u"FormSetCommand"_s);
        QVERIFY(words && words->isVisible());
        QPlainTextEdit* text = wordText(words);
        QVERIFY(text->toPlainText().contains(u"DELAY = オクレ"_s));
        text->setPlainText(text->toPlainText().replace(u"DELAY = オクレ"_s, u"DELAY = マツ"_s));
        saveShot(words, u"set_command"_s);
        press(words, "CommandDo");
        seen << a.record(1);
        press(words, "CommandInitialSet");
        seen << wordText(words)->toPlainText().section(u"DELAY = "_s, 1, 1).section(u'\n', 0, 0);
        press(words, "CommandExit");
    });
    a.press("CommandSetCommand");
    QVERIFY(settingsText(a, "CommandList.txt").contains(u"DELAY = オクレ\r\n"_s));
    // Stored, the rows were made in the English words and then in the user's,
    // which now hold the new word; the default came back after.
    QCOMPARE(seen, (QStringList{u"C:\\pics\\a.jpg @マツ=3 デス"_s, u"オクレ"_s}));
    QVERIFY(!a.app->forms().existing(u"FormSetCommand"_s)->isVisible());
}

void TestFormSetCommand::extensionSlotsBecomeCaptions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("captions");
    const QStringList defaults{"BMP", "JPG", "ICO", "XV3", "CO",  "WRL", "NFF", "WAV", "MID",
                               "MOV", "MPG", "AVI", "TXT", "DAT", "EXE", "HLP", "LST"};
    QStringList png = defaults;
    png[0] = u"PNG"_s;
    QTest::newRow("the first slot changed")
        << u"'mine\r\n\r\npng = TEXT\r\n"_s + defaults.mid(1).join(u" =\r\n"_s) + u" =\r\n"_s
        << png;
    QStringList three = defaults;
    three[0] = u"GIF"_s;
    three[1] = u"TIF"_s;
    three[2] = u"?"_s;
    QTest::newRow("three slots: the rest stay") << u"GIF =\r\nTIF =\r\nno equals\r\n"_s << three;
}

void TestFormSetCommand::extensionSlotsBecomeCaptions()
{
    EditorApp a{QString()}; // the selection window, no list in it
    a.select->CommandExtSet->click();
    auto* words = static_cast<FormWordSet*>(a.app->forms().existing(u"FormWordSet"_s));
    QVERIFY(words->isVisible());
    QVERIFY(wordText(words)->toPlainText().contains(u"TXT = TEXT"_s));
    const QString text = FETCH(QString, text);
    wordText(words)->setPlainText(QString(text).replace(u"\r\n"_s, u"\n"_s));
    const int beeps = a.ui.beeps;
    press(words, "CommandDo");
    QCOMPARE(a.ui.beeps - beeps, 21); // the burst
    QCOMPARE(settingsText(a, "ExtType.dat").trimmed(), text.trimmed());
    QCOMPARE(captions(a), FETCH(QStringList, captions));
    // The default comes back into the file and the window.
    press(words, "CommandReset");
    QVERIFY(settingsText(a, "ExtType.dat").contains(u"\r\nBMP =\r\n"_s));
    QVERIFY(wordText(words)->toPlainText().contains(u"\nBMP =\n"_s));
}

void TestFormSetCommand::searchWordsFillTheCombo()
{
    EditorApp a{QString()}; // the selection window, no list in it
    a.select->CommandWordSet->click();
    auto* words = static_cast<FormWordSet*>(a.app->forms().existing(u"FormWordSet"_s));
    QVERIFY(words->isVisible());
    // The file is written with its default words on this first need.
    const QString before = wordText(words)->toPlainText();
    QVERIFY(before.contains(u"\nZIG\n"_s));
    wordText(words)->setPlainText(u"'words\n海\n山\n"_s);
    press(words, "CommandDo");
    QCOMPARE(settingsText(a, "SerchWordList.txt").trimmed(), u"'words\r\n海\r\n山"_s);
    QComboBox* combo = a.select->ComboWordSerch;
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->itemText(1), u"山"_s);
    // Reset: the default words in the file, the window and the combo.
    press(words, "CommandReset");
    QCOMPARE(wordText(words)->toPlainText(), before);
    QVERIFY(combo->count() > 2);
    // Opened for the extensions, the same window reads the other file.
    words->findChild<QPushButton*>(u"CommandExit"_s)->click();
    a.select->CommandExtSet->click();
    QVERIFY(wordText(words)->toPlainText().contains(u"TXT = TEXT"_s));
}

QTEST_MAIN(TestFormSetCommand)
#include "tst_FormSetCommand.moc"
