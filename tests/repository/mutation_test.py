"""Checks the deliberate faults of scripts/mutate: where they are put, and where not.

usage: python3 mutation_test.py SOURCE_DIR
"""
import sys
import unittest

sys.path.insert(0, sys.argv.pop(1) + "/scripts/mutation")
sys.dont_write_bytecode = True
from equivalents import Change, equivalents_in
from faults import mutants_of

SAMPLE = """\
#include <algorithm>  // a < b
#define LIMIT(a) ((a) < 1 && \\
                  true)
namespace n {
constexpr int kSizes[] = {0x1f, 1'000, 07};
/* if (false) return 5; */
template <typename T> bool any(const T&& value, int* first) { return value < *first || !value; }
int walk(int count, const char* name) {
  const char* text = "1 < 2 && true"; char brace = '{';
  if (auto found = find(name); found != nullptr && count == 3) return -1;
  while (count > 0) {
    --count;
    call(count, name);
    if (count == 7) break;
  }
  const auto later = [&](int x) { return std::min(x, count); };
  log("key");
  for (int i = 0; i < count; ++i) show(name, R"(a "raw" < text)");
  return count > 2 ? later(1) : kSizes[0];
}
}
"""


def changes(text, operator):
    """(line, what was there, what stands there now) of each mutant of an operator."""
    found = [mutant for mutant in mutants_of("a.cpp", text) if mutant.operator == operator]
    return [(mutant.line, text[mutant.start : mutant.end], mutant.replacement) for mutant in found]


class Faults(unittest.TestCase):
    def test_stand_in_code_alone(self):
        for line, _, _ in {change for operator in ("swapped operator", "swapped word", "changed number",
                                                   "removed statement") for change in changes(SAMPLE, operator)}:
            self.assertNotIn(line, (1, 2, 3, 6), "a comment or directive is no code")
        self.assertEqual([line for line, _, _ in changes(SAMPLE, "changed string")], [17], "the others are texts")
        in_line_18 = changes(SAMPLE.splitlines()[17], "swapped operator")
        self.assertEqual(len(in_line_18), 2, "< of the condition, not of the raw text")

    def test_change_one_place_each(self):
        mutants = mutants_of("a.cpp", SAMPLE)
        self.assertEqual(len({mutant.apply(SAMPLE) for mutant in mutants}), len(mutants))
        self.assertGreater(len(mutants), 60)
        for mutant in mutants:
            changed = mutant.apply(SAMPLE)
            self.assertNotEqual(changed, SAMPLE)
            self.assertTrue(changed.startswith(SAMPLE[: mutant.start]) and changed.endswith(SAMPLE[mutant.end :]))

    def test_are_of_every_kind(self):
        expected = {
            "swapped operator": [(7, "<", "<="), (7, "||", "&&"), (10, "!=", "=="), (10, "&&", "||"), (18, "<", ">=")],
            "swapped word": [(12, "--", "++"), (14, "break", "continue"), (16, "std::min", "std::max"), (18, "++", "--")],
            "changed number": [(5, "0x1f", "0x20"), (5, "1'000", "1001"), (5, "07", "06"), (10, "3", "4")],
            "changed string": [(17, '"key"', '"keyX"')],
            "negated condition": [(10, " found != nullptr && count == 3", " !(found != nullptr && count == 3)"),
                                  (11, "count > 0", "!(count > 0)")],
            "dropped negation": [(7, "!", "")],
            "exchanged choices": [(19, "later(1) : kSizes[0]", "kSizes[0] : later(1)")],
            "default return": [(10, "-1", "{}"), (16, "std::min(x, count)", "{}")],
            "removed statement": [(12, "--count;", ""), (13, "call(count, name);", ""), (14, "if (count == 7) break;", "")],
            "exchanged statements": [(12, "--count;\n    call(count, name);", "call(count, name);\n    --count;")],
            "exchanged arguments": [(13, "count, name", "name, count")],
        }
        for operator, wanted in expected.items():
            with self.subTest(operator):
                found = changes(SAMPLE, operator)
                self.assertEqual([change for change in wanted if change not in found], [])

    def test_leave_out_what_never_compiles(self):
        removed = [what for _, what, _ in changes(SAMPLE, "removed statement")]
        self.assertNotIn("return std::min(x, count);", removed)
        self.assertFalse([what for what in removed if what.startswith(("const auto later", "return count"))])
        self.assertFalse([what for _, what, _ in changes(SAMPLE, "exchanged arguments") if "int" in what])


class Equivalents(unittest.TestCase):
    def test_are_known_by_their_lines(self):
        mutant = next(m for m in mutants_of("a.cpp", SAMPLE) if m.line == 13 and m.operator == "removed statement")
        change = Change.of(mutant, SAMPLE)
        for block, is_named in (
            ("- call(count, name);", True),
            ("     --count;\n-call(count,  name);", True),
            ("     while (count > 0) {\n-    call(count, name);", False),
            ("-    call(count, name);\n+    call(name, count);", False),
        ):
            with self.subTest(block):
                [entry] = equivalents_in(f"# Page\n\n### `a.cpp`\n\n```diff\n{block}\n```\nWhy.\n")
                self.assertEqual(change.is_named_by(entry), is_named)
        [elsewhere] = equivalents_in("### `b.cpp`\n```diff\n- call(count, name);\n```\n")
        self.assertFalse(change.is_named_by(elsewhere))

    def test_unreadable_blocks_are_errors(self):
        for page in ("```diff\n-a\n```\n", "### `a.cpp`\n```diff\n```\n", "### `a.cpp`\n```diff\nab\n```\n"):
            with self.subTest(page), self.assertRaises(ValueError):
                equivalents_in(page)


unittest.main()
