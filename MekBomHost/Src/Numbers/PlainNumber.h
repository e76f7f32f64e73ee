// Shows numbers without a unit in a list: in full, with the decimals that its column says or its data have.
//
//   const PlainNumber prices({ 2, true, true });
//   prices.textOf(48637.9)   ->  "48 637.90"
//   prices.textOf(12)        ->  "12.00"
#pragma once

#include "NumberText.h"

#include "VorBomNumberFormat.h"

#include <string>
#include <utility>

namespace mekbom
{
class PlainNumber : public VorBomNumberFormat
{
public:
    // `name` stands behind each number, for columns whose headings cannot name it: "EUR"; mostly empty.
    explicit PlainNumber(const NumberStyle& style, std::string name = std::string())
        : m_style(style), m_name(std::move(name))
    {
    }

    VorString textOf(int value) const override { return textOf(static_cast<double>(value)); }
    VorString textOf(double value) const override;

private:
    NumberStyle m_style;
    std::string m_name; // UTF-8
};
}
