// What happens to the block of "%Weight", the token that a hundred rows have for their weight: the first row makes it,
// the others count its users up to 100. When one of them appends "/m", makeRoomAtEnd() finds that others use the block
// too and makes a new one for this row; the old one has 99 users. The new one has room for nine characters and for half
// of the seven there were, three more: a text that grows keeps growing, and mostly writes to a block that it has.
#include "VorString.h"

#include "VorArray.h"
#include "VorCharacters.h"
#include "VorNumberText.h"

#include <algorithm>
#include <functional>
#include <limits>
#include <new>
#include <utility>

namespace
{
using VorCharacters::isDigit;
using VorCharacters::isSpace;
using VorCharacters::toLower;

template <class Number>
int sign(Number a, Number b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

// Position of the first [pWanted, pWanted + wantedLength) in `text` at or after `start`, or -1. The end of the text
// means that nothing was found, but the empty text is found there, too.
int findCharacters(const VorString& text, const wchar_t* pWanted, int wantedLength, int start)
{
    start = std::max(start, 0);
    if (start > text.length())
        return -1;
    const wchar_t* pFirst = text.getStringW();
    const wchar_t* pEnd = pFirst + text.length();
    const wchar_t* pFound = std::search(pFirst + start, pEnd, pWanted, pWanted + wantedLength);
    return pFound == pEnd && wantedLength > 0 ? -1 : static_cast<int>(pFound - pFirst);
}

// Zero characters are compared like any others; they end no text here.
int compareCharacters(const wchar_t* pFirst, int firstLength, const wchar_t* pSecond, int secondLength)
{
    const int shared = std::min(firstLength, secondLength);
    const int order = std::wmemcmp(pFirst, pSecond, static_cast<std::size_t>(shared));
    return order != 0 ? sign(order, 0) : sign(firstLength, secondLength);
}

// A run of digits without its leading zeros, and where it ends: of "B007-2" the run at 1 is "7" and ends at the minus.
// The terminating zero of the text ends every run.
struct DigitRun
{
    explicit DigitRun(const wchar_t* text)
    {
        while (*text == L'0')
            ++text;
        pFirst = text;
        while (isDigit(*text))
            ++text;
        pEnd = text;
    }

    int compare(const DigitRun& other) const
    {
        const auto length = pEnd - pFirst;
        const auto otherLength = other.pEnd - other.pFirst;
        if (length != otherLength)
            return sign(length, otherLength); // more digits, larger number
        return compareCharacters(pFirst, static_cast<int>(length), other.pFirst, static_cast<int>(otherLength));
    }

    const wchar_t* pFirst;
    const wchar_t* pEnd;
};

// Of zero-terminated text; 0 for a null pointer. Lengths that 32 bits cannot hold are out of memory.
int textLength(const wchar_t* text)
{
    if (text == nullptr)
        return 0;
    const std::size_t length = std::wcslen(text);
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        throw std::bad_alloc();
    return static_cast<int>(length);
}
}

// A block is one piece of memory: its head, the characters there is room for and the terminating zero.
VorString::Block* VorString::createBlock(int capacity)
{
    const std::size_t size = sizeof(Block) + (static_cast<std::size_t>(capacity) + 1) * sizeof(wchar_t);
    return ::new (VorMemoryControllerController::allocateArray(size, 1)) Block{ { 1 }, 0, capacity };
}

void VorString::destroyBlock(Block* pBlock)
{
    const std::size_t size = sizeof(Block) + (static_cast<std::size_t>(pBlock->capacity) + 1) * sizeof(wchar_t);
    VorMemoryControllerController::deallocateArray(pBlock, size, 1);
}

VorString::VorString(const wchar_t* text) : VorString(text, textLength(text)) {}

VorString::VorString(const wchar_t* text, int length)
{
    if (text == nullptr || length < 1)
        return;
    wchar_t* pCharacters = nullptr;
    *this = ofLength(length, pCharacters);
    std::copy_n(text, length, pCharacters);
}

VorString VorString::ofLength(int length, wchar_t*& pCharacters)
{
    VorString text;
    text.m_pBlock = createBlock(length);
    text.m_pBlock->length = length;
    pCharacters = text.m_pBlock->characters();
    pCharacters[length] = L'\0';
    return text;
}

void VorString::empty()
{
    removeUser(m_pBlock);
    m_pBlock = nullptr;
}

int VorString::find(const VorString& text, int start) const
{
    return findCharacters(*this, text.getStringW(), text.length(), start);
}

int VorString::find(const wchar_t* text, int start) const
{
    return findCharacters(*this, text == nullptr ? L"" : text, textLength(text), start);
}

// Where nothing is cut off, left and right answer this very text, which costs a user and no block.
VorString VorString::left(int n) const
{
    const int numKept = std::clamp(n, 0, length());
    return numKept == length() ? *this : VorString(getStringW(), numKept);
}

VorString VorString::right(int n) const
{
    const int numKept = std::clamp(n, 0, length());
    return numKept == length() ? *this : VorString(getStringW() + length() - numKept, numKept);
}

// A text without the character keeps its block, which may have other users. One with it gets a new block, cut to the
// characters that stay.
void VorString::removeAll(wchar_t character)
{
    const wchar_t* pFirst = getStringW();
    const wchar_t* pEnd = pFirst + length();
    if (std::find(pFirst, pEnd, character) == pEnd)
        return;
    VorString kept;
    wchar_t* pKept = kept.makeRoomAtEnd(length());
    wchar_t* pKeptEnd = std::remove_copy(pFirst, pEnd, pKept, character);
    if (pKeptEnd == pKept)
    {
        empty();
        return;
    }
    *pKeptEnd = L'\0';
    kept.m_pBlock->length = static_cast<int>(pKeptEnd - pKept);
    *this = std::move(kept);
}

// " 12abc" is 12, "abc" is 0, and "9999999999" is 2147483647.
int VorString::toInteger() const
{
    const wchar_t* pCharacter = getStringW();
    while (isSpace(*pCharacter))
        ++pCharacter;
    const bool isNegative = *pCharacter == L'-';
    if (*pCharacter == L'-' || *pCharacter == L'+')
        ++pCharacter;
    // Digits are read until the value is past 32 bits, which can then only be clamped.
    constexpr long long kSmallest = std::numeric_limits<int>::min();
    constexpr long long kLargest = std::numeric_limits<int>::max();
    long long value = 0;
    for (; isDigit(*pCharacter) && value <= kLargest; ++pCharacter)
        value = value * 10 + (*pCharacter - L'0');
    return static_cast<int>(isNegative ? std::max(-value, kSmallest) : std::min(value, kLargest));
}

// What stands behind the number is of no matter here, so where it ends is not asked.
double VorString::toDouble(const wchar_t* text, int flag)
{
    const wchar_t* pEnd = nullptr;
    return text == nullptr ? 0.0 : VorNumberText::scanDouble(text, pEnd, flag);
}

// An empty text takes over the block of the other one.
VorString& VorString::operator+=(const VorString& other)
{
    if (isEmpty())
        *this = other;
    else
        append(other.getStringW(), other.length());
    return *this;
}

VorString& VorString::operator+=(const wchar_t* text)
{
    append(text, textLength(text));
    return *this;
}

VorString& VorString::operator+=(wchar_t character)
{
    append(character, 1);
    return *this;
}

// When the characters are part of this text, a second user holds their block: makeRoomAtEnd() must take a new one then,
// and the old one stays until they are copied.
void VorString::append(const wchar_t* text, int length)
{
    if (text == nullptr || length < 1)
        return;
    const VorString keepsCharactersAlive = holdsCharacter(text) ? *this : VorString();
    std::copy_n(text, length, makeRoomAtEnd(length));
}

void VorString::append(wchar_t character, int count)
{
    if (count > 0)
        std::fill_n(makeRoomAtEnd(count), count, character);
}

bool VorString::equals(const VorString& other) const
{
    return length() == other.length() && std::equal(getStringW(), getStringW() + length(), other.getStringW());
}

// std::less orders any two pointers; '<' says nothing about pointers into different blocks.
bool VorString::holdsCharacter(const wchar_t* pCharacter) const
{
    const std::less<const wchar_t*> isBefore;
    return !isBefore(pCharacter, getStringW()) && isBefore(pCharacter, getStringW() + length());
}

// Lengthens the text by `numCharacters`, which the caller writes to the place returned. The block is this text's own
// afterwards, with room to spare when the text has grown before. The room grows by half, so that a text put together
// from many pieces is copied about twice in all. The acquire belongs to the release of a user that has just gone on
// another thread: it has read its last before this one writes.
wchar_t* VorString::makeRoomAtEnd(int numCharacters)
{
    const int oldLength = length();
    if (numCharacters > std::numeric_limits<int>::max() - 1 - oldLength)
        throw std::bad_alloc();
    const int newLength = oldLength + numCharacters;
    const bool isOwn = m_pBlock != nullptr && m_pBlock->numUsers.load(std::memory_order_acquire) == 1;
    if (!isOwn || m_pBlock->capacity < newLength)
    {
        const long long grown = oldLength == 0 ? newLength : newLength + oldLength / 2LL;
        const long long largest = std::numeric_limits<int>::max() - 1;
        Block* pBlock = createBlock(static_cast<int>(std::min(grown, largest)));
        std::copy_n(getStringW(), oldLength, pBlock->characters());
        removeUser(m_pBlock);
        m_pBlock = pBlock;
    }
    m_pBlock->length = newLength;
    wchar_t* pPlace = m_pBlock->characters() + oldLength;
    pPlace[numCharacters] = L'\0';
    return pPlace;
}

int VorString::compare(const VorString& a, const VorString& b)
{
    if (a.sharesTextWith(b))
        return 0;
    return compareCharacters(a.getStringW(), a.length(), b.getStringW(), b.length());
}

// "%SumBy:%Weight" and "%SumBy:" are equal over 7 characters: so it is found whether a text begins with another.
int VorString::compare(const VorString& a, const VorString& b, int n)
{
    if (n < 1)
        return 0;
    return compareCharacters(a.getStringW(), std::min(a.length(), n), b.getStringW(), std::min(b.length(), n));
}

// "B2x" against "B10": the letters are equal, the runs 2 and 10 are not and decide. A digit against another character
// is compared as a character.
int VorString::compareWithNumbers(const VorString& a, const VorString& b)
{
    if (a.sharesTextWith(b))
        return 0;
    const wchar_t* pFirst = a.getStringW();
    const wchar_t* pSecond = b.getStringW();
    const wchar_t* pFirstEnd = pFirst + a.length();
    const wchar_t* pSecondEnd = pSecond + b.length();
    while (pFirst != pFirstEnd && pSecond != pSecondEnd)
    {
        if (isDigit(*pFirst) && isDigit(*pSecond))
        {
            const DigitRun first(pFirst);
            const DigitRun second(pSecond);
            if (const int order = first.compare(second))
                return order;
            pFirst = first.pEnd;
            pSecond = second.pEnd;
        }
        else if (*pFirst != *pSecond)
        {
            return sign(*pFirst, *pSecond);
        }
        else
        {
            ++pFirst;
            ++pSecond;
        }
    }
    if (pFirst != pFirstEnd || pSecond != pSecondEnd)
        return pFirst == pFirstEnd ? -1 : 1;
    return compare(a, b); // "B02" and "B2" tie so far
}

// "%name" and "%NAME" are equal here, and neither is changed: characters are folded while they are compared.
int VorString::strCompareNoCase(const void* pFirst, const void* pSecond)
{
    const VorString& first = *static_cast<const VorString*>(pFirst);
    const VorString& second = *static_cast<const VorString*>(pSecond);
    const wchar_t* pFirstCharacter = first.getStringW();
    const wchar_t* pSecondCharacter = second.getStringW();
    const int shared = std::min(first.length(), second.length());
    for (int i = 0; i < shared; ++i)
        if (const int order = sign(toLower(pFirstCharacter[i]), toLower(pSecondCharacter[i])))
            return order;
    return sign(first.length(), second.length());
}

// Every round passes over a run of delimiters and takes what stands before the next one. A run at the end of the text
// leaves an empty piece, which is dropped. Of ",a,,b," with "," come "a" and "b".
void VorString::getTokens(const VorString& text, VorStringArray& pieces, const VorString& delimiters)
{
    // Copies, since both may be elements of `pieces`. NOLINTBEGIN(performance-unnecessary-copy-initialization)
    const VorString source = text;
    const VorString divides = delimiters;
    // NOLINTEND(performance-unnecessary-copy-initialization)
    const wchar_t* pDelimiters = divides.getStringW();
    const wchar_t* pDelimitersEnd = pDelimiters + divides.length();
    const auto isDelimiter = [=](wchar_t c) { return std::find(pDelimiters, pDelimitersEnd, c) != pDelimitersEnd; };

    pieces.empty();
    const wchar_t* pCharacter = source.getStringW();
    const wchar_t* pEnd = pCharacter + source.length();
    while (pCharacter != pEnd)
    {
        const wchar_t* pPiece = std::find_if_not(pCharacter, pEnd, isDelimiter);
        pCharacter = std::find_if(pPiece, pEnd, isDelimiter);
        if (pCharacter != pPiece)
            pieces.append(VorString(pPiece, static_cast<int>(pCharacter - pPiece)));
    }
}
