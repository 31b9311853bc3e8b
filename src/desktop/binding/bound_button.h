// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include "desktop/binding/bound_control.h"

class QPushButton;

namespace varnholt {

/// A button. The colours of stale results and of alarms come with a sign beside the caption.
class BoundButton : public BoundControl {
 public:
    BoundButton(Binder& binder, Control& control);

    /// Makes it the one that its window is about.
    void makePrimary();
    /// Gives it the look of a button whose results are older than what they come from, whatever
    /// colour the form has given it: the form learns of changed loads once its window is active.
    void setOlder(bool older);
    /// Puts a drawn icon beside the caption.
    void setIcon(const QString& icon);

    void show(Property property) override;
    Shown shown(Property property) const override;

 protected:
    void showBackcolor() override;

 private:
    QPushButton* button_;
    QString tone_, icon_;
    bool older_ = false;
};

}  // namespace varnholt
