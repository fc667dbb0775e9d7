#!/bin/sh
# Runs a command on a session bus of its own with an unlocked, empty keyring; both end with it.
set -eu
home=$(mktemp -d)
trap 'rm -rf "$home"' EXIT
trap 'exit 143' TERM INT
export HOME="$home" XDG_DATA_HOME="$home/data" XDG_RUNTIME_DIR="$home/run" XDG_CACHE_HOME="$home/cache"
mkdir -m 700 "$XDG_RUNTIME_DIR"
dbus-run-session -- sh -c '
  printf secret | gnome-keyring-daemon --unlock --components=secrets >/dev/null 2>&1
  exec "$@"' sh "$@"
