// Which section of the template is meant: the header of a level, which for the deepest one is the details line, or the
// footer after it.
#pragma once

namespace mekbom
{
struct SectionPlace
{
    int level = 0; // 0 is the report's outermost
    bool isFooter = false;
};
}
