// The parser reports values but not where they stand. It is given an iterator that counts the characters it has taken,
// so that each report comes when the count is at the end of its token; the token starts at the first character after
// the token before it that is no blank, comment or punctuation:
//
//   { "title": /* shown on top */ "Cutting list" }
//            ^ end of the key      ^ start of the value
#include "JsonReader.h"

#include "Fault.h"
#include "MessageText.h"
#include "Utf8.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace mekbom
{
namespace
{
// Walks over characters and tells how many it has passed.
class CountingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* pCharacter, std::size_t& numPassed)
        : m_pCharacter(pCharacter), m_pNumPassed(&numPassed)
    {
    }

    reference operator*() const { return *m_pCharacter; }
    bool operator==(const CountingIterator& other) const { return m_pCharacter == other.m_pCharacter; }
    bool operator!=(const CountingIterator& other) const { return m_pCharacter != other.m_pCharacter; }

    CountingIterator& operator++()
    {
        ++m_pCharacter;
        ++*m_pNumPassed;
        return *this;
    }

private:
    const char* m_pCharacter;
    std::size_t* m_pNumPassed;
};

// "[json.exception.parse_error.101] parse error at line 1, column 2: syntax error while ... - unexpected '}'; expected
// string literal"  ->  "unexpected '}'; expected string literal"
std::string reasonOf(const std::string& message)
{
    const std::size_t unexpected = message.find("unexpected ");
    if (unexpected != std::string::npos)
        return message.substr(unexpected);
    const std::size_t dash = message.find(" - ");
    return dash == std::string::npos ? message : message.substr(dash + 3);
}
}

// Builds the nodes from what the parser reports.
class JsonReader::Handler : public nlohmann::json_sax<nlohmann::json>
{
public:
    Handler(JsonReader& reader, const std::size_t& numPassed) : m_reader(reader), m_numPassed(numPassed) {}

    JsonNode& root() { return m_root; }

    bool null() override { return addValue(JsonNode::kNull); }

    bool boolean(bool value) override
    {
        addValue(JsonNode::kBoolean);
        m_pLast->boolean = value;
        return true;
    }

    bool number_integer(std::int64_t value) override
    {
        return addNumber(JsonNode::kInteger, static_cast<double>(value));
    }
    bool number_unsigned(std::uint64_t value) override
    {
        return addNumber(JsonNode::kInteger, static_cast<double>(value));
    }
    bool number_float(double value, const std::string&) override { return addNumber(JsonNode::kNumber, value); }

    bool string(std::string& value) override
    {
        addValue(JsonNode::kText);
        m_pLast->text = std::move(value);
        return true;
    }

    bool binary(nlohmann::json::binary_t&) override { return false; } // not in texts

    bool start_object(std::size_t) override { return open(JsonNode::kObject); }
    bool start_array(std::size_t) override { return open(JsonNode::kArray); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }

    bool key(std::string& value) override
    {
        m_key = std::move(value);
        m_keyPlace = takePlace();
        if (!m_open.back().keys.insert(m_key).second)
            m_reader.fail(m_keyPlace, "found key " + inQuotes(m_key) + " a second time");
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& error) override
    {
        const std::size_t offset = m_numPassed == 0 ? 0 : m_numPassed - 1;
        m_reader.fail(m_reader.placeOf(offset), "found no valid JSON: " + reasonOf(error.what()));
    }

private:
    // An object or array that is not closed yet. It is the last child of the one before it, and so does not move.
    struct Open
    {
        JsonNode* pNode;
        std::unordered_set<std::string> keys;
    };

    // The place of the token that ends here.
    JsonPlace takePlace()
    {
        const JsonPlace place = m_reader.placeOf(m_reader.findToken(m_endOfLast));
        m_endOfLast = m_numPassed;
        return place;
    }

    bool addValue(JsonNode::eKind kind)
    {
        JsonNode node;
        node.kind = kind;
        node.place = takePlace();
        node.key = std::move(m_key);
        node.keyPlace = m_keyPlace;
        m_key.clear();
        if (m_open.empty())
        {
            m_root = std::move(node);
            m_pLast = &m_root;
            return true;
        }
        std::vector<JsonNode>& siblings = m_open.back().pNode->children;
        siblings.push_back(std::move(node));
        m_pLast = &siblings.back();
        return true;
    }

    bool addNumber(JsonNode::eKind kind, double value)
    {
        addValue(kind);
        m_pLast->number = value;
        --m_endOfLast; // the character after the number has been taken, too
        return true;
    }

    bool open(JsonNode::eKind kind)
    {
        addValue(kind);
        m_open.push_back({ m_pLast, {} });
        if (m_open.size() > static_cast<std::size_t>(kDeepest))
            m_reader.fail(m_pLast->place, "found more than " + std::to_string(kDeepest) + " levels of nesting");
        return true;
    }

    bool close()
    {
        m_open.pop_back();
        m_endOfLast = m_numPassed;
        return true;
    }

    JsonReader& m_reader;
    const std::size_t& m_numPassed;
    std::size_t m_endOfLast = 0;
    JsonNode m_root;
    std::vector<Open> m_open;
    JsonNode* m_pLast = nullptr;
    std::string m_key;
    JsonPlace m_keyPlace;
};

JsonNode JsonReader::read()
{
    const std::size_t invalid = Utf8::findInvalid(m_text);
    if (invalid < m_text.size())
        fail(placeOf(invalid), "found a byte that is not UTF-8, expected text in UTF-8");
    std::size_t numPassed = 0;
    Handler handler(*this, numPassed);
    const char* const pEnd = m_text.data() + m_text.size();
    nlohmann::json::sax_parse(CountingIterator(m_text.data(), numPassed), CountingIterator(pEnd, numPassed), &handler,
                              nlohmann::json::input_format_t::json, true, true);
    return std::move(handler.root());
}

// Counts on from the last place asked for; asked for in the order of the text, all places cost one pass.
JsonPlace JsonReader::placeOf(std::size_t offset)
{
    if (offset < m_countedOffset)
    {
        m_countedOffset = 0;
        m_countedPlace = { 1, 1 };
    }
    for (; m_countedOffset < offset && m_countedOffset < m_text.size(); ++m_countedOffset)
    {
        const char character = m_text[m_countedOffset];
        if (character == '\n')
            m_countedPlace = { m_countedPlace.line + 1, 1 };
        else if ((static_cast<unsigned char>(character) & 0xC0) != 0x80)
            ++m_countedPlace.column;
    }
    return m_countedPlace;
}

std::size_t JsonReader::findToken(std::size_t offset) const
{
    const std::string_view between = " \t\r\n,:\xEF\xBB\xBF"; // with the byte order mark in front of the first
    for (;;)
    {
        offset = m_text.find_first_not_of(between, offset);
        if (offset == std::string_view::npos)
            return m_text.size();
        if (m_text[offset] != '/')
            return offset;
        offset = skipComment(offset);
    }
}

// comment := '/' '/' text up to the line's end | '/' '*' text '*' '/'
std::size_t JsonReader::skipComment(std::size_t offset) const
{
    const bool isLine = m_text.substr(offset, 2) == "//";
    const std::size_t end = m_text.find(isLine ? "\n" : "*/", offset + 2);
    return end == std::string_view::npos ? m_text.size() : end + (isLine ? 1 : 2);
}

void JsonReader::fail(const JsonPlace& place, const std::string& message) const
{
    throw Fault(kInvalidInput,
                m_name + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " + message);
}
}
