// A key is eight bytes, the first one counting most. Told on the marks "HEA-B2", "HEA-B010x" and "HEA-Bé" in natural order:
//   "HEA-B" is what all begin with
//   "2"       '1' '2'                  one digit, then the digit: fewer digits are a smaller number
//   "010x"    '2' '1' '0' 'x'          two digits, as leading zeros tell nothing, and what follows
//   "é"       0xE9                     digits of any number stand where digits do among the other characters
// Each ends in zeros, since a text that ends stands before one that goes on. What cannot be told in a byte ends a key.
#include "VorBomTextKeys.h"

#include "MekRoots/Exp/VorCharacters.h"

#include <algorithm>

namespace
{
constexpr int kNumSymbols = 8;
constexpr wchar_t kLargestSymbol = 0xFF; // and all characters beyond
constexpr int kMostDigits = 9;           // and more

// Up to eight bytes, from the highest one down.
class SymbolWriter
{
public:
    bool isFull() const { return m_nNumFree == 0; }
    void put(wchar_t symbol) { m_key |= static_cast<std::uint64_t>(symbol) << (8 * --m_nNumFree); }
    void end() { m_nNumFree = 0; }
    std::uint64_t key() const { return m_key; }

private:
    std::uint64_t m_key = 0;
    int m_nNumFree = kNumSymbols;
};

void putCharacter(wchar_t character, SymbolWriter& symbols)
{
    const wchar_t symbol = std::clamp(character, wchar_t{ 0 }, kLargestSymbol);
    symbols.put(symbol);
    if (symbol != character || symbol == kLargestSymbol)
        symbols.end();
}

// Puts the run of digits that begins at `pDigit`, and returns its end.
const wchar_t* putDigits(const wchar_t* pDigit, const wchar_t* pTextEnd, SymbolWriter& symbols)
{
    const wchar_t* const pEnd = std::find_if_not(pDigit, pTextEnd, VorCharacters::isDigit<wchar_t>);
    pDigit = std::find_if(pDigit, pEnd, [](wchar_t digit) { return digit != L'0'; });
    const auto numDigits = static_cast<int>(std::min<std::ptrdiff_t>(pEnd - pDigit, kMostDigits));
    symbols.put(static_cast<wchar_t>(L'0' + numDigits));
    if (numDigits == kMostDigits)
        symbols.end();
    for (; pDigit != pEnd && !symbols.isFull(); ++pDigit)
        symbols.put(*pDigit);
    return pEnd;
}

int numSharedCharacters(const VorString& a, const VorString& b, int most)
{
    const int end = std::min({ most, a.length(), b.length() });
    return static_cast<int>(std::mismatch(a.getStringW(), a.getStringW() + end, b.getStringW()).first - a.getStringW());
}
}

VorBomTextKeys::VorBomTextKeys(const std::vector<const VorString*>& texts, bool naturally) : m_isNatural(naturally)
{
    if (texts.empty())
        return;
    m_nNumShared = texts.front()->length();
    for (const VorString* pText : texts)
        m_nNumShared = numSharedCharacters(*texts.front(), *pText, m_nNumShared);
    // Digits may go on in some texts: "B1" and "B10" share a letter, but no number.
    while (naturally && m_nNumShared > 0 && VorCharacters::isDigit(texts.front()->getStringW()[m_nNumShared - 1]))
        --m_nNumShared;
}

std::uint64_t VorBomTextKeys::of(const VorString& text) const
{
    SymbolWriter symbols;
    const wchar_t* pCharacter = text.getStringW() + m_nNumShared;
    const wchar_t* const pEnd = text.getStringW() + text.length();
    while (pCharacter != pEnd && !symbols.isFull())
        if (m_isNatural && VorCharacters::isDigit(*pCharacter))
            pCharacter = putDigits(pCharacter, pEnd, symbols);
        else
            putCharacter(*pCharacter++, symbols);
    return symbols.key();
}
