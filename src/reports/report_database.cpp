// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_database.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/folders.h"

namespace varnholt {
namespace {

/// A name with blanks as a name of the query language.
std::string quoted(const std::string& name) { return '"' + name + '"'; }

const char* typeOf(FieldType type) {
    switch (type) {
        case FieldType::integer:
            return "INTEGER";
        case FieldType::number:
            return "REAL";
        case FieldType::text:
            return "TEXT";
    }
    return "";
}

std::string createTable(const char* table, std::span<const ReportField> fields) {
    std::string columns;
    for (const ReportField& field : fields)
        columns += (columns.empty() ? "" : ", ") + quoted(field.name) + " " + typeOf(field.type);
    return "CREATE TABLE IF NOT EXISTS " + quoted(table) + " (" + columns + ")";
}

std::string columnsOf(std::span<const ReportField> fields) {
    std::string names;
    for (const ReportField& field : fields)
        names += (names.empty() ? "" : ", ") + quoted(field.name);
    return names;
}

std::string insertInto(const char* table, std::span<const ReportField> fields) {
    std::string places = "?";
    for (std::size_t i = 1; i < fields.size(); ++i) places += ", ?";
    return "INSERT INTO " + quoted(table) + " (" + columnsOf(fields) + ") VALUES (" + places + ")";
}

/// The rows of a table that belong to one row of its parent.
std::string childrenIn(const char* table, std::span<const ReportField> fields, const char* key) {
    return "SELECT " + columnsOf(fields) + " FROM " + quoted(table) + " WHERE " + quoted(key) +
           " = ? ORDER BY rowid";
}

void insert(SQLite::Statement& statement, const FieldValues& row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        const int place = static_cast<int>(i) + 1;
        if (const auto* text = std::get_if<std::string>(&row[i]))
            statement.bind(place, *text);
        else if (const auto* number = std::get_if<double>(&row[i]))
            statement.bind(place, *number);
        else if (const auto* whole = std::get_if<std::int64_t>(&row[i]))
            statement.bind(place, *whole);
        else
            statement.bind(place);
    }
    statement.exec();
    statement.reset();
    statement.clearBindings();
}

FieldValues read(SQLite::Statement& statement, std::span<const ReportField> fields) {
    FieldValues row(fields.size());
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const SQLite::Column column = statement.getColumn(static_cast<int>(i));
        if (column.isNull()) continue;
        switch (fields[i].type) {
            case FieldType::integer:
                row[i] = column.getInt64();
                break;
            case FieldType::number:
                row[i] = column.getDouble();
                break;
            case FieldType::text:
                row[i] = std::string(column.getString());
                break;
        }
    }
    return row;
}

constexpr std::size_t zoneKey = fieldNamed(zoneFields, "Zone ID");

}  // namespace

struct ReportDatabase::Connection {
    explicit Connection(const std::string& file)
        : database(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, 0) {
        // A working file needs no proof against a loss of power.
        database.exec("PRAGMA synchronous = OFF");
        database.exec("PRAGMA journal_mode = MEMORY");
    }

    /// The tables of an empty file, with the one row of the project.
    void prepare() {
        database.exec("CREATE TABLE IF NOT EXISTS " + quoted(projectTable) +
                      " (\"Project ID\" INTEGER PRIMARY KEY)");
        database.exec("INSERT OR IGNORE INTO " + quoted(projectTable) + " VALUES (1)");
        database.exec(createTable(zoneTable, zoneFields));
        database.exec(createTable(pumpTable, pumpFields));
        database.exec("CREATE INDEX IF NOT EXISTS \"Zones\" ON " + quoted(zoneTable) +
                      " (\"Project ID\")");
        database.exec("CREATE INDEX IF NOT EXISTS \"Pumps\" ON " + quoted(pumpTable) +
                      " (\"Zone ID\")");
    }

    void fill(const std::vector<ZoneRow>& rows) {
        database.exec("DELETE FROM " + quoted(pumpTable));
        database.exec("DELETE FROM " + quoted(zoneTable));
        SQLite::Statement zones(database, insertInto(zoneTable, zoneFields));
        SQLite::Statement pumps(database, insertInto(pumpTable, pumpFields));
        for (const ZoneRow& row : rows) {
            insert(zones, row.zone);
            for (const FieldValues& pump : row.pumps) insert(pumps, pump);
        }
    }

    std::vector<ZoneRow> hierarchy() {
        std::vector<ZoneRow> rows;
        SQLite::Statement projects(database, "SELECT \"Project ID\" FROM " + quoted(projectTable));
        SQLite::Statement zones(database, childrenIn(zoneTable, zoneFields, "Project ID"));
        SQLite::Statement pumps(database, childrenIn(pumpTable, pumpFields, "Zone ID"));
        while (projects.executeStep()) {
            zones.reset();
            zones.bind(1, projects.getColumn(0).getInt64());
            while (zones.executeStep()) {
                rows.push_back({read(zones, zoneFields), {}});
                addPumps(pumps, rows.back());
            }
        }
        return rows;
    }

    static void addPumps(SQLite::Statement& pumps, ZoneRow& row) {
        const auto* key = std::get_if<std::int64_t>(&row.zone[zoneKey]);
        if (key == nullptr) return;
        pumps.reset();
        pumps.bind(1, *key);
        while (pumps.executeStep()) row.pumps.push_back(read(pumps, pumpFields));
    }

    SQLite::Database database;
};

ReportDatabase::ReportDatabase(std::string file) : file_(std::move(file)) {}

ReportDatabase::~ReportDatabase() = default;

bool ReportDatabase::OpenReportConnection() {
    if (connection_) return true;
    try {
        makeFolders(folderOf(file_));
        connection_ = std::make_unique<Connection>(file_);
    } catch (const RunTimeError&) {
        return false;
    } catch (const SQLite::Exception& error) {
        if (!takeAwayDamaged(error.getErrorCode())) return false;
        try {
            connection_ = std::make_unique<Connection>(file_);
        } catch (const SQLite::Exception&) {
            return false;
        }
    }
    return true;
}

bool ReportDatabase::ResetReportData() {
    connection_.reset();
    return OpenReportConnection();
}

/// A file that is no database of ours is worth nothing. One that is only locked or may not be
/// written is.
bool ReportDatabase::takeAwayDamaged(int errorCode) {
    if (errorCode != SQLITE_NOTADB && errorCode != SQLITE_CORRUPT && errorCode != SQLITE_ERROR)
        return false;
    connection_.reset();
    return removeFile(file_);
}

std::vector<ZoneRow> ReportDatabase::refillFile(const std::vector<ZoneRow>& rows) {
    // Taken at once, so that a lock of another instance is met here and nowhere later.
    SQLite::Transaction transaction(connection_->database, SQLite::TransactionBehavior::IMMEDIATE);
    connection_->prepare();
    connection_->fill(rows);
    std::vector<ZoneRow> filled = connection_->hierarchy();
    transaction.commit();
    return filled;
}

std::vector<ZoneRow> ReportDatabase::refill(const std::vector<ZoneRow>& rows) {
    usedFile_ = false;
    // The second time with a new file in place of a damaged one.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (!ResetReportData()) break;
        try {
            std::vector<ZoneRow> filled = refillFile(rows);
            connection_.reset();
            usedFile_ = true;
            return filled;
        } catch (const SQLite::Exception& error) {
            if (!takeAwayDamaged(error.getErrorCode())) break;
        }
    }
    connection_.reset();
    return rows;
}

}  // namespace varnholt
