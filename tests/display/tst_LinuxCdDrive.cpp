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
    void trackUrl_data();
    void trackUrl();
    void noDiscCountsNoTracks_data();
    void noDiscCountsNoTracks();
};

void TestLinuxCdDrive::trackUrl_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("track");
    QTest::addColumn<QByteArray>("url");
    QTest::newRow("a blank in the name")
        << "/dev/disk/by-id/my cd" << 1 << QByteArray("cdda:///dev/disk/by-id/my%20cd#1");
}

void TestLinuxCdDrive::trackUrl()
{
    QCOMPARE(LinuxCdDrive::trackUrl(FETCH(QString, device), FETCH(int, track)).toEncoded(),
             FETCH(QByteArray, url));
}

void TestLinuxCdDrive::noDiscCountsNoTracks_data()
{
    QTest::addColumn<QString>("device");
    QTest::newRow("missing device") << "/dev/no-such-cd-drive";
    QTest::newRow("a character device that isn't a drive") << "/dev/null";
    QTest::newRow("a plain file") << "plain";
}

void TestLinuxCdDrive::noDiscCountsNoTracks()
{
    QTemporaryDir dir;
    QFile plain(dir.filePath(QStringLiteral("plain")));
    QVERIFY(plain.open(QIODevice::WriteOnly));
    plain.write(QByteArray(4096, '\0'));
    plain.close();
    QString device = FETCH(QString, device);
    if (device == u"plain")
        device = plain.fileName();
    QCOMPARE(LinuxCdDrive::tocTrackCount(device), 0);
}

QTEST_GUILESS_MAIN(TestLinuxCdDrive)
#include "tst_LinuxCdDrive.moc"
