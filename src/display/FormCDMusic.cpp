#include "display/FormCDMusic.h"

#include "display/MMControl.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/Clock.h"
#include "platform/Colors.h"
#include "platform/Controls.h"
#include "platform/Media.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScopedValueRollback>

namespace lumen {

namespace {

using namespace basic;

QLineEdit* makeText(const QString& name, const QString& text, QWidget* parent)
{
    auto* edit = named<QLineEdit>(name, text, parent);
    edit->setAlignment(Qt::AlignRight);
    return edit;
}

} // namespace

FormCDMusic::FormCDMusic(VeroProcedure_Basical& basics, QWidget* parent)
    : FormBase(QStringLiteral("FormCDMusic"), parent)
    , basics_(basics)
{
    setWindowTitle(QStringLiteral("CD ミュージック"));
    const Services& services = basics_.services();

    MMControl1 = new MMControl(QStringLiteral("MMControl1"), services.media.cd(), services.fs,
                               services.clock, this);
    CheckOneMusic =
        named<QCheckBox>(QStringLiteral("CheckOneMusic"), QStringLiteral("一曲停止"), this);
    CommandSetTrack =
        named<QPushButton>(QStringLiteral("CommandSetTrack"), QStringLiteral("トラック指定"), this);
    TextMyTrack = makeText(QStringLiteral("TextMyTrack"), QStringLiteral("1"), this);
    Label2 = named<QLabel>(QStringLiteral("Label2"), QStringLiteral("/"), this);
    Label2->setAlignment(Qt::AlignCenter);
    TextTotalTrack = makeText(QStringLiteral("TextTotalTrack"), QStringLiteral("0"), this);

    // Places in twips, as the window was drawn.
    twMove(MMControl1, 45, 30, 2010, 360);
    twMove(CheckOneMusic, 2130, 30, 1440, 360);
    twMove(CommandSetTrack, 45, 420, 1500, 360);
    twMove(TextMyTrack, 1620, 420, 720, 360);
    twMove(Label2, 2340, 420, 240, 360);
    twMove(TextTotalTrack, 2580, 420, 720, 360);

    connect(CommandSetTrack, &QPushButton::clicked, this, &FormCDMusic::CommandSetTrack_Click);
    twMove(this, 0, 0, kFormWidth, kFormHeight);
}

void FormCDMusic::ShowCDMusic(const QString& programFormFile)
{
    showForm();
    MMControl1->setCommand(QStringLiteral("Stop"));
    MMControl1->setNotify(false);
    MMControl1->setWait(true);
    MMControl1->setShareable(false);
    MMControl1->setDeviceType(QStringLiteral("CDAudio"));
    MMControl1->setFileName(programFormFile);
    MMControl1->setCommand(QStringLiteral("Open"));
    TextTotalTrack->setText(QString::number(MMControl1->Tracks()));
}

void FormCDMusic::GetTrackFromName(const QString& FileName, qint16& Track)
{
    const int at = InStr(FileName, QStringLiteral("TRACK"));
    if (at == 0) {
        Track = 0;
        return;
    }
    const QString behind = Mid(FileName, at + 5);
    const QString number = Left(behind, InStr(behind, QStringLiteral(".CDA")) - 1);
    StoreInt16(Track, Val(number));
}

bool FormCDMusic::stepsMayGoOn() const
{
    return isLoaded() && !basics_.services().clock.ending();
}

void FormCDMusic::CommandSetTrack_Click()
{
    setBackColor(CommandSetTrack, kColorGreen);
    MMControl1->setCommand(QStringLiteral("Stop"));
    MMControl1->setCommand(QStringLiteral("Prev"));
    qint16 track = 0;
    for (;;) {
        // A track past the disc's end steps on for ever; closing the window
        // or the program ends it.
        if (!stepsMayGoOn()) {
            setBackColor(CommandSetTrack, kColorButtonFace);
            return;
        }
        qint16 wanted = 0;
        StoreInt16(wanted, Val(Trim(TextMyTrack->text())));
        track = MMControl1->Track();
        if (wanted == track)
            break;
        MMControl1->setCommand(QStringLiteral("Pause"));
        MMControl1->setCommand(wanted <= track ? QStringLiteral("Prev") : QStringLiteral("Next"));
        basics_.WaitMilliseconds(300);
    }
    MMControl1->setCommand(QStringLiteral("Play"));
    CurrentCDTrack = track;
    setBackColor(CommandSetTrack, kColorButtonFace);
}

void FormCDMusic::Form_Resize()
{
    if (inResize_ || (windowState() & Qt::WindowMinimized))
        return;
    const QScopedValueRollback guard(inResize_, true);
    if (windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        setWindowState(windowState() & ~(Qt::WindowMaximized | Qt::WindowFullScreen));
    twMove(this, 0, 0, kFormWidth, kFormHeight);
}

void FormCDMusic::Form_Unload(bool& cancel)
{
    Q_UNUSED(cancel);
    MMControl1->setCommand(QStringLiteral("Stop"));
}

void FormCDMusic::resizeEvent(QResizeEvent* event)
{
    FormBase::resizeEvent(event);
    Form_Resize();
}

void FormCDMusic::changeEvent(QEvent* event)
{
    FormBase::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        Form_Resize();
}

} // namespace lumen
