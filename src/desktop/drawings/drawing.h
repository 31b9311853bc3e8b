// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

#include "desktop/widgets/told_role.h"

namespace varnholt {

/// A picture drawn from the model. It is refreshed after every action of the user.
class Drawing : public QWidget {
 public:
    explicit Drawing(QWidget* parent = nullptr) : QWidget(parent) {
        tellAs(*this, QAccessible::Graphic);
    }

    /// Takes what is to be drawn from the form again. Called only while the drawing is on show.
    virtual void refresh() = 0;
    /// What the picture shows, for a screen reader.
    virtual QString description() const = 0;
    /// Draws a moment's attention, as a lamp that blinks.
    virtual void flash() {}
};

}  // namespace varnholt
