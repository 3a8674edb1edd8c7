# Shared by the scripts in this folder, which source it after setting the shell's strict mode. It defines
# functions, goes to the top of the checkout, sets the compiler cache up, and does nothing else.

cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Compiling goes through ccache where it is installed; the environment may name another launcher, or none. Paths
# are seen from the checkout, so that a fresh clone finds what another one compiled.
if command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
  export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
fi

# fail CODE MESSAGE...: says what is wrong and ends the script; 1 is "could not do it", 2 "wrong use".
fail() {
  local -r code=$1
  shift
  echo "$(basename "$0"): $*" >&2
  exit "$code"
}

# usage: prints the comment that opens the script, from its second line to the first line that is no comment.
usage() {
  sed -n '2,/^[^#]/{s/^# \{0,1\}//p}' "scripts/$(basename "$0")"
}

# usage_error ARGUMENT: an argument that the script does not know.
usage_error() {
  fail 2 "unknown argument '$1'; try scripts/$(basename "$0") --help"
}

# value_of OPTION [VALUE...]: prints the value that follows an option; called with all remaining arguments.
value_of() {
  (($# > 1)) || fail 2 "$1 needs a value; try scripts/$(basename "$0") --help"
  echo "$2"
}

# check_preset NAME
check_preset() {
  case "$1" in
    release | debug | asan | clang | device) ;;
    *) fail 2 "there is no preset '$1'; choose release, debug, asan, clang or device" ;;
  esac
}

# build_preset NAME [TARGET...]: configures and builds; without targets, everything.
build_preset() {
  local -r preset=$1
  shift
  cmake --preset "$preset"
  cmake --build --preset "$preset" ${@:+--target "$@"}
}

# source_files: every C++ file of the project, one a line.
source_files() {
  find contract platform tavimo phone device tests benchmarks fuzz -name '*.cpp' -o -name '*.h' | sort
}
