#!/bin/sh
# Kills a program amid a stream of changes, many times at random moments, and starts it again: every
# record is whole, and no change is lost but those of the last 0.3 s and of the time of one write.
#   kill_test.sh WORKER [KILLS [CHAINS [MILLISECONDS FOR ONE WRITE]]]
# The chains run side by side, each in its own folder.
set -u
worker=$1
kills=${2:-300}
chains=${3:-10}
write=${4:-400}
delay=300 # of saving, in milliseconds

below() { # COUNT: a random number from 0
    echo $(($(od -An -N2 -tu2 /dev/urandom) % $1))
}

# What must be on the disk: the last change that was made so long before the end. Prints it and the
# last change of all.
expected() { # OUTPUT END
    awk -v latest="$(($2 - delay - write))" '
        NF == 3 && $3 <= latest { must = $2 }
        NF == 3 { last = $2 }
        END { print must + 0, last + 0 }' "$1"
}

# Milliseconds between the first change that is lost and the end; 0 when none is.
lost() { # OUTPUT END KEPT
    awk -v end="$2" -v kept="$3" '
        NF == 3 && $2 > kept { print end - $3; found = 1; exit }
        END { if (!found) print 0 }' "$1"
}

chain() { # NAME KILLS
    folder=$scratch/$1
    mkdir "$folder"
    before=0
    newest=0 # the later of the two records, which need not have been written together
    most=0
    kill=0
    while [ "$kill" -lt "$2" ]; do
        kill=$((kill + 1))
        below 60000 | sed 's/^/stream /' >"$folder/commands"
        "$worker" "$folder" <"$folder/commands" >"$folder/out" &
        pid=$!
        sleep "$(printf '%d.%03d' $(($(below 16) / 10)) "$(below 1000)")"
        end=$(date +%s%3N)
        kill -KILL "$pid"
        wait "$pid" 2>/dev/null

        found=$(echo seen | "$worker" "$folder" 2>&1)
        set -- "$1" "$2" $(expected "$folder/out" "$end")
        must=$3
        last=$4
        [ "$must" -gt "$before" ] || must=$before
        [ "$last" -gt "$newest" ] || last=$newest
        echo "$found" | awk -v must="$must" -v last="$last" '
            $1 == "primary" { fits = $2 >= must && $2 <= last && $4 >= must && $4 <= last; before = $2 }
            $1 != "primary" { wrong = 1 }
            END { exit !fits || wrong }' || {
            echo "FAILED: chain $1, kill $kill: from $must to $last expected, found: $found"
            return 1
        }
        before=$(echo "$found" | awk '{ print ($2 < $4) ? $2 : $4 }')
        newest=$(echo "$found" | awk '{ print ($2 > $4) ? $2 : $4 }')
        gap=$(lost "$folder/out" "$end" "$before")
        [ "$gap" -le "$most" ] || most=$gap
        if find "$folder" -name '*damaged*' | grep .; then return 1; fi
    done
    echo "$2 kills, $before changes kept, none lost from more than $most ms before"
}

scratch=$(mktemp -d)
pids=
number=0
while [ "$number" -lt "$chains" ]; do
    chain "$number" $(((kills + number) / chains)) &
    pids="$pids $!"
    number=$((number + 1))
done
status=0
for pid in $pids; do
    wait "$pid" || status=1
done
rm -rf "$scratch"
exit $status
