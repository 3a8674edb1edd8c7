"""Checks that the checks can fail and that the signer refuses what it cannot sign: a changed byte, a second signature,
a file that is no library.

usage: python3 check_tools.py SIGNED_LIBRARY
"""
import pathlib
import subprocess
import sys
import tempfile

from report import Report

HERE = pathlib.Path(__file__).parent
IDENTIFIER = "org.quenmark.tavimo"


def failure_of(script, *arguments):
    """What a script says when it fails; none when it does not."""
    done = subprocess.run([sys.executable, str(script), *map(str, arguments)], capture_output=True, text=True, check=False)
    return done.stderr if done.returncode == 1 else None


def main(arguments):
    if len(arguments) != 1:
        sys.exit(__doc__.strip().splitlines()[-1])
    signed = pathlib.Path(arguments[0]).read_bytes()
    report = Report("tools")
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "library"

        def expect_failure(content, script, words, *more):
            file.write_bytes(content)
            said = failure_of(script, file, *more)
            report.expect(said is not None and words in said, f"{script.name} said {said!r}, not \"{words}\"")

        changed = bytearray(signed)
        changed[5 * 4096 + 7] ^= 1
        expect_failure(changed, HERE / "check_signature.py", "page 5", IDENTIFIER)
        expect_failure(signed, HERE / "check_signature.py", "another name", "org.quenmark.other")
        expect_failure(signed, HERE / "../sign.py", "signed already", IDENTIFIER)
        expect_failure(b"no library", HERE / "../sign.py", "no library", IDENTIFIER)
        expect_failure(signed[:60], HERE / "../sign.py", "library", IDENTIFIER)
        expect_failure(b"", HERE / "../sign.py", "library", IDENTIFIER)
    report.end()


if __name__ == "__main__":
    main(sys.argv[1:])
