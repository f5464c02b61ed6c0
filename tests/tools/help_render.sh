#!/bin/sh
# Opens the help's index, one game page and the teacher's guide in headless Chromium, as a
# pupil's browser would: fails on any picture that does not load or any link that leads
# nowhere, and leaves two screenshots (desktop and phone widths) to look at.
# usage: help_render.sh HELP_DIR OUT_DIR       (exit 77: skipped, no Chromium here)
help=$(cd "$1" && pwd)
out="$2"
browser=$(command -v chromium || command -v chromium-browser || true)
if [ -z "$browser" ]; then
  echo "SKIPPED: no Chromium on this machine (scripts/setup installs it)"
  exit 77
fi
mkdir -p "$out"
out=$(cd "$out" && pwd)
game=$(ls "$help"/games/*.htm | head -n 1)
status=0

chrome() {  # a fresh profile each run, so that no run meets another's lock
  profile=$(mktemp -d)
  timeout 120 "$browser" --headless=new --no-sandbox --disable-gpu --hide-scrollbars \
    --user-data-dir="$profile" --allow-file-access-from-files --virtual-time-budget=5000 "$@" \
    2>/dev/null
  rm -rf "$profile"
}

# The pages inside frames of one checking page, which lists every picture that did not load and
# every link whose target cannot be read: one browser start for all of them.
check() {  # pages...
  frames=""
  for page in "$@"; do frames="$frames<iframe src=\"file://$page\" width=\"1280\" height=\"2000\"></iframe>"; done
  cat >"$out/check.htm" <<HTML
<!DOCTYPE html><html><body><pre id="r">not loaded</pre>$frames
<script>
window.onload = () => {
  const bad = [];
  let pictures = 0;
  for (const f of document.querySelectorAll('iframe')) {
    const d = f.contentDocument;
    if (!d || !d.body || !d.body.innerHTML) { bad.push('page ' + f.src); continue; }
    pictures += d.images.length;
    for (const img of d.images)
      if (!(img.complete && img.naturalWidth > 0)) bad.push('picture ' + img.getAttribute('src'));
    for (const a of d.querySelectorAll('a[href]')) {
      const x = new XMLHttpRequest();
      try { x.open('GET', a.href.split('#')[0], false); x.send(); if (!x.responseText) throw 0; }
      catch (e) { bad.push('link ' + a.getAttribute('href')); }
    }
  }
  document.getElementById('r').textContent = bad.length ? 'BROKEN ' + bad.join(', ')
      : 'LOADED ' + pictures + ' pictures';
};
</script></body></html>
HTML
  result=$(chrome --dump-dom "file://$out/check.htm" | grep -o '<pre id="r">[^<]*' | cut -d'>' -f2)
  echo "$*: $result"
  case "$result" in LOADED*) ;; *) status=1 ;; esac
}

shot() {  # page, png, width, height
  chrome --window-size="$3,$4" --screenshot="$2" "file://$1" >/dev/null
  size=$(wc -c <"$2" 2>/dev/null || echo 0)
  if [ "$size" -lt 20000 ]; then
    echo "FAIL: no real picture of $1 ($size bytes)"; status=1
  fi
}

check "$help/wmindex.htm" "$game" "$help/teacher.htm"
shot "$help/wmindex.htm" "$out/help-index-desktop.png" 1280 2400
shot "$game" "$out/help-game-phone.png" 390 1400
exit $status
