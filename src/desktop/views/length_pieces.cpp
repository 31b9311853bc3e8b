// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/length_pieces.h"

#include <functional>

#include "design/ground_design.h"
#include "desktop/drawings/drawings.h"
#include "desktop/views/view_pieces.h"
#include "desktop/widgets/qt_text.h"
#include "desktop/widgets/text_label.h"
#include "forms/text_numbers/lengths.h"

namespace varnholt {
namespace {

/// What the drawings ask the design for; nothing once it is gone.
std::function<LengthSummary()> summaryOf(Binder& bind) {
    return [&bind] {
        const auto* design = static_cast<const GroundDesign*>(bind.form());
        return design == nullptr ? LengthSummary() : design->lengthSummary();
    };
}

TextLabel* largeFigure() {
    constexpr double scale = 2.2;
    auto* figure = new TextLabel;
    QFont font = figure->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setWeight(QFont::DemiBold);
    figure->setFont(font);
    figure->setFigures();
    return figure;
}

/// Changed labels are laid out again, so that equal texts are left alone.
void show(TextLabel& label, const std::string& text) {
    if (const QString shown = qt(text); label.text() != shown) label.setText(shown);
}

void showHeadline(const LengthSummary& lengths, TextLabel& figure, TextLabel& word,
                  TextLabel& sentence, const std::string& untilThen) {
    const bool found = lengths.found();
    show(figure, found ? lengths.each[lengths.governing] : "\u2013");
    show(word, found ? lengths.eachWord : std::string());
    show(sentence, plain(groupedThousands(qt(found ? lengths.sentence : untilThen))));
    for (TextLabel* label : {&figure, &sentence})
        label->setDimmed(lengths.state == LengthSummary::State::stale);
    if (found)
        figure.setMode(lengths.governing);
    else
        figure.setPlain();
}

}  // namespace

QWidget* lengthStrip(Binder& bind) {
    return bind.drawing(newLengthStrip(summaryOf(bind), bind.form()->texts()));
}

QWidget* lengthHeadline(Binder& bind) {
    TextLabel* figure = largeFigure();
    auto* word = new TextLabel;
    word->setMuted();
    auto* sentence = new TextLabel;
    sentence->setWordWrap(true);
    const auto refresh = [=, source = summaryOf(bind), untilThen = bind.text(Text::lengthsNone)] {
        showHeadline(source(), *figure, *word, *sentence, untilThen);
    };
    refresh();
    bind.onSettled(refresh);
    auto* card = new GroupBox;
    card->setLow();
    return group(card, centredRow(figure, word, gap(), grow(sentence)));
}

QWidget* lengthPanel(Binder& bind) {
    auto* box = new GroupBox;
    box->setTitle(qt(bind.text(Text::lengthParts)));
    Drawing* bars = newLengthDrawing(summaryOf(bind), bind.form()->texts());
    bars->setAccessibleName(box->title());
    return group(box, grow(bind.drawing(bars)));
}

}  // namespace varnholt
