// The settings of a site as FormMakeHTML keeps them: twenty texts, in the
// order of the lines of HTMLFormValKeep.txt, and three check boxes.
#pragma once

#include <QString>
#include <QStringList>
#include <array>

namespace lumen {

// One text per line of HTMLFormValKeep.txt, in file order.
enum SiteField : int {
    kPosKeepHTML,      // root folder of the site
    kPosHTML,          // page sub-folder
    kPosMedia,         // media sub-folder
    kPosButton,        // button sub-folder
    kButtonOya,        // picture of the parent-page button
    kOyaFileName,      // address of the parent page
    kHTMLPageName,     // first part of the page file names
    kNumFontName,      // page number: font type
    kNumFontSize,      //   size
    kNumFontColor,     //   colour
    kBackCol,          // page background
    kCommentFontName,  // comment: font type
    kCommentFontSize,  //   size
    kCommentFontColor, //   colour
    kButtonHead,       // picture of the first-page button
    kButtonTail,       // picture of the last-page button
    kButtonLeft,       // picture of the previous-page button
    kButtonRight,      // picture of the next-page button
    kButtonBlankPic,   // picture of pages without one
    kMP3CompR,         // MP3 size in percent of the WAV
    kSiteFields
};

inline const QString kFormValKeepFile = QStringLiteral("HTMLFormValKeep.txt");

// The name of the text box that shows each field.
const std::array<QString, kSiteFields>& siteFieldControlNames();

// The initial setting: the defaults of the fields that have one. The five
// button fields are emptied; the blank-picture field is not touched.
bool siteFieldHasDefault(SiteField field);
QString siteFieldDefault(SiteField field);

struct SiteSettings {
    std::array<QString, kSiteFields> text;
    bool convertSmallChara = false; // CheckConvertSmallChara
    bool delHTMLFolder = false;     // CheckDelHTMLFolder
    bool wavConvert = false;        // CheckWAVConvert

    QString& operator[](SiteField field) { return text[field]; }
    const QString& operator[](SiteField field) const { return text[field]; }

    // Every field at its default ("" where there is none).
    static SiteSettings defaults();
};

// The lines of a text as the file reader gives them (CR LF between lines);
// an empty text has no line.
QStringList textLines(const QString& text);

// HTMLFormValKeep.txt: the twenty fields, one a line, joined by CR LF
// (the writer ends the last one).
QString formValKeepText(const SiteSettings& settings);

} // namespace lumen
