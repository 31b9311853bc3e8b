// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/view_pieces.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>
#include <utility>

#include "desktop/drawings/drawings.h"
#include "desktop/widgets/qt_text.h"

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

class Roomy : public QWidget {
 public:
    Roomy(QWidget* view, const QSize& least) : least_(least) {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view);
    }
    QSize sizeHint() const override { return QWidget::sizeHint().expandedTo(least_); }
    /// Else its height would follow from its width alone.
    bool hasHeightForWidth() const override { return false; }

 private:
    QSize least_;
};

class Revealer : public QObject {
 public:
    explicit Revealer(QWidget* panel) : QObject(panel), panel_(panel) {
        panel->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        // The page takes its new size first.
        if (event->type() == QEvent::ShowToParent)
            QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        return QObject::eventFilter(watched, event);
    }
    void customEvent(QEvent*) override { reveal(); }

 private:
    void reveal() {
        QWidget* around = panel_->parentWidget();
        while (around != nullptr && qobject_cast<QScrollArea*>(around) == nullptr)
            around = around->parentWidget();
        if (around == nullptr || panel_->isHidden()) return;
        auto* area = static_cast<QScrollArea*>(around);
        const QRect place(panel_->mapTo(area->widget(), QPoint(0, 0)), panel_->size());
        // The end first and then the beginning, which counts more where not all fits.
        area->ensureVisible(place.left(), place.bottom(), 0, gridStep);
        area->ensureVisible(place.left(), place.top(), 0, gridStep);
    }

    QWidget* panel_;
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

QWidget* named(Binder& bind, const std::string& control, const std::string& caption) {
    QWidget* widget = bind.widget(control);
    widget->setAccessibleName(qt(bind.form()->control(caption).caption()));
    return widget;
}

QWidget* gap() {
    auto* room = new QWidget;
    room->setFixedWidth(gridStep);
    return room;
}

QWidget* roomy(QWidget* view, const QSize& least) { return new Roomy(view, least); }

void revealWhenOpened(QWidget* panel) { new Revealer(panel); }

QWidget* rule() { return new Rule; }

QWidget* hint(Binder& bind, int text, std::function<bool()> condition) {
    auto* label = new QLabel(qt(bind.text(text)));
    label->setProperty("unit", true);
    label->setWordWrap(true);
    const auto refresh = [label, condition = std::move(condition)] {
        // A label without a parent would open as a window of its own.
        const bool shown = condition();
        if (!shown || label->parentWidget() != nullptr) label->setVisible(shown);
    };
    refresh();
    bind.onSettled(refresh);
    return label;
}

QWidget* linkLights(Binder& bind) {
    return row_(light(bind, "imgLinkLight(0)", LinkPartner::zones),
                light(bind, "imgLinkLight(8)", LinkPartner::block),
                light(bind, "imgLinkLight(6)", LinkPartner::none));
}

}  // namespace varnholt
