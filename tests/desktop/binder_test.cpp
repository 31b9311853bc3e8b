// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/binder.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabBar>
#include <stdexcept>
#include <string>

#include "desktop/binding/form_window.h"
#include "desktop/views/view_registry.h"
#include "desktop/widgets/list_view.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/theme.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/loads.h"
#include "sample_form.h"

namespace varnholt {
namespace {

using Events = std::vector<std::string>;

class BinderTest : public testing::Test {
 protected:
    BinderTest() : form(platform, texts) {
        static const bool dressed = (applyTheme(*qApp, Scheme::light), true);
        EXPECT_TRUE(dressed);
        window = std::make_unique<FormWindow>(
            form, views.maker(),
            [this](std::exception_ptr fault) { faults.push_back(std::move(fault)); });
        dress(*window);
        window->show();
    }

    template <class Widget>
    Widget* find(const std::string& name) {
        return static_cast<Widget*>(window->binder().widget(name));
    }
    Control& control(const std::string& name) { return form.control(name); }
    std::string text(const std::string& name, Property property = Property::text) {
        return std::get<std::string>(window->binder().find(name)->shown(property));
    }
    static void press(QWidget* widget, int key, const QString& text = {},
                      Qt::KeyboardModifiers held = Qt::NoModifier) {
        QKeyEvent down(QEvent::KeyPress, key, held, text);
        QCoreApplication::sendEvent(widget, &down);
    }
    static void loseFocus(QWidget* widget, Qt::FocusReason reason = Qt::TabFocusReason) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(widget, &out);
    }

    FakePlatform platform;
    FakeTexts texts;
    SampleForm form;
    ViewRegistry views;
    std::vector<std::exception_ptr> faults;
    std::unique_ptr<FormWindow> window;
};

TEST_F(BinderTest, AKeystrokeReachesTheFormOnce) {
    press(find<QWidget>("NameText"), Qt::Key_A, QStringLiteral("a"));
    EXPECT_EQ(control("NameText").text(), "a");
    EXPECT_EQ(form.events, (Events{"change NameText"}));
}

TEST_F(BinderTest, ATextThatCodeWritesIsShownAndRaisesNothing) {
    control("NameText").setText("Riverside");
    control("NotesRichTextBox").setText("two\r\nlines");
    EXPECT_EQ(text("NameText"), "Riverside");
    EXPECT_EQ(text("NotesRichTextBox"), "two\r\nlines");
    EXPECT_TRUE(form.events.empty());
}

TEST_F(BinderTest, ATextThatIsTooLongForItsFieldIsShownInPartAndStaysWhole) {
    auto* line = find<QLineEdit>("NameText");
    auto* notes = find<QPlainTextEdit>("NotesRichTextBox");
    // The last letter that fits would be cut in two: one byte stands before letters of two.
    std::string name = "n", comment = "n";
    for (int i = 0; i < 60'000; ++i) name += "\u00E9";
    for (int i = 0; i < 600'000; ++i) comment += "\u00E9";
    control("NameText").setText(name);
    control("NotesRichTextBox").setText(comment);
    EXPECT_EQ(line->text().size(), 1 + 49'999);
    EXPECT_TRUE(notes->toPlainText().size() == 1 + 499'999);
    EXPECT_TRUE(line->isReadOnly());
    EXPECT_TRUE(notes->isReadOnly());
    EXPECT_EQ(plain(line->toolTip()), "[8565]");
    EXPECT_TRUE(text("NameText") == name);
    EXPECT_TRUE(text("NotesRichTextBox") == comment);
    press(line, Qt::Key_A, QStringLiteral("a"));
    press(notes, Qt::Key_A, QStringLiteral("a"));
    QCoreApplication::processEvents();
    EXPECT_TRUE(control("NameText").text() == name);
    EXPECT_TRUE(control("NotesRichTextBox").text() == comment);
    EXPECT_TRUE(form.events.empty());
    control("NameText").setText("short");
    control("NotesRichTextBox").setText("short");
    EXPECT_FALSE(line->isReadOnly());
    EXPECT_FALSE(notes->isReadOnly());
    EXPECT_EQ(plain(line->toolTip()), "");
    press(line, Qt::Key_End);
    press(line, Qt::Key_A, QStringLiteral("a"));
    EXPECT_EQ(control("NameText").text(), "shorta");
}

TEST_F(BinderTest, ARefusedValueIsReplacedInTheFieldAndMarkedByMoreThanColour) {
    auto* edit = find<QLineEdit>("DepthText");
    edit->selectAll();
    press(edit, Qt::Key_9, QStringLiteral("999"));
    EXPECT_EQ(plain(edit->text()), "20.0");
    EXPECT_EQ(form.depth, 20);
    EXPECT_EQ(edit->actions().size(), 1);
    EXPECT_EQ(plain(edit->accessibleDescription()), "[1237]");  // why, with the range
    edit->selectAll();
    press(edit, Qt::Key_5, QStringLiteral("5"));
    EXPECT_TRUE(edit->actions().isEmpty());
    EXPECT_TRUE(edit->accessibleDescription().isEmpty());
}

TEST_F(BinderTest, TypingDoesNotMoveTheCursor) {
    auto* edit = find<QLineEdit>("NameText");
    control("NameText").setText("abcd");
    edit->setCursorPosition(2);
    press(edit, Qt::Key_X, QStringLiteral("x"));
    EXPECT_EQ(control("NameText").text(), "abxcd");
    EXPECT_EQ(edit->cursorPosition(), 3);
}

TEST_F(BinderTest, AFieldIsLeftWhenTheFocusGoesForGood) {
    QWidget* edit = find<QWidget>("DepthText");
    loseFocus(edit, Qt::ActiveWindowFocusReason);
    loseFocus(edit, Qt::PopupFocusReason);
    EXPECT_TRUE(form.events.empty());
    loseFocus(edit);
    EXPECT_EQ(form.events, (Events{"leave DepthText"}));
}

TEST_F(BinderTest, AScriptedFieldIsNotLeftByTheFocus) {
    window->binder().setScripted();
    loseFocus(find<QWidget>("DepthText"));
    EXPECT_TRUE(form.events.empty());
}

TEST_F(BinderTest, EnterGoesToTheFieldsThatTakeKeys) {
    press(find<QWidget>("NameText"), Qt::Key_Return);
    press(find<QWidget>("DepthText"), Qt::Key_Return);
    EXPECT_EQ(form.events, (Events{"key Enter"}));
}

TEST_F(BinderTest, PastingOverTheWholeTextReplacesIt) {
    platform.clipboardText = "12.5";
    auto* edit = find<QLineEdit>("DepthText");
    control("DepthText").setText("7.0");
    edit->selectAll();
    press(edit, Qt::Key_V, {}, Qt::ControlModifier);
    EXPECT_EQ(form.depth, 12.5);
    EXPECT_EQ(plain(edit->text()), "12.5");
}

TEST_F(BinderTest, AnAmpersandOfACaptionIsShownAsOne) {
    // With the key that is marked in it.
    EXPECT_EQ(plain(find<QAbstractButton>("GoCommand")->text()), "&R&&D");
    EXPECT_EQ(text("GoCommand", Property::caption), "R&D");
    EXPECT_EQ(plain(find<GroupBox>("MainFrame")->title()), "Heat & Power");
}

TEST(Captions, MarkAKeyOnlyWhereAWordBegins) {
    EXPECT_EQ(plain(buttonCaption("&System Info...")), "&System Info...");
    EXPECT_EQ(plain(buttonCaption("Heat & Power")), "Heat && Power");
    EXPECT_EQ(captionOfButton(buttonCaption("Heat & Power")), "Heat & Power");
}

TEST_F(BinderTest, AButtonClicks) {
    find<QAbstractButton>("GoCommand")->click();
    EXPECT_EQ(form.events, (Events{"click GoCommand"}));
}

TEST_F(BinderTest, AComboTellsWhatAPersonChoosesAndShowsWhatCodeChooses) {
    auto* combo = find<QComboBox>("KindCombo");
    EXPECT_EQ(combo->currentIndex(), -1);
    combo->activated(2);
    EXPECT_EQ(control("KindCombo").text(), "Glycol");
    control("KindCombo").setIndex(1);
    EXPECT_EQ(plain(combo->currentText()), "Methanol");
    EXPECT_EQ(form.events, (Events{"click KindCombo"}));
}

TEST_F(BinderTest, AComboShowsATextThatIsNoEntry) {
    control("KindCombo").setText("Brine");
    EXPECT_EQ(plain(find<QComboBox>("KindCombo")->placeholderText()), "Brine");
    EXPECT_EQ(text("KindCombo"), "Brine");
}

TEST_F(BinderTest, AComboWhoseChoiceIsTakenAwayShowsNone) {
    control("KindCombo").setIndex(0);
    control("KindCombo").setItems({"Water", "Methanol", "Glycol"}).setText({});
    EXPECT_EQ(find<QComboBox>("KindCombo")->currentIndex(), -1);
    EXPECT_EQ(text("KindCombo"), "");
}

TEST_F(BinderTest, AnEditableComboIsTypedIn) {
    auto* combo = find<QComboBox>("SizeCombo");
    press(combo, Qt::Key_3, QStringLiteral("3"));
    EXPECT_EQ(control("SizeCombo").text(), "3");
    press(combo, Qt::Key_Return);
    EXPECT_EQ(combo->count(), 2);
    EXPECT_EQ(form.events, (Events{"change SizeCombo"}));
}

TEST_F(BinderTest, AListTellsARowAlsoWhenItIsChosenAgain) {
    auto* list = find<ListView>("ZoneList");
    list->pick({1});
    list->pick({1});
    EXPECT_EQ(control("ZoneList").index(), 1);
    EXPECT_EQ(form.events, (Events{"click ZoneList", "click ZoneList"}));
}

TEST_F(BinderTest, APressOnAListRowChoosesIt) {
    auto* list = find<ListView>("ZoneList");
    const QPoint at = list->visualRect(list->model()->index(2, 0)).center();
    for (int press = 1; press <= 2; ++press) {
        QMouseEvent down(QEvent::MouseButtonPress, at, list->viewport()->mapToGlobal(at),
                         Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(list->viewport(), &down);
        EXPECT_EQ(form.events.size(), static_cast<std::size_t>(press));
    }
    EXPECT_EQ(control("ZoneList").selected(), (std::vector<int>{2}));
}

TEST_F(BinderTest, AListOfSeveralRowsTellsThemAtOnce) {
    find<ListView>("PickList")->pick({3, 1});
    EXPECT_EQ(control("PickList").selected(), (std::vector<int>{1, 3}));
    EXPECT_EQ(form.events, (Events{"click PickList"}));
}

TEST_F(BinderTest, AHeadStandsAsTheEntriesBelowIt) {
    ListView list(false);
    list.setHeads({QStringLiteral("Date"), QStringLiteral("Hour"), QStringLiteral("Cooling")});
    list.setItems({"1 January\tnoon\t12.5"});
    const auto sideOf = [&](int column) {
        return list.entries().headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    };
    EXPECT_EQ(sideOf(1), 0);
    EXPECT_EQ(sideOf(2), static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
}

TEST_F(BinderTest, ARenamedEntryKeepsTheSelection) {
    control("ZoneList").setIndex(1);
    control("ZoneList").setItem(1, "South wing");
    EXPECT_EQ(find<ListView>("ZoneList")->rows(), (std::vector<int>{1}));
    EXPECT_EQ(text("ZoneList"), "South wing");
    EXPECT_TRUE(form.events.empty());
}

TEST_F(BinderTest, OptionsExcludeEachOtherWhoeverChooses) {
    find<QAbstractButton>("PlaceOption(1)")->click();
    EXPECT_TRUE(control("PlaceOption(1)").checked());
    find<QAbstractButton>("PlaceOption(1)")->click();
    EXPECT_TRUE(find<QAbstractButton>("PlaceOption(1)")->isChecked());
    control("PlaceOption(1)").setChecked(false);
    EXPECT_FALSE(find<QAbstractButton>("PlaceOption(1)")->isChecked());
    EXPECT_EQ(form.events, (Events{"click PlaceOption(1)"}));
}

TEST_F(BinderTest, ACheckBoxTogglesAndFollows) {
    auto* check = find<QAbstractButton>("MetricCheck");
    check->click();
    EXPECT_TRUE(control("MetricCheck").checked());
    control("MetricCheck").setChecked(false);
    EXPECT_FALSE(check->isChecked());
    EXPECT_EQ(form.events, (Events{"click MetricCheck"}));
}

TEST_F(BinderTest, ASliderSnapsUnderTheHandAndShowsAnyNumberOfCode) {
    auto* slider = find<NumberSlider>("ShareSlider");
    slider->setSliderPosition(37400);
    EXPECT_EQ(control("ShareSlider").value(), 37);
    control("ShareSlider").setValue(12.5);
    EXPECT_EQ(slider->number(), 12.5);
    EXPECT_EQ(form.events, (Events{"slide ShareSlider"}));
}

TEST_F(BinderTest, TheArrowKeysOfAFieldStepItsSpinButtons) {
    QWidget* edit = find<QWidget>("DepthText");
    press(edit, Qt::Key_Up);
    press(edit, Qt::Key_Up);
    press(edit, Qt::Key_Down);
    EXPECT_EQ(control("DepthUpDown").value(), 1);
    EXPECT_EQ(find<UpDownButtons>("DepthUpDown")->number(), 1);
}

TEST_F(BinderTest, SpinButtonsStopAtTheEnds) {
    auto* buttons = find<UpDownButtons>("DepthUpDown");
    buttons->step(-1);
    EXPECT_TRUE(form.events.empty());
    buttons->moveTo(50);
    EXPECT_EQ(control("DepthUpDown").value(), 10);
}

TEST_F(BinderTest, ADateGoesBothWays) {
    auto* edit = find<QDateEdit>("StartDTPicker");
    EXPECT_EQ(edit->date(), QDate(2026, 1, 15));
    edit->setDate(QDate(2027, 3, 4));
    EXPECT_EQ(control("StartDTPicker").date(), (Date{2027, 3, 4}));
    control("StartDTPicker").setDate({1899, 12, 30});
    EXPECT_EQ(edit->date(), QDate(1899, 12, 30));
    EXPECT_EQ(form.events, (Events{"click StartDTPicker"}));
}

TEST_F(BinderTest, ADateBeforeThoseOfTheWidgetIsShownAsText) {
    auto* edit = find<QDateEdit>("StartDTPicker");
    const BoundControl* bound = window->binder().find("StartDTPicker");
    control("StartDTPicker").setDate({99, 12, 31});
    EXPECT_EQ(plain(edit->text()), "0099-12-31");
    EXPECT_EQ(std::get<Date>(bound->shown(Property::value)), (Date{99, 12, 31}));
    control("StartDTPicker").setDate({100, 1, 1});
    EXPECT_EQ(plain(edit->text()), "0100-01-01");
    EXPECT_EQ(std::get<Date>(bound->shown(Property::value)), (Date{100, 1, 1}));
    EXPECT_TRUE(form.events.empty());
    edit->setDate(QDate(1500, 2, 28));
    EXPECT_EQ(control("StartDTPicker").date(), (Date{1500, 2, 28}));
}

TEST_F(BinderTest, StateOfAControlIsStateOfItsWidget) {
    control("DepthText").setEnabled(false).setTooltip("how deep");
    control("NameText").setLocked(true);
    control("GoCommand").setVisible(false);
    EXPECT_FALSE(find<QWidget>("DepthText")->isEnabled());
    EXPECT_EQ(plain(find<QWidget>("DepthText")->toolTip()), "how deep");
    EXPECT_TRUE(find<QLineEdit>("NameText")->isReadOnly());
    EXPECT_FALSE(find<QWidget>("GoCommand")->isVisible());
}

TEST_F(BinderTest, AHiddenFrameHidesWhatItHolds) {
    control("MainFrame").setVisible(false);
    const BoundControl* bound = window->binder().find("DepthText");
    EXPECT_FALSE(std::get<bool>(bound->shown(Property::visible)));
    control("MainFrame").setVisible(true);
    EXPECT_TRUE(std::get<bool>(bound->shown(Property::visible)));
}

TEST_F(BinderTest, AStaleButtonCarriesASignBesideItsColour) {
    auto* button = find<QAbstractButton>("GoCommand");
    EXPECT_TRUE(button->icon().isNull());
    control("GoCommand").setBackcolor(colours::stale);
    EXPECT_FALSE(button->icon().isNull());
    EXPECT_EQ(plain(button->accessibleDescription()), "[1350]");
    control("GoCommand").setBackcolor(colours::buttonFace);
    EXPECT_TRUE(button->icon().isNull());
}

TEST_F(BinderTest, FieldsAreCalledByTheirCaptionsAndUnits) {
    EXPECT_EQ(plain(find<QWidget>("DepthText")->accessibleName()), "Depth, ft");
    control("DepthLabel").setCaption("Tiefe:");
    EXPECT_EQ(plain(find<QWidget>("DepthText")->accessibleName()), "Tiefe, ft");
    EXPECT_EQ(plain(find<QWidget>("LightImage")->accessibleName()), "The light");
}

/// A form whose field has companions of quite other names than its own.
class UnlikeForm : public Form {
 public:
    UnlikeForm(Platform& platform, const Texts& texts) : Form("frmUnlike", platform, texts) {
        add("Enclosure", ControlKind::frame).setCaption("Well");
        addField({.control = "DepthText",
                  .stored = &depth,
                  .beside = {.frame = "Enclosure",
                             .label = "HowDeep",
                             .caption = {Text::boreholeDiameter, Text::boreholeDiameter},
                             .unitLabel = "MeasuredIn",
                             .unit = {Text::powerUnitsEnglish, Text::powerUnitsMetric},
                             .accessible = Text::fluidType,
                             .distinction = Text::heating}})
            .steppedBy("Notches");
        add("Notches", ControlKind::upDown).in("Enclosure").setRange(0, 10);
        // Nobody's, though named as if they were the field's.
        add("DepthLabel", ControlKind::label).setCaption("elsewhere");
        add("DepthUnitLabel", ControlKind::label).setCaption("furlongs");
        add("DepthUpDown", ControlKind::upDown);
    }

    double depth = 20;
};

TEST_F(BinderTest, AFieldIsLaidOutWithTheCompanionsOfItsRowWhateverTheirNames) {
    UnlikeForm unlike(platform, texts);
    FormWindow other(unlike, views.maker(), {});
    dress(other);
    other.show();
    Binder& bind = other.binder();
    QWidget* field = bind.widget("DepthText");
    const auto left = [&](const char* name) {
        return bind.widget(name)->mapTo(&other, QPoint()).x();
    };
    EXPECT_LT(left("HowDeep"), left("DepthText"));
    EXPECT_LT(left("DepthText"), left("Notches"));
    EXPECT_LT(left("Notches"), left("MeasuredIn"));
    for (const char* name : {"HowDeep", "MeasuredIn", "Notches"}) {
        const QPoint centre = bind.widget(name)->mapTo(&other, bind.widget(name)->rect().center());
        const QPoint top = field->mapTo(&other, QPoint());
        EXPECT_TRUE(top.y() < centre.y() && centre.y() < top.y() + field->height()) << name;
        EXPECT_TRUE(bind.widget("Enclosure")->isAncestorOf(bind.widget(name))) << name;
    }
    for (const char* name : {"DepthLabel", "DepthUnitLabel", "DepthUpDown"})
        EXPECT_FALSE(bind.widget("Enclosure")->isAncestorOf(bind.widget(name))) << name;
    press(field, Qt::Key_Up);
    EXPECT_EQ(unlike.control("Notches").value(), 1);
    EXPECT_EQ(unlike.control("DepthUpDown").value(), 0);
}

TEST_F(BinderTest, AScreenReaderCallsAFieldAsItsRowSays) {
    UnlikeForm unlike(platform, texts);
    FormWindow other(unlike, views.maker(), {});
    QWidget* field = other.binder().widget("DepthText");
    const std::string name = texts.text(Text::fluidType) + ", " + texts.text(Text::heating) + ", " +
                             texts.text(Text::powerUnitsEnglish);
    EXPECT_EQ(plain(field->accessibleName()), name);
    unlike.control("HowDeep").setCaption("How deep:");
    EXPECT_EQ(plain(field->accessibleName()), name);
    unlike.control("DepthText").setAccessibleName("Depth of the well");
    EXPECT_EQ(plain(field->accessibleName()),
              "Depth of the well, " + texts.text(Text::powerUnitsEnglish));
    unlike.control("MeasuredIn").setCaption("(feet)");
    EXPECT_EQ(plain(field->accessibleName()), "Depth of the well, feet");
    unlike.control("DepthText").setAccessibleName("Depth (feet)");
    EXPECT_EQ(plain(field->accessibleName()), "Depth (feet)");
}

TEST_F(BinderTest, AFailureOfAHandlerGoesToWhoTakesItAndNotThroughTheToolkit) {
    class Failing : public Form {
     public:
        Failing(Platform& p, const Texts& t) : Form("frmFailing", p, t) {
            add("GoCommand", ControlKind::button);
            onClick("GoCommand", [] { throw std::runtime_error("no"); });
        }
    } failing(platform, texts);
    FormWindow other(failing, views.maker(),
                     [this](std::exception_ptr fault) { faults.push_back(std::move(fault)); });
    static_cast<QAbstractButton*>(other.binder().widget("GoCommand"))->click();
    EXPECT_EQ(faults.size(), 1U);
}

TEST_F(BinderTest, WidgetsOfAFormThatHasEndedDoNothing) {
    window->binder().detach();
    press(find<QWidget>("NameText"), Qt::Key_A, QStringLiteral("a"));
    find<QAbstractButton>("GoCommand")->click();
    control("NameText").setText("later");
    EXPECT_TRUE(form.events.empty());
}

}  // namespace
}  // namespace varnholt
