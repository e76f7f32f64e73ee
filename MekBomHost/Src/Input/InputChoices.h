// What a user says of how parts lists are to be read. What is left empty is found in the file.
#pragma once

namespace mekbom
{
struct InputChoices
{
};
}
