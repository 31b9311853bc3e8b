// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/catalogue_values.h"

#include <array>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

using Indices = Values::Indices;

/// How many indices lead to a number or text of a member: one for each array around it.
template <class T>
constexpr std::size_t depth = 0;
template <class T, std::size_t N>
constexpr std::size_t depth<std::array<T, N>> = 1 + depth<T>;

/// The element to which the indices from `next` on lead.
template <class T>
PublicValue valueAt(const T& value, const Indices& indices, std::size_t next) {
    if constexpr (depth < T >> 0)
        return valueAt(at(value, indices[next]), indices, next + 1);
    else if constexpr (std::is_arithmetic_v<T>)
        return static_cast<double>(value);
    else
        return value;
}

/// Records of one type among the public values, under a name and found by its indices. What is
/// added to them takes the indices behind those.
template <class Record>
class Records {
 public:
    using Find = std::function<const Record&(const Indices&)>;

    Records(Values& values, std::string name, std::size_t indices, Find find)
        : values_(values), name_(std::move(name)), indices_(indices), find_(std::move(find)) {}

    /// A number, a text, a date, or a table of numbers.
    template <class Member>
    void add(const std::string& name, Member Record::*member) const {
        values_.add(name_ + "." + name, indices_ + depth<Member>,
                    [find = find_, member, next = indices_](const Indices& i) {
                        return valueAt(find(i).*member, i, next);
                    });
    }

    /// The record that each of these holds.
    template <class Inner>
    Records<Inner> inner(const std::string& name, Inner Record::*member) const {
        return {
            values_, name_ + "." + name, indices_,
            [find = find_, member](const Indices& i) -> const Inner& { return find(i).*member; }};
    }

    /// The records that each of these holds in an array.
    template <class Array>
    Records<typename Array::value_type> rows(const std::string& name, Array Record::*member) const {
        return {values_, name_ + "." + name, indices_ + 1,
                [find = find_, member, next = indices_](const Indices& i)
                    -> const typename Array::value_type& { return at(find(i).*member, i[next]); }};
    }

 private:
    Values& values_;
    std::string name_;
    std::size_t indices_;
    Find find_;
};

void addManufacturer(const Records<PumpManufacturerInfo>& info) {
    info.add("mfgName", &PumpManufacturerInfo::mfgName);
    info.add("addressLine1", &PumpManufacturerInfo::addressLine1);
    info.add("addressLine2", &PumpManufacturerInfo::addressLine2);
    info.add("country", &PumpManufacturerInfo::country);
    info.add("phone", &PumpManufacturerInfo::phone);
}

void addSeries(const Records<PumpSeriesInfo>& info) {
    info.add("seriesName", &PumpSeriesInfo::seriesName);
    info.add("FileName", &PumpSeriesInfo::FileName);
    info.add("currentDate", &PumpSeriesInfo::currentDate);
}

void addCurves(const Records<coefficients>& curves) {
    curves.add("wattsCorrection", &coefficients::wattsCorrection);
    curves.add("capacityCorrection", &coefficients::capacityCorrection);
    curves.add("wattsFlowCorrection", &coefficients::wattsFlowCorrection);
    curves.add("capacityFlowCorrection", &coefficients::capacityFlowCorrection);
    curves.add("watts", &coefficients::watts);
    curves.add("capacity", &coefficients::capacity);
}

void addCorrections(const Records<pump>& models) {
    const auto temperatures = models.rows("eat", &pump::eat);
    temperatures.add("temperature", &eat::temperature);
    temperatures.add("capacityCorrection", &eat::capacityCorrection);
    temperatures.add("wattsCorrection", &eat::wattsCorrection);
    const auto flows = models.rows("elf", &pump::elf);
    flows.add("percent", &elf::percent);
    flows.add("capacityCorrection", &elf::capacityCorrection);
    flows.add("wattsCorrection", &elf::wattsCorrection);
}

void addMeasuredTable(const Records<pump>& models) {
    const auto temperatures = models.rows("ewt", &pump::ewt);
    temperatures.add("temperature", &ewt::temperature);
    const auto flows = temperatures.rows("flowRate", &ewt::flowRate);
    flows.add("flowRate", &flowRate::flowRate);
    const auto points = flows.rows("HeatMode", &flowRate::HeatMode);
    points.add("watts", &HeatMode::watts);
    points.add("capacity", &HeatMode::capacity);
}

void addModels(const Records<pump>& models) {
    models.add("nominalFlow", &pump::nominalFlow);
    models.add("flowCf", &pump::flowCf);
    models.add("pumpType", &pump::pumpType);
    models.add("name", &pump::name);
    addManufacturer(models.inner("mfgInfo", &pump::mfgInfo));
    addSeries(models.inner("seriesInfo", &pump::seriesInfo));
    addCurves(models.inner("coefficients", &pump::coefficients));
    addCorrections(models);
    addMeasuredTable(models);
}

template <class Count>
void addCount(Values& values, const std::string& name, std::size_t indices, Count count) {
    values.add(name, indices,
               [count](const Indices& i) { return PublicValue(static_cast<double>(count(i))); });
}

}  // namespace

void addIndexValues(Values& values, const std::function<const std::vector<PumpList>&()>& index) {
    addCount(values, "vhtMfgCount", 0, [index](const Indices&) { return index().size(); });
    const Records<PumpList> makers(
        values, "vhtPumpNames", 1,
        [index](const Indices& i) -> const PumpList& { return at(index(), i[0]); });
    addManufacturer(makers.inner("mfgInfo", &PumpList::mfgInfo));
    addSeries(makers.rows("seriesInfo", &PumpList::seriesInfo));
    addCount(values, "vhtPumpNames.seriesCount", 1,
             [index](const Indices& i) { return at(index(), i[0]).seriesCount(); });
}

void addModelValues(Values& values, std::size_t indices,
                    const std::function<const pump&(const Indices&)>& find) {
    addModels({values, "PumpList", indices, find});
}

void addCatalogueValues(Values& values, const PumpCatalogue& catalogue) {
    values.add("activeSeries", &catalogue.activeSeries());
    addCount(values, "vhtTotalSeriesCount", 0,
             [&catalogue](const Indices&) { return catalogue.vhtTotalSeriesCount(); });
    addCount(values, "size", 1, [&catalogue](const Indices& i) {
        return catalogue.size(static_cast<std::size_t>(i[0]));
    });
    addIndexValues(values, [&catalogue]() -> const std::vector<PumpList>& {
        return catalogue.vhtPumpNames();
    });
    addModelValues(values, 2, [&catalogue](const Indices& i) -> const pump& {
        return catalogue.PumpList(static_cast<std::size_t>(i[0]), static_cast<std::size_t>(i[1]));
    });
}

}  // namespace varnholt
