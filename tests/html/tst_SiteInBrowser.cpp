// The first page of a site made here opens in Debian's Chromium, headless;
// its screenshot shows the picture and the five navigation buttons. The
// screenshot stays in the test's folder (or LUMEN_SCREENSHOTS) to be looked at.
#include "html/SiteFixture.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace lumen;
using namespace lumen::test;

namespace {

// Chromium's picture of a page, kept in the test's folder.
QImage screenshot(const QString& page, const QString& name)
{
    QString folder = qEnvironmentVariable("LUMEN_SCREENSHOTS");
    if (folder.isEmpty())
        folder = QDir::current().filePath("html_site_shots");
    QDir().mkpath(folder);
    const QString shot = QDir(folder).filePath(name);
    QFile::remove(shot);
    QTemporaryDir profile;
    QProcess chromium;
    chromium.start("chromium",
                   {"--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
                    "--disable-background-networking", "--disable-component-update",
                    "--disable-sync", "--user-data-dir=" + profile.path(), "--window-size=800,600",
                    "--screenshot=" + shot, QUrl::fromLocalFile(page).toString()});
    if (!chromium.waitForFinished(90000))
        chromium.kill();
    return QImage(shot);
}

template <typename Test> qsizetype pixels(const QImage& image, int fromLine, Test test)
{
    qsizetype count = 0;
    for (int y = fromLine; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += test(image.pixelColor(x, y)) ? 1 : 0;
    return count;
}

} // namespace

class TestSiteInBrowser : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void firstPageShows();
};

void TestSiteInBrowser::firstPageShows()
{
    SiteFixture s;
    const QColor photo(0, 160, 80);
    s.f.home.writeFile("show/photo.png", SiteFixture::png(photo, QSize(320, 200)));
    s.f.home.writeFile("show/note.txt", "A text page");
    s.loadList(
        {"C:\\show\\photo.png @COMMENT=<<<<<The first page ENDCOMMENT", "C:\\show\\note.txt"});
    s.run(SiteSettings::defaults());

    const QImage first = screenshot(s.f.home.native("data/html/page1.html"), "site_page1.png");
    QVERIFY(!first.isNull());
    QVERIFY(pixels(first, 0, [&](QColor c) { return c == photo; }) >= 320 * 200 * 9 / 10);
    // Five keys of 48 x 32, the blue of each more than half its face.
    const auto blue = [](QColor c) { return c.blue() > c.red() + 60 && c.blue() > c.green() + 30; };
    QVERIFY(pixels(first, 0, blue) >= 5 * 48 * 32 / 2);

    // The text page finds its blank picture by its absolute address. Below
    // the row of keys, whose figures are white too.
    const QImage second = screenshot(s.f.home.native("data/html/page2.html"), "site_page2.png");
    QCOMPARE(pixels(second, 60, [](QColor c) { return c == Qt::white; }), 32 * 32);
}

QTEST_GUILESS_MAIN(TestSiteInBrowser)
#include "tst_SiteInBrowser.moc"
