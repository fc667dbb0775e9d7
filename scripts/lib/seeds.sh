# shellcheck shell=bash
# The fuzzers' seeds are kept as text, so that they can be read and reviewed. Sourced, never run.

# write_seeds <folder> <target>: copies the seeds of a folder. One named *.escaped holds the
# escapes of printf (\xFF, \r, \0) for what plain text cannot hold; its own line ends do not count.
write_seeds() {
  local seed
  mkdir -p "$2"
  for seed in "$1"/*; do
    case $seed in
      *.escaped) printf '%b' "$(tr -d '\n' <"$seed")" >"$2/$(basename -- "$seed" .escaped)" ;;
      *) cp -- "$seed" "$2/" ;;
    esac
  done
}
