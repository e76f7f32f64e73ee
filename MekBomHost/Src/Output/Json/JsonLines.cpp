#include "JsonLines.h"

namespace mekbom
{
namespace
{
std::size_t numLinesOf(const EvaluatedReport& report)
{
    std::size_t count = 0;
    ReportLines lines = report.lines();
    for (ReportLine line; lines.next(line);)
        ++count;
    return count;
}
}

JsonLines::JsonLines(const EvaluatedReport& report)
    : m_report(report),
      m_json(report),
      m_lines(report.lines()),
      m_count(numLinesOf(report)),
      m_deepest(static_cast<int>(report.layout().levels().size()) - 1)
{
}

std::string JsonLines::textOf(std::size_t first, std::size_t numLines)
{
    goTo(first);
    std::string text = "[";
    for (std::size_t i = 0; i < numLines && m_next < m_count; ++i)
    {
        m_lines->next(m_line);
        text += i == 0 ? "\n" : ",\n";
        append(text);
        ++m_next;
    }
    return text + "]\n";
}

std::string JsonLines::handlesOf(std::size_t line)
{
    goTo(line);
    std::string members;
    if (m_next < m_count)
    {
        m_lines->next(m_line);
        ++m_next;
        if (isOrdinary() || !m_line.place.hasFooter)
            m_json.appendHandles(m_line, members);
        else
            JsonLine::appendHandles("handles", m_line.footerRows, members);
    }
    else
        JsonLine::appendHandles("handles", RowList(), members);
    return "{" + members.substr(2) + "}\n"; // members of an object that is open begin with a comma
}

void JsonLines::goTo(std::size_t line)
{
    if (line < m_next)
    {
        m_lines.emplace(m_report.lines());
        m_next = 0;
    }
    while (m_next < line && m_lines->next(m_line))
        ++m_next;
}

void JsonLines::append(std::string& text)
{
    text += "{\"line\": " + std::to_string(m_next) + ", \"level\": " + std::to_string(m_line.place.level) +
            ", \"role\": \"" + role() + "\", ";
    m_json.appendAll(m_line, text);
    if (isOrdinary())
        m_json.appendHandles(m_line, text);
    text += "}";
}

bool JsonLines::isOrdinary() const
{
    return m_line.place.hasHeader && m_line.place.level == m_deepest;
}

const char* JsonLines::role() const
{
    if (!m_line.place.hasHeader)
        return "footer";
    if (isOrdinary())
        return "line";
    return m_line.place.hasFooter ? "group" : "header";
}
}
