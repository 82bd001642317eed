#include "platform/Drives.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using lumen::Drive;
using lumen::DriveMap;

namespace {

const QString kHome = QStringLiteral("/home/me");

DriveMap mapWith(const QString& drivesText)
{
    DriveMap drives(kHome);
    drives.addFromText(drivesText);
    return drives;
}

} // namespace

class TestDrives : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void toProgram_data();
    void toProgram();
    void addFromText_data();
    void addFromText();
    void lettersInOrder();
    void defaultTextHoldsWorkingExamples();
};

void TestDrives::toProgram_data()
{
    QTest::addColumn<QString>("drivesText");
    QTest::addColumn<QString>("native");
    QTest::addColumn<QString>("program");
    const auto row = [](const char* tag, const QString& drivesText, const QString& native,
                        const QString& program) {
        QTest::newRow(tag) << drivesText << native << program;
    };
    row("outside home", "", "/srv/a.jpg", "Z:\\srv\\a.jpg");
    row("name only starting like home", "", "/home/meat/a.jpg", "Z:\\home\\meat\\a.jpg");
    row("longest root wins in home", "E = /home/me/usb", "/home/me/usb/x.jpg", "E:\\x.jpg");
    row("boundary beside an extra root", "E = /home/me/usb", "/home/me/usbx/x.jpg",
        "C:\\usbx\\x.jpg");
    row("equal roots: first letter", "D = /home/me", "/home/me/a.jpg", "C:\\a.jpg");
}

void TestDrives::toProgram()
{
    QFETCH(QString, drivesText);
    QFETCH(QString, native);
    QFETCH(QString, program);
    QCOMPARE(mapWith(drivesText).toProgram(native), program);
}

void TestDrives::addFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("letter");
    QTest::addColumn<bool>("known");
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("device");
    const auto row = [](const char* tag, const QString& text, QChar letter, bool known,
                        const QString& root, const QString& device) {
        QTest::newRow(tag) << text << letter << known << root << device;
    };
    row("with CD device", "D = /media/cdrom, /dev/sr0", QChar(u'D'), true, "/media/cdrom",
        "/dev/sr0");
    row("small letter, no blanks", "d=/media/cdrom", QChar(u'D'), true, "/media/cdrom", "");
    row("CR LF lines", "' x\r\nE = /media/usb\r\n", QChar(u'E'), true, "/media/usb", "");
    row("comma in folder kept", "G = /media/a,b", QChar(u'G'), true, "/media/a,b", "");
    row("tilde is home", "H = ~/usb", QChar(u'H'), true, "/home/me/usb", "");
    row("given again replaces", "D = /a\nD = /b", QChar(u'D'), true, "/b", "");
    row("comment", "'D = /media/cdrom", QChar(u'D'), false, "", "");
    row("two letters", "DD = /x", QChar(u'D'), false, "", "");
    row("bad line among good", "junk\nE = /media/usb\n= /x", QChar(u'E'), true, "/media/usb", "");
    row("home stays", "junk", QChar(u'C'), true, kHome, "");
}

void TestDrives::addFromText()
{
    QFETCH(QString, text);
    QFETCH(QChar, letter);
    QFETCH(bool, known);
    QFETCH(QString, root);
    QFETCH(QString, device);

    const DriveMap drives = mapWith(text);
    QCOMPARE(drives.hasDrive(letter), known);
    QCOMPARE(drives.hasDrive(letter.toLower()), known);
    QCOMPARE(drives.drive(letter).root, root);
    QCOMPARE(drives.drive(letter).cdDevice, device);
}

void TestDrives::lettersInOrder()
{
    DriveMap drives = mapWith(QStringLiteral("e = /media/usb\nD = /media/cdrom\n1 = /x"));
    drives.setDrive(u'b', Drive{QStringLiteral("/mnt/b"), QString()});
    drives.setDrive(u'%', Drive{QStringLiteral("/mnt/x"), QString()});
    QCOMPARE(drives.letters(), (QList<QChar>{u'B', u'C', u'D', u'E', u'Z'}));
    QCOMPARE(drives.toProgram(QStringLiteral("/mnt/b/a.jpg")), QStringLiteral("B:\\a.jpg"));
}

void TestDrives::defaultTextHoldsWorkingExamples()
{
    const QString text = DriveMap::defaultDrivesText();
    QCOMPARE(mapWith(text).letters(), (QList<QChar>{u'C', u'Z'}));

    // Every line is a comment; taking the quote off the example lines makes
    // them real drives.
    QString uncommented;
    for (const QString& line : text.split(u'\n', Qt::SkipEmptyParts)) {
        QVERIFY2(line.startsWith(u'\''), qPrintable(line));
        if (line.size() > 1 && line.at(1).isLetter() && line.at(1).unicode() < 128)
            uncommented += line.mid(1) + u'\n';
    }
    const DriveMap drives = mapWith(uncommented);
    QCOMPARE(drives.drive(u'D').root, QStringLiteral("/media/cdrom"));
    QCOMPARE(drives.drive(u'D').cdDevice, QStringLiteral("/dev/sr0"));
    QVERIFY(drives.hasDrive(u'E'));
}

QTEST_GUILESS_MAIN(TestDrives)
#include "tst_Drives.moc"
