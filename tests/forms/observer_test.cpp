// SPDX-License-Identifier: GPL-3.0-or-later
// Whoever shows a form may end at any time, in the midst of being told too.
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <memory>

#include "forms/fake_platform.h"
#include "forms/form.h"

namespace varnholt {
namespace {

class PlainForm : public Form {
 public:
    PlainForm(Platform& platform, const Texts& texts) : Form("frmPlain", platform, texts) {
        add("Name", ControlKind::text);
    }
};

/// Counts what it hears, and does something of its own at each.
class Listener : public FormObserver {
 public:
    void propertyChanged(Control&, Property) override { hear(); }
    void captionChanged(Form&) override { hear(); }
    void settled(Form&) override { hear(); }

    int heard = 0;
    std::function<void()> then;

 private:
    void hear() {
        ++heard;
        // The function may end this object, and itself with it.
        const std::function<void()> next = then;
        if (next) next();
    }
};

class Observers : public testing::Test {
 protected:
    Observers() {
        for (auto& listener : listeners) {
            listener = std::make_unique<Listener>();
            form->addObserver(listener.get());
        }
    }
    void endTheSecondWhenItHears() {
        listeners[1]->then = [this] { listeners[1].reset(); };
    }
    void expectTheOthersHeard(int times) const {
        EXPECT_EQ(listeners[0]->heard, times);
        EXPECT_EQ(listeners[1], nullptr);
        EXPECT_EQ(listeners[2]->heard, times);
    }

    FakePlatform platform;
    FakeTexts texts;
    std::unique_ptr<PlainForm> form = std::make_unique<PlainForm>(platform, texts);
    std::array<std::unique_ptr<Listener>, 3> listeners;
};

TEST_F(Observers, ThatEndWhileAPropertyIsToldAreForgottenAndTheOthersHearOfIt) {
    endTheSecondWhenItHears();
    form->control("Name").setText("a");
    expectTheOthersHeard(1);
    form->control("Name").setText("b");
    expectTheOthersHeard(2);
}

TEST_F(Observers, ThatEndWhileTheCaptionIsToldAreForgottenAndTheOthersHearOfIt) {
    endTheSecondWhenItHears();
    form->setCaption("Window");
    expectTheOthersHeard(1);
    form->setCaption("Other");
    expectTheOthersHeard(2);
}

TEST_F(Observers, ThatEndWhileTheEndOfAnActionIsToldAreForgottenAndTheOthersHearOfIt) {
    endTheSecondWhenItHears();
    form->leave("Name");
    expectTheOthersHeard(1);
    form->leave("Name");
    expectTheOthersHeard(2);
}

TEST_F(Observers, ThatHaveEndedInTheMidstOfAnotherChangeAreForgotten) {
    // The first answers the change of the text with another change, at which the second ends.
    endTheSecondWhenItHears();
    listeners[0]->then = [this] {
        listeners[0]->then = nullptr;
        form->control("Name").setEnabled(false);
    };
    form->control("Name").setText("a");
    expectTheOthersHeard(2);
}

TEST_F(Observers, CanAllEndAtOnce) {
    listeners[0]->then = [this] {
        for (auto& listener : listeners) listener.reset();
    };
    form->control("Name").setText("a");
    form->control("Name").setText("b");
    form->leave("Name");
    EXPECT_EQ(form->control("Name").text(), "b");
}

TEST_F(Observers, ThatComeWhileOthersAreToldHearOfIt) {
    Listener late;
    listeners[2]->then = [&] {
        listeners[2]->then = nullptr;
        form->addObserver(&late);
    };
    form->control("Name").setText("a");
    EXPECT_EQ(late.heard, 1);
    form->control("Name").setText("b");
    EXPECT_EQ(late.heard, 2);
}

TEST_F(Observers, MayOutliveTheirForm) {
    form.reset();
    for (const auto& listener : listeners) EXPECT_EQ(listener->heard, 0);
}

TEST_F(Observers, MayWatchSeveralForms) {
    PlainForm other(platform, texts);
    other.addObserver(listeners[1].get());
    listeners[1].reset();
    other.control("Name").setText("a");
    form->control("Name").setText("a");
    EXPECT_EQ(listeners[0]->heard, 1);
}

}  // namespace
}  // namespace varnholt
