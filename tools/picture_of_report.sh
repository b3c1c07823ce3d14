#!/usr/bin/env bash
# Makes docs/images/report.png anew: a report of two files, as a browser shows it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
qelpro=${1:-build/release/tools/qelpro/qelpro}
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

cp tests/data/injection_two_inlets.pro "$folder/lid_run05.pro"
cp tests/data/injection_two_inlets.pro "$folder/lid_run06.pro"
"$qelpro" set "$folder/lid_run06.pro" Flow-1.FillTime=1.35 Flow-1.MeltTemp=242 'Flow-1.FR-2=20	48' 'Flow-1.FR-3=80	72.5' \
  'Flow-1.IP-2=60	152' 'Pack-1.PP-2=3	64' Pack-1.PackTime=6 'Pack-1.PP-3=6	35'
"$qelpro" unset "$folder/lid_run05.pro" 'Flow-1.User*'
"$qelpro" unset "$folder/lid_run06.pro" 'Flow-1.User*'
"$qelpro" report "$folder/lid_run05.pro" "$folder/lid_run06.pro" -o "$folder/report.html"
# The page as it stands, from its first inlet on.
cat >"$folder/frame.html" <<'HTML'
<!DOCTYPE html><style>body{margin:0}iframe{border:0;width:1180px;height:860px;display:block}</style>
<iframe src="report.html#inlets" title="report"></iframe>
HTML
mkdir -p docs/images
chromium --headless --no-sandbox --disable-gpu --hide-scrollbars --user-data-dir="$folder/profile" --window-size=1180,860 \
  --blink-settings=preferredColorScheme=1 --screenshot="$PWD/docs/images/report.png" "file://$folder/frame.html" 2>/dev/null
size=$(stat -c %s docs/images/report.png)
((size > 20000 && size < 200000)) || { echo "docs/images/report.png has $size bytes" >&2; exit 1; }
