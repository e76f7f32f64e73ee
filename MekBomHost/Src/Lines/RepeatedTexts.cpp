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

// For a text that there is no number for.
std::size_t RepeatedTexts::miss()
{
    ++m_numMissed;
    if (m_numFound + m_numMissed < kNumTrials)
        return kNone;
    m_isGivenUp = m_numFound < m_numMissed;
    m_numFound = 0;
    m_numMissed = 0;
    return kNone;
}
}
