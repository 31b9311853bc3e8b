// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recovery/recovered_windows.h"

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "catalogue/editor/frmHPEdit.h"
#include "design/ground_design.h"
#include "frame/varnmain.h"
#include "loads/import/frmImport1.h"
#include "loads/import/imported_loads_text.h"
#include "loads/links.h"
#include "loads/loads_window.h"
#include "persistence/design_files.h"
#include "persistence/project_commands.h"

namespace varnholt {
namespace {

UnsavedWork workOf(const GroundDesign& design) {
    UnsavedWork work;
    work.record.path = design.filePath();
    work.record.name = design.FileName.empty() ? design.caption() : design.FileName;
    work.record.known = design.openFile.known;
    work.record.isStale = design.isStale();
    work.record.savesUnderNewName = design.savesUnderNewName();
    // A project is short: making its bytes takes no longer than copying it.
    work.document = [text = projectText(design)] { return text; };
    return work;
}

UnsavedWork workOf(const LoadsWindow& loads) {
    UnsavedWork work;
    const LoadsDocument& document = loads.document();
    if (document.file.exists) work.record.path = joinPath(document.file.folder, document.file.name);
    work.record.name = work.record.path.empty() ? loads.caption() : document.file.name;
    if (!work.record.path.empty()) work.record.known = loads.knownFile();
    work.document = [data = document.data] { return zonesText(data); };
    return work;
}

UnsavedWork workOf(const frmHPEdit& editor) {
    UnsavedWork work;
    work.record.path = editor.seriesFile();
    work.record.name = fileNameOf(work.record.path);
    work.record.known = editor.knownFile();
    work.document = editor.seriesText();
    return work;
}

/// The importer has no file; what it holds is nobody else's.
UnsavedWork workOf(const frmImport1& importer) {
    UnsavedWork work;
    work.record.name = importer.caption();
    work.document = [loads = importer.loads()] { return importedLoadsText(loads); };
    return work;
}

const DesignFileKind* kindOfForm(const std::string& form) {
    for (const DesignFileKind& kind : designFileKinds())
        if (form == kind.form) return &kind;
    return nullptr;
}

ChildWindow* openLoads(Varnmain& main, const RecoveryRecord& record) {
    // The one window of its kind may have been opened for other work.
    if (main.find(record.form) != nullptr) return nullptr;
    LoadsWindow* loads = openLoadsWindow(main, record.form);
    if (loads == nullptr) return nullptr;
    loads->takeRecovered(record.document, record.path, record.known);
    return loads;
}

ChildWindow* openEditor(Varnmain& main, const RecoveryRecord& record) {
    if (main.find(record.form) != nullptr) return nullptr;
    main.click("EditAdd");
    auto* editor = dynamic_cast<frmHPEdit*>(main.find(record.form));
    if (editor == nullptr) return nullptr;
    if (editor->takeRecovered(record.document, record.path, record.known)) return editor;
    main.close(*editor);
    return nullptr;
}

ChildWindow* openImporter(Varnmain& main, const RecoveryRecord& record) {
    if (main.find(record.form) != nullptr) return nullptr;
    main.click("mnuMonthlyLoadsImport");
    auto* importer = dynamic_cast<frmImport1*>(main.find(record.form));
    if (importer == nullptr) return nullptr;
    ImportedLoads loads;
    try {
        readImportedLoads(record.document, loads);
    } catch (const RunTimeError&) {
        // What could be read of them is all that there is.
    }
    importer->takeRecovered(loads);
    return importer;
}

}  // namespace

std::optional<UnsavedWork> unsavedWorkOf(const ChildWindow& window) {
    std::optional<UnsavedWork> work;
    if (const auto* design = dynamic_cast<const GroundDesign*>(&window)) {
        if (design->isChanged()) work = workOf(*design);
    } else if (const auto* loads = dynamic_cast<const LoadsWindow*>(&window)) {
        if (loads->hasUnsavedChanges()) work = workOf(*loads);
    } else if (const auto* editor = dynamic_cast<const frmHPEdit*>(&window)) {
        if (editor->hasUnsavedPumps()) work = workOf(*editor);
    } else if (const auto* importer = dynamic_cast<const frmImport1*>(&window)) {
        if (importer->loads() != ImportedLoads{}) work = workOf(*importer);
    }
    if (work) work->record.form = window.formName();
    return work;
}

bool isDesignForm(const std::string& form) { return kindOfForm(form) != nullptr; }

ChildWindow* openRecovered(Varnmain& main, const RecoveryRecord& record) {
    main.hideSplash();
    if (kindOfForm(record.form) != nullptr)
        return openRecoveredDesign(main, *kindOfForm(record.form), record);
    if (record.form == "frmHPEdit") return openEditor(main, record);
    if (record.form == "frmImport1") return openImporter(main, record);
    return openLoads(main, record);
}

}  // namespace varnholt
