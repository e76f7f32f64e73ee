#!/usr/bin/env python3
"""Turns the code examples in headers' comments into one source, so that a build shows whether they are still true.

    extract_examples.py OUTPUT GIVEN HEADER ...

An example is an indented block of a comment that holds a statement or a line "expression  ->  result":

    //   VorBomDataValue weight(12.5);
    //   weight.asString()  ->  "12.5"          what follows an arrow, or a statement and two blanks, is prose

Each becomes the body of a function. What the examples of VorBomDataRow.h take as given stands in VorBomDataRow.inc in
the folder GIVEN or one in it, which may lack it: declarations that come before each of them; what starts with #include,
namespace, struct, class, template or using in the first column comes before all of them.
"""

import pathlib
import re
import sys

INDENTED = re.compile(r"^\s*// {3,}(\S.*)$")
CONTINUED = re.compile(r"^\s*// {3}(\s*\S.*)$")
CALL_WITH_RESULT = re.compile(r"^\s*[A-Za-z_][\w:]*(\(|\[|<[\w, ]*>\(|->|\.).*\s->\s")
BEFORE_ALL = re.compile(r"^(#include|namespace|struct|class|template|using)\b")


def comment_blocks(lines):
    """Runs of indented comment lines as (number of the first line, texts); blank comment lines end a run."""
    block, first = [], 0
    for number, line in enumerate(lines + [""], 1):
        if INDENTED.match(line):
            first = first if block else number
            block.append(CONTINUED.match(line).group(1))
        elif block:
            yield first, block
            block = []


def is_code(block):
    """Prose that is indented, such as a list or a table, has neither statements nor calls with results."""
    if any(line.lstrip().startswith("- ") for line in block) or re.match(r"\s*\w+\s{2,}\S", block[0]):
        return False
    return any(re.search(r"[;{}]\s*(//.*)?$", line) or re.search(r"\);(\s{2,}|$)", line) for line in block) or any(
        CALL_WITH_RESULT.match(line) for line in block)


def outside_literals(line):
    """The line with the characters of its literals replaced, so that what looks like an arrow there is none."""
    return re.sub(r'"(\\.|[^"\\])*"|\'(\\.|[^\'\\])*\'', lambda match: "#" * len(match.group(0)), line)


def code_of(line):
    """The code of a line without the prose after it; a bare expression becomes a statement."""
    bare = outside_literals(line)
    arrow = re.search(r"\s->\s", bare)
    if arrow:
        code = line[:arrow.start()].rstrip()
        return code + ";" if code.strip() else ""
    prose = None
    for end in re.finditer(r"[;{}]\s{2,}(?=\S)", bare):
        rest = bare[end.end():]
        if ";" not in rest and not re.match(r"[\w:.>-]+\(", rest):  # no other statement or call follows
            prose = end.start() + 1
            break
    return line if prose is None else line[:prose]


def examples_of(header):
    for first, block in comment_blocks(pathlib.Path(header).read_text(encoding="utf-8").split("\n")):
        if is_code(block):
            yield first, [code_of(line) for line in block]


def given_for(header, folder):
    """Three lists of lines: includes, what comes before all examples, what comes before each."""
    includes, before_all, before_each, depth = [], [], [], 0
    path = next(pathlib.Path(folder).rglob(pathlib.Path(header).stem + ".inc"), None)
    for line in path.read_text(encoding="utf-8").split("\n") if path else []:
        if line.startswith("#include"):
            includes.append(line)
        elif depth > 0 or BEFORE_ALL.match(line) or before_all[-1:] and not before_all[-1].rstrip().endswith((";", "}")):
            before_all.append(line)
            depth += line.count("{") - line.count("}")
        else:
            before_each.append(line)
    return includes, before_all, before_each


def functions_for(header, given):
    """The header's examples as functions, in a namespace of their own."""
    _, before_all, before_each = given
    namespaces = re.findall(r"^namespace ([\w:]+)", pathlib.Path(header).read_text(encoding="utf-8"), re.M)
    outer_first = dict.fromkeys(part for name in namespaces for part in (name.split("::")[0], name))
    yield f"namespace examplesOf{pathlib.Path(header).stem}\n{{"
    yield from (f"using namespace {name};" for name in outer_first)
    yield from before_all
    for first, code in examples_of(header):
        yield f"void onLine{first}();\nvoid onLine{first}()\n{{"
        yield from before_each
        yield f'#line {first} "{header}"'
        yield from code
        yield "}"
    yield "}"


def main(arguments):
    if len(arguments) < 3:
        print(__doc__, file=sys.stderr)
        return 2
    output, folder, *headers = arguments
    headers = [header for header in headers if any(True for _ in examples_of(header))]
    given = {header: given_for(header, folder) for header in headers}
    includes = [f'#include "{header}"' for header in headers]
    includes += dict.fromkeys(line for header in headers for line in given[header][0])
    functions = [line for header in headers for line in functions_for(header, given[header])]
    pathlib.Path(output).write_text("\n".join(includes + functions) + "\n", encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
