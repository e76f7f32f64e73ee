// A text of at most seven characters that is copied as one machine word.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

class LimitText
{
public:
    static constexpr std::size_t kMostCharacters = 7;

    LimitText() = default;
    explicit LimitText(std::string_view text)
    {
        std::memcpy(m_characters, text.data(), text.size());
        m_nLength = static_cast<unsigned char>(text.size());
    }

    // Writes eight characters, of which those of the text count, and returns their end.
    char* write(char* out) const
    {
        std::memcpy(out, this, sizeof(*this));
        return out + m_nLength;
    }

    std::string_view view() const { return std::string_view(m_characters, m_nLength); }

    // The same for equal texts alone.
    std::uint64_t bits() const
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, this, sizeof(bits));
        return bits;
    }

private:
    char m_characters[kMostCharacters] = {};
    unsigned char m_nLength = 0;
};
