// Reads a template file: JSON with comments, described by MekBomHost/Schema/mekbom-template.schema.json.
//
//   const char* const text = R"({ "title": "Bolts", "sections": [ { "type": "kDetails" } ] })";
//   ReportTemplate list = TemplateReader::read("list.json", text);
//   list.title   ->  "Bolts"
//
// A file has the sections of the engine's template, each with its tuples and the sections below it, and beside them
// what the program alone knows: a title, columns with their labels and widths, the label of a section. Types have the
// names that the engine's enumerators have.
//
// Everything that is wrong is a finding of its own, and unknown keys are wrong. Whether the engine makes of the template
// what its author means is not asked here: that is what the room Checks is for.
#pragma once

#include "JsonChecker.h"
#include "JsonNode.h"
#include "ReportTemplate.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace mekbom
{
class TemplateReader
{
public:
    // The template; neither text is needed afterwards. `name` is the file's, for
    // findings. Throws a Fault of status kInvalidInput with a finding for each mistake:
    //   "list.json:12:15: /sections/0/tuples/1/token: found the number 5, expected a text"
    static ReportTemplate read(const std::string& name, std::string_view text);

private:
    explicit TemplateReader(const std::string& name) : m_json(name) {}

    ReportTemplate build(const JsonNode& root);
    void readQueryFilter(const JsonItem& root);
    void readTokenUnits(const JsonItem& root);
    void readOwnTokens(const JsonItem& root);
    void readHeadings(const JsonItem& root);
    void readAllowed(const JsonItem& root);
    void readColumns(const JsonItem& root);
    void readColumn(const JsonItem& column);
    void readSections(const JsonItem& parent, const std::string& key, VorBomItemBase& parentItem);
    void readSection(const JsonItem& section, VorBomItemBase& parentItem);
    void readTuple(const JsonItem& tuple, VorBomItemBase& sectionItem, SectionStyle& style);
    void summarize();
    void hide(const VorBomItemBase* pSection);
    void checkColumns(const JsonItem& root);
    std::unordered_set<std::string> shownColumns() const;

    JsonChecker m_json;
    ReportTemplate m_template;
};
}
