#!/usr/bin/env bash
# help.sh PENDANT RUN PAGE: ./run answers --help from a text of its own, so that nothing is built for it. Every option of
# the program has to be there and on the manual page, and the table of the faults as the program tells it.
set -euo pipefail
options_in() { grep -oE -- '--[a-z][a-z-]+' | sort -u; }
missing_in() { comm -23 <("$pendant" --help | options_in) <(options_in); }
pendant=$1
forgotten=$("$2" --help | missing_in)
[[ -z $forgotten ]] || { echo "./run --help does not tell: $forgotten"; exit 1; }
forgotten=$(sed 's/\\-/-/g' "$3" | missing_in)
[[ -z $forgotten ]] || { echo "the manual page does not tell: $forgotten"; exit 1; }
[[ $("$1" --help | options_in | wc -l) -gt 10 ]]
faults_in() { sed -n '/^Faults:/,$p'; }
diff <("$1" --help | faults_in) <("$2" --help | faults_in)
[[ $("$2" --help | faults_in | wc -l) -gt 30 ]]
