// What does the report cost in SQLite, in memory, from the query to the last line of text?
//   SqliteReport --data parts.csv [--runs N] [--text report.txt]
// Measured as its fastest way: one query that sorts, computes the formula and formats whole lines, and sums added up by
// this program as the rows arrive. Sums by GROUP BY sort the rows once more and take half as long again, window
// functions twice as long. Numbers keep their trailing zeros, dropping them would cost SQLite much.
#include "ComparisonRun.h"
#include "PartsFile.h"

#include <cstdio>
#include <cstdlib>
#include <sqlite3.h>

namespace
{
const char* const kCreate = R"(
    CREATE TABLE parts(handle TEXT, num TEXT, mark TEXT, material TEXT, profile TEXT, length REAL, weight REAL,
                       paint REAL, quantity INTEGER, phase TEXT, class TEXT, coating TEXT, thick REAL, width REAL);
    PRAGMA temp_store = MEMORY;
    PRAGMA cache_size = -16000000;)"; // kilobytes: sort without writing runs apart

const char* const kInsert = "INSERT INTO parts VALUES(?,?,?,?,?,?,?,?,?,?,?,?,?,?)";

const char* const kQuery = R"(
    SELECT printf('%s	%s	%s	%s	%s	%.1f	%.2f	%.2f	%d	%s	%s	%s	%.1f	%.1f	%.1f
', handle, num, mark, material, profile, length, weight, paint, quantity, phase, class, coating, thick, width,
                  length * quantity / 1000), material, mark, weight
    FROM parts ORDER BY material, CAST(substr(mark, 2) AS INTEGER), length DESC)";

class Database
{
public:
    Database()
    {
        sqlite3_config(SQLITE_CONFIG_SINGLETHREAD);
        sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
        check(sqlite3_open(":memory:", &m_pDatabase));
        check(sqlite3_exec(m_pDatabase, kCreate, nullptr, nullptr, nullptr));
    }
    ~Database() { sqlite3_close(m_pDatabase); }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    sqlite3_stmt* prepare(const char* sql)
    {
        sqlite3_stmt* pStatement = nullptr;
        check(sqlite3_prepare_v2(m_pDatabase, sql, -1, &pStatement, nullptr));
        return pStatement;
    }

    void execute(const char* sql) { check(sqlite3_exec(m_pDatabase, sql, nullptr, nullptr, nullptr)); }

    void check(int code)
    {
        if (code == SQLITE_OK || code == SQLITE_DONE)
            return;
        std::fprintf(stderr, "sqlite: %s\n", sqlite3_errmsg(m_pDatabase));
        std::exit(1);
    }

private:
    sqlite3* m_pDatabase = nullptr;
};

bool isText(PartsFile::eColumn column)
{
    return column < PartsFile::kLength || (column > PartsFile::kQuantity && column < PartsFile::kThickness);
}

long long load(Database& database, const std::string& path)
{
    PartsFile file(path);
    long long numRows = 0;
    sqlite3_stmt* pInsert = database.prepare(kInsert);
    database.execute("BEGIN");
    for (; file.next(); ++numRows)
    {
        for (int i = 0; i < PartsFile::kNumColumns; ++i)
        {
            const auto column = static_cast<PartsFile::eColumn>(i);
            const std::string_view text = file.text(column);
            database.check(isText(column) ? sqlite3_bind_text(pInsert, i + 1, text.data(),
                                                              static_cast<int>(text.size()), SQLITE_STATIC)
                                          : sqlite3_bind_double(pInsert, i + 1, file.number(column)));
        }
        database.check(sqlite3_step(pInsert));
        sqlite3_reset(pInsert);
    }
    database.execute("COMMIT");
    sqlite3_finalize(pInsert);
    return numRows;
}

// A group's name and the weight of its rows so far.
struct Group
{
    std::string name;
    double weight = 0;
};

void appendSum(std::string& text, Group& group)
{
    char line[64];
    sqlite3_snprintf(sizeof(line), line, "%.2f\n", group.weight);
    text += line;
    group.weight = 0;
}

class ReportText
{
public:
    explicit ReportText(std::string& text) : m_text(text) {}

    void addRow(sqlite3_stmt* pRow)
    {
        const std::string_view material = column(pRow, 1);
        const std::string_view mark = column(pRow, 2);
        const bool newMaterial = material != m_material.name;
        const bool newMark = newMaterial || mark != m_mark.name;
        if (newMark)
            endGroups(newMaterial);
        if (newMaterial)
            begin(m_material, material);
        if (newMark)
            begin(m_mark, mark);
        m_text += column(pRow, 0);
        const double weight = sqlite3_column_double(pRow, 3);
        for (Group* pGroup : { &m_mark, &m_material, &m_all })
            pGroup->weight += weight;
    }

    void end()
    {
        endGroups(true);
        appendSum(m_text, m_all);
    }

private:
    static std::string_view column(sqlite3_stmt* pRow, int index)
    {
        return std::string_view(reinterpret_cast<const char*>(sqlite3_column_text(pRow, index)),
                                static_cast<std::size_t>(sqlite3_column_bytes(pRow, index)));
    }

    void begin(Group& group, std::string_view name)
    {
        group.name = name;
        m_text += name;
        m_text += '\n';
    }

    void endGroups(bool withMaterial)
    {
        if (m_text.empty())
            return;
        appendSum(m_text, m_mark);
        if (withMaterial)
            appendSum(m_text, m_material);
    }

    std::string& m_text;
    Group m_material;
    Group m_mark;
    Group m_all;
};

void makeReport(Database& database, sqlite3_stmt* pQuery, std::string& text)
{
    text.clear();
    ReportText report(text);
    int code = sqlite3_step(pQuery);
    for (; code == SQLITE_ROW; code = sqlite3_step(pQuery))
        report.addRow(pQuery);
    database.check(code);
    sqlite3_reset(pQuery);
    report.end();
}
}

int main(int argc, char** argv)
{
    const ComparisonRun run(argc, argv);
    Database database;
    const long long numRows = load(database, run.dataPath());
    sqlite3_stmt* pQuery = database.prepare(kQuery);
    std::string text;
    std::vector<double> times;
    for (int i = 0; i < run.numRuns(); ++i)
    {
        const Stopwatch stopwatch;
        makeReport(database, pQuery, text);
        times.push_back(stopwatch.milliseconds());
    }
    sqlite3_finalize(pQuery);
    run.writeText(text);
    ComparisonRun::Line("SQLite " SQLITE_VERSION, numRows).add("milliseconds", times).print();
    return 0;
}
