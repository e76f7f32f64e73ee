// Reading goes on after a mistake, so that one run tells all: a column whose width is 500 stands without a width, a
// section whose type is misspelled is one of unknown type, and the template is thrown away with the Fault at the end.
// What merely follows from another mistake would be noise, so columns are looked for in the sections last, and only
// when all else is right: the section that shows a column may be the one that could not be read.
#include "TemplateReader.h"

#include "DataTokens.h"
#include "FindingCodes.h"
#include "InQuotes.h"
#include "JsonReader.h"
#include "MistakeCodes.h"
#include "TotalReader.h"
#include "UnitKinds.h"
#include "Utf8.h"

#include "VorBomDataTuple.h"
#include "VorBomTemplateUnits.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace mekbom
{
namespace
{
using Section = VorBomTemplateItem;
using Units = VorBomTemplateUnits;

template <class T>
struct Named
{
    const char* name;
    T value;
};

// What the words of a template file stand for. A section's type is named as the engine's enumerator is, so that files
// and sources say the same.
const Named<Section::eTemplateItemType> kSectionTypes[] = {
    { "kReportHeader", Section::kReportHeader }, { "kPageHeader", Section::kPageHeader },
    { "kGroupHeader", Section::kGroupHeader },   { "kDetails", Section::kDetails },
    { "kGroupFooter", Section::kGroupFooter },   { "kPageFooter", Section::kPageFooter },
    { "kReportFooter", Section::kReportFooter },
};

const Named<ColumnStyle::eAlignment> kAlignments[] = { { "left", ColumnStyle::kLeft },
                                                       { "right", ColumnStyle::kRight } };

const Named<ColumnStyle::eOrder> kOrders[] = { { "natural", ColumnStyle::kNatural }, { "plain", ColumnStyle::kPlain } };

const Named<eEqualLines> kEqualLines[] = { { "count", kCountEqualLines },
                                           { "keep", kKeepEqualLines },
                                           { "merge", kMergeEqualLines } };

const Named<eOwnToken> kOwnTokens[] = { { "number", kOwnNumber }, { "text", kOwnText } };

const int kLeastInt = std::numeric_limits<int>::min();
const int kGreatestInt = std::numeric_limits<int>::max();
const int kMostDecimals = 15;  // a double has no more
const int kWidestColumn = 200; // arbitrary: wider than any terminal line that one would read

template <class T, std::size_t N>
std::vector<std::string> namesOf(const Named<T> (&table)[N])
{
    std::vector<std::string> names;
    for (const Named<T>& entry : table)
        names.push_back(entry.name);
    return names;
}

// Sets `value` to that of the entry whose name the member is. Leaves it alone when the member is missing or wrong.
template <class T, std::size_t N>
void readChoice(JsonChecker& json, const JsonItem& object, const std::string& key, const Named<T> (&table)[N], T& value)
{
    const int choice = json.choiceOf(object, key, namesOf(table));
    if (choice >= 0)
        value = table[choice].value;
}
}

ReportTemplate TemplateReader::read(const std::string& name, std::string_view text)
{
    const JsonNode root = JsonReader(name, text).read();
    ReportTemplate reportTemplate = TemplateReader(name).build(root);
    reportTemplate.fileName = name;
    return reportTemplate;
}

// An unknown key is an error and not passed over: with "queryFitler" for "queryFilter" a list would be about all rows,
// and nobody would know.
ReportTemplate TemplateReader::build(const JsonNode& root)
{
    m_template.pTemplate = std::make_unique<VorBomTemplate>();
    const JsonItem item{ root, std::string() };
    if (m_json.isObjectOf(item, { "$schema", "title", "queryFilter", "presentationOptions", "tokenUnits", "tokens",
                                  "headings", "equalLines", "allow", "columns", "sections" }))
    {
        m_json.textOf(item, "$schema"); // of use to editors only
        m_template.title = m_json.textOf(item, "title");
        m_template.pTemplate->setObjectPresentationOptions(
            m_json.integerOf(item, "presentationOptions", kLeastInt, kGreatestInt, 0));
        readQueryFilter(item);
        readTokenUnits(item);
        readOwnTokens(item);
        readHeadings(item);
        readChoice(m_json, item, "equalLines", kEqualLines, m_template.equalLines);
        readAllowed(item);
        readColumns(item);
        readSections(item, "sections", *m_template.pTemplate);
        if (m_template.pTemplate->child() == nullptr)
            m_json.add(item, Finding::of(FindingCodes::kNoSection, "no section", "at least one in \"sections\""));
    }
    m_json.throwIfAnyError();
    summarize();
    checkColumns(item);
    TotalReader::checkSums(m_json, m_template);
    m_json.throwIfAnyError();
    return std::move(m_template);
}

// The engine keeps the text, as it does for any template; the rows are filtered by what RowFilter makes of it.
void TemplateReader::readQueryFilter(const JsonItem& root)
{
    const std::string filter = m_json.textOf(root, "queryFilter");
    m_template.pTemplate->setQueryFilter(Utf8::toWide(filter));
    const std::optional<Finding> finding = RowFilter::parse(filter, m_template.queryFilter);
    const JsonNode* const pFilter = root.node.find("queryFilter");
    if (pFilter == nullptr)
        return;
    m_template.queryFilterPlace = { "/queryFilter", pFilter->span };
    if (finding)
        m_json.add({ *pFilter, "/queryFilter" }, *finding);
}

// The names stand in the order of the engine's enumerators, so the number of a choice is the type.
void TemplateReader::readTokenUnits(const JsonItem& root)
{
    const JsonNode* const pUnits = root.node.find("tokenUnits");
    if (pUnits == nullptr || !m_json.isOfKind({ *pUnits, "/tokenUnits" }, JsonNode::kObject))
        return;
    for (const JsonNode& member : pUnits->children)
    {
        const int type = m_json.choiceOf({ member, "/tokenUnits/" + member.key }, UnitKinds::typeNames());
        m_template.pTemplate->getBomTemplateUnits()->AddTokenType(
            Utf8::toWide(member.key), type < 0 ? Units::kNoUnit : static_cast<Units::eTokenUnitType>(type));
        m_template.tokenUnitPlaces[member.key] = { "/tokenUnits/" + member.key, member.keySpan };
    }
}

// { "%Price": "number", "%Order": "text" }: types of tokens that the catalogue does not know. Without them a column is
// what its cells are.
void TemplateReader::readOwnTokens(const JsonItem& root)
{
    const JsonNode* const pTokens = root.node.find("tokens");
    if (pTokens == nullptr || !m_json.isOfKind({ *pTokens, "/tokens" }, JsonNode::kObject))
        return;
    const std::vector<std::string> names = namesOf(kOwnTokens);
    for (const JsonNode& member : pTokens->children)
    {
        const int choice = m_json.choiceOf({ member, "/tokens/" + member.key }, names);
        m_template.ownTokens[member.key] = choice < 0 ? kOwnNumber : kOwnTokens[choice].value;
    }
}

// { "Cost code": "%UserAttr1" }: what columns of parts lists are called that the list is made for.
void TemplateReader::readHeadings(const JsonItem& root)
{
    const JsonNode* const pHeadings = root.node.find("headings");
    if (pHeadings == nullptr || !m_json.isOfKind({ *pHeadings, "/headings" }, JsonNode::kObject))
        return;
    for (const JsonNode& member : pHeadings->children)
    {
        const std::string token = m_json.requiredTextOf({ *pHeadings, "/headings" }, member.key);
        if (!token.empty() && !DataTokens::canBeColumn(Utf8::toWide(token)))
            m_json.add({ member, "/headings/" + member.key },
                       Finding::of(FindingCodes::kHeadingOfNoToken, inQuotes(token), "a token such as \"%UserAttr1\""));
        m_template.headings.push_back({ member.key, token });
    }
}

// { "MB105": "the group says it all" }: each excuse needs its reason, and a code that there is. Otherwise a slip in the
// code would excuse nothing and look as if it did.
void TemplateReader::readAllowed(const JsonItem& root)
{
    const JsonNode* const pAllowed = root.node.find("allow");
    if (pAllowed == nullptr || !m_json.isOfKind({ *pAllowed, "/allow" }, JsonNode::kObject))
        return;
    for (const JsonNode& member : pAllowed->children)
    {
        m_template.allowed[member.key] = m_json.requiredTextOf({ *pAllowed, "/allow" }, member.key);
        if (!MistakeCodes::has(member.key))
            m_json.add({ member, "/allow/" + member.key },
                       Finding::of(FindingCodes::kMistakeUnknown, inQuotes(member.key),
                                   "the code of a mistake, such as \"MB105\""));
    }
}

void TemplateReader::readColumns(const JsonItem& root)
{
    for (const JsonItem& column : m_json.elementsOf(root, "columns"))
        if (m_json.isObjectOf(column, { "token", "label", "width", "align", "unit", "decimals", "thousands", "order",
                                        "result", "total", "hidden" }))
            readColumn(column);
}

// A width, a number of decimals and the like that are wrong are findings, and stand here as if they were not written.
// Two descriptions of one column would leave it open which counts.
void TemplateReader::readColumn(const JsonItem& column)
{
    ColumnStyle style;
    const std::string token = m_json.requiredTextOf(column, "token");
    style.token = Utf8::toWide(token);
    style.label = m_json.textOf(column, "label");
    style.width = m_json.integerOf(column, "width", 1, kWidestColumn, 0);
    readChoice(m_json, column, "align", kAlignments, style.alignment);
    style.unit = m_json.textOf(column, "unit");
    style.decimals = m_json.integerOf(column, "decimals", 0, kMostDecimals, -1);
    style.hasThousands = m_json.booleanOf(column, "thousands", false);
    readChoice(m_json, column, "order", kOrders, style.order);
    style.result = m_json.textOf(column, "result");
    style.total = TotalReader::totalOf(m_json, column);
    style.isHidden = m_json.booleanOf(column, "hidden", false);
    style.place = { column.path, column.node.span };
    if (!m_template.addColumn(style))
        m_json.add(column,
                   Finding::of(FindingCodes::kColumnDescribedTwice, "column " + inQuotes(token) + " a second time"));
}

// Goes down as deep as the sections are nested, which JsonReader::kDeepest bounds.
void TemplateReader::readSections(const JsonItem& parent, const std::string& key, VorBomItemBase& parentItem)
{
    for (const JsonItem& section : m_json.elementsOf(parent, key))
        if (m_json.isObjectOf(section, { "type", "print", "label", "summary", "orderGroups", "tuples", "children" }))
            readSection(section, parentItem);
}

// The section belongs to the template as soon as it is added, so that nothing leaks when something below it is wrong.
// Its style is found by its address, which stays.
void TemplateReader::readSection(const JsonItem& section, VorBomItemBase& parentItem)
{
    Section::eTemplateItemType type = Section::kUnkTemplateItemType;
    if (m_json.has(section, "type"))
        readChoice(m_json, section, "type", kSectionTypes, type);
    auto* const pSection = new Section(type);
    parentItem.addChild(pSection);
    SectionStyle& style = m_template.sectionStyles[pSection];
    style.isPrinted = m_json.booleanOf(section, "print", true);
    style.label = m_json.textOf(section, "label");
    style.isSummary = m_json.booleanOf(section, "summary", false);
    style.groupOrder = TotalReader::groupOrderOf(m_json, section);
    style.place = { section.path, section.node.span };
    for (const JsonItem& tuple : m_json.elementsOf(section, "tuples"))
        if (m_json.isObjectOf(tuple, { "token", "value", "column" }))
            readTuple(tuple, *pSection, style);
    readSections(section, "children", *pSection);
}

// Every tuple gets an entry among the section's columns, be it an empty one, so that both are found by the same index.
// A tuple whose value is wrong gets an entry alone: that template is thrown away.
void TemplateReader::readTuple(const JsonItem& tuple, VorBomItemBase& sectionItem, SectionStyle& style)
{
    const VorString token = Utf8::toWide(m_json.requiredTextOf(tuple, "token"));
    style.columnTokens.push_back(Utf8::toWide(m_json.textOf(tuple, "column")));
    const JsonNode* const pToken = tuple.node.find("token");
    style.tuplePlaces.push_back({ tuple.path + "/token", pToken == nullptr ? tuple.node.span : pToken->span });
    const JsonNode* const pValue = tuple.node.find("value");
    switch (pValue == nullptr ? JsonNode::kNull : pValue->kind)
    {
        case JsonNode::kNull: sectionItem.addData(VorBomDataTuple(token, VorBomDataValue())); break;
        case JsonNode::kInteger:
            sectionItem.addData(VorBomDataTuple(token, m_json.integerOf(tuple, "value", kLeastInt, kGreatestInt, 0)));
            break;
        case JsonNode::kNumber: sectionItem.addData(VorBomDataTuple(token, pValue->number)); break;
        case JsonNode::kText: sectionItem.addData(VorBomDataTuple(token, Utf8::toWide(pValue->text))); break;
        default:
            m_json.add({ *pValue, tuple.path + "/value" },
                       Finding::of(FindingCodes::kWrongKindOfValue, pValue->description(), "a number, a text or null"));
            break;
    }
}

// Below a level that prints its groups alone nothing is printed; where details say so themselves, they are not. Lines
// that nobody sees are not merged either: every row belongs to its group, and to the totals.
void TemplateReader::summarize()
{
    bool isBelow = false;
    for (VorBomItemBase* pHeader = m_template.pTemplate->child(); pHeader != nullptr; pHeader = pHeader->child())
    {
        const bool isSummary = m_template.styleOf(pHeader).isSummary;
        if (isBelow || (isSummary && pHeader->child() == nullptr))
            hide(pHeader);
        if (isBelow && pHeader->next() != nullptr)
            hide(pHeader->next());
        isBelow = isBelow || isSummary;
    }
    if (isBelow)
        m_template.equalLines = kKeepEqualLines;
}

// Hiding is all that the engine's sections need: it evaluates them as ever, and their lines are not printed.
void TemplateReader::hide(const VorBomItemBase* pSection)
{
    m_template.sectionStyles[pSection].isPrinted = false;
}

// A column that nothing is shown in is most likely misspelled.
// Called only when all else is right: then each element of the array has its style at the same index.
void TemplateReader::checkColumns(const JsonItem& root)
{
    const std::unordered_set<std::string> shown = shownColumns();
    const std::vector<JsonItem> columns = m_json.elementsOf(root, "columns");
    for (std::size_t i = 0; i < columns.size() && i < m_template.columns.size(); ++i)
    {
        const std::string token = Utf8::toBytes(m_template.columns[i].token);
        if (shown.count(token) == 0)
            m_json.add(columns[i], Finding::of(FindingCodes::kColumnNotShown,
                                               "column " + inQuotes(token) + ", which no printed section shows"));
    }
}

// A column is shown by the tuples that columnTokenOf() gives it, not by those that have its token: "%Weight" may hold
// nothing but totals.
std::unordered_set<std::string> TemplateReader::shownColumns() const
{
    std::unordered_set<std::string> shown;
    for (const auto& [pSection, style] : m_template.sectionStyles)
        for (int i = 0; style.isPrinted && i < pSection->getData().length(); ++i)
            shown.insert(Utf8::toBytes(m_template.columnTokenOf(*pSection, i)));
    return shown;
}
}
