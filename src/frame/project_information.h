// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/date.h"

namespace varnholt {

/// Who the project is for and who made it, as the information tab edits it.
struct ProjectInformation {
    std::string projectName, designerName, clientName;
    std::string addressLine1, addressLine2, city, state, zip, country;
    std::string phone, fax, email;
    Date currentDate, projectStartDate;
    /// Lines end in CR LF.
    std::string comments;

    friend bool operator==(const ProjectInformation&, const ProjectInformation&) = default;
};

}  // namespace varnholt
