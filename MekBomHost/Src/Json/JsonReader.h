// Reads a JSON text, comments allowed, into nodes that know their place.
//
//   JsonReader("list.json", "{ \"title\": 5 }").read().find("title")->place   ->  line 1, column 12
//
// Throws a Fault of status kInvalidInput that names the place for what is no JSON, for a key that an object has twice
// and for nesting deeper than kDeepest.
#pragma once

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

    // Both texts outlive the reader. `name` is the file's, for messages.
    JsonReader(const std::string& name, std::string_view text) : m_name(name), m_text(text) {}

    JsonNode read();

private:
    class Handler;

    JsonPlace placeOf(std::size_t offset);
    std::size_t findToken(std::size_t offset) const;
    std::size_t skipComment(std::size_t offset) const;
    [[noreturn]] void fail(const JsonPlace& place, const std::string& message) const;

    const std::string& m_name;
    std::string_view m_text;
    std::size_t m_countedOffset = 0; // the place of this offset is known
    JsonPlace m_countedPlace{ 1, 1 };
};
}
