#!/bin/sh
# The program as people run it: what needs a real process, a real pipe or a real device.
set -u
tintra=$1
failures=0

check() { # DESCRIPTION EXPECTED ACTUAL
    if [ "$2" != "$3" ]; then
        printf 'FAILED: %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
        failures=$((failures + 1))
    fi
}

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

check "a colour as code" "#ff8800" "$("$tintra" code '#f80')"
check "colours a line each from standard input" "#ff0000
#0000ff" "$(printf 'red\n\n  blue\n' | "$tintra" code -)"
check "the shipped names are found" "Rebecca Purple" "$("$tintra" name rebeccapurple | sed 's/[’'\'']s//')"

# A reader that goes away ends the program quietly, even where the signal is ignored.
yes '#ff8800' | head -n 200000 >"$folder/many"
message=$( (trap '' PIPE; "$tintra" code - <"$folder/many" 2>&1 >/dev/null; echo "status $?") | tail -n 1)
check "many colours" "status 0" "$message"
quiet=$( { "$tintra" code - <"$folder/many"; echo "status $?" >&2; } 2>&1 >/dev/null | head -n 1)
check "nothing on standard error" "status 0" "$quiet"
closed=$( { (trap '' PIPE; "$tintra" code - <"$folder/many"; echo "status $?" >&2) | head -n 1 >/dev/null; } 2>&1)
check "a closed pipe" "status 0" "$closed"

# A device that takes nothing is an error in one line.
check "a full device" "tintra: standard output: No space left on device" \
    "$("$tintra" code red 2>&1 >/dev/full)"
"$tintra" code red >/dev/full 2>/dev/null
check "status of a full device" 1 $?

# Blocks of colour: never into a pipe, unless asked for.
check "no blocks into a pipe" "#ff0000" "$("$tintra" code red)"
block=$(printf '\033[48;2;255;0;0m    \033[0m #ff0000')
check "blocks when asked for" "$block" "$("$tintra" code --colour always red)"

# A folder, an unreadable file and a missing one are one line each; the rest is still read.
printf ':root { --a: #010203; }' >"$folder/good.css"
out=$("$tintra" read "$folder" "$folder/none.gpl" "$folder/good.css" 2>"$folder/errors")
check "status of a partly failed run" 1 $?
check "two failures, a line each" 2 "$(wc -l <"$folder/errors" | tr -d ' ')"
check "the good file is read" 1 "$(printf '%s\n' "$out" | grep -c '#010203')"

# Converting keeps an existing file, replaces it with --force, and leaves nothing else behind.
"$tintra" convert "$folder/good.css" -o "$folder/out.gpl"
printf 'mine' >"$folder/mine.gpl"
"$tintra" convert "$folder/good.css" -o "$folder/mine.gpl" 2>/dev/null
check "an existing file is refused" 1 $?
check "and kept" mine "$(cat "$folder/mine.gpl")"
ln -s mine.gpl "$folder/link.gpl"
chmod 640 "$folder/mine.gpl"
"$tintra" convert "$folder/good.css" -o "$folder/link.gpl" --force
check "a link's target is replaced" "GIMP Palette" "$(head -n 1 "$folder/mine.gpl")"
check "with its permissions" 640 "$(stat -c %a "$folder/mine.gpl")"
check "no temporary file is left" "" "$(find "$folder" -name '.tintra*')"

# A picture of one colour, seen by another eye, holds what the colour alone becomes.
printf '$red: #ff0000;' >"$folder/red.scss"
"$tintra" convert "$folder/red.scss" -o "$folder/red.png"
"$tintra" vision protanopia --picture "$folder/red.png" -o "$folder/seen.png"
check "a whole picture simulated" "$("$tintra" vision protanopia red)" \
    "$("$tintra" extract --json "$folder/seen.png" | sed -n 's/.*"hex": "\(.*\)".*/\1/p')"
"$tintra" vision protanopia --picture "$folder/red.scss" -o "$folder/none.png" 2>"$folder/errors"
check "what is no picture" "tintra: $folder/red.scss: could not be read as an image" \
    "$(cat "$folder/errors")"
check "writes nothing" "" "$(ls "$folder/none.png" 2>/dev/null)"

[ "$failures" -eq 0 ]
