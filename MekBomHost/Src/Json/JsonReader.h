// Reads a JSON text, comments allowed, into nodes that know their place.
//
//   JsonReader("list.json", "{ \"title\": 5 }").read().find("title")->span.begin   ->  line 1, column 12
//
// A text that is no JSON, an object that has a key twice, and nesting deeper than kDeepest end the reading with a Fault
// of status kInvalidInput, whose one finding names the place. What the values mean is not its business: that is asked
// of the nodes by a JsonChecker, which goes on after a mistake.
#pragma once

#include "Finding.h"
#include "JsonNode.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace mekbom
{
class JsonReader
{
public:
    static constexpr int kDeepest = 500; // arbitrary: no list nests its groups so deep, and reading it recurses

    // Both texts must outlive the reader, but not the nodes, which own theirs. `name` is the file's, for findings;
    // `text` should be UTF-8, which read() checks, and may begin with a byte order mark.
    JsonReader(const std::string& name, std::string_view text) : m_name(name), m_text(text), m_places(text) {}

    // The outermost value with all that is in it. To be called once.
    JsonNode read();

private:
    class Handler;

    void requireUtf8();
    std::size_t findToken(std::size_t offset) const;
    std::size_t skipComment(std::size_t offset) const;
    std::size_t endOfNumber(std::size_t offset) const;
    TextSpan spanOf(std::size_t begin, std::size_t end);
    [[noreturn]] void fail(const TextSpan& span, const Finding& finding) const;

    const std::string& m_name;
    std::string_view m_text;
    PlaceCounter m_places;
};
}
