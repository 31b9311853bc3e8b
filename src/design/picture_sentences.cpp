// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/picture_sentences.h"

#include <cmath>

#include "basis/number_text.h"
#include "design/modCalculations/bore_grid.h"
#include "forms/text_numbers/horizontal.h"
#include "forms/text_numbers/lengths.h"
#include "forms/text_numbers/pictures.h"

namespace varnholt {
namespace {

std::string counted(double number) { return formatNumber(number, "###0"); }

std::string modeWord(Mode mode, const Texts& texts) {
    return texts.text(mode == cooling ? Text::chartCooling : Text::chartHeating);
}

/// Names of the classes; in a single line two neighbours do not make a corner.
std::string className(const FieldPlan& field, int neighbours, const Texts& texts) {
    const bool line = field.across < 2 || field.down < 2;
    switch (neighbours) {
        case 0:
            return texts.text(Text::boresWithoutNeighbour);
        case 1:
            return texts.text(Text::boresAtEnd);
        case 2:
            return texts.text(line ? Text::boresInLine : Text::boresAtCorner);
        case 3:
            return texts.text(Text::boresAtEdge);
        default:
            return texts.text(Text::boresInside);
    }
}

int patternOf(const TrenchDrawing& trench) {
    if (!trench.coil) return Text::pipesInTrenchPicture;
    return trench.standing ? Text::standingSlinkyPicture : Text::lyingSlinkyPicture;
}

int patternOf(const TrenchPlan& plan) {
    if (!plan.isCoil()) return Text::pipeTrenchesPicture;
    return plan.standing ? Text::standingSlinkyTrenchesPicture : Text::lyingSlinkyTrenchesPicture;
}

std::string countAndFlow(const Texts& texts, int count, const std::string& flow) {
    if (flow.empty()) return std::to_string(count);
    return filledIn(texts.text(Text::circuitCountAndFlow), {std::to_string(count), flow});
}

CircuitCaption captionOf(const Texts& texts, int name, const CircuitHeaders& headers) {
    CircuitCaption caption{texts.text(name), {}, {}, {}};
    for (const Mode mode : modes)
        if (mode == cooling || !headers.flow[mode].empty())
            caption.flows[mode] = countAndFlow(texts, headers.count, headers.flow[mode]);
    if (!headers.inSoil.empty())
        caption.inSoil = filledIn(texts.text(Text::circuitInSoil), {headers.inSoil});
    if (!headers.inWater.empty())
        caption.inWater = filledIn(texts.text(Text::circuitInWater), {headers.inWater});
    return caption;
}

std::string sentenceOf(const CircuitCaption& caption) {
    std::string parts;
    for (const std::string& part :
         {caption.flows[cooling], caption.flows[heating], caption.inSoil, caption.inWater})
        if (!part.empty()) parts += (parts.empty() ? "" : ", ") + part;
    return parts.empty() ? parts : " " + caption.name + ": " + parts + ".";
}

}  // namespace

std::vector<FieldClass> fieldClasses(const FieldPlan& field, const Texts& texts) {
    const modCalculations::NeighbourCount counts =
        modCalculations::countNeighbours(std::floor(field.down), std::floor(field.across));
    std::vector<FieldClass> classes;
    for (int n = 4; n >= 0; --n) {
        const double count = counts[static_cast<std::size_t>(n)];
        if (count > 0) classes.push_back({n, className(field, n, texts) + " " + counted(count)});
    }
    return classes;
}

std::vector<CircuitCaption> circuitCaptions(const CircuitPlan& plan, const Texts& texts) {
    std::vector<CircuitCaption> captions{
        {texts.text(Text::circuitHeatPumps), plan.systemFlow, {}, {}},
        captionOf(texts, Text::circuitPrimaryHeaders, plan.primary)};
    if (plan.branch.count > 0)
        captions.push_back(captionOf(texts, Text::circuitBranches, plan.branch));
    CircuitCaption loops{texts.text(Text::circuitLoops), {}, {}, {}};
    for (const Mode mode : modes)
        loops.flows[mode] = countAndFlow(texts, plan.loops[mode], plan.loopFlow[mode]);
    captions.push_back(loops);
    return captions;
}

std::string trenchesCutNote(const TrenchPlan& plan, const Texts& texts) {
    return filledIn(texts.text(Text::trenchesCutPicture),
                    {counted(plan.drawn), counted(plan.trenches)});
}

std::string describe(const BoreDrawing& bore, const Texts& texts) {
    const int words = bore.pipes.size() > 2 ? Text::doubleUTubePicture : Text::singleUTubePicture;
    const std::string shown = filledIn(texts.text(words), {bore.boreLabel, bore.pipeLabel});
    return bore.fits ? shown : shown + " " + texts.text(Text::pipesDoNotFitPicture);
}

std::string describe(const FieldPlan& field, const Texts& texts) {
    if (field.across < 1 || field.down < 1) return texts.text(Text::fieldPictureEmpty);
    std::string shown =
        filledIn(texts.text(Text::fieldPicture),
                 {counted(std::floor(field.across)), counted(std::floor(field.down)),
                  field.separationLabel, field.acrossLabel, field.downLabel});
    for (const FieldClass& each : fieldClasses(field, texts)) shown += " " + each.words + ".";
    return shown;
}

std::string describe(const TrenchDrawing& trench, const Texts& texts) {
    if (trench.empty()) return texts.text(Text::trenchPictureEmpty);
    const std::string third = trench.coil ? trench.coilLabel : std::to_string(trench.pipes.size());
    const std::string shown =
        filledIn(texts.text(patternOf(trench)), {trench.widthLabel, trench.depthLabel, third});
    return trench.fits ? shown : shown + " " + texts.text(Text::slinkyTooWidePicture);
}

std::string describe(const TrenchPlan& plan, const Texts& texts) {
    if (plan.empty()) return {};
    const std::string shown =
        filledIn(texts.text(patternOf(plan)),
                 {counted(plan.trenches), plan.separationLabel, plan.coilLabel, plan.pitchLabel});
    return plan.drawn < plan.trenches ? shown + " " + trenchesCutNote(plan, texts) : shown;
}

std::string describe(const CircuitPlan& plan, const Texts& texts) {
    std::string told =
        filledIn(texts.text(Text::circuitPicture),
                 {std::to_string(plan.primary.count), std::to_string(plan.branch.count),
                  std::to_string(plan.loops[cooling]), std::to_string(plan.loops[heating])});
    for (const CircuitCaption& caption : circuitCaptions(plan, texts)) told += sentenceOf(caption);
    return told;
}

std::string describe(const GroundTempCurves& curves, const Texts& texts) {
    if (curves.empty()) return texts.text(Text::groundChartEmpty);
    return filledIn(
        texts.text(Text::groundChart),
        {curves.depthLabel, curves.temperatureLabels[cooling], curves.temperatureLabels[heating]});
}

std::string describe(const LoopCurves& curves, const Texts& texts) {
    if (curves.empty()) return texts.text(Text::loopChartEmpty);
    const auto figure = [](double value) { return formatNumber(value, "##0.0"); };
    std::string shown = texts.text(Text::loopChart);
    for (const Mode mode : modes)
        for (const CurvePoint& point : curves.atDesign[mode])
            shown += " " + filledIn(texts.text(Text::loopChartAtDesign),
                                    {modeWord(mode, texts), figure(point.up), curves.lengthUnit,
                                     figure(point.across), curves.differenceUnit});
    return shown;
}

std::string fieldMeasures(const FieldPlan& field, const Texts& texts) {
    return filledIn(texts.text(Text::smallFieldWords),
                    {counted(std::floor(field.across)), counted(std::floor(field.down)),
                     field.separationLabel});
}

std::string wordsWithoutParts(const LengthSummary& lengths, const Texts& texts) {
    return texts.text(lengths.hasLength() ? Text::lengthPartsNotKept : Text::lengthPartsEmpty);
}

std::string describe(const LengthSummary& lengths, const Texts& texts) {
    if (lengths.parts.empty()) return wordsWithoutParts(lengths, texts);
    std::string sentences;
    for (const Mode mode : modes) {
        if (!(lengths.feet[mode] > 0)) continue;
        std::string parts;
        for (const LengthSegment& part : lengths.parts)
            parts += (parts.empty() ? "" : ", ") +
                     filledIn(texts.text(Text::lengthPart), {part.name, part.length[mode]});
        sentences += (sentences.empty() ? "" : " ") +
                     filledIn(texts.text(Text::lengthPartsOfMode),
                              {modeWord(mode, texts), lengths.length[mode], parts});
    }
    return sentences;
}

std::string stateWords(LengthSummary::State state, const Texts& texts) {
    switch (state) {
        case LengthSummary::State::fresh:
            return texts.text(Text::lengthsFresh);
        case LengthSummary::State::stale:
            return texts.text(Text::lengthsStale);
        case LengthSummary::State::kept:
            return texts.text(Text::lengthsKept);
        default:
            return texts.text(Text::lengthsNone);
    }
}

std::string stripSentence(const LengthSummary& lengths, const Texts& texts) {
    const std::string state = stateWords(lengths.state, texts);
    if (!lengths.found()) return state;
    return filledIn(texts.text(Text::lengthStrip),
                    {lengths.length[cooling], lengths.length[heating], state});
}

}  // namespace varnholt
