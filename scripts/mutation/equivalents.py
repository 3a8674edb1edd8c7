"""The mutants that no test can kill, as docs/mutation.md names them: under a heading with the file, each a block of
kind `diff` with the lines before (-), after (+) and, where those stand more than once, the line above ( ).
"""
import re


class Change:
    """A mutant as lines, which tell it from others whatever moves above it."""

    def __init__(self, file, above, before, after):
        self.file = file
        self.above = above
        self.before = before
        self.after = after

    @classmethod
    def of(cls, mutant, text):
        first = text.rfind("\n", 0, mutant.start) + 1
        last = text.find("\n", mutant.end)
        changed = mutant.apply(text)
        before = text[first:last].split("\n")
        after = changed[first : last + len(changed) - len(text)].split("\n")
        above = text[:first].split("\n")[-2] if first > 0 else ""
        return cls(mutant.file, above, before, after)

    def is_named_by(self, other):
        """Whether another one, with or without the line above, names this one. Indentation does not count."""
        return (
            self.file == other.file
            and _words(self.before) == _words(other.before)
            and _words(self.after) == _words(other.after)
            and (not other.above or _words([self.above]) == _words([other.above]))
        )

    def shown(self):
        lines = [f" {self.above}"]
        lines += [f"-{line}" for line in self.before] + [f"+{line}" for line in self.after if line.strip()]
        return "\n".join(lines)


def _words(lines):
    return " ".join(" ".join(lines).split())


def equivalents_in(page):
    """The changes that a page names. An unreadable block is an error."""
    found, file, block = [], None, None
    for number, line in enumerate(page.splitlines(), 1):
        heading = re.fullmatch(r"#+ `([^`]+)`", line)
        if block is None and heading:
            file = heading[1]
        elif block is None and line == "```diff":
            block = []
        elif block is not None and line == "```":
            found.append(_change(file, block, number))
            block = None
        elif block is not None:
            block.append(line)
    return found


def _change(file, block, number):
    sides = {mark: [line[1:] for line in block if line[:1] == mark] for mark in "-+ "}
    if file is None or not sides["-"] + sides["+"] or sum(map(len, sides.values())) != len(block):
        raise ValueError(f"line {number}: a block of kind diff has lines with -, + or a space, under a heading with a file")
    return Change(file, sides[" "][0] if sides[" "] else "", sides["-"], sides["+"])
