// SPDX-License-Identifier: GPL-3.0-or-later
// Labels and pictures.
#include <QLabel>
#include <QMouseEvent>
#include <functional>
#include <optional>
#include <utility>

#include "desktop/binding/binder.h"
#include "desktop/binding/bound_control.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"

namespace varnholt {
namespace {

/// A label that can be pressed, such as a cell of a table.
class PressedLabel : public TextLabel {
 public:
    explicit PressedLabel(std::function<void()> pressed) : pressed_(std::move(pressed)) {}

 protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton) pressed_();
    }

 private:
    std::function<void()> pressed_;
};

class BoundLabel : public BoundControl {
 public:
    BoundLabel(Binder& binder, Control& control)
        : BoundControl(binder, control, newLabel(binder, control.name())),
          label_(static_cast<QLabel*>(widget())) {
        showAll();
    }

    void show(Property property) override {
        if (property == Property::caption)
            label_->setText(qt(control().caption()));
        else
            BoundControl::show(property);
    }
    Shown shown(Property property) const override {
        if (property == Property::caption) return plain(label_->text());
        return BoundControl::shown(property);
    }

    void mark(Mode mode) override {
        mode_ = mode;
        colourText();
    }

 protected:
    void showForecolor() override {
        BoundControl::showForecolor();
        // The head of a mode's column has the mode's colour until the form gives it another.
        if (!mode_ || control().forecolor() != colours::black) return;
        QPalette palette = label_->palette();
        palette.setColor(QPalette::WindowText, mode_ == cooling ? look().cooling : look().heating);
        label_->setPalette(palette);
    }

 private:
    static TextLabel* newLabel(Binder& binder, const std::string& name) {
        if (binder.form() == nullptr || !binder.form()->takesClicks(name)) return new TextLabel;
        auto* label = new PressedLabel([&binder, name] {
            if (BoundControl* pressed = binder.find(name))
                binder.act(*pressed, [](Form& form, const std::string& own) { form.click(own); });
        });
        label->setCursor(Qt::IBeamCursor);
        return label;
    }

    QLabel* label_;
    std::optional<Mode> mode_;
};

class BoundImage : public BoundControl {
 public:
    BoundImage(Binder& binder, Control& control, QWidget* drawing)
        : BoundControl(binder, control, drawing != nullptr ? drawing : new QLabel) {
        showAll();
    }

    void show(Property property) override {
        if (property == Property::caption)
            widget()->setAccessibleName(qt(control().caption()));
        else if (property == Property::flash)
            flash();
        else
            BoundControl::show(property);
        if (property == Property::tooltip && control().caption().empty())
            widget()->setAccessibleName(qt(control().tooltip()));
    }
    Shown shown(Property property) const override {
        if (property == Property::caption) return control().caption();
        if (property == Property::description) return description();
        return BoundControl::shown(property);
    }

 protected:
    // Its colours are those of the scheme.
    void showBackcolor() override {}
    void showForecolor() override {}

 private:
    /// The sentence that the drawing tells, of what is to be drawn now; where only a screen reader
    /// has one, a script has none.
    std::string description() const {
        auto* drawing = dynamic_cast<Drawing*>(widget());
        const bool told =
            binder().form() != nullptr && !binder().form()->descriptionOf(control().name()).empty();
        if (drawing == nullptr || !told) return {};
        drawing->refresh();
        return plain(drawing->description());
    }

    void flash() {
        if (binder().isScripted()) return;
        if (auto* drawing = dynamic_cast<Drawing*>(widget())) drawing->flash();
    }
};

}  // namespace

std::unique_ptr<BoundControl> bindLabel(Binder& binder, Control& control) {
    return std::make_unique<BoundLabel>(binder, control);
}
std::unique_ptr<BoundControl> bindImage(Binder& binder, Control& control, QWidget* drawing) {
    return std::make_unique<BoundImage>(binder, control, drawing);
}

}  // namespace varnholt
