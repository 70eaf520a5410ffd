#!/usr/bin/env bash
# x11clipboard.sh PROGRAM: what other programs get of a chart on the clipboard, byte by byte.
set -euo pipefail
here=$(dirname "$(realpath "$0")")
. "$here/../../support/xvfb.sh"

text='Zoë Müller – Łódź'
text_latin1='Zo\xeb M\xfcller ? ?\xf3d?'
page="<html><body><p>$text</p></body></html>"

# target TARGET: the clipboard's content in one form.
target() {
  timeout 10 xclip -selection clipboard -out -target "$1"
}

offers() {
  target TARGETS | grep -Fx "$1" >/dev/null
}

failures=0

# arrives TARGET: compares the clipboard's content with the standard input.
arrives() {
  cat >"$work/expected"
  target "$1" >"$work/actual" || true
  cmp -s "$work/expected" "$work/actual" && return
  echo "$1 is not what it should be (- expected, + actual):" >&2
  diff -u <(od -c "$work/expected") <(od -c "$work/actual") >&2 || true
  failures=$((failures + 1))
}

start_display
start "$1" "$page" "$text"
wait_for_window 30 "$text" >"$work/window" || fail "The program's own line has no pasted text"
wait_until 10 offers "HTML format" || fail "Not offered: HTML format"

target TARGETS | sed -n 1,3p >"$work/first"
printf '%s\n' "HTML format" text/html text/plain | cmp "$work/first" - || fail "The order is wrong"
for name in "text/plain;charset=utf-8" UTF8_STRING STRING TEXT; do
  offers "$name" || fail "Not offered: $name"
done

# Twice and in between, since one request must not change what the next one gets.
for _ in 1 2; do
  printf '%b' "$text_latin1" | arrives text/plain
  printf '%s' "$text" | arrives UTF8_STRING
  printf '%s' "$text" | arrives "text/plain;charset=utf-8"
  printf '%b' "$text_latin1" | arrives STRING
done
{
  printf '%s' "$page" | iconv -f UTF-8 -t UTF-16LE
  printf '\0\0'
} | arrives text/html
{
  printf '%s\r\n' "Version:0.9" "StartHTML:00000097" "EndHTML:00000140" \
    "StartFragment:00000109" "EndFragment:00000133"
  printf '%b' "<html><body><p>$text_latin1</p></body></html>"
} | arrives "HTML format"

[ "$failures" -eq 0 ]
