// A report that is kept to be read: its sections with their texts, the numbers behind these, and the rows behind both.
//
//   VorBomReport report;
//   VorBomEvaluator2::evaluate(pTemplate, report);
//   for (const VorBomReport::Section section : report)      // in the order of VorBomItemBase::list
//       for (int tuple = 0; tuple < section.numTuples(); ++tuple)
//           print(section.level(), section.text(tuple), section.value(tuple).number);
//
//   rows  P1 2.5 kg, P1 2.5 kg, P2 4 kg  grouped by material, with a footer "%SumBy:%Weight"
//     level 0   header   rows P1 P1 P2
//     level 1   line     "P1" "2.5"     rows P1 P1: the second one was merged into it
//     level 1   line     "P2" "4"       rows P2
//     level 0   footer   "6.5"          rows P1 P2: those that it counts
//
// A walk over a report takes one step for a section, whatever its level; nothing recurses. What is under one header:
//
//   const VorBomReport& report = lastReport();
//   for (const VorBomReport::Section header : report.children())
//       for (const VorBomReport::Section inner : header.children())
//           print(inner.level(), inner.text(0), inner.value(0).number);
//
// One report serves one evaluation after the other and holds the latest: an evaluation begins by clearing it, unless it
// is refused for want of a template or sections. Of one
// that was stopped or has thrown it holds the sections that were complete, and isComplete() is 0: groups may lack lines
// and footers.
//
// Owns its texts and numbers. Rows and sections of the template are not owned: they must live, and rows hang together,
// as long as they are asked for through the report. What the report says of rows is what held when it was made, whether
// they count or not, too: it may be read after the rows were restored, sorted anew or evaluated again.
//
// Memory: 24 bytes for a tuple and 72 for a line and its row, and texts that nothing else shares; measured 144 bytes a
// line with three tuples, 200,000 lines of them. A pointer to each row is kept once, for all levels.
//
// Written by one thread; any number may read it while nothing is evaluated into it. A Section is two words, to be
// passed by value; it is good until the report is evaluated into again or goes.
#pragma once

#include "VorBomSectionSink.h"

#include "MekRoots/Exp/MekExport.h"

#include <cstddef>
#include <memory>

class VorBomKeptSections;

class MEK_BOM_API VorBomReport : public VorBomSectionSink
{
public:
    class Section;
    class SectionIterator;
    class RowIterator;

    // Sections one after the other, for a range-based for.
    class MEK_BOM_API Sections
    {
    public:
        SectionIterator begin() const;
        SectionIterator end() const;

    private:
        friend class VorBomReport;
        friend class Section;
        Sections(const VorBomKeptSections& kept, std::size_t first, std::size_t end, bool areChildren)
            : m_pKept(&kept), m_nFirst(first), m_nEnd(end), m_areChildren(areChildren)
        {
        }

        const VorBomKeptSections* m_pKept;
        std::size_t m_nFirst;
        std::size_t m_nEnd;
        bool m_areChildren; // those under them are passed over
    };

    // Rows one after the other, each a const VorBomDataRow&, for a range-based for.
    class MEK_BOM_API Rows
    {
    public:
        RowIterator begin() const;
        RowIterator end() const;

        // How many they are; takes no walk.
        int count() const { return m_nCount; }

    private:
        friend class Section;
        Rows(const VorBomKeptSections& kept, std::size_t first, std::size_t end, int count, bool areCounted)
            : m_pKept(&kept), m_nFirst(first), m_nEnd(end), m_nCount(count), m_areCounted(areCounted)
        {
        }

        const VorBomKeptSections* m_pKept;
        std::size_t m_nFirst;
        std::size_t m_nEnd;
        int m_nCount;
        bool m_areCounted; // others are passed over
    };

    class MEK_BOM_API Section
    {
    public:
        // From 0, the outermost.
        int level() const;
        // A line is a section of the deepest level, made for a row and those merged into it; not a header then.
        bool isHeader() const;
        bool isLine() const;
        bool isFooter() const;

        // The section of the template that it was made from. Its tuples have the tokens of this one's.
        const VorBomTemplateItem& templateSection() const;

        // Tuples count from 0 in the order of the template's; any other number is a tuple without text and value.
        int numTuples() const;
        // What the report shows. Empty for a tuple without value.
        VorString text(int tuple) const;
        // What it was before it was shown; of a total of ints beyond their range all digits (VorBomTypedValue::whole).
        VorBomTypedValue value(int tuple) const;
        // Of a footer, how many of the rows that it counts had a datum for the tuple; 0 for others.
        //   "%SumBy:%Weight" 4 over rows of 2.5 kg, of 1.5 kg and one without weight   ->   2
        int numRowsWithDatum(int tuple) const;

        // The row that opened a header's group, or a line's first row; null for a footer.
        const VorBomDataRow* row() const;
        // Of a line its own row and those merged into it; of a header all rows of its group, counted or not; of a
        // footer those that it counts. In the order of the report.
        Rows rows() const;

        // The sections of the next level under a header, their footers among them; none for lines and footers.
        Sections children() const;

        // Its number in the report, from 0: the one to give to VorBomReport::section().
        std::size_t index() const { return m_nIndex; }

    private:
        friend class VorBomReport;
        friend class SectionIterator;
        Section(const VorBomKeptSections& kept, std::size_t index) : m_pKept(&kept), m_nIndex(index) {}

        const VorBomKeptSections* m_pKept;
        std::size_t m_nIndex;
    };

    // Steps of a range-based for: no more than that asks for.
    class MEK_BOM_API SectionIterator
    {
    public:
        Section operator*() const { return Section(*m_pKept, m_nIndex); }
        SectionIterator& operator++();
        bool operator!=(const SectionIterator& other) const { return m_nIndex != other.m_nIndex; }

    private:
        friend class Sections;
        SectionIterator(const VorBomKeptSections& kept, std::size_t index, bool areChildren)
            : m_pKept(&kept), m_nIndex(index), m_areChildren(areChildren)
        {
        }

        const VorBomKeptSections* m_pKept;
        std::size_t m_nIndex;
        bool m_areChildren;
    };

    class MEK_BOM_API RowIterator
    {
    public:
        const VorBomDataRow& operator*() const;
        RowIterator& operator++();
        bool operator!=(const RowIterator& other) const { return m_nRow != other.m_nRow; }

    private:
        friend class Rows;
        RowIterator(const VorBomKeptSections& kept, std::size_t row, std::size_t end, bool areCounted);
        void skip();

        const VorBomKeptSections* m_pKept;
        std::size_t m_nRow;
        std::size_t m_nEnd;
        bool m_areCounted;
    };

    // Asks for typed values, and for what `requests` says beside them.
    //   VorBomReport everyLine(VorBomSectionSink::kEqualLines);   // none is merged
    explicit VorBomReport(int requests = kTextsAlone);
    VorBomReport(const VorBomReport&) = delete;
    VorBomReport& operator=(const VorBomReport&) = delete;
    ~VorBomReport() override;

    // 1 when all rows have been placed, the report of none included; 0 before the first evaluation and after one that
    // did not come to its end.
    int isComplete() const;

    std::size_t numSections() const;
    // `index` must be less than numSections().
    Section section(std::size_t index) const;

    // All sections, and those of level 0.
    SectionIterator begin() const;
    SectionIterator end() const;
    Sections children() const;

    // The engine's calls.
    void takeHeader(const VorBomReportSection& header) override;
    void takeFooter(const VorBomReportSection& footer) override;
    void takeMergedRow(const VorBomDataRow& row) override;
    int takeProgress(int numRowsDone) override;
    void takeEnd() override;

private:
    std::unique_ptr<VorBomKeptSections> m_pKept;
};
