// The texts that a table shows of an evaluated report, packed one after the other: what has to be kept of it, in a tenth
// of the memory its tree would take, until all texts are known and the columns are as wide as the widest of them.
//
//   SectionTexts texts(reportTemplate);
//   VorBomEvaluator2::evaluate(pTemplate, texts);
//   SectionTexts::Reader reader(texts);
//   for (SectionPlace place; reader.nextSection(place);)
//       for (SectionText& text : texts)      as many as the template says that this section shows
//           reader.read(text);
//
// Sections without a line are passed over. Texts are in UTF-8.
#pragma once

#include "ReportTemplate.h"
#include "SectionText.h"
#include "SharedTexts.h"

#include "VorBomSectionSink.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace mekbom
{
// Which section of the template a line comes from.
struct SectionPlace
{
    int level = 0; // 0 is the report's outermost
    bool isFooter = false;
};

// What is known of all texts of a tuple.
struct TextExtent
{
    std::uint32_t longest = 0; // in bytes
    bool areAllPlain = true;
};

class SectionTexts : public VorBomSectionSink
{
public:
    class Reader;

    explicit SectionTexts(const ReportTemplate& reportTemplate);

    void takeHeader(const VorBomReportSection& header) override;
    void takeFooter(const VorBomReportSection& footer) override;

    // How many sections of the deepest level were taken, with a line or without.
    int numDetails() const { return m_numDetails; }

    // Whether there is any line of that section, and how far the texts reach that it shows in its `index`-th column.
    bool hasLineOf(SectionPlace place) const { return choiceOf(place).isTaken; }
    TextExtent extentOf(SectionPlace place, std::size_t index) const;

private:
    using Number = std::uint32_t;

    // What the first byte of a text says: the length of a plain one up to kLongestPlain, from kFirstShared on the number
    // of a shared one, or kOther.
    static constexpr std::size_t kLongestPlain = 127;
    static constexpr std::size_t kFirstShared = kLongestPlain + 1;
    static constexpr std::size_t kOther = 255;
    static_assert(kFirstShared + SharedTexts::kMostTexts <= kOther, "a byte tells all kinds of texts");

    // What is taken of one section of the template.
    struct Choice
    {
        bool hasLine = false;
        bool isTaken = false;
        std::vector<int> tuples;
        std::vector<SharedTexts> sharedTexts; // one for each of the tuples, as the next
        std::vector<TextExtent> extents;      // of the other texts
    };

    // Entries follow each other without gaps, and none goes on in the next page.
    struct Page
    {
        std::unique_ptr<char[]> bytes;
        const char* pEnd = nullptr; // of what is used; set when the next page is begun
    };

    static Choice choiceFor(const ReportTemplate& reportTemplate, const VorBomItemBase* pSection);

    const Choice& choiceOf(SectionPlace place) const;

    void take(Choice& choice, const VorBomTemplateItem& section, SectionPlace place);
    void append(const VorBomDataValue& value, SharedTexts& sharedTexts, TextExtent& extent);
    void appendByte(std::size_t byte);
    bool appendPlain(const VorString& text);
    void appendOther(std::string_view text);
    void append(Number number);
    void makeRoom(std::size_t size);
    void startPage(std::size_t size);
    const char* endOf(std::size_t page) const;

    std::vector<Choice> m_headers; // by level
    std::vector<Choice> m_footers;
    int m_numDetails = 0;
    std::vector<Page> m_pages;
    char* m_pNext = nullptr; // the rest of the last page
    char* m_pPageEnd = nullptr;
};

// Reads texts from the first to the last. They outlive the reader and do not change meanwhile.
class SectionTexts::Reader
{
public:
    explicit Reader(const SectionTexts& texts) : m_texts(texts) {}

    // The next section with a line; false at the end. All texts of the one before must have been read.
    bool nextSection(SectionPlace& place);

    // Reads the section's next text into `text`, field by field: compilers copy a returned one by way of memory.
    void read(SectionText& text)
    {
        if (m_pNext == m_pPageEnd)
            turnPages();
        const SharedTexts& sharedTexts = *m_pSharedTexts++;
        const Number first = static_cast<unsigned char>(*take(1));
        if (first >= kFirstShared && first != kOther)
        {
            text = sharedTexts.text(first - kFirstShared);
            return;
        }
        text.isPlain = first != kOther;
        text.length = text.isPlain ? first : takeNumber();
        text.pBytes = take(text.length);
    }

private:
    void turnPages();
    const char* take(std::size_t size)
    {
        const char* const pTaken = m_pNext;
        m_pNext += size;
        return pTaken;
    }
    Number takeNumber()
    {
        Number number = 0;
        std::memcpy(&number, take(sizeof number), sizeof number);
        return number;
    }

    const SectionTexts& m_texts;
    const SharedTexts* m_pSharedTexts = nullptr; // of the text to be read next
    const char* m_pNext = nullptr;               // the rest of the page being read
    const char* m_pPageEnd = nullptr;
    std::size_t m_numPagesTurned = 0;
};
}
