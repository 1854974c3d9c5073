# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# What `cmake --install` copies: the same to a prefix and in stages, to the places that pages and programs name, and
# nothing that names a folder of this machine or of the stage.
. "$(dirname "$0")/common.sh" "$@"
cmake="$3"

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
"$cmake" --install "$build" --prefix "$prefix" >"$work/log" 2>&1 || { cat "$work/log" >&2; wrong "Installing fails"; }
DESTDIR="$work/stage" "$cmake" --install "$build" --prefix /opt/nascor >"$work/log" 2>&1 ||
  { cat "$work/log" >&2; wrong "Installing in stages fails"; }

# The same files with the same permissions, but for the program's path in the bus's file, and the lists that desktops read,
# which are made where a stage is moved to.
listed() {
  (cd "$1" && find . -type f -printf '%m %s %P\n' | sort -k 3 |
    grep -v -e '/org.nascor.Nascor.service$' -e ' share/applications/mimeinfo.cache$' -e ' share/mime/[^ ]*$' &&
    find share/mime/packages -type f -printf '%m %s %P\n')
}
checks=$((checks + 1))
diff <(listed "$prefix") <(listed "$work/stage/opt/nascor") >&2 || wrong "In stages something else is installed"

# there PATH...: these files are installed, and are not empty.
there() {
  local path
  for path in "$@"; do
    checks=$((checks + 1))
    [[ -s "$prefix/$path" ]] || wrong "$path is not installed"
  done
}
documents=share/doc/nascor
there bin/nascor-cli share/man/man1/nascor-cli.1 share/bash-completion/completions/nascor-cli \
  share/zsh/site-functions/_nascor-cli share/fish/vendor_completions.d/nascor-cli.fish \
  "$documents"/{LICENSE,README.md,SECURITY.md} "$documents/resources/examples/library/main.cpp"
while IFS= read -r file; do there "$documents/$file"; done < <(cd "$root" && find docs resources/samples resources/examples -type f)

# Where the application is built.
if [[ -x "$build/bin/nascor" ]]; then
  there bin/nascor share/man/man1/nascor.1 share/applications/org.nascor.Nascor.desktop \
    share/metainfo/org.nascor.Nascor.metainfo.xml share/mime/packages/nascor.xml \
    share/icons/hicolor/scalable/apps/org.nascor.Nascor.svg share/dbus-1/interfaces/org.nascor.{Application,Document}.xml \
    "share/nascor/Nascor User Guide.html" "share/nascor/Nascor Handbook.html"
  # The bus starts the program where it is, not where it was staged.
  checks=$((checks + 2))
  grep -qxF "Exec=\"$prefix/bin/nascor\" --service" "$prefix/share/dbus-1/services/org.nascor.Nascor.service" ||
    wrong "The bus does not start $prefix/bin/nascor"
  grep -qxF 'Exec="/opt/nascor/bin/nascor" --service' "$work/stage/opt/nascor/share/dbus-1/services/org.nascor.Nascor.service" ||
    wrong "The bus does not start /opt/nascor/bin/nascor"
fi

# Programs and modules too: no source, no build folder, no stage.
checks=$((checks + 1))
named="$(grep -rlF -e "$root/" -e "$build/" -e "$work/stage" "$work/stage" || true)"
[[ -z "$named" ]] || wrong "These name a folder of this machine: $named"

# What is installed runs, and finds its modules.
checks=$((checks + 2))
"$work/stage/opt/nascor/bin/nascor-cli" report "$prefix/$documents/resources/samples/twins.nascor" >/dev/null ||
  wrong "The installed nascor-cli reads no sample"
if [[ -n "$(find "$build" -name nascor-typeset.so -print -quit)" ]]; then
  "$prefix/bin/nascor-cli" summary "$prefix/$documents/resources/samples/twins.nascor" --out "$work/summaries" &&
    [[ "$(head -c 5 "$work/summaries/twins - Summary.pdf")" == "%PDF-" ]] || wrong "The installed nascor-cli puts no summary on paper"
fi
conclude
