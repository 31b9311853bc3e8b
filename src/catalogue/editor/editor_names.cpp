// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/editor_names.h"

namespace varnholt {
namespace {

std::vector<std::string> ratingRow(Mode mode, std::size_t point) {
    std::vector<std::string> row{elementName(prefixOf(mode) + "EWTText", point)};
    for (std::size_t flow = 0; flow < 2; ++flow)
        for (const FittedQuantity quantity : fittedQuantities)
            row.push_back(ratingField(mode, flow, quantity, point));
    return row;
}

std::vector<std::string> correctionRow(CorrectionKind kind, std::size_t row) {
    std::vector<std::string> fields;
    for (const Mode mode : modes) {
        fields.push_back(placeField(kind, mode, row));
        for (const FittedQuantity quantity : fittedQuantities)
            fields.push_back(factorField(kind, mode, quantity, row));
    }
    return fields;
}

}  // namespace

std::vector<std::vector<std::string>> tableFields(std::size_t page) {
    std::vector<std::vector<std::string>> rows;
    for (const Mode mode : modes)
        for (std::size_t i = 0; page == ratingPage[mode] && i < ratingPoints; ++i)
            rows.push_back(ratingRow(mode, i));
    for (const CorrectionKind kind : {byTemperature, byFlow})
        for (std::size_t i = 0; page == correctionPage[kind] && i < mostFitPoints; ++i)
            rows.push_back(correctionRow(kind, i));
    return rows;
}

}  // namespace varnholt
