# The emulated phone, for the scripts that use it, which source this after lib.sh: where it lies, and how it is made.

# choose_emulated ARCHITECTURE: arm64 or armv7; where everything for that processor lies.
choose_emulated() {
  case "$1" in
    arm64) emulated_preset=emulated system=arm64 emulator=qemu-aarch64 ;;
    armv7) emulated_preset=emulated-32 system=armel emulator=qemu-arm ;;
  esac
  readonly emulated_architecture=$1 emulated_preset system emulator
  readonly emulated=build/$emulated_preset
  readonly emulated_root=$emulated/root
  readonly emulated_symbols=build/device/device/$1/tavimo/Tavimo.dylib
}

readonly emulated_plugin=build/device/device/Tavimo.dylib

# What the stand-in phone is built with and drawn with, for the phone's processor. These packages cannot be installed
# beside this machine's own, so they are laid out in a folder; nothing of them is run but by qemu.
readonly packages=(
  libc6-dev libstdc++-12-dev libobjc-12-dev libgnustep-base-dev
  libplist-dev libsqlite3-dev libical-dev libicu-dev libcctz-dev tzdata
  libcairo2-dev libpango1.0-dev libfontconfig-dev libjpeg-dev libpng-dev libexif-dev
  fonts-inter fonts-noto-core fonts-noto-color-emoji fonts-noto-cjk
  libcli11-dev nlohmann-json3-dev libgtest-dev
)

# Lays the root out, once for all checkouts on this machine: it is the same for each.
make_root() {
  local -r kept=${XDG_CACHE_HOME:-$HOME/.cache}/tavimo-$emulated_preset
  local list
  list=$(IFS=, && echo "${packages[*]}")
  if [[ $(cat "$kept/packages" 2>/dev/null) != "$list" ]]; then
    echo "laying out the libraries for $emulated_architecture in $kept (about 800 MB, once)" >&2
    rm -rf "$kept"
    mkdir -p "$kept"
    mmdebstrap --quiet --architectures="$system" --variant=extract --include="$list" bookworm "$kept/root" >"$kept/log" 2>&1 ||
      fail 1 "mmdebstrap could not lay them out; $kept/log has its words"
    echo "$list" >"$kept/packages"
  fi
  ln --symbolic --force --no-dereference "$kept/root" "$emulated_root"
}

# Brings the package up to date with the sources: it is what runs. Only the steps that take their time are shown.
make_plugin() {
  local -r log=$emulated/package.log
  scripts/package 2>&1 | tee "$log" | { grep --line-buffered '^\[.*\] \(Building\|Linking\)\|^fetching' || true; } >&2 ||
    fail 1 "the package could not be built; $log has its words"
}

# prepare_emulated TARGET...: everything that has to be there, quietly when it is.
prepare_emulated() {
  scripts/setup device "$emulated_preset"
  mkdir -p "$emulated"
  make_plugin
  make_root
  cmake --preset "$emulated_preset" >"$emulated/configure.log" 2>&1 || fail 1 "cmake failed; $emulated/configure.log has its words"
  cmake --build --preset "$emulated_preset" --target "$@"
}
