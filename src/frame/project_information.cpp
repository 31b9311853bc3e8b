// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/project_information.h"

namespace varnholt {

void addInformationValues(Values& values, const ProjectInformation& information) {
    values.add("projectName", &information.projectName);
    values.add("designerName", &information.designerName);
    values.add("clientName", &information.clientName);
    values.add("addressLine1", &information.addressLine1);
    values.add("addressLine2", &information.addressLine2);
    values.add("city", &information.city);
    values.add("state", &information.state);
    values.add("zip", &information.zip);
    values.add("country", &information.country);
    values.add("phone", &information.phone);
    values.add("fax", &information.fax);
    values.add("email", &information.email);
    values.add("comments", &information.comments);
    values.add("currentDate", &information.currentDate);
    values.add("projectStartDate", &information.projectStartDate);
}

}  // namespace varnholt
