#!/usr/bin/env python3
# Compiles and checks the fenced blocks of a Markdown document.
#
#   guide.py generate DOCUMENT DIRECTORY   writes the C++ sources of the blocks into DIRECTORY
#   guide.py check DOCUMENT DIRECTORY      runs the programs built from them, which are in DIRECTORY
#
# What follows a fence's language says what its block is:
#
#   cpp declare           declarations for the blocks below it
#   cpp example=NAME      statements that fill `report`, which is then written as a single page and as
#                         text: the document shows both outputs
#   cpp run=NAME          statements that write `report` themselves
#   cpp program=NAME      a whole program
#   html of=NAME          the BODY of report/index.html without the line of the main title
#   html of=NAME file=F   the whole file F
#   text of=NAME          what NAME printed; of an example, its text report without the banner
#
# A block is its output byte for byte, the line feed before the closing fence included; with `no-eol`
# the output ends without that line feed. Each NAME runs in a process and a directory of its own.

import difflib
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path
from types import SimpleNamespace

FENCE = re.compile(r"^```(\w+) ?(.*)\n((?:(?!```).*\n)*)```$", re.M)
CODE = re.compile(r"declare|(?:example|run|program)=\w+")
OUTPUT = re.compile(r"of=(\w+)(?: file=(\S+))?( no-eol)?")
BODY = re.compile(rb'<BODY [^\n]*\n<P class="maintitle">[^\n]*\n(.*)</BODY>', re.S)
SETTINGS = ("VORGraphicPath", "VORCommandPath", "WKS_FR_ZENOA", "KTR_ODT")


def require(condition, line, message):
    if not condition:
        sys.exit(f"line {line}: {message}")


def read_cases(guide):
    """The code blocks; outputs are {(language, file): (line, text)}."""
    text = guide.read_bytes().decode()
    cases, named = [], {}
    for fence in FENCE.finditer(text):
        language, mark, block = fence.groups()
        line = text.count("\n", 0, fence.start(3)) + 1
        if language == "cpp" and CODE.fullmatch(mark):
            kind, _, name = mark.partition("=")
            require(name not in named, line, "a name is used twice")
            cases.append(SimpleNamespace(kind=kind, name=name, line=line, code=block, outputs={}))
            named.update({name: cases[-1]} if name else {})
        elif language in ("html", "text") and (output := OUTPUT.fullmatch(mark)):
            name, file, no_eol = output.groups()
            require(name in named, line, "output without its code above")
            require((language, file) not in named[name].outputs, line, "an output is there twice")
            named[name].outputs[language, file] = line, block[:-1] if no_eol else block
        else:
            require(language in ("sh", "cmake"), line, f"not a mark: {language} {mark}")
    require(named and not re.search("```|~~~", FENCE.sub("", text)), 1, "no code or a stray fence")
    for case in named.values():
        wanted = {("html", None), ("text", None)} if case.kind == "example" else set()
        require(case.outputs and wanted <= case.outputs.keys(), case.line, "an output is missing")
    return cases


def generate(guide, directory):
    source, table = '#include "GuideExamples.h"\n', ""
    for case in read_cases(guide):
        code = f'#line {case.line} "{guide}"\n{case.code}'
        if case.kind == "program":
            (directory / f"{case.name}.cpp").write_bytes(code.encode())
        elif case.kind == "declare":
            source += code
        else:
            end = "Publish(report);\n" if case.kind == "example" else ""
            function = f"Run_{case.name}(VORKTRReportingBuffer& report)"
            source += f"static void {function}\n{{\n{code}{end}}}\n"
            table += f'{{"{case.name}", &Run_{case.name}}},\n'
    source += f"const std::map<std::string, GuideExample> GuideExamples = {{\n{table}}};\n"
    (directory / "examples.cpp").write_bytes(source.encode())


def differences(case, programs):
    command = [programs / "guide_examples", case.name]
    if case.kind == "program":
        command = [programs / f"guide_{case.name}"]
    environment = {name: value for name, value in os.environ.items() if name not in SETTINGS}
    environment["KTRReportODT"] = "1"
    with tempfile.TemporaryDirectory() as directory:
        printed = subprocess.run(command, cwd=directory, env=environment, timeout=60, check=True,
                                 stdout=subprocess.PIPE).stdout
        for (language, file), (line, shown) in case.outputs.items():
            page = Path(directory, file or "report/index.html")
            actual = printed if language == "text" else page.read_bytes()
            if language == "html" and not file:
                actual = BODY.search(actual)[1]
            texts = [list(map(repr, text.splitlines(True))) for text in (shown, actual.decode())]
            yield from difflib.unified_diff(*texts, f"line {line}", case.name, lineterm="")


def check(guide, programs):
    cases = [case for case in read_cases(guide) if case.name]
    sys.exit("\n".join(line for case in cases for line in differences(case, programs)) or None)


if __name__ == "__main__":
    {"generate": generate, "check": check}[sys.argv[1]](*map(Path, sys.argv[2:]))
