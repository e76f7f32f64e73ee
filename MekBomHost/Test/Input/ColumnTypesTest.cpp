#include "ColumnTypes.h"

#include "TokenKinds.h"
#include "Utf8.h"

#include "Support/FakeSource.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace mekbom
{
namespace
{
InputColumn columnOf(const std::string& token, const std::string& unit = std::string())
{
    InputColumn column;
    column.token = token;
    column.tupleToken = Utf8::toWide(token);
    column.unitSymbol = unit;
    return column;
}

class ColumnTypesTest : public testing::Test
{
protected:
    std::string mistakeIn(InputColumn& column) const
    {
        const auto finding = ColumnTypes(m_units, m_ownTokens).resolve(column);
        return finding ? messageOf(*finding) : "";
    }

    VorBomTemplateUnits m_units = TokenKinds().units();
    std::map<std::string, eOwnToken> m_ownTokens;
};
}

TEST_F(ColumnTypesTest, TheCatalogueKnowsWhatItsTokensAre)
{
    InputColumn length = columnOf("%Length", "ft");
    InputColumn name = columnOf("%Name");
    InputColumn pieces = columnOf("%Quantity");

    EXPECT_EQ("", mistakeIn(length) + mistakeIn(name) + mistakeIn(pieces));
    EXPECT_EQ(VorBomDataValue::kDoubleData, length.type);
    EXPECT_TRUE(length.unit && length.quantities && !length.isInModelUnit);
    EXPECT_EQ(VorBomDataValue::kStringData, name.type);
    EXPECT_EQ(VorBomDataValue::kIntData, pieces.type);
}

TEST_F(ColumnTypesTest, OfOnesOwnColumnsUnitsAndTheTemplateTellAndElseTheCells)
{
    m_ownTokens = { { "%Class", kOwnText } };
    InputColumn gap = columnOf("%Gap", "in");
    ColumnTypes::registerKinds({ gap }, m_units);
    InputColumn bay = columnOf("%Bay");
    InputColumn text = columnOf("%Class");

    EXPECT_EQ("", mistakeIn(gap) + mistakeIn(bay) + mistakeIn(text));
    EXPECT_EQ(VorBomTemplateUnits::kDistanceUnit, m_units.getUnitType(L"%Gap"));
    EXPECT_EQ(VorBomDataValue::kDoubleData, gap.type);
    EXPECT_EQ(VorBomDataValue::kUnknownData, bay.type);
}

TEST_F(ColumnTypesTest, QuantitiesLackTheUnitThatIsNotTheModels)
{
    InputColumn length = columnOf("%Length");
    InputColumn paint = columnOf("%Paint");

    EXPECT_EQ("", mistakeIn(length) + mistakeIn(paint));
    EXPECT_EQ("", length.lackingUnit);
    EXPECT_EQ("m2", paint.lackingUnit);
    EXPECT_TRUE(paint.quantities);
}

TEST_F(ColumnTypesTest, AUnitMustMeasureWhatTheColumnHolds)
{
    InputColumn length = columnOf("%Length", "kg");
    InputColumn pieces = columnOf("%Quantity", "kg");
    InputColumn name = columnOf("%Name", "m");

    EXPECT_EQ("found unit \"kg\", expected a unit of distance such as mm, m, in or ft", mistakeIn(length));
    EXPECT_EQ("found unit \"kg\", expected none: %Quantity is a whole number", mistakeIn(pieces));
    EXPECT_EQ("found unit \"m\", expected none: %Name is a text", mistakeIn(name));
}

TEST_F(ColumnTypesTest, ACommaIsWorthANoteUnlessTheUserSaysIt)
{
    FakeSource source({});
    const NumberNotation shown(NumberNotation::kComma, NumberNotation::kShown, "as \"1,5\" shows");

    ASSERT_TRUE(ColumnTypes::noteOfComma(shown, source));
    EXPECT_EQ("parts.xyz: numbers have a decimal comma, as \"1,5\" shows",
              messageOf(*ColumnTypes::noteOfComma(shown, source)));
    EXPECT_FALSE(ColumnTypes::noteOfComma(NumberNotation(), source));
    EXPECT_FALSE(ColumnTypes::noteOfComma(NumberNotation(NumberNotation::kComma, NumberNotation::kChosen, ""), source));
}
}
