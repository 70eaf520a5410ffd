#!/bin/bash
# mut.sh LIST: each line "file|old|new" (python literal replace, first occurrence must be unique)
cd /work/w-model
run() { for n in $(build/dev/bin/core_model_tests 2>&1 | grep -oE "tst_[a-z_]+" | grep -v "plantext\|planfile\|fuzz\|kwrandom\|modelhooks"); do QT_QPA_PLATFORM=offscreen timeout 60 build/dev/bin/core_model_tests $n >/tmp/mut.out 2>&1 || { echo "$n: $(grep -m1 "^FAIL" /tmp/mut.out | cut -c1-90)"; return; }; done; echo SURVIVED; }
i=0
while IFS= read -r line; do
  [ -z "$line" ] && continue
  i=$((i+1))
  f=$(python3 - "$line" <<'P'
import sys
f,a,b=sys.argv[1].split('@@')
a=a.encode().decode('unicode_escape'); b=b.encode().decode('unicode_escape')
t=open(f).read()
if t.count(a)!=1: print('BAD',t.count(a)); sys.exit()
open('/tmp/mut.orig','w').write(t); open(f,'w').write(t.replace(a,b)); print(f)
P
)
  case "$f" in BAD*) echo "$i $f :: $line"; continue;; esac
  if timeout 900 /work/tools/b core_model_tests >/tmp/mut.b 2>&1; then echo "$i $(run) :: $line"; else echo "$i NOBUILD :: $line"; fi
  cp /tmp/mut.orig $f
done < "$1"
echo DONE
