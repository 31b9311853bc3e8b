// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>
#include <functional>

namespace varnholt {

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

 private:
    int characters_;
    QAction* mark_ = nullptr;
};

/// A slider whose positions are numbers with fractions. What a person drags snaps to steps.
class NumberSlider : public QSlider {
 public:
    explicit NumberSlider(QWidget* parent = nullptr);

    void setNumbers(double lowest, double highest);
    void setNumber(double number);
    double number() const { return number_; }
    double lowest() const { return lowest_; }
    double highest() const { return highest_; }
    /// Moves to the number as a person would.
    void moveTo(double number);

    /// A person has moved it.
    std::function<void(double)> onMoved;

 private:
    void snap(int position);
    int positionOf(double number) const;

    double lowest_ = 0, highest_ = 100, number_ = 0, step_ = 1;
    bool writing_ = false;
};

/// Two small buttons, one above the other, that step a number up and down. Where it goes with a
/// field, the arrow keys in the field do the same.
class UpDownButtons : public QWidget {
 public:
    explicit UpDownButtons(QWidget* parent = nullptr);

    void setNumbers(double lowest, double highest);
    void setNumber(double number);
    double number() const { return number_; }
    double lowest() const { return lowest_; }
    double highest() const { return highest_; }
    /// Moves to the number as a person would.
    void moveTo(double number);
    void setStep(double step) { step_ = step; }
    void step(int steps) { moveTo(number_ + steps * step_); }

    /// A person has stepped it.
    std::function<void(double)> onMoved;

 protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

 private:
    void refresh();

    QToolButton* up_;
    QToolButton* down_;
    double lowest_ = 0, highest_ = 100, number_ = 0, step_ = 1;
};

/// A titled group of controls: a flat card, or inside another group a plain section.
class GroupBox : public QWidget {
 public:
    explicit GroupBox(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    QString title() const { return title_->text(); }
    QLabel* titleLabel() const { return title_; }
    /// Takes what the group shows. Groups within it become sections.
    void setContent(QWidget* content);
    QWidget* content() const { return content_; }

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    void setNested(bool nested);

    QLabel* title_;
    QWidget* content_ = nullptr;
    QVBoxLayout* layout_;
    bool nested_ = false;
};

/// A page that scrolls when the window is smaller than what it shows.
class ScrollPage : public QScrollArea {
 public:
    explicit ScrollPage(QWidget* page);

    /// The whole page; whoever places it keeps it within the screen.
    QSize sizeHint() const override;
};

}  // namespace varnholt
