// The application: the program state, the services, the windows and their
// links, the start-up Main and the end. One Lumenta lives for the program's
// whole run.
#pragma once

#include "fileops/FormsBasicHost.h"
#include "fileops/VeroProcedure_Basical.h"
#include "platform/FormRegistry.h"
#include "platform/Services.h"
#include "settings/SetTargets.h"
#include "state/ProgramState.h"

#include <QStringList>
#include <functional>
#include <memory>

namespace lumen {

class FormEditText;
class FormEdit2;
class FormMain;
class FormSelectFile;
struct FormSelectFileLinks;
class FormStop;
class ModuleStartWithFile;

class Lumenta {
public:
    // `arguments` are the command line's names (native paths);
    // `programPath` the executable's own native path.
    Lumenta(const Services& services, QStringList arguments, const QString& programPath);
    ~Lumenta();

    // Main: the working folders, the settings record, the small settings
    // files, and the first window: the first-start window or FormMain.
    void Main();

    // Closes every window in the fixed order.
    void UnloadAllForms();

    // End: saves the record, hides every window, makes every wait give up,
    // and quits once the running handlers have unwound.
    void End();
    std::function<void()> quit; // how the program quits (the event loop's exit by default)
    bool ended() const { return ended_; }

    static const QStringList& unloadOrder();

    ProgramState& state() { return state_; }
    VeroProcedure_Basical& basics() { return basics_; }
    FormRegistry& forms() { return forms_; }
    FormMain& formMain();

private:
    void registerForms();
    void registerShowForms();
    void registerAutoPageForms(); // LumentaShowForms.cpp
    void registerPictureForms();  // LumentaPictureForms.cpp
    void registerBulkForms();     // LumentaBulkForms.cpp
    void registerBindingForms();  // LumentaBindingForms.cpp
    void registerEntryForms();    // LumentaEntryForms.cpp
    void wireEntryLinks(FormMain& main);
    FormEdit2& edit2();
    void wirePictureLinks(FormMain& main);
    void registerSelectForms();   // LumentaSelectForms.cpp
    FormSelectFile& selectFile(); // made and loaded
    void registerEditorForms();   // LumentaEditorForms.cpp
    void wireEditorLinks(FormSelectFileLinks& links);
    FormEditText& editText(); // made, not necessarily loaded
    void wireDropOnOpenFileList(FormMain& main);
    QList<QWidget*> selectEditTextControls(); // the selection's boxes, once it is made
    SetTargets setTargets();
    void openOneFile(const QString& file);
    void readSmallSettingsFiles();
    QString settingsFile(const QString& name) const;
    void saveRecord();

    Services services_;
    ProgramState state_;
    std::unique_ptr<FormStop> stop_;
    FormsBasicHost host_;
    VeroProcedure_Basical basics_;
    FormRegistry forms_;
    std::unique_ptr<ModuleStartWithFile> startWithFile_;
    QStringList arguments_;
    bool ended_ = false;
};

} // namespace lumen
