// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/2800_loads.txt.
namespace varnholt::Text {

// Commands of the loads windows.
constexpr int newZoneTip = 2801;
constexpr int copyZoneTip = 2802;
constexpr int removeZoneTip = 2803;
constexpr int renumberZonesTip = 2804;
constexpr int clearZonesTip = 2805;
constexpr int showSummaryTip = 2806;
constexpr int openZonesTip = 2807;
constexpr int saveZonesTip = 2808;
constexpr int autoSelectAllTip = 2809;
constexpr int updatePumpsTip = 2810;
constexpr int newZone = 2950;
constexpr int copyZone = 2951;
constexpr int removeZone = 2952;
constexpr int renumberZones = 2953;
constexpr int clearZones = 2954;
constexpr int showSummary = 2955;
constexpr int openZones = 2956;
constexpr int saveZones = 2957;
constexpr int printZones = 2958;
constexpr int importLoads = 2959;
constexpr int autoSelectAll = 2960;
constexpr int updatePumps = 2961;

// The loads windows and their pages.
constexpr int zoneManagerTitle = 2930;
constexpr int averageBlockTitle = 2932;
constexpr int zonesPage = 2811;
constexpr int loadsMetricSwitch = 2813;
constexpr int noLoads = 2814;
constexpr int zone = 2815;
constexpr int loadsAndHeatPumpOf = 2816;

// The loads of a zone.
constexpr int loadingInformation = 2832;
constexpr int referenceLabel = 2850;
constexpr int designDayLoads = 2818;
constexpr int timeOfDay = 2819;
constexpr int heatGains = 2820;
constexpr int heatLosses = 2821;
constexpr int loadUnitsEnglish = 2822;
constexpr int loadUnitsMetric = 2823;
constexpr int blockEightToNoon = 2824;
constexpr int blockNoonToFour = 2825;
constexpr int blockFourToEight = 2826;
constexpr int blockEightToEight = 2827;
constexpr int annualFullLoadHours = 2828;
constexpr int daysOccupiedPerWeek = 2830;
constexpr int calculateHours = 2831;
constexpr int fullLoadHours = 2934;

// The heat pump of a zone.
constexpr int heatPumpSpecifications = 2849;
constexpr int pumpName = 2836;
constexpr int representativePumpName = 2933;
constexpr int noPumpSelected = 2837;
constexpr int numberOfUnitsSign = 2838;
constexpr int cooling = 2839;
constexpr int heating = 2840;
constexpr int zonePumpCapacityMetric = 2841;
constexpr int zonePumpCapacityEnglish = 2842;
constexpr int zonePumpPower = 2843;
constexpr int zonePumpCopMetric = 2844;
constexpr int zonePumpCopEnglish = 2845;
constexpr int zonePumpFlowRateMetric = 2846;
constexpr int zonePumpFlowRateEnglish = 2847;
constexpr int partialLoadFactor = 2848;
constexpr int clearPump = 2833;
constexpr int autoSelectPump = 2834;
constexpr int selectPump = 2835;
constexpr int pumpDetails = 2851;
constexpr int customPump = 2864;

// Selecting a pump by hand.
constexpr int numberOfUnits = 2852;
constexpr int takeSelectedPump = 2853;
constexpr int manufacturer = 2858;
constexpr int series = 2859;
constexpr int cancelSelection = 2861;
constexpr int model = 2868;

// The load side of a pump.
constexpr int heatPumpDetails = 2867;
constexpr int returnToZone = 2854;
constexpr int loadSideAir = 2855;
constexpr int loadSideWater = 2856;
constexpr int nominalFlow = 2857;
constexpr int pumpType = 2860;
constexpr int waterToAir = 2865;
constexpr int waterToWater = 2866;
constexpr int loadSideTemperature = 2889;
constexpr int loadSideFlow = 2890;

// The heat pump tab.
constexpr int designConditions = 2891;
constexpr int sourceInletTemperatureMetric = 2869;
constexpr int sourceInletTemperatureEnglish = 2870;
constexpr int sourceFlowRate = 2871;
constexpr int sourceFlowRateUnitsMetric = 2872;
constexpr int sourceFlowRateUnitsEnglish = 2876;
constexpr int inletAirTemperatures = 2885;
constexpr int enteringWaterTemperatures = 2886;
constexpr int heatingDryBulb = 2887;
constexpr int coolingWetBulb = 2888;
constexpr int heatPumpCatalogue = 2893;
constexpr int pumpsOfSeries = 2892;

// Units.
constexpr int airFlowUnitsMetric = 2873;
constexpr int airFlowUnitsEnglish = 2874;
constexpr int waterFlowUnitsMetric = 2877;
constexpr int waterFlowUnitsEnglish = 2878;
constexpr int temperatureUnitsMetric = 2879;
constexpr int temperatureUnitsEnglish = 2880;

// The summary of the building.
constexpr int buildingSummary = 2894;
constexpr int summaryEightToNoon = 2881;
constexpr int summaryNoonToFour = 2882;
constexpr int summaryFourToEight = 2883;
constexpr int summaryEightToEight = 2884;
constexpr int summaryPump = 2895;
constexpr int summaryDayLoadsEnglish = 2896;
constexpr int summaryDayLoadsMetric = 2897;
constexpr int summaryCapacity = 2898;
constexpr int summaryCapacityUnitsEnglish = 2899;
constexpr int summaryPower = 2901;
constexpr int summaryCopEnglish = 2915;
constexpr int summaryEer = 2916;
constexpr int summaryPartialLoadFactor = 2917;
constexpr int summaryCopMetric = 2918;
constexpr int summaryHeating = 2919;
constexpr int summaryCooling = 2920;
constexpr int summaryTotalCapacityEnglish = 2921;
constexpr int summaryTotalCapacityMetric = 2922;
constexpr int summaryPeakLoadEnglish = 2923;
constexpr int summaryPeakLoadMetric = 2924;
constexpr int summaryPeakDemand = 2925;
constexpr int summaryHeatPumpCop = 2926;
constexpr int summaryPeakLoadPeriod = 2928;

// What the charts of the loads windows show.
constexpr int zoneDayChart = 2945;
constexpr int buildingDayChart = 2946;
constexpr int pumpChart = 2947;

// Messages about pumps.
constexpr int pumpNoLongerListed = 2875;
constexpr int noPumpForZone = 2940;
constexpr int noPumpForZones = 2941;
constexpr int selectingPumps = 2943;
constexpr int updatingPumps = 2944;

// Zone files.
constexpr int zoneFileFilter = 2962;
constexpr int openZoneFileTitle = 2963;
constexpr int saveZoneFileTitle = 2964;
constexpr int zonesNotSaved = 2942;

}  // namespace varnholt::Text
