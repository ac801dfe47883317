#!/bin/sh
# Installs what was built below a folder of its own and tries what is there.
#   install_test.sh CMAKE BUILD
set -eu
cmake=$1
build=$2
id=org.tintra.Tintra
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT

fail() { echo "FAILED: $1" && exit 1; }
has() { command -v "$1" >/dev/null; }

"$cmake" --install "$build" --prefix "$prefix" >/dev/null
share=$prefix/share
for program in tintra tintra-desktop; do
    "$prefix/bin/$program" --version | grep -q "^$program [0-9]" || fail "$program says no version"
done
# The modules and the data beside the installed program are found.
"$prefix/bin/tintra" extract "$share/icons/hicolor/48x48/apps/$id.png" | grep -qi '#1f4e9c' ||
    fail "the blue of the icon is not found"
"$prefix/bin/tintra" name '#663399' | grep -qi '[a-z]' || fail "no name is found"

# What the bus is to start is there.
service=$(sed -n 's/^Exec=//p' "$share/dbus-1/services/$id.service")
[ "$service" = "$prefix/bin/tintra-desktop" ] || fail "the bus would start “$service”"

if has desktop-file-validate; then
    desktop-file-validate "$share/applications/$id.desktop"
fi
if has appstreamcli; then
    appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml"
fi
if has update-mime-database; then
    for kind in $(sed -n 's/^MimeType=//p' "$share/applications/$id.desktop" | tr ';' ' '); do
        grep -q "<mediatype>$kind</mediatype>" "$share/metainfo/$id.metainfo.xml" ||
            fail "the metainfo misses $kind"
        [ -e "$share/mime/$kind.xml" ] || [ -e "/usr/share/mime/$kind.xml" ] ||
            fail "nobody knows $kind"
    done
fi
if has xmllint; then
    xmllint --noout "$share/icons/hicolor/scalable/apps/$id.svg" \
        "$share/icons/hicolor/symbolic/apps/$id-symbolic.svg" "$share/mime/packages/$id.xml"
fi
if has man; then
    problems=$(MANROFFSEQ='' LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l \
        "$share/man/man1/tintra-desktop.1" 2>&1 >/dev/null)
    [ -z "$problems" ] || fail "the man page: $problems"
fi
