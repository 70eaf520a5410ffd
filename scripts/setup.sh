# Sourced by run and test: installs the Debian packages named as arguments that are missing.
# Says nothing and needs no network when all are there.
install_missing() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^.i' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Please install these packages first: ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}" >&2
  "${as_root[@]}" apt-get update -qq >&2 &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-svg-dev libexpat1-dev libmspack-dev
  libx11-dev fp-utils mold)
test_packages=("${build_packages[@]}" clang-format xvfb xclip openbox xdotool
  poppler-utils python3 x11-utils)

# build_preset PRESET: configures and builds it. Shows the build's output only if it fails.
build_preset() {
  local log="build/$1.log"
  mkdir -p build
  # A new source file does not bring its moc and uic runs along in an old build tree.
  find build -path "build/$1/*_autogen/timestamp" -delete
  echo "Building: $1" >&2
  if ! { cmake --preset "$1" && cmake --build --preset "$1"; } >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    echo "The $1 build failed; all of its output is in $log." >&2
    return 1
  fi
}
