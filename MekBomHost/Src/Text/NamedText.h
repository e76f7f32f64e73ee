// A text from outside with the name that its user knows it by: a file's content and its path, in whatever way they
// reached the program.
//
//   NamedText units{ "shop.ini", "length = ft-in/16\n" };
#pragma once

#include <string>

namespace mekbom
{
struct NamedText
{
    std::string name; // for findings: "shop.ini"
    std::string text; // as its bytes were; nobody has looked at them yet
};
}
