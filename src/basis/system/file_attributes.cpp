// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/file_attributes.h"

#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <vector>

#include "basis/system/descriptor.h"

namespace varnholt {
namespace {

constexpr const char* accessList = "system.posix_acl_access";

/// What a user may not do, or a file system does not know, is left undone.
bool isAllowedToFail(int reason) {
    return reason == EPERM || reason == EACCES || reason == EINVAL || reason == ENOTSUP ||
           reason == ENODATA || reason == ENOSYS;
}

bool doneOrNotAllowed(int result) { return result == 0 || isAllowedToFail(errno); }

/// Owner and rights. An owner that cannot be given leaves the group all the same.
bool takeOwner(int fresh, const struct stat& old) {
    constexpr auto same = static_cast<uid_t>(-1);
    constexpr mode_t ofGroup = 070, ofOthers = 07, all = 07777;
    mode_t rights = old.st_mode & all;
    if (!doneOrNotAllowed(uninterrupted([&] { return ::fchown(fresh, same, old.st_gid); })))
        return false;
    if (!doneOrNotAllowed(uninterrupted([&] { return ::fchown(fresh, old.st_uid, same); })))
        return false;
    struct stat now {};
    if (uninterrupted([&] { return ::fstat(fresh, &now); }) != 0) return false;
    if (now.st_gid != old.st_gid)
        rights = (rights & ~(ofGroup | S_ISGID)) | ((rights & ofOthers) << 3);
    if (now.st_uid != old.st_uid) rights &= ~static_cast<mode_t>(S_ISUID);
    return uninterrupted([&] { return ::fchmod(fresh, rights); }) == 0;
}

/// The names of a file's extended attributes. Nothing where it can have none.
bool namesOf(const std::string& path, std::vector<std::string>& names) {
    std::string list;
    for (;;) {
        const ssize_t size = ::listxattr(path.c_str(), nullptr, 0);
        if (size < 0) return isAllowedToFail(errno);
        list.resize(static_cast<std::size_t>(size));
        const ssize_t got = ::listxattr(path.c_str(), list.data(), list.size());
        // Another program may have given it one in between.
        if (got < 0 && errno == ERANGE) continue;
        if (got < 0) return isAllowedToFail(errno);
        list.resize(static_cast<std::size_t>(got));
        break;
    }
    for (std::size_t at = 0; at < list.size(); at = list.find('\0', at) + 1)
        names.emplace_back(list.c_str() + at);
    return true;
}

bool takeAttribute(int fresh, const std::string& path, const std::string& name) {
    std::string value;
    for (;;) {
        const ssize_t size = ::getxattr(path.c_str(), name.c_str(), nullptr, 0);
        if (size < 0) return isAllowedToFail(errno);
        value.resize(static_cast<std::size_t>(size));
        const ssize_t got = ::getxattr(path.c_str(), name.c_str(), value.data(), value.size());
        if (got < 0 && errno == ERANGE) continue;
        if (got < 0) return isAllowedToFail(errno);
        value.resize(static_cast<std::size_t>(got));
        break;
    }
    return doneOrNotAllowed(uninterrupted(
        [&] { return ::fsetxattr(fresh, name.c_str(), value.data(), value.size(), 0); }));
}

}  // namespace

bool takeAttributes(int fresh, const std::string& path, const struct stat& old) {
    std::vector<std::string> names;
    if (!namesOf(path, names)) return false;
    // The folder may give every new file a list that the old file did not have.
    if (std::find(names.begin(), names.end(), accessList) == names.end() &&
        !doneOrNotAllowed(::fremovexattr(fresh, accessList)))
        return false;
    if (!takeOwner(fresh, old)) return false;
    return std::all_of(names.begin(), names.end(),
                       [&](const std::string& name) { return takeAttribute(fresh, path, name); });
}

}  // namespace varnholt
