# Copyright Corvane. MIT License.
"""A reader of C++ that knows just enough for the checkers: where code is, where comments and texts are, and which braces
belong to functions. It does not preprocess."""

import re

# Raw texts, then what ends at its line or its closing mark.
_QUIET = re.compile(
    r'R"(?P<mark>[^()\\ ]{0,16})\((?:.|\n)*?\)(?P=mark)"'
    r"|//(?:\\\n|[^\n])*"
    r"|/\*(?:.|\n)*?\*/"
    r'|"(?:\\.|[^"\\\n])*"'
    r"|(?<![0-9A-Fa-f])'(?:\\.|[^'\\\n])+'")
_DIRECTIVE = re.compile(r"^[ \t]*#(?:\\\n|[^\n])*", re.MULTILINE)


def _blank(match):
    return re.sub(r"[^\n]", " ", match.group())


def without_comments(text):
    """Comments become blanks; texts and characters stay. Every place keeps its line and column."""
    return _QUIET.sub(lambda match: _blank(match) if match.group().startswith("/") else match.group(), text)


def without_texts(text):
    """Comments, texts and characters become blanks; preprocessor lines stay."""
    return _QUIET.sub(_blank, text)


def code_of(text):
    """Comments, texts, characters and preprocessor lines become blanks of the same size."""
    return _DIRECTIVE.sub(_blank, without_texts(text))


def matching(code, position, opening="{", closing="}"):
    """Where the bracket at position is closed; the end of the text if it never is."""
    depth = 0
    for match in re.compile("[" + re.escape(opening + closing) + "]").finditer(code, position):
        depth += 1 if match.group() == opening else -1
        if depth == 0:
            return match.start()
    return len(code)


def _without(pattern, text):
    """The text without what the pattern finds, inner brackets first."""
    before = None
    while before != text:
        before = text
        text = re.sub(pattern, " ", text)
    return text


def name_of_function(head):
    """The name that stands before the first parenthesis of a block's head, or None where the block is no function."""
    plain = _without(r"<[^<>]*>", _without(r"\b(?:U[A-Z]+|alignas|decltype|__attribute__)\s*\((?:[^()]|\([^()]*\))*\)", head))
    call = re.search(r"(operator\s*[^\s\w]+|~?\w+)\s*\(", plain)
    if call is None or re.search(r"=\s*$", plain):
        return None
    # "class", as a keyword before the name, makes a scope; "struct stat Read()" is a function all the same.
    if re.search(r"^\s*(?:namespace|enum|class|union)\b", plain):
        return None
    return call.group(1)


# What may stand before a function with no semicolon in between: labels, and macros that are a line of their own.
_LINES_BEFORE = re.compile(
    r"\s*(?:(?:public|private|protected)\s*:(?!:)"
    r"|[A-Z][A-Z0-9_]+[ \t]*(?:\((?:[^()]|\((?:[^()]|\([^()]*\))*\))*\))?[ \t]*\n)(?=\s*\S)")


def _start_of_head(code, brace):
    start = max(code.rfind(mark, 0, brace) for mark in ";{}") + 1
    while _LINES_BEFORE.match(code, start, brace):
        start = _LINES_BEFORE.match(code, start, brace).end()
    return start


def functions(code):
    """Each function (name, start of its head, opening brace, closing brace) of code_of() text, lambdas left out."""
    found = []
    more = re.compile(r"\s*(?:,[^;{}]*)?\{")
    position = 0
    while True:
        brace = code.find("{", position)
        if brace < 0:
            return found
        start = _start_of_head(code, brace)
        head = code[start:brace]
        name = name_of_function(head)
        if name is None:
            # A scope's members are looked at one by one; so are an initialiser's elements, which hold no function.
            position = brace + 1
            continue
        end = matching(code, brace)
        # A constructor's members may be initialised with braces: its body is the last block that follows directly.
        while more.match(code, end + 1):
            brace = more.match(code, end + 1).end() - 1
            end = matching(code, brace)
        found.append((name, start + len(head) - len(head.lstrip()), brace, end))
        position = end + 1
