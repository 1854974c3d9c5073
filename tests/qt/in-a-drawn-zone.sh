#!/bin/bash
# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# in-a-drawn-zone.sh COMMAND...: runs a command in a time zone drawn by lot, and prints which.
# NASCOR_TEST_ZONE=ZONE in the environment takes that one.
zones=(America/New_York America/Los_Angeles America/St_Johns America/Sao_Paulo Atlantic/Azores UTC Europe/Paris Asia/Kolkata)
export TZ="${NASCOR_TEST_ZONE:-${zones[RANDOM % ${#zones[@]}]}}"
echo "Time zone drawn: $TZ"
exec "$@"
