#!/bin/sh
# On a disk that is really full, and in a folder that is really read-only (file modes do not stop
# root), work goes on with one notice, the old record stays whole, and what was made meanwhile is
# kept once there is room. Needs a mount of its own; skipped where the machine allows none.
set -u
worker=$1

if [ "${2:-}" != inside ]; then
    unshare -rm true 2>/dev/null || exit 77
    exec unshare -rm "$0" "$worker" inside
fi

folder=$(mktemp -d)
mount -t tmpfs -o size=256k tmpfs "$folder" 2>/dev/null || exit 77
failures=0
check() { # DESCRIPTION EXPECTED ACTUAL
    if [ "$2" != "$3" ]; then
        printf 'FAILED: %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
        failures=$((failures + 1))
    fi
}
run() { # the commands are on standard input
    "$worker" "$1" 2>&1
}
copies=$(mktemp -d)
full="dd if=/dev/zero of=$folder/filler bs=1k count=512 2>/dev/null; true"

check "with room" "" "$(printf 'edit 1\nkeep\n' | run "$folder")"
check "a full disk is told of once, and again after it had room" \
    "notice Your work could not be kept: No space left on device
primary 3 extra 3
notice Your work could not be kept: No space left on device
primary 5 extra 5" "$(run "$folder" <<END
sh $full
edit 2
wait 0.6
edit 3
wait 0.6
seen
sh cp -r $folder/. $copies/full
sh rm $folder/filler
edit 4
wait 0.6
sh cp -r $folder/. $copies/room
sh $full
edit 5
wait 0.6
seen
END
)"
rm "$copies/full/filler"
check "the old records, whole" "primary 1 extra 1" "$(echo seen | run "$copies/full")"
check "the records once there was room" "primary 4 extra 4" "$(echo seen | run "$copies/room")"
rm "$folder/filler"

check "a read-only folder is told of once" \
    "notice Your work could not be kept: Read-only file system
primary 7 extra 7" "$(run "$folder" <<END
sh mount -o remount,ro $folder
edit 6
wait 0.6
edit 7
wait 0.6
seen
END
)"
check "the old records, still" "primary 4 extra 4" "$(echo seen | run "$folder")"

umount "$folder" && rmdir "$folder"
rm -rf "$copies"
[ "$failures" -eq 0 ]
