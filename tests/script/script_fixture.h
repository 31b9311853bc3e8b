// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>

#include "basis/run_time_error.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"
#include "script/form_driver.h"
#include "script/script_runner.h"

namespace varnholt {

/// A dialog with a field and a button that closes it.
class frmSample : public Form {
 public:
    frmSample(Platform& platform, const Texts& texts) : Form("frmSample", platform, texts) {
        setCaption("A dialog");
        add("NameText", ControlKind::text);
        add("OKCommand", ControlKind::button).setCaption("OK");
        add("BreakCommand", ControlKind::button);
        onClick("OKCommand", [this] { endModal(); });
        onClick("BreakCommand", [] { throw std::runtime_error("broken in a dialog"); });
    }
};

/// A window with one control of every kind, whose handlers write down what they are told.
class frmEveryKind : public ChildWindow {
 public:
    explicit frmEveryKind(Varnmain& frame) : ChildWindow("frmEveryKind", frame) {
        setCaption("Every kind of \"control\"");
        addControls();
        addCommands();
        addHandlers();
        addValues();
    }

    void activated() override { ++activations; }
    bool queryClose() override {
        return !asksOnClose ||
               platform().question(Buttons::yesNoCancel, "Save", "Save it?") != Answer::cancel;
    }

    std::string log;
    double boreLength[2] = {3124.6899414062, 0.1};
    std::int16_t count = 7;
    bool flag = true;
    std::string fileName = "a\\b \"c\"\r\n\t";
    Date day{2026, 1, 15};
    std::int16_t activations = 0;
    bool asksOnClose = false;

 private:
    void addControls() {
        add("NameLabel", ControlKind::label).setCaption("Name:").setForecolor(7829367);
        add("PlainText(0)", ControlKind::text).setText("first").setTooltip("Say \"it\"");
        add("PlainText(1)", ControlKind::text);
        add("gains(2,0)", ControlKind::text).setText("12.5");
        add("NotesRichText", ControlKind::richText).setText("one\r\ntwo");
        add("FluidCombo", ControlKind::combo).setItems({"Water", "Methanol", "Ethanol"});
        control("FluidCombo").setIndex(0);
        add("TypedCombo", ControlKind::combo).editableText().setItems({"a", "b"});
        add("ZoneList", ControlKind::list).multipleRows().setItems({"North", "South", "West"});
        add("OneList", ControlKind::list).setItems({"#x", "y"});
        add("MetricCheck", ControlKind::check).setCaption("Metric");
        add("KindOption(0)", ControlKind::option).grouped("Kind").setChecked(true);
        add("KindOption(1)", ControlKind::option).grouped("Kind");
        add("HybridSlider", ControlKind::slider).setRange(0, 100).setValue(20);
        add("RowsUpDown", ControlKind::upDown).setRange(0.5, 3).setValue(1.5);
        add("StartDate", ControlKind::date).setDate({2026, 1, 15});
        add("GroupFrame", ControlKind::frame).setCaption("Group");
        add("FramedText", ControlKind::text).in("GroupFrame");
        add("imgBore", ControlKind::image);
        add("Tabs", ControlKind::tabs).setItems({"Fluid", "Soil"});
        control("Tabs").setIndex(0);
        add("DisabledText", ControlKind::text).setEnabled(false);
        add("HiddenText", ControlKind::text).setVisible(false);
        add("LockedText", ControlKind::text).setLocked(true).setText("as it is");
    }

    void command(const std::string& name, std::function<void()> handler) {
        add(name, ControlKind::button).setCaption(name);
        onClick(name, std::move(handler));
    }

    void addCommands() {
        command("StaleCommand", [this] { control("StaleCommand").setBackcolor(14281207); });
        command("HideCommand", [this] { control("GroupFrame").setVisible(false); });
        command("FreezeCommand", [this] { control("GroupFrame").setEnabled(false); });
        command("MessageCommand", [this] { messages(); });
        command("YesNoCancelCommand", [this] { ask(Buttons::yesNoCancel); });
        command("YesNoCommand", [this] { ask(Buttons::yesNo); });
        command("OkCancelCommand", [this] { ask(Buttons::okCancel); });
        command("OpenCommand", [this] { choose(false); });
        command("SaveCommand", [this] { choose(true); });
        command("BreakCommand", [] { throw std::logic_error("broken"); });
        command("BreakOddlyCommand", [] { throw 1; });
        command("ModalCommand", [this] { modal(); });
        command("SwallowCommand", [this] { swallow(); });
        command("CloseCommand", [this] { main().close(*this); });
        command("GuardCommand", [this] { asksOnClose = true; });
        command("BusyCommand", [this] { busy(); });
    }

    void note(const std::string& what) { log += what + ";"; }

    void addHandlers() {
        for (const char* name : {"PlainText(0)", "PlainText(1)", "gains(2,0)", "TypedCombo"})
            onChange(name, [this, name] { note(std::string("change ") + name); });
        onLeave("PlainText(0)", [this] { note("leave"); });
        onKey("PlainText(0)", [this](const std::string& key) { note("key " + key); });
        for (const char* name :
             {"FluidCombo", "ZoneList", "MetricCheck", "KindOption(1)", "StartDate", "Tabs"})
            onClick(name, [this, name] { note(std::string("click ") + name); });
        for (const char* name : {"HybridSlider", "RowsUpDown"})
            onSlide(name, [this, name] { note(std::string("slide ") + name); });
    }

    void addValues() {
        Values& values = publicValues();
        values.add("log", &log);
        values.add("count", &count);
        values.add("flag", &flag);
        values.add("FileName", &fileName);
        values.add("day", &day);
        values.add("activations", &activations);
        values.add("boreLength", 1, [this](const Values::Indices& i) {
            if (i[0] > 1) throw RunTimeError(9);
            return boreLength[i[0]];
        });
        values.add("ZoneList.pump.plf", 2,
                   [](const Values::Indices& i) { return i[0] + i[1] / 10.0; });
        values.add("broken", 0, [](const Values::Indices&) -> PublicValue {
            throw std::logic_error("broken value");
        });
    }

    void messages() {
        platform().message(MessageIcon::exclamation, "Title", "two\r\nlines\t\"quoted\" \\");
        platform().message(MessageIcon::information, "Title", "i");
        platform().message(MessageIcon::question, "Title", "q");
        platform().message(MessageIcon::critical, "Title", "c");
        platform().message(MessageIcon::plain, "Title", "p");
    }

    void ask(Buttons buttons) {
        const Answer answer = platform().question(buttons, "Title", "Really?");
        note("answer " + std::to_string(static_cast<int>(answer)));
    }

    void choose(bool saving) {
        FileDialog dialog;
        dialog.saving = saving;
        dialog.folder = "/program/work files";
        if (saving) dialog.proposedName = "school.vht";
        note("picked " + platform().chooseFile(dialog).value_or("nothing"));
    }

    void modal() {
        frmSample dialog(platform(), texts());
        main().runModal(dialog);
        note("dialog " + dialog.control("NameText").text());
    }

    void swallow() {
        try {
            modal();
        } catch (...) {
            note("swallowed");
        }
        platform().question(Buttons::yesNo, "Title", "After the end?");
    }

    void busy() {
        platform().progress("Working", 1, 2);
        note("today " + isoText(platform().today()));
    }
};

/// The outcome of a script.
struct Outcome {
    int status = 0;
    std::string out;
    std::string faults;
};

/// A main window whose "New Borehole" opens a window with every kind of control.
class ScriptTest : public testing::Test {
 protected:
    ScriptTest() {
        main.start();
        main.setCommand("NewBorehole", CommandNeeds::nothing,
                        [this] { main.open(std::make_unique<frmEveryKind>(main)); });
    }

    Outcome run(const std::string& script) {
        std::istringstream input(script);
        std::ostringstream faults;
        ScriptReader reader(input, "test.vscript");
        ScriptRunner runner(main, platform, driver, transcript, reader, faults);
        runner.setReports(reports);
        const int status = runner.run();
        const Outcome result{status, output.str(), faults.str()};
        output.str("");
        return result;
    }

    /// Runs the script in a fresh window with every kind of control, and leaves the line of its
    /// opening out of the transcript.
    Outcome runInWindow(const std::string& script) {
        main.click("NewBorehole");
        return run(script);
    }

    /// The same for a script that must run to its end.
    std::string transcriptOf(const std::string& script) {
        const Outcome result = runInWindow(script);
        EXPECT_EQ(result.status, 0) << result.faults;
        EXPECT_EQ(result.faults, "");
        return result.out;
    }

    frmEveryKind& window() { return dynamic_cast<frmEveryKind&>(*main.windows().back()); }

    std::ostringstream output;
    Transcript transcript{output};
    FakeTexts texts;
    ScriptPlatform platform{transcript, "/program", Date{2026, 1, 15}};
    Varnmain main{platform, texts, "/program"};
    FormDriver driver{main};
    const ReportSource* reports = nullptr;
};

}  // namespace varnholt
