# SPDX-FileCopyrightText: 2026 The Contact Plugin Authors
# SPDX-License-Identifier: LGPL-2.1-or-later
#
# awk -v out=FOLDER -f extract.awk PAGE: writes each code block of the page that follows a line "File `NAME`"
# or "In `NAME`" to FOLDER: under NAME without its folder, or with "/" replaced by "_", respectively.
/^(File|In) `/ {
    split($0, parts, "`")
    name = parts[2]
    if ($1 == "File")
        sub(/^.*\//, "", name)
    else
        gsub(/\//, "_", name)
}
/^```/ {
    if (inside) {
        close(path)
        inside = 0
        name = ""
    } else if (name != "") {
        path = out "/" name
        printf "" > path
        inside = 1
    }
    next
}
inside { print > path }
