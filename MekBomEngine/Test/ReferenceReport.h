// A second, slow and obvious evaluator of whole reports that the engine is compared with: plain structures, copies
// everywhere, insertion sort, recursion over the tree, and the C library's own formatting. It shares no code with the
// engine; only lengths, weights and the like are formatted by a function from outside.
//   RefReport report;                        // fill report.root (the template), report.rows, order and units
//   report.prepare();                        // finds what to group and sort by, as hosts do
//   report.sort();
//   RefSection result(RefSection::kBomTemplate);
//   report.evaluate(&result);                // result.listing() is then what list() of the engine's result says
#pragma once

#include "ReferenceData.h"
#include "ReferenceSorting.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

class RefReport
{
public:
    using SectionPtr = std::shared_ptr<RefSection>;

    // Whether the template's sorting requests give the rows one order, whatever the way of sorting.
    bool hasOneOrder() const;

    // Fills every section's grouping and sorting tokens.
    void prepare();

    // Puts `order` into the order that the template asks for; equal rows stay as they stand.
    void sort();

    // What each level sorts by, outermost first.
    std::vector<std::vector<std::wstring>> sortingRequests() const;

    // Evaluates the rows in their present order and appends to `result`, which may be null.
    int evaluate(RefSection* result);

    RefSection root{ RefSection::kBomTemplate };
    std::vector<RefRow> rows;    // fixed once `order` points into them
    std::vector<RefRow*> order;  // the order in which the data hold them
    RefRow* lastChild = nullptr; // which of them the data's last-child link names
    RefUnits units;
    std::map<std::wstring, long long> misuses; // what the engine reports, and how often

private:
    struct Level
    {
        SectionPtr header;
        SectionPtr footer;
        std::vector<RefRow*> rows;
        SectionPtr evaluatedHeader;
        SectionPtr evaluatedFooter;
        bool isOpen = false;
    };

    std::vector<SortKey> sortKeys() const;
    static bool differ(RefRow& a, RefRow& b, const std::vector<std::wstring>& tokens);

    void evaluateRow(RefRow& row);
    void open(std::size_t level, RefRow& row);
    void close(std::size_t level);
    void complete(std::size_t level);
    bool repeatsLastDetails(std::size_t level) const;
    void hang(std::size_t level, const SectionPtr& section);

    SectionPtr evaluatedFor(const RefSection& section, RefRow& row);
    SectionPtr evaluatedOver(const RefSection& section, const std::vector<RefRow*>& groupRows);
    void computeFormulas(RefSection& item, RefRow& row);
    bool computeFormula(const RefSection& item, std::size_t place, const std::wstring& formula, RefRow& row,
                        double& result);
    void applyUnits(RefSection& item);
    void findUnitOfFormula(const std::wstring& formula);

    std::vector<Level> m_levels;
    RefSection* m_pResult = nullptr;
};
