"""Checks the package: its files with their rights, its control fields, and that the library in it is the one that was
built.

usage: python3 check_package.py PACKAGE VERSION LIBRARY SLICE...
"""
import pathlib
import plistlib
import re
import sys
import tempfile

from report import Report, output_of

PLUGINS = "Library/MobileSubstrate/DynamicLibraries"
PANES = "Library/PreferenceLoader/Preferences"
FILES = {f"{PLUGINS}/Tavimo.dylib": "-rwxr-xr-x", f"{PLUGINS}/Tavimo.plist": "-rw-r--r--",
         f"{PANES}/Tavimo.plist": "-rw-r--r--", f"{PANES}/Tavimo.png": "-rw-r--r--",
         f"{PANES}/Tavimo@2x.png": "-rw-r--r--", f"{PANES}/Tavimo@3x.png": "-rw-r--r--"}
ICON_SIDE = 29


def check_files(report, package):
    listing = re.findall(r"^(\S+) (\S+) .*? \./(\S*)$", output_of("dpkg-deb", "--contents", package), re.MULTILINE)
    files = {name: rights for rights, _, name in listing if not name.endswith("/") and name}
    report.same("files", files.items(), FILES.items())
    report.same("owners", {owner for _, owner, _ in listing}, {"root/root"})


def check_control(report, package, version):
    fields = dict(re.findall(r"^(\S+): (.*)$", output_of("dpkg-deb", "--field", package), re.MULTILINE))
    for field, value in {"Package": "org.quenmark.tavimo", "Version": version, "Architecture": "iphoneos-arm",
                         "Section": "Tweaks"}.items():
        report.expect(fields.get(field) == value, f"{field} is {fields.get(field)}, not {value}")
    report.same("dependencies", re.split(", ", fields.get("Depends", "")),
                {"mobilesubstrate", "preferenceloader", "firmware (>= 7.0)", "firmware (<< 10.0)"})
    members = output_of("ar", "t", package).split()
    report.expect(members == ["debian-binary", "control.tar.gz", "data.tar.gz"], f"it is packed as {members}")


def check_content(report, root, library, slices):
    packed = root / PLUGINS / "Tavimo.dylib"
    report.expect(packed.read_bytes() == pathlib.Path(library).read_bytes(), "its library is not the one that was built")
    for slice_file in slices:
        architecture = re.search(r"-(\w+)\.dylib$", slice_file)[1]
        thin = root / architecture
        output_of("llvm-lipo-14", "-thin", architecture, str(packed), "-output", str(thin))
        report.expect(thin.read_bytes() == pathlib.Path(slice_file).read_bytes(), f"its {architecture} slice is another")
    with open(root / PLUGINS / "Tavimo.plist", "rb") as file:
        filters = plistlib.load(file)
    report.expect(filters == {"Filter": {"Bundles": ["com.apple.springboard", "com.apple.mobilecal"]}},
                  f"it is loaded into {filters}")
    for scale, suffix in ((1, ""), (2, "@2x"), (3, "@3x")):
        header = (root / PANES / f"Tavimo{suffix}.png").read_bytes()[:24]
        side = (ICON_SIDE * scale).to_bytes(4, "big")
        report.expect(header == b"\x89PNG\r\n\x1a\n\0\0\0\rIHDR" + side + side, f"Tavimo{suffix}.png is no icon")


def main(arguments):
    if len(arguments) < 4:
        sys.exit(__doc__.strip().splitlines()[-1])
    package, version, library, *slices = arguments
    report = Report(package)
    check_files(report, package)
    check_control(report, package, version)
    with tempfile.TemporaryDirectory() as folder:
        output_of("dpkg-deb", "--extract", package, folder)
        check_content(report, pathlib.Path(folder), library, slices)
    report.end()


if __name__ == "__main__":
    main(sys.argv[1:])
