// Reads a JSON text, comments allowed, into nodes that know their place.
//
//   JsonReader("list.json", "{ \"title\": 5 }").read().find("title")->span.begin   ->  line 1, column 12
//
// A text that is no JSON, an object that has a key twice, and nesting deeper than kDeepest end the reading with a Fault
// of status kInvalidInput, whose one finding names the place.
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

    // Both texts outlive the reader. `name` is the file's, for findings; `text` should be UTF-8, which read() checks.
    JsonReader(const std::string& name, std::string_view text) : m_name(name), m_text(text), m_places(text) {}

    // The outermost value. To be called once.
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
