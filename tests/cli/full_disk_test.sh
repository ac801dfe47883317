#!/bin/sh
# On a disk that is really full, and in a folder that is really read-only (file modes do not stop
# root), a conversion fails in one line, the old file stays and no temporary file is left. Needs a
# mount of its own; skipped where the machine allows none.
set -u
tintra=$1

if [ "${2:-}" != inside ]; then
    unshare -rm true 2>/dev/null || exit 77
    exec unshare -rm "$0" "$tintra" inside
fi

folder=$(mktemp -d)
mount -t tmpfs -o size=64k tmpfs "$folder" 2>/dev/null || exit 77
failures=0
check() { # DESCRIPTION EXPECTED ACTUAL
    if [ "$2" != "$3" ]; then
        printf 'FAILED: %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
        failures=$((failures + 1))
    fi
}

printf ':root { --a: #010203; --b: #040506; }' >"$folder/in.css"
printf 'old' >"$folder/out.png"
dd if=/dev/zero of="$folder/filler" bs=1k count=64 2>/dev/null

message=$("$tintra" convert "$folder/in.css" -o "$folder/out.png" --force 2>&1)
check "status on a full disk" 1 $?
check "message on a full disk" "tintra: $folder/out.png: No space left on device" "$message"
check "the old file" old "$(cat "$folder/out.png")"
"$tintra" convert "$folder/in.css" -o "$folder/new.png" 2>/dev/null
check "no part of a new file" "" "$(ls "$folder/new.png" 2>/dev/null)"
check "no temporary file" "" "$(find "$folder" -name '.tintra*')"

mount -o remount,ro "$folder"
message=$("$tintra" convert "$folder/in.css" -o "$folder/out.png" --force 2>&1)
check "status in a read-only folder" 1 $?
check "message in a read-only folder" "tintra: $folder/out.png: Read-only file system" "$message"
check "the old file, still" old "$(cat "$folder/out.png")"

umount "$folder" && rmdir "$folder"
[ "$failures" -eq 0 ]
