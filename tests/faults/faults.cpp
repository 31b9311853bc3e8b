// SPDX-License-Identifier: GPL-3.0-or-later
// A library that is loaded before all others and makes one call of the system go wrong, so that a
// test can see what becomes of the files. The environment tells:
//   VARNHOLT_FAULT_FOLDER  only calls on files below it count
//   VARNHOLT_FAULT_CALL    the number of the call that goes wrong, from 1; 0 for none
//   VARNHOLT_FAULT         how: EIO, ENOSPC, EINTR, SHORT (half of the bytes), KILL (the process,
//   before
//                          the call), HANG (the call lasts a minute)
//   VARNHOLT_FAULT_LOG     takes the name of each call that counts, one a line
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

template <class Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

const char* setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

std::atomic<int> counted{0};

void log(const char* call) {
    static const int file = real<int (*)(const char*, int, ...)>("open")(
        setting("VARNHOLT_FAULT_LOG"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    char line[64];
    const int length = std::snprintf(line, sizeof line, "%s\n", call);
    if (file >= 0)
        static_cast<void>(real<ssize_t (*)(int, const void*, size_t)>("write")(
                              file, line, static_cast<size_t>(length)) == length);
}

bool isBelow(const char* path) {
    const char* folder = setting("VARNHOLT_FAULT_FOLDER");
    return *folder != '\0' && path != nullptr &&
           std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool isBelow(int descriptor) {
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    char path[4096];
    const ssize_t length = real<ssize_t (*)(const char*, char*, size_t)>("readlink")(
        link.c_str(), path, sizeof path - 1);
    if (length <= 0) return false;
    path[length] = '\0';
    return isBelow(path);
}

enum class Fault { none, error, half };

/// What happens to the call that is about to be made. Sets errno.
template <class Where>
Fault faultOf(const char* call, Where where) {
    if (!isBelow(where)) return Fault::none;
    log(call);
    const int wanted = std::atoi(setting("VARNHOLT_FAULT_CALL"));
    if (++counted != wanted) return Fault::none;
    const std::string fault = setting("VARNHOLT_FAULT");
    if (fault == "KILL") ::kill(::getpid(), SIGKILL);
    if (fault == "HANG") ::sleep(60);
    if (fault == "SHORT") return Fault::half;
    errno = fault == "EIO" ? EIO : fault == "ENOSPC" ? ENOSPC : EINTR;
    return fault == "HANG" ? Fault::none : Fault::error;
}

}  // namespace

// Each of these is the system's own call but for the one time.
#define FAULTY(result, name, parameters, where, arguments)                         \
    extern "C" result name parameters {                                            \
        if (faultOf(#name, where) == Fault::error) return static_cast<result>(-1); \
        return real<result(*) parameters>(#name) arguments;                        \
    }

FAULTY(int, access, (const char* path, int mode) noexcept, path, (path, mode))
FAULTY(int, fchmod, (int file, mode_t mode) noexcept, file, (file, mode))
FAULTY(int, fchown, (int file, uid_t user, gid_t group) noexcept, file, (file, user, group))
FAULTY(int, flock, (int file, int operation) noexcept, file, (file, operation))
FAULTY(int, fremovexattr, (int file, const char* attribute) noexcept, file, (file, attribute))
FAULTY(int, fsetxattr,
       (int file, const char* attribute, const void* value, size_t size, int flags) noexcept, file,
       (file, attribute, value, size, flags))
FAULTY(int, fstat, (int file, struct stat* status) noexcept, file, (file, status))
FAULTY(int, fstatfs, (int file, struct statfs* status) noexcept, file, (file, status))
FAULTY(int, fsync, (int file), file, (file))
FAULTY(int, ftruncate, (int file, off_t size) noexcept, file, (file, size))
FAULTY(ssize_t, getxattr,
       (const char* path, const char* attribute, void* value, size_t size) noexcept, path,
       (path, attribute, value, size))
FAULTY(int, link, (const char* from, const char* to) noexcept, from, (from, to))
FAULTY(ssize_t, listxattr, (const char* path, char* list, size_t size) noexcept, path,
       (path, list, size))
FAULTY(off_t, lseek, (int file, off_t offset, int whence) noexcept, file, (file, offset, whence))
FAULTY(int, lstat, (const char* path, struct stat* status) noexcept, path, (path, status))
FAULTY(int, mkdir, (const char* path, mode_t mode) noexcept, path, (path, mode))
FAULTY(ssize_t, readlink, (const char* path, char* text, size_t size) noexcept, path,
       (path, text, size))
FAULTY(int, rename, (const char* from, const char* to) noexcept, from, (from, to))
FAULTY(int, rmdir, (const char* path) noexcept, path, (path))
FAULTY(int, stat, (const char* path, struct stat* status) noexcept, path, (path, status))
FAULTY(int, unlink, (const char* path) noexcept, path, (path))

/// A file that could not be closed without a fault is closed all the same.
extern "C" int close(int file) {
    const Fault fault = faultOf("close", file);
    const int reason = errno;
    const int result = real<int (*)(int)>("close")(file);
    if (fault != Fault::error) return result;
    errno = reason;
    return -1;
}

extern "C" int open(const char* path, int flags, ...) {
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list more;
        va_start(more, flags);
        mode = va_arg(more, mode_t);
        va_end(more);
    }
    if (faultOf("open", path) == Fault::error) return -1;
    return real<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}

/// What a program calls that is fortified.
extern "C" int __open_2(const char* path, int flags) { return open(path, flags); }

extern "C" ssize_t write(int file, const void* bytes, size_t size) {
    const Fault fault = faultOf("write", file);
    if (fault == Fault::error) return -1;
    if (fault == Fault::half && size > 1) size /= 2;
    return real<ssize_t (*)(int, const void*, size_t)>("write")(file, bytes, size);
}

extern "C" ssize_t read(int file, void* bytes, size_t size) {
    const Fault fault = faultOf("read", file);
    if (fault == Fault::error) return -1;
    if (fault == Fault::half && size > 1) size /= 2;
    return real<ssize_t (*)(int, void*, size_t)>("read")(file, bytes, size);
}

extern "C" ssize_t __read_chk(int file, void* bytes, size_t size, size_t) {
    return read(file, bytes, size);
}
