// A string table from anywhere: parsing ends, and every text that it gives stood in the table.

#include "fuzz/check.h"
#include "platform/string_table.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QString whole = QString::fromUtf8(bytes);
    for (const auto& entry : zeltrona::platform::parseStringTable(bytes)) {
        FUZZ_CHECK(whole.contains(entry.second));
    }
    return 0;
}
