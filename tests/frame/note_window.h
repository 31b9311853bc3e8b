// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "basis/run_time_error.h"
#include "forms/fake_platform.h"
#include "frame/varnmain.h"

namespace varnholt {

/// A small document: a text, a number, a position and a count.
struct Note {
    std::string title;
    double size = 5;
    double level = 0;
    int lines = 0;

    friend bool operator==(const Note&, const Note&) = default;
};

/// A window that edits it, with one control of each manner.
class NoteWindow : public ChildWindow {
 public:
    explicit NoteWindow(Varnmain& main, std::string formName = "frmNote")
        : ChildWindow(std::move(formName), main) {
        addNotice();
        add("MetricCheck", ControlKind::check);
        onClick("MetricCheck", [this] { MetricCheck_Click(); });
        add("TitleLabel", ControlKind::label).setCaption("Title:");
        add("TitleText", ControlKind::text).captionedBy("TitleLabel");
        onChange("TitleText", [this] { note.title = control("TitleText").text(); });
        addSize();
        add("LevelSlider", ControlKind::slider).setTooltip("Level");
        onSlide("LevelSlider", [this] { note.level = control("LevelSlider").value(); });
        addCommands();
        show();
    }

    void load() override {
        if (failsToLoad) throw RunTimeError(62);
    }
    void unloaded() override { ++unloads; }
    void MetricCheck_Click() override {
        fields().showAll();
        main().unitsSwitched(*this);
    }
    StatePointer state() const override { return std::make_shared<StateOf<Note>>(note); }

    /// Takes another note for the one at hand, as opening a file does.
    void open(Note opened) {
        note = std::move(opened);
        show();
        startHistory();
    }
    void save() {
        markSaved();
        changed = false;
    }
    /// Another window changes the number of lines.
    void takeLines(int lines) {
        touch();
        note.lines = lines;
    }

    Note note;
    bool changed = false, failsToLoad = false;
    int unloads = 0;
    std::vector<Notice> holding;
    std::function<void()> whenLineAdded;

 protected:
    void restore(const DocumentState& earlier) override {
        note = static_cast<const StateOf<Note>&>(earlier).value;
        show();
    }
    void savedStateReached(bool atSaved) override { changed = !atSaved; }
    std::vector<Notice> notices() override {
        std::vector<Notice> all = holding;
        if (const auto refused = fields().refused()) all.push_back(refusedNotice(*refused));
        return all;
    }

 private:
    void addSize() {
        fields().setManner({.codeIsWriting = [this] { return settingUnits; },
                            .units = [this] { return units(); },
                            .changed = [this] { changed = true; }});
        add("SizeLabel", ControlKind::label).setCaption("Size:");
        addField({.control = "SizeText",
                  .stored = &note.size,
                  .quantity = &quantities::length,
                  .highest = 100,
                  .fallback = 5,
                  .beside = {.label = "SizeLabel"}});
    }
    void addCommands() {
        add("AddCommand", ControlKind::button).setCaption("Add Line");
        onClick("AddCommand", [this] {
            ++note.lines;
            if (whenLineAdded) whenLineAdded();
        });
        add("RemoveCommand", ControlKind::button).setCaption("Remove");
        onClick("RemoveCommand", [this] {
            nameStep("Remove Line " + std::to_string(note.lines));
            --note.lines;
        });
        add("FailingCommand", ControlKind::button).setCaption("Fail");
        onClick("FailingCommand", [this] {
            ++note.lines;
            throw RunTimeError(11);
        });
        add("IdleCommand", ControlKind::button).setCaption("Idle");
    }
    void show() {
        control("TitleText").setText(note.title);
        fields().showAll();
        control("LevelSlider").setValue(note.level);
    }
};

/// The main window with such windows in it.
class NoteTest : public testing::Test {
 protected:
    NoteTest() {
        texts.known[1081] = "Undo";
        texts.known[1082] = "Redo";
        texts.known[1237] = "%1: %2 is refused, %3 to %4, now %5.";
        main.start();
    }
    NoteWindow& newNote(const std::string& formName = "frmNote") {
        auto made = std::make_unique<NoteWindow>(main, formName);
        NoteWindow& window = *made;
        main.open(std::move(made));
        return window;
    }
    void undo() { main.click("mnuUndo"); }
    void redo() { main.click("mnuRedo"); }
    const std::string& undoCaption() const { return main.control("mnuUndo").caption(); }
    const std::string& redoCaption() const { return main.control("mnuRedo").caption(); }
    bool canUndo() const { return main.control("mnuUndo").enabled(); }
    bool canRedo() const { return main.control("mnuRedo").enabled(); }

    FakePlatform platform;
    FakeTexts texts;
    Varnmain main{platform, texts, "/program"};
};

}  // namespace varnholt
