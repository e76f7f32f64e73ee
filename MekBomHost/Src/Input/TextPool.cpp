// A table with open addressing. The key of "S355J2" is its six bytes as one number, 32 4A 35 35 33 53 with the 'S'
// lowest: equal keys are equal texts, which need not be compared, and the wide text of a new one can be made from its
// key. A longer text has a hash for a key, whose lowest byte is 0 as no text's first byte is, and is compared. Keys
// scatter over the places (VorFibonacciHash); the next free place is taken where one is in use. When a column's texts
// turn out not to come back, the table is given up for a while (isWorthALook), because a look for each of a million
// different texts would only wait for memory.
#include "TextPool.h"

#include "ByteWord.h"
#include "Utf8.h"

#include <algorithm>
#include <utility>

namespace mekbom
{
namespace
{
const std::size_t kFirstNumEntries = 256;              // a column of materials needs no more
const std::size_t kMostTexts = std::size_t{ 1 } << 16; // with places for twice as many, 2 MB

// After so many texts it shows whether any come back: of 50,000 different ones in any order, 1 look in 25 finds one.
const std::size_t kTextsOnTrial = 4096;
const std::size_t kLooksPerFound = 64;
const std::size_t kTextsWithoutLook = 1 << 16;

bool isAsciiAndSame(char byte, wchar_t character)
{
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x80 && static_cast<wchar_t>(value) == character;
}

// Texts beyond ASCII have fewer characters than bytes.
bool isSame(const VorString& text, std::string_view bytes)
{
    if (static_cast<std::size_t>(text.length()) == bytes.size())
        return std::equal(bytes.begin(), bytes.end(), text.getStringW(), isAsciiAndSame);
    return text == Utf8::toWide(bytes);
}
}

const VorString& TextPool::textOf(std::string_view bytes)
{
    prepare(1);
    if (isLooking())
        return find(bytes);
    m_unshared = Utf8::toWide(bytes);
    return m_unshared;
}

// All that moves texts happens here: the table is judged, emptied or made larger only when it would be more than half
// full. So between two calls find() may hand out references, and always meets a free place.
void TextPool::prepare(std::size_t numTexts)
{
    m_numUnshared -= std::min(m_numUnshared, numTexts);
    if (m_numUnshared > 0 || 2 * (m_numTexts + numTexts) <= m_entries.size())
        return;
    if (!isWorthALook())
        m_numUnshared = kTextsWithoutLook;
    if (m_numUnshared > 0 || m_numTexts + numTexts > kMostTexts)
        forgetAll();
    std::size_t numEntries = std::max(kFirstNumEntries, m_entries.size());
    while (numEntries < 2 * (m_numTexts + numTexts))
        numEntries *= 2;
    if (m_numUnshared == 0)
        resize(numEntries);
}

const VorString& TextPool::find(std::string_view bytes)
{
    if (bytes.size() <= ByteWord::kSize)
        return find(ByteWord::of(bytes));
    ++m_numLooks;
    const std::uint64_t key = ByteWord::hashOf(bytes);
    std::size_t place = placeOf(key);
    for (; m_entries[place].key != 0; place = next(place))
        if (m_entries[place].key == key && isSame(m_entries[place].text, bytes))
            return m_entries[place].text;
    return insert(m_entries[place], key, bytes);
}

const VorString& TextPool::find(std::uint64_t key)
{
    ++m_numLooks;
    std::size_t place = placeOf(key);
    for (; m_entries[place].key != 0; place = next(place))
        if (m_entries[place].key == key)
            return m_entries[place].text;
    char bytes[ByteWord::kSize];
    return insert(m_entries[place], key, ByteWord::write(key, bytes));
}

const VorString& TextPool::insert(Entry& entry, std::uint64_t key, std::string_view bytes)
{
    entry.text = Utf8::toWide(bytes);
    entry.key = key;
    ++m_numTexts;
    return entry.text;
}

// True until it has shown that hardly any text comes back. The trial is as long as there are new texts, however many
// looks find one: a column of few texts is never on trial, so this is not VorHitTrial, which counts looks.
bool TextPool::isWorthALook() const
{
    return m_numTexts < kTextsOnTrial || (m_numLooks - m_numTexts) * kLooksPerFound >= m_numLooks;
}

void TextPool::forgetAll()
{
    m_entries = std::vector<Entry>();
    m_numTexts = 0;
    m_numLooks = 0;
}

void TextPool::resize(std::size_t numEntries)
{
    std::vector<Entry> entries(numEntries);
    m_entries.swap(entries);
    for (m_numBits = 0; numEntries > 1; numEntries /= 2)
        ++m_numBits;
    for (Entry& entry : entries)
        if (entry.key != 0)
            freeEntry(entry.key) = std::move(entry);
}

TextPool::Entry& TextPool::freeEntry(std::uint64_t key)
{
    std::size_t place = placeOf(key);
    while (m_entries[place].key != 0)
        place = next(place);
    return m_entries[place];
}
}
