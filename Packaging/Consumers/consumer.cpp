// A host as small as can be, which check_consumers.sh builds in each of the ways that a library is taken in. It prints
//
//   1.0.0
//   [ kBomTemplate ]
//    [ kReportHeader]
//     [ kDetails     ][%PNum:P1][%Weight:2.5]
//     [ kDetails     ][%PNum:P2][%Weight:4]
//    [ kReportFooter][%SumBy:%Weight:6.5]

#include <MekBom.h>

#include <cstdlib>
#include <iostream>

// A function that this host brought along from Windows. No library has one of that name, or calls this one.
extern "C" void OutputDebugStringW(const char16_t*)
{
    std::abort();
}

namespace
{
VorBomDataRow* part(const wchar_t* mark, double weight)
{
    auto* pRow = new VorBomDataRow;
    pRow->addData(VorBomDataTuple(L"%PNum", VorString(mark)));
    pRow->addData(VorBomDataTuple(L"%Weight", weight));
    return pRow;
}

VorBomTemplateItem* section(VorBomTemplateItem::eTemplateItemType type, const VorString& token, double start)
{
    auto* pSection = new VorBomTemplateItem(type);
    pSection->addData(VorBomDataTuple(token, start));
    return pSection;
}
}

int main()
{
    VorBomTemplate report;
    report.getBomData()->addChild(part(L"P1", 2.5));
    report.getBomData()->addChild(part(L"P2", 4));
    auto* pHeader = new VorBomTemplateItem(VorBomTemplateItem::kReportHeader);
    auto* pDetails = section(VorBomTemplateItem::kDetails, L"%PNum", 0);
    pDetails->addData(VorBomDataTuple(L"%Weight", 0.0));
    pHeader->addChild(pDetails);
    report.addChild(pHeader);
    report.addChild(section(VorBomTemplateItem::kReportFooter, L"%SumBy:%Weight", 0));
    report.setUnitsForTokens(nullptr);
    report.findUsedTokens();
    VorDebugOutput::write(L"prepared\n"); // standard error

    VorBomTemplate result;
    VorBomEvaluator2::evaluate(&report, &result);
    VorString text;
    result.list(text, 0, 1, 1);
    std::wcout << mekBomVersionText() << L'\n' << text.getStringW() << std::endl;
    return mekBomVersion() == MEK_BOM_VERSION ? 0 : 1;
}
