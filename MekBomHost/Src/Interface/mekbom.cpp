// Every function looks at its session, catches whatever is thrown and answers with a status or a text: what is done
// stands in Session. The texts that go out are kept in `answer`, so that a host never frees one.
#include "mekbom.h"

#include "Catalogue.h"
#include "Session.h"

#include <cmath>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct mekbom_session
{
    mekbom::Session session;
    std::string answer;
    bool isEvaluating = false; // and so perhaps calling the host, which must change nothing meanwhile
    bool isToBeClosed = false;
};

namespace
{
using mekbom::Record;
using mekbom::RecordCell;
using mekbom::Session;

const mekbom_text kNothing = { "", 0 };

std::string_view bytesOf(const char* pBytes, size_t size)
{
    return pBytes == nullptr ? std::string_view() : std::string_view(pBytes, size);
}

std::string textOf(const char* pText)
{
    return pText == nullptr ? std::string() : std::string(pText);
}

bool isFree(const mekbom_session* pSession)
{
    return pSession != nullptr && !pSession->isEvaluating;
}

// What `action` answers; a Session throws only where no memory is left.
template <class Action>
mekbom_status statusOf(mekbom_session* pSession, const Action& action)
{
    if (!isFree(pSession))
        return MEKBOM_WRONG_USAGE;
    try
    {
        return static_cast<mekbom_status>(action(pSession->session));
    }
    catch (...)
    {
        return MEKBOM_INTERNAL_FAULT;
    }
}

// The same of what cannot fail otherwise.
template <class Action>
mekbom_status doneOf(mekbom_session* pSession, const Action& action)
{
    return statusOf(pSession,
                    [&action](Session& session)
                    {
                        action(session);
                        return mekbom::kDone;
                    });
}

class Evaluating
{
public:
    explicit Evaluating(mekbom_session& session) : m_session(session) { session.isEvaluating = true; }
    Evaluating(const Evaluating&) = delete;
    Evaluating& operator=(const Evaluating&) = delete;
    ~Evaluating() { m_session.isEvaluating = false; }

private:
    mekbom_session& m_session;
};

// The same of what may call the host, who may close the session meanwhile.
template <class Action>
mekbom_status evaluationOf(mekbom_session* pSession, const Action& action)
{
    if (!isFree(pSession))
        return MEKBOM_WRONG_USAGE;
    const auto evaluate = [&](Session& session)
    {
        const Evaluating evaluating(*pSession);
        return action(session);
    };
    const mekbom_status status = statusOf(pSession, evaluate);
    if (pSession->isToBeClosed)
        mekbom_close(pSession);
    return status;
}

// The text that `action` makes, kept for the host until the next one.
template <class Action>
mekbom_text answerOf(mekbom_session* pSession, const Action& action)
{
    if (!isFree(pSession))
        return kNothing;
    try
    {
        pSession->answer = action(pSession->session);
        return { pSession->answer.c_str(), pSession->answer.size() };
    }
    catch (...)
    {
        return kNothing;
    }
}

// The same of a session that must have a report.
template <class Action>
mekbom_text reportAnswerOf(mekbom_session* pSession, const Action& action)
{
    return answerOf(pSession,
                    [&action](Session& session) { return session.hasReport() ? action(session) : std::string(); });
}

RecordCell cellOf(const mekbom_column& column, size_t row)
{
    const char* const pText = column.texts == nullptr ? nullptr : column.texts[row];
    if (pText != nullptr && *pText != '\0')
        return RecordCell(std::string_view(pText));
    const bool isNumber = column.numbers != nullptr && !std::isnan(column.numbers[row]);
    return isNumber ? RecordCell(column.numbers[row]) : RecordCell();
}
}

const char* mekbom_version(void)
{
    return MEK_VERSION;
}

mekbom_session* mekbom_open(void)
{
    try
    {
        return new mekbom_session;
    }
    catch (...)
    {
        return nullptr;
    }
}

void mekbom_close(mekbom_session* session)
{
    if (session != nullptr && session->isEvaluating)
        session->isToBeClosed = true;
    else
        delete session;
}

mekbom_status mekbom_add_parts(mekbom_session* session, const char* name, const char* bytes, size_t size)
{
    return doneOf(session, [&](Session& of) { of.addParts(textOf(name), bytesOf(bytes, size)); });
}

mekbom_status mekbom_add_rows(mekbom_session* session, const char* name, const mekbom_column* columns,
                              size_t num_columns, size_t num_rows)
{
    const auto fillIn = [columns](size_t row, Record& record)
    {
        for (size_t i = 0; i < record.size(); ++i)
            record[i] = cellOf(columns[i], row);
    };
    const auto add = [&](Session& of)
    {
        std::vector<std::string> headings;
        for (size_t i = 0; i < num_columns; ++i)
            headings.push_back(textOf(columns[i].heading));
        return of.addRows(textOf(name), headings, num_rows, fillIn);
    };
    return statusOf(session, add);
}

mekbom_status mekbom_remove_parts(mekbom_session* session)
{
    return doneOf(session, [](Session& of) { of.removeParts(); });
}

mekbom_status mekbom_set_assemblies(mekbom_session* session, const char* name, const char* bytes, size_t size)
{
    return doneOf(session, [&](Session& of) { of.setAssemblies(textOf(name), bytesOf(bytes, size)); });
}

mekbom_status mekbom_set_template(mekbom_session* session, const char* name, const char* bytes, size_t size)
{
    return doneOf(session, [&](Session& of) { of.setTemplate(textOf(name), bytesOf(bytes, size)); });
}

mekbom_status mekbom_offer_template(mekbom_session* session, const char* name, const char* bytes, size_t size)
{
    return doneOf(session, [&](Session& of) { of.offerTemplate(textOf(name), bytesOf(bytes, size)); });
}

mekbom_status mekbom_set_options(mekbom_session* session, const char* bytes, size_t size)
{
    return statusOf(session, [&](Session& of) { return of.setOptions(bytesOf(bytes, size)); });
}

mekbom_status mekbom_set_progress(mekbom_session* session, mekbom_progress call, void* user)
{
    mekbom::SessionProgress progress;
    if (call != nullptr)
        progress = [call, user](mekbom::RowProgress::eStep step, size_t numRows)
        { return call(user, static_cast<int>(step), numRows) == 0; };
    return doneOf(session, [&](Session& of) { of.setProgress(progress); });
}

mekbom_status mekbom_evaluate(mekbom_session* session)
{
    return evaluationOf(session, [](Session& of) { return of.evaluate(); });
}

mekbom_status mekbom_check(mekbom_session* session)
{
    return evaluationOf(session, [](Session& of) { return of.check(); });
}

mekbom_text mekbom_findings(mekbom_session* session)
{
    return answerOf(session, [](const Session& of) { return of.findingsText(); });
}

mekbom_text mekbom_write(mekbom_session* session, const char* format)
{
    return reportAnswerOf(session,
                          [format](Session& of) { return of.written(textOf(format)).value_or(std::string()); });
}

mekbom_text mekbom_columns(mekbom_session* session)
{
    return reportAnswerOf(session, [](const Session& of) { return of.columns(); });
}

size_t mekbom_num_lines(mekbom_session* session)
{
    return isFree(session) && session->session.hasReport() ? session->session.numLines() : 0;
}

mekbom_text mekbom_lines(mekbom_session* session, size_t first, size_t num_lines)
{
    return reportAnswerOf(session, [&](Session& of) { return of.lines(first, num_lines); });
}

mekbom_text mekbom_handles(mekbom_session* session, size_t line)
{
    return reportAnswerOf(session, [line](Session& of) { return of.handles(line); });
}

mekbom_text mekbom_describe(mekbom_session* session, const char* what)
{
    return answerOf(session, [what](const Session&) { return mekbom::Catalogue::textOf(textOf(what)); });
}
