// SPDX-License-Identifier: GPL-3.0-or-later
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "persistence/recovery/recovery_record.h"

/// Whatever is taken for a record is exactly what such a record would be written as.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto record = varnholt::readRecord(bytes);
    if (record && record->document.size() > size) std::abort();
    return 0;
}
