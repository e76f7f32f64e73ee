#include "RowTree.h"

#include "Utf8.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace mekbom
{
namespace
{
// The rows of a text such as "T1 - 2, A1 T1 4": handle, parent and pieces; then the weight of one, if it has any.
class Model
{
public:
    explicit Model(const std::string& rows)
    {
        std::istringstream list(rows);
        for (std::string row; std::getline(list, row, ',');)
            addRow(row);
    }
    Model(const Model&) = delete;
    Model& operator=(const Model&) = delete;
    ~Model() { data.empty(); }

    // "P1:24 P2:5", each row with its pieces, or with its factors in brackets, too; or the mistake.
    std::string flattened(const PieceChoices& choices = { true, 1 }, bool showsFactors = false)
    {
        RowTree tree(data);
        if (const auto mistake = tree.multiply(choices, showsFactors))
            return messageOf(*mistake);
        if (const auto warning = tree.weighingElse())
            warningText = messageOf(*warning);
        numParents = tree.removeParents();
        return rowsText();
    }

    std::string nesting()
    {
        const auto finding = RowTree(data).nesting();
        return finding ? messageOf(*finding) : std::string();
    }

    std::string rowsText() const
    {
        std::string text;
        for (const VorBomItemBase* pItem = data.child(); pItem != nullptr; pItem = pItem->next())
        {
            const auto& row = static_cast<const VorBomDataRow&>(*pItem);
            text += (text.empty() ? "" : " ") + Utf8::toBytes(row.objectHandle()) + ":" +
                    Utf8::toBytes(row.getTupleAt(L"%Quantity")->value().asString());
            if (const VorBomDataTuple* const pFactors = row.getTupleAt(L"%QuantityFactors"))
                text += "(" + Utf8::toBytes(pFactors->value().asString()) + ")";
        }
        return text;
    }

    VorBomData data;
    int numParents = 0;
    std::string warningText;

private:
    void addRow(const std::string& row)
    {
        std::istringstream cells(row);
        std::string handle;
        std::string parent;
        int pieces = 0;
        cells >> handle >> parent >> pieces;
        auto* const pRow = new VorBomDataRow;
        pRow->setObjectHandle(Utf8::toWide(handle));
        if (parent != "-")
            pRow->addData(VorBomDataTuple(L"%Parent", Utf8::toWide(parent)));
        pRow->addData(VorBomDataTuple(L"%Quantity", pieces));
        if (double weight = 0; cells >> weight)
            pRow->addData(VorBomDataTuple(L"%Weight", weight));
        data.addChild(pRow);
    }
};

// A handle for each number.
std::string handleOf(std::size_t number)
{
    return "H" + std::to_string(number);
}

// Rows 0 to n - 1, each a part of the one before it, `pieces` in each.
std::string chainOf(std::size_t numRows, int pieces)
{
    std::string rows = handleOf(0) + " - " + std::to_string(pieces);
    for (std::size_t i = 1; i < numRows; ++i)
        rows += "," + handleOf(i) + " " + handleOf(i - 1) + " " + std::to_string(pieces);
    return rows;
}
}

TEST(RowTreeTest, PiecesAreMultipliedAlongParents)
{
    Model model("T1 - 2,A1 T1 4,P1 A1 3,P2 - 5");

    EXPECT_EQ("P1:24 P2:5", model.flattened());
    EXPECT_EQ(2, model.numParents);
}

TEST(RowTreeTest, FactorsStandOnRequestFromTheOutermostToTheRowsOwn)
{
    EXPECT_EQ("P1:24(2 \u00D7 4 \u00D7 3) P2:5(5)",
              Model("T1 - 2,A1 T1 4,P1 A1 3,P2 - 5").flattened({ true, 1 }, true));
    EXPECT_EQ("P1:12(4 \u00D7 3) P2:4(4 \u00D7 1)",
              Model("T1 - 1,A1 T1 4,P1 A1 3,P2 A1 1").flattened({ true, 1 }, true));
    EXPECT_EQ("P1:0(0)", Model("T1 - 0,A1 T1 4,P1 A1 3").flattened({ true, 1 }, true));
}

TEST(RowTreeTest, SetsMultiplyAll)
{
    EXPECT_EQ("P1:240(10 \u00D7 2 \u00D7 4 \u00D7 3) P2:50(10 \u00D7 5)",
              Model("T1 - 2,A1 T1 4,P1 A1 3,P2 - 5").flattened({ true, 10 }, true));
    EXPECT_EQ("P1:6 P2:15", Model("P1 - 2,P2 - 5").flattened({ false, 3 }));
}

TEST(RowTreeTest, PartsMayStandInFrontOfTheirParents)
{
    EXPECT_EQ("P1:24 P3:8 P2:5", Model("P1 A1 3,P3 A1 1,A1 T1 4,P2 - 5,T1 - 2").flattened());
}

TEST(RowTreeTest, AHandleThatComesAgainHarmsNobodyWhoIsNoParent)
{
    EXPECT_EQ("P1:8 P1:3", Model("A1 - 4,P1 A1 2,P1 - 3").flattened());
}

TEST(RowTreeTest, AParentThatSeveralRowsAreIsRefused)
{
    EXPECT_EQ("rows name a parent that several rows are, one of them row 3 \"A1\": give each row a handle of its own",
              Model("A1 - 4,P1 A1 2,A1 - 3").flattened());
}

TEST(RowTreeTest, AnUnknownParentIsNamed)
{
    EXPECT_EQ("found \"A9\" in row 2, expected the handle of a row, or nothing", Model("A1 - 4,P1 A9 2").flattened());
    EXPECT_EQ("found \"A9\" in row 2 and 1 other, expected the handle of a row, or nothing",
              Model("A1 - 4,P1 A9 2,P2 a1 2").flattened());
}

TEST(RowTreeTest, ACircleIsNamed)
{
    EXPECT_EQ("found row 1 \"A1\" as a part of itself, expected parents that lead to a row without one",
              Model("A1 A1 1").flattened());
    EXPECT_EQ("found row 3 \"A2\" as a part of itself, expected parents that lead to a row without one",
              Model("P1 A1 1,A1 A2 1,A2 A1 1,T1 - 1").flattened());
}

TEST(RowTreeTest, MorePiecesThanAWholeNumberHoldsAreRefused)
{
    EXPECT_EQ("P1:2147483647", Model("A1 - 1,P1 A1 2147483647").flattened());
    EXPECT_EQ("found 2147483648 pieces of row 2 \"P1\", expected at most 2147483647",
              Model("A1 - 2,P1 A1 1073741824").flattened());
    EXPECT_EQ("found 2147483648 pieces of row 31 \"H30\", expected at most 2147483647",
              Model(chainOf(1000, 2)).flattened());
    EXPECT_EQ("found 6000000000 pieces of row 1 \"P1\", expected at most 2147483647",
              Model("P1 - 2000000000").flattened({ false, 3 }));
}

TEST(RowTreeTest, LessThanNoPiecesAreACorrectionButNoParent)
{
    EXPECT_EQ("P1:-6", Model("A1 - 2,P1 A1 -3").flattened());
    EXPECT_EQ("found -2 pieces of row 1 \"A1\", which has parts, expected 0 or more",
              Model("A1 - -2,P1 A1 3").flattened());
}

TEST(RowTreeTest, AMistakeLeavesTheRowsAsTheyWere)
{
    Model model("A1 - 2,P1 A1 3,P2 P9 1");
    model.flattened();
    EXPECT_EQ("A1:2 P1:3 P2:1", model.rowsText());
}

TEST(RowTreeTest, ADeepNestTakesNoStack)
{
    const std::size_t numRows = 100000;
    EXPECT_EQ(handleOf(numRows - 1) + ":1(1)", Model(chainOf(numRows, 1)).flattened({ true, 1 }, true));
}

TEST(RowTreeTest, RowsWithinRowsAreToldToWhoDoesNotMultiply)
{
    EXPECT_EQ("", Model("A1 - 4,P1 A9 2").nesting()); // the column means something else
    EXPECT_EQ("row 2 is a part of another row, such as row 1 \"A1\": give --flatten to multiply pieces along parents, "
              "or --map if the column means something else",
              Model("A1 - 4,P1 A1 2").nesting());
    EXPECT_EQ("row 1 and 2 others are parts of another row",
              Model("P1 A1 2,P2 A1 1,A1 T1 2,T1 - 1").nesting().substr(0, 43));
}

TEST(RowTreeTest, AParentThatDoesNotWeighWhatItsPartsDoIsTold)
{
    const auto warningOf = [](const std::string& rows)
    {
        Model model(rows);
        model.flattened();
        return model.warningText;
    };
    EXPECT_EQ("", warningOf("A1 - 4 100,P1 A1 2 30,P2 A1 1 40"));
    EXPECT_EQ("", warningOf("A1 - 4 104,P1 A1 2 30,P2 A1 1 40")); // welds
    EXPECT_EQ("", warningOf("A1 - 4,P1 A1 2 30,P2 A1 1 40"));     // nobody says what it weighs
    EXPECT_EQ("", warningOf("T1 - 1 200,A1 T1 2,P1 A1 2 30,P2 A1 1 40"));
    EXPECT_EQ("row 1 does not weigh what the parts weigh: \"A1\" 500 kg, its parts 20.5 kg: parts are listed in place "
              "of their parents; what a parent has beside them needs a row of its own",
              warningOf("A1 - 4 500,P1 A1 2 10.25"));
    EXPECT_EQ("row 1 and 1 other do not weigh what the parts weigh: \"T1\" 9 kg, its parts 2 kg",
              warningOf("T1 - 1 9,A1 T1 1 3,P1 A1 2 1").substr(0, 78));
}

// A sum down the tree, from each row to the rows that name it, beside a product up the tree.
TEST(RowTreeTest, TotalsAreThoseOfARecursiveSum)
{
    std::mt19937 random(20260112);
    for (int round = 0; round < 200; ++round)
    {
        const std::size_t numRows = 1 + random() % 30;
        std::vector<std::size_t> parents(numRows); // numRows for none; else one with a smaller number
        std::vector<int> pieces(numRows);
        for (std::size_t i = 0; i < numRows; ++i)
        {
            parents[i] = i == 0 || random() % 5 == 0 ? numRows : random() % i;
            pieces[i] = static_cast<int>(random() % 4);
        }
        std::vector<std::size_t> places(numRows);
        std::iota(places.begin(), places.end(), std::size_t{ 0 });
        std::shuffle(places.begin(), places.end(), random);
        std::string rows;
        for (const std::size_t i : places)
            rows += (rows.empty() ? "" : ",") + handleOf(i) + " " +
                    (parents[i] == numRows ? std::string("-") : handleOf(parents[i])) + " " + std::to_string(pieces[i]);

        std::vector<int> totals(numRows); // of the rows without parts
        const auto addUp = [&](auto&& self, std::size_t row, int number) -> void
        {
            bool hasParts = false;
            for (std::size_t part = 0; part < numRows; ++part)
                if (parents[part] == row)
                {
                    hasParts = true;
                    self(self, part, number * pieces[part]);
                }
            totals[row] = hasParts ? -1 : number;
        };
        for (std::size_t i = 0; i < numRows; ++i)
            if (parents[i] == numRows)
                addUp(addUp, i, pieces[i]);
        std::string expected;
        for (const std::size_t i : places)
            if (totals[i] >= 0)
                expected += (expected.empty() ? "" : " ") + handleOf(i) + ":" + std::to_string(totals[i]);
        ASSERT_EQ(expected, Model(rows).flattened()) << rows;
    }
}
}
