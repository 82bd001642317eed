// Colours as BGR integers and their texts, and the system colours: from the
// desktop's palette when there is one, else the Windows defaults.
#include "platform/Colors.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QPalette>
#include <QTest>

#include <memory>

using namespace lumen;
using namespace Qt::StringLiterals;

class TestColors : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void bgrFromText_data();
    void bgrFromText();
    void bgrToHexText_data();
    void bgrToHexText();
    void colorFromBgr_data();
    void colorFromBgr();
    // Makes a QGuiApplication with a palette of its own.
    void systemColorsFollowThePalette_data();
    void systemColorsFollowThePalette();
    void cleanupTestCase();

private:
    std::unique_ptr<QGuiApplication> app_;
};

void TestColors::bgrFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<qint32>("bgr");

    QTest::newRow("long hex with suffix") << u"&H00FF8080&"_s << qint32(16744576);
    QTest::newRow("yellow without suffix is -1") << u"&HFFFF"_s << qint32(-1);
    QTest::newRow("system button face") << u"&H8000000F&"_s << kColorButtonFace;
    QTest::newRow("negative decimal") << u"-2147483633"_s << kColorButtonFace;
    QTest::newRow("not a number") << u"red"_s << qint32(0);
    QTest::newRow("past 32 bits") << u"4294967295"_s << qint32(0);
}

void TestColors::bgrFromText()
{
    QFETCH(QString, text);
    QFETCH(qint32, bgr);
    QCOMPARE(lumen::bgrFromText(text), bgr);
}

void TestColors::bgrToHexText_data()
{
    QTest::addColumn<qint32>("bgr");
    QTest::addColumn<QString>("text");

    QTest::newRow("comment colour") << qint32(16744576) << u"&H00FF8080&"_s;
    QTest::newRow("system colour") << kColorButtonFace << u"&H8000000F&"_s;
}

void TestColors::bgrToHexText()
{
    QFETCH(qint32, bgr);
    QFETCH(QString, text);
    QCOMPARE(lumen::bgrToHexText(bgr), text);
    QCOMPARE(lumen::bgrFromText(text), bgr);
}

void TestColors::colorFromBgr_data()
{
    QTest::addColumn<qint32>("bgr");
    QTest::addColumn<QColor>("color");

    QTest::newRow("blue") << qint32(0xFF0000) << QColor(0, 0, 255);
    QTest::newRow("text colour") << qint32(0x808040) << QColor(0x40, 0x80, 0x80);
}

void TestColors::colorFromBgr()
{
    QFETCH(qint32, bgr);
    QFETCH(QColor, color);
    QCOMPARE(lumen::colorFromBgr(bgr), color);
    QCOMPARE(lumen::bgrFromColor(color), bgr);
}

void TestColors::systemColorsFollowThePalette_data()
{
    static int argc = 1;
    static char name[] = "tst_Colors";
    static char* argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    app_ = std::make_unique<QGuiApplication>(argc, argv);

    QPalette palette;
    palette.setColor(QPalette::Button, QColor(1, 2, 3));
    palette.setColor(QPalette::Base, QColor(7, 8, 9));
    QGuiApplication::setPalette(palette);

    QTest::addColumn<qint32>("bgr");
    QTest::addColumn<QColor>("color");
    QTest::newRow("button face") << kColorButtonFace << QColor(1, 2, 3);
    QTest::newRow("plain colour unchanged") << kColorGrey << QColor(0x80, 0x80, 0x80);
}

void TestColors::systemColorsFollowThePalette()
{
    QFETCH(qint32, bgr);
    QFETCH(QColor, color);
    QCOMPARE(lumen::colorFromBgr(bgr), color);
}

void TestColors::cleanupTestCase()
{
    app_.reset();
}

QTEST_APPLESS_MAIN(TestColors)
#include "tst_Colors.moc"
