# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Every command that README.md and the pages of docs show behind "$ " works as it is written, and says what stands under it. A line
# "..." stands for any lines. The commands of a page run one after the other in one shell, in a folder with the files
# that the page speaks of.
. "$(dirname "$0")/common.sh" "$@"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
export TZ=UTC QT_QPA_PLATFORM=offscreen XDG_CONFIG_HOME="$work/config" XDG_STATE_HOME="$work/state" XDG_RUNTIME_DIR="$work"
export PATH="$build/bin:$PATH"

# The files that the pages speak of.
files() {
  mkdir -p "$work/files/resources"
  cd "$work/files"
  cp -r "$root/resources/samples" resources/
  cp "$root/resources/samples/twins.nascor" .
  printf '{"edd":"2027-04-10","examinations":[{"examDate":"2026-10-24","measurements":[{}]},{"examDate":"2026-12-19",%s}]}' \
    '"measurements":[{"bpd":250}]' | nascor-cli make - >wide.nascor
  printf '{"examinations":[{},{},{"measurements":[{"bpd":"45"}]}]}' >patient.json
  printf '{\n "gravida": 1,\n "standard": x\n}' >broken.json
}

# is_like SHOWN SAID: whether the lines are the same, "..." standing for any.
is_like() {
  local pattern="" line
  while IFS= read -r line; do
    if [[ "$line" == "..." ]]; then
      pattern+="*"
    else
      pattern+="${line//[\\\*\?\[]/\\&}"$'\n'
    fi
  done <<<"$1"
  # shellcheck disable=SC2053 # a pattern it is
  [[ "$2"$'\n' == $pattern ]]
}

# try PAGE COMMAND SHOWN: runs one command, in this shell.
try() {
  local status=0 said
  # Without the application there is nothing that paints pages.
  [[ "$2" != "nascor-cli export "* || "$2" == *" --format "@(sr|fhir)* || -x "$build/bin/nascor" ]] || return 0
  checks=$((checks + 1))
  # Nor, without DCMTK, anything that reads and writes reports.
  [[ "$2" != "nascor-cli import "* && "$2" != *" --format sr"* ]] ||
    [[ -n "$(find "$build" -name nascor-dicom.so -print -quit)" ]] || return 0
  # Nor, without its network, anything that speaks to a server.
  [[ "$2" != "nascor-cli server "* ]] || [[ -n "$(find "$build" -name nascor-dicom-net.so -print -quit)" ]] || return 0
  eval "$2" >"$work/said" 2>&1 </dev/null || status=$?
  said="$(<"$work/said")"
  if [[ -z "$3" ]]; then
    ((status == 0)) || wrong "$1: \`$2\` ends with $status and says: $said"
  elif ! is_like "$3" "$said"; then
    wrong "$1: \`$2\` says:"$'\n'"$said"
  fi
}

# page NAME: tries each command of a page. One that goes on in the next line ends there with a backslash.
page() {
  local line command="" shown=""
  while IFS= read -r line || [[ -n "$line" ]]; do
    if [[ "$line" == '    $ '* || ("$line" != "    "* && -n "$line") ]]; then
      [[ -z "$command" ]] || try "$1" "$command" "${shown%%+($'\n')}"
      command="" shown=""
      [[ "$line" != '    $ '* ]] || command="${line:6}"
    elif [[ -n "$command" && "$command" == *\\ ]]; then
      command="${command%\\} ${line##+( )}"
    elif [[ -n "$command" ]]; then
      shown+="${line:4}"$'\n'
    fi
  done <"$root/$1"
  [[ -z "$command" ]] || try "$1" "$command" "${shown%%+($'\n')}"
}

shopt -s extglob
files
set +e
page README.md
page docs/command-line.md
if [[ -x "$build/bin/nascor" ]] && type -P gdbus dbus-daemon >/dev/null; then
  # A bus of the test's own, which starts the application as an installed one would be.
  mkdir -p "$work/share/dbus-1/services"
  printf '[D-BUS Service]\nName=org.nascor.Nascor\nExec="%s/bin/nascor" --service\n' "$build" \
    >"$work/share/dbus-1/services/org.nascor.Nascor.service"
  export XDG_DATA_DIRS="$work/share:/usr/local/share:/usr/share"
  { read -r DBUS_SESSION_BUS_ADDRESS; read -r bus; } < <(
    dbus-daemon --session --fork --print-address=1 --print-pid=1 2>>"$work/bus.log")
  export DBUS_SESSION_BUS_ADDRESS
  page docs/scripting.md
  nascor="$(gdbus call --session --dest org.freedesktop.DBus --object-path /org/freedesktop/DBus \
    --method org.freedesktop.DBus.GetConnectionUnixProcessID org.nascor.Nascor | tr -dc '0-9 ' | sed 's/.*32 //')"
  kill "$nascor" "$bus"
fi
pages=(README.md docs/command-line.md docs/scripting.md)
cd "$root"
shown="$(cat "${pages[@]}" | grep -c '^    \$ ')"
((checks == shown)) || [[ -z "${nascor:-}" ]] || wrong "Of $shown commands $checks were tried."
for other in $(grep -lE '^    \$ ' -- *.md docs/*.md docs/*/*.md resources/guide/*.md); do
  [[ " ${pages[*]} " == *" $other "* ]] || wrong "$other shows commands, and nothing tries them."
done
conclude
