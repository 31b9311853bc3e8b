// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace varnholt::modCalculations {

/// Diameters of a pipe, in.
struct PipeDiameters {
    double outside = 0;
    double inside = 0;

    friend bool operator==(const PipeDiameters&, const PipeDiameters&) = default;
};

/// Constant and exponent of the shape factor of a placement of the legs in the bore.
struct ShapeFit {
    double constant = 0;
    double exponent = 0;

    friend bool operator==(const ShapeFit&, const ShapeFit&) = default;
};

/// The pipe of a size (0 to 3: 3/4, 1, 1 1/4, 1 1/2 in) and a wall (0 to 4: SDR 9, 11 and 17,
/// schedule 40 and 80). Throws RunTimeError 9 for any other.
const PipeDiameters& pipeTable(int size, int sdr);

/// Shape factor of the legs along the outer wall (0), at average distance (1) or close together
/// (2). Throws RunTimeError 9 for any other placement. Source: Remund, "Borehole Thermal
/// Resistance: Laboratory and Field Studies" (ASHRAE Transactions 105, 1999).
const ShapeFit& shapeFit(int placement);

/// Width that the legs of one (uTubeConfig 0) or two U-tubes (1) take in a bore, in.
/// @param outside  outside diameter of a pipe, in
double pipeSpan(double outside, int uTubeConfig);

/// Whether the legs go into the bore with a twentieth of an inch of give. Pipes that just touch at
/// that are refused here, whereas boreResistanceOf still takes them: both are kept.
bool pipesFit(double outside, int uTubeConfig, double boreDiameter);

/// The bore diameter that is taken in place of one that the pipes do not fit, in.
double boreDiameterFor(double outside, int uTubeConfig);

/// The grouted bore.
struct Bore {
    double diameter = 0;           ///< in
    double groutConductivity = 0;  ///< Btu/(hr ft degF)
};

/// Thermal resistance from fluid to bore wall: grout by shape factor, pipe and film.
/// @param outside         outside diameter of a pipe, in
/// @param pipeResistance  of wall and film, hr ft degF/Btu
/// @return hr ft degF/Btu; 0 when the pipes do not fit or a dimension or the conductivity is 0
double boreResistanceOf(const Bore& bore, double outside, int uTubeConfig, const ShapeFit& fit,
                        double pipeResistance);

}  // namespace varnholt::modCalculations
