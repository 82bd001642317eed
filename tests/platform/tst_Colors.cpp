// Colours as BGR integers and their texts; system colours come from the
// desktop's palette.
#include "platform/Colors.h"

#include "support/Fetch.h"

#include <QGuiApplication>
#include <QPalette>
#include <QTest>

using namespace lumen;
using namespace Qt::StringLiterals;

class TestColors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QPalette palette;
        palette.setColor(QPalette::Button, QColor(1, 2, 3));
        palette.setColor(QPalette::Base, QColor(7, 8, 9));
        QGuiApplication::setPalette(palette);
    }

    void bgrText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint32>("bgr");
        QTest::addColumn<bool>("written"); // bgrToHexText gives the text back
        QTest::newRow("long hex with suffix") << u"&H00FF8080&"_s << qint32(16744576) << true;
        QTest::newRow("yellow without suffix is -1") << u"&HFFFF"_s << qint32(-1) << false;
        QTest::newRow("system button face") << u"&H8000000F&"_s << kColorButtonFace << true;
        QTest::newRow("negative decimal") << u"-2147483633"_s << kColorButtonFace << false;
        QTest::newRow("not a number") << u"red"_s << qint32(0) << false;
        QTest::newRow("past 32 bits") << u"4294967295"_s << qint32(0) << false;
    }
    void bgrText()
    {
        const QString text = FETCH(QString, text);
        const qint32 bgr = FETCH(qint32, bgr);
        QCOMPARE(bgrFromText(text), bgr);
        if (FETCH(bool, written))
            QCOMPARE(bgrToHexText(bgr), text);
    }

    void colorFromBgr_data()
    {
        QTest::addColumn<qint32>("bgr");
        QTest::addColumn<QColor>("color");
        QTest::newRow("blue") << qint32(0xFF0000) << QColor(0, 0, 255);
        QTest::newRow("text colour") << qint32(0x808040) << QColor(0x40, 0x80, 0x80);
        QTest::newRow("button face from the palette") << kColorButtonFace << QColor(1, 2, 3);
    }
    void colorFromBgr()
    {
        const qint32 bgr = FETCH(qint32, bgr);
        QCOMPARE(lumen::colorFromBgr(bgr), FETCH(QColor, color));
        if (bgr >= 0) // not a system colour
            QCOMPARE(bgrFromColor(FETCH(QColor, color)), bgr);
    }
};

QTEST_MAIN(TestColors)
#include "tst_Colors.moc"
