#include "CsvText.h"

namespace mekbom::CsvText
{
namespace
{
// A blank at either end needs no quotes by the rules, but readers differ on whether it belongs to the field.
bool needsQuotes(std::string_view field, char delimiter)
{
    for (const char c : field)
        if (c == delimiter || c == '"' || c == '\r' || c == '\n')
            return true;
    return !field.empty() && (field.front() == ' ' || field.back() == ' ');
}
}

void append(std::string& record, std::string_view field, char delimiter)
{
    if (!needsQuotes(field, delimiter))
    {
        record += field;
        return;
    }
    record += '"';
    for (const char c : field)
        record.append(c == '"' ? 2 : 1, c);
    record += '"';
}

std::string defused(std::string_view text)
{
    return (isFormula(text) ? "'" : "") + std::string(text);
}

bool isFormula(std::string_view text)
{
    return !text.empty() && std::string_view("=+-@\t\r").find(text.front()) != std::string_view::npos;
}
}
