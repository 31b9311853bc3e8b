// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/second_opinion_block.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "persistence/block_title.h"

namespace varnholt {
namespace {

constexpr BlockTitle opinionTitle{"Second Opinion", "Second Opinion 1.0"};
constexpr std::int16_t choices = 3;  // of shapes, and of depths

/// Every line must be a number as a whole, and end: a number that is cut off may still be one.
class StrictReader {
 public:
    explicit StrictReader(LineFileReader& file) : file_(file) {}

    void number(double& value) {
        const std::optional<double> read = readPlainNumber(file_.line());
        whole_ = whole_ && read && std::isfinite(*read) && file_.isLineEnded();
        value = whole_ ? *read : value;
    }
    /// A whole number from 0 on.
    void choice(std::int16_t& value, int count) {
        double read = value;
        number(read);
        whole_ = whole_ && read >= 0 && read < count && read == std::floor(read);
        if (whole_) value = static_cast<std::int16_t>(read);
    }
    void flag(bool& value) {
        std::int16_t read = 0;
        choice(read, 2);
        value = read != 0;
    }
    bool isWhole() const { return whole_; }

 private:
    LineFileReader& file_;
    bool whole_ = true;
};

class Writer {
 public:
    explicit Writer(LineFileWriter& file) : file_(file) {}

    void number(double value) { file_.number(value); }
    void choice(std::int16_t value, int) { file_.integer(value); }
    void flag(bool value) { file_.integer(value ? 1 : 0); }

 private:
    LineFileWriter& file_;
};

/// The lines below the title, in their order.
template <class Block, class Values>
void describe(Block& block, Values& values) {
    block.number(values.buriedDepth);
    block.number(values.pulseHours);
    block.number(values.yearsShown);
    block.choice(values.shape, choices);
    block.flag(values.southern);
    block.flag(values.cylinder);
    for (auto* ofYear : {&values.monthEnergy, &values.monthTop})
        for (const Mode mode : modes)
            for (auto& ofMonth : *ofYear) block.number(ofMonth[mode]);
    block.choice(values.depthChoice, choices);
    block.number(values.typedDepth);
}

/// The values of the block that the text begins with, and how many lines it takes.
struct Block {
    SecondOpinionInputs values;
    std::size_t lines;
};

std::optional<Block> readBlock(std::string_view text) {
    LineFileReader file(text);
    Block block{};
    try {
        if (file.line() != opinionTitle.line || !file.isLineEnded()) return std::nullopt;
        StrictReader strict(file);
        describe(strict, block.values);
        if (!strict.isWhole()) return std::nullopt;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
    block.lines = file.lineNumber();
    return block;
}

}  // namespace

void describeSecondOpinion(LineFileWriter& file, const SecondOpinionInputs& values) {
    if (values == SecondOpinionInputs{}) return;
    file.fixed(opinionTitle.line);
    Writer block(file);
    describe(block, values);
}

void describeSecondOpinion(LineFileReader& file, SecondOpinionInputs& values) {
    values = {};
    if (!file.holdsMore()) return;
    const std::optional<Block> block = readBlock(file.rest());
    if (!block) {
        if (opinionTitle.begins(file.rest())) file.noteUnread(opinionTitle.name);
        return;
    }
    values = block->values;
    file.skipLines(block->lines);
}

}  // namespace varnholt
