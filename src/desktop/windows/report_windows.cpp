// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/report_windows.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProgressDialog>

#include "basis/file_system.h"
#include "desktop/paper/pdf_file.h"
#include "desktop/paper/print_module.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/windows/desktop_platform.h"
#include "desktop/windows/main_window.h"
#include "desktop/windows/report_preview.h"
#include "forms/platform.h"
#include "forms/text_numbers.h"
#include "reports/report_shelf.h"

namespace varnholt {

void writePdfWith(ReportShelf& shelf, const Texts& texts, unsigned localeNumber) {
    shelf.writePdf = [&texts, localeNumber](const Report& report, const std::string& path) {
        const QPageLayout paper = usualPage(localeNumber).layoutFor(report);
        const PageLayout pages(std::make_shared<const Report>(report), paper);
        replaceWholeFile(path, pdfOf(pages, paper, texts));
    };
}

ReportWindows::ReportWindows(MainWindow& window, Platform& platform, ReportShelf& shelf,
                             const Texts& texts, unsigned localeNumber)
    : window_(window),
      platform_(platform),
      shelf_(shelf),
      texts_(texts),
      setup_(usualPage(localeNumber)),
      started_(std::make_unique<QElapsedTimer>()) {
    writePdfWith(shelf_, texts_, localeNumber);
    shelf_.onShown = [this](const std::shared_ptr<const Report>& report) { show(report); };
    shelf_.onPrintSetup = [this] { setUpPrinter(); };
}

ReportWindows::~ReportWindows() {
    shelf_.onShown = nullptr;
    shelf_.onPrintSetup = nullptr;
    shelf_.writePdf = nullptr;
}

ReportPreview* ReportWindows::show(std::shared_ptr<const Report> report) {
    PreviewServices services;
    services.tell = [this](const std::string& message) { tell(message); };
    services.help = [this] { window_.explain("mnuFilePrintSetup"); };
    services.chooseFile = [this](const std::string& name, int filterText) {
        return platform_
            .chooseFile({.saving = true,
                         .title = texts_.text(Text::saveReportTitle),
                         .folder = {},
                         .proposedName = name,
                         .filter = texts_.text(filterText),
                         .overwritePrompt = true})
            .value_or(std::string());
    };
    services.layingOut = [this](std::size_t done, std::size_t total) {
        return progress(Text::layingOutReport, done, total);
    };
    services.writing = [this](std::size_t done, std::size_t total) {
        return progress(Text::writingReport, done, total);
    };
    auto preview = std::make_unique<ReportPreview>(report, setup_, texts_, std::move(services));
    if (!preview->view().pages()->isComplete()) return nullptr;
    ReportPreview* shown = preview.release();
    window_.showArea(true);
    QMdiSubWindow* frame = window_.area().addSubWindow(shown);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    const QSize room = window_.area().viewport()->size();
    frame->resize(shown->sizeHint().boundedTo(room));
    frame->move(std::max(0, room.width() - frame->width()), 0);
    frame->show();
    QObject::connect(shown, &QObject::destroyed, &window_, [this] {
        QMetaObject::invokeMethod(
            &window_, [this] { window_.showArea(!window_.area().subWindowList().isEmpty()); },
            Qt::QueuedConnection);
    });
    return shown;
}

void ReportWindows::tell(const std::string& message) {
    progress_.reset();
    platform_.message(MessageIcon::exclamation, texts_.text(Text::programTitle), message);
}

bool ReportWindows::progress(int what, std::size_t done, std::size_t total) {
    if (done == 0) started_->start();
    if (done >= total) {
        progress_.reset();
        return true;
    }
    if (started_->elapsed() < quietTime) return true;
    if (!progress_) {
        progress_ = std::make_unique<QProgressDialog>(
            qt(texts_.text(what)), qt(texts_.text(Text::breakOff)), 0, static_cast<int>(total),
            window_.dialogParent());
        progress_->setWindowModality(Qt::ApplicationModal);
        progress_->setMinimumDuration(0);
    }
    progress_->setMaximum(static_cast<int>(total));
    progress_->setValue(static_cast<int>(done));
    QCoreApplication::processEvents();
    if (!progress_->wasCanceled()) return true;
    progress_.reset();
    return false;
}

void ReportWindows::setUpPrinter() {
    PrintModule* module = findPrintModule();
    if (module == nullptr) return tell(texts_.text(Text::printPartMissing));
    QPageLayout paper = setup_.layoutFor(Report());
    if (module->setUp(window_.dialogParent(), paper)) setup_.take(paper);
}

}  // namespace varnholt
