// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "basis/date.h"
#include "basis/shared_text.h"
#include "forms/values.h"

namespace varnholt {

/// Who the project is for and who made it, as the information tab edits it.
struct ProjectInformation {
    SharedText projectName, designerName, clientName;
    SharedText addressLine1, addressLine2, city, state, zip, country;
    SharedText phone, fax, email;
    Date currentDate, projectStartDate;
    /// Lines end in CR LF.
    SharedText comments;

    friend bool operator==(const ProjectInformation&, const ProjectInformation&) = default;
};

/// Registers all of it among a window's public values, under the names of its members. It must
/// outlive the values.
void addInformationValues(Values& values, const ProjectInformation& information);
void addInformationValues(Values& values, ProjectInformation&& information) = delete;

}  // namespace varnholt
