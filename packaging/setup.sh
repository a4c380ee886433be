# Shared by ./run and ./test: what they say, and the packages that they need. Source it from the project's folder.

say() { printf '== %s\n' "$*"; }
fail() {
  printf '== FAILED: %s\n' "$*" >&2
  exit 1
}

# Installs the Debian packages of packaging/debian-packages.txt that are missing.
install_packages() {
  command -v dpkg-query >/dev/null || fail "this needs Debian 12 (no dpkg here)"
  local missing=() name
  while read -r name; do
    dpkg-query -W -f='${Status}' "$name" 2>/dev/null | grep -q 'ok installed' || missing+=("$name")
  done < <(grep -vE '^\s*(#|$)' packaging/debian-packages.txt)
  [ ${#missing[@]} -eq 0 ] && return
  local root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "as root or with sudo, please: these packages are missing: ${missing[*]}"
    root=(sudo)
  fi
  say "installing ${#missing[@]} Debian packages: ${missing[*]}"
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq || fail "apt-get update"
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" \
    >/tmp/kestrelix-apt.$$.log 2>&1 || { tail -20 /tmp/kestrelix-apt.$$.log; fail "apt-get install"; }
  rm -f /tmp/kestrelix-apt.$$.log
}

# build PRESET [targets...]: configures once and builds.
build() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || say "configuring the $preset preset"
  cmake --preset "$preset" >/tmp/kestrelix-cmake.$$.log 2>&1 || { cat /tmp/kestrelix-cmake.$$.log; fail "cmake"; }
  rm -f /tmp/kestrelix-cmake.$$.log
  say "building the $preset preset (from nothing this takes some minutes)"
  cmake --build --preset "$preset" ${1:+--target "$@"} || fail "the build of the $preset preset"
}
