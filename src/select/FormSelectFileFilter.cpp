// FormSelectFile: the filters of the file box: the extension boxes, the
// search word and the free extension.
#include "select/FormSelectFile.h"

#include "fileops/VeroProcedure_Basical.h"
#include "platform/Basic.h"
#include "platform/FileBoxes.h"
#include "select/SelectFilter.h"
#include "select/SelectionFiles.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>

namespace lumen {

ExtensionBoxes FormSelectFile::extensionBoxes() const
{
    ExtensionBoxes boxes;
    for (const QCheckBox* box : Check1) {
        boxes.names.append(box->text());
        boxes.checked.append(box->isChecked());
    }
    boxes.any = CheckANY->isChecked();
    return boxes;
}

void FormSelectFile::setExtensionBoxes(const ExtensionBoxes& boxes)
{
    for (size_t i = 0; i < Check1.size(); ++i)
        Check1[i]->setChecked(boxes.checked.value(qsizetype(i)));
    CheckANY->setChecked(boxes.any);
}

void FormSelectFile::setFilePattern(const QString& pattern)
{
    File1->setPattern(pattern);
}

void FormSelectFile::BuildPatternFromChecks(bool viaAny)
{
    ExtensionBoxes boxes = extensionBoxes();
    const QString pattern = patternFromChecks(boxes, viaAny);
    setExtensionBoxes(boxes);
    CurrentPattern = pattern == kNoFilesPattern ? QString() : pattern;
    setFilePattern(pattern);
}

void FormSelectFile::BuildPatternWithWord()
{
    setFilePattern(patternWithWord(ComboWordSerch->currentText(), extensionBoxes()));
}

void FormSelectFile::CommandSerc_Click()
{
    if (CheckExtWork->isChecked()) {
        BuildPatternWithWord();
        return;
    }
    setFilePattern(patternOfWordSearch(ComboWordSerch->currentText(), false, extensionBoxes(),
                                       frameUp(FrameExtSerch), TextSerchEXT->text()));
}

void FormSelectFile::CommandExtSelect_Click()
{
    ExtensionBoxes boxes = extensionBoxes();
    boxes.checked.fill(false);
    boxes.any = false;
    setExtensionBoxes(boxes);
    setFilePattern(patternOfExtension(TextSerchEXT->text()));
    writeOtherExtension(basics_, basic::Trim(TextSerchEXT->text()));
}

void FormSelectFile::CommandKeyInFilter_Click()
{
    FrameByWord->hide();
    FrameExtSerch->show();
    TextSerchEXT->setText(readOtherExtension(basics_).value_or(QStringLiteral("HTM")));
}

void FormSelectFile::CommandSerch_Click()
{
    const QStringList words = readSearchWords(basics_);
    ComboWordSerch->clear();
    ComboWordSerch->addItems(words);
    FrameExtSerch->hide();
    FrameByWord->show();
}

void FormSelectFile::ApplyCurrentFilter()
{
    if (frameUp(FrameByWord))
        CommandSerc_Click();
    else if (frameUp(FrameExtSerch))
        CommandExtSelect_Click();
    else
        BuildPatternFromChecks(false);
}

QString FormSelectFile::filterPattern() const
{
    if (frameUp(FrameByWord)) {
        return patternOfWordSearch(ComboWordSerch->currentText(), CheckExtWork->isChecked(),
                                   extensionBoxes(), frameUp(FrameExtSerch), TextSerchEXT->text());
    }
    if (frameUp(FrameExtSerch))
        return patternOfExtension(TextSerchEXT->text());
    ExtensionBoxes boxes = extensionBoxes();
    return patternFromChecks(boxes, false);
}

bool FormSelectFile::frameUp(const QWidget* frame) const
{
    // A frame put away by the large text still counts as up.
    return !frame->isHidden() || hiddenByLarge_.contains(const_cast<QWidget*>(frame));
}

} // namespace lumen
