// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/pump_evaluation.h"

namespace varnholt {

/// A catalogue model as the representative pump of a building in one block: evaluated without
/// load-flow correction, then fitted with the part load factor that the block had before, typed or
/// imported: so the number of units has no influence on the fit. Throws as evaluatePump and
/// fitRepresentativePump.
MiniPump representativePump(const pump& model, std::int16_t units, const Gains& gains,
                            const MiniPump& current, const EvaluationConditions& conditions);

/// Sizes an evaluated pump to the dominant load, since a block has no whole number of pumps. Of
/// the pump only the ratio of its capacities and its two COPs remain, and the part load factor of
/// the dominant mode, which counts as 1 unless it lies above 0 and not above 1.
///
/// @param pump        evaluated at design conditions
/// @param gains       the block's loads, MBtu/hr
/// @param flowPerTon  design source flow, gpm per ton
/// @return            the pump with capacity, power, flow and part load factor of the block.
///                    Throws RunTimeError 11 when the cooling capacity or the dominant mode's COP
///                    is 0; the caller's pump is then as it was
MiniPump fitRepresentativePump(MiniPump pump, const Gains& gains, double flowPerTon);

}  // namespace varnholt
