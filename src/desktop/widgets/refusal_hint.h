// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <string>

class QLabel;
class QWidget;

namespace varnholt {

/// A line beside a field that says why it holds another value than was typed. It lies over what
/// stands there, so that nothing moves under the hands of somebody who types, and takes no clicks.
/// Where it can it lies over nothing that is worked; what it does lie over is uncovered when the
/// focus comes to it, and the line is there again when the focus comes back to its field.
class RefusalHint {
 public:
    ~RefusalHint();

    void show(QWidget* field, const std::string& why);
    void hide();
    bool isShownFor(const QWidget* field, const std::string& why) const;
    QLabel* label() const { return label_; }

 private:
    void makeLabel();
    void follow(const QWidget* focused);

    QPointer<QLabel> label_;
    QPointer<QWidget> field_;
};

}  // namespace varnholt
