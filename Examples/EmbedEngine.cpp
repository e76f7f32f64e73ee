// The engine without the mekbom program: rows and a template made in code, one evaluation, the report as text.
//
// Output:
//
// [ kBomTemplate ]
//  [ kReportHeader]
//   [ kGroupHeader ][%GroupBy:%Material:][%SortAscBy:%Material:][%Material:S235JR]
//    [ kDetails     ][%PNum:P1][%Quantity:4][%Weight:2.5][%Formula:%Weight*%Quantity:10]
//   [ kGroupFooter ][%SumBy:%Quantity:4][%SumBy:%Formula:%Weight*%Quantity:10]
//   [ kGroupHeader ][%GroupBy:%Material:][%SortAscBy:%Material:][%Material:S355J2]
//    [ kDetails     ][%PNum:C1][%Quantity:2][%Weight:478.25][%Formula:%Weight*%Quantity:956.5]
//    [ kDetails     ][%PNum:R1][%Quantity:1][%Weight:673.78][%Formula:%Weight*%Quantity:673.78]
//   [ kGroupFooter ][%SumBy:%Quantity:3][%SumBy:%Formula:%Weight*%Quantity:1630.28]
//  [ kReportFooter][%SumBy:%Quantity:7][%SumBy:%Formula:%Weight*%Quantity:1640.28]

#include "MekBomEngine/Src/VorBomData.h"
#include "MekBomEngine/Src/VorBomDataRow.h"
#include "MekBomEngine/Src/VorBomEvaluator2.h"
#include "MekBomEngine/Src/VorBomTemplate.h"

#include <initializer_list>
#include <iostream>

namespace
{
using Tuples = std::initializer_list<VorBomDataTuple>;

// One modelled part. The data it is added to owns it.
VorBomDataRow* part(const wchar_t* mark, const wchar_t* material, int quantity, double weight)
{
    auto* row = new VorBomDataRow;
    row->setObjectHandle(mark);
    for (const VorBomDataTuple& tuple : Tuples{ { L"%PNum", VorString(mark) },
                                                { L"%Material", VorString(material) },
                                                { L"%Quantity", quantity },
                                                { L"%Weight", weight } })
        row->addData(tuple);
    return row;
}

// One section of the template, with the sections below it. The template it is added to owns it.
VorBomTemplateItem* section(VorBomTemplateItem::eTemplateItemType type, Tuples tuples,
                            std::initializer_list<VorBomTemplateItem*> children = {})
{
    auto* item = new VorBomTemplateItem(type);
    for (const VorBomDataTuple& tuple : tuples)
        item->addData(tuple);
    for (VorBomTemplateItem* child : children)
        item->addChild(child);
    return item;
}

// Parts by material. A level is a header and, beside it, its footer; the level below hangs in the header.
void addSections(VorBomTemplate& report)
{
    const VorString none;
    const Tuples totals = { { L"%SumBy:%Quantity", 0 }, { L"%SumBy:%Formula:%Weight*%Quantity", 0.0 } };

    VorBomTemplateItem* details = section(
        VorBomTemplateItem::kDetails,
        { { L"%PNum", none }, { L"%Quantity", 0 }, { L"%Weight", 0.0 }, { L"%Formula:%Weight*%Quantity", 0.0 } });
    VorBomTemplateItem* group = section(
        VorBomTemplateItem::kGroupHeader,
        { { L"%GroupBy:%Material", none }, { L"%SortAscBy:%Material", none }, { L"%Material", none } }, { details });
    VorBomTemplateItem* groupFooter = section(VorBomTemplateItem::kGroupFooter, totals);

    report.addChild(section(VorBomTemplateItem::kReportHeader, {}, { group, groupFooter }));
    report.addChild(section(VorBomTemplateItem::kReportFooter, totals));
}
}

int main()
{
    VorBomTemplate report;
    report.getBomData()->addChild(part(L"C1", L"S355J2", 2, 478.25));
    report.getBomData()->addChild(part(L"P1", L"S235JR", 4, 2.5));
    report.getBomData()->addChild(part(L"R1", L"S355J2", 1, 673.78));
    addSections(report);
    report.setUnitsForTokens(nullptr); // no manager of our own: the current units
    report.findUsedTokens();           // also reads what each section groups and sorts by, which evaluate does not

    VorBomTemplate result;
    VorBomEvaluator2::evaluate(&report, &result);

    VorString text;
    result.list(text, 0, 1, 1);
    std::wcout << text.getStringW() << L'\n';
    return 0;
}
