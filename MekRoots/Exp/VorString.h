// A wide-character text.
//
//   VorString token(L"%SumBy:%Weight");
//   token.find(L"%SumBy:", 0)  ->  0
//   token.right(7)             ->  "%Weight"
//
// Invariants:
//   1. A text is one pointer to a block that holds a count of its users, the length and the characters; the empty text
//      is a null pointer. Copying a text counts a user up, whatever its length: the same few tokens stand in every row
//      and every evaluated section of a report.
//   2. A block with more than one user is never written to. Every operation that changes a text first gives it a block
//      of its own.
// Copies may be used and destroyed on different threads; one VorString object is for one thread at a time. Where there
// is one thread alone users are counted without locks, and where a program promises as good as that.
//
// Texts are ordered by the numeric value of their characters; nothing here knows a locale. Positions and lengths count
// characters of type wchar_t, whatever their width on the platform.
#pragma once

#include "MekExport.h"
#include "VorMemoryControllerController.h"

#include <atomic>
#include <cstddef>
#include <cwchar>
#include <utility>

#if defined(__has_include)
#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#define MEK_KNOWS_SINGLE_THREADED
#endif
#endif

// The array of VorArray.h, named here with its defaults because texts are split into one.
template <class T>
class VorArrayObjectCopyReallocator;
template <class T>
class VorArrayMemoryController;
template <class T, class R = VorArrayObjectCopyReallocator<T>, class M = VorArrayMemoryController<T>>
class VorArray;

class VorString;
using VorStringArray = VorArray<VorString>;

class MEK_ROOTS_API VorString
{
public:
    constexpr VorString() noexcept = default;

    // From zero-terminated text; a null pointer gives the empty text.
    VorString(const wchar_t* text);

    // From `length` characters, zero characters included; a null pointer or a length below 1 gives the empty text.
    VorString(const wchar_t* text, int length);

    // A text of `length` characters, at least 1, which the caller writes to `pCharacters` before it does anything else
    // with the text; the terminating zero is there.
    static VorString ofLength(int length, wchar_t*& pCharacters);

    VorString(const VorString& other) noexcept : m_pBlock(other.m_pBlock) { addUser(m_pBlock); }
    VorString(VorString&& other) noexcept : m_pBlock(other.m_pBlock) { other.m_pBlock = nullptr; }
    VorString& operator=(const VorString& other) noexcept;
    VorString& operator=(VorString&& other) noexcept;
    ~VorString() { removeUser(m_pBlock); }

    int length() const { return m_pBlock == nullptr ? 0 : m_pBlock->length; }
    int isEmpty() const { return m_pBlock == nullptr ? 1 : 0; }

    // The characters with a terminating zero; never null, valid until this text changes or is destroyed.
    const wchar_t* getStringW() const { return m_pBlock == nullptr ? L"" : m_pBlock->characters(); }

    void empty();

    // Replaces the text by what printf gives for `pattern` in the C locale: flags, width and precision (both may be
    // '*', and stop at 1,000,000), the conversions d i u x X o c s f F e E g G % and the length marks h hh l ll z j t.
    // "%c" takes a wide character, "%s" wide text (null shows as "(null)"). Anything else after '%' is copied as it
    // stands. A null pattern gives the empty text. The arguments may refer to this text.
    void format(const wchar_t* pattern, ...);

    // Position of the first `text` at or after `start`; -1 when there is none or `start` is past the end. A negative
    // start counts as 0. The empty text, which a null pointer stands for as well, is found at `start`.
    int find(const VorString& text, int start) const;
    int find(const wchar_t* text, int start) const;

    // The first or last `n` characters; n is clamped to 0...length.
    VorString left(int n) const;
    VorString right(int n) const;

    void removeAll(wchar_t character);

    // The longest number at the start, after white space; 0 when there is none. toInteger clamps to the 32-bit range;
    // toDouble reads what wcstod does in the C locale, and with a nonzero `flag` takes a decimal comma as well.
    int toInteger() const;
    double toDouble(int flag = 0) const { return toDouble(getStringW(), flag); }
    static double toDouble(const wchar_t* text, int flag); // a null text gives 0

    VorString& operator+=(const VorString& other);
    VorString& operator+=(const wchar_t* text);
    VorString& operator+=(wchar_t character);

    // Appends `length` characters. They may be part of this text.
    void append(const wchar_t* text, int length);
    void append(wchar_t character, int count);

    bool operator==(const VorString& other) const { return m_pBlock == other.m_pBlock || equals(other); }
    bool operator!=(const VorString& other) const { return !(*this == other); }

    // True when both texts are one and the same block, which makes them equal; false says nothing.
    bool sharesTextWith(const VorString& other) const { return m_pBlock == other.m_pBlock; }

    // Where the text lies in memory; null for the empty one. For fetching it ahead, not for reading.
    const void* memory() const { return m_pBlock; }

    // Promises that no text is used on one thread while a copy of it is on another, whatever threads this process will
    // have: users are then counted without locks all the same, which takes a twelfth off the time of a report of many
    // rows. For the main() of a program whose other threads share no texts, before it starts them; not for a library,
    // which does not know. Cannot be taken back.
    static void promiseNotToShare() { s_isNotShared = true; }

    // -1, 0 or 1 by the characters' numeric values from the left; a prefix comes before the longer text.
    static int compare(const VorString& a, const VorString& b);

    // The same over the first `n` characters of each; n below 1 gives 0.
    static int compare(const VorString& a, const VorString& b, int n);

    // -1, 0 or 1 in natural order: runs of the digits 0-9 compare by value, whatever their length, everything else as
    // compare does, a run against another character by its first digit. "B2" comes before "B10"; "B02" before "B2",
    // which tie so far and are then ordered by compare: only identical texts give 0.
    static int compareWithNumbers(const VorString& a, const VorString& b);

    // -1, 0 or 1 with A-Z folded to a-z. Takes two pointers to VorString, as sort callbacks do.
    static int strCompareNoCase(const void* pFirst, const void* pSecond);

    // Replaces `pieces` by the parts of `text` between runs of the characters of `delimiters`; there are no empty
    // parts. "a  b+c" at " +" gives "a", "b", "c". `text` and `delimiters` may be elements of `pieces`.
    static void getTokens(const VorString& text, VorStringArray& pieces, const VorString& delimiters);

private:
    struct Block
    {
        std::atomic<int> numUsers;
        int length;
        int capacity; // characters there is room for, the terminating zero not counted

        wchar_t* characters() { return reinterpret_cast<wchar_t*>(this + 1); }
        const wchar_t* characters() const { return reinterpret_cast<const wchar_t*>(this + 1); }
    };

    static Block* createBlock(int capacity);
    static void destroyBlock(Block* pBlock);
    static void addUser(Block* pBlock) noexcept;
    static void removeUser(Block* pBlock) noexcept;
    static bool isCountedPlainly() noexcept;

    bool equals(const VorString& other) const;
    bool holdsCharacter(const wchar_t* pCharacter) const;
    wchar_t* makeRoomAtEnd(int numCharacters);

    static inline bool s_isNotShared = false; // before there is a second thread, so that none sees it change

    Block* m_pBlock = nullptr;
};

// A locked increment costs twenty times a plain one; while the process has a single thread the plain one is enough.
inline bool VorString::isCountedPlainly() noexcept
{
#if defined(MEK_KNOWS_SINGLE_THREADED)
    if (__builtin_expect(__libc_single_threaded, 1)) // the locked increment is slow either way
        return true;
#endif
    return s_isNotShared;
}

inline void VorString::addUser(Block* pBlock) noexcept
{
    if (pBlock == nullptr)
        return;
    if (isCountedPlainly())
    {
        pBlock->numUsers.store(pBlock->numUsers.load(std::memory_order_relaxed) + 1, std::memory_order_relaxed);
        return;
    }
    pBlock->numUsers.fetch_add(1, std::memory_order_relaxed);
}

inline void VorString::removeUser(Block* pBlock) noexcept
{
    if (pBlock == nullptr)
        return;
    if (isCountedPlainly())
    {
        const int numLeft = pBlock->numUsers.load(std::memory_order_relaxed) - 1;
        pBlock->numUsers.store(numLeft, std::memory_order_relaxed);
        if (numLeft == 0)
            destroyBlock(pBlock);
        return;
    }
    if (pBlock->numUsers.fetch_sub(1, std::memory_order_acq_rel) == 1)
        destroyBlock(pBlock);
}

inline VorString& VorString::operator=(const VorString& other) noexcept
{
    VorString copy(other);
    std::swap(m_pBlock, copy.m_pBlock);
    return *this;
}

inline VorString& VorString::operator=(VorString&& other) noexcept
{
    if (this != &other)
    {
        removeUser(m_pBlock);
        m_pBlock = other.m_pBlock;
        other.m_pBlock = nullptr;
    }
    return *this;
}
