#include "TotalReader.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "TemplateLevels.h"
#include "TotalTokens.h"
#include "Utf8.h"

#include "ExpressionEvaluator/Src/VorCompiledFormula.h"

#include <algorithm>
#include <iterator>

namespace mekbom::TotalReader
{
namespace
{
const ColumnTotal::eKind kNamedKinds[] = { ColumnTotal::kCount, ColumnTotal::kLeast, ColumnTotal::kGreatest,
                                           ColumnTotal::kMean };

bool hasTuple(const VorBomItemBase& section, const VorString& token)
{
    return std::any_of(section.getData().begin(), section.getData().end(),
                       [&token](const VorBomDataTuple& tuple) { return tuple.token().token() == token; });
}

// "%SumBy:%Weight" or "%SumBy:%Cost"; "no total" for a footer without any.
std::string sumsOf(const VorBomItemBase& footer)
{
    std::string sums;
    for (const VorBomDataTuple& tuple : footer.getData())
        if (TotalTokens::isSum(tuple.token().token()))
            sums += (sums.empty() ? "" : " or ") + inQuotes(Utf8::toBytes(tuple.token().token()));
    return sums.empty() ? "no total" : sums;
}

// { "%Weight": "%SumBy:%Weight" }: what the names in the formula stand for.
std::vector<ColumnTotal::Operand> operandsOf(JsonChecker& json, const JsonItem& names)
{
    std::vector<ColumnTotal::Operand> operands;
    if (!json.isOfKind(names, JsonNode::kObject))
        return operands;
    for (const JsonNode& member : names.node.children)
    {
        const std::string sum = json.requiredTextOf(names, member.key);
        operands.push_back({ Utf8::toWide(member.key), Utf8::toWide(sum) });
        if (!sum.empty() && !TotalTokens::isSum(operands.back().sum))
            json.add({ member, names.path + "/" + member.key },
                     Finding::of(FindingCodes::kTotalOfNoSums, inQuotes(sum), "a total such as \"%SumBy:%Weight\""));
    }
    return operands;
}

bool isIn(const std::vector<VorString>& names, const VorString& name)
{
    return std::find(names.begin(), names.end(), name) != names.end();
}

// Each name stands for a sum, and each sum has its name in the formula.
void checkNames(JsonChecker& json, const JsonItem& total, const ColumnTotal& calculated)
{
    const VorCompiledFormula compiled(calculated.formula.getStringW(), calculated.formula.length());
    if (compiled.isCompiled() == 0 || compiled.names().empty())
        return json.add(total, Finding::of(FindingCodes::kTotalOfNoSums, inQuotes(Utf8::toBytes(calculated.formula)),
                                           "a formula over totals such as \"%Cost/%Weight\""));
    std::vector<VorString> known;
    for (const ColumnTotal::Operand& operand : calculated.operands)
    {
        known.push_back(operand.name);
        if (!isIn(compiled.names(), operand.name))
            json.add(total,
                     Finding::of(FindingCodes::kTotalOfNoSums, inQuotes(Utf8::toBytes(operand.name)) + " in \"of\"",
                                 "a name that stands in the formula"));
    }
    for (const VorString& name : compiled.names())
        if (!isIn(known, name))
            json.add(total, Finding::of(FindingCodes::kTotalOfNoSums, inQuotes(Utf8::toBytes(name)) + " in the formula",
                                        "a name that \"of\" has a total for"));
}

ColumnTotal calculatedTotalOf(JsonChecker& json, const JsonItem& item)
{
    ColumnTotal total;
    if (!json.isObjectOf(item, { "formula", "of" }))
        return total;
    total.kind = ColumnTotal::kCalculated;
    total.formula = Utf8::toWide(json.requiredTextOf(item, "formula"));
    if (json.has(item, "of"))
        total.operands = operandsOf(json, { *item.node.find("of"), item.path + "/of" });
    if (total.formula.isEmpty() == 0)
        checkNames(json, item, total);
    return total;
}

void checkOperands(JsonChecker& json, const ReportTemplate& reportTemplate, const VorBomItemBase& footer)
{
    for (int i = 0; i < footer.getData().length(); ++i)
    {
        if (TotalTokens::kindOf(reportTemplate.shownTokenOf(footer, i)) != ColumnTotal::kCalculated)
            continue;
        const ColumnStyle& style = *reportTemplate.styleOfTuple(footer, i);
        for (const ColumnTotal::Operand& operand : style.total.operands)
            if (!hasTuple(footer, operand.sum))
                json.addAt(style.place.span, style.place.path + "/total/of/" + Utf8::toBytes(operand.name),
                           Finding::of(FindingCodes::kTotalOfNoSums, inQuotes(Utf8::toBytes(operand.sum)),
                                       sumsOf(footer) + ", which the footer has that shows the column"));
    }
}

// Groups are ordered by what stands in their own footer; rows are no groups.
void checkOrder(JsonChecker& json, const SectionStyle& style, const VorBomItemBase* pFooter, bool isGroup)
{
    const VorString& by = style.groupOrder.by;
    if (by.isEmpty() == 1 || (isGroup && pFooter != nullptr && TotalTokens::isSum(by) && hasTuple(*pFooter, by)))
        return;
    const std::string expected = !isGroup             ? "a section that groups, by \"%GroupBy:\""
                                 : pFooter == nullptr ? "a footer of the groups, with that total"
                                                      : sumsOf(*pFooter) + ", which the footer of the groups has";
    json.addAt(style.place.span, style.place.path + "/orderGroups",
               Finding::of(FindingCodes::kOrderOfNoTotal, inQuotes(Utf8::toBytes(by)), expected));
}
}

ColumnTotal totalOf(JsonChecker& json, const JsonItem& column)
{
    ColumnTotal total;
    const JsonNode* const pTotal = column.node.find("total");
    if (pTotal == nullptr)
        return total;
    const JsonItem item{ *pTotal, column.path + "/total" };
    if (pTotal->kind == JsonNode::kObject)
        return calculatedTotalOf(json, item);
    std::vector<std::string> names;
    std::transform(std::begin(kNamedKinds), std::end(kNamedKinds), std::back_inserter(names), ColumnTotal::nameOf);
    const int choice = json.choiceOf(item, names);
    if (choice >= 0)
        total.kind = kNamedKinds[choice];
    return total;
}

GroupOrderStyle groupOrderOf(JsonChecker& json, const JsonItem& section)
{
    GroupOrderStyle order;
    const JsonNode* const pOrder = section.node.find("orderGroups");
    if (pOrder == nullptr)
        return order;
    const JsonItem item{ *pOrder, section.path + "/orderGroups" };
    if (!json.isObjectOf(item, { "by", "descending" }))
        return order;
    order.by = Utf8::toWide(json.requiredTextOf(item, "by"));
    order.isDescending = json.booleanOf(item, "descending", false);
    return order;
}

void checkSums(JsonChecker& json, const ReportTemplate& reportTemplate)
{
    const TemplateLevels levels(*reportTemplate.pTemplate);
    for (int level = 0; level < levels.count(); ++level)
    {
        const VorBomTemplateItem* const pFooter = levels.section({ level, true });
        const bool isGroup = !levels.isDeepest(level) && !levels.groupTokens(level).empty();
        checkOrder(json, reportTemplate.styleOf(levels.section({ level, false })), pFooter, isGroup);
        if (pFooter == nullptr)
            continue;
        checkOrder(json, reportTemplate.styleOf(pFooter), nullptr, false);
        checkOperands(json, reportTemplate, *pFooter);
    }
}
}
