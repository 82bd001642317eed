// A site made from a 1,000-line list of pictures, against copying the same
// pictures with cp, in the same run. The run's fixed waits are left out: a
// jumping clock counts them. Each side runs five times; the best counts.
// The disk is synced before each timed side, so that neither pays for the
// other's write-back.
#include "html/ButtonIcons.h"
#include "html/SiteMaker.h"
#include "list/CommandWords.h"
#include "list/ListLoader.h"
#include "support/BasicsFixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRandomGenerator>

#include <cstdio>
#include <unistd.h>

using namespace lumen;

namespace {

constexpr int kLines = 1000;

// A photograph-like picture: a gradient with some noise and a few shapes,
// 640 x 480, saved as JPEG (about 60 to 90 KB).
QImage makePicture(int number)
{
    QImage image(640, 480, QImage::Format_RGB32);
    QRandomGenerator random{quint32(number)};
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int noise = int(random.bounded(40));
            line[x] = qRgb((x / 3 + number) % 256, (y / 2 + noise) % 256, (x + y) / 5 % 256);
        }
    }
    QPainter painter(&image);
    painter.setBrush(QColor::fromHsv(number * 37 % 360, 200, 220));
    painter.drawEllipse(QPoint(320, 240), 120 + number % 50, 90);
    return image;
}

qint64 folderBytes(const QString& folder)
{
    qint64 total = 0;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files))
        total += file.size();
    return total;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    test::BasicsFixture f;
    PutCommandToArray(f.basics);

    QStringList list;
    QStringList sources;
    f.home.makeFolder(QStringLiteral("pictures"));
    for (int i = 1; i <= kLines; ++i) {
        const QString name = QStringLiteral("photo_%1.jpg").arg(i, 4, 10, QLatin1Char('0'));
        const QString native = f.home.native(QStringLiteral("pictures/") + name);
        makePicture(i).save(native, "JPG", 85);
        sources << native;
        list
            << QStringLiteral("C:\\pictures\\%1 @COMMENT=<<<<<写真 %2 ENDCOMMENT").arg(name).arg(i);
    }
    f.home.writeFile(QStringLiteral("show.lst"), list.join(QStringLiteral("\r\n")).toUtf8());
    QString text;
    const int count = prepareWorkingCopy(f.basics, QStringLiteral("C:\\show.lst"), &text);
    const int lines = fillListArray(f.basics, text, count).fileCount;

    SiteMaker maker(f.basics);
    for (int row = 0; row < kReplaceWords; ++row)
        maker.ReplaceWordTable.set(kColWord, row, defaultReplaceWords()[row]);
    const SitePictures pictures{
        builtInButtonPicture(ButtonIcon::Left), builtInButtonPicture(ButtonIcon::Right),
        builtInButtonPicture(ButtonIcon::Head), builtInButtonPicture(ButtonIcon::Tail),
        builtInButtonPicture(ButtonIcon::Oya),  builtInButtonPicture(ButtonIcon::Blank)};
    SiteSettings settings = SiteSettings::defaults();

    // Every round writes into folders of its own, removed only at the end:
    // removing a thousand files just before making as many new ones makes
    // the file system search its recently freed inodes on every creation,
    // which would weigh on the side that makes more files (the site makes
    // a page and a copy for each picture, cp only the copy).
    double siteMs = 1e9;
    double copyMs = 1e9;
    qint64 waited = 0;
    QString site;
    for (int round = 0; round < 5; ++round) {
        settings[kPosKeepHTML] = QStringLiteral("C:\\data%1").arg(round);
        site = f.home.native(QStringLiteral("data%1").arg(round));
        const QString copies = f.home.native(QStringLiteral("copies%1").arg(round));
        QDir().mkpath(copies);
        ::sync();
        f.clock.waits.clear();
        QElapsedTimer timer;
        timer.start();
        maker.MakeHTML(settings, pictures, QString::number(lines));
        siteMs = qMin(siteMs, timer.nsecsElapsed() / 1e6);
        waited = f.clock.totalWaited();

        ::sync();
        timer.restart();
        if (QProcess::execute(QStringLiteral("cp"), sources + QStringList{copies}) != 0)
            return 1;
        copyMs = qMin(copyMs, timer.nsecsElapsed() / 1e6);
    }
    const int pages = int(QDir(site + QStringLiteral("/html")).entryList(QDir::Files).size());
    if (pages != kLines ||
        QDir(site + QStringLiteral("/media")).entryList(QDir::Files).size() != kLines)
        return 1;

    std::printf("list: %d lines of pictures, %.1f MB\n", lines,
                folderBytes(site + QStringLiteral("/media")) / 1e6);
    std::printf("cp of the pictures          %8.1f ms\n", copyMs);
    std::printf("site: %d pages and media   %8.1f ms   ratio %.2f (target <= 3)\n", pages, siteMs,
                siteMs / copyMs);
    std::printf("fixed waits left out        %8lld ms\n", waited);
    return 0;
}
