// SPDX-License-Identifier: GPL-3.0-or-later
#include <fmt/format.h>

#include <ctime>

#include "basis/date.h"

namespace varnholt {
namespace {

std::tm localTime(std::time_t moment = std::time(nullptr)) {
    std::tm local{};
    localtime_r(&moment, &local);
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

std::string localTimeText(std::int64_t moment) {
    const std::tm local = localTime(static_cast<std::time_t>(moment / nanosecondsPerSecond));
    const Date day{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
    return fmt::format("{} {:02}:{:02}:{:02}", isoText(day), local.tm_hour, local.tm_min,
                       local.tm_sec);
}

std::int64_t presentMoment() {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return std::int64_t{now.tv_sec} * nanosecondsPerSecond + now.tv_nsec;
}

std::chrono::steady_clock::time_point steadyMoment() { return std::chrono::steady_clock::now(); }

}  // namespace varnholt
