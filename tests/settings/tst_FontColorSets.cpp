// The set files of the font and colour window: the one line as written and
// as read back, and a reset of the picture's ground that leaves the other
// fields of the record alone.
#include "settings/FontColorSets.h"
#include "support/BasicsFixture.h"
#include "support/Fetch.h"

#include <QTest>

using namespace lumen;
using namespace lumen::test;

class TestFontColorSets : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void readingALine_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QStringList>("fields");
        QTest::newRow("blanks around, a field missing")
            << "  IPAGothic , 20,&HFF" << QStringList{"IPAGothic", "20", "&HFF", ""};
        QTest::newRow("quoted comma")
            << "\"Sans, Bold\",9,1,2" << QStringList{"Sans, Bold", "9", "1", "2"};
        QTest::newRow("fifth field") << "a,b,c,d,e" << QStringList{"a", "b", "c", "d"};
    }
    void readingALine()
    {
        const FontColorSet set = parseSetLine(FETCH(QString, line));
        QTEST((QStringList{set.fontName, set.fontSize, set.firstColor, set.secondColor}), "fields");
    }

    void storedAndLoaded()
    {
        BasicsFixture f;
        DirecDataRecord& record = f.state.DirecData;
        record.PictBackColor = QStringLiteral("&H336699");
        QVERIFY(writeSetFile(f.basics, QStringLiteral("PictBackCol2"),
                             setFromRecord(record, SetGroup::PictBackCol)));
        QCOMPARE(f.home.readFile("Lumentas/ForProgramRun_KDR/PictBackCol2.dat"),
                 QByteArray("Non,Non,&H336699,Non \r\n"));
        // The loaders ask in capitals; the name on disk is found whatever its case.
        const auto read = readSetFile(f.basics, QStringLiteral(" pictbackcol2.dat"));
        QVERIFY(read);
        QCOMPARE(read->firstColor, QStringLiteral("&H336699"));
        QVERIFY(!readSetFile(f.basics, QStringLiteral("PICTBACKCOL9.DAT")));
        QVERIFY(!writeSetFile(f.basics, QStringLiteral("..\\escape"), *read));
        QVERIFY(!writeSetFile(f.basics, QStringLiteral("  "), *read));
    }

    void pictureGroundResetTouchesOnlyItsField()
    {
        DirecDataRecord record;
        for (SetGroup group : {SetGroup::Comment, SetGroup::Text, SetGroup::EditText})
            storeSetInRecord(record, group, {"Font", "12", "1", "2"});
        record.PictBackColor = QStringLiteral("255");
        const QByteArray before = record.toBytes();
        storeSetInRecord(record, SetGroup::PictBackCol, defaultSet(SetGroup::PictBackCol));
        const QByteArray after = record.toBytes();
        QCOMPARE(after.left(1080), before.left(1080));
        QCOMPARE(after.mid(1095), before.mid(1095));
        QCOMPARE(after.mid(1080, 15), QByteArray("&HC0C0C0       "));
    }
};

QTEST_MAIN(TestFontColorSets)
#include "tst_FontColorSets.moc"
