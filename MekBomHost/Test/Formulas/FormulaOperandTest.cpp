#include "FormulaOperand.h"

#include "VorBomTemplate.h"

#include <gtest/gtest.h>

namespace mekbom
{
using Units = VorBomTemplateUnits;

TEST(FormulaOperandTest, TheCatalogueAndTheRegisteredKindsSayWhatATokenIs)
{
    VorBomTemplate engineTemplate;
    const VorUnitsManager manager;
    engineTemplate.setUnitsForTokens(&manager);
    Units& units = *engineTemplate.getBomTemplateUnits();
    units.AddTokenType(L"%Rail", Units::kDistanceUnit);
    units.AddTokenType(L"%Nothing", Units::kReservedUnitType);
    const struct
    {
        const wchar_t* token;
        FormulaOperand::eMeaning meaning;
        Units::eTokenUnitType type;
    } cases[] = {
        { L"%Weight", FormulaOperand::kQuantity, Units::kWeightUnit },
        { L"%WeightMeter", FormulaOperand::kQuantity, Units::kWeightPerDistanceUnit },
        { L"%Rail", FormulaOperand::kQuantity, Units::kDistanceUnit },
        { L"%Quantity", FormulaOperand::kPieces, Units::kNoUnit },
        { L"%Name", FormulaOperand::kText, Units::kNoUnit },
        { L"%UserAttr7", FormulaOperand::kText, Units::kNoUnit },
        { L"%Wieght", FormulaOperand::kUnknown, Units::kNoUnit },
        { L"%Nothing", FormulaOperand::kUnknown, Units::kNoUnit },
        { L"", FormulaOperand::kUnknown, Units::kNoUnit },
    };
    for (const auto& c : cases)
    {
        const FormulaOperand operand = FormulaOperand::ofCatalogue(c.token, units);
        EXPECT_EQ(c.meaning, operand.meaning) << c.token;
        EXPECT_EQ(c.type, operand.type) << c.token;
    }
}

TEST(FormulaOperandTest, ANumberWithoutARegisteredKindIsTheUsersOwn)
{
    EXPECT_EQ(FormulaOperand::kOwnUnit, FormulaOperand::ofCatalogue(L"%Weight", Units()).meaning);
}
}
