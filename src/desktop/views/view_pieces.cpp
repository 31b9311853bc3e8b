// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/view_pieces.h"

#include <QFrame>
#include <QLabel>
#include <utility>

#include "desktop/drawings/drawings.h"
#include "desktop/qt_text.h"

namespace varnholt {
namespace {

/// A line in the colour of its window's hairlines, whatever the scheme becomes.
class Rule : public QWidget {
 public:
    Rule() {
        setFixedHeight(gridStep + 1);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(0, height() / 2, width(), 1, lookOf(palette()).hairline);
    }
};

QWidget* light(Binder& bind, const std::string& image, LinkPartner partner) {
    Drawing* lamp = newLinkLight(partner, bind.form()->texts());
    bind.drawing(image, lamp);
    lamp->setToolTip(lamp->description());
    lamp->setAccessibleName(lamp->description());
    return lamp;
}

}  // namespace

QWidget* page(QWidget* content) {
    constexpr int margin = 2 * gridStep;
    content->layout()->setContentsMargins(margin, margin, margin, margin);
    return content;
}

QWidget* bar(QWidget* content) {
    content->layout()->setContentsMargins(2 * gridStep, gridStep, 2 * gridStep, 0);
    return content;
}

QWidget* rule() { return new Rule; }

QWidget* hint(Binder& bind, int text, std::function<bool()> condition) {
    auto* label = new QLabel(qt(bind.text(text)));
    label->setProperty("unit", true);
    label->setWordWrap(true);
    const auto refresh = [label, condition = std::move(condition)] {
        label->setVisible(condition());
    };
    label->setVisible(false);
    if (bind.form() != nullptr) refresh();
    bind.onSettled(refresh);
    return label;
}

QWidget* linkLights(Binder& bind) {
    return row_(light(bind, "imgLinkLight(0)", LinkPartner::zones),
                light(bind, "imgLinkLight(8)", LinkPartner::block),
                light(bind, "imgLinkLight(6)", LinkPartner::none));
}

}  // namespace varnholt
