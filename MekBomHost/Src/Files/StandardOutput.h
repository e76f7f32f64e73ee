// Standard output as the report's destination.
#pragma once

#include "TextSink.h"

namespace mekbom
{
class StandardOutput : public TextSink
{
public:
    void write(std::string_view text) override;
    void finish() override;
};
}
