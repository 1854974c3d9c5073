#!/bin/sh
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# Makes a patient in the application that runs (or is started by this), and exports the page on show. Needs gdbus, which
# is in the package libglib2.0-bin.
#
#     make-and-export.sh REFERENCE-ID EDD EXAMINATION-DATE BPD HC AC FL
#
# Dates are ISO days such as 2027-04-10, lengths are in mm.
set -eu
if [ $# -ne 7 ]; then
  echo "usage: $0 REFERENCE-ID EDD EXAMINATION-DATE BPD HC AC FL" >&2
  exit 2
fi

# refuse KEY EXPECTATION TEXT: ends with a sentence.
refuse() {
  echo "$1: expected $2, but \"$3\" was given" >&2
  exit 1
}

# day KEY TEXT, length KEY TEXT: all before the first call, so that a patient is made whole or not at all.
day() {
  [ "$(date -d "$2" +%F 2>/dev/null)" = "$2" ] || refuse "$1" "an ISO 8601 date such as 2027-04-10" "$2"
}
length() {
  case "$2" in
    "" | . | *[!0-9.]* | *.*.*) refuse "$1" "a length in mm such as 45.3" "$2" ;;
  esac
}
day edd "$2"
day examDate "$3"
length bpd "$4"
length hc "$5"
length ac "$6"
length fl "$7"

# call PATH METHOD ARGUMENT...: what the object at PATH answers, as gdbus writes it.
call() {
  path="$1"
  shift
  gdbus call --session --dest org.nascor.Nascor --object-path "$path" --method "$@"
}

# set_property KEY VALUE: VALUE is written as gdbus reads it, a text in quotation marks.
set_property() {
  call "$document" org.freedesktop.DBus.Properties.Set org.nascor.Document "$1" "<$2>" >/dev/null
}

# text TEXT: TEXT in quotation marks.
text() {
  printf '"%s"' "$(printf %s "$1" | sed 's/[\\"]/\\&/g')"
}

call /org/nascor/Nascor org.nascor.Application.perform "make new document" >/dev/null
# (objectpath '/org/nascor/Nascor/documents/1',)
document="$(call /org/nascor/Nascor org.nascor.Application.currentDocument | cut -d "'" -f 2)"

set_property identifier "$(text "$1")"
set_property gravida "int64 1"
set_property edd "$(text "$2")"
set_property examDate "$(text "$3")"
set_property bpd "double $4"
set_property hc "double $5"
set_property ac "double $6"
set_property fl "double $7"
set_property tabViewIndex "int64 1" # the chart of the biparietal diameter

call /org/nascor/Nascor org.nascor.Application.perform "export to file" >/dev/null
echo "$document"
