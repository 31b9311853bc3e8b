// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <string>

#include "desktop/paper/page_setup.h"
#include "desktop/paper/report_view.h"
#include "forms/texts.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;
class QToolBar;

namespace varnholt {

/// What the preview asks of the program around it.
struct PreviewServices {
    std::function<void(const std::string& message)> tell;
    /// Says in passing what has come of a command.
    std::function<void(const std::string& message)> note;
    /// Opens the help at what it says of previews.
    std::function<void()> help;
    /// The chosen path, empty when the dialog was cancelled.
    std::function<std::string(const std::string& name, int filterText)> chooseFile;
    /// How far laying out, or writing, has come; false breaks it off.
    PageLayout::Progress layingOut, writing;
};

/// A report before it is printed: its pages, and what can be done with them.
class ReportPreview : public QWidget {
 public:
    /// @param texts  must outlive the preview
    ReportPreview(std::shared_ptr<const Report> report, const PageSetup& setup, const Texts& texts,
                  PreviewServices services);

    ReportView& view() { return *view_; }
    const PageSetup& setup() const { return setup_; }
    /// Lays the report out for other paper. Where the user breaks that off, it stays as it is.
    void setSetup(const PageSetup& setup);
    /// Writes the report and notes where; what fails is told, and leaves nothing behind.
    void saveAs(const std::string& path);
    QSize sizeHint() const override { return {900, 900}; }

 protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

 private:
    void addTools();
    QAction* tool(QToolBar* bar, const char* name, int text, const char* keys,
                  void (ReportPreview::*run)());
    void addPageTools();
    void note(int text, const std::string& what);
    void addPaperTools();
    void addSearch();
    void showState();
    QString words(int text) const;

    void print();
    void savePdf() { save(".pdf"); }
    void saveHtml() { save(".html"); }
    void saveCsv() { save(".csv"); }
    void save(const std::string& extension);
    void copy();
    void previousPage();
    void nextPage();
    void search();
    void fitWidth() { view_->setFit(ReportView::Fit::width); }
    void fitPage() { view_->setFit(ReportView::Fit::page); }
    void larger() { view_->step(1); }
    void smaller() { view_->step(-1); }
    void toggleContinuous();
    void toggleLandscape();

    std::shared_ptr<const Report> report_;
    PageSetup setup_;
    const Texts& texts_;
    PreviewServices services_;
    QToolBar* fileBar_;
    QToolBar* pageBar_;
    ReportView* view_;
    QSpinBox* page_ = nullptr;
    QLabel* pages_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QComboBox* paper_ = nullptr;
    QLineEdit* search_ = nullptr;
    QAction* continuous_ = nullptr;
    QAction* landscape_ = nullptr;
};

}  // namespace varnholt
