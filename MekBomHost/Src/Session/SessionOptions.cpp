#include "SessionOptions.h"

#include "FindingCodes.h"
#include "InQuotes.h"
#include "InputWords.h"
#include "JsonReader.h"
#include "NumberText.h"
#include "OutputWords.h"
#include "WordChoices.h"

#include <limits>

namespace mekbom
{
namespace
{
const char* const kName = "options"; // what messages call them

const std::vector<std::string>& keys()
{
    static const std::vector<std::string> keys = {
        "units",   "unit",         "setting", "where", "row-totals",       "allow",          "input-unit",
        "map",     "sheet",        "flatten", "sets",  "delimiter",        "decimal",        "encoding",
        "summary", "check-totals", "values",  "foot",  "output-delimiter", "output-decimal", "output-encoding",
        "width",   "cut",          "ascii",   "paper"
    };
    return keys;
}

// What the word under the key stands for; null without the key, or with a finding.
template <class Value>
const Value* wordIn(JsonChecker& json, const JsonItem& object, const std::string& key,
                    const WordChoices::Choices<Value>& choices)
{
    std::vector<std::string> words;
    for (const auto& choice : choices)
        words.emplace_back(choice.first);
    const int index = json.choiceOf(object, key, words);
    return index < 0 ? nullptr : &choices[static_cast<std::size_t>(index)].second;
}

std::vector<std::string> textsIn(JsonChecker& json, const JsonItem& object, const std::string& key)
{
    std::vector<std::string> texts;
    for (const JsonItem& item : json.elementsOf(object, key))
        if (json.isOfKind(item, JsonNode::kText))
            texts.push_back(item.node.text);
    return texts;
}

// The members of the object under the key, each with its text; numbers may stand for theirs.
ReportRequest::Pairs pairsIn(JsonChecker& json, const JsonItem& object, const std::string& key)
{
    ReportRequest::Pairs pairs;
    const JsonNode* const pNode = object.node.find(key);
    if (pNode == nullptr || !json.isOfKind({ *pNode, object.path + "/" + key }, JsonNode::kObject))
        return pairs;
    for (const JsonNode& member : pNode->children)
    {
        const JsonItem item = { member, object.path + "/" + key + "/" + member.key };
        if (member.kind == JsonNode::kInteger)
            pairs.emplace_back(member.key, numberText(member.number));
        else if (json.isOfKind(item, JsonNode::kText))
            pairs.emplace_back(member.key, member.text);
    }
    return pairs;
}
}

SessionOptions SessionOptions::read(std::string_view bytes)
{
    SessionOptions options;
    const JsonNode root = JsonReader(kName, bytes).read();
    const JsonItem item = { root, "" };
    JsonChecker json(kName);
    if (json.isObjectOf(item, keys()))
    {
        options.readRows(json, item);
        options.readInput(json, item);
        options.readOutput(json, item);
    }
    json.throwIfAnyError();
    return options;
}

void SessionOptions::readRows(JsonChecker& json, const JsonItem& root)
{
    if (root.node.find("units") != nullptr)
        m_units = json.requiredTextOf(root, "units");
    m_unitChoices = pairsIn(json, root, "unit");
    m_settings = pairsIn(json, root, "setting");
    m_where = json.textOf(root, "where");
    m_rowTotals = textsIn(json, root, "row-totals");
    m_allowed = textsIn(json, root, "allow");
    m_pieces.isFlattened = json.booleanOf(root, "flatten", false);
    m_pieces.numSets = json.integerOf(root, "sets", 1, std::numeric_limits<int>::max(), 1);
    m_isSummary = json.booleanOf(root, "summary", false);
    m_checksTotals = json.booleanOf(root, "check-totals", false);
}

void SessionOptions::readInput(JsonChecker& json, const JsonItem& root)
{
    m_inputUnits = pairsIn(json, root, "input-unit");
    for (const auto& [heading, token] : pairsIn(json, root, "map"))
        m_input.headings.push_back(InputWords::mappingOf(heading, token));
    m_input.sheet = json.textOf(root, "sheet");
    if (const char* const pDelimiter = wordIn(json, root, "delimiter", InputWords::delimiters()))
        m_input.delimiter = *pDelimiter;
    if (const auto* const pSign = wordIn(json, root, "decimal", InputWords::decimalSigns()))
        m_input.decimalSign = *pSign;
    if (const auto* const pEncoding = wordIn(json, root, "encoding", InputWords::encodings()))
        m_input.encoding = *pEncoding;
}

// What is given is noted as such: writers tell it from what is merely so.
void SessionOptions::readOutput(JsonChecker& json, const JsonItem& root)
{
    const auto take =
        [this, &json, &root](const char* key, OutputChoices::eChoice choice, const auto& choices, auto& member)
    {
        if (const auto* const pValue = wordIn(json, root, key, choices))
        {
            m_output.give(choice);
            member = *pValue;
        }
    };
    take("values", OutputChoices::kValues, OutputWords::values(), m_output.hasPlainValues);
    take("output-delimiter", OutputChoices::kDelimiter, OutputWords::delimiters(), m_output.delimiter);
    take("output-decimal", OutputChoices::kDecimalSign, OutputWords::decimalSigns(), m_output.decimalSign);
    take("output-encoding", OutputChoices::kEncoding, OutputWords::encodings(), m_output.encoding);
    take("paper", OutputChoices::kPaper, OutputWords::papers(), m_output.paper);
    readFlag(json, root, "foot", OutputChoices::kFoot, m_output.hasFoot);
    readFlag(json, root, "cut", OutputChoices::kCut, m_output.cutsTexts);
    readFlag(json, root, "ascii", OutputChoices::kAscii, m_output.isAscii);
    m_output.width = json.integerOf(root, "width", 1, OutputChoices::kWidest, 0);
    if (m_output.width > 0)
        m_output.give(OutputChoices::kWidth);
}

void SessionOptions::readFlag(JsonChecker& json, const JsonItem& root, const char* key, OutputChoices::eChoice choice,
                              bool& flag)
{
    flag = json.booleanOf(root, key, false);
    if (flag)
        m_output.give(choice);
}

void SessionOptions::fillIn(ReportRequest& request) const
{
    request.units = m_units;
    request.unitChoices = m_unitChoices;
    request.settings = m_settings;
    request.where = m_where;
    request.rowTotals = m_rowTotals;
    request.allowed = m_allowed;
    request.inputUnits = m_inputUnits;
    request.input = m_input;
    request.pieces = m_pieces;
    request.isSummary = m_isSummary;
    request.checksTotals = m_checksTotals;
}
}
