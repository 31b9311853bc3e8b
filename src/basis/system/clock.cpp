// SPDX-License-Identifier: GPL-3.0-or-later
#include <ctime>

#include "basis/date.h"

namespace varnholt {

Date dateOfToday() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

}  // namespace varnholt
