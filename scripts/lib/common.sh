# shellcheck shell=bash
# shellcheck disable=SC2164 # errexit is on
# What every script of this folder shares. Sourced, never run; expects "set -euo pipefail".

repository_root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
script_name=scripts/$(basename -- "$0")
current_step="starting"

# The precompiled headers and the time macros of Qt's headers would make ccache miss every file.
export CCACHE_SLOPPINESS=${CCACHE_SLOPPINESS:-pch_defines,time_macros,include_file_mtime,include_file_ctime}
# Without a home ccache has no place of its own.
if [ -z "${CCACHE_DIR:-}" ] && [ ! -w "${HOME:-/nonexistent}" ]; then
  export CCACHE_DIR=$repository_root/build/ccache
fi

set -o errtrace
trap 'report_failed_step $?' ERR

step() {
  current_step=$1
  printf '==> %s\n' "$current_step"
}

report_failed_step() {
  # A failing command in a command substitution reaches the trap twice, inside and outside of it.
  [ "$BASH_SUBSHELL" -eq 0 ] || return 0
  printf '%s: failed with exit code %d while: %s\n' "$script_name" "$1" "$current_step" >&2
}

die() {
  printf '%s: %s\n' "$script_name" "$1" >&2
  exit 1
}

# packages_of <group>...: the names that scripts/packages.txt lists under these groups.
packages_of() {
  awk -v wanted=" $* " '
    { sub(/#.*/, ""); gsub(/[ \t]/, "") }
    /^\[.*\]$/ { listed = index(wanted, " " substr($0, 2, length($0) - 2) " "); next }
    listed && NF' "$repository_root/scripts/packages.txt"
}

as_root() {
  if [ "$(id -u)" -eq 0 ]; then
    "$@"
  else
    sudo "$@"
  fi
}

# install_packages <group>...: installs what is not there yet; touches the network only then.
install_packages() {
  step "looking for the packages to: $*"
  local -a wanted missing=()
  mapfile -t wanted < <(packages_of "$@")
  if ! command -v dpkg-query >/dev/null; then
    printf 'This system has no dpkg; it must bring the like of: %s\n' "${wanted[*]}"
    return
  fi
  local package
  for package in "${wanted[@]}"; do
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed* ]] \
      || missing+=("$package")
  done
  if [ "${#missing[@]}" -eq 0 ]; then
    return
  fi
  step "installing: ${missing[*]}"
  as_root env DEBIAN_FRONTEND=noninteractive apt-get update -qq
  as_root env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

# resolve_paths <path>...: into paths, before a script leaves the folder that they start from.
resolve_paths() {
  paths=()
  local path
  for path in "$@"; do
    paths+=("$(realpath --canonicalize-missing -- "$path")")
  done
}

# build_preset <preset> [target]...: configures and builds build/<preset>, or these targets of it.
build_preset() {
  local preset=$1
  shift
  cd -- "$repository_root"
  step "configuring build/$preset"
  cmake --preset "$preset"
  step "building build/$preset${1:+: $*}"
  cmake --build --preset "$preset" ${1:+--target "$@"}
}

local_service_of() {
  printf '%s/build/%s/tools/localservice/pursewell-local-service\n' "$repository_root" "$1"
}

# The program as build_preset <preset> left it.
program_of() {
  printf '%s/build/%s/src/core/program/pursewell\n' "$repository_root" "$1"
}
