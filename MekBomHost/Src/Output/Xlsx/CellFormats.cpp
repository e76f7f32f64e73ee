#include "CellFormats.h"

namespace mekbom
{
namespace
{
const char* const kTextFormat = "@"; // "0417" that is edited in its cell stays a text
const double kTitleSize = 14;        // points; the text of cells has 11
const double kRemarkSize = 9;
const lxw_color_t kHeadingColour = 0xD9E2EC; // a light grey that black reads well on, printed too
const lxw_color_t kGroupColour = 0xF1F4F7;   // lighter than headings
const lxw_color_t kRemarkColour = 0x595959;

void setRole(lxw_format* pFormat, CellLook::eRole role)
{
    const bool isBold = role != CellLook::kLine && role != CellLook::kRemark;
    if (isBold)
        format_set_bold(pFormat);
    switch (role)
    {
        case CellLook::kTitle: format_set_font_size(pFormat, kTitleSize); break;
        case CellLook::kRemark:
            format_set_font_size(pFormat, kRemarkSize);
            format_set_font_color(pFormat, kRemarkColour);
            break;
        case CellLook::kHeading:
            format_set_bg_color(pFormat, kHeadingColour);
            format_set_bottom(pFormat, LXW_BORDER_THIN);
            break;
        case CellLook::kGroupHeader: format_set_bg_color(pFormat, kGroupColour); break;
        case CellLook::kTotal: format_set_top(pFormat, LXW_BORDER_THIN); break;
        case CellLook::kLine:
        case CellLook::kGroupTotal: break;
    }
}
}

lxw_format* CellFormats::of(const CellLook& look, const SheetNumber& number)
{
    return find(look, kNumber, number);
}

lxw_format* CellFormats::ofText(const CellLook& look)
{
    return find(look, kText, SheetNumber());
}

lxw_format* CellFormats::ofLongText(const CellLook& look)
{
    return find(look, kLongText, SheetNumber());
}

// A number has at most kMostDigits decimals and zeros, fewer than 64 together, and at most 13 groups.
lxw_format* CellFormats::find(const CellLook& look, eContent content, const SheetNumber& number)
{
    const auto key = static_cast<std::uint32_t>(number.numDecimals | number.numGroups << 6 | content << 10 |
                                                (look.isRight ? 1 : 0) << 12 | (look.wraps ? 1 : 0) << 13 |
                                                (look.isIndented ? 1 : 0) << 14 | look.role << 15);
    const auto [place, isNew] = m_formats.try_emplace(key, nullptr);
    if (isNew)
        place->second = create(look, content, number);
    return place->second;
}

// Texts beside one of several lines stand at its middle.
lxw_format* CellFormats::create(const CellLook& look, eContent content, const SheetNumber& number)
{
    lxw_format* const pFormat = workbook_add_format(&m_workbook);
    setRole(pFormat, look.role);
    format_set_align(pFormat, look.isRight ? LXW_ALIGN_RIGHT : LXW_ALIGN_LEFT);
    format_set_align(pFormat, LXW_ALIGN_VERTICAL_CENTER);
    if (look.isIndented)
        format_set_indent(pFormat, 1);
    if (look.wraps)
        format_set_text_wrap(pFormat);
    if (content == kNumber)
        format_set_num_format(pFormat, number.format().c_str());
    else if (content == kText)
        format_set_num_format(pFormat, kTextFormat);
    return pFormat;
}
}
