// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

#include "desktop/paper/page_setup.h"
#include "forms/texts.h"

class QElapsedTimer;
class QMdiSubWindow;
class QProgressDialog;
class QSize;

namespace varnholt {

class MainWindow;
class Platform;
struct Report;
class ReportPreview;
class ReportShelf;
class WindowPlaces;

/// Lets the shelf write reports as PDF, on the paper that is usual in the locale.
void writePdfWith(ReportShelf& shelf, const Texts& texts, unsigned localeNumber);

/// The previews of reports, each in a window of its own beside the forms' windows.
class ReportWindows {
 public:
    /// All must outlive it.
    ReportWindows(MainWindow& window, Platform& platform, ReportShelf& shelf, const Texts& texts,
                  unsigned localeNumber);
    ~ReportWindows();

    /// Previews open where a person has left the last one, and are kept there when they close.
    /// @param places  outlives the previews
    void rememberPlaces(WindowPlaces& places) { remembered_ = &places; }
    /// Opens a preview. Null where the user has broken off laying it out.
    ReportPreview* show(std::shared_ptr<const Report> report);
    /// The paper of the previews to come.
    const PageSetup& setup() const { return setup_; }

 private:
    void setUpPrinter();
    void tell(const std::string& message);
    bool progress(int what, std::size_t done, std::size_t total);
    void place(QMdiSubWindow& frame, const QSize& usual) const;

    MainWindow& window_;
    Platform& platform_;
    ReportShelf& shelf_;
    const Texts& texts_;
    WindowPlaces* remembered_ = nullptr;
    PageSetup setup_;
    std::unique_ptr<QProgressDialog> progress_;
    std::unique_ptr<QElapsedTimer> started_;
};

}  // namespace varnholt
