// Starting with files: the names on the command line (files dropped on the
// program's icon, say) become the list TempList.lst in the data folder, which
// is then opened as the show.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace lumen {

class VeroProcedure_Basical;

// What starting with files asks of the windows; the application wires these
// to them. An empty function does nothing.
struct StartWithFileHooks {
    std::function<void()> setCyberViewOn;             // CheckUseCyberView of FormMain to 1
    std::function<void()> showMainAndStop;            // FormStop at FormMain's position, both shown
    std::function<void(const QString&)> openFileList; // OpenFileList with a program-form path
    std::function<void()> endProgram;                 // End
    // A folder named on the command line, listed through the selection
    // window (its Dir1 set to it, then its listing); the files, one a line.
    // Without it the whole tree is walked.
    std::function<QStringList(const QString& folder)> listFolder;
};

class ModuleStartWithFile {
public:
    ModuleStartWithFile(VeroProcedure_Basical& basics, StartWithFileHooks hooks);

    // The whole start: the command line read, the list built and opened.
    // Without names on the command line nothing is built and nothing opened.
    void StartWithFile(const QStringList& nativeArguments);

    // Shows FormStop and joins the arguments (native paths, relative ones
    // taken against the process's working folder) in program form, parted by
    // one blank, as CommandLineText. A command line naming TempList.lst of
    // the data folder is refused with a message and ends the program (false).
    // Otherwise TempList0.dat in the settings folder gets one line
    // "Pos, <first>, <last>" per name (1-based positions in CommandLineText)
    // and, last, the command line itself. A stop ends the scan of names.
    bool ParseCommandLine(const QStringList& nativeArguments);

    // Reads TempList0.dat, cuts each name out of CommandLineText and writes
    // what the names contribute (folders their trees, lists their lines,
    // other names themselves) as TempList.lst in the data folder; then
    // deletes TempList0.dat. A stop ends the scan with the lines found so far.
    void BuildStartList();

    const QString& CommandLineText() const { return commandLineText_; }

private:
    QString programRunFile(const QString& name) const;
    QString dataFile(const QString& name) const;
    bool namesStartList() const;
    bool stopRequested();

    VeroProcedure_Basical& basics_;
    StartWithFileHooks hooks_;
    QString commandLineText_;
};

} // namespace lumen
