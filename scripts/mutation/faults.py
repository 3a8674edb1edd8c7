"""Deliberate faults, each one small change of a C++ source, of the kinds that people make."""
import dataclasses
import re

from source_text import SourceText

SWAPPED_SYMBOLS = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
    "&&": ("||",), "||": ("&&",),
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",), "+=": ("-=",), "-=": ("+=",),
}
# The project's format puts a space on both sides of an operator, and on one at most of a bracket or a reference.
SYMBOL = re.compile(r"(?<= )(<=|>=|<|>|==|!=|&&|\|\||\+=|-=|[-+*/%])(?=[ \n])")
SWAPPED_WORDS = {
    "true": "false", "false": "true", "break": "continue", "continue": "break", "++": "--", "--": "++",
    "std::min": "std::max", "std::max": "std::min", "std::min_element": "std::max_element",
    "std::max_element": "std::min_element",
}
WORD = re.compile(r"(?<![\w:])(true|false|break|continue|std::min_element|std::max_element|std::min|std::max)\b|\+\+|--")
NUMBER = re.compile(r"(?P<digits>0[xX][\da-fA-F']+|[\d']+)(?P<rest>\.[\d']*)?(?P<suffix>[a-zA-Z]*)$")
NOTHING = ("nullptr", "{}", "false", "0", "std::nullopt", '""', "")
CONDITION_VARIABLE = re.compile(r"(?:const\s+)?(?:auto|[\w:]+(?:<[^;=]*>)?)(?:\s*[*&]\s*|\s+)(?:const\s+)?(\w+)\s*=[^=]")
DECLARATION = re.compile(r"(?:static |const |constexpr |auto\b|[\w:]+(?:<[^;=()]*>)?[*&]*\s+(?:const\s+)?\w+\s*[=;({])")
NO_DECLARATION = re.compile(r"(?:return|throw|delete|case|goto|else|co_\w+)\b")
# Statements that may not change places: nothing after them runs, or they are none.
FIXED_STATEMENT = re.compile(r"(return|throw|break|continue|case|default|using|static_assert)\b")
CALL = re.compile(r"(?:\b\w+|>)\(")
NO_CALL = re.compile(r"\b(if|while|for|switch|return|sizeof|decltype|catch|min|max|alignof)\($")


@dataclasses.dataclass(frozen=True)
class Mutant:
    """One change: text[start:end] becomes `replacement`."""

    file: str
    line: int
    operator: str
    start: int
    end: int
    replacement: str

    def apply(self, text):
        return text[: self.start] + self.replacement + text[self.end :]


def mutants_of(file, text):
    """Every mutant of a source, in the order of the text; two that lead to the same text count once."""
    source = SourceText(text)
    found = {}
    for operator in OPERATORS:
        for start, end, replacement in operator(source):
            name = operator.__name__.replace("_", " ")
            mutant = Mutant(file, source.line_of(start), name, start, end, replacement)
            changed = mutant.apply(text)
            if changed != text:
                found.setdefault(changed, mutant)
    return sorted(found.values(), key=lambda mutant: (mutant.start, mutant.end, mutant.replacement))


def swapped_operator(source):
    for symbol in SYMBOL.finditer(source.code):
        for replacement in SWAPPED_SYMBOLS[symbol[1]]:
            yield *symbol.span(1), replacement


def swapped_word(source):
    for word in WORD.finditer(source.code):
        yield *word.span(), SWAPPED_WORDS[word[0]]


def changed_number(source):
    for start, end in source.numbers:
        number = NUMBER.match(source.text[start:end])
        if number is None:
            continue
        digits = number["digits"].replace("'", "")
        is_octal = len(digits) > 1 and digits.isdigit() and digits.startswith("0")
        value = int(digits, 8 if is_octal and not number["rest"] else 10 if digits.isdigit() else 16)
        for other in (value + 1, value - 1):
            shown = hex(other) if digits[:2] in ("0x", "0X") else oct(other).replace("o", "") if is_octal else str(other)
            yield start, end, shown + (number["rest"] or "") + number["suffix"]


def changed_string(source):
    """Keys, selectors, names and formats. A text with a space is for people: its words are no behaviour."""
    for start, end in source.strings:
        content = source.text[start + 1 : end - 1]
        if " " not in content:
            yield start, end, f'"{content}X"'


def negated_condition(source):
    for head in re.finditer(r"\b(?:if|while)(?: constexpr)? \(", source.code):
        opening = head.end() - 1
        start, end = opening + 1, source.partner[opening]
        start += source.code[start:end].rfind(";") + 1
        # A lone comparison or negation is turned round by its own operator.
        if re.fullmatch(r"\s*(![\w:]+(\([^()]*\))?|[^&|]* [=!]= [^&|]*)", source.code[start:end]):
            continue
        variable = CONDITION_VARIABLE.match(source.code[start:end].lstrip())
        if variable:
            yield end, end, f"; !{variable[1]}"
        else:
            yield start, end, f"{' ' if source.code[start] == ' ' else ''}!({source.text[start:end].strip()})"


def dropped_negation(source):
    for negation in re.finditer(r"!(?=[\w(:])", source.code):
        yield *negation.span(), ""


def exchanged_choices(source):
    for question in re.finditer(r" \?\s", source.code):
        middle = _end_of_choice(source, question.end())
        if source.code[middle : middle + 1] != ":":
            continue
        end = _end_of_choice(source, middle + 1)
        first, second = source.text[question.end() : middle].strip(), source.text[middle + 1 : end].strip()
        yield question.end(), end, f"{second} : {first}"


def _end_of_choice(source, position):
    while position < len(source.code):
        character = source.code[position]
        if source.code.startswith("::", position):
            position += 1
        elif character in ":,;)]}":
            break
        position = source.partner.get(position, position) + 1 if character in "([{" else position + 1
    return position


def default_return(source):
    for found in re.finditer(r"\breturn\s", source.code):
        end = found.end()
        while end < len(source.code) and source.code[end] != ";":
            end = source.partner.get(end, end) + 1
        if source.text[found.end() : end].strip() not in NOTHING:
            yield found.end(), end, "{}"


def removed_statement(source):
    for block in source.blocks:
        for start, end in source.statements(block):
            code = source.code[start:end]
            if re.match(r"case\b|default\b|using\b|static_assert\b", code):
                continue
            # Without a declaration whose name is used, or a function's last return, nothing compiles.
            if _uses(source.code[end : block[1]], _declared_name(code)):
                continue
            if code.startswith("return ") and not source.code[end : block[1]].strip() and not _is_conditional(source, block):
                continue
            yield start, end, ""


def exchanged_statements(source):
    for block in source.blocks:
        statements = source.statements(block)
        for (start, end), (next_start, next_end) in zip(statements, statements[1:]):
            first, second = source.code[start:end], source.code[next_start:next_end]
            if FIXED_STATEMENT.match(first) or FIXED_STATEMENT.match(second):
                continue
            if (_declared_name(first) and _declared_name(second)) or _uses(second, _declared_name(first)):
                continue
            text = source.text
            yield start, next_end, text[next_start:next_end] + text[end:next_start] + text[start:end]


def _declared_name(code):
    """The name that a statement declares, or none."""
    if not DECLARATION.match(code) or NO_DECLARATION.match(code):
        return None
    return re.match(r"[^=({;]*?(\w+|\])\s*[=({;]", code)[1]


def _uses(code, name):
    return name is not None and re.search(rf"\b{re.escape(name)}\b", code) is not None


def _is_conditional(source, block):
    before = source.code[: block[0]].rstrip()
    if not before.endswith(")"):
        return before.endswith(("else", ":"))
    head = source.code[: source.partner[len(before) - 1]]
    return re.search(r"\b(if|if constexpr|for|while|switch) $", head) is not None


def exchanged_arguments(source):
    for call in CALL.finditer(source.code):
        opening = call.end() - 1
        if opening not in source.partner or NO_CALL.search(call[0]) or not source.in_block(opening):
            continue
        arguments = _arguments(source, opening)
        for (start, end), (next_start, next_end) in zip(arguments, arguments[1:]):
            text = source.text
            # A literal text and an object never fit in each other's place.
            if (text[start] == '"') == (text[next_start] == '"'):
                yield start, next_end, text[next_start:next_end] + text[end:next_start] + text[start:end]


def _arguments(source, opening):
    """(start, end) of each argument of the call whose parenthesis opens here, without the space around it."""
    spans, start, position, angles = [], opening + 1, opening + 1, 0
    while position <= source.partner[opening]:
        character = source.code[position]
        if position == source.partner[opening] or (character == "," and angles == 0):
            text = source.text[start:position]
            spans.append((start + len(text) - len(text.lstrip()), start + len(text.rstrip())))
            start = position + 1
        elif character == "<" and re.match(r"\w<[\w\"]", source.code[position - 1 : position + 2]):
            angles += 1
        elif character == ">" and angles > 0 and source.code[position - 1] != "-":
            angles -= 1
        position = source.partner[position] + 1 if character in "([{" and position in source.partner else position + 1
    return spans


OPERATORS = (
    swapped_operator, swapped_word, changed_number, changed_string, negated_condition, dropped_negation,
    exchanged_choices, default_return, removed_statement, exchanged_statements, exchanged_arguments,
)
