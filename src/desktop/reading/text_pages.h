// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QTimer>
#include <QUrl>

#include "desktop/reading/page_widget.h"
#include "tools/page_reader.h"

namespace varnholt {

class PageBrowser;

/// The engine for pages of this computer: a text browser, which knows no scripts and opens no
/// connection.
class TextPages : public PageReader, public PageWidget {
 public:
    TextPages(PageEvents& events, const PagePlaces& places);
    ~TextPages() override;

    QWidget* widget() override;
    void runTimer(bool on) override;
    void stop() override;

 protected:
    void begun() override;
    void show(const PageAddress& address, const std::string& bytes) override;

 private:
    /// A person's click on a link. An example opens from a page of the help alone.
    void follow(const QUrl& link, const QString& helpFolder);

    QPointer<PageBrowser> browser_;
    QTimer load_, timer_;
};

}  // namespace varnholt
