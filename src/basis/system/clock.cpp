// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <ctime>

#include "basis/date.h"

namespace varnholt {
namespace {

std::tm localTime() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return local;
}

}  // namespace

Date dateOfToday() {
    const std::tm local = localTime();
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

std::string timeOfDay() {
    const std::tm local = localTime();
    return fmt::format("{:02}:{:02}", local.tm_hour, local.tm_min);
}

}  // namespace varnholt
