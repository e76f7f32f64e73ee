// A hash table of row numbers is filled once all handles are there, so that it has its size from the beginning. Each
// row looks at its own place, which no cache holds in a large list; so 64 rows ask for their places first, and look
// when the memory has come. Of the handles "2A0", "2A1", "" and "2A0":
//   row 0   "2A0"   enters 0
//   row 1   "2A1"   enters 1
//   row 2   ""      is not looked up: missing is not the same
//   row 3   "2A0"   meets row 0, and is told with it
#include "HandleCheck.h"

#include "ByteWord.h"
#include "InQuotes.h"
#include "MistakeCodes.h"

#include "MekRoots/Exp/VorFibonacciHash.h"
#include "MekRoots/Exp/VorMemoryHint.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace mekbom
{
namespace
{
const std::size_t kMostNamed = 3; // arbitrary: enough to see what they have in common
const std::size_t kRowsAtOnce = 64;

// A short handle is its own key, a longer one has a hash for it; isSame() compares the texts of either.
std::uint64_t keyOf(std::string_view handle)
{
    return handle.size() <= ByteWord::kSize ? ByteWord::of(handle) : ByteWord::hashOf(handle);
}

// Open-addressed: a handle stands at its place or, where that was taken, at the next free one.
class RowTable
{
public:
    explicit RowTable(std::size_t numRows)
    {
        while ((std::size_t{ 1 } << m_numBits) < 2 * numRows)
            ++m_numBits;
        m_entries.resize(std::size_t{ 1 } << m_numBits);
    }

    void willFind(std::uint64_t key) const { VorMemoryHint::willRead(&m_entries[placeOf(key)]); }

    // The row that was entered first with the key and is the same to `isSame`; `row` is entered if there is none.
    template <class Predicate>
    std::size_t findOrEnter(std::uint64_t key, std::size_t row, const Predicate& isSame)
    {
        const auto tag = static_cast<std::uint32_t>(key ^ key >> 32);
        std::size_t place = placeOf(key);
        for (; m_entries[place].rowNumber != 0; place = (place + 1) & (m_entries.size() - 1))
            if (m_entries[place].tag == tag && isSame(m_entries[place].rowNumber - 1))
                return m_entries[place].rowNumber - 1;
        m_entries[place] = { tag, static_cast<std::uint32_t>(row + 1) };
        return row;
    }

private:
    struct Entry
    {
        std::uint32_t tag;       // part of the key, so that few handles are compared in vain
        std::uint32_t rowNumber; // from 1; 0 where the place is free
    };

    std::size_t placeOf(std::uint64_t key) const { return VorFibonacciHash::placeOf(key, m_numBits); }

    std::vector<Entry> m_entries; // at least half of them free
    int m_numBits = 1;
};

Finding notUnique(const std::string& what)
{
    Finding finding = Finding::stating(MistakeCodes::kHandleNotUnique, what);
    finding.remedy = "give each row a handle of its own, or no row any";
    return finding;
}

std::string counted(std::size_t number, const char* singular, const char* plural)
{
    return std::to_string(number) + (number == 1 ? singular : plural);
}
}

void HandleCheck::add(std::string_view handle)
{
    m_bytes += handle;
    m_bounds.push_back(m_bytes.size());
}

std::vector<Finding> HandleCheck::findings() const
{
    std::vector<Finding> findings;
    addRepeated(findings);
    addMissing(findings);
    return findings;
}

// A handle that stands in three rows makes two repetitions, each of the first row and a later one: the table keeps the
// row that came first.
std::vector<HandleCheck::Repetition> HandleCheck::repetitions() const
{
    std::vector<Repetition> repetitions;
    RowTable table(numRows());
    std::array<std::string_view, kRowsAtOnce> handles{};
    std::array<std::uint64_t, kRowsAtOnce> keys{};
    for (std::size_t first = 0; first < numRows(); first += kRowsAtOnce)
    {
        const std::size_t numHandles = std::min(kRowsAtOnce, numRows() - first);
        for (std::size_t i = 0; i < numHandles; ++i)
        {
            handles[i] = handleOf(first + i);
            keys[i] = keyOf(handles[i]);
            table.willFind(keys[i]);
        }
        for (std::size_t i = 0; i < numHandles; ++i)
        {
            const std::size_t same = handles[i].empty() ? first + i
                                                        : table.findOrEnter(keys[i], first + i,
                                                                            [&](std::size_t other)
                                                                            { return handleOf(other) == handles[i]; });
            if (same != first + i)
                repetitions.push_back({ same, first + i });
        }
    }
    return repetitions;
}

// One finding for all, since they mostly have one cause: a column that is no handle, or a file that was appended to
// itself.
void HandleCheck::addRepeated(std::vector<Finding>& findings) const
{
    const std::vector<Repetition> all = repetitions();
    if (all.empty())
        return;
    std::string text;
    const std::size_t numNamed = std::min(all.size(), kMostNamed);
    for (std::size_t i = 0; i < numNamed; ++i)
        text += (i == 0 ? "" : ", ") + ("handle " + inQuotes(handleOf(all[i].row))) + " stands in rows " +
                std::to_string(all[i].firstRow + 1) + " and " + std::to_string(all[i].row + 1);
    if (all.size() > numNamed)
        text += ", and " + counted(all.size() - numNamed, " more row repeats one", " more rows repeat one");
    findings.push_back(notUnique(text));
}

// From the last row to the first, so that the one noted last is the first without a handle.
void HandleCheck::addMissing(std::vector<Finding>& findings) const
{
    std::size_t numMissing = 0;
    std::size_t firstMissing = 0;
    for (std::size_t row = numRows(); row-- > 0;)
        if (handleOf(row).empty())
        {
            ++numMissing;
            firstMissing = row;
        }
    if (numMissing == 0)
        return;
    std::string text = "row " + std::to_string(firstMissing + 1) + " has no handle";
    if (numMissing > 1)
        text += ", " + std::string(numMissing == 2 ? "nor has " : "nor have ") +
                counted(numMissing - 1, " other row", " other rows");
    findings.push_back(notUnique(text));
}
}
