// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>
#include <QVariant>
#include <functional>
#include <memory>

class QTextBrowser;
class QTextDocument;

namespace varnholt {

/// A widget that shows a page of text in the house's look, as modules know it.
class PageDisplay {
 public:
    virtual ~PageDisplay() = default;
    virtual QTextBrowser* widget() = 0;
    /// @param address  of the page, from which its relative addresses count; its fragment is the
    ///                 place to be shown
    virtual void showPage(const QUrl& address, const QString& html) = 0;
    /// The whole page as paper takes it, in dark ink whatever the screen's colours are.
    virtual std::unique_ptr<QTextDocument> printable() const = 0;

    /// A person follows a link.
    std::function<void(const QUrl& address)> onLink;
    /// Gives the bytes of a page's picture; nothing for one that is not to be shown.
    std::function<QVariant(const QUrl& address)> picture;
};

}  // namespace varnholt
