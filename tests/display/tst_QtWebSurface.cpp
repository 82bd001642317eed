// The real web view (Qt WebEngine) behind WebBrowser1: local pages load and
// keep their history; the pages it can't show go blank or are refused.
#include "display/QtWebSurface.h"
#include "display/WebBrowser.h"
#include "support/Fetch.h"
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

int visibleWindows()
{
    int count = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        count += widget->isVisible() ? 1 : 0;
    return count;
}

} // namespace

class TestQtWebSurface : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void localPagesLoadAndKeepHistory();
    void pagesItCantShow_data();
    void pagesItCantShow();

private:
    QStringList downloadedFiles() const;
    QUrl url(const char* name) const { return QUrl::fromLocalFile(dir_.filePath(name)); }

    QTemporaryDir dir_;
    QTemporaryDir downloads_;
};

QStringList TestQtWebSurface::downloadedFiles() const
{
    QStringList names;
    for (const QString& folder :
         {downloads_.path(), QStandardPaths::writableLocation(QStandardPaths::DownloadLocation)})
        names += QDir(folder).entryList(QDir::Files);
    return names;
}

void TestQtWebSurface::initTestCase()
{
    // Downloads would land in the home's download folder: make that ours.
    qputenv("HOME", downloads_.path().toLocal8Bit());
    qputenv("XDG_DOWNLOAD_DIR", downloads_.path().toLocal8Bit());
    const QList<std::pair<const char*, QByteArray>> files{
        {"first.html",
         "<html><head><title>First</title></head><body><h1>一枚目</h1></body></html>"},
        {"second.html",
         "<html><head><title>Second</title></head><body><p>二枚目</p></body></html>"},
        {"movie.swf", QByteArray("FWS\x06\x20\0\0\0", 8) + QByteArray(24, '\0')},
        {"world.xv3", "xv3 data"},
        {"archive.bin", QByteArray(2048, '\x01')}};
    for (const auto& [name, bytes] : files) {
        QFile file(dir_.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
}

void TestQtWebSurface::localPagesLoadAndKeepHistory()
{
    WebBrowser browser(QStringLiteral("WebBrowser1"), std::make_unique<QtWebSurface>());
    browser.resize(480, 320);
    browser.show();
    QSignalSpy loaded(&browser, &WebBrowser::loadFinished);
    const QUrl first = url("first.html");
    const QUrl second = url("second.html");

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

void TestQtWebSurface::pagesItCantShow_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("blank"); // or the page stays
    QTest::addColumn<int>("refused");
    QTest::newRow("Flash movie") << "movie.swf" << true << 0;
    QTest::newRow("XV3 world") << "world.xv3" << true << 0;
    QTest::newRow("download") << "archive.bin" << false << 1;
}

// No dialog, no file, whatever it is.
void TestQtWebSurface::pagesItCantShow()
{
    WebBrowser browser(QStringLiteral("WebBrowser1"), std::make_unique<QtWebSurface>());
    browser.show();
    const int windows = visibleWindows();
    auto* surface = static_cast<QtWebSurface*>(browser.surface());
    QSignalSpy loaded(&browser, &WebBrowser::loadFinished);
    const QUrl first = url("first.html");
    browser.Navigate(first);
    QTRY_COMPARE_WITH_TIMEOUT(loaded.count(), 1, kLoadTimeout);

    browser.Navigate(QUrl::fromLocalFile(dir_.filePath(FETCH(QString, file))));
    QTRY_VERIFY_WITH_TIMEOUT(loaded.count() > 1 || surface->refusedDownloads() > 0, kLoadTimeout);
    QTest::qWait(500);
    QCOMPARE(browser.url(), FETCH(bool, blank) ? QUrl(QStringLiteral("about:blank")) : first);
    QCOMPARE(surface->refusedDownloads(), FETCH(int, refused));
    QCOMPARE(visibleWindows(), windows);
    QCOMPARE(downloadedFiles(), QStringList());
}

QTEST_MAIN(TestQtWebSurface)
#include "tst_QtWebSurface.moc"
