// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

#include "design/length_summary.h"
#include "desktop/drawings/canvas.h"
#include "desktop/drawings/drawing.h"
#include "desktop/widgets/figure_text.h"
#include "forms/texts.h"

namespace varnholt {

/// Both modes' lengths in two lines of text, the one that governs strong, and whether they are
/// those of the inputs. What a bore, trench or loop takes of them stands there where the window is
/// wide enough.
class LengthStrip : public Drawing {
 public:
    LengthStrip(std::function<LengthSummary()> source, const Texts& texts);

    void refresh() override;
    QString description() const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

 protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

 private:
    /// What stands below the word of a mode.
    struct Figures {
        FigureText length, each;
        QString eachWord;
    };

    bool hasEach() const;
    QFont strong() const;
    Figures figuresOf(Mode mode) const;
    double widthOf(Mode mode, bool withEach) const;
    double widthOfState() const;
    QSize sizeWith(bool each) const;
    double drawMode(const Canvas& canvas, Mode mode, double x, bool withEach) const;
    void drawState(const Canvas& canvas, double x) const;

    std::function<LengthSummary()> source_;
    const Texts& texts_;
    LengthSummary lengths_;
};

}  // namespace varnholt
