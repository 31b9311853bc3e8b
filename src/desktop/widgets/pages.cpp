// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets/pages.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QPointer>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/widgets/look.h"

namespace varnholt {
namespace {

/// A line in the colour of its window's hairlines, whatever the scheme becomes.
class Rule : public QWidget {
 public:
    Rule() {
        setFixedHeight(gridStep / 2 + 1);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(0, height() / 2, width(), 1, lookOf(palette()).hairline);
    }
};

class Foot : public QWidget {
 public:
    explicit Foot(QWidget* content) {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(2 * gridStep, gridStep / 2 + 1, 2 * gridStep, gridStep / 2);
        layout->addWidget(content);
    }

 protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const Look& look = lookOf(palette());
        painter.fillRect(rect(), look.surface);
        painter.fillRect(0, 0, width(), 1, look.hairline);
    }
};

class Roomy : public QWidget {
 public:
    Roomy(QWidget* view, const QSize& least) : least_(least) {
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(view);
    }
    QSize sizeHint() const override {
        constexpr double usualPoints = 9;
        const double scale = std::max(1.0, font().pointSizeF() / usualPoints);
        return QWidget::sizeHint().expandedTo(least_ * scale);
    }
    /// Else its height would follow from its width alone.
    bool hasHeightForWidth() const override { return false; }

 private:
    QSize least_;
};

/// Scrolls to one part of a page when a panel of it opens or closes.
class Revealer : public QObject {
 public:
    Revealer(QWidget* panel, QEvent::Type when, QWidget* part)
        : QObject(panel), when_(when), part_(part) {
        panel->installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        // The page takes its new size first.
        if (event->type() == when_) QCoreApplication::postEvent(this, new QEvent(QEvent::User));
        return QObject::eventFilter(watched, event);
    }
    void customEvent(QEvent*) override {
        if (part_ != nullptr) reveal(part_);
    }

 private:
    QEvent::Type when_;
    QPointer<QWidget> part_;
};

}  // namespace

QWidget* page(QWidget* content) {
    content->layout()->setContentsMargins(2 * gridStep, gridStep, 2 * gridStep, gridStep);
    return content;
}

QWidget* bar(QWidget* content) {
    content->layout()->setContentsMargins(2 * gridStep, gridStep / 2, 2 * gridStep, 0);
    return content;
}

QWidget* foot(QWidget* content) { return new Foot(content); }

QWidget* gap() {
    auto* room = new QWidget;
    room->setFixedWidth(gridStep);
    return room;
}

QWidget* rule() { return new Rule; }

QWidget* roomy(QWidget* view, const QSize& least) { return new Roomy(view, least); }

void bringToSight(QWidget* widget) {
    for (QWidget* around = widget->parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        auto* tabs = qobject_cast<QTabWidget*>(around);
        for (int page = 0; tabs != nullptr && page < tabs->count(); ++page)
            if (tabs->widget(page)->isAncestorOf(widget)) tabs->setCurrentIndex(page);
    }
    // The places of what has just come to the front are known once it has been laid out.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    for (QWidget* around = widget->parentWidget(); around != nullptr;
         around = around->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(around)) area->ensureWidgetVisible(widget);
}

void reveal(const QWidget* panel) {
    QWidget* around = panel->parentWidget();
    while (around != nullptr && qobject_cast<QScrollArea*>(around) == nullptr)
        around = around->parentWidget();
    if (around == nullptr || panel->isHidden()) return;
    auto* area = static_cast<QScrollArea*>(around);
    const QRect place(panel->mapTo(area->widget(), QPoint(0, 0)), panel->size());
    // The end first and then the beginning, which counts more where not all fits.
    area->ensureVisible(place.left(), place.bottom(), 0, gridStep);
    area->ensureVisible(place.left(), place.top(), 0, gridStep);
}

void revealWhenOpened(QWidget* panel) { new Revealer(panel, QEvent::ShowToParent, panel); }

void revealWhenClosed(QWidget* panel, QWidget* instead) {
    new Revealer(panel, QEvent::HideToParent, instead);
}

}  // namespace varnholt
