"""Where a source text can be changed, and what it then says."""

import ast
import bisect
import dataclasses
import re

SWAPS = {"==": "!=", "!=": "==", "<": "<=", ">": ">=", "<=": "<", ">=": ">", "&&": "||", "||": "&&",
         "+": "-", "-": "+", "+=": "-=", "-=": "+=", "++": "--", "--": "++", "*": "+", "/": "*",
         "and": "or", "or": "and", "in": "not in", "not in": "in", "is": "is not", "is not": "is",
         "true": "false", "false": "true", "True": "False", "False": "True"}


@dataclasses.dataclass(frozen=True)
class Site:
    """One change: the characters start to end of the text become `new`. `kind` is "condition",
    "operator", "constant" or "call"."""

    kind: str
    start: int
    end: int
    new: str


def number(digits):
    return str(int(digits) + 1)


# What stands in a C++ text and is no code; a prefix of a raw string belongs to it.
NOT_CODE = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'(?!\w)'
    r"|^[ \t]*#(?:\\\n|[^\n])*", re.DOTALL | re.MULTILINE)
STATEMENTS_THAT_CALL_NOTHING = {"return", "if", "while", "for", "switch", "catch", "else", "case", "throw",
                                "static_assert", "defined", "Q_DECLARE_TR_FUNCTIONS"}


def blanked(text):
    """The text with all that is no code as blanks, literals keeping their quotes."""
    def blank(match):
        found = match.group()
        inner = re.sub(r"[^\n]", " ", found)
        return '"' + inner[1:-1] + '"' if found[0] in "\"'R" else inner
    return NOT_CODE.sub(blank, text)


def closing(code, start):
    """The place behind the parenthesis that closes the one at `start`, or None."""
    depth = 0
    for match in re.compile(r"[()]").finditer(code, start):
        depth += 1 if match.group() == "(" else -1
        if not depth:
            return match.end()
    return None


def in_cpp(text, header):
    """The sites of a C++ text. What only declares is mostly left out, the compiler refuses the rest."""
    code = blanked(text)
    for match in re.finditer(r"\b(?:if|while) \(", code):
        end = closing(code, match.end() - 1)
        inner = code[match.end():end - 1]
        if not re.search(r"(?<![=!<>+\-])=(?!=)|;", inner):
            yield Site("condition", match.end(), end - 1, f"!({text[match.end():end - 1]})")
    for match in re.finditer(r"(?<=[^\s\"]) (==|!=|<=?|>=?|&&|\|\||[-+*/]|[-+]=)(?=\s[^\s\"])", code):
        # A text is joined, and never subtracted.
        if not (match.group(1) in "+-" and re.search(r'"_s$|"$', code[:match.start()])):
            yield Site("operator", match.start(1), match.end(1), SWAPS[match.group(1)])
    for match in re.finditer(r"\+\+|--", code):
        yield Site("operator", match.start(), match.end(), SWAPS[match.group()])
    for match in re.finditer(r"(?<![\w)!])!(?=[\w(*])", code):
        yield Site("condition", match.start(), match.end(), "")
    for match in re.finditer(r"(?<![\w.'])\d+(?![\w.'])", code):
        yield Site("constant", match.start(), match.end(), number(match.group()))
    for match in re.finditer(r"\b(?:true|false)\b", code):
        yield Site("constant", match.start(), match.end(), SWAPS[match.group()])
    if header:
        return
    for match in re.finditer(r"^ +((?:[\w:]+(?:\([^()\n]*\))?(?:\.|->))*[\w:]+)\(", code, re.MULTILINE):
        before, end = code[:match.start()].rstrip(), closing(code, match.end() - 1)
        if (re.search(r"[;{})]$|\belse$", before) and code[end:end + 1] == ";"
                and match.group(1) not in STATEMENTS_THAT_CALL_NOTHING):
            yield Site("call", match.start(1), end, "")


def in_python(text):
    """The sites of a Python text."""
    lines = [0]
    for line in text.encode().splitlines(keepends=True):
        lines.append(lines[-1] + len(line))
    characters = [0]
    for character in text:
        characters.append(characters[-1] + len(character.encode()))

    def place(line, column):
        return bisect.bisect_left(characters, lines[line - 1] + column)

    def span(node):
        return place(node.lineno, node.col_offset), place(node.end_lineno, node.end_col_offset)

    def between(left, right, pattern):
        start, end = span(left)[1], span(right)[0]
        for match in re.finditer(pattern, text[start:end]):
            word = " ".join(match.group().split())
            if word in SWAPS:
                yield Site("operator", start + match.start(), start + match.end(), SWAPS[word])

    for node in ast.walk(ast.parse(text)):
        if isinstance(node, (ast.If, ast.While, ast.IfExp)):
            start, end = span(node.test)
            yield Site("condition", start, end, f"(not ({text[start:end]}))")
        elif isinstance(node, ast.Compare):
            for left, right in zip([node.left, *node.comparators], node.comparators):
                yield from between(left, right, r"[=!<>]=|[<>]|not\s+in|is\s+not|\bin\b|\bis\b")
        elif isinstance(node, ast.BoolOp):
            for left, right in zip(node.values, node.values[1:]):
                yield from between(left, right, r"\band\b|\bor\b")
        elif isinstance(node, ast.BinOp) and not isinstance(node.op, ast.Mod):
            yield from between(node.left, node.right, r"(?<![*/])[-+*/](?![*/])")
        elif isinstance(node, ast.UnaryOp) and isinstance(node.op, ast.Not):
            yield Site("condition", span(node)[0], span(node.operand)[0], "")
        elif isinstance(node, ast.Constant) and type(node.value) in (bool, int):
            start, end = span(node)
            if isinstance(node.value, bool) or text[start:end].isdigit():
                yield Site("constant", start, end, SWAPS.get(text[start:end]) or number(text[start:end]))
        elif isinstance(node, ast.Expr) and isinstance(node.value, ast.Call):
            yield Site("call", *span(node), "pass")


def sites(path, text):
    """All sites of the file's text, in the order of the text."""
    found = in_python(text) if path.suffix == ".py" else in_cpp(text, path.suffix == ".h")
    return sorted(set(found), key=lambda site: (site.start, site.end, site.new))
