// A report template: the tree of its sections, the data to report on, the units to show them in, and which tokens it
// uses.
//
//   VorBomTemplate* pTemplate = VorBomTemplate::createDefaultTemplate();   // 1. sections
//   pTemplate->getBomData()->addChild(pRow);                               // 2. data, row by row
//   pTemplate->setUnitsForTokens(&unitsManager);                           // 3. units
//   pTemplate->findUsedTokens();                                           // 4. what sections group and sort by
//   VorBomTemplate result;
//   VorBomEvaluator2::evaluate(pTemplate, &result);                        // 5. `result` holds the report
//
// The order of these steps is the host's part: evaluate() reads the caches that findUsedTokens() fills and fills none
// itself, so without step 4 a report is neither grouped nor sorted. Step 4 may come before step 2, for a host that
// gathers only the data that isTokenRequired() asks for. A token registered with AddTokenType before step 3 keeps its
// type.
//
// Ownership: a template owns its sections with everything below them, its data with all rows, and its units, and its
// destructor destroys them. The caller owns the template.
// On purpose: copies are shallow, they share all three with their source, and only one of two such templates may ever
// be destroyed. Pinned by VorBomTemplateTest.CopiesShareSectionsUnitsAndData.
//
// Sections are VorBomTemplateItem objects from `new` and nothing else. One template is for one thread at a time.
#pragma once

#include "VorBomData.h"
#include "VorBomNumberFormat.h"
#include "VorBomTemplateItem.h"
#include "VorBomTemplateUnits.h"

#include "MekRoots/Exp/MekExport.h"
#include "MekRoots/Exp/VorArray.h"
#include "MekRoots/Exp/VorString.h"
#include "MekRoots/Exp/VorUnitsManager.h"

#include <map>
#include <utility>
#include <vector>

class MEK_BOM_API VorBomTemplate : public VorBomTemplateItem
{
public:
    // Bits that the engine stores and its clients define; they cast their own.
    enum eObjectsPresentationOptions : int
    {
        kNoOptions = 0
    };

    // A new template has no sections, no rows, no options and no filter. Its units are the current ones, and know no
    // token.
    VorBomTemplate();

    VorBomTemplate(const VorBomTemplate& other) = default;
    VorBomTemplate& operator=(const VorBomTemplate& other) = default;
    ~VorBomTemplate() override;

    // A parts list grouped by position number, then by material, with details and weight totals. The caller deletes it.
    //   [ kReportHeader]  filter on object types
    //    [ kGroupHeader ] by %PosNum
    //     [ kGroupHeader ] by Material
    //      [ kDetails     ] %posNum, %Weight, %Material
    //     [ kGroupFooter ] total %Weight
    //    [ kGroupFooter ] total %Weight
    //   [ kReportFooter]
    // On purpose: "%GroupBy:Material", "%SortDescBy:Weight" and "%posNum" are spelled so; existing lists are compared
    // with this one. Pinned by VorBomTemplateTest.DefaultTemplateIsSpelledAsItAlwaysWas.
    static VorBomTemplate* createDefaultTemplate();

    VorBomTemplateUnits* getBomTemplateUnits() const { return m_pUnits; }
    VorBomData* getBomData() { return m_pData; }

    // Takes `pData` over, null for none, and hands the former data over to the caller: null or owned by the caller, who
    // gives it to another template, or empties and deletes it. So one set of rows serves several templates in turn.
    //   VorBomData* pRows = first.exchangeBomData(nullptr);
    //   pRows->restoreRows();
    //   VorBomData* pEmpty = second.exchangeBomData(pRows);
    //   delete pEmpty;                                        // it has no rows
    // A template that its data were taken from is evaluated as one without rows.
    VorBomData* exchangeBomData(VorBomData* pData);

    // Takes the units of `pManager` and the display settings of the repository, unless it is null, and registers the
    // kind of quantity of all known tokens. The first registration of a token wins.
    void setUnitsForTokens(const VorUnitsManager* pManager);

    // Traces all tokens that the sections name, sorted without regard to case, and fills every section's grouping and
    // sorting caches on the way. Returns 1.
    //   "%SumBy:%Weight"         traces itself and "%Weight"
    //   "%Formula:%A*%B"         traces itself, "%A" and "%B", the latter two even if they are there already
    //   "%GroupBy:%A,%B"         traces itself, "%A" and "%B"
    //   "%SortDescBy:%A"         traces itself and "%A"
    // Tokens are told apart by case. The trace is only added to: sections built since the last call are traced, a
    // second call for the same sections adds nothing.
    int findUsedTokens();

    // The trace; runs findUsedTokens first while it is empty, but not when sections have changed since.
    const VorStringArray& getTokenTrace();

    // Whether the trace holds `token`, in whatever case. Computes nothing: false for every token before findUsedTokens.
    bool isTokenRequired(const VorString& token) const;

    // Has rows be sorted by `token` in this order, whatever the catalogue of tokens says of it. Of two calls for one
    // token the last one counts. Groups, sums and other templates are left alone.
    //   reportTemplate.setSortType(L"%Phase", VorBomDataToken::kSortAlphanumeric);   // 1, 2, 10 instead of 1, 10, 2
    //   reportTemplate.setSortType(L"%Zone", VorBomDataToken::kSortString);          // not in the catalogue: no report
    // Natural order is for texts: numbers under such a token are reported, as under those of the catalogue.
    void setSortType(const VorString& token, VorBomDataToken::eSortType sortType);
    const VorBomDataToken::SortTypes& sortTypes() const { return m_sortTypes; }

    // Has rows be sorted by `token` in the order of these texts: rows with the first of them first, then the others as
    // they are listed; then, by their sort type, rows whose values are not listed. Rows without a datum stand before
    // them all, and descending turns the whole round, as ever. Of two equal texts the first counts. No texts: by sort
    // type alone.
    //   VorStringArray phases;
    //   phases.append(L"ground");
    //   phases.append(L"roof");
    //   reportTemplate.setSortOrder(L"%UserAttr1", phases);   // ground, roof, annex, cellar
    // Groups, sums and other templates are left alone, and so is the order of sections of a finished report.
    void setSortOrder(const VorString& token, const VorStringArray& values);
    // Empty for a token without an order of its own.
    const VorStringArray& sortOrder(const VorString& token) const;

    // Has the numbers of a section's tuple be shown by `pFormat` instead of the units; null: by the units again. The format
    // is not owned and must live as long as the template is evaluated.
    void setNumberFormat(const VorBomTemplateItem& section, int tuple, const VorBomNumberFormat* pFormat);
    // Null for a tuple whose numbers the units show.
    const VorBomNumberFormat* numberFormat(const VorBomTemplateItem& section, int tuple) const;

    // Reports the data that the sections use. For each direct child up to and including the first kReportFooter, and
    // each row from its getFirstDataRow() along the next() links, appends what
    // VorBomDataRow::appendUsedHandlesAndTokens does, rows that do not count in sums left out. Returns 1.
    int getUsedHandlesAndTokens(VorStringArrayArray& handles, VorStringArrayArray& tokens);

    void setObjectPresentationOptions(int options) { m_nObjectPresentationOptions = options; }
    // Whether all bits of `option` are set; true for kNoOptions.
    bool isObjectPresentationOptionOn(eObjectsPresentationOptions option) const;
    static bool isObjectPresentationOptionOn(int options, eObjectsPresentationOptions option);

    // Kept for the clients; the engine does not interpret it.
    void setQueryFilter(VorString filter);
    VorString getQueryFilter() { return m_queryFilter; }

private:
    friend struct VorBomTemplateAccess;

    int m_nReserved = 0; // part of the layout; read by nothing
    VorBomTemplateUnits* m_pUnits;
    VorString m_queryFilter;
    int m_nObjectPresentationOptions = kNoOptions;
    VorBomData* m_pData;
    VorStringArray m_tokenTrace;
    VorBomDataToken::SortTypes m_sortTypes;                         // of tokens that the host has set, no others
    std::vector<std::pair<VorString, VorStringArray>> m_sortOrders; // likewise: a few
    std::map<std::pair<const VorBomTemplateItem*, int>, const VorBomNumberFormat*>
        m_numberFormats; // by section and tuple
};
