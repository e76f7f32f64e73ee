// Lists of parts for programs in C++: mekbom.h with objects that close themselves, and with exceptions.
//
//   mekbom::ListSession session;
//   session.addParts("parts.csv", bytes);
//   session.setTemplate("list.json", text);
//   session.setOptions("{ \"units\": \"imperial\" }");
//   session.evaluate();                                   // throws a ListError, which tells all findings
//   show(session.written("text"));
//
// All of it stands in this header and calls the functions of mekbom.h: nothing of the standard library crosses the border
// of the shared library, so that a host may have another one. What functions do is told there. Texts are UTF-8.
//
// A session is for one thread at a time; it can be moved and not be copied.
#pragma once

#include "mekbom.h"

#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mekbom
{
// Why there is no report.
class ListError : public std::runtime_error
{
public:
    // `findings` is the JSON array of mekbom_findings().
    ListError(mekbom_status status, std::string findings)
        : std::runtime_error("a list could not be made"), m_status(status), m_findings(std::move(findings))
    {
    }

    mekbom_status status() const { return m_status; }
    const std::string& findings() const { return m_findings; }

private:
    mekbom_status m_status;
    std::string m_findings;
};

// A column of rows that are in no file, headed as in a parts list. Of its numbers and texts, each list has one for each
// row, or is empty: a text that is not empty comes first, and a NaN is nothing.
struct ListColumn
{
    std::string heading;
    std::vector<double> numbers;
    std::vector<std::string> texts;
};

class ListSession
{
public:
    // Told in step 0 how many rows have been read, in step 1 how many have been placed in the list; false stops. What it
    // throws comes out of evaluate().
    using Progress = std::function<bool(int step, std::size_t numRows)>;

    ListSession() : m_pSession(mekbom_open())
    {
        if (m_pSession == nullptr)
            throw std::bad_alloc();
    }

    void addParts(const std::string& name, std::string_view bytes)
    {
        require(mekbom_add_parts(m_pSession.get(), name.c_str(), bytes.data(), bytes.size()));
    }

    // Throws a std::invalid_argument for a list that has not as many elements as there are rows.
    void addRows(const std::string& name, const std::vector<ListColumn>& columns, std::size_t numRows)
    {
        std::vector<std::vector<const char*>> texts(columns.size());
        std::vector<mekbom_column> rows(columns.size());
        for (std::size_t i = 0; i < columns.size(); ++i)
        {
            const ListColumn& column = columns[i];
            if ((!column.numbers.empty() && column.numbers.size() != numRows) ||
                (!column.texts.empty() && column.texts.size() != numRows))
                throw std::invalid_argument("column \"" + column.heading +
                                            "\" has not as many cells as there are rows");
            for (const std::string& text : column.texts)
                texts[i].push_back(text.c_str());
            rows[i] = { column.heading.c_str(), column.numbers.empty() ? nullptr : column.numbers.data(),
                        texts[i].empty() ? nullptr : texts[i].data() };
        }
        require(mekbom_add_rows(m_pSession.get(), name.c_str(), rows.data(), rows.size(), numRows));
    }

    void removeParts() { require(mekbom_remove_parts(m_pSession.get())); }

    void setAssemblies(const std::string& name, std::string_view bytes)
    {
        require(mekbom_set_assemblies(m_pSession.get(), name.c_str(), bytes.data(), bytes.size()));
    }

    void setTemplate(const std::string& name, std::string_view bytes)
    {
        require(mekbom_set_template(m_pSession.get(), name.c_str(), bytes.data(), bytes.size()));
    }

    void offerTemplate(const std::string& name, std::string_view bytes)
    {
        require(mekbom_offer_template(m_pSession.get(), name.c_str(), bytes.data(), bytes.size()));
    }

    void setOptions(std::string_view json) { require(mekbom_set_options(m_pSession.get(), json.data(), json.size())); }

    // Makes the report. Throws a ListError where there is none, also of status MEKBOM_STOPPED.
    void evaluate(const Progress& progress = Progress())
    {
        ProgressCall call = { progress, nullptr };
        require(mekbom_set_progress(m_pSession.get(), progress ? &ProgressCall::tell : nullptr, &call));
        const mekbom_status status = mekbom_evaluate(m_pSession.get());
        require(mekbom_set_progress(m_pSession.get(), nullptr, nullptr));
        if (call.pThrown != nullptr)
            std::rethrow_exception(call.pThrown);
        require(status);
    }

    // Whether neither the template nor the parts have mistakes; findings() tells them.
    bool check() { return mekbom_check(m_pSession.get()) == MEKBOM_DONE; }

    std::string findings() const { return textOf(mekbom_findings(m_pSession.get())); }

    // The report, in one of the formats. Throws a ListError for another name; empty without a report.
    std::string written(const std::string& format)
    {
        std::string text = textOf(mekbom_write(m_pSession.get(), format.c_str()));
        if (text.empty() && !columns().empty())
            throw ListError(MEKBOM_WRONG_USAGE, findings());
        return text;
    }

    // In JSON; empty without a report.
    std::string columns() const { return textOf(mekbom_columns(m_pSession.get())); }
    std::string lines(std::size_t first, std::size_t numLines) const
    {
        return textOf(mekbom_lines(m_pSession.get(), first, numLines));
    }
    std::string handles(std::size_t line) const { return textOf(mekbom_handles(m_pSession.get(), line)); }
    std::size_t numLines() const { return mekbom_num_lines(m_pSession.get()); }

    // What there is to choose from, in JSON; empty for a name that is none of "tokens", "kinds", "units", ...
    std::string described(const std::string& what) const
    {
        return textOf(mekbom_describe(m_pSession.get(), what.c_str()));
    }

private:
    // No exception may cross the library, so what is thrown waits here until it has been left.
    struct ProgressCall
    {
        static int tell(void* pUser, int step, std::size_t numRows)
        {
            auto& call = *static_cast<ProgressCall*>(pUser);
            try
            {
                return call.progress(step, numRows) ? 0 : 1;
            }
            catch (...)
            {
                call.pThrown = std::current_exception();
                return 1;
            }
        }

        const Progress& progress;
        std::exception_ptr pThrown;
    };

    struct Closer
    {
        void operator()(mekbom_session* pSession) const { mekbom_close(pSession); }
    };

    static std::string textOf(mekbom_text text) { return std::string(text.bytes, text.size); }

    void require(mekbom_status status) const
    {
        if (status != MEKBOM_DONE)
            throw ListError(status, findings());
    }

    std::unique_ptr<mekbom_session, Closer> m_pSession;
};
}
