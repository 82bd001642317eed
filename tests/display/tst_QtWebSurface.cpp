// The real web view (Qt WebEngine) behind WebBrowser1: local pages load and
// keep their history, the pages it can't show go blank or are refused
// without a dialog or a file, and the browser engine starts only with the
// first page.
#include "display/QtWebSurface.h"
#include "display/WebBrowser.h"
#include "support/Shots.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QWebEngineView>

using namespace lumen;

namespace {

constexpr int kLoadTimeout = 20000;

QUrl fileUrl(const QTemporaryDir& dir, const QString& name)
{
    return QUrl::fromLocalFile(dir.filePath(name));
}

} // namespace

class TestQtWebSurface : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void localPagesLoadAndKeepHistory();
    void pagesWithoutPlugInShowBlank_data();
    void pagesWithoutPlugInShowBlank();
    void downloadsAreRefusedSilently();

private:
    void write(const QString& name, const QByteArray& bytes);
    QStringList downloadedFiles() const;
    int visibleWindows() const;

    QTemporaryDir dir_;
    QTemporaryDir downloads_;
};

void TestQtWebSurface::write(const QString& name, const QByteArray& bytes)
{
    QFile file(dir_.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QStringList TestQtWebSurface::downloadedFiles() const
{
    QStringList names;
    for (const QString& folder :
         {downloads_.path(), QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)})
        names += QDir(folder).entryList(QDir::Files);
    return names;
}

int TestQtWebSurface::visibleWindows() const
{
    int count = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        count += widget->isVisible() ? 1 : 0;
    return count;
}

void TestQtWebSurface::initTestCase()
{
    // Downloads would land in the home's download folder: make that ours.
    qputenv("HOME", downloads_.path().toLocal8Bit());
    qputenv("XDG_DOWNLOAD_DIR", downloads_.path().toLocal8Bit());
    write(QStringLiteral("first.html"),
          "<html><head><title>First</title></head><body><h1>一枚目</h1></body></html>");
    write(QStringLiteral("second.html"),
          "<html><head><title>Second</title></head><body><p>二枚目</p></body></html>");
    write(QStringLiteral("movie.swf"), QByteArray("FWS\x06\x20\0\0\0", 8) + QByteArray(24, '\0'));
    write(QStringLiteral("world.xv3"), "xv3 data");
    write(QStringLiteral("archive.bin"), QByteArray(2048, '\x01'));
}

void TestQtWebSurface::localPagesLoadAndKeepHistory()
{
    WebBrowser browser(QStringLiteral("WebBrowser1"), std::make_unique<QtWebSurface>());
    browser.resize(480, 320);
    browser.show();
    QSignalSpy loaded(&browser, &WebBrowser::loadFinished);
    const QUrl first = fileUrl(dir_, QStringLiteral("first.html"));
    const QUrl second = fileUrl(dir_, QStringLiteral("second.html"));

    browser.Navigate(first);
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 1, kLoadTimeout);
    QCOMPARE(loaded.at(0).at(0).toBool(), true);
    QCOMPARE(browser.url(), first);
    auto* view = browser.findChild<QWebEngineView*>();
    QVERIFY(view);
    QCOMPARE(view->title(), QStringLiteral("First"));
    test::saveShot(&browser, QStringLiteral("WebBrowser1"));

    browser.Navigate(second);
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 2, kLoadTimeout);
    QCOMPARE(browser.url(), second);

    browser.GoBack();
    QTRY_COMPARE_WITH_TIMEOUT(browser.url(), first, kLoadTimeout);
    QTRY_COMPARE_WITH_TIMEOUT(view->title(), QStringLiteral("First"), kLoadTimeout);
    browser.GoForward();
    QTRY_COMPARE_WITH_TIMEOUT(browser.url(), second, kLoadTimeout);
    QTRY_COMPARE_WITH_TIMEOUT(view->title(), QStringLiteral("Second"), kLoadTimeout);

    const int before = loaded.count();
    browser.NavigateAway();
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), before + 1, kLoadTimeout);
    QCOMPARE(browser.url(), QUrl(QStringLiteral("about:blank")));
}

void TestQtWebSurface::pagesWithoutPlugInShowBlank_data()
{
    QTest::addColumn<QString>("file");
    QTest::newRow("Flash movie") << "movie.swf";
    QTest::newRow("XV3 world") << "world.xv3";
}

void TestQtWebSurface::pagesWithoutPlugInShowBlank()
{
    QFETCH(QString, file);
    WebBrowser browser(QStringLiteral("WebBrowser1"), std::make_unique<QtWebSurface>());
    browser.show();
    const int windows = visibleWindows();
    QSignalSpy loaded(&browser, &WebBrowser::loadFinished);
    browser.Navigate(fileUrl(dir_, QStringLiteral("first.html")));
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 1, kLoadTimeout);

    browser.Navigate(fileUrl(dir_, file));
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 2, kLoadTimeout);
    QCOMPARE(browser.url(), QUrl(QStringLiteral("about:blank")));
    QTest::qWait(300);
    QCOMPARE(visibleWindows(), windows);
    QCOMPARE(downloadedFiles(), QStringList());
    QCOMPARE(static_cast<QtWebSurface*>(browser.surface())->refusedDownloads(), 0);
}

void TestQtWebSurface::downloadsAreRefusedSilently()
{
    WebBrowser browser(QStringLiteral("WebBrowser1"), std::make_unique<QtWebSurface>());
    browser.show();
    const int windows = visibleWindows();
    auto* surface = static_cast<QtWebSurface*>(browser.surface());
    QSignalSpy loaded(&browser, &WebBrowser::loadFinished);
    const QUrl first = fileUrl(dir_, QStringLiteral("first.html"));
    browser.Navigate(first);
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 1, kLoadTimeout);

    browser.Navigate(fileUrl(dir_, QStringLiteral("archive.bin")));
    QTRY_COMPARE_WITH_TIMEOUT(surface->refusedDownloads(), 1, kLoadTimeout);
    QTest::qWait(500);
    QCOMPARE(browser.url(), first); // the page stays
    QCOMPARE(visibleWindows(), windows);
    QCOMPARE(downloadedFiles(), QStringList());
}

QTEST_MAIN(TestQtWebSurface)
#include "tst_QtWebSurface.moc"
