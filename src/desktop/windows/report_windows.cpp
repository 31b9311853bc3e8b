// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/windows/report_windows.h"

#include <QCloseEvent>
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
#include "desktop/windows/window_keys.h"
#include "desktop/windows/window_places.h"
#include "forms/platform.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/reports.h"
#include "reports/report_shelf.h"

namespace varnholt {
namespace {

constexpr const char* previewPlaces = "ReportPreview";

/// The window of a preview, which leaves word of its place when it goes.
class PreviewFrame : public QMdiSubWindow {
 public:
    explicit PreviewFrame(WindowPlaces* places) : places_(places) {
        setAttribute(Qt::WA_DeleteOnClose);
    }
    ~PreviewFrame() override {
        if (places_ != nullptr && own_.isValid())
            places_->keep(previewPlaces, {own_, maximised_, {}});
    }
    PreviewFrame(const PreviewFrame&) = delete;
    PreviewFrame& operator=(const PreviewFrame&) = delete;

 protected:
    /// The window that was in front before comes back, and not the first of all.
    void closeEvent(QCloseEvent* event) override {
        QMdiArea* area = mdiArea();
        const QList<QMdiSubWindow*> order =
            area == nullptr ? QList<QMdiSubWindow*>()
                            : area->subWindowList(QMdiArea::ActivationHistoryOrder);
        if (order.size() > 1 && order.back() == this)
            area->setActiveSubWindow(order[order.size() - 2]);
        QMdiSubWindow::closeEvent(event);
    }
    void moveEvent(QMoveEvent* event) override {
        QMdiSubWindow::moveEvent(event);
        notePlace();
    }
    void resizeEvent(QResizeEvent* event) override {
        QMdiSubWindow::resizeEvent(event);
        notePlace();
    }
    void showEvent(QShowEvent* event) override {
        QMdiSubWindow::showEvent(event);
        if (!isMaximized()) own_ = geometry();
    }
    /// It takes its new size before it is known to be maximised.
    void changeEvent(QEvent* event) override {
        QMdiSubWindow::changeEvent(event);
        if (event->type() == QEvent::WindowStateChange && isVisible() && !isMinimized())
            maximised_ = isMaximized();
    }

 private:
    void notePlace() {
        if (!isVisible() || isMinimized()) return;
        if (!isMaximized()) own_ = geometry();
    }

    WindowPlaces* places_;
    QRect own_;
    bool maximised_ = false;
};

}  // namespace

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
    services.note = [this](const std::string& message) { window_.tell(message); };
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
    auto* frame = new PreviewFrame(remembered_);
    frame->setWidget(shown);
    window_.area().addSubWindow(frame);
    leaveKeysToTheMenu(*frame);
    place(*frame, shown->sizeHint());
    QObject::connect(shown, &QObject::destroyed, &window_, [this] {
        QMetaObject::invokeMethod(
            &window_, [this] { window_.showArea(!window_.area().subWindowList().isEmpty()); },
            Qt::QueuedConnection);
    });
    return shown;
}

/// Where the last one was; else at the right, beside what it reports of.
void ReportWindows::place(QMdiSubWindow& frame, const QSize& usual) const {
    const QRect room(QPoint(0, 0), window_.area().viewport()->size());
    const auto left = remembered_ == nullptr ? std::nullopt : remembered_->placeOf(previewPlaces);
    const QSize size = usual.boundedTo(room.size());
    const QRect beside(QPoint(std::max(0, room.width() - size.width()), 0), size);
    frame.setGeometry(left ? fittedInto(room, left->geometry) : beside);
    frame.show();
    if (left && left->maximised) frame.showMaximized();
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
