# SPDX-FileCopyrightText: 2026 The Nascor developers
# SPDX-License-Identifier: MIT

# GNU parallel, and xargs.
. "$(dirname "$0")/common.sh"
same_rows "$scripts/xargs.sh" clinic 2 --fixed
same_rows "$scripts/parallel.sh" clinic 2 --fixed
