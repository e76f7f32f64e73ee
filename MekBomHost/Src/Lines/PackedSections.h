// Takes an evaluated report and packs what its lines show, the sections one after the other: what has to be kept of the
// report, in a tenth of the memory its tree would take, until it has been written.
//
//   PackedSections sections(reportTemplate);
//   VorBomEvaluator2::evaluate(reportTemplate.pTemplate.get(), sections);
//   PackedSections::Reader reader(sections);
//   SectionPlace place;
//   while (reader.nextSection(place))
//   {
//       ShownText text;
//       for (std::size_t i = 0; i < reader.numTexts(); ++i)
//           reader.read(text);
//   }
//
// A section has a text for each of its tuples that the template shows, in their order; sections without a line are
// passed over. Beside the texts, values and rows are kept when the constructor is told so.
#pragma once

#include "DecimalPlaces.h"
#include "LineContents.h"
#include "RepeatedTexts.h"
#include "ReportTemplate.h"
#include "SectionPlace.h"
#include "SectionRows.h"
#include "ShownText.h"

#include "VorBomSectionSink.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace mekbom
{
// What is known of many texts without a look at each.
struct TextExtent
{
    // Makes room for a plain text of that length, and for a plain number.
    void addText(std::uint32_t length)
    {
        longest = std::max(longest, length);
        longestWhole = std::max(longestWhole, length);
    }
    void addNumber(std::string_view number)
    {
        const auto length = static_cast<std::uint32_t>(number.size());
        const std::uint32_t decimals = DecimalPlaces::lengthIn(number);
        longest = std::max(longest, length);
        longestWhole = std::max(longestWhole, length - decimals);
        longestDecimals = std::max(longestDecimals, decimals);
    }

    // Makes room for all that the other one is about.
    void add(const TextExtent& other)
    {
        longest = std::max(longest, other.longest);
        longestWhole = std::max(longestWhole, other.longestWhole);
        longestDecimals = std::max(longestDecimals, other.longestDecimals);
        areAllPlain = areAllPlain && other.areAllPlain;
    }

    // In bytes; they say nothing unless all are plain.
    std::uint32_t longest = 0;
    std::uint32_t longestWhole = 0;    // up to the decimal point, of what is no number all of it
    std::uint32_t longestDecimals = 0; // from the point on
    bool areAllPlain = true;
};

class PackedSections : public VorBomSectionSink
{
public:
    class Reader;

    // `reportTemplate` is read while this is constructed, and not looked at later.
    explicit PackedSections(const ReportTemplate& reportTemplate, LineContents contents = LineContents());

    void takeHeader(const VorBomReportSection& header) override;
    void takeFooter(const VorBomReportSection& footer) override;
    void takeMergedRow(const VorBomDataRow& row) override;

    // A place between two sections.
    struct Position
    {
        std::size_t numSections = 0; // before it
        std::size_t page = 0;        // that holds the section behind it, or a later one does
        const char* pNext = nullptr; // in that page; null for its begin
    };

    // Sections that follow each other, up to the one that `end` are before.
    struct Range
    {
        Position begin;
        std::size_t end;
    };

    // The place behind all sections taken until now.
    Position end() const;

    // Has the sections read in another order than they were taken in. Together the ranges have each section once. To be
    // called when the last section has been taken.
    void setOrder(std::vector<Range> ranges) { m_order = std::move(ranges); }

    // What is kept beside the texts.
    LineContents contents() const { return m_contents; }

    // Whether any such section was taken that has a line.
    bool hasLineOf(SectionPlace place) const { return keptOf(place).isTaken; }

    // How far the texts reach that all sections at `place` show of their `index`-th shown tuple.
    TextExtent extentOf(SectionPlace place, std::size_t index) const;

private:
    using Number = std::uint32_t;

    // What the first byte of a text says: up to kLongestPlain the length of a plain one, from kFirstRepeated on the
    // number of a repeated one, kOther that it is neither.
    static constexpr std::size_t kLongestPlain = 127;
    static constexpr std::size_t kFirstRepeated = kLongestPlain + 1;
    static constexpr std::size_t kOther = 255;
    static_assert(kFirstRepeated + RepeatedTexts::kMostTexts <= kOther, "a byte tells all kinds of texts");

    // What is kept of one section of the template.
    struct Kept
    {
        bool hasLine = false;
        bool isTaken = false;
        std::vector<int> tuples;                  // the indices of those that are shown
        std::vector<bool> areNumbers;             // for each of them; of a token that nobody knows, that it may be one
        std::vector<RepeatedTexts> repeatedTexts; // one for each of these tuples
        std::vector<TextExtent> extents;          // one for each of them, of its texts that are not repeated
    };

    // Entries follow each other without gaps, and none goes on in the next page.
    struct Page
    {
        std::unique_ptr<char[]> bytes;
        const char* pEnd = nullptr; // of what is used; set when the next page is begun
    };

    static Kept keptFor(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection);

    const Kept& keptOf(SectionPlace place) const;

    bool take(Kept& kept, const VorBomReportSection& section, bool isFooter);
    void append(const VorBomDataValue& value, Kept& kept, std::size_t index);
    void appendByte(std::size_t byte);
    bool appendPlain(const VorString& text);
    void appendOther(std::string_view text);
    void append(SectionPlace place);
    void append(Number number);
    void append(const VorBomTypedValue& value);
    void makeRoom(std::size_t size);
    void startPage(std::size_t size);
    const char* endOf(std::size_t page) const;

    LineContents m_contents;
    std::vector<Kept> m_headers; // by level
    std::vector<Kept> m_footers;
    bool m_isLastPacked = false;   // the section handed over last has a line
    std::size_t m_numSections = 0; // that have one
    std::vector<Range> m_order;    // in which they are read; without any, in that in which they came
    SectionRows m_rows;            // of each section packed, when they are asked for
    std::vector<Page> m_pages;
    char* m_pNext = nullptr; // the rest of the last page
    char* m_pPageEnd = nullptr;
};

// Reads sections from the first to the last. What it reads lives as long as the sections, to which nothing may be added
// meanwhile. Several readers may read the same sections.
class PackedSections::Reader
{
public:
    explicit Reader(const PackedSections& sections)
        : m_sections(sections), m_rangeEnd(sections.m_order.empty() ? sections.m_numSections : 0)
    {
    }

    // The next section with a line; false at the end. All texts of the one before must have been read, and its values
    // where there are any.
    bool nextSection(SectionPlace& place);

    // How many texts the section shows; as many values follow them.
    std::size_t numTexts() const { return m_numTexts; }

    // The section's rows: of details its own and those merged into it, of another header the one that opened the group,
    // of a footer those it counts. None unless they are kept.
    RowList rows() const;

    // Reads the section's next text into `text`, field by field: compilers copy a returned one by way of memory.
    void read(ShownText& text)
    {
        if (m_pNext == m_pPageEnd)
            turnPages();
        const RepeatedTexts& repeatedTexts = *m_pRepeatedTexts++;
        const Number first = takeByte();
        if (first >= kFirstRepeated && first != kOther)
        {
            text = repeatedTexts.text(first - kFirstRepeated);
            return;
        }
        text.isPlain = first != kOther;
        text.length = text.isPlain ? first : takeNumber();
        text.pBytes = take(text.length);
    }

    // Reads the section's next value; only where values are kept, and after all of its texts.
    void read(VorBomTypedValue& value);

private:
    void turnPages();
    bool turnToNextRange();
    const char* take(std::size_t size)
    {
        const char* const pTaken = m_pNext;
        m_pNext += size;
        return pTaken;
    }
    Number takeByte() { return static_cast<unsigned char>(*take(1)); }
    Number takeNumber()
    {
        Number number = 0;
        std::memcpy(&number, take(sizeof number), sizeof number);
        return number;
    }

    const PackedSections& m_sections;
    const RepeatedTexts* m_pRepeatedTexts = nullptr; // of the text to be read next
    std::size_t m_numTexts = 0;
    std::size_t m_numSections = 0; // that were taken before the next one to be read
    std::size_t m_rangeEnd;        // how many were taken before the range being read ends
    std::size_t m_numRanges = 0;   // read so far, with the one that is being read
    const char* m_pNext = nullptr; // the rest of the page being read
    const char* m_pPageEnd = nullptr;
    std::size_t m_numPagesTurned = 0;
};
}
