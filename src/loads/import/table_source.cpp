// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/import/table_source.h"

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "forms/text_numbers/import.h"
#include "forms/text_numbers/main.h"
#include "frame/varnmain.h"
#include "loads/import/load_table.h"

namespace varnholt {
namespace {

/// A year of hours with hundreds of columns.
constexpr std::size_t mostTableBytes = 64'000'000;

void tell(const Varnmain& main, const std::string& message) {
    main.platform().message(MessageIcon::exclamation, main.text(Text::programTitle), message);
}

}  // namespace

std::optional<TableSource> chooseTable(const Varnmain& main) {
    const auto path = main.platform().chooseFile({.title = main.text(Text::openTableTitle),
                                                  .folder = joinPath(main.MainDirectory, "zones"),
                                                  .proposedName = {},
                                                  .filter = main.text(Text::tableFileFilter)});
    if (!path) return std::nullopt;
    try {
        std::string bytes = readFileStart(*path, mostTableBytes + 1);
        if (bytes.size() <= mostTableBytes) return TableSource{baseNameOf(*path), std::move(bytes)};
        tell(main, filledIn(main.text(Text::tableTooLarge), {fileNameOf(*path)}));
    } catch (const RunTimeError& error) {
        tell(main, error.message());
    }
    return std::nullopt;
}

std::optional<TableSource> tableOnClipboard(const Varnmain& main) {
    std::string text = main.platform().clipboard();
    if (text.size() > mostTableBytes) return std::nullopt;
    const TableText table(text);
    if (table.lines().size() < monthsOfYear) return std::nullopt;
    const TableFormat format = table.guessedFormat();
    const auto rows = table.rows(format);
    if (!readLoads(rows, guessedChoices(rows, format, TableUnit::kilowatts)).years)
        return std::nullopt;
    return TableSource{{}, std::move(text)};
}

}  // namespace varnholt
