"""Checks the package's pane for the phone's Settings against the page that tells people about the settings: each has
a native row of its kind, with its choices, its default and its meaning.

usage: python3 check_settings_pane.py PACKAGE SETTINGS_PAGE
"""
import pathlib
import plistlib
import re
import sys
import tempfile

from report import Report, output_of

PANE = "Library/PreferenceLoader/Preferences/Tavimo.plist"
CELLS = {"flag": "PSSwitchCell", "choice": "PSLinkListCell", "number": "PSEditTextCell", "text": "PSEditTextCell",
         "icon": "PSEditTextCell"}


def settings_of(page):
    """The rows of the page's table: key, meaning, type, range, default."""
    rows = re.findall(r"^\| `(\w+)` \| (.*?) \| (\w+) \| (.*?) \| (.*?) \|$", page.read_text(), re.MULTILINE)
    if len(rows) != 21:
        sys.exit(f"{page}: {len(rows)} settings, not 21")
    return rows


def value_of(kind, text, choices):
    if kind == "flag":
        return text == "on"
    if kind == "choice":
        return choices[text]
    if kind == "number":
        return int(text)
    return "" if text == "nothing" else text


def check_row(report, setting, group, row):
    key, meaning, kind, span, default = setting
    report.expect(row.get("key") == key and row.get("defaults") == "org.quenmark.tavimoprefs", f"{key}: its row is {row}")
    report.expect(row.get("cell") == CELLS[kind], f"{key}: a {kind} is a {row.get('cell')}")
    report.expect(row.get("label", "").replace(" ", "").lower() == key.lower(), f"{key}: labelled {row.get('label')}")
    report.expect(group.get("cell") == "PSGroupCell" and group.get("footerText", "").startswith(meaning),
                  f"{key}: its meaning is not below it: {group}")
    choices = {}
    if kind == "choice":
        choices = {name: int(number) for number, name in re.findall(r"(\d+) (\S+?)(?:,|$)", span)}
        report.expect(row.get("validValues") == list(choices.values()), f"{key}: its values are {row.get('validValues')}")
        titles = [title.lower().replace(" ", "-") for title in row.get("validTitles", [])]
        report.expect(titles == list(choices), f"{key}: its titles are {titles}")
        report.expect(row.get("detail") == "PSListItemsController", f"{key}: its list does not open")
    report.expect(row.get("isNumeric", False) == (kind == "number"), f"{key}: isNumeric is {row.get('isNumeric')}")
    wanted = value_of(kind, default, choices)
    found = row.get("default")
    report.expect(type(found) is type(wanted) and found == wanted, f"{key}: its default is {found!r}, not {wanted!r}")


def main(arguments):
    if len(arguments) != 2:
        sys.exit(__doc__.strip().splitlines()[-1])
    package, page = arguments[0], pathlib.Path(arguments[1])
    report = Report(package)
    with tempfile.TemporaryDirectory() as folder:
        output_of("dpkg-deb", "--extract", package, folder)
        pane = plistlib.loads((pathlib.Path(folder) / PANE).read_bytes())
    report.expect(pane["entry"] == {"cell": "PSLinkCell", "label": "Tavimo", "icon": "Tavimo.png"}, "its entry is another")
    settings, items = settings_of(page), pane["items"]
    report.expect(len(items) == 2 * len(settings), f"{len(items)} rows and groups for {len(settings)} settings")
    for setting, group, row in zip(settings, items[::2], items[1::2]):
        check_row(report, setting, group, row)
    report.end()


if __name__ == "__main__":
    main(sys.argv[1:])
