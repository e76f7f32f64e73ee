// Which parts of a workbook a part refers to, by numbers that it uses itself and by what they are to it.
//
//   const PartRelations relations(archive, "xl/workbook.xml");
//   relations.find("rId3")->path          ->  "xl/worksheets/sheet1.xml"
//   relations.find("rId3")->type          ->  "worksheet"
//   relations.ofType("styles")->path      ->  "xl/styles.xml"
//
// They stand in a part of their own, "xl/_rels/workbook.xml.rels"; those of the whole archive are relations of "".
#pragma once

#include "ZipArchive.h"

#include <map>
#include <string>

namespace mekbom
{
class PartRelations
{
public:
    struct Relation
    {
        std::string type; // the last word of its address
        std::string path; // in the archive
    };

    // Throws a Fault of status kInvalidInput where they are damaged or missing.
    PartRelations(const ZipArchive& archive, const std::string& part);

    // Null where there is none.
    const Relation* find(const std::string& id) const;

    // The first of that type in the order of their numbers; null where there is none.
    const Relation* ofType(const std::string& type) const;

private:
    std::map<std::string, Relation> m_relations;
};
}
