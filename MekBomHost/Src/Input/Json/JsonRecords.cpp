// All objects are gone through twice: for their keys, which the header row must have before the first part is read, and
// for their values. The parser that does it tells no places; an object with a mistake in it is read once more by
// JsonReader, which does:
//
//   line 3 of the file      { "Name": "HEA200", "Length": [ 5 ] }
//   this parser             an array begins: stops
//   JsonReader              the value of "Length" stands on line 1 of the object, columns 29 to 34: line 3 of the file
#include "JsonRecords.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "HeaderRow.h"
#include "InQuotes.h"
#include "InputLimits.h"
#include "JsonReader.h"
#include "Utf8.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace mekbom
{
namespace
{
// The place in the file of what stands at `place` of an object that begins at `begin`.
TextPlace within(const TextPlace& begin, const TextPlace& place)
{
    return { begin.line + place.line - 1, place.line == 1 ? begin.column + place.column - 1 : place.column };
}

// Whole numbers up to this are exact doubles.
constexpr std::uint64_t kLargestExact = std::uint64_t{ 1 } << 53;
}

// The cells of one object at a time, as the parser reports them. Columns are added as keys come that no object had.
class JsonRecords::Cells : public nlohmann::json_sax<nlohmann::json>
{
public:
    // False for what is no valid object of plain values.
    bool read(std::string_view object)
    {
        ++m_numObjects;
        m_depth = 0;
        std::fill(m_cells.begin(), m_cells.end(), RecordCell());
        m_next = 0;
        return nlohmann::json::sax_parse(object.begin(), object.end(), this);
    }

    // Of the object that was read last; good until the next one is.
    const Record& record() const { return m_cells; }

    const Record& header()
    {
        m_cells.clear();
        for (const std::string& key : m_keys)
            m_cells.emplace_back(std::string_view(key));
        return m_cells;
    }

    const std::string& key(std::size_t column) const { return m_keys[column]; }
    std::size_t numColumns() const { return m_keys.size(); }

    bool null() override { return true; }
    bool boolean(bool value) override { return setText(value ? "true" : "false"); }
    bool number_integer(std::int64_t value) override // negative ones alone
    {
        const bool isExact = value >= -static_cast<std::int64_t>(kLargestExact);
        return isExact ? setNumber(static_cast<double>(value)) : setText(std::to_string(value));
    }
    bool number_unsigned(std::uint64_t value) override
    {
        return value <= kLargestExact ? setNumber(static_cast<double>(value)) : setText(std::to_string(value));
    }
    // Whole numbers beyond 64 bits come here as well.
    bool number_float(double value, const std::string& digits) override
    {
        return digits.find_first_of(".eE") != std::string::npos ? setNumber(value) : setText(digits);
    }
    bool string(std::string& value) override
    {
        return value.find('\0') == std::string::npos && setText(std::move(value));
    }
    bool binary(nlohmann::json::binary_t&) override { return false; } // not in texts

    bool start_object(std::size_t) override { return ++m_depth == 1; }
    bool end_object() override { return true; }
    bool start_array(std::size_t) override { return false; }
    bool end_array() override { return true; }

    // Objects mostly have the same keys in the same order.
    bool key(std::string& value) override
    {
        if (value.find('\0') != std::string::npos)
            return false;
        m_column = m_next < m_keys.size() && m_keys[m_next] == value ? m_next : columnOf(value);
        m_next = m_column + 1;
        const bool isFirst = m_seenIn[m_column] != m_numObjects;
        m_seenIn[m_column] = m_numObjects;
        return isFirst;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception&) override { return false; }

private:
    std::size_t columnOf(const std::string& key)
    {
        const auto [found, isNew] = m_columns.emplace(key, m_keys.size());
        if (isNew)
        {
            m_keys.push_back(key);
            m_cells.emplace_back();
            m_texts.emplace_back();
            m_seenIn.push_back(0);
        }
        return found->second;
    }

    // A zero with a minus, which tiny negative numbers become too, is 0.
    bool setNumber(double value)
    {
        m_cells[m_column] = RecordCell(value == 0 ? 0.0 : value);
        return true;
    }

    // Each column has a text of its own, which stays where it is while others change: no column comes once the header row
    // was told, and before that nobody looks at cells.
    bool setText(std::string value)
    {
        m_texts[m_column] = std::move(value);
        m_cells[m_column] = RecordCell(std::string_view(m_texts[m_column]));
        return true;
    }

    std::vector<std::string> m_keys;
    std::unordered_map<std::string, std::size_t> m_columns; // of each key
    std::vector<std::string> m_texts;
    std::vector<int> m_seenIn; // the number of the object in which a key was met last
    Record m_cells;
    int m_numObjects = 0;
    int m_depth = 0;
    std::size_t m_column = 0; // of the key met last
    std::size_t m_next = 0;   // where the next key is looked for first
};

JsonRecords::JsonRecords(ByteSource& source) : m_source(source), m_pCells(std::make_unique<Cells>()) {}

JsonRecords::~JsonRecords() = default;

bool JsonRecords::isBeginOf(std::string_view head)
{
    const auto skipBlanks = [&head] { head.remove_prefix(std::min(head.find_first_not_of(" \t\r\n"), head.size())); };
    head = Utf8::withoutByteOrderMark(head);
    skipBlanks();
    const bool isArray = !head.empty() && head.front() == '[';
    if (isArray)
        head.remove_prefix(1);
    skipBlanks();
    if (isArray && !head.empty() && head.front() == ']')
        return true;
    if (head.empty() || head.front() != '{')
        return false;
    head.remove_prefix(1);
    skipBlanks();
    return !head.empty() && (head.front() == '"' || head.front() == '}');
}

const Record* JsonRecords::next()
{
    if (!m_objects)
        return header();
    m_object = m_objects->next();
    if (m_object.empty())
        return nullptr;
    parse();
    return &m_pCells->record();
}

// Null for a file without objects.
const Record* JsonRecords::header()
{
    m_bytes = m_source.readAll();
    m_objects.emplace(m_source.name(), m_bytes);
    bool isEmpty = true;
    for (m_object = m_objects->next(); !m_object.empty(); m_object = m_objects->next())
    {
        isEmpty = false;
        parse();
        requireColumns();
    }
    m_objects->rewind();
    return isEmpty ? nullptr : &m_pCells->header();
}

void JsonRecords::parse()
{
    if (!m_pCells->read(m_object))
        failInObject();
}

// Looked after with each object: all columns are gone through for each, and those of a million objects with keys of their
// own would take hours.
void JsonRecords::requireColumns() const
{
    if (m_pCells->numColumns() <= InputLimits::kMostColumns)
        return;
    Finding finding = HeaderRow::tooManyColumns(m_pCells->numColumns());
    placeRecord(finding);
    throw Fault(kInvalidInput, finding);
}

void JsonRecords::placeRecord(Finding& finding) const
{
    finding.source = name();
    finding.begin = { m_objects->place().line, 0 };
}

// Of the header row it is the file as a whole that is meant: a key stands in every object.
void JsonRecords::placeCell(std::size_t index, Finding& finding) const
{
    finding.source = name();
    if (m_object.empty())
        return;
    const TextPlace begin = m_objects->place();
    finding.begin = begin;
    const JsonNode object = JsonReader(name(), m_object).read();
    if (const JsonNode* const pValue = object.find(m_pCells->key(index)))
    {
        finding.begin = within(begin, pValue->span.begin);
        finding.end = within(begin, pValue->span.end);
    }
}

// A valid object of plain values with a key of its own for each does not come here, unless it has comments, which
// JsonReader passes over, or a zero character.
void JsonRecords::failInObject() const
{
    JsonNode object;
    try
    {
        object = JsonReader(name(), m_object).read();
    }
    catch (const Fault& fault)
    {
        Finding finding = fault.findings().front();
        if (finding.code == FindingCodes::kNoJson.name)
            finding.code = FindingCodes::kNoJsonParts.name;
        failAt({ finding.begin, finding.end }, finding);
    }
    for (const JsonNode& value : object.children)
    {
        if (value.kind == JsonNode::kObject || value.kind == JsonNode::kArray)
        {
            Finding finding =
                Finding::of(FindingCodes::kPartsWithinParts, inQuotes(value.key) + " with " + value.description(),
                            "a text, a number, true, false or null");
            finding.remedy = "give each part an object of its own, with a key that names the part it belongs to";
            failAt(value.span, finding);
        }
        if (value.text.find('\0') != std::string::npos || value.key.find('\0') != std::string::npos)
            failAt(value.span, Finding::of(FindingCodes::kTextHasZeroByte, "a zero character", "text"));
    }
    failAt({ { 1, 1 }, { 1, 2 } },
           Finding::of(FindingCodes::kNoJsonParts, "a comment within this object", "JSON without"));
}

// `span` is counted from the begin of the object.
void JsonRecords::failAt(const TextSpan& span, const Finding& finding) const
{
    const TextPlace begin = m_objects->place();
    throw Fault(kInvalidInput, finding.in(name(), { within(begin, span.begin), within(begin, span.end) }));
}
}
