// The making of an HTML picture book from the loaded list: the template,
// one page per usable list line, the media copied (WAV files made MP3), the
// button pictures, the folders. FormMakeHTML owns one SiteMaker and hands it
// what its controls hold at the press of a button.
#pragma once

#include "html/PageTemplate.h"
#include "html/SiteSettings.h"

#include <QImage>
#include <QString>
#include <functional>

namespace lumen {

class VeroProcedure_Basical;

// The pictures that the picture boxes of the window hold.
struct SitePictures {
    QImage left, right, head, tail, oya, blank;
};

class SiteMaker {
public:
    explicit SiteMaker(VeroProcedure_Basical& basics);

    // What the run needs from the windows around it.
    std::function<void(const QString&)> setCaption; // FormMakeHTML's caption
    std::function<void(qint32)> setMakeButtonColor; // CommandMakeHTML's back colour
    std::function<void()> clearDisplay;             // FormMain's CleareDisp with no kind
    std::function<void()> unloadComment;            // FormComment goes

    StringGrid ReplaceWordTable = makeReplaceWordTable();

    // Working copies of a run, trimmed, kept between runs.
    QString HtmlRootDir, HtmlPageDir, HtmlMediaDir, HtmlButtonDir, HtmlPageStem, HtmlParentPage;
    // Where the button pictures were put, kept from run to run.
    QString LeftPicPath, RightPicPath, HeadPicPath, TailPicPath, OyaPicPath, BlankPicPath;
    qint16 HtmlListIndex = 0; // the list line of the page in hand
    bool convertSmallChara = false;

    QString templatePath() const; // SampleHtml.html in ProgramRunDir

    // The template; the default one is written first when the file is missing.
    QString MakeSampleHTML();
    // Substitutes for line HtmlListIndex and writes page `pageNumber`.
    void MakeOnePage(qint16 pageNumber);

    // The run of CommandMakeHTML. `listTotal` is the text of FormMain's
    // TextTotal: the number of list lines.
    void MakeHTML(const SiteSettings& settings, const SitePictures& pictures,
                  const QString& listTotal);

private:
    QString L(const QString& text) const; // lower-cased when the option is on
    QString pageName(int number) const;
    QString commentValue();
    QString blankPictureUrl() const;
    QString textOfFileAsHtml(const QString& path);

    void prepareFolders(const SiteSettings& settings);
    void placeButtonPictures(const SiteSettings& settings, const SitePictures& pictures,
                             const QString& pageTemplate);
    QString placeButtonPicture(const QString& chosen, const QImage& held, const QString& fixedName);
    bool listNeedsBlankPicture(qint16 lines) const;
    qint16 copyMedia(const SiteSettings& settings, qint16 lines);
    void deliverFile(const QString& source, const SiteSettings& settings);
    QString mediaName(const QString& source, bool wavConvert) const;
    void setFixedRows(const SiteSettings& settings, qint16 total, qint16 lines);
    void makePages(const SiteSettings& settings, qint16 lines, qint16 total);
    void caption(const QString& text);

    VeroProcedure_Basical& basics_;
};

} // namespace lumen
