// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTextBrowser>
#include <QTimer>

#include "desktop/reading/page_display.h"

namespace varnholt {

struct Look;

/// The toolkit's text browser in the house's look. It shows what it is given and decides nothing:
/// links go to onLink, pictures come from where they are asked for and nowhere else, scripts and
/// sheets of the page are left out.
///
/// A long page is laid out section by section, the first ones at once, so that it stands before
/// its end has been read. Shown again, as by a link to a place within it, it is not laid out again.
class PageBrowser : public QTextBrowser, public PageDisplay {
 public:
    explicit PageBrowser(QWidget* parent = nullptr);

    QTextBrowser* widget() override { return this; }
    void showPage(const QUrl& address, const QString& html) override;
    std::unique_ptr<QTextDocument> printable() const override;

 protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void changeEvent(QEvent* event) override;

 private:
    void layOut();
    bool addSection();
    void addAtLeisure();
    bool isReadNearItsEnd() const;
    void completePage();

    QUrl address_;
    QString html_;
    QStringList waiting_;
    QTimer more_;
};

/// The style sheet of pages in a look.
QString pageSheet(const Look& look);

}  // namespace varnholt
