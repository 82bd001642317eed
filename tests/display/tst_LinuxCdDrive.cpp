// The Linux CD drive: the address of a track for GStreamer's CD source and
// the track count of things that hold no disc.
#include "display/LinuxCdDrive.h"
#include "support/Fetch.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace lumen;

class TestLinuxCdDrive : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void trackUrlEncodesABlank()
    {
        QCOMPARE(LinuxCdDrive::trackUrl(QStringLiteral("/dev/disk/by-id/my cd"), 1).toEncoded(),
                 QByteArray("cdda:///dev/disk/by-id/my%20cd#1"));
    }

    void noDiscCountsNoTracks_data()
    {
        QTest::addColumn<QString>("device"); // "" for a plain file
        QTest::newRow("missing device") << "/dev/no-such-cd-drive";
        QTest::newRow("a character device that isn't a drive") << "/dev/null";
        QTest::newRow("a plain file") << "";
    }

    void noDiscCountsNoTracks()
    {
        QTemporaryDir dir;
        QFile plain(dir.filePath(QStringLiteral("plain")));
        QVERIFY(plain.open(QIODevice::WriteOnly) && plain.write(QByteArray(4096, '\0')) == 4096);
        plain.close();
        const QString device = FETCH(QString, device);
        QCOMPARE(LinuxCdDrive::tocTrackCount(device.isEmpty() ? plain.fileName() : device), 0);
    }
};

QTEST_GUILESS_MAIN(TestLinuxCdDrive)
#include "tst_LinuxCdDrive.moc"
