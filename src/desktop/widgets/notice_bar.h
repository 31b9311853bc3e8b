// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFrame>
#include <QString>
#include <functional>

class QAbstractButton;
class QAccessibleEvent;
class QLabel;

namespace varnholt {

/// A line of what a person must know of a window, behind a sign, with a button for what can be done
/// about it. It is seen while its text is; its place is kept, so that nothing jumps under the hands
/// of somebody who types. Long texts wrap.
class NoticeBar : public QFrame {
 public:
    /// @param text what it tells, hidden while there is nothing
    /// @param action the button behind it, hidden where nothing can be done
    NoticeBar(QLabel* text, QAbstractButton* action);

    /// The sign before the text, by the name of its icon, where it is not that of older results.
    void setSign(const QString& icon);
    const QString& sign() const { return icon_; }
    /// Its least width while it tells something, whether it does now or not, in pixels.
    int leastWithText() const;

    /// Tells screen readers of a text that has changed since the last time.
    void announce();
    /// How they are told: by an alert, to whichever of them listen.
    std::function<void(QAccessibleEvent&)> tell;

    bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    void drawSign();
    void follow();

    QLabel* sign_;
    QString icon_ = QStringLiteral("stale");
    QLabel* text_;
    QString announced_;
};

}  // namespace varnholt
