// The parser reports values but not where they stand. It is given an iterator that counts the characters it has taken,
// so that each report comes when the count is at the end of its token; the token starts at the first character after
// the token before it that is no blank, comment or punctuation:
//
//   { "title": /* shown on top */ "Cutting list" }
//            ^ end of the key     ^ begin        ^ end of the value
//
// A number ends where a character is none of its own: the parser has taken that character too, unless the text ended.
#include "JsonReader.h"

#include "Fault.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "Utf8.h"

#include <nlohmann/json.hpp>

#include <algorithm>
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
        m_keySpan = takeSpan(JsonNode::kText);
        if (!m_open.back().keys.insert(m_key).second)
            m_reader.fail(m_keySpan, Finding::of(FindingCodes::kKeyTwice, "key " + inQuotes(m_key) + " a second time"));
        return true;
    }

    bool parse_error(std::size_t, const std::string&, const nlohmann::json::exception& error) override
    {
        // The parser has taken the character that it did not expect, unless the text was empty.
        const std::size_t offset = m_numPassed == 0 ? 0 : m_numPassed - 1;
        m_reader.fail(m_reader.spanOf(offset, m_numPassed),
                      Finding::of(FindingCodes::kNoJson, "no valid JSON: " + reasonOf(error.what())));
    }

private:
    // An object or array that is not closed yet. It is the last child of the one before it, and so does not move.
    struct Open
    {
        JsonNode* pNode;
        std::unordered_set<std::string> keys;
    };

    // Where the token stands that the parser has just taken.
    // To be called once for each token, in their order: the next one is looked for behind the end of this one.
    TextSpan takeSpan(JsonNode::eKind kind)
    {
        const bool isNumber = kind == JsonNode::kInteger || kind == JsonNode::kNumber;
        const std::size_t begin = m_reader.findToken(m_endOfLast);
        m_endOfLast = isNumber ? m_reader.endOfNumber(begin) : m_numPassed;
        return m_reader.spanOf(begin, m_endOfLast);
    }

    // The node is given its place and key here and its content by the caller, in `m_pLast`. Adding to the children of
    // the innermost open node moves only nodes that are closed, so no pointer of `m_open` is lost.
    bool addValue(JsonNode::eKind kind)
    {
        JsonNode node;
        node.kind = kind;
        node.span = takeSpan(kind);
        node.key = std::move(m_key);
        node.keySpan = m_keySpan;
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
        return true;
    }

    // The depth is bounded here because whoever takes the nodes apart, or destroys them, recurses.
    bool open(JsonNode::eKind kind)
    {
        addValue(kind);
        m_open.push_back({ m_pLast, {} });
        if (m_open.size() > static_cast<std::size_t>(kDeepest))
            m_reader.fail(m_pLast->span, Finding::of(FindingCodes::kNestedTooDeep,
                                                     "more than " + std::to_string(kDeepest) + " levels of nesting"));
        return true;
    }

    bool close()
    {
        m_endOfLast = m_numPassed;
        m_open.back().pNode->span.end = m_reader.m_places.placeOf(m_endOfLast);
        m_open.pop_back();
        return true;
    }

    JsonReader& m_reader;
    const std::size_t& m_numPassed;
    std::size_t m_endOfLast = 0;
    JsonNode m_root;
    std::vector<Open> m_open;
    JsonNode* m_pLast = nullptr;
    std::string m_key;
    TextSpan m_keySpan;
};

// The last two arguments of the parser say that nothing may stand behind the value, and that comments are passed over.
// It reports to the handler as it goes, and makes no tree of its own.
JsonNode JsonReader::read()
{
    requireUtf8();
    std::size_t numPassed = 0;
    Handler handler(*this, numPassed);
    const char* const pEnd = m_text.data() + m_text.size();
    nlohmann::json::sax_parse(CountingIterator(m_text.data(), numPassed), CountingIterator(pEnd, numPassed), &handler,
                              nlohmann::json::input_format_t::json, true, true);
    return std::move(handler.root());
}

// The parser would find such a byte too, but only within texts, and would say so in words of its own.
void JsonReader::requireUtf8()
{
    const std::size_t invalid = Utf8::findInvalid(m_text);
    if (invalid < m_text.size())
        fail(spanOf(invalid, invalid + 1),
             Finding::of(FindingCodes::kTextIsNotUtf8, "a byte that is not UTF-8", "text in UTF-8"));
}

// Braces and brackets are tokens and not passed over: an opening one begins its node, and close() notes where a closing
// one ends.
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

// number := what is made of these characters alone; the parser has checked the order
std::size_t JsonReader::endOfNumber(std::size_t offset) const
{
    return std::min(m_text.find_first_not_of("+-.0123456789eE", offset), m_text.size());
}

TextSpan JsonReader::spanOf(std::size_t begin, std::size_t end)
{
    const TextPlace first = m_places.placeOf(begin);
    return { first, m_places.placeOf(end) };
}

void JsonReader::fail(const TextSpan& span, const Finding& finding) const
{
    throw Fault(kInvalidInput, finding.in(m_name, span));
}
}
