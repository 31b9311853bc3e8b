// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/quantity.h"

namespace varnholt::quantities {
namespace {

double same(double x) { return x; }

}  // namespace

const Quantity plain{{same, same}, {same, same}};
const Quantity temperature{{same, toCelsius}, {same, toFahrenheit}};
const Quantity temperatureDifference{{same, [](double f) { return f * 5 / 9; }},
                                     {same, [](double c) { return c * 9 / 5; }}};
const Quantity load{{same, [](double x) { return x * kilowattsPerMBtu; }},
                    {same, [](double x) { return x / kilowattsPerMBtu; }}};
const Quantity waterFlow{{same, [](double x) { return x * litresPerGallon; }},
                         {same, [](double x) { return x / litresPerGallon; }}};
const Quantity airFlow{{same, [](double x) { return x * litresPerSecondPerCfm; }},
                       {same, [](double x) { return x / litresPerSecondPerCfm; }}};
const Quantity length{{same, [](double x) { return x * metresPerFoot; }},
                      {same, [](double x) { return x / metresPerFoot; }}};
// A foot is 12 inches and 304.8 mm.
const Quantity diameter{{same, [](double x) { return x * 304.8 / 12; }},
                        {same, [](double x) { return x * 12 / 304.8; }}};
const Quantity width{{same, [](double x) { return ((x * 100.0) / 12.0) * metresPerFoot; }},
                     {same, [](double x) { return (x / 100.0 * 12.0) / metresPerFoot; }}};
const Quantity area{{same, [](double x) { return x / squareFeetPerSquareMetre; }},
                    {same, [](double x) { return x * squareFeetPerSquareMetre; }}};
const Quantity headLoss = length;
const Quantity density{{same, [](double x) { return x * densityToMetric; }},
                       {same, [](double x) { return x / densityToMetric; }}};
const Quantity specificHeat{{same, [](double x) { return x * specificHeatToMetric; }},
                            {same, [](double x) { return x / specificHeatToMetric; }}};
const Quantity conductivity{{same, [](double x) { return x / conductivityToEnglish; }},
                            {same, [](double x) { return x * conductivityToEnglish; }}};
const Quantity resistance{{same, [](double x) { return x * conductivityToEnglish; }},
                          {same, [](double x) { return x / conductivityToEnglish; }}};
const Quantity diffusivity{{same, [](double x) { return x / squareFeetPerSquareMetre; }},
                           {same, [](double x) { return x * squareFeetPerSquareMetre; }}};
const Quantity shaftPower{{[](double kw) { return kw / kilowattsPerHorsepower; }, same},
                          {[](double hp) { return hp * kilowattsPerHorsepower; }, same}};

}  // namespace varnholt::quantities
