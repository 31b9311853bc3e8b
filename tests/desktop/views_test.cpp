// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QButtonGroup>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabWidget>
#include <functional>
#include <map>
#include <set>

#include "desk.h"
#include "desktop/binding/form_window.h"
#include "desktop/drawings/drawing.h"
#include "desktop/widgets/house_widgets.h"
#include "desktop/widgets/qt_text.h"
#include "frame/menu_table.h"
#include "sample_form.h"

namespace varnholt {
namespace {

using Inspect = std::function<void(Form&)>;

/// Shows every form that a menu entry opens, windows and dialogs, to the inspector.
void forEveryForm(Desk& desk, const Inspect& inspect) {
    std::set<std::string> seen;
    const auto once = [&](Form& form) {
        if (!seen.insert(form.formName()).second) return;
        SCOPED_TRACE(form.formName());
        inspect(form);
    };
    desk.platform.onModal = [&](Form& form) {
        once(form);
        form.endModal();
    };
    once(*desk.main().splash());
    for (const MenuRow& row : menuTable()) {
        const bool isEntry = row.menu != nullptr && row.captionText != 0;
        if (!isEntry || std::string(row.control) == "mnuFileExit") continue;
        if (desk.main().control(row.control).enabled()) desk.main().click(row.control);
    }
    for (ChildWindow* child : desk.main().windows()) once(*child);
    EXPECT_GE(seen.size(), 4U);
}

/// Builds all of the window and shows it at its usual size.
void showWhole(FormWindow& window) {
    window.binder().buildAll();
    dress(window);
    window.resize(window.sizeHint());
    window.show();
    Desk::settle();
}

/// The same with each form in a window that is all built and shown at its usual size.
void forEveryWindow(const std::function<void(Form&, FormWindow&)>& inspect) {
    Desk desk;
    const ViewRegistry views;
    forEveryForm(desk, [&](Form& form) {
        FormWindow window(form, views.maker(), {});
        showWhole(window);
        inspect(form, window);
    });
}

/// What a widget needs to be read whole.
QSize needOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (!label->wordWrap()) return label->sizeHint();
        return {0, label->heightForWidth(label->width())};
    }
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) return widget.sizeHint();
    return widget.minimumSizeHint();
}

/// Empty when the whole widget is in sight, else what is wrong with it.
std::string faultOf(const QWidget& widget, const QWidget& window) {
    if (!widget.isVisible()) return "is not visible";
    QSize need = needOf(widget);
    // A head gives way to its neighbours where they are long, and tells all of it as its tip.
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && !label->text().isEmpty() && label->toolTip() == label->text())
        need.setWidth(0);
    if (widget.width() < need.width() || widget.height() < need.height())
        return "has " + std::to_string(widget.width()) + " x " + std::to_string(widget.height()) +
               " and needs " + std::to_string(need.width()) + " x " + std::to_string(need.height());
    for (const QWidget* inner = &widget; inner != &window; inner = inner->parentWidget()) {
        const QWidget* around = inner->parentWidget();
        if (around == nullptr) return "stands in no window";
        // What lies beyond the edge of a page can be scrolled to.
        if (qobject_cast<const QScrollArea*>(around->parentWidget()) != nullptr) return {};
        if (!around->rect().contains(inner->geometry())) return "reaches beyond what holds it";
    }
    return {};
}

void bringToFront(const QWidget& widget) {
    for (QWidget* around = widget.parentWidget(); around != nullptr;
         around = around->parentWidget()) {
        auto* tabs = qobject_cast<QTabWidget*>(around);
        if (tabs == nullptr) continue;
        for (int page = 0; page < tabs->count(); ++page)
            if (tabs->widget(page)->isAncestorOf(&widget)) tabs->setCurrentIndex(page);
    }
}

void expectNothingClipped(Form& form, FormWindow& window) {
    for (const auto& control : form.controls()) {
        if (!form.isShown(*control) || control->name() == "tbrMain") continue;
        const BoundControl* bound = window.binder().find(control->name());
        ASSERT_NE(bound, nullptr) << control->name() << " stands nowhere in the view";
        const bool isEmptyLabel =
            control->kind() == ControlKind::label && control->caption().empty();
        if (isEmptyLabel || control->kind() == ControlKind::tabs) continue;
        bringToFront(*bound->widget());
        QCoreApplication::sendPostedEvents();
        EXPECT_EQ(faultOf(*bound->widget(), window), "") << control->name();
    }
}

struct Case {
    double scale;
    /// How much longer than English the captions are, as other languages are.
    double longer;
};

class Views : public testing::TestWithParam<Case> {
 protected:
    void SetUp() override {
        const QFont usual = QApplication::font();
        QFont scaled = usual;
        scaled.setPointSizeF(usual.pointSizeF() * GetParam().scale);
        QApplication::setFont(scaled);
    }

    void inspect(Form& form) const {
        for (const auto& control : form.controls()) lengthen(*control);
        FormWindow window(form, views_.maker(), {});
        showWhole(window);
        expectNothingClipped(form, window);
    }

 private:
    void lengthen(Control& control) const {
        const std::string caption = control.caption();
        const auto more =
            static_cast<std::size_t>(static_cast<double>(caption.size()) * GetParam().longer);
        if (more > 0) control.setCaption(caption + " " + std::string(more, 'n'));
    }

    ViewRegistry views_;

 protected:
    Desk desk;
};

TEST_P(Views, ShowEveryControlOfTheirFormWhole) {
    forEveryForm(desk, [this](Form& form) { inspect(form); });
}

TEST_P(Views, ShowEveryControlWholeOnceAllPanelsAreOpen) {
    forEveryForm(desk, [this](Form& form) {
        for (const auto& control : form.controls()) control->setVisible(true);
        inspect(form);
    });
}

TEST_P(Views, OfAFormWithoutAViewOfItsOwnAreWholeToo) {
    FakePlatform platform;
    FakeTexts texts;
    SampleForm form(platform, texts);
    inspect(form);
}

INSTANTIATE_TEST_SUITE_P(Scales, Views,
                         testing::Values(Case{1, 0}, Case{1.5, 0}, Case{2, 0}, Case{1, 0.4}),
                         [](const testing::TestParamInfo<Case>& each) {
                             return "At" +
                                    std::to_string(static_cast<int>(each.param.scale * 100)) +
                                    (each.param.longer > 0 ? "PercentWithLongTexts" : "Percent");
                         });

/// The widgets that Tab goes through, from the first.
std::vector<QWidget*> tabOrder(QWidget& window) {
    std::vector<QWidget*> order;
    QWidget* widget = &window;
    do {
        widget = widget->nextInFocusChain();
        const bool stops = (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                           widget->isVisibleTo(&window) && widget->isEnabled();
        if (stops && window.isAncestorOf(widget)) order.push_back(widget);
    } while (widget != &window);
    return order;
}

bool takesTheKeyboard(const Form& form, const Control& control) {
    switch (control.kind()) {
        case ControlKind::label:
        case ControlKind::frame:
        case ControlKind::image:
        case ControlKind::menu:
        case ControlKind::tabs:
        case ControlKind::upDown:  // the arrow keys of its field
            return false;
        default:
            return form.isShown(control) && control.enabled();
    }
}

/// Of options that exclude each other Tab stops at one, and the arrow keys go on from there.
bool isReached(const std::vector<QWidget*>& order, QWidget* widget) {
    const auto stopsAt = [&order](QWidget* each) {
        return std::find(order.begin(), order.end(), each) != order.end();
    };
    const auto* option = qobject_cast<QRadioButton*>(widget);
    if (option == nullptr || option->group() == nullptr) return stopsAt(widget);
    const QList<QAbstractButton*> options = option->group()->buttons();
    return std::any_of(options.begin(), options.end(), stopsAt);
}

TEST(Keyboard, ReachesEveryControlByTab) {
    forEveryWindow([](Form& form, FormWindow& window) {
        for (const auto& control : form.controls()) {
            if (!takesTheKeyboard(form, *control)) continue;
            QWidget* widget = window.binder().widget(control->name());
            bringToFront(*widget);
            EXPECT_TRUE(isReached(tabOrder(window), widget)) << control->name();
        }
    });
}

TEST(Keyboard, ComesToTheChosenOneOfOptionsThatExcludeEachOther) {
    int chosen = 0;
    forEveryWindow([&chosen](Form& form, FormWindow& window) {
        for (const auto& control : form.controls()) {
            if (control->kind() != ControlKind::option || !takesTheKeyboard(form, *control) ||
                !control->checked())
                continue;
            QWidget* widget = window.binder().widget(control->name());
            bringToFront(*widget);
            const std::vector<QWidget*> order = tabOrder(window);
            EXPECT_NE(std::find(order.begin(), order.end(), widget), order.end())
                << control->name();
            ++chosen;
        }
    });
    EXPECT_GT(chosen, 5);
}

TEST(Keyboard, GoesThroughTheFieldsOfAGroupFromTopToBottomAndLeftToRight) {
    forEveryWindow([](Form&, FormWindow& window) {
        const std::vector<QWidget*> order = tabOrder(window);
        for (std::size_t i = 1; i < order.size(); ++i) {
            const QWidget* before = order[i - 1];
            const QWidget* after = order[i];
            if (before->parentWidget() != after->parentWidget()) continue;
            const bool below = after->geometry().top() > before->geometry().bottom();
            const bool right =
                after->x() > before->x() && after->geometry().bottom() >= before->y();
            EXPECT_TRUE(below || right)
                << plain(before->objectName()) << " before " << plain(after->objectName());
        }
    });
}

TEST(Accessibility, GivesEveryFieldAName) {
    forEveryWindow([](Form& form, FormWindow& window) {
        for (const auto& control : form.controls()) {
            if (!takesTheKeyboard(form, *control)) continue;
            EXPECT_FALSE(window.binder().widget(control->name())->accessibleName().isEmpty())
                << control->name();
        }
    });
}

/// What a screen reader tells of a widget: what it is, and what it is called.
std::pair<int, std::string> toldOf(QWidget& widget) {
    const QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&widget);
    if (told == nullptr) return {};
    // Of a combo the system is told the name by its label, and as its text what is chosen.
    if (qobject_cast<QComboBox*>(&widget) != nullptr)
        return {told->role(), plain(widget.accessibleName())};
    return {told->role(), plain(told->text(QAccessible::Name))};
}

/// Everything that a person can work has a name, and no other thing of its window has it too.
void expectNamesOfTheirOwn(const Form& form, Binder& binder) {
    std::map<std::pair<int, std::string>, std::string> names;
    for (const auto& control : form.controls()) {
        if (!takesTheKeyboard(form, *control)) continue;
        const auto told = toldOf(*binder.widget(control->name()));
        EXPECT_NE(told.second, "") << control->name();
        const auto [other, isNew] = names.emplace(told, control->name());
        EXPECT_TRUE(isNew) << control->name() << " and " << other->second << " are both "
                           << told.second;
    }
}

/// A field with a unit behind it is called with the unit that stands there.
void expectUnitsInNames(const Form& form, Binder& binder) {
    for (const auto& control : form.controls()) {
        if (!takesTheKeyboard(form, *control) || !form.has(control->unitLabel())) continue;
        std::string unit = form.control(control->unitLabel()).caption();
        if (unit.starts_with('(')) unit = unit.substr(1, unit.size() - 2);
        const std::size_t first = unit.find_first_not_of(' ');
        if (first == std::string::npos) continue;
        unit = unit.substr(first, unit.find_last_not_of(" :") - first + 1);
        const std::string name = plain(binder.widget(control->name())->accessibleName());
        EXPECT_NE(name.find(unit), std::string::npos) << control->name() << " is " << name;
    }
}

/// Each picture that is drawn from the model is a picture, has a name, and says what it shows.
int expectSentences(Form& form, Binder& binder) {
    int pictures = 0;
    for (const auto& control : form.controls()) {
        if (control->kind() != ControlKind::image || !form.isShown(*control)) continue;
        auto* drawing = dynamic_cast<Drawing*>(binder.widget(control->name()));
        if (drawing == nullptr) continue;
        bringToFront(*drawing);
        Desk::settle();
        form.catchUp();
        drawing->refresh();
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(drawing);
        EXPECT_EQ(told->role(), QAccessible::Graphic) << control->name();
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << control->name();
        EXPECT_EQ(plain(drawing->description()), form.descriptionOf(control->name()))
            << control->name();
        EXPECT_NE(form.descriptionOf(control->name()), "") << control->name();
        ++pictures;
    }
    return pictures;
}

TEST(Accessibility, CallsNoTwoControlsOfAWindowAlikeAndNoneNothing) {
    forEveryWindow([](Form& form, FormWindow& window) {
        expectNamesOfTheirOwn(form, window.binder());
        expectSentences(form, window.binder());
    });
}

TEST(Accessibility, TellsTheUnitsOfFieldsAsTheyAreShown) {
    Desk desk;
    ViewRegistry views;
    forEveryForm(desk, [&](Form& form) {
        FormWindow window(form, views.maker(), {});
        window.binder().buildAll();
        expectUnitsInNames(form, window.binder());
        if (!form.has("MetricCheck")) return;
        form.click("MetricCheck");
        expectUnitsInNames(form, window.binder());
    });
    const std::vector<ChildWindow*> open = desk.main().windows();
    Form& zones = **std::find_if(open.begin(), open.end(), [](const ChildWindow* each) {
        return each->formName() == "frmAvgBlock";
    });
    FormWindow window(zones, views.maker(), {});
    window.binder().buildAll();
    const QWidget* gains = window.binder().widget("LOGainsText(0)");
    EXPECT_EQ(plain(gains->accessibleName()), "Heat Gains, 8 a.m. - Noon, kW");
    zones.click("MetricCheck");
    EXPECT_EQ(plain(gains->accessibleName()), "Heat Gains, 8 a.m. - Noon, MBtu/Hr");
}

/// The same with loads, pumps and lengths in the windows.
TEST(Accessibility, TellsEveryControlAndPictureOfTheExamples) {
    std::set<std::string> seen;
    int pictures = 0;
    for (const char* example : {"office", "house", "trench-office", "school-pond"}) {
        SCOPED_TRACE(example);
        Desk desk;
        desk.window->openFiles({desk.folder() + "/work files/" + example + ".vht"});
        ASSERT_EQ(desk.main().windows().size(), 2U);
        for (const char* command : {"CASecondOpinionCommand", "CAWhatIfCommand"})
            for (ChildWindow* child : desk.main().windows())
                if (child->has(command)) child->click(command);
        for (ChildWindow* child : desk.main().windows()) {
            SCOPED_TRACE(child->formName());
            seen.insert(child->formName());
            child->catchUp();
            Binder& binder = desk.shelf.windowOf(*child)->binder();
            binder.buildAll();
            expectNamesOfTheirOwn(*child, binder);
            pictures += expectSentences(*child, binder);
        }
    }
    EXPECT_EQ(seen, (std::set<std::string>{"frmBHDesign", "frmHZDesign", "frmSWDesign",
                                           "frmSecondOpinion", "frmWhatIf", "frmZoneManage"}));
    EXPECT_GT(pictures, 25);
}

}  // namespace
}  // namespace varnholt
