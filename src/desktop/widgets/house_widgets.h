// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <functional>

class QMenu;

namespace varnholt {

/// Marks the title of a group that stands in the group's table.
constexpr const char* titleProperty = "groupTitle";

/// A line of text as wide as so many figures.
class FieldEdit : public QLineEdit {
 public:
    /// @param characters the width in figures; 0 for a text that takes the place there is
    explicit FieldEdit(int characters, QWidget* parent = nullptr);

    /// Makes it as wide as so many figures.
    void setFigures(int characters);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Shows the sign of a refused value in the field's edge, before the figures.
    void setMark(const QIcon& icon, const QString& reason);

    /// What its menu offers besides the toolkit's commands; whether a key has asked for it.
    std::function<void(QMenu& menu, bool byKey)> addToMenu;

 protected:
    /// Its menu pastes as its key does.
    void contextMenuEvent(QContextMenuEvent* event) override;

 private:
    void pasteByKey();

    int characters_;
    QAction* mark_ = nullptr;
};

/// Makes a line of text one to search with: the prompt stands in it while it is empty, and a button
/// empties it.
/// @param empty  what a screen reader calls the button
void makeSearch(QLineEdit& line, const QString& prompt, const QString& empty);

/// Names a combo that has no label on the screen. A screen reader takes what is chosen for the name
/// of a combo, and what it is from the label beside it: that one is not seen. The combo stands in
/// its place already.
void labelUnseen(QComboBox& combo, const QString& name);

/// A number between two others that a widget shows and a person moves.
class MovedNumber {
 public:
    virtual ~MovedNumber() = default;

    virtual void setNumbers(double lowest, double highest) = 0;
    virtual void setNumber(double number) = 0;
    /// By how much one press of a button moves it; a slider keeps to steps of its own.
    virtual void setStep(double /*step*/) {}
    /// Moves to the number as a person would.
    virtual void moveTo(double number) = 0;

    double number() const { return number_; }
    double lowest() const { return lowest_; }
    double highest() const { return highest_; }

    /// A person has moved it.
    std::function<void(double)> onMoved;

 protected:
    double lowest_ = 0, highest_ = 100, number_ = 0;
};

/// A slider whose positions are numbers with fractions. What a person drags snaps to steps.
class NumberSlider : public QSlider, public MovedNumber {
 public:
    explicit NumberSlider(QWidget* parent = nullptr);

    void setNumbers(double lowest, double highest) override;
    void setNumber(double number) override;
    void moveTo(double number) override;

 private:
    void snap(int position);
    int positionOf(double number) const;

    double step_ = 1;
    bool writing_ = false;
};

/// Two small buttons, one above the other, that step a number up and down. Where it goes with a
/// field, the arrow keys in the field do the same.
class UpDownButtons : public QWidget, public MovedNumber {
 public:
    explicit UpDownButtons(QWidget* parent = nullptr);

    void setNumbers(double lowest, double highest) override;
    void setNumber(double number) override;
    void setStep(double step) override { step_ = step; }
    void moveTo(double number) override;
    void step(int steps) { moveTo(number_ + steps * step_); }
    /// What a screen reader calls the two buttons.
    void callButtons(const QString& up, const QString& down);

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    void refresh();

    QToolButton* up_;
    QToolButton* down_;
    double step_ = 1;
};

/// A titled group of controls: a flat card, or inside another group a plain section.
class GroupBox : public QWidget {
 public:
    explicit GroupBox(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    QString title() const { return title_->text(); }
    QLabel* titleLabel() const { return title_; }
    /// Gives the title away, to stand in the line of the heads of the group's table.
    QWidget* takeTitle();
    /// A title wider than so many pixels breaks its line instead of widening the group.
    void breakTitleBeyond(int width);
    /// A card of one line, no higher than the line needs.
    void setLow();
    /// Takes what the group shows. Groups within it become sections.
    void setContent(QWidget* content);
    QWidget* content() const { return content_; }

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void setNested(bool nested);
    void fitTitle();
    void drawRule(QPainter& painter, const QColor& colour) const;

    QLabel* title_;
    QWidget* content_ = nullptr;
    QVBoxLayout* layout_;
    bool nested_ = false;
    int widestTitle_ = 0;  ///< 0 for any width in one line
};

/// A page that scrolls when the window is smaller than what it shows.
class ScrollPage : public QScrollArea {
 public:
    explicit ScrollPage(QWidget* page);

    /// The whole page; whoever places it keeps it within the screen.
    QSize sizeHint() const override;
};

}  // namespace varnholt
