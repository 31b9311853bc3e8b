// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/figure_labels.h"

#include <QLabel>

#include "desktop/widgets/look.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {

QWidget* figureLabel(Binder& bind, const std::string& name) {
    auto* label = static_cast<QLabel*>(bind.widget(name));
    label->setFont(figureFont(label->font()));
    label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    return label;
}

QWidget* headLabel(Binder& bind, const std::string& name) {
    auto* label = static_cast<QLabel*>(bind.widget(name));
    // Figures stand at the right of their columns in every language.
    label->setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
    mute(label);
    return label;
}

}  // namespace varnholt
