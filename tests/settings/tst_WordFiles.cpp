// The word files edited as whole texts: the command words rebuild the
// editor's rows in both word sets, the extension slots give the captions of
// the file selection, the search words are stored; the defaults come back;
// a file that can't be written stays whole and nothing follows from it.
#include "list/CommandWords.h"
#include "list/ExtTable.h"
#include "platform/TextCodec.h"
#include "settings/WordFiles.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"
#include "support/OddFiles.h"

#include <QFile>
#include <QTest>

using namespace lumen;
using namespace lumen::test;
using namespace Qt::StringLiterals;

namespace {

const QString kRun = u"Lumentas/ForProgramRun_KDR/"_s;

// The settings folder closed for writing while `f` runs (root included).
template <typename F> auto withSettingsLocked(BasicsFixture& fixture, F f)
{
    const QString folder = fixture.home.native(kRun);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner);
    const PermissionBitsHold hold;
    const auto result = f();
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return result;
}

const QStringList kDefaultSlots{"BMP", "JPG", "ICO", "XV3", "CO",  "WRL", "NFF", "WAV", "MID",
                                "MOV", "MPG", "AVI", "TXT", "DAT", "EXE", "HLP", "LST"};

} // namespace

class TestWordFiles : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void commandWordsRebuildInBothSets();
    void commandListReset();
    void extensionSlots_data();
    void extensionSlots();
    void extensionReset();
    void searchWords();
    void unwritableFilesStayWhole_data();
    void unwritableFilesStayWhole();
};

void TestWordFiles::commandWordsRebuildInBothSets()
{
    BasicsFixture f;
    PutCommandToArray(f.basics);
    QVERIFY(wordFileText(f.basics, commandListFile(f.basics)).contains(u"WITH = ト"_s));
    QString words = defaultCommandListLines().join(u"\r\n"_s);
    words.replace(u"WITH = ト"_s, u"WITH = ツキ"_s);
    QStringList seen; // the WITH word at each rebuild
    QVERIFY(storeCommandList(f.basics, words, [&] { seen << f.state.CommandWord.value(kWith); }));
    QCOMPARE(f.home.readFile(kRun + "CommandList.txt"), text::encodeForFile(words + "\r\n"));
    QCOMPARE(seen, (QStringList{"WITH", "ツキ"}));
    QCOMPARE(f.ui.beeps, 1);
}

void TestWordFiles::commandListReset()
{
    BasicsFixture f;
    PutCommandToArray(f.basics);
    const QByteArray first = f.home.readFile(kRun + "CommandList.txt");
    f.home.writeFile(kRun + "CommandList.txt", "WITH = X\r\n");
    resetCommandList(f.basics);
    QCOMPARE(f.home.readFile(kRun + "CommandList.txt"), first);
}

void TestWordFiles::extensionSlots_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("names");
    QStringList three = kDefaultSlots;
    three[0] = "PNG";
    three[1] = "WEBP";
    three[2] = "?"; // a line without "=" takes a slot as "?"
    QTest::newRow("three slots: the rest stay")
        << "png = \r\nWebp = TEXT\r\n' note\r\ngif" << three;
    QTest::newRow("no slot at all") << "' only a note" << kDefaultSlots;
}

void TestWordFiles::extensionSlots()
{
    BasicsFixture f;
    PutExtTypeToArray(f.basics);
    ReadExtTypeToArray(f.basics);
    const auto names = storeExtType(f.basics, FETCH(QString, text));
    QVERIFY(names);
    QCOMPARE(*names, FETCH(QStringList, names));
    QCOMPARE(f.home.readFile(kRun + "ExtType.dat"),
             text::encodeForFile(FETCH(QString, text) + "\r\n"));
}

void TestWordFiles::extensionReset()
{
    BasicsFixture f;
    PutExtTypeToArray(f.basics);
    const QByteArray first = f.home.readFile(kRun + "ExtType.dat");
    QVERIFY(storeExtType(f.basics, u"PNG ="_s));
    resetExtType(f.basics);
    QCOMPARE(f.home.readFile(kRun + "ExtType.dat"), first);
}

void TestWordFiles::searchWords()
{
    BasicsFixture f;
    QCOMPARE(wordFileText(f.basics, searchWordFile(f.basics)), QString()); // missing: nothing
    QVERIFY(storeSearchWords(f.basics, u"花\r\n山"_s));
    QCOMPARE(f.home.readFile(kRun + "SerchWordList.txt"), text::encodeForFile(u"花\r\n山\r\n"_s));
}

void TestWordFiles::unwritableFilesStayWhole_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("CommandList.txt") << "CommandList.txt";
    QTest::newRow("ExtType.dat") << "ExtType.dat";
    QTest::newRow("SerchWordList.txt") << "SerchWordList.txt";
}

void TestWordFiles::unwritableFilesStayWhole()
{
    BasicsFixture f;
    PutCommandToArray(f.basics);
    PutExtTypeToArray(f.basics);
    ReadExtTypeToArray(f.basics);
    f.home.writeFile(kRun + "SerchWordList.txt", "花\r\n");
    const QString file = FETCH(QString, file);
    const QByteArray before = f.home.readFile(kRun + file);
    const QStringList words = f.state.CommandWord;
    int rebuilds = 0;
    const bool stored = withSettingsLocked(f, [&] {
        if (file == u"CommandList.txt")
            return storeCommandList(f.basics, u"WITH = X"_s, [&] { ++rebuilds; });
        if (file == u"ExtType.dat")
            return storeExtType(f.basics, u"PNG ="_s).has_value();
        return storeSearchWords(f.basics, u"x"_s);
    });
    QVERIFY(!stored);
    QCOMPARE(f.home.readFile(kRun + file), before);
    QCOMPARE(rebuilds, 0);
    QCOMPARE(f.state.CommandWord, words);
    QCOMPARE(f.state.ExtTypeArray.at(0, 0), u"BMP"_s);
}

QTEST_GUILESS_MAIN(TestWordFiles)
#include "tst_WordFiles.moc"
