// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "basis/date.h"
#include "basis/shared_text.h"

namespace varnholt {

enum class ControlKind {
    label,
    button,
    text,
    richText,
    combo,
    list,
    check,
    option,
    slider,
    upDown,
    date,
    frame,
    image,
    menu,
    tabs,
};

/// "label", "button", ...: the kind as the script runner lists it.
const char* nameOf(ControlKind kind);

enum class Property {
    text,
    caption,
    enabled,
    visible,
    locked,
    checked,
    index,
    value,
    min,
    max,
    step,
    items,
    selected,
    backcolor,
    forecolor,
    bold,
    tooltip,
    date,
    refused,
    accessibleName,
    description,
    flash,
    focus,
};

class Control;

/// Whoever shows a form's controls and repaints them when they change.
class ControlObserver {
 public:
    virtual ~ControlObserver() = default;
    virtual void propertyChanged(Control& control, Property property) = 0;
};

// Colours are 24-bit numbers in the order blue-green-red.
namespace colours {
constexpr int buttonFace = 0xF0F0F0;  ///< the system's button face
constexpr int window = 0xFFFFFF;      ///< the background of fields
constexpr int black = 0;
constexpr int stale = 14281207;  ///< results older than the inputs
constexpr int alarm = 255;       ///< coefficients older than their data; a figure to look at
constexpr int greyed = 7829367;  ///< the mode that does not govern
constexpr int heatingGoverns = 5263547;
constexpr int coolingGoverns = 8925232;
// Cells of a table that belong to a mode: those that can be typed into, and those that follow.
constexpr int coolingCells = 0xFFE0E0;
constexpr int coolingFactors = 0xFFC0C0;
constexpr int heatingCells = 0xD0D0FF;
constexpr int heatingFactors = 0xA0A0FF;
}  // namespace colours

/// One named control of a form: what it shows, known without any toolkit.
///
/// Every setter tells the form's observers when the value really changed, and nothing else: what
/// code writes is not a user's action and raises no handler.
class Control {
 public:
    Control(std::string name, ControlKind kind);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// With its index for an element of a control array: "FLInletTempText(0)".
    const std::string& name() const { return name_; }
    ControlKind kind() const { return kind_; }

    const std::string& text() const { return text_.string(); }
    const SharedText& sharedText() const { return text_; }
    const std::string& caption() const { return caption_; }
    bool enabled() const { return enabled_; }
    /// Its own mark; see Form::isShown for the frames around it.
    bool visible() const { return visible_; }
    bool locked() const { return locked_; }
    bool checked() const { return checked_; }
    /// Chosen entry of a combo or list, front page of tabs; -1 for none.
    int index() const { return index_; }
    /// Position of a slider or up-down, in the units shown.
    double value() const { return value_; }
    double min() const { return min_; }
    double max() const { return max_; }
    /// By how much one click of an up-down goes. One of more than 1 takes whole steps only.
    double step() const { return step_; }
    const std::vector<std::string>& items() const { return items_; }
    /// Selected rows of a list, ascending.
    const std::vector<int>& selected() const { return selected_; }
    int backcolor() const { return backcolor_; }
    int forecolor() const { return forecolor_; }
    bool bold() const { return bold_; }
    const std::string& tooltip() const { return tooltip_; }
    const Date& date() const { return date_; }
    /// The field's last value was refused and replaced.
    bool refused() const { return refused_; }

    /// Name of the frame that holds the control, empty for none.
    const std::string& container() const { return container_; }
    /// Option buttons with the same group exclude each other.
    const std::string& group() const { return group_; }
    /// A combo whose text may be typed.
    bool editable() const { return editable_; }
    /// A list in which several rows may be selected.
    bool multiple() const { return multiple_; }
    /// An option that acts also when it is chosen already.
    bool repeating() const { return repeating_; }
    /// Name of the label that captions the control, empty for none.
    const std::string& label() const { return label_; }
    /// Name of the label that tells its unit, empty for none.
    const std::string& unitLabel() const { return unitLabel_; }
    /// Name of the up-down that steps its number, empty for none.
    const std::string& upDown() const { return upDown_; }
    /// What a screen reader calls the control, where that is not its label's or its own caption.
    const std::string& accessibleName() const { return accessibleName_; }
    /// The same where another control of the window has that name too; accessibleName() else.
    const std::string& spokenName() const {
        return spokenName_.empty() ? accessibleName_ : spokenName_;
    }
    /// What it shows is found only when somebody reads it; see Form::catchUp.
    bool isLate() const { return late_; }
    /// Page of the help that explains it, with its section: "soil#temperature". Empty for none.
    const std::string& helpTopic() const { return helpTopic_; }

    Control& setText(SharedText text);
    Control& setCaption(std::string caption);
    Control& setEnabled(bool enabled);
    Control& setVisible(bool visible);
    Control& setLocked(bool locked);
    Control& setChecked(bool checked);
    /// Also makes the combo's text that of the entry, and the list's selection that row.
    Control& setIndex(int index);
    Control& setValue(double value);
    Control& setRange(double min, double max);
    Control& setStep(double step);
    /// Replaces the entries; the index becomes -1 and the selection empty.
    Control& setItems(std::vector<std::string> items);
    Control& setItem(std::size_t row, std::string text);
    Control& setSelected(std::vector<int> rows);
    Control& setBackcolor(int colour);
    Control& setForecolor(int colour);
    Control& setBold(bool bold);
    Control& setTooltip(std::string tooltip);
    Control& setDate(const Date& date);
    Control& setRefused(bool refused);
    Control& setAccessibleName(std::string name);
    Control& setSpokenName(std::string name);
    /// Draws attention to the control for a moment; nothing of its state changes.
    void flash() { notify(Property::flash); }
    /// Asks whoever shows the control to let the keyboard work it from now on.
    void takeFocus() { notify(Property::focus); }

    Control& in(std::string container);
    Control& grouped(std::string group);
    Control& editableText();
    Control& multipleRows();
    Control& repeatingClicks();
    Control& captionedBy(std::string label);
    Control& unitsIn(std::string unitLabel);
    Control& steppedBy(std::string upDown);
    Control& helpedBy(std::string topic);
    Control& foundLate();

    void setObserver(ControlObserver* observer) { observer_ = observer; }

 private:
    template <class T>
    Control& set(Property property, T& member, T value);
    void notify(Property property);

    std::string name_;
    ControlKind kind_;
    ControlObserver* observer_ = nullptr;
    SharedText text_;
    std::string caption_, tooltip_, container_, group_;
    std::string label_, unitLabel_, upDown_, accessibleName_, spokenName_, helpTopic_;
    std::vector<std::string> items_;
    std::vector<int> selected_;
    Date date_;
    double value_ = 0, min_ = 0, max_ = 100, step_ = 1;
    int index_ = -1;
    int backcolor_, forecolor_ = colours::black;
    bool enabled_ = true, visible_ = true, locked_ = false, checked_ = false, bold_ = false;
    bool refused_ = false, editable_ = false, multiple_ = false, repeating_ = false;
    bool late_ = false;
};

/// "CATopLabel(1)": the name of an element of a control array.
std::string elementName(const std::string& array, std::size_t index);

}  // namespace varnholt
