#include "TemplateReader.h"

#include "Utf8.h"

#include "Support/HostTestSupport.h"

#include "MekRoots/Test/Support/TestSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

// Examples/Templates/default.json is the built-in template as a file. Both are held against each other.

namespace mekbom
{
namespace
{
ReportTemplate shippedDefault()
{
    const std::string path = MEK_EXAMPLES_DIR "/Templates/default.json";
    return TemplateReader::read(path, readFile(path));
}

// One line per section, with the type of every starting value, which list() does not tell apart.
std::string sectionsOf(VorBomTemplate& root)
{
    VorString text;
    root.list(text, 0, 1, 1);
    std::string types;
    std::vector<const VorBomItemBase*> items{ &root };
    for (std::size_t i = 0; i < items.size(); ++i)
    {
        for (const VorBomDataTuple& tuple : items[i]->getData())
            types += std::to_string(tuple.value().type());
        for (const VorBomItemBase* pChild = items[i]->child(); pChild != nullptr; pChild = pChild->next())
            items.push_back(pChild);
    }
    return Utf8::toBytes(text) + "\n" + types;
}

std::string traceOf(VorBomTemplate& root)
{
    std::string trace;
    for (const VorString& token : root.getTokenTrace())
        trace += Utf8::toBytes(token) + "\n";
    return trace;
}
}

TEST(DefaultTemplateTest, TheFileHasTheSectionsOfTheBuiltInOne)
{
    const std::unique_ptr<VorBomTemplate> pBuiltIn(VorBomTemplate::createDefaultTemplate());

    EXPECT_EQ(sectionsOf(*pBuiltIn), sectionsOf(*shippedDefault().pTemplate));
}

TEST(DefaultTemplateTest, TheFileUsesTheSameTokens)
{
    const std::unique_ptr<VorBomTemplate> pBuiltIn(VorBomTemplate::createDefaultTemplate());

    EXPECT_EQ(traceOf(*pBuiltIn), traceOf(*shippedDefault().pTemplate));
}

TEST(DefaultTemplateTest, TheFileRegistersTheSameUnits)
{
    const std::unique_ptr<VorBomTemplate> pBuiltIn(VorBomTemplate::createDefaultTemplate());
    const ReportTemplate shipped = shippedDefault();

    for (const wchar_t* const token : { L"%PosNum", L"%Material", L"%Weight", L"%SumBy:%Weight", L"%Length" })
        EXPECT_EQ(pBuiltIn->getBomTemplateUnits()->getUnitType(token),
                  shipped.pTemplate->getBomTemplateUnits()->getUnitType(token))
            << VorString(token);
    EXPECT_EQ(VorBomTemplateUnits::kWeightUnit,
              shipped.pTemplate->getBomTemplateUnits()->getUnitType(L"%SumBy:%Weight"));
}

TEST(DefaultTemplateTest, TheFileAsksForNothingElse)
{
    const std::unique_ptr<VorBomTemplate> pBuiltIn(VorBomTemplate::createDefaultTemplate());
    const ReportTemplate shipped = shippedDefault();

    EXPECT_EQ(pBuiltIn->getQueryFilter(), shipped.pTemplate->getQueryFilter());
    EXPECT_TRUE(shipped.columns.empty());
    EXPECT_TRUE(shipped.title.empty());
}
}
