// The window-free rules of the selection: where a preview stands in its
// box, and how the undo record of a deletion is read back.
#include "select/Preview.h"
#include "select/UndoStore.h"

#include "support/Fetch.h"

#include <QTest>

using namespace lumen;

class TestSelectionLogic : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void previewRect_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("box");
        QTest::addColumn<QRect>("placed");
        QTest::newRow("wide: the width, centred down")
            << QSize(400, 200) << QSize(240, 180) << QRect(0, 30, 240, 120);
        QTest::newRow("tall: the height, centred across")
            << QSize(100, 200) << QSize(240, 180) << QRect(75, 0, 90, 180);
        QTest::newRow("small pictures grow")
            << QSize(24, 12) << QSize(240, 180) << QRect(0, 30, 240, 120);
        QTest::newRow("wide in a wider box: never cut")
            << QSize(300, 200) << QSize(400, 100) << QRect(125, 0, 150, 100);
        QTest::newRow("square") << QSize(50, 50) << QSize(240, 180) << QRect(30, 0, 180, 180);
        QTest::newRow("no picture") << QSize(0, 0) << QSize(240, 180) << QRect();
    }
    void previewRect()
    {
        QCOMPARE(lumen::previewRect(FETCH(QSize, picture), FETCH(QSize, box)),
                 FETCH(QRect, placed));
    }

    void undoRecord_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("original");
        QTest::addColumn<QString>("copy");
        const QString run = QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR");
        QTest::newRow("original first") << "C:\\p\\a.jpg," + run + "\\DelTempF.jpg\r\n"
                                        << "C:\\p\\a.jpg" << run + "\\DelTempF.jpg";
        QTest::newRow("commas in the original")
            << "C:\\my, pics\\a,b.jpg," + run + "\\DelTempF.b.jpg"
            << "C:\\my, pics\\a,b.jpg" << run + "\\DelTempF.b.jpg";
        QTest::newRow("copy first") << run + "\\DelTempF.jpg,C:\\p\\a.jpg"
                                    << "C:\\p\\a.jpg" << run + "\\DelTempF.jpg";
        QTest::newRow("copy first, commas in both")
            << run + "\\DelTempF.b,c.jpg,C:\\p, q\\a.b,c.jpg"
            << "C:\\p, q\\a.b,c.jpg" << run + "\\DelTempF.b,c.jpg";
        QTest::newRow("neither: at the first comma") << " x , y,z "
                                                     << "x"
                                                     << "y,z";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
    }
    void undoRecord()
    {
        const UndoRecord record = parseUndoRecord(
            FETCH(QString, line), QStringLiteral("C:\\Lumentas\\ForProgramRun_KDR"));
        QCOMPARE(record.original, FETCH(QString, original));
        QCOMPARE(record.copy, FETCH(QString, copy));
    }
};

QTEST_GUILESS_MAIN(TestSelectionLogic)
#include "tst_SelectionLogic.moc"
