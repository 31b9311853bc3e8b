// SPDX-License-Identifier: GPL-3.0-or-later
// Labels, buttons, frames, pictures and tabs.
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

#include "desktop/binding/binder.h"
#include "desktop/binding/bound_control.h"
#include "desktop/widgets/desktop_texts.h"
#include "desktop/widgets/icons.h"
#include "desktop/widgets/qt_text.h"

namespace varnholt {
namespace {

class BoundLabel : public BoundControl {
 public:
    BoundLabel(Binder& binder, Control& control)
        : BoundControl(binder, control, new QLabel), label_(static_cast<QLabel*>(widget())) {
        label_->setTextFormat(Qt::PlainText);
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

 protected:
    void showForecolor() override {
        BoundControl::showForecolor();
        // The head of a mode's column has the mode's colour until the form gives it another.
        const QString mode = label_->property("mode").toString();
        if (mode.isEmpty() || control().forecolor() != colours::black) return;
        QPalette palette = label_->palette();
        palette.setColor(QPalette::WindowText,
                         mode == QLatin1String("cooling") ? look().cooling : look().heating);
        label_->setPalette(palette);
    }

 private:
    QLabel* label_;
};

class BoundButton : public BoundControl {
 public:
    BoundButton(Binder& binder, Control& control)
        : BoundControl(binder, control, new QPushButton),
          button_(static_cast<QPushButton*>(widget())) {
        button_->setAutoDefault(false);
        button_->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
        QObject::connect(button_, &QPushButton::clicked, &binder, [this] {
            // By its key the button is pressed without taking the focus.
            this->binder().endVisit(QApplication::focusWidget());
            this->binder().act(*this, [](Form& f, const std::string& name) { f.click(name); });
        });
        showAll();
    }

    void show(Property property) override {
        switch (property) {
            case Property::caption:
                button_->setText(buttonCaption(control().caption()));
                if (!control().caption().empty())
                    button_->setAccessibleName(qt(control().caption()));
                break;
            case Property::tooltip:
                BoundControl::show(property);
                if (control().caption().empty())
                    button_->setAccessibleName(qt(control().tooltip()));
                break;
            case Property::checked:
                button_->setCheckable(button_->isCheckable() || control().checked());
                button_->setChecked(control().checked());
                break;
            default:
                BoundControl::show(property);
        }
    }
    Shown shown(Property property) const override {
        if (property == Property::caption) return captionOfButton(button_->text());
        if (property == Property::checked) return button_->isChecked();
        return BoundControl::shown(property);
    }

 protected:
    void showBackcolor() override {
        const int colour = control().backcolor();
        button_->setProperty("backcolor", colour);
        const bool stale = colour == colours::stale;
        const bool alarm = colour == alarmRed;
        const QString usual = button_->property("usualTone").toString();
        setStyleProperty("tone", stale   ? QStringLiteral("stale")
                                 : alarm ? QStringLiteral("alarm")
                                         : usual);
        if (stale || alarm)
            button_->setIcon(houseIcon(QStringLiteral("stale")));
        else
            button_->setIcon(houseIconOf(button_->property("usualIcon").toString()));
        button_->setAccessibleDescription(
            stale || alarm ? qt(binder().text(desktop_texts::staleResults)) : QString());
    }

 private:
    static constexpr int alarmRed = 255;

    static QIcon houseIconOf(const QString& name) {
        return name.isEmpty() ? QIcon() : houseIcon(name);
    }

    QPushButton* button_;
};

class BoundFrame : public BoundControl {
 public:
    BoundFrame(Binder& binder, Control& control)
        : BoundControl(binder, control, new GroupBox), box_(static_cast<GroupBox*>(widget())) {
        showAll();
    }

    void show(Property property) override {
        if (property == Property::caption)
            box_->setTitle(qt(control().caption()));
        else if (property == Property::bold)
            bold_ = control().bold();
        else
            BoundControl::show(property);
    }
    Shown shown(Property property) const override {
        if (property == Property::caption) return plain(box_->title());
        // Titles are heavier than text anyway.
        if (property == Property::bold) return bold_;
        return BoundControl::shown(property);
    }

 protected:
    void showBackcolor() override { box_->setProperty("backcolor", control().backcolor()); }
    void showForecolor() override {
        box_->setProperty("forecolor", control().forecolor());
        QPalette palette = box_->titleLabel()->palette();
        palette.setColor(QPalette::WindowText, textColour(control().forecolor(), look()));
        box_->titleLabel()->setPalette(palette);
    }

 private:
    GroupBox* box_;
    bool bold_ = false;
};

class BoundImage : public BoundControl {
 public:
    BoundImage(Binder& binder, Control& control, QWidget* drawing)
        : BoundControl(binder, control, drawing != nullptr ? drawing : new QLabel) {
        showAll();
    }

    void show(Property property) override {
        // Its colours are those of the scheme.
        if (property == Property::backcolor)
            widget()->setProperty("backcolor", control().backcolor());
        else if (property == Property::forecolor)
            widget()->setProperty("forecolor", control().forecolor());
        else if (property == Property::caption)
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
        return BoundControl::shown(property);
    }

 private:
    void flash() {
        if (auto* drawing = dynamic_cast<Drawing*>(widget())) drawing->flash();
    }
};

class BoundTabs : public BoundControl {
 public:
    BoundTabs(Binder& binder, Control& control)
        : BoundControl(binder, control, new QTabWidget), tabs_(static_cast<QTabWidget*>(widget())) {
        tabs_->setDocumentMode(true);
        tabs_->setUsesScrollButtons(true);
        tabs_->tabBar()->setDrawBase(false);
        addPageKey(QKeySequence::fromString(QStringLiteral("Ctrl+PgDown")), 1);
        addPageKey(QKeySequence::fromString(QStringLiteral("Ctrl+PgUp")), -1);
        QObject::connect(tabs_, &QTabWidget::currentChanged, &binder, [this](int page) {
            this->binder().act(*this,
                               [page](Form& f, const std::string& name) { f.choose(name, page); });
        });
    }

    void show(Property property) override {
        if (property == Property::items) {
            const auto& items = control().items();
            for (int page = 0; page < tabs_->count(); ++page)
                if (static_cast<std::size_t>(page) < items.size())
                    tabs_->setTabText(page, buttonCaption(items[static_cast<std::size_t>(page)]));
        } else if (property == Property::index) {
            if (control().index() >= 0) tabs_->setCurrentIndex(control().index());
        } else {
            BoundControl::show(property);
        }
    }
    Shown shown(Property property) const override {
        if (property == Property::items) {
            std::vector<std::string> items;
            items.reserve(static_cast<std::size_t>(tabs_->count()));
            for (int page = 0; page < tabs_->count(); ++page)
                items.push_back(captionOfButton(tabs_->tabText(page)));
            return items;
        }
        // A form that never chose a page shows the first and knows of none.
        const int page = control().index() < 0 ? -1 : tabs_->currentIndex();
        if (property == Property::index) return page;
        if (property == Property::text)
            return page < 0 ? std::string() : captionOfButton(tabs_->tabText(page));
        return BoundControl::shown(property);
    }

 private:
    /// Keys that turn the pages, whichever field has the focus.
    void addPageKey(const QKeySequence& keys, int pages) {
        auto* shortcut = new QShortcut(keys, tabs_);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        QObject::connect(shortcut, &QShortcut::activated, tabs_, [this, pages] {
            const int count = tabs_->count();
            if (count > 0) tabs_->setCurrentIndex((tabs_->currentIndex() + pages + count) % count);
        });
    }

    QTabWidget* tabs_;
};

}  // namespace

std::unique_ptr<BoundControl> bindLabel(Binder& binder, Control& control) {
    return std::make_unique<BoundLabel>(binder, control);
}
std::unique_ptr<BoundControl> bindButton(Binder& binder, Control& control) {
    return std::make_unique<BoundButton>(binder, control);
}
std::unique_ptr<BoundControl> bindFrame(Binder& binder, Control& control) {
    return std::make_unique<BoundFrame>(binder, control);
}
std::unique_ptr<BoundControl> bindImage(Binder& binder, Control& control, QWidget* drawing) {
    return std::make_unique<BoundImage>(binder, control, drawing);
}
std::unique_ptr<BoundControl> bindTabs(Binder& binder, Control& control) {
    return std::make_unique<BoundTabs>(binder, control);
}

}  // namespace varnholt
