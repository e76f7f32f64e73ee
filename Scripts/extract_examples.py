#!/usr/bin/env python3
"""Turns the code examples in headers' comments into sources, so that a build shows whether they are still true.

    extract_examples.py HEADER GIVEN OUTPUT      one header's examples
    extract_examples.py --list HEADER ...        which of the headers have any

An example is an indented block of a comment that holds a statement or a line "expression  ->  result":

    //   VorBomDataValue weight(12.5);
    //   weight.asString()  ->  "12.5"          what follows an arrow, or a statement and two blanks, is prose

All examples of a header become one function each, after the declarations in GIVEN, a file of C++ that says what the
examples take as given (its #include and using lines and its namespaces go to the top). GIVEN may be missing.
"""

import pathlib
import re
import sys

INDENTED = re.compile(r"^\s*// {3,}(\S.*)$")
CONTINUED = re.compile(r"^\s*// {3}(\s*\S.*)$")
STATEMENT_END = re.compile(r"[;{}]\s*(?=$|//|\s{2,})")
CALL_WITH_RESULT = re.compile(r"^\s*[A-Za-z_][\w:]*(\(|\[|<[\w, ]*>\(|->|\.).*\s->\s")
TOP_LEVEL = re.compile(r"^(#include|using namespace)")


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
    if any(line.lstrip().startswith("- ") for line in block):
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


def given_of(path):
    """What a file of given things puts above the examples, and into each of them."""
    top, within, depth = [], [], 0
    for line in pathlib.Path(path).read_text(encoding="utf-8").split("\n") if path and pathlib.Path(path).exists() else []:
        if line.startswith("namespace") or line.startswith("struct") or line.startswith("class") or depth > 0 or \
                TOP_LEVEL.match(line):
            top.append(line)
            depth += line.count("{") - line.count("}")
        else:
            within.append(line)
    return top, within


def source_of(header, given):
    top, within = given_of(given)
    namespaces = re.findall(r"^namespace ([\w:]+)", pathlib.Path(header).read_text(encoding="utf-8"), re.M)
    outer_first = dict.fromkeys(part for name in namespaces for part in (name.split("::")[0], name))
    output = [f'#include "{header}"', *top, *(f"using namespace {name};" for name in outer_first)]
    for first, code in examples_of(header):
        output += ["", f"void exampleOnLine{first}();", f"void exampleOnLine{first}()", "{", *within,
                   f'#line {first} "{header}"', *code, "}"]
    return "\n".join(output) + "\n"


def main(arguments):
    if arguments[:1] == ["--list"]:
        for header in arguments[1:]:
            if any(True for _ in examples_of(header)):
                print(header)
        return 0
    if len(arguments) != 3:
        print(__doc__, file=sys.stderr)
        return 2
    header, given, output = arguments
    pathlib.Path(output).write_text(source_of(header, given), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
