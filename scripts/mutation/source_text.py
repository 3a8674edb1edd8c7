"""What a C++ source looks like to the operators: where code is, where brackets match, which statements a block has.
Works on text in the project's format; it is no parser, and what it gets wrong the compiler refuses.
"""
import bisect
import re

OPENING = {")": "(", "]": "[", "}": "{"}
# What stands before the brace of a function's, lambda's or statement's body.
BODY_WORDS = re.compile(r"\b(const|noexcept|override|final|mutable|else|do|try)$")
TRAILING_RETURN = re.compile(r"\)\s*(?:const\s*|noexcept\s*|mutable\s*)*->\s*[\w:<>*&,\s]+$")
TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
      | (?P<directive>(?<=\n)[ \t]*\#(?:\\\n|[^\n])*)
      | (?P<raw>R"(?P<tag>[^(]*)\(.*?\)(?P=tag)")
      | (?P<string>"(?:\\.|[^"\\\n])*")
      | (?P<number>(?<![\w.])\d(?:[\w.]|'(?=\w))*)
      | (?P<character>'(?:\\.|[^'\\\n])+')""",
    re.VERBOSE | re.DOTALL,
)


class SourceText:
    """`code` is the text with everything that is no code blanked out, character for character; of a string its quotes
    stay. `strings` and `numbers` are (start, end) of the literals.
    """

    def __init__(self, text):
        self.text = text
        self.strings = []
        self.numbers = []
        self.code = self._blank_out()
        self.partner = self._match_brackets()
        self.blocks = self._find_blocks()
        self._line_starts = [0] + [found.end() for found in re.finditer("\n", text)]

    def line_of(self, position):
        """Counted from 1."""
        return bisect.bisect_right(self._line_starts, position)

    def in_block(self, position):
        """Whether the position lies in the body of a function."""
        return any(start < position < end for start, end in self.blocks)

    def statements(self, block):
        """(start, end) of each statement that stands directly in a block, in their order."""
        position, end = self._skip_space(block[0] + 1), block[1]
        found = []
        while position < end:
            after = self._end_of_statement(position, end)
            found.append((position, after))
            position = self._skip_space(after)
        return found

    def _blank_out(self):
        pieces, last = [], 0
        # A directive is recognised by the line feed before it; the first line has none.
        for token in TOKEN.finditer("\n" + self.text):
            start, end = token.start() - 1, token.end() - 1
            pieces.append(self.text[last:start])
            literal = self.text[start:end]
            if token["number"]:
                self.numbers.append((start, end))
                pieces.append(literal)
            elif token["string"]:
                self.strings.append((start, end))
                pieces.append('"' + "_" * (end - start - 2) + '"')
            else:
                pieces.append(re.sub(r"[^\n]", " ", literal))
            last = end
        return "".join(pieces) + self.text[last:]

    def _match_brackets(self):
        partner, open_brackets = {}, []
        for position, character in enumerate(self.code):
            if character in "([{":
                open_brackets.append(position)
            elif character in OPENING and open_brackets and self.code[open_brackets[-1]] == OPENING[character]:
                start = open_brackets.pop()
                partner[start], partner[position] = position, start
        return partner

    def _find_blocks(self):
        blocks, enclosing = [], []
        for position in sorted(self.partner):
            if self.code[position] != "{":
                continue
            while enclosing and enclosing[-1][1] < position:
                enclosing.pop()
            pair = (position, self.partner[position])
            is_block = self._opens_body(position, bool(enclosing) and enclosing[-1] in blocks)
            enclosing.append(pair)
            if is_block:
                blocks.append(pair)
        return blocks

    def _opens_body(self, position, is_in_block):
        before = self.code[:position].rstrip()
        if before.endswith(")") or BODY_WORDS.search(before) or TRAILING_RETURN.search(before[-200:]):
            return True
        if before.endswith("]") and len(before) - 1 in self.partner:
            captures = self.partner[len(before) - 1]
            return not re.search(r"\w$", before[:captures])
        return is_in_block and before.endswith((";", "}", "{", ":"))

    def _skip_space(self, position):
        return re.compile(r"\s*").match(self.code, position).end()

    def _word_at(self, position):
        return re.compile(r"\w*").match(self.code, position).group()

    def _end_of_statement(self, position, end):
        word = self._word_at(position)
        if self.code[position] == "{" and position in self.partner:
            return self.partner[position] + 1
        if word in ("if", "while", "for", "switch"):
            condition = self.code.find("(", position)
            body = self._skip_space(self.partner[condition] + 1)
            after = self._end_of_statement(body, end)
            following = self._skip_space(after)
            if word == "if" and self._word_at(following) == "else":
                return self._end_of_statement(self._skip_space(following + len("else")), end)
            return after
        if word in ("try", "catch", "do"):
            after = self._skip_space(self.partner[self.code.find("{", position)] + 1)
            if word == "do" or self._word_at(after) == "catch":
                return self._end_of_statement(after, end)
            return after
        if word in ("case", "default"):
            return re.compile(r"(?<!:):(?!:)").search(self.code, position, end).end()
        while position < end and self.code[position] != ";":
            position = self.partner.get(position, position) + 1
        return min(position + 1, end)
