// A table of 256 slots for at most 126 texts, so that a look-up meets a free slot soon:
//
//   slot 17   the address of "S235"   number 0
//   slot 18   free
//   slot 19   the address of "S355"   number 1
//
// Texts are kept, so that no other text comes to lie at the address of one that is numbered. When all numbers are
// taken, every thousand look-ups decide whether the table is worth asking: a token whose texts differ from row to row,
// such as a handle, is given up when fewer than half of its texts had a number.
#include "RepeatedTexts.h"

#include "Utf8.h"

#include <algorithm>

namespace mekbom
{
namespace
{
bool isPlain(const std::string& bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return c >= ' ' && c <= '~'; });
}
}

std::size_t RepeatedTexts::add(const VorString& text, std::size_t slot)
{
    const std::size_t number = m_texts.size();
    m_characters[slot] = text.getStringW();
    m_numbers[slot] = static_cast<unsigned char>(number);
    m_originals.push_back(text);
    m_bytes.push_back(std::make_unique<std::string>(Utf8::toBytes(text)));
    const std::string& bytes = *m_bytes.back();
    m_texts.push_back({ bytes.data(), static_cast<std::uint32_t>(bytes.size()), isPlain(bytes) });
    return number;
}

// Notes that a text has no number, and gives the token up once most texts have none.
std::size_t RepeatedTexts::miss()
{
    m_trial.countMiss();
    if (!m_trial.isOver())
        return kNone;
    m_isGivenUp = m_trial.hasFailed();
    m_trial.begin();
    return kNone;
}
}
