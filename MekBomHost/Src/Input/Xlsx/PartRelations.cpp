#include "PartRelations.h"

#include "XlsxLimits.h"
#include "XmlElements.h"
#include "XmlNames.h"

#include <algorithm>
#include <string_view>

namespace mekbom
{
namespace
{
// "xl/" of "xl/workbook.xml"; empty for a name without a folder.
std::string folderOf(const std::string& path)
{
    return path.substr(0, path.rfind('/') + 1);
}

// "xl/_rels/workbook.xml.rels"
std::string relationsOf(const std::string& part)
{
    const std::string folder = folderOf(part);
    return folder + "_rels/" + part.substr(folder.size()) + ".rels";
}

//   "worksheets/sheet1.xml", "xl/"       ->  "xl/worksheets/sheet1.xml"
//   "/xl/styles.xml", "xl/"              ->  "xl/styles.xml"
//   "../shared/texts.xml", "xl/"         ->  "shared/texts.xml"
std::string resolved(std::string_view target, const std::string& folder)
{
    std::string path = target.substr(0, 1) == "/" ? "" : folder;
    while (!target.empty())
    {
        const std::string_view step = target.substr(0, target.find('/'));
        target.remove_prefix(std::min(step.size() + 1, target.size()));
        if (step == "..")
            path = folderOf(path.substr(0, path.empty() ? 0 : path.size() - 1));
        else if (!step.empty() && step != ".")
            path += std::string(step) + (target.empty() ? "" : "/");
    }
    return path;
}
}

// What lies outside of the archive is no part.
PartRelations::PartRelations(const ZipArchive& archive, const std::string& part)
{
    const auto pSource = archive.open(relationsOf(part), XlsxLimits::kMostIndexBytes);
    XmlElements elements(*pSource, archive.name(), { "Relationships/Relationship" });
    while (const pugi::xml_node element = elements.next())
    {
        const std::string_view type = XmlNames::attribute(element, "Type");
        if (XmlNames::attribute(element, "TargetMode") != "External")
            m_relations.try_emplace(std::string(XmlNames::attribute(element, "Id")),
                                    Relation{ std::string(type.substr(type.rfind('/') + 1)),
                                              resolved(XmlNames::attribute(element, "Target"), folderOf(part)) });
    }
}

const PartRelations::Relation* PartRelations::find(const std::string& id) const
{
    const auto found = m_relations.find(id);
    return found == m_relations.end() ? nullptr : &found->second;
}

const PartRelations::Relation* PartRelations::ofType(const std::string& type) const
{
    const auto found = std::find_if(m_relations.begin(), m_relations.end(),
                                    [&type](const auto& relation) { return relation.second.type == type; });
    return found == m_relations.end() ? nullptr : &found->second;
}
}
