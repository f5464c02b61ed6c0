#!/bin/sh
# package_test.sh <build folder> <cpack> <program>: the package made by CPack, unpacked with dpkg-deb into
# a scratch root and started from there offscreen with a data folder of its own. The title must
# appear, the first start must fill the data folder from the factory files, a later start must
# keep what the teacher changed, and nothing may be written beside the program.
set -eu
build=$1
cpack=$2
program=$3
command -v dpkg-deb >/dev/null || { echo "package_test: no dpkg-deb here"; exit 77; }
work=$(mktemp -d "${TMPDIR:-/tmp}/wm-package.XXXXXX")
trap 'rm -rf "$work"' EXIT
fail() {
    echo "package_test: $*" >&2
    exit 1
}

# gzip rather than xz: the same package, made faster.
"$cpack" --config "$build/CPackConfig.cmake" -B "$work/out" \
    -D CPACK_DEBIAN_COMPRESSION_TYPE=gzip >"$work/cpack.log" 2>&1 ||
    { cat "$work/cpack.log"; fail "CPack could not make the package"; }
set -- "$work"/out/wordmere_*.deb
deb=$1
[ -f "$deb" ] || fail "CPack made no wordmere_*.deb"
root=$work/root
dpkg-deb -x "$deb" "$root"
dpkg-deb -e "$deb" "$work/control"

app=org.wordmere.wordmere
for f in usr/bin/wordmere usr/share/wordmere/wmdata.new usr/share/wordmere/thelists.new \
    usr/share/wordmere/wmgdisplay.dat usr/share/wordmere/flcodelist.dat \
    usr/share/wordmere/wm-help/wmindex.htm usr/share/wordmere/images/wordmere.svg \
    usr/share/wordmere/sounds/ufofly.wav "usr/share/wordmere/buttons/Flash Cards.jpg" \
    usr/share/applications/$app.desktop usr/share/metainfo/$app.metainfo.xml \
    usr/share/icons/hicolor/scalable/apps/$app.svg usr/share/icons/hicolor/16x16/apps/$app.png \
    usr/share/icons/hicolor/256x256/apps/$app.png usr/share/man/man1/wordmere.1.gz \
    usr/share/doc/wordmere/copyright usr/share/doc/wordmere/changelog.gz; do
    [ -f "$root/$f" ] || fail "$f is not in the package"
done
[ "$(env -u DISPLAY "$root/usr/bin/wordmere" --version)" = "$(env -u DISPLAY "$program" --version)" ] ||
    fail "usr/bin/wordmere is not the program just built"
[ -x "$work/control/postinst" ] || fail "the package has no postinst to make the data folder"
writable=$(find "$root/usr/share" -type f -perm /133)
[ -z "$writable" ] || fail "not read only (rw-r--r--): $writable"
if command -v desktop-file-validate >/dev/null; then
    desktop-file-validate "$root/usr/share/applications/$app.desktop" ||
        fail "the desktop entry is not valid"
fi
if command -v appstreamcli >/dev/null; then
    appstreamcli validate --no-net "$root/usr/share/metainfo/$app.metainfo.xml" >"$work/as.log" ||
        { cat "$work/as.log"; fail "the metainfo is not valid"; }
fi

# Started as a pupil would start it, with Qt's and the fonts' caches kept out of the home folder.
start() {
    env WORDMERE_DATA="$1" QT_QPA_PLATFORM=offscreen HOME="$work/home" \
        XDG_CACHE_HOME="$work/home/cache" XDG_CONFIG_HOME="$work/home/config" \
        XDG_RUNTIME_DIR="$work/home" timeout 60 "$root/usr/bin/wordmere" --screenshot "$2"
}
mkdir -p "$work/home"
chmod 700 "$work/home"
listing() { (cd "$root" && find . -exec stat -c '%n %s %Y %a' {} + | sort); }
listing >"$work/before"

data="$work/data/class 1"
start "$data" "$work/title.png" >"$work/run.log" 2>&1 ||
    { cat "$work/run.log"; fail "the installed program did not show its title"; }
[ "$(head -c 4 "$work/title.png" | tail -c 3)" = PNG ] || fail "the title's picture is no PNG"
factory=$root/usr/share/wordmere
cmp "$data/wmdata.dat" "$factory/wmdata.new" || fail "wmdata.dat is not the factory settings"
cmp "$data/thelists.dat" "$factory/thelists.new" || fail "thelists.dat is not the factory lists"
cmp "$data/wmgdisplay.dat" "$factory/wmgdisplay.dat" || fail "wmgdisplay.dat was not seeded"
cmp "$data/flcodelist.dat" "$factory/flcodelist.dat" || fail "flcodelist.dat was not seeded"
[ -f "$data/folders.dat" ] || fail "the title made no folders.dat in the data folder"
[ ! -e "$data/wmdata.new" ] && [ ! -e "$data/thelists.new" ] || fail "a .new file was left"
# One 510-byte table for every game offered, as the help has one page for every game offered.
tables=$(find "$data/scores" -name '*.dat' -size 510c | wc -l)
games=$(find "$factory/wm-help/games" -name '*.htm' | wc -l)
[ "$tables" -eq "$games" ] || fail "the title made $tables score tables of 510 bytes for $games games"

# A later start keeps the teacher's new password.
sed 's/^mapleton/oak/' "$data/wmdata.dat" >"$work/settings" && mv "$work/settings" "$data/wmdata.dat"
start "$data" "$work/again.png" >"$work/run.log" 2>&1 ||
    { cat "$work/run.log"; fail "the second start did not show the title"; }
grep -q '^oak' "$data/wmdata.dat" || fail "the second start replaced the teacher's settings"

# A data folder that cannot be made is named, and the program ends instead of waiting.
touch "$work/blocked"
if start "$work/blocked/data" "$work/none.png" >"$work/run.log" 2>&1; then
    fail "the program started without a data folder"
fi
grep -qxF "wordmere: The data folder $work/blocked/data cannot be made (Not a directory). Ask \
the person who looks after this computer to make it, writable for you." "$work/run.log" ||
    { cat "$work/run.log"; fail "no message naming the data folder"; }

listing >"$work/after"
diff "$work/before" "$work/after" || fail "files were written beside the program"
echo "package_test: $(basename "$deb") unpacked, started twice, data seeded in $data"
