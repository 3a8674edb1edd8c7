"""Checks that linking and packing again give the same bytes, so that a package can be told by its checksum.

usage: python3 check_reproducible.py BUILD_DIR PACK_COMMAND...

The last argument of the pack command names the package.
"""
import pathlib
import sys
import tempfile

from report import Report, output_of


def main(arguments):
    if len(arguments) < 3:
        sys.exit(__doc__.strip().splitlines()[2])
    build, pack, package = arguments[0], arguments[1:-1], pathlib.Path(arguments[-1])
    report = Report(package)
    for library in sorted(pathlib.Path(build).glob("*/tavimo/Tavimo.dylib")):
        before = library.read_bytes()
        library.unlink()
        output_of("cmake", "--build", str(library.parent.parent))
        report.expect(library.read_bytes() == before, f"linked again, {library} is another")
    with tempfile.TemporaryDirectory() as folder:
        again = pathlib.Path(folder) / "again.deb"
        output_of(*pack, folder + "/root", str(again))
        report.expect(again.read_bytes() == package.read_bytes(), "packed again, it is another")
    report.end()


if __name__ == "__main__":
    main(sys.argv[1:])
