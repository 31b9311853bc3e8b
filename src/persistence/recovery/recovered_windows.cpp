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

RecoveryRecord workOf(const GroundDesign& design) {
    RecoveryRecord record;
    record.path = design.filePath();
    record.name = design.FileName.empty() ? design.caption() : design.FileName;
    record.known = design.openFile.known;
    record.isStale = design.isStale();
    record.savesUnderNewName = design.savesUnderNewName();
    record.document = projectText(design);
    return record;
}

RecoveryRecord workOf(const LoadsWindow& loads) {
    RecoveryRecord record;
    if (loads.file().exists) record.path = joinPath(loads.file().folder, loads.file().name);
    record.name = record.path.empty() ? loads.caption() : loads.file().name;
    if (!record.path.empty()) record.known = loads.knownFile();
    record.document = zonesText(loads.document().data);
    return record;
}

RecoveryRecord workOf(const frmHPEdit& editor) {
    RecoveryRecord record;
    record.path = editor.seriesFile();
    record.name = fileNameOf(record.path);
    record.document = editor.seriesText();
    return record;
}

/// The importer has no file; what it holds is nobody else's.
RecoveryRecord workOf(const frmImport1& importer) {
    RecoveryRecord record;
    record.name = importer.caption();
    record.document = importedLoadsText(importer.loads());
    return record;
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
    if (editor->takeRecovered(record.document, record.path)) return editor;
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

std::optional<RecoveryRecord> unsavedWorkOf(const ChildWindow& window) {
    std::optional<RecoveryRecord> record;
    if (const auto* design = dynamic_cast<const GroundDesign*>(&window)) {
        if (design->isChanged()) record = workOf(*design);
    } else if (const auto* loads = dynamic_cast<const LoadsWindow*>(&window)) {
        if (loads->hasUnsavedChanges()) record = workOf(*loads);
    } else if (const auto* editor = dynamic_cast<const frmHPEdit*>(&window)) {
        if (editor->hasUnsavedPumps()) record = workOf(*editor);
    } else if (const auto* importer = dynamic_cast<const frmImport1*>(&window)) {
        if (importer->loads() != ImportedLoads{}) record = workOf(*importer);
    }
    if (record) record->form = window.formName();
    return record;
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
