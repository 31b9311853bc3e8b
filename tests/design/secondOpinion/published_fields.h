// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "design/secondOpinion/g_function.h"

namespace varnholt::secondOpinion {

/// A field of the file tests/files/g_functions.txt, in the file's own units: the g-function has no
/// unit, so that any system of them will do as long as hours are hours.
struct PublishedField {
    std::string name;
    int columns = 0, rows = 0;
    double spacing = 0;  ///< m
    BoreShape shape;     ///< m
    double alpha = 0;    ///< m^2/hr
    struct Point {
        double hours, g, cylinder;
    };
    std::vector<Point> points;
};

inline std::vector<PublishedField> publishedFields() {
    std::ifstream file(VARNHOLT_SOURCE_DIR "/tests/files/g_functions.txt");
    std::vector<PublishedField> fields;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        std::istringstream words(line);
        if (line.rfind("field ", 0) != 0) {
            PublishedField::Point point{};
            words >> point.hours >> point.g >> point.cylinder;
            point.hours /= 3600;
            fields.back().points.push_back(point);
            continue;
        }
        PublishedField field;
        std::string word;
        words >> word >> field.columns >> field.rows >> field.spacing >> field.shape.depth >>
            field.shape.buried >> field.shape.radius >> field.alpha;
        field.alpha *= 3600;
        field.name = std::to_string(field.columns) + " by " + std::to_string(field.rows);
        fields.push_back(field);
    }
    if (fields.empty()) throw std::runtime_error("no g-functions to compare with");
    return fields;
}

/// A g-function to the end of the published points.
inline GFunction gFunctionOf(const PublishedField& field) {
    return gFunctionOf(rectangularField(field.columns, field.rows, field.spacing), field.shape,
                       field.alpha, field.points.back().hours);
}

}  // namespace varnholt::secondOpinion
