// FormMain: the media surfaces of a page: the video panel (MediaPlayer1),
// the MIDI and sound panel (MediaPlayer2), the web view and the CD window.
#include "show/FormMain.h"

#include "display/FormCDMusic.h"
#include "display/MediaPanel.h"
#include "display/PictureBox.h"
#include "display/WebBrowser.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/FileSystem.h"
#include "platform/Fonts.h"
#include "platform/FormRegistry.h"
#include "platform/Media.h"
#include "platform/Twips.h"
#include "state/ProgramState.h"

#include <QCheckBox>
#include <QPlainTextEdit>
#include <QUrl>

namespace lumen {
namespace {

using namespace basic;

constexpr double kMidiPanelWidth = 4300;
constexpr double kMidiPanelHeight = 3800;

} // namespace

void FormMain::openOnPanel(MediaPanel* panel, const QString& programPath)
{
    panel->Open(nativeOf(programPath));
}

void FormMain::ShowAvi()
{
    if (!KindAvi)
        return;
    CleareDisp(QStringLiteral("MPL"));
    MediaPlayer1->show();
    MediaPlayer1->raise();
    MediaPlayer1->setDisplaySize(MediaPanel::kDisplayVideoSize);
    openOnPanel(MediaPlayer1, mainFile());
    centreVideo();
}

void FormMain::centreVideo()
{
    MediaPlayer1->Move((twWidth(Picture1) - MediaPlayer1->Width()) / 2,
                       (twHeight(Picture1) - MediaPlayer1->Height()) / 2);
}

void FormMain::ShowMidi()
{
    CleareDisp(QStringLiteral("MPL"));
    MediaPlayer2->Stop();
    MediaPlayer2->setWidth(kMidiPanelWidth);
    MediaPlayer2->setHeight(kMidiPanelHeight);
    twMove(Picture2, 0, 0);
    MediaPlayer2->setAutoStart(true);
    openOnPanel(MediaPlayer2, mainFile());
    basics_.WaitMilliseconds(500);
    MediaPlayer2->Move(twLeft(Picture2), twTop(Picture2));
    twResize(Picture2, MediaPlayer2->Width(), MediaPlayer2->Height());
    PrepareShow();
    Picture2->show();
    MediaPlayer2->show();
    MediaPlayer2->raise();
    MediaPlayer2->Play();
    if (HasComment && !HideComment)
        showCommentWindow();
}

void FormMain::relayoutVideo(bool showIt)
{
    MediaPlayer1->setDisplaySize(MediaPanel::kDisplayDefault);
    centreVideo();
    if (showIt)
        MediaPlayer1->show();
}

void FormMain::setVideoFullScreen(bool on)
{
    MediaPlayer1->setFullScreen(on);
}

void FormMain::closeVideo()
{
    MediaPlayer1->Stop();
}

void FormMain::navigateWebAway()
{
    WebBrowser1->NavigateAway();
}

void FormMain::ShowWeb()
{
    CleareDisp(QStringLiteral("WEB"));
    state_.WebPageShown = true;
    companionRule(false);
    if ((KindXv3 || KindCo) && !CheckUseCyberView->isChecked()) {
        setBackColor(CheckUseCyberView, kColorYellow);
        return;
    }
    twMove(WebBrowser1, 0, 0, twWidth(Picture1), twHeight(Picture1));
    WebBrowser1->show();
    const QString main = mainFile();
    if (UCase(main).contains(QLatin1String(".MOV"))) {
        const QString wrapper = state_.ProgramRunDir + QStringLiteral("\\TempHTML.HTML");
        basics_.MakeMovieWrapperHtml(main, wrapper);
        basics_.WaitMilliseconds(100);
        WebBrowser1->Navigate(QUrl::fromLocalFile(nativeOf(wrapper)));
        playMovieOverWeb(main);
        return;
    }
    if (main.contains(QLatin1String("://")))
        WebBrowser1->Navigate(QUrl(main));
    else
        WebBrowser1->Navigate(QUrl::fromLocalFile(nativeOf(main)));
    basics_.WaitMilliseconds(100);
}

void FormMain::playMovieOverWeb(const QString& programPath)
{
    // A movie of a web page plays on a surface of its own over the web view;
    // it is none of the two media panels, so Auto Page doesn't wait for it.
    if (!movie_) {
        movie_ = new MediaPanel(QStringLiteral("MoviePanel"),
                                basics_.services().media.createEngine(true), Picture1);
    }
    movie_->setDisplaySize(MediaPanel::kDisplayVideoSize);
    movie_->Open(nativeOf(programPath));
    movie_->Move(0, 0, twWidth(Picture1), twHeight(Picture1));
    movie_->show();
    movie_->raise();
}

void FormMain::showCdPage(const QString& programPath)
{
    if (auto* cd = static_cast<FormCDMusic*>(forms_.form(QStringLiteral("FormCDMusic"))))
        cd->ShowCDMusic(programPath);
}

void FormMain::applyTextLook(const QString& name, const QString& size, const QString& ground,
                             const QString& letters)
{
    if (!name.isEmpty())
        Text1->setFont(fontFrom(Text1->font(), name, 0));
    if (!size.isEmpty())
        Text1->setFont(fontFrom(Text1->font(), QString(), Val(size)));
    // The two colour fields are crossed in the record: the one named for the
    // letters colours the ground, and the other the letters.
    if (!ground.isEmpty())
        setBackColor(Text1, bgrFromText(ground));
    if (!letters.isEmpty())
        setForeColor(Text1, bgrFromText(letters));
}

} // namespace lumen
