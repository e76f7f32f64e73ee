#include "SheetRows.h"

#include "Support/HostTestSupport.h"
#include "Support/WorkbookSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

namespace mekbom
{
namespace
{
// The cells of a sheet, each as "B7 12", "B7 [text]" or "B7 (what was refused)" and a line end.
std::string cellsOf(const BuiltWorkbook& built)
{
    const Workbook workbook("parts.xlsx", built.bytes());
    const auto pPart = workbook.open(workbook.sheets().front());
    SheetRows rows(*pPart, workbook, "Parts");
    std::string text;
    while (rows.next())
        for (const SheetRows::Cell& cell : rows.cells())
        {
            text += rows.placeOf(cell.column).substr(6);
            if (cell.value.isRefused())
                text += " (" + cell.value.refusal().found + ")\n";
            else
                text += cell.value.isNumber() ? " " + cell.value.asText() + "\n"
                                              : " [" + std::string(cell.value.text()) + "]\n";
        }
    return text;
}

std::string cellsOf(const std::string& rows)
{
    return cellsOf(BuiltWorkbook::ofRows(rows));
}

// What becomes of the one cell in a row.
std::string cellOf(const std::string& cell)
{
    return cellsOf("<row>" + cell + "</row>");
}

std::string faultIn(const std::string& rows)
{
    const std::string text = faultOf([&] { cellsOf(rows); });
    const std::string remedy = ": open it in a spreadsheet program and save it anew\n";
    EXPECT_EQ(remedy, text.substr(text.size() - std::min(text.size(), remedy.size())));
    return text.substr(0, text.size() - std::min(text.size(), remedy.size()));
}

// The number 0.19 in a format.
std::string formattedCell(const std::string& code)
{
    BuiltWorkbook workbook = BuiltWorkbook::ofRows("<row><c s=\"1\"><v>0.19</v></c></row>");
    workbook.styles = "<numFmts><numFmt numFmtId=\"164\" formatCode=\"" + code +
                      "\"/></numFmts><cellStyleXfs><xf numFmtId=\"14\"/><xf numFmtId=\"14\"/></cellStyleXfs>"
                      "<cellXfs><xf numFmtId=\"0\"/><xf numFmtId=\"164\"/></cellXfs>"
                      "<dxfs><dxf><numFmt numFmtId=\"164\" formatCode=\"yyyy\"/></dxf></dxfs>";
    return cellsOf(workbook);
}
}

TEST(SheetRowsTest, CellsHoldWhatTheirTypeSays)
{
    struct
    {
        const char* cell;
        const char* expected;
    } const cases[] = {
        { "<c><v>134.40000000000001</v></c>", "A1 134.4\n" },
        { "<c t=\"n\"><v>1E-3</v></c>", "A1 0.001\n" },
        { "<c><v>0.30000000000000004</v></c>", "A1 0.30000000000000004\n" },
        { "<c><v> 12 </v></c>", "A1 12\n" },
        { "<c><v>1<!-- in two -->2</v></c>", "A1 12\n" },
        { "<c t=\"b\"><v>1</v></c>", "A1 [TRUE]\n" },
        { "<c t=\"b\"><v>0</v></c>", "A1 [FALSE]\n" },
        { "<c t=\"str\"><f>B1</f><v>0417</v></c>", "A1 [0417]\n" },
        { "<c t=\"str\"><f>B1</f><v></v></c>", "" },
        { "<c t=\"str\"><v>a<!-- -->_x0042_</v></c>", "A1 [aB]\n" },
        { "<c t=\"inlineStr\"><is><t>0417</t></is></c>", "A1 [0417]\n" },
        { "<c t=\"inlineStr\"><is><r><t>HEA</t></r><r><rPr><b/></rPr><t>200</t></r></is></c>", "A1 [HEA200]\n" },
        { "<c t=\"inlineStr\"><is><t xml:space=\"preserve\"> a </t></is></c>", "A1 [ a ]\n" },
        { "<c t=\"inlineStr\"><is><t> </t></is></c>", "A1 [ ]\n" },
        { "<c t=\"inlineStr\"><is><t>&lt;a&gt; &amp; &quot;b&quot; &#65;<![CDATA[<c>]]></t></is></c>",
          "A1 [<a> & \"b\" A<c>]\n" },
        { "<c t=\"inlineStr\"/>", "" },
        { "<c t=\"s\"><v/></c>", "" },
        { "<c s=\"7\"/>", "" },
        { "<c><v></v></c>", "" },
        { "<c><f>B1*2</f><v>12</v></c>", "A1 12\n" },
        { "<c><f t=\"shared\" si=\"0\"/><v>12</v></c>", "A1 12\n" },
        { "<c><f>B1*2</f></c>", "A1 (a formula whose value is not stored)\n" },
        { "<c><f>B1*2</f><v/></c>", "A1 (a formula whose value is not stored)\n" },
        { "<c t=\"str\"><f>B1</f></c>", "A1 (a formula whose value is not stored)\n" },
        { "<c t=\"e\"><v>#REF!</v></c>", "A1 (the error \"#REF!\")\n" },
        { "<c t=\"e\"><f>B1/0</f><v>#DIV/0!</v></c>", "A1 (the error \"#DIV/0!\")\n" },
        { "<c t=\"d\"><v>2024-03-05</v></c>", "A1 (a date)\n" },
    };
    for (const auto& testCase : cases)
        EXPECT_EQ(testCase.expected, cellOf(testCase.cell)) << testCase.cell;
}

TEST(SheetRowsTest, SharedTextsAreFoundByTheirNumber)
{
    BuiltWorkbook workbook =
        BuiltWorkbook::ofRows("<row><c t=\"s\"><v>1</v></c><c t=\"s\"><v>0</v></c><c t=\"s\"><v>2</v></c></row>");
    workbook.texts = "<si><t>S355</t></si><si><r><t>HEA</t></r><r><t>200</t></r><rPh><t>x</t></rPh></si><si/>";

    EXPECT_EQ("A1 [HEA200]\nB1 [S355]\n", cellsOf(workbook));
}

TEST(SheetRowsTest, NumbersAreThoseThatAreShown)
{
    EXPECT_EQ("A1 0.19\n", formattedCell("#,##0.00"));
    EXPECT_EQ("A1 (a date)\n", formattedCell("dd/mm/yyyy"));
    EXPECT_EQ("A1 (0.19, shown as 19%)\n", formattedCell("0%"));
    EXPECT_EQ("A1 (0.19, shown in thousands)\n", formattedCell("0,"));
    EXPECT_EQ("A1 [0.19 kg]\n", formattedCell("0.0&quot; kg&quot;"));
}

TEST(SheetRowsTest, RowsAndCellsWithoutNamesFollowTheOneBefore)
{
    EXPECT_EQ("A1 1\nC1 2\nD1 3\nA2 4\nB9 5\nB10 6\n",
              cellsOf("<row><c><v>1</v></c><c r=\"C1\"><v>2</v></c><c><v>3</v></c></row><row><c><v>4</v></c></row>"
                      "<row r=\"9\"><c r=\"B9\"><v>5</v></c></row><row><c r=\"B10\"><v>6</v></c></row>"));
}

TEST(SheetRowsTest, PrefixesAreOfNoAccount)
{
    BuiltWorkbook workbook = BuiltWorkbook::ofRows("");
    workbook.sheets[0].xml =
        "<x:worksheet xmlns:x=\"urn:x\"><x:sheetData><x:row r=\"1\"><x:c r=\"A1\"><x:v>4</x:v></x:c>"
        "<x:c r=\"B1\" t=\"inlineStr\"><x:is><x:t>b</x:t></x:is></x:c></x:row></x:sheetData>"
        "</x:worksheet>";

    EXPECT_EQ("A1 4\nB1 [b]\n", cellsOf(workbook));
}

TEST(SheetRowsTest, DamagedCellsAreNamed)
{
    const std::string cell = "3 parts.xlsx: Parts!A1: found ";

    EXPECT_EQ(cell + "\"12x\", expected a number", faultIn("<row><c><v>12x</v></c></row>"));
    EXPECT_EQ(cell + "\"1E999\", expected a number", faultIn("<row><c><v>1E999</v></c></row>"));
    EXPECT_EQ(cell + "\"INF\", expected a number", faultIn("<row><c><v>INF</v></c></row>"));
    EXPECT_EQ(cell + "text \"0\", which the workbook has not, expected one that it has",
              faultIn("<row><c t=\"s\"><v>0</v></c></row>"));
    EXPECT_EQ(cell + "text \"-1\", which the workbook has not, expected one that it has",
              faultIn("<row><c t=\"s\"><v>-1</v></c></row>"));
    EXPECT_EQ(cell + "type \"q\", expected one that is known", faultIn("<row><c t=\"q\"><v>0</v></c></row>"));
    EXPECT_EQ(cell + "bytes that are no UTF-8, expected text in UTF-8",
              faultIn("<row><c t=\"str\"><v>Tr\xE4ger</v></c></row>"));
}

TEST(SheetRowsTest, RowsAndCellsOutOfOrderAreRefused)
{
    const std::string sheet = "3 parts.xlsx: xl/worksheets/sheet1.xml: found ";

    EXPECT_EQ(sheet + "row \"4\" behind row 4, expected rows in order", faultIn("<row r=\"4\"/><row r=\"4\"/>"));
    EXPECT_EQ(sheet + "row \"x\" behind row 0, expected rows in order", faultIn("<row r=\"x\"/>"));
    EXPECT_EQ(sheet + "row 1048577, expected 1048576 rows at most", faultIn("<row r=\"1048576\"/><row/>"));
    for (const char* const pName : { "A2", "A1", "B3", "XFE2", "ZZZZZZZZZZZ2", "2", "B", "B2x", "b2" })
        EXPECT_EQ(sheet + "cell \"" + pName + "\" in row 2, expected the cells of the row in order, up to XFD2",
                  faultIn("<row r=\"2\"><c/><c r=\"" + std::string(pName) + "\"/></row>"));
}
}
