# shellcheck shell=bash
# Releases from the local service: What's New at the first start of a version and the update dialog
# after it, each once; both again whenever the Help menu is asked; the notes in the user's language.

running_version=$(sed -n 's/.*kApplicationVersion{"\(.*\)"}.*/\1/p' \
  "$repository_root/src/core/Deployment.h")
newer_version=99.0.0
whats_new_title="What's New in $main_title $running_version"

chapter_updates() {
  new_household updates
  mkdir "$XDG_CONFIG_HOME/Kestrelwood"
  printf '[ui]\nlanguage=en\n' >"$XDG_CONFIG_HOME/Kestrelwood/Pursewell.conf"
  mkdir "$stage/downloads"
  start_local_service --files "$stage/downloads"
  publish_releases
  export UPDATE_BASE_URL=$service_address/downloads/pursewell/stable/
  notices_after_start
  set_preference theme dark
  no_notices_at_the_next
  help_menu_answers
  quit_program
  expect_downloads
  stop_local_service
  export UPDATE_BASE_URL=http://127.0.0.1:9/ LC_ALL=C.UTF-8
}

publish_releases() {
  local releases=$stage/downloads/pursewell
  mkdir -p "$releases"/{stable,"$running_version","$newer_version"}
  cat >"$releases/$running_version/release-notes.md" <<'MD'
## Everything in one file

- **Backups** hold the whole household. [Read more](https://www.kestrelwood.example/backup)
- Payees are remembered together with their `category`.

| Before | Now |
|---|---|
| 12 s | 3 s |

![a picture](file:///etc/hostname) <script>alert("no")</script>
MD
  printf '## Alles in einer Datei\n\n- **Sicherungen** enthalten den ganzen Haushalt.\n' \
    >"$releases/$running_version/release-notes.de.md"
  printf '## Faster imports\n\n1. Large files are read in the background.\n%s\n' \
    '2. See [the page](https://www.kestrelwood.example/new) for more.' \
    >"$releases/$newer_version/release-notes.md"
  cat >"$releases/stable/latest.json" <<JSON
{"schema": 1, "app": "pursewell", "channel": "stable", "artifacts": {"linux-x64": {
  "version": "$newer_version", "released_at": "2026-11-02T09:00:00Z", "size": 41943040,
  "url": "http://127.0.0.1:9/pursewell-$newer_version.tar.xz",
  "sha256": "$(printf 'pursewell-%s' "$newer_version" | sha256sum | cut -d ' ' -f 1)",
  "release_notes_url": "$service_address/downloads/pursewell/$newer_version/release-notes.md"}}}
JSON
}

# The program asks the environment; whether the system has that locale does not matter.
speak() {
  { export LC_ALL=$1.UTF-8; } 2>/dev/null
}

notices_after_start() {
  speak en_US
  launch
  wait_for_window "$whats_new_title"
  picture whats-new
  wait_for_window "Update available"
  picture update-available
  press Tab Tab Tab space # past the link in the notes and Download to Later
  wait_for_window "$main_title"
  xdotool search --onlyvisible --name "^$whats_new_title\$" windowactivate
  wait_for_window "$whats_new_title"
  press Escape
  wait_for_window "$main_title"
  setting_is "lastShownVersion=$running_version" || fail "the settings do not tell that the notes were shown"
  wait_for_answer "$newer_version" "SELECT value FROM preferences WHERE key = 'update_dismissed_version'"
  quit_program
}

no_notices_at_the_next() {
  speak de_DE
  start_program
  wait_until 20 "the check after the start" checks_made 2
  settle
  if xdotool search --onlyvisible --name "^(Update available|What's New in .*)$"; then
    fail "a notice was shown twice"
  fi
}

help_menu_answers() {
  press alt+h u
  wait_for_window "Update available"
  picture update-on-demand-dark
  press Escape
  wait_for_window "$main_title"
  press alt+h n
  wait_for_window "$whats_new_title"
  picture whats-new-german-dark
  press Escape
  wait_for_window "$main_title"
  rm "$stage/downloads/pursewell/stable/latest.json"
  press alt+h u
  wait_until 20 "the check of the menu" checks_made 4
  picture up-to-date-dark
}

# What of the releases was asked for, in its order.
downloads() {
  curl --silent --show-error --fail --max-time 20 "$service_address/control/requests" \
    | sed -n 's,^/downloads/pursewell/,,p'
}

checks_made() {
  [ "$(downloads | grep -c latest.json)" -eq "$1" ]
}

expect_downloads() {
  if ! diff -u --label "expected" --label "asked for" - <(downloads) <<LINES; then
$running_version/release-notes.md
stable/latest.json
$newer_version/release-notes.md
stable/latest.json
stable/latest.json
$newer_version/release-notes.de.md
$newer_version/release-notes.md
$running_version/release-notes.de.md
stable/latest.json
LINES
    fail "the program asked for something else"
  fi
}
