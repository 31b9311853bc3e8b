// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/new_pump.h"

#include <utility>

namespace varnholt {
namespace {

constexpr std::array<double, 6> usualWaterTemperatures{35, 50, 70, 75, 85, 95};  // degF
constexpr std::array<double, 5> usualPercents{80, 90, 100, 110, 120};

/// The code of the character at the place, which goes on behind it.
char32_t takeCharacter(std::string_view text, std::size_t& place) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byte(place++);
    std::size_t following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    char32_t code = following == 0 ? lead : lead & (0x3FU >> following);
    while (following-- > 0 && place < text.size() && (byte(place) & 0xC0U) == 0x80U)
        code = code << 6U | (byte(place++) & 0x3FU);
    return code;
}

char32_t withoutCase(char32_t code) {
    const auto within = [code](char32_t first, char32_t last) {
        return code >= first && code <= last;
    };
    if (within(U'A', U'Z') || (within(0xC0, 0xDE) && code != 0xD7)) return code + 32;
    // In Latin Extended-A the two cases of a letter stand in pairs.
    if (within(0x100, 0x137) || within(0x14A, 0x177)) return code | 1U;
    if (within(0x139, 0x148) || within(0x179, 0x17E)) return code + (code & 1U);
    if (within(0x391, 0x3A9) || within(0x410, 0x42F)) return code + 32;
    if (within(0x400, 0x40F)) return code + 80;
    return code;
}

}  // namespace

std::array<ByMode<double>, 5> usualLoadTemperatures(std::int16_t pumpType) {
    if (pumpType == 0) return {{{61, 60}, {64, 65}, {67, 70}, {70, 75}, {73, 80}}};
    return {{{50, 90}, {53, 100}, {55, 110}, {57, 115}, {60, 120}}};
}

pump newPump(const pump* before) {
    pump fresh;
    fresh.flowCf = {{{1, 1}, {1, 1}}};
    coefficients& curves = fresh.coefficients;
    for (Polynomial* correction : {&curves.capacityCorrection, &curves.wattsCorrection,
                                   &curves.capacityFlowCorrection, &curves.wattsFlowCorrection})
        correction->front() = {1, 1};
    if (before != nullptr) fresh.pumpType = before->pumpType;
    const auto temperatures = usualLoadTemperatures(fresh.pumpType);
    for (std::size_t row = 0; row < fresh.ewt.size(); ++row)
        fresh.ewt[row].temperature =
            before != nullptr ? before->ewt[row].temperature : usualWaterTemperatures[row];
    for (std::size_t row = 0; row < fresh.eat.size(); ++row) {
        fresh.eat[row] = {
            before != nullptr ? before->eat[row].temperature : temperatures[row], {1, 1}, {1, 1}};
        fresh.elf[row] = {{1, 1},
                          {1, 1},
                          before != nullptr
                              ? before->elf[row].percent
                              : ByMode<double>{usualPercents[row], usualPercents[row]}};
    }
    return fresh;
}

void sortByName(PumpsOfSeries& pumps) {
    for (std::size_t i = 0; i < pumps.size(); ++i)
        for (std::size_t j = i + 1; j < pumps.size(); ++j)
            if (compareIgnoringCase(pumps[i]->name, pumps[j]->name) > 0)
                std::swap(pumps[i], pumps[j]);
}

int compareIgnoringCase(std::string_view a, std::string_view b) {
    std::size_t atA = 0, atB = 0;
    while (atA < a.size() && atB < b.size()) {
        const char32_t first = withoutCase(takeCharacter(a, atA));
        const char32_t second = withoutCase(takeCharacter(b, atB));
        if (first != second) return first < second ? -1 : 1;
    }
    return static_cast<int>(atA < a.size()) - static_cast<int>(atB < b.size());
}

}  // namespace varnholt
