#include "ColumnNames.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace mekbom
{
namespace
{
// The fields of a header row, with semicolons between them.
std::vector<std::string> fieldsOf(const std::string& header)
{
    std::vector<std::string> fields;
    std::istringstream text(header);
    for (std::string field; std::getline(text, field, ';');)
        fields.push_back(field);
    return fields;
}

// "%PNum; %Weight [kg] of all", and "?" behind the column of which nobody can tell what it is.
std::string namesOf(const std::string& header, const HeadingChoices& choices = HeadingChoices())
{
    std::string text;
    for (const ColumnName& column : ColumnNames::of(fieldsOf(header), choices).columns)
        text += (text.empty() ? "" : "; ") + column.token + (column.unit.empty() ? "" : " [" + column.unit + "]") +
                (column.isRowTotal ? " of all" : "") + (column.doubt ? "?" : "");
    return text;
}

// What is said of the columns in doubt, a line each.
std::string doubtsOf(const std::string& header)
{
    std::string text;
    for (const ColumnName& column : ColumnNames::of(fieldsOf(header), HeadingChoices()).columns)
        if (column.doubt)
            text += messageOf(column.doubt->finding) + "\n";
    return text;
}

struct HeaderCase
{
    const char* header;
    const char* names;
};

const HeaderCase kHeaders[] = {
    { "Mark;Profile;Grade;Qty", "%PNum; %Name; %Material; %Quantity" },
    { "Pos.;Profil;Werkstoff;Anzahl;L\u00E4nge;Gewicht [kg]",
      "%PNum; %Name; %Material; %Quantity; %Length; %Weight [kg]" },
    { "Merk;Profiel;Kwaliteit;Aantal;Lengte mm", "%PNum; %Name; %Material; %Quantity; %Length [mm]" },
    { "Rep\u00E8re;Profil\u00E9;Nuance;Quantit\u00E9", "%PNum; %Name; %Material; %Quantity" },

    // As ever.
    { "PNum;Name;Price;Bay [m]", "%PNum; %Name; %Price; %Bay [m]" },
    { "%PNum;%Gewicht", "%PNum; %Gewicht" },
    { "", "" },

    // What other columns say of a mark.
    { "Part mark;Mark", "%PNum; %MNum" },
    { "Assembly mark;Mark", "%MNum; %PNum" },
    { "Part mark;Mark;Position", "%PNum; %MNum; %Num" },
    { "Mark;Item", "%PNum; %Item?" }, // a number of lines, most likely; but who asks for %Num has to say so
    { "Mark;Pos.", "%Mark?; %Pos.?" },
    { "Mark;Position", "%Mark?; %Position?" },
    { "Mark;Part", "%Mark?; %Part?" },
    { "Position", "%Position?" },
    { "Profile;Description", "%Name; %Role" },
    { "Description", "%Description?" },

    // Weights of one piece and of all.
    { "Qty;Total weight", "%Quantity; %Weight of all" },
    { "Qty;Total weight [kg]", "%Quantity; %Weight [kg] of all" },
    { "Qty;Weight;Total weight", "%Quantity; %Weight; %Total weight" },
    { "Qty;kg;Total kg", "%Quantity; %Weight [kg]; %Total kg" },
    { "Total weight", "%Total weight?" },
    { "No.;Total weight", "%No.?; %Total weight?" },
    { "Qty;Total weight;Gesamtgewicht", "%Quantity; %Total weight?; %Gesamtgewicht?" },
    { "Qty;Total length", "%Quantity; %Total length?" },
    { "Qty;Length;Total length", "%Quantity; %Length; %Total length" },

    // A weight beside one that is surely of one piece may be of all.
    { "Weight;Weight/pc", "%Weight?; %Weight/pc?" },
    { "Weight;Unit weight", "%Weight?; %Unit weight?" },
    { "Weight;Unit weight [kg/m]", "%Weight; %WeightMeter [kg/m]" },
    { "Weight;Unit weight [kg]", "%Weight?; %Unit weight [kg]?" },
    { "Unit weight", "%Unit weight?" },
    { "Qty;Unit weight;Total weight", "%Quantity; %Unit weight?; %Weight of all" },
    { "Qty;Total qty", "%Qty?; %Total qty?" },

    // Two headings for one token, and one that has its '%'.
    { "Name;Profile", "%Name?; %Profile?" },
    { "Gewicht;Poids", "%Gewicht?; %Poids?" },
    { "%Name;Profile", "%Name; %Profile" },
    { "%Weight;Weight total", "%Weight; %Weight total" },
    { "%MNum;Baugruppe", "%MNum; %Baugruppe" },
    { "%PNum;Mark", "%PNum; %Mark" }, // does not say that the mark is that of an assembly
};
}

TEST(ColumnNamesTest, ColumnsAreNamedByAllHeadings)
{
    for (const HeaderCase& test : kHeaders)
        EXPECT_EQ(test.names, namesOf(test.header)) << test.header;
}

TEST(ColumnNamesTest, DoubtsNameAllReadingsAndTheRemedy)
{
    EXPECT_EQ("column \"Position\": may be %PNum or %Num: say which, as in --map \"Position=%PNum\"\n",
              doubtsOf("Position"));
    EXPECT_EQ("column \"No.\": may be %Num, %PNum or %Quantity: say which, as in --map \"No.=%Num\"\n",
              doubtsOf("No."));
    EXPECT_EQ("columns \"Name\" and \"Profile [x]\" may both be %Name: say what one of them is instead, as in --map "
              "\"Profile=%Other\"\n",
              doubtsOf("Name;Profile [x]").substr(0, doubtsOf("Name;Profile [x]").find('\n') + 1));
    EXPECT_EQ(
        "column \"Total weight\": is %Weight of all pieces of a row, and no column says how many: if each row is one "
        "piece, say --map \"Total weight=%Weight\"\n",
        doubtsOf("Total weight"));
    EXPECT_EQ("column \"Gesamtl\u00E4nge\": may be %Length of one piece or of all pieces of a row: say --map "
              "\"Gesamtl\u00E4nge=%Length\", and --row-totals %Length if it is of all\n",
              doubtsOf("Qty;Gesamtl\u00E4nge"));
}

TEST(ColumnNamesTest, ADoubtIsAboutTheTokensThatAreLeft)
{
    const ColumnNames names = ColumnNames::of({ "Mark", "Item" }, HeadingChoices());

    EXPECT_EQ(std::vector<std::string>{ "%Num" }, names.columns[1].doubt->tokens);
}

TEST(ColumnNamesTest, MappingsWinOverEverything)
{
    HeadingChoices choices;
    choices.mappings = { { "Cost code", "%UserAttr1" }, { "Mark", "%MNum" }, { "Brutto", "%Weight" } };

    EXPECT_EQ("%UserAttr1; %MNum; %PNum; %Weight [kg]", namesOf("Cost code;Mark;Pos.;Brutto [kg]", choices));
    EXPECT_EQ("%UserAttr1; %Quantity", namesOf("COST-CODE;Qty", choices));
    EXPECT_EQ("%COST-CODE; %UserAttr1", namesOf("COST-CODE;Cost code", choices)); // letter by letter first
    choices.mappings.push_back({ "Cost code", "%UserAttr2" });
    EXPECT_EQ("%UserAttr2", namesOf("Cost code", choices));
    choices.mappings = { { "Unit weight", "%WeightMeter" } };
    EXPECT_EQ("%Weight; %WeightMeter", namesOf("Weight;Unit weight", choices));
    choices.mappings = { { "Profile", "%Other" } };
    EXPECT_EQ("%Name; %Other", namesOf("Name;Profile", choices));
    choices.mappings = { { "Name", "%Role" } };
    EXPECT_EQ("%Role; %Name", namesOf("Name;Profile", choices));
}

TEST(ColumnNamesTest, AMappingMayHaveToFindItsHeading)
{
    HeadingChoices choices;
    choices.mappings = { { "Cost code", "%UserAttr1" }, { "Colour", "%UserAttr2", true }, { "Qty", "%Qty", true } };

    const ColumnNames names = ColumnNames::of({ "Qty" }, choices);

    ASSERT_EQ(1u, names.missing.size());
    EXPECT_EQ("Colour", names.missing[0].heading);
}

TEST(ColumnNamesTest, TokensOfTheTemplatesOwnStay)
{
    HeadingChoices choices;
    choices.ownTokens = { "%Mark", "%Length (mm)" };

    EXPECT_EQ("%Mark; %Name; %Length (mm)", namesOf("Mark;Profile;Length (mm)", choices));
}

TEST(ColumnNamesTest, TheOriginTellsWhoNamedAColumn)
{
    HeadingChoices choices;
    choices.mappings = { { "Cost code", "%UserAttr1" } };

    const ColumnNames names =
        ColumnNames::of({ "Cost code", "Qty", "Quantity [pcs]", "%Name", "Length", "Bay" }, choices);

    EXPECT_EQ(ColumnName::kMapped, names.columns[0].origin);
    const ColumnNames qty = ColumnNames::of({ "Qty", "Length", "length", "Bay" }, HeadingChoices());
    EXPECT_EQ(ColumnName::kTable, qty.columns[0].origin);
    EXPECT_EQ(ColumnName::kWritten, qty.columns[3].origin);
    EXPECT_EQ(ColumnName::kWritten, ColumnNames::of({ "Length [m]" }, HeadingChoices()).columns[0].origin);
    EXPECT_EQ(ColumnName::kTable, ColumnNames::of({ "length" }, HeadingChoices()).columns[0].origin);
}

TEST(ColumnNamesTest, AMillionColumnsAreNamedInNoTimeToSpeakOf)
{
    const std::vector<std::string> headings(1000000);

    EXPECT_EQ(1000000u, ColumnNames::of(headings, HeadingChoices()).columns.size());
}
}
