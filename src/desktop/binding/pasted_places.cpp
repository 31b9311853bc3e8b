// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/binding/pasted_places.h"
#include "forms/text_numbers/feedback.h"

namespace varnholt {
namespace {

struct Place {
    std::size_t row, column;
};

std::optional<Place> placeIn(const std::vector<std::vector<std::string>>& rows,
                             const std::string& field) {
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t column = 0; column < rows[row].size(); ++column)
            if (rows[row][column] == field) return Place{row, column};
    return std::nullopt;
}

}  // namespace

std::optional<PastedPlaces> placesOf(const std::vector<std::vector<std::string>>& rows,
                                     const std::string& field, const PastedBlock& block) {
    const std::optional<Place> first = placeIn(rows, field);
    if (!first) return std::nullopt;
    PastedPlaces places;
    for (std::size_t down = 0; down < block.size(); ++down)
        for (std::size_t across = 0; across < block[down].size(); ++across) {
            const std::string& text = block[down][across];
            const std::size_t row = first->row + down, column = first->column + across;
            const bool there =
                row < rows.size() && column < rows[row].size() && !rows[row][column].empty();
            if (there)
                places.cells.push_back({rows[row][column], text});
            else if (!text.empty())
                ++places.beyond;
        }
    return places;
}

std::string toldOf(const Form& form, const Form::FilledCells& filled, int beyond) {
    const std::string typed = std::to_string(filled.typed);
    std::string told = filled.refused == 0 ? filledIn(form.text(Text::cellsPasted), {typed})
                                           : filledIn(form.text(Text::cellsRefused),
                                                      {std::to_string(filled.refused), typed});
    if (beyond > 0) told += " " + filledIn(form.text(Text::cellsBeyond), {std::to_string(beyond)});
    return told;
}

}  // namespace varnholt
