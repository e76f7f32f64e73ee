#include "AssemblyRecords.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "HeaderRow.h"
#include "InQuotes.h"
#include "TokenNames.h"
#include "Utf8.h"

#include "VorBomTokenCatalogue.h"

#include <algorithm>
#include <set>
#include <utility>

namespace mekbom
{
namespace
{
std::vector<ColumnName> namesOf(const Record& headings, const HeadingChoices& choices)
{
    std::vector<std::string> texts;
    for (const RecordCell& heading : headings)
        texts.push_back(heading.asText());
    return ColumnNames::of(texts, choices).columns;
}

// Of the first column with this token, which the list must have.
std::size_t columnOf(const std::string& token, const std::vector<ColumnName>& names, const RecordSource& source)
{
    const auto found =
        std::find_if(names.begin(), names.end(), [&token](const ColumnName& name) { return name.token == token; });
    if (found != names.end())
        return static_cast<std::size_t>(found - names.begin());
    Finding finding = Finding::of(FindingCodes::kAssemblyColumnMissing, "no column " + inQuotes(token.substr(1)),
                                  "one that tells which part belongs to which assembly");
    source.placeRecord(finding);
    throw Fault(kInvalidInput, finding);
}

struct TokenOfAssembly
{
    const char* ofPart;
    const char* ofAssembly;
};

// What a list of assemblies calls as a list of parts would.
const TokenOfAssembly kTokensOfAssemblies[] = {
    { "%PNum", "%MNum" },
    { "%Name", "%MName" },
    { TokenNames::kPieces, "%MQuantity" },
    { "%Weight", "%AssemblyWeight" },
    { "%ExactWeight", "%AssemblyExactWeight" },
};

// Whether a number of the catalogue is one of an assembly or of a place, which nobody adds up over parts.
bool isOfAssembly(const std::string& token)
{
    for (const char* const part : { "Assembly", "Level" })
        if (token.find(part) != std::string::npos)
            return true;
    return token == "%MQuantity";
}

// What a part gets a column of its assembly as; empty for one that it does not get.
std::string givenToken(const ColumnName& name)
{
    if (name.isRowTotal)
        return std::string();
    for (const TokenOfAssembly& known : kTokensOfAssemblies)
        if (name.token == known.ofPart)
            return known.ofAssembly;
    const VorBomTokenCatalogue::Entry* const pEntry = VorBomTokenCatalogue::find(Utf8::toWide(name.token));
    const bool isText = pEntry == nullptr || pEntry->type == VorBomDataValue::kStringData;
    return isText || isOfAssembly(name.token) ? name.token : std::string();
}

// One that means the token whatever stands beside it. A heading that the user has mapped to it stays, since the mapping
// has to find it.
std::string givenHeading(const RecordCell& heading, const ColumnName& name, const std::string& token)
{
    if (name.origin == ColumnName::kMapped && name.token == token)
        return heading.asText();
    return token + (name.unit.empty() ? "" : " [" + name.unit + "]");
}
}

AssemblyRecords::AssemblyRecords(std::unique_ptr<RecordSource> pParts, std::unique_ptr<RecordSource> pAssemblies,
                                 HeadingChoices choices)
    : m_pParts(std::move(pParts)), m_pAssemblies(std::move(pAssemblies)), m_choices(std::move(choices))
{
}

const Record* AssemblyRecords::next()
{
    if (!std::exchange(m_isBegun, true))
        return header();
    const Record* const pRecord = m_pParts->next();
    if (pRecord == nullptr)
        return nullptr;
    if (pRecord->size() != m_numPartColumns) // too many cells would pass for what an assembly gives
    {
        Finding finding = HeaderRow::wrongNumberOfFields(pRecord->size(), m_numPartColumns);
        m_pParts->placeRecord(finding);
        throw Fault(kInvalidInput, finding);
    }
    m_record = *pRecord;
    append((*pRecord)[m_assemblyColumn]);
    return &m_record;
}

const Record* AssemblyRecords::header()
{
    const Record& partHeadings = HeaderRow::read(*m_pParts);
    chooseColumns(HeaderRow::read(*m_pAssemblies), partHeadings);
    readAssemblies();
    return &m_record;
}

void AssemblyRecords::chooseColumns(const Record& assemblyHeadings, const Record& partHeadings)
{
    const std::vector<ColumnName> partNames = namesOf(partHeadings, m_choices);
    const std::vector<ColumnName> assemblyNames = namesOf(assemblyHeadings, m_choices);
    m_numPartColumns = partHeadings.size();
    m_numAssemblyColumns = assemblyHeadings.size();
    m_assemblyColumn = columnOf(TokenNames::kAssembly, partNames, *m_pParts);
    m_handleColumn = columnOf(TokenNames::kHandle, assemblyNames, *m_pAssemblies);
    std::set<std::string> partTokens;
    for (const ColumnName& name : partNames)
        partTokens.insert(name.token);
    m_record = partHeadings;
    for (std::size_t i = 0; i < assemblyNames.size(); ++i)
    {
        const std::string token = givenToken(assemblyNames[i]);
        if (i == m_handleColumn || token.empty() || partTokens.count(token) > 0)
            continue;
        m_givenColumns.push_back(i);
        m_texts.push_back(givenHeading(assemblyHeadings[i], assemblyNames[i], token));
        m_record.emplace_back(std::string_view(m_texts.back()));
    }
}

void AssemblyRecords::readAssemblies()
{
    while (const Record* const pRecord = m_pAssemblies->next())
    {
        if (pRecord->size() != m_numAssemblyColumns)
            failInAssembly(HeaderRow::wrongNumberOfFields(pRecord->size(), m_numAssemblyColumns));
        const RecordCell handle = keep((*pRecord)[m_handleColumn]);
        if (handle.isRefused())
            failInAssembly(handle.refusal());
        if (handle.isNothing())
            continue; // nobody can name it
        if (!m_assemblies.emplace(handle.text(), m_givenCells.size()).second)
            failInAssembly(
                Finding::of(FindingCodes::kAssemblyTwice, "handle " + inQuotes(handle.text()) + " a second time"));
        for (const std::size_t column : m_givenColumns)
            m_givenCells.push_back(keep((*pRecord)[column]));
    }
}

void AssemblyRecords::failInAssembly(Finding finding) const
{
    m_pAssemblies->placeRecord(finding);
    throw Fault(kInvalidInput, finding);
}

// The same cell for as long as this object lives. Handles are compared as texts, however their file stores them.
RecordCell AssemblyRecords::keep(const RecordCell& cell)
{
    if (cell.isNothing())
        return cell;
    if (cell.isRefused())
        return RecordCell(m_refusals.emplace_back(cell.refusal()));
    m_texts.push_back(cell.asText());
    return RecordCell(std::string_view(m_texts.back()));
}

void AssemblyRecords::append(const RecordCell& handle)
{
    m_record.resize(m_numPartColumns + m_givenColumns.size());
    if (handle.isNothing())
        return;
    const std::string text = handle.asText();
    const auto found = m_assemblies.find(text);
    if (found == m_assemblies.end())
        failForUnknown(text);
    std::copy_n(m_givenCells.begin() + static_cast<std::ptrdiff_t>(found->second), m_givenColumns.size(),
                m_record.begin() + static_cast<std::ptrdiff_t>(m_numPartColumns));
}

void AssemblyRecords::failForUnknown(std::string_view handle) const
{
    Finding finding = Finding::of(FindingCodes::kAssemblyUnknown, inQuotes(handle),
                                  "the handle of an assembly of " + m_pAssemblies->name());
    m_pParts->placeCell(m_assemblyColumn, finding);
    throw Fault(kInvalidInput, finding);
}

void AssemblyRecords::placeCell(std::size_t index, Finding& finding) const
{
    if (index < m_numPartColumns)
        m_pParts->placeCell(index, finding);
    else
        m_pParts->placeRecord(finding);
}

NumberNotation AssemblyRecords::notationOf(const std::vector<std::size_t>& columns) const
{
    std::vector<std::size_t> ofParts;
    std::vector<std::size_t> ofAssemblies;
    for (const std::size_t column : columns)
        if (column < m_numPartColumns)
            ofParts.push_back(column);
        else
            ofAssemblies.push_back(m_givenColumns[column - m_numPartColumns]);
    const NumberNotation notation = m_pParts->notationOf(ofParts);
    return ofAssemblies.empty() ? notation
                                : NumberNotation::ofEither(notation, m_pAssemblies->notationOf(ofAssemblies));
}
}
