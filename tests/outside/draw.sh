#!/usr/bin/env bash
# Runs a program that draws the penguins and looks at the chart that it leaves: every
# language draws the same one.
#
# usage: draw.sh <program> <data set> <output folder> <expected document>
set -euo pipefail
program=$1 data=$2 charts=$3 expected=$4
rm -rf -- "$charts"
CHARTXML_OUTPUT=$charts CHARTXML_LANG=ja "$program" "$data" 2>"$charts.log" ||
  { cat "$charts.log" >&2 && exit 1; }
# One refusal is tried; anything else is wrong, such as Japanese tables that are not found.
if grep --invert-match "can't add x to anything but element or position - frame" "$charts.log" >&2; then
  exit 1
fi
chart=$charts/0001-outside
diff -- "$expected" "$chart/chart.xml"
(($(wc -l <"$chart/source0.csv") == 343)) || { echo "not all rows are there" >&2 && exit 1; }
for file in "$chart"/{manifest.json,chart.vg.json,chart.html} "$charts"/{index.html,runtime/chartxml-page.js}; do
  [[ -s $file ]] || { echo "missing or empty: $file" >&2 && exit 1; }
done
