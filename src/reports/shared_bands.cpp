// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/shared_bands.h"

#include <algorithm>
#include <string_view>

#include "catalogue/makers.h"
#include "forms/text_numbers/main.h"
#include "forms/text_numbers/reports.h"

namespace varnholt {
namespace {

using enum ReportSection;
using enum ItemStyle;
using Information = ProjectInformation;

constexpr double titleColumns[] = {60, 80, 40};
constexpr double projectColumns[] = {32, 58, 32, 58};
constexpr double footColumns[] = {34, 92, 36, 18};

std::string titleOf(const FillContext& context) { return context.title; }
std::string noticeOf(const FillContext& context) { return context.notice; }
std::string makerOf(const FillContext& context) { return context.maker; }
std::string versionOf(const FillContext& context) { return context.version; }
std::string fileOf(const FillContext& context) { return context.file; }
std::string timeOf(const FillContext& context) { return context.printedAt; }
std::string pageOf(const FillContext&) { return pageNumberText; }

// clang-format off
constexpr ItemDefinition titleItems[] = {
    {0, 0, 2, "VHTTitleLabel", brand, words(Text::programTitle)},
    {0, 2, 1, "imgLogo",       logo,  computed(makerOf), Tint::none, Printed::withLogo},
    {1, 0, 3, "TitleLabel",    title, computed(titleOf)},
    {2, 0, 3, "NoticeLabel",   notice, computed(noticeOf), Tint::none, Printed::withNotice},
};

constexpr ItemDefinition projectItems[] = {
    {0, 0, 1, "ProjectNameLabel",          caption, words(Text::reportProjectName)},
    {0, 1, 1, "ProjectNameTextLabel",      ItemStyle::value, project(&Information::projectName)},
    {0, 2, 1, "AddressLine1Label",         caption, words(Text::reportAddressLine1)},
    {0, 3, 1, "AddressLine1TextLabel",     ItemStyle::value, project(&Information::addressLine1)},
    {1, 0, 1, "DesignerNameLabel",         caption, words(Text::reportDesignerName)},
    {1, 1, 1, "DesignerNameTextLabel",     ItemStyle::value, project(&Information::designerName)},
    {1, 2, 1, "AddressLine2Label",         caption, words(Text::reportAddressLine2)},
    {1, 3, 1, "AddressLine2TextLabel",     ItemStyle::value, project(&Information::addressLine2)},
    {2, 0, 1, "DateLabel",                 caption, words(Text::reportDate)},
    {2, 1, 1, "DateTextLabel",             ItemStyle::value, project(&Information::currentDate)},
    {2, 2, 1, "CityLabel",                 caption, words(Text::reportCity)},
    {2, 3, 1, "CityTextLabel",             ItemStyle::value, project(&Information::city)},
    {3, 0, 1, "ProjectStartDateLabel",     caption, words(Text::reportProjectStartDate)},
    {3, 1, 1, "ProjectStartDateTextLabel", ItemStyle::value, project(&Information::projectStartDate)},
    {3, 2, 1, "StateLabel",                caption, words(Text::reportState)},
    {3, 3, 1, "StateTextLabel",            ItemStyle::value, project(&Information::state)},
    {4, 0, 1, "ClientNameLabel",           caption, words(Text::reportClientName)},
    {4, 1, 1, "ClientNameTextLabel",       ItemStyle::value, project(&Information::clientName)},
    {4, 2, 1, "ZipLabel",                  caption, words(Text::reportZip)},
    {4, 3, 1, "ZipTextLabel",              ItemStyle::value, project(&Information::zip)},
    {5, 0, 1, "PhoneLabel",                caption, words(Text::reportPhone)},
    {5, 1, 1, "PhoneTextLabel",            ItemStyle::value, project(&Information::phone)},
    {5, 2, 1, "EmailLabel",                caption, words(Text::reportEmail)},
    {5, 3, 1, "EmailTextLabel",            ItemStyle::value, project(&Information::email)},
    {6, 0, 1, "FaxLabel",                  caption, words(Text::reportFax)},
    {6, 1, 1, "FaxTextLabel",              ItemStyle::value, project(&Information::fax)},
};

constexpr ItemDefinition footItems[] = {
    {0, 0, 1, "VersionLabel",     small, computed(versionOf)},
    {0, 1, 1, "FileNameLabel",    small, computed(fileOf)},
    {0, 2, 1, "PrintedLabel",     smallRight, computed(timeOf)},
    {0, 3, 1, "PageNumberLabel",  smallRight, computed(pageOf)},
};
// clang-format on

/// The host of an address without "www.".
std::string_view hostOf(std::string_view address) {
    for (const std::string_view before : {"https://", "http://", "www."})
        if (address.starts_with(before)) address.remove_prefix(before.size());
    return address.substr(0, address.find('/'));
}

}  // namespace

const BandDefinition reportHead[2] = {{ReportHeader, titleColumns, titleItems},
                                      {ReportHeader, projectColumns, projectItems}};
const BandDefinition shortReportHead{ReportHeader, titleColumns, titleItems};
const BandDefinition pageFoot{PageFooter, footColumns, footItems};
const BandDefinition shortPageFoot{PageFooter, footColumns, std::span(footItems, 3)};

bool isMakersAddress(const std::string& address) {
    return std::any_of(makers.begin(), makers.end(), [&](const Maker& maker) {
        return hostOf(address) == hostOf(maker.webAddress);
    });
}

}  // namespace varnholt
