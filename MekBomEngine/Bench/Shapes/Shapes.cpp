// A shape is the plain report with one thing changed. Told on "some-integer-lengths":
//   addSomeIntegerLengths    makes the plain parts, and has one row in fifty tell its length as an int
//   createPlain              its sections are the plain ones: by material and mark, the longest first
//   kSameOutput              it prints what the plain one prints, so a row of it may cost 1.4 plain ones
// Rows are changed by numbers drawn from a generator of their own, so that all else stays as in the plain shape.
#include "Shapes.h"

#include "ShapeRows.h"
#include "ShapeSections.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <utility>

namespace
{
// One draw after another, always the same ones.
class Draws
{
public:
    unsigned below(unsigned limit) { return static_cast<unsigned>(m_random() % limit); }
    double fraction() { return static_cast<double>(m_random()) / 4294967296.0; } // in [0, 1), of 32 bits

private:
    std::mt19937 m_random{ 2 };
};

ShapeCell& cellOf(ShapeRow& row, const wchar_t* token)
{
    const VorString wanted(token);
    return *std::find_if(row.begin(), row.end(), [&](const ShapeCell& cell) { return cell.token == wanted; });
}

void addPlain(VorBomData& data, int numRows)
{
    ShapeRows(numRows).addTo(data);
}

// Lengths.

// Random lengths hardly ever come within 1e-6 of each other below a million rows, so one in a thousand is put there.
void setFullLengths(ShapeRows& rows)
{
    Draws draws;
    for (std::size_t i = 0; i < rows.parts.size(); ++i)
        rows.parts[i].length = i % 1000 == 999 ? rows.parts[i - 1].length + 7e-7 : 100.0 + 12000.0 * draws.fraction();
}

void addFullLengths(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    setFullLengths(rows);
    rows.addTo(data);
}

void addLengthVariants(VorBomData& data, int numRows, unsigned numVariants, double apart)
{
    ShapeRows rows(numRows);
    Draws draws;
    for (ShapePart& part : rows.parts)
    {
        const double length = 500.0 + 200.0 * draws.below(60);
        part.length = length + apart * draws.below(numVariants);
    }
    rows.addTo(data);
}

void addClusteredLengths(VorBomData& data, int numRows)
{
    addLengthVariants(data, numRows, 3, 4e-7);
}

void addChainedLengths(VorBomData& data, int numRows)
{
    addLengthVariants(data, numRows, 5, 7e-7);
}

void addSomeIntegerLengths(VorBomData& data, int numRows)
{
    ShapeRows(numRows).addTo(data,
                             [](ShapeRow& row, int index)
                             {
                                 auto& value = cellOf(row, L"%Length").value;
                                 if (index % 50 == 49)
                                     value = static_cast<int>(std::get<double>(value));
                             });
}

void addOneNanLength(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    rows.parts[rows.parts.size() / 2].length = std::numeric_limits<double>::quiet_NaN();
    rows.addTo(data);
}

// Attributes.

void dropAThird(ShapeRow& row, Draws& draws)
{
    row.erase(std::remove_if(row.begin(), row.end(), [&](const ShapeCell&) { return draws.below(3) == 0; }), row.end());
}

void addMissingAttributes(VorBomData& data, int numRows)
{
    Draws draws;
    ShapeRows(numRows).addTo(data, [&](ShapeRow& row, int) { dropAThird(row, draws); });
}

void shuffle(ShapeRow& row, Draws& draws)
{
    for (unsigned i = static_cast<unsigned>(row.size()); i > 1; --i)
        std::swap(row[i - 1], row[draws.below(i)]);
}

void addAttributesInAnyOrder(VorBomData& data, int numRows)
{
    Draws draws;
    ShapeRows(numRows).addTo(data, [&](ShapeRow& row, int) { shuffle(row, draws); });
}

// "%UserAttr1" and so on, which stand before the others in a row, so that look-ups have to pass them. Texts, whole
// numbers and weights by turns.
void addUserAttributes(VorBomData& data, int numRows, unsigned numAttributes, bool inAnyOrder)
{
    const auto tokens = numberedTexts(L"%%UserAttr%u", numAttributes);
    const auto texts = numberedTexts(L"text %u", 20);
    Draws draws;
    const auto cellFor = [&](unsigned attribute) -> ShapeCell
    {
        switch (attribute % 3)
        {
            case 0: return { tokens[attribute], texts[draws.below(20)] };
            case 1: return { tokens[attribute], static_cast<int>(draws.below(100)) };
            default: return { tokens[attribute], draws.below(100000) / 100.0 };
        }
    };
    ShapeRows(numRows).addTo(data,
                             [&](ShapeRow& row, int)
                             {
                                 ShapeRow longer;
                                 for (unsigned i = 0; i < numAttributes; ++i)
                                     longer.push_back(cellFor(i));
                                 longer.insert(longer.end(), row.begin(), row.end());
                                 row = std::move(longer);
                                 if (inAnyOrder)
                                     shuffle(row, draws);
                             });
}

template <unsigned NumAttributes>
void addUserAttributes(VorBomData& data, int numRows)
{
    addUserAttributes(data, numRows, NumAttributes, false);
}

void addSixtyInAnyOrder(VorBomData& data, int numRows)
{
    addUserAttributes(data, numRows, 60, true);
}

void addRepeatedTokens(VorBomData& data, int numRows)
{
    const VorString name(L"%Name"), length(L"%Length");
    const VorString otherName(L"FL10");
    ShapeRows(numRows).addTo(data,
                             [&](ShapeRow& row, int)
                             {
                                 row.push_back({ name, otherName });
                                 row.push_back({ length, 1.0 });
                             });
}

// Keys and the summed weight keep their kinds.
void addMixedKinds(VorBomData& data, int numRows)
{
    const VorString text(L"12");
    const wchar_t* const tokens[] = {
        L"%Paint", L"%Quantity", L"%Phase", L"%Class", L"%Coating", L"%Thick", L"%Width"
    };
    Draws draws;
    ShapeRows(numRows).addTo(data,
                             [&](ShapeRow& row, int)
                             {
                                 for (const wchar_t* token : tokens)
                                 {
                                     auto& value = cellOf(row, token).value;
                                     switch (draws.below(3))
                                     {
                                         case 0: value = static_cast<int>(draws.below(100)); break;
                                         case 1: value = draws.below(1000) / 10.0; break;
                                         default: value = text; break;
                                     }
                                 }
                             });
}

// Texts.

void giveOwnTexts(ShapeRow& row)
{
    for (ShapeCell& cell : row)
        if (const auto* pText = std::get_if<VorString>(&cell.value))
            cell.value = VorString(pText->getStringW());
}

void addOwnTexts(VorBomData& data, int numRows)
{
    ShapeRows(numRows).addTo(data, [](ShapeRow& row, int) { giveOwnTexts(row); });
}

void addOwnTextsSomeMissing(VorBomData& data, int numRows)
{
    Draws draws;
    ShapeRows(numRows).addTo(data,
                             [&](ShapeRow& row, int)
                             {
                                 dropAThird(row, draws);
                                 giveOwnTexts(row);
                             });
}

void setLongMarks(ShapeRows& rows)
{
    rows.marks = numberedTexts(L"Project 2041-7 / Hall 3 / Axis C / Level +12.500 / Assembly B%u",
                               static_cast<unsigned>(rows.marks.size()));
}

void addLongMarks(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    setLongMarks(rows);
    rows.addTo(data);
}

void addOwnTextsLongMarks(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    setLongMarks(rows);
    rows.addTo(data, [](ShapeRow& row, int) { giveOwnTexts(row); });
}

void addLeadingZeros(VorBomData& data, int numRows)
{
    const wchar_t* const patterns[] = { L"B%u", L"B0%u", L"B00%u" };
    ShapeRows rows(numRows);
    for (unsigned i = 0; i < rows.marks.size(); ++i)
        rows.marks[i].format(patterns[i % 3], i / 3 + 1);
    rows.addTo(data);
}

void addNonAsciiTexts(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    rows.marks = numberedTexts(L"Tr\u00E4ger \u2116%u", static_cast<unsigned>(rows.marks.size()));
    rows.materials = numberedTexts(L"\u94A2 Q%u35", static_cast<unsigned>(rows.materials.size()));
    rows.profiles = numberedTexts(L"\u0414\u0432\u0443\u0442\u0430\u0432\u0440 %u", 60);
    rows.addTo(data);
}

// Order and groups.

void sortAsTheReportDoes(ShapeRows& rows)
{
    std::stable_sort(rows.parts.begin(), rows.parts.end(),
                     [](const ShapePart& first, const ShapePart& second)
                     {
                         if (first.material != second.material)
                             return first.material < second.material;
                         return first.mark != second.mark ? first.mark < second.mark : first.length > second.length;
                     });
}

void addSorted(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    sortAsTheReportDoes(rows);
    rows.addTo(data);
}

void addReversed(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    sortAsTheReportDoes(rows);
    std::reverse(rows.parts.begin(), rows.parts.end());
    rows.addTo(data);
}

void addOneGroup(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    for (ShapePart& part : rows.parts)
        part.material = part.mark = 0;
    rows.addTo(data);
}

void addOwnGroups(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    rows.materials = numberedTexts(L"S%u35JR", static_cast<unsigned>(numRows));
    rows.marks = numberedTexts(L"B%u", static_cast<unsigned>(numRows));
    Draws draws;
    for (unsigned i = 0; i < rows.parts.size(); ++i)
    {
        rows.parts[i].material = rows.parts[i].mark = i;
        const unsigned other = draws.below(i + 1);
        std::swap(rows.parts[i].material, rows.parts[other].material);
        std::swap(rows.parts[i].mark, rows.parts[other].mark);
    }
    rows.addTo(data);
}

// Templates, and the rows that only they need.

std::unique_ptr<VorBomTemplate> createPlain()
{
    return ShapeSections().create();
}

constexpr int kNumFormulas = 10;

void addForTenFormulas(VorBomData& data, int numRows)
{
    ShapeRows rows(numRows);
    rows.numFormulas = kNumFormulas;
    rows.addTo(data);
}

std::unique_ptr<VorBomTemplate> createTenFormulas()
{
    ShapeSections sections;
    sections.formulas = { L"%Formula:%Length*%Quantity/1000", L"%Formula:%Weight*%Quantity",
                          L"%Formula:%Paint*%Quantity/1000",  L"%Formula:%Weight/%Length*1000",
                          L"%Formula:(%Width+%Thick)*2",      L"%Formula:%Length*%Width*%Thick/1000",
                          L"%Formula:%Paint/%Weight",         L"%Formula:%Length/12000",
                          L"%Formula:%Width*%Thick",          L"%Formula:(%Length+10)*(%Width+5)*%Quantity" };
    return sections.create();
}

std::unique_ptr<VorBomTemplate> createSixLevels()
{
    ShapeSections sections;
    sections.groups = { L"%Material", L"%Phase", L"%Class", L"%Coating", L"%Name", L"%MNum" };
    return sections.create();
}

template <unsigned NumAttributes>
std::unique_ptr<VorBomTemplate> createUserColumns()
{
    ShapeSections sections;
    const auto tokens = numberedTexts(L"%%UserAttr%u", NumAttributes);
    sections.columns.insert(sections.columns.end(), tokens.begin(), tokens.end());
    return sections.create();
}

// Six tokens by turns: the levels of the second turn and of all later ones can tell no row from another.
std::unique_ptr<VorBomTemplate> createDeepNesting()
{
    const std::vector<VorString> tokens{ L"%Material", L"%Phase", L"%Class", L"%Coating", L"%Name", L"%MNum" };
    ShapeSections sections;
    sections.groups.clear();
    for (std::size_t i = 0; i < 100000; ++i)
        sections.groups.push_back(tokens[i % tokens.size()]);
    return sections.create();
}

constexpr eShapeBound kSame = eShapeBound::kSameOutput;
constexpr eShapeBound kMore = eShapeBound::kMoreOutput;
constexpr eShapeBound kTime = eShapeBound::kTimeOnly;

std::vector<Shape> makeShapes()
{
    return {
        { "plain", "What does a row cost where everything is as the engine likes it best?",
          "14 attributes, two levels, one formula, shared texts, lengths with one decimal", kSame, addPlain,
          createPlain },

        { "full-lengths", "What do lengths from geometry cost, which are hardly ever equal?",
          "lengths with all their digits, one in a thousand within 1e-6 of another", kSame, addFullLengths,
          createPlain },
        { "clustered-lengths", "What if lengths differ by rounding errors alone?",
          "60 lengths in three variants 4e-7 apart", kSame, addClusteredLengths, createPlain },
        { "chained-lengths", "What if comparing within a tolerance is no order?",
          "60 lengths in five variants 7e-7 apart", kSame, addChainedLengths, createPlain },
        { "some-integer-lengths", "What do unlike kinds in a key cost, of which each comparison is reported?",
          "one row in fifty has an integer length", kSame, addSomeIntegerLengths, createPlain },
        { "one-nan-length", "Does one row without a number spoil it for all others?", "one NaN among the lengths",
          kSame, addOneNanLength, createPlain },

        { "missing-attributes", "What if rows hardly ever carry the same attributes?",
          "a third of the attributes missing at random", kSame, addMissingAttributes, createPlain },
        { "any-order", "What if rows have no layout in common?", "attributes in another order in each row", kSame,
          addAttributesInAnyOrder, createPlain },
        { "sixty-more", "What does an attribute cost that the report does not show?",
          "sixty more attributes before the others", kSame, addUserAttributes<60>, createPlain },
        { "sixty-more-any-order", "And if rows have no layout in common?",
          "sixty more attributes, in another order in each row", kSame, addSixtyInAnyOrder, createPlain },
        { "repeated-tokens", "What if a row has one token twice?", "a second name and a second length in each row",
          kSame, addRepeatedTokens, createPlain },
        { "mixed-kinds", "What if a column holds values of all kinds?",
          "int, double or text at random in seven columns that are neither keys nor summed", kSame, addMixedKinds,
          createPlain },

        { "own-texts", "What does a host pay that makes a text per cell?", "a text of its own for every cell",
          eShapeBound::kOwnTexts, addOwnTexts, createPlain },
        { "own-texts-long-marks", "And where texts differ late?", "own texts, marks with a long common prefix", kSame,
          addOwnTextsLongMarks, createPlain },
        { "own-texts-some-missing", "And where rows have no layout in common?",
          "own texts, a third of the attributes missing", kSame, addOwnTextsSomeMissing, createPlain },
        { "long-marks", "What does natural order cost where marks differ late?", "marks with a long common prefix",
          kSame, addLongMarks, createPlain },
        { "leading-zeros", "And where the numbers of marks are equal?", "marks B1, B01, B001, B2 and so on", kSame,
          addLeadingZeros, createPlain },
        { "non-ascii", "Is there a slower way for other letters?", "Chinese, Russian and German texts", kSame,
          addNonAsciiTexts, createPlain },

        { "sorted", "What does sorting cost what is sorted?", "rows in the order of the report", kSame, addSorted,
          createPlain },
        { "reversed", "And the other way round?", "rows in the reverse order of the report", kSame, addReversed,
          createPlain },
        { "one-group", "What if all rows tie in all keys but the length?", "one material, one mark", kSame, addOneGroup,
          createPlain },

        { "own-groups", "What does a group cost?", "every row its own group at both levels", kMore, addOwnGroups,
          createPlain },
        { "six-levels", "What does a level cost?", "six grouping levels instead of two", kMore, addPlain,
          createSixLevels },
        { "ten-formulas", "What does a formula cost?", "ten formulas instead of one", kMore, addForTenFormulas,
          createTenFormulas },
        { "hundred-columns", "What does a column cost?", "86 more attributes, all of them shown", kMore,
          addUserAttributes<86>, createUserColumns<86> },

        { "deep-nesting", "Does depth cost more than its sections?", "100,000 levels, two rows", kTime, addPlain,
          createDeepNesting, 2 },
        { "many-columns", "Does width cost more than its columns?",
          "10,000 more attributes, all of them shown, twenty rows", kTime, addUserAttributes<10000>,
          createUserColumns<10000>, 20 },
    };
}
}

const std::vector<Shape>& allShapes()
{
    static const std::vector<Shape> shapes = makeShapes();
    return shapes;
}

const Shape* findShape(const char* name)
{
    for (const Shape& shape : allShapes())
        if (std::strcmp(shape.name, name) == 0)
            return &shape;
    return nullptr;
}

std::unique_ptr<VorBomTemplate> createReport(const Shape& shape, int numRows)
{
    auto pReport = shape.createSections();
    shape.addRows(*pReport->getBomData(), shape.fixedRows > 0 ? shape.fixedRows : numRows);
    ShapeSections::prepare(*pReport);
    return pReport;
}

double allowedRatio(const Shape& shape, double tuples, double tuplesOfPlain)
{
    switch (shape.bound)
    {
        case eShapeBound::kSameOutput: return 1.4;
        case eShapeBound::kOwnTexts: return 1.15;
        case eShapeBound::kMoreOutput: return 1.3 * tuples / tuplesOfPlain;
        case eShapeBound::kTimeOnly: return 0;
    }
    return 0;
}
