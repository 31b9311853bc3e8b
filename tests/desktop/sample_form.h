// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "forms/fake_platform.h"
#include "forms/form.h"

namespace varnholt {

/// A form with one control of every kind, which notes what its handlers are told.
class SampleForm : public Form {
 public:
    SampleForm(Platform& platform, const Texts& texts) : Form("frmSample", platform, texts) {
        setCaption("Sample");
        add("MainFrame", ControlKind::frame).setCaption("Heat & Power");
        in("DepthLabel", ControlKind::label).setCaption("Depth:");
        in("DepthText", ControlKind::text)
            .captionedBy("DepthLabel")
            .unitsIn("DepthUnitLabel")
            .steppedBy("DepthUpDown");
        in("DepthUnitLabel", ControlKind::label).setCaption("ft");
        in("DepthUpDown", ControlKind::upDown).setRange(0, 10);
        in("NameText", ControlKind::text);
        in("NotesRichTextBox", ControlKind::richText);
        in("KindCombo", ControlKind::combo).setItems({"Water", "Methanol", "Glycol"});
        in("SizeCombo", ControlKind::combo).editableText().setItems({"1", "2"});
        in("ZoneList", ControlKind::list).setItems({"North", "South", "East"});
        in("PickList", ControlKind::list).multipleRows().setItems({"a", "b", "c", "d"});
        in("MetricCheck", ControlKind::check).setCaption("Metric");
        in("PlaceOption(0)", ControlKind::option).grouped("Place").setCaption("Near");
        in("PlaceOption(1)", ControlKind::option).grouped("Place").setCaption("Far");
        in("ShareSlider", ControlKind::slider).setRange(0, 100);
        in("StartDTPicker", ControlKind::date).setDate({2026, 1, 15});
        in("GoCommand", ControlKind::button).setCaption("R&D");
        in("LightImage", ControlKind::image).setTooltip("The light");
        for (const auto& control : controls()) note(control->name());
        fields().add({"DepthText", &depth, &quantities::plain, 0, 100, 20, "###0.0"});
        fields().setManner({[] { return false; }, [] { return UnitSystem::english; }, [] {}});
    }

    double depth = 20;
    /// What the handlers were told, "change NameText" and the like, oldest first.
    std::vector<std::string> events;

 private:
    Control& in(const std::string& name, ControlKind kind) {
        return add(name, kind).in("MainFrame");
    }
    void note(const std::string& name) {
        onChange(name, [this, name] { events.push_back("change " + name); });
        onLeave(name, [this, name] { events.push_back("leave " + name); });
        onClick(name, [this, name] { events.push_back("click " + name); });
        onSlide(name, [this, name] { events.push_back("slide " + name); });
        if (name == "NameText")
            onKey(name, [this](const std::string& key) { events.push_back("key " + key); });
    }
};

}  // namespace varnholt
