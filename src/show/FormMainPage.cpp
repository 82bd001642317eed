// FormMain: the page of PicNo. The display of each kind of page joins here
// as the show's surfaces come to stand.
#include "show/FormMain.h"

#include "display/PictureBox.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/FileSystem.h"
#include "state/ProgramState.h"

#include <QLineEdit>

namespace lumen {

void FormMain::TakeMainAction()
{
    const QString main = state_.ListArray.at(kColMain, state_.PicNo);
    if (basics_.services().fs.dir(main).isEmpty()) {
        setWindowTitle(QStringLiteral("File Niot Found ") + main);
        Picture2->clearPicture();
        return;
    }
    setWindowTitle(QString());
    TextCount->setText(QString::number(state_.PicNo));
    TextFileName->setText(main);
}

void FormMain::PrepareShow() {}

void FormMain::RelayoutCurrentPage() {}

void FormMain::CheckAuto_With() {}

} // namespace lumen
