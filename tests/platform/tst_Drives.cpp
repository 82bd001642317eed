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
    void relativeNativePath();
    void rootOf_data();
    void rootOf();
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

    QTest::newRow("file in home") << ""
                                  << "/home/me/a.jpg"
                                  << "C:\\a.jpg";
    QTest::newRow("deeper in home") << ""
                                    << "/home/me/Lumentas/RunFile.Lst"
                                    << "C:\\Lumentas\\RunFile.Lst";
    QTest::newRow("home itself") << ""
                                 << "/home/me"
                                 << "C:\\";
    QTest::newRow("home with slash") << ""
                                     << "/home/me/"
                                     << "C:\\";
    QTest::newRow("root") << ""
                          << "/"
                          << "Z:\\";
    QTest::newRow("outside home") << ""
                                  << "/srv/a.jpg"
                                  << "Z:\\srv\\a.jpg";
    QTest::newRow("parent of home") << ""
                                    << "/home"
                                    << "Z:\\home";
    QTest::newRow("name only starting like home") << ""
                                                  << "/home/meat/a.jpg"
                                                  << "Z:\\home\\meat\\a.jpg";
    QTest::newRow("dot dot cleaned") << ""
                                     << "/home/me/x/../a.jpg"
                                     << "C:\\a.jpg";
    QTest::newRow("blanks in names") << ""
                                     << "/home/me/my pics/a b.jpg"
                                     << "C:\\my pics\\a b.jpg";
    QTest::newRow("extra drive") << "D = /media/cdrom, /dev/sr0"
                                 << "/media/cdrom/Track01.cda"
                                 << "D:\\Track01.cda";
    QTest::newRow("extra drive root") << "D = /media/cdrom"
                                      << "/media/cdrom"
                                      << "D:\\";
    QTest::newRow("longest root wins in home") << "E = /home/me/usb"
                                               << "/home/me/usb/x.jpg"
                                               << "E:\\x.jpg";
    QTest::newRow("boundary beside an extra root") << "E = /home/me/usb"
                                                   << "/home/me/usbx/x.jpg"
                                                   << "C:\\usbx\\x.jpg";
    QTest::newRow("extra root with blank") << "F = /media/my stick"
                                           << "/media/my stick/a b.jpg"
                                           << "F:\\a b.jpg";
    QTest::newRow("equal roots: first letter") << "D = /home/me"
                                               << "/home/me/a.jpg"
                                               << "C:\\a.jpg";
    QTest::newRow("empty") << ""
                           << ""
                           << "";
}

void TestDrives::toProgram()
{
    QFETCH(QString, drivesText);
    QFETCH(QString, native);
    QFETCH(QString, program);
    QCOMPARE(mapWith(drivesText).toProgram(native), program);
}

void TestDrives::relativeNativePath()
{
    QTemporaryDir home;
    QVERIFY(QDir(home.path()).mkpath(QStringLiteral("pics")));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(home.path() + QStringLiteral("/pics")));
    const DriveMap drives(home.path());
    const QString fromPics = drives.toProgram(QStringLiteral("a.jpg"));
    const QString fromParent = drives.toProgram(QStringLiteral("../b.jpg"));
    QDir::setCurrent(before);
    QCOMPARE(fromPics, QStringLiteral("C:\\pics\\a.jpg"));
    QCOMPARE(fromParent, QStringLiteral("C:\\b.jpg"));
}

void TestDrives::rootOf_data()
{
    QTest::addColumn<QString>("drivesText");
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("root");

    QTest::newRow("C: is home") << ""
                                << "C:\\Lumentas" << kHome;
    QTest::newRow("small letter") << ""
                                  << "c:\\x" << kHome;
    QTest::newRow("Z: is root") << ""
                                << "Z:"
                                << "/";
    QTest::newRow("extra drive") << "d = /media/cdrom"
                                 << "D:\\Track01.cda"
                                 << "/media/cdrom";
    QTest::newRow("unknown letter") << ""
                                    << "Q:\\x"
                                    << "";
    QTest::newRow("no drive") << ""
                              << "pics\\a.jpg"
                              << "";
    QTest::newRow("address") << ""
                             << "http://a/b"
                             << "";
    QTest::newRow("not a letter") << ""
                                  << "1:\\x"
                                  << "";
}

void TestDrives::rootOf()
{
    QFETCH(QString, drivesText);
    QFETCH(QString, program);
    QFETCH(QString, root);
    QCOMPARE(mapWith(drivesText).rootOf(program), root);
}

void TestDrives::addFromText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("letter");
    QTest::addColumn<bool>("known");
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("device");

    QTest::newRow("folder") << "D = /media/cdrom" << QChar(u'D') << true << "/media/cdrom"
                            << "";
    QTest::newRow("with CD device")
        << "D = /media/cdrom, /dev/sr0" << QChar(u'D') << true << "/media/cdrom"
        << "/dev/sr0";
    QTest::newRow("small letter, no blanks")
        << "d=/media/cdrom" << QChar(u'D') << true << "/media/cdrom"
        << "";
    QTest::newRow("letter with colon") << "E: = /media/usb" << QChar(u'E') << true << "/media/usb"
                                       << "";
    QTest::newRow("CR LF lines") << "' x\r\nE = /media/usb\r\n"
                                 << QChar(u'E') << true << "/media/usb"
                                 << "";
    QTest::newRow("blank inside folder")
        << "F =  /media/my stick  " << QChar(u'F') << true << "/media/my stick"
        << "";
    QTest::newRow("comma in folder kept") << "G = /media/a,b" << QChar(u'G') << true << "/media/a,b"
                                          << "";
    QTest::newRow("quote in folder kept")
        << "G = /media/it's" << QChar(u'G') << true << "/media/it's"
        << "";
    QTest::newRow("trailing slash dropped")
        << "G = /media/usb/" << QChar(u'G') << true << "/media/usb"
        << "";
    QTest::newRow("tilde is home") << "H = ~/usb" << QChar(u'H') << true << "/home/me/usb"
                                   << "";
    QTest::newRow("given again replaces") << "D = /a\nD = /b" << QChar(u'D') << true << "/b"
                                          << "";
    QTest::newRow("comment") << "'D = /media/cdrom" << QChar(u'D') << false << ""
                             << "";
    QTest::newRow("indented comment") << "   ' D = /media/cdrom" << QChar(u'D') << false << ""
                                      << "";
    QTest::newRow("no equals sign") << "D /media/cdrom" << QChar(u'D') << false << ""
                                    << "";
    QTest::newRow("relative folder") << "D = media/cdrom" << QChar(u'D') << false << ""
                                     << "";
    QTest::newRow("no folder") << "D =" << QChar(u'D') << false << ""
                               << "";
    QTest::newRow("two letters") << "DD = /x" << QChar(u'D') << false << ""
                                 << "";
    QTest::newRow("bad line among good")
        << "junk\nE = /media/usb\n= /x" << QChar(u'E') << true << "/media/usb"
        << "";
    QTest::newRow("home stays") << "junk" << QChar(u'C') << true << kHome << "";
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
