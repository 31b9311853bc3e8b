// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/field_method.h"

#include <algorithm>
#include <cmath>

#include "basis/run_time_error.h"

namespace varnholt {

using namespace secondOpinion;

namespace {

PreparedField preparedField(const BoreholeInputs& design, const OpinionSettings& settings) {
    PreparedField field;
    field.southern = settings.window.southern;
    field.base = prepareCase({design, settings.window, settings.imported}, field.told);
    return field;
}

/// Of a design and its cases: within a hundredth of a percent.
constexpr GTableReading wholeReading{5, 0};
/// Of fields that are many and compared by their costs: within a few hundredths of a percent.
constexpr GTableReading quickReading{3, 0};

}  // namespace

struct FieldMethod::Opened {
    BoreholeInputs design;
    PreparedField field;
    std::shared_ptr<GTable> table;  ///< none where a reason stands against the design
    double guess = 0;               ///< depth, ft
};

FieldMethod::Opened& FieldMethod::open(const BoreholeInputs& design) {
    if (opened_ && opened_->design == design) return *opened_;
    opened_ = std::make_shared<Opened>();
    opened_->design = design;
    opened_->field = preparedField(design, settings_);
    if (opened_->field.told.reason.holds()) return *opened_;
    opened_->table = memory_.table({opened_->field.base.site, settings_.window.cylinder});
    opened_->guess = guessedDepth(RolledZones(design.loads.zones), design);
    return *opened_;
}

std::optional<CaseFigures> FieldMethod::figures(const MeasuredDesign& design,
                                                const CaseFactors& factors) {
    Opened& opened = open(design.inputs);
    if (!opened.table) return figuresWithoutLength();
    try {
        const FieldTerms terms = fieldTermsOf(opened.field, design.zones, design.inputs.loads,
                                              design.inputs.soil, factors);
        GTableReading reading = wholeReading;
        reading.about = design.about;
        FieldCase fieldCase(terms, *opened.table, factors.diffusivity, reading);
        CaseFigures figures;
        for (Mode m : modes) {
            const auto length = fieldCase.length(m, design.about > 0 ? design.about : opened.guess);
            waitsFor_ = length ? nullptr : opened.table;
            if (!length) return std::nullopt;
            figures.length[m] = *length * factors.method;
            if (design.drawnLength <= 0 || !terms.year.hasMonths(m)) continue;
            // With a method that asks for so much more, a field serves as one so much shorter.
            const auto fluid = fieldCase.hardestFluid(m, design.drawnLength / factors.method);
            waitsFor_ = fluid ? nullptr : opened.table;
            if (!fluid) return std::nullopt;
            const ZonesYear& zones = terms.zones;
            figures.entering[m] = *fluid - (zones.outletTemp[m] - zones.inletTemp[m]) / 2;
        }
        return figures;
    } catch (const RunTimeError&) {
        return figuresWithoutLength();
    }
}

void FieldMethod::computeMore() {
    if (waitsFor_) waitsFor_->computeMore();
}

Reason FieldMethod::reasonAgainst(const MeasuredDesign& design) {
    return varnholt::reasonOf(open(design.inputs).field.told.reason);
}

Reason FieldMethod::reasonOf(const MeasuredDesign& design, Mode mode) {
    Opened& opened = open(design.inputs);
    const OpinionReason told = opened.field.told.reasonOfMode[mode];
    if (told.holds() || !opened.table) return varnholt::reasonOf(told);
    OpinionReason reason{OpinionFailure::noDepthHoldsLimit, 0};
    const FieldTerms& terms = opened.field.base.terms;
    FieldCase fieldCase(terms, *opened.table, 1, wholeReading);
    if (const auto fluid = fieldCase.hardestFluid(mode, greatestOpinionDepth * terms.bores))
        reason.waterAtGreatest =
            *fluid - (terms.zones.outletTemp[mode] - terms.zones.inletTemp[mode]) / 2;
    return varnholt::reasonOf(reason);
}

FieldSizer::FieldSizer(OpinionSettings settings, const BoreholeInputs& design)
    : settings_(std::move(settings)), design_(design) {
    // The field is what is asked for, so the design's own may be anything.
    design_.arrangement.patternRows = {1, 1};
    field_ = preparedField(design_, settings_);
}

std::optional<double> FieldSizer::need(const std::vector<BorePosition>& bores, double separation,
                                       double startDepth) {
    if (field_.told.reason.holds() || bores.size() > mostBoresOfOpinion ||
        (bores.size() > 1 && separation <= 2 * field_.base.site.radius))
        return noLength;
    if (!table_ || table_->site().field.bores != bores) {
        TableSite site{field_.base.site, settings_.window.cylinder};
        site.field.bores = bores;
        table_ = std::make_unique<GTable>(std::move(site));
    } else {
        table_->computeMore();
    }
    FieldTerms terms = field_.base.terms;
    terms.bores = static_cast<double>(bores.size());
    FieldCase fieldCase(terms, *table_, 1, quickReading);
    double need = 0;
    for (Mode m : modes) {
        const auto length = fieldCase.lengthHoweverDeep(m, startDepth);
        if (!length) return std::nullopt;
        need = std::max(need, *length);
    }
    return need;
}

}  // namespace varnholt
