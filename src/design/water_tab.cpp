// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/water_tab.h"

#include "design/ground_design.h"
#include "design/shared_texts.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/surface_water.h"

namespace varnholt {
namespace {

constexpr int waterTypes = 5;
constexpr const char* headerFrames[] = {"WAPrimaryHeaderFrame", "WABranchHeaderFrame"};
constexpr int headerCaptions[] = {Text::primaryHeaderWaterTemperatures,
                                  Text::branchHeaderWaterTemperatures};

}  // namespace

WaterTab::WaterTab(GroundDesign& design, WaterTemperatures& water, SurfaceWaterDetails& details)
    : DesignTab(design), details_(details) {
    addFrame("WAPropertiesFrame", Text::surfaceWaterProperties);
    addFrame("WALoopTempFrame", Text::loopWaterTemperatures, "WAPropertiesFrame");
    for (const Mode mode : modes)
        addTemperature("WALoopTempText", mode, water.loopWaterTemp[mode], "WALoopTempFrame",
                       Text::loopWaterTemperatures);
    for (const std::size_t kind : {0U, 1U}) {
        addFrame(headerFrames[kind], headerCaptions[kind], "WAPropertiesFrame");
        for (const Mode mode : modes)
            addTemperature("WAHeaderTempText", 2 * kind + mode,
                           water.headerWaterTemp[2 * kind + mode], headerFrames[kind],
                           headerCaptions[kind]);
    }
    addDetails();
}

void WaterTab::addTemperature(const std::string& array, std::size_t index, double& stored,
                              const std::string& frame, int frameCaption) {
    const std::string stem = array.substr(0, array.size() - std::string("Text").size());
    const int mode = inletTemperatureTexts[index % 2];
    addField(
        {.control = elementName(array, index),
         .stored = &stored,
         .quantity = &quantities::temperature,
         .highest = 212,
         .fallback = stored,
         .beside = {.frame = frame,
                    .label = elementName(stem + "Label", index),
                    .caption = {mode, mode},
                    .unitLabel = elementName(stem + "UnitsLabel", index),
                    .unit = {Text::inletTemperatureUnitsEnglish, Text::inletTemperatureUnitsMetric},
                    .help = "surface_water#water",
                    .accessible = frameCaption,
                    .distinction = mode}});
}

void WaterTab::addDetails() {
    const std::string frame = "WADetailsFrame";
    addFrame(frame, Text::surfaceWaterDetails, "WAPropertiesFrame");
    addCombo("WASurfaceWaterTypeCombo", frame, "WASurfaceWaterTypeLabel", Text::surfaceWaterType,
             Text::pond, Text::otherWater);
    onClick("WASurfaceWaterTypeCombo", [this] { WASurfaceWaterTypeCombo_Click(); });
    addField({.control = "WASurfaceAreaText",
              .stored = &details_.surfaceArea,
              .quantity = &quantities::area,
              .beside = {.frame = frame,
                         .label = "WASurfaceAreaLabel",
                         .caption = {Text::surfaceArea, Text::surfaceArea},
                         .unitLabel = "WASurfaceAreaUnitsLabel",
                         .unit = {Text::areaUnitsEnglish, Text::areaUnitsMetric},
                         .help = "surface_water#water"}});
    addField({.control = "WALoopPipeDepthText",
              .stored = &details_.loopPipeDepth,
              .quantity = &quantities::length,
              .highest = 1000.0,
              .beside = {.frame = frame,
                         .label = "WALoopPipeDepthLabel",
                         .caption = {Text::loopPipeDepth, Text::loopPipeDepth},
                         .unitLabel = "WALoopPipeDepthUnitsLabel",
                         .unit = {Text::lengthUnitsEnglish, Text::lengthUnitsMetric},
                         .help = "surface_water#water"}});
}

void WaterTab::setUnitLabels() {
    DesignTab::setUnitLabels();
    control("WASurfaceWaterTypeCombo").setIndex(entryOf(details_.surfaceWaterType, waterTypes));
}

void WaterTab::WASurfaceWaterTypeCombo_Click() {
    details_.surfaceWaterType =
        static_cast<std::int16_t>(control("WASurfaceWaterTypeCombo").index());
    design().calculationNeeded();
}

}  // namespace varnholt
