// One database in memory for all calls. Variables are numbered parameters, which need no look-up; the step of a formula
// with an assignment is a query of its own within the other.
#include "FormulaProgram.h"

#if defined(MEK_HAS_SQLITE)
#include <sqlite3.h>

#include <cstddef>
#include <limits>
#include <vector>

namespace
{
// "Weight*2" -> "?1*2"
std::string withParameters(std::string formula)
{
    for (int i = 0; i < kNumTypicalNames; ++i)
    {
        const std::string name = plainText(kTypicalNames[i]);
        for (std::size_t place = 0; (place = formula.find(name, place)) != std::string::npos;)
            formula.replace(place, name.size(), "?" + std::to_string(i + 1));
    }
    return formula;
}

class SqliteProgram : public FormulaProgram
{
public:
    SqliteProgram()
    {
        sqlite3_open(":memory:", &m_pDatabase);
        for (const TypicalFormula& formula : kTypicalFormulas)
        {
            const PlainFormula plain = plainFormula(formula);
            const std::string step = plain.stepName.empty() ? ""
                                                            : " FROM (SELECT " + withParameters(plain.stepValue) +
                                                                  " AS " + plain.stepName + ")";
            m_queries.push_back("SELECT " + withParameters(plain.result) + step);
        }
    }
    ~SqliteProgram() override { sqlite3_close(m_pDatabase); }

    double evaluate(int index) override
    {
        const std::string& query = m_queries[static_cast<std::size_t>(index)];
        double result = std::numeric_limits<double>::quiet_NaN();
        sqlite3_stmt* pStatement = nullptr;
        if (sqlite3_prepare_v2(m_pDatabase, query.c_str(), static_cast<int>(query.size() + 1), &pStatement, nullptr) !=
            SQLITE_OK)
            return result;
        const int numParameters = sqlite3_bind_parameter_count(pStatement); // up to the last one in the formula
        for (int i = 0; i < numParameters; ++i)
            sqlite3_bind_double(pStatement, i + 1, kTypicalValues[i]);
        if (sqlite3_step(pStatement) == SQLITE_ROW)
            result = sqlite3_column_double(pStatement, 0);
        sqlite3_finalize(pStatement);
        return result;
    }

private:
    sqlite3* m_pDatabase = nullptr;
    std::vector<std::string> m_queries;
};
}

std::unique_ptr<FormulaProgram> makeSqliteProgram()
{
    return std::make_unique<SqliteProgram>();
}
#else
std::unique_ptr<FormulaProgram> makeSqliteProgram()
{
    return nullptr;
}
#endif
