#include "ColumnCheck.h"

#include "TemplateReader.h"

#include <gtest/gtest.h>

#include <string>

namespace mekbom
{
namespace
{
// The messages of a list with that column, a line each.
std::string errorsOf(const std::string& column, const std::string& token)
{
    const VorUnitsManager units = VorUnitsManager::metric();
    const ReportTemplate list =
        TemplateReader::read("list.json", R"({ "columns": [ )" + column +
                                              R"( ], "sections": [ { "type": "kDetails", "tuples": [ { "token": ")" +
                                              token + R"(" } ] } ] })");
    VorBomTemplate& engineTemplate = *list.pTemplate;
    engineTemplate.setUnitsForTokens(&units);
    const FormulaResults formulas(list);
    const TokenQuantities quantities(*engineTemplate.getBomData(), *engineTemplate.getBomTemplateUnits(), formulas);
    std::string text;
    for (Finding finding : ColumnCheck::errorsOf(list, ReportLayout(list, units), quantities))
    {
        finding.source = "list.json";
        text += finding.code + " " + messageOf(finding) + "\n";
    }
    return text;
}
}

TEST(ColumnCheckTest, AUnitMustMeasureWhatTheColumnShows)
{
    EXPECT_EQ("", errorsOf(R"({ "token": "%Length", "unit": "m/2" })", "%Length"));
    EXPECT_EQ("", errorsOf(R"({ "token": "%Formula:%Weight/%Length", "unit": "lb/ft" })", "%Formula:%Weight/%Length"));
    EXPECT_EQ("MB911 list.json:1:16: /columns/0/unit: found \"kg\", expected a unit of distance such as mm, m, in or "
              "ft, and after "
              "a slash a precision if need be: lb/1, ft-in/16\n",
              errorsOf(R"({ "token": "%Length", "unit": "kg" })", "%Length"));
    EXPECT_NE("", errorsOf(R"({ "token": "%Length", "unit": "furlong" })", "%Length"));
}

TEST(ColumnCheckTest, AUnitIsForQuantities)
{
    for (const std::string token : { "%Quantity", "%Name", "%Own" })
        EXPECT_EQ(
            "MB816 list.json:1:16: /columns/0/unit: the unit \"m\" is for quantities, of which the column has none\n",
            errorsOf(R"({ "token": ")" + token + R"(", "unit": "m" })", token));
}

TEST(ColumnCheckTest, AResultIsForFormulas)
{
    EXPECT_EQ("", errorsOf(R"({ "token": "%Formula:%Weight*2", "result": "EUR" })", "%Formula:%Weight*2"));
    EXPECT_EQ(
        "MB816 list.json:1:16: /columns/0/result: the result \"EUR\" is for formulas, of which the column has none\n",
        errorsOf(R"({ "token": "%Weight", "result": "EUR" })", "%Weight"));
}

// The first printed "Cost [EUR] [kg]", the second "Cost [EUR] [USD]".
TEST(ColumnCheckTest, ALabelMustNotCallAFormulasNumbersWhatTheyAreNot)
{
    const std::string cost = "%Formula:%Weight*1.85";
    const auto labelled = [&](const std::string& members)
    { return R"({ "token": ")" + cost + "\", " + members + " }"; };

    EXPECT_EQ("MB421 list.json:1:16: error MB421: the label \"Cost [EUR]\" names EUR, but the numbers are weight; "
              "help: say \"result\": \"EUR\" in the column, or leave the brackets out\n",
              errorsOf(labelled(R"("label": "Cost [EUR]")"), cost));
    EXPECT_NE("", errorsOf(labelled(R"("label": "Mass [m]")"), cost));
    EXPECT_EQ("MB421 list.json:1:16: error MB421: the label \"Cost [EUR]\" names EUR, but \"result\" says USD; "
              "help: say \"result\": \"EUR\" in the column, or leave the brackets out\n",
              errorsOf(labelled(R"("label": "Cost [EUR]", "result": "USD")"), cost));
    EXPECT_EQ("", errorsOf(labelled(R"("label": "Cost [EUR]", "result": "EUR")"), cost));
    EXPECT_EQ("", errorsOf(labelled(R"("label": "Cost [EUR]", "result": "none")"), cost));
    EXPECT_EQ("", errorsOf(labelled(R"("label": "Mass [t]")"), cost)); // the heading has the unit that is shown
    EXPECT_EQ("", errorsOf(labelled(R"("label": "Mass")"), cost));
}

TEST(ColumnCheckTest, ALabelMustNotNameAUnitOfAnotherKind)
{
    EXPECT_EQ("MB421 list.json:1:16: error MB421: the label \"Weight [m]\" names m, but the numbers are weight; "
              "help: leave the brackets out: the heading names the unit\n",
              errorsOf(R"({ "token": "%Weight", "label": "Weight [m]" })", "%Weight"));
    const std::string inParentheses = "Weight (m)";
    EXPECT_NE("", errorsOf(R"({ "token": "%Weight", "label": ")" + inParentheses + R"(" })", "%Weight"));
    for (const std::string label : { "Weight [lb]", "Weight [net]", "Weight", "Weight (kg)", "Weight (net)" })
        EXPECT_EQ("", errorsOf(R"({ "token": "%Weight", "label": ")" + label + R"(" })", "%Weight")) << label;
}

TEST(ColumnCheckTest, ColumnsThatSayNothingAreRight)
{
    EXPECT_EQ("", errorsOf("", "%Weight"));
    EXPECT_EQ("", errorsOf(R"({ "token": "%Name", "decimals": 2 })", "%Name"));
}
}
