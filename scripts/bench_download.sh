#!/bin/sh
# SPDX-FileCopyrightText: 2026 the my_classes authors
# SPDX-License-Identifier: MIT
#
# Compares FileDownloader with curl, in turns, on one file from an nginx of its own on the loopback address.
#   scripts/bench_download.sh [BUILD_DIRECTORY] [MEGABYTES] [ROUNDS]
# Fails above the time of curl (with 10% for the noise of the machine) or above 12 MB of memory.
set -eu

build=${1:-build/release}
megabytes=${2:-500}
rounds=${3:-5}
bench=$build/bin/bench_download
[ "$rounds" -le 20 ] && [ "$megabytes" -le 4000 ] || { echo "too much: at most 20 rounds of 4000 MB" >&2; exit 2; }
for tool in nginx curl python3 "$bench"; do
    command -v "$tool" >/dev/null || { echo "missing: $tool" >&2; exit 2; }
done

work=$(mktemp -d)
chmod 755 "$work" # the workers of nginx run as another user
trap '[ ! -s "$work/pid" ] || kill "$(cat "$work/pid")"; rm -rf "$work"' EXIT
mkdir "$work/www"
head -c "${megabytes}M" /dev/urandom >"$work/www/file"
port=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
cat >"$work/nginx.conf" <<CONF
pid $work/pid;
error_log $work/error.log;
events {}
http {
    access_log off;
    sendfile on;
    client_body_temp_path $work/body;
    proxy_temp_path $work/proxy;
    fastcgi_temp_path $work/fastcgi;
    uwsgi_temp_path $work/uwsgi;
    scgi_temp_path $work/scgi;
    server {
        listen 127.0.0.1:$port;
        root $work/www;
        location = /redirected { return 302 /file; }
    }
}
CONF
nginx -c "$work/nginx.conf" -e "$work/error.log"
url=http://127.0.0.1:$port

# $1: path; prints the times of both and the growth of memory, best of the rounds.
compare() {
    : >"$work/curl" && : >"$work/ours"
    i=0
    while [ $i -lt "$rounds" ]; do
        rm -f "$work/got"
        curl -sfL -o "$work/got" -w '%{time_total}\n' "$url$1" >>"$work/curl"
        rm -f "$work/got"
        "$bench" "$url$1" "$work/got" >>"$work/ours"
        i=$((i + 1))
    done
    cmp "$work/got" "$work/www/file"
    python3 - "$1" "$work/curl" "$work/ours" <<'PY'
import statistics, sys
name, curl, ours = sys.argv[1:]
curl_ms = [float(line) * 1000 for line in open(curl)]
lines = [line.split() for line in open(ours)]
def values(key):
    return [float(value) for name, value in lines if name == key]
ours_ms, growth = values("download_ms"), max(values("peak_growth_kb")) / 1000
ratio = statistics.median(ours_ms) / statistics.median(curl_ms)
print(f"{name}: curl {statistics.median(curl_ms):.0f} ms, FileDownloader {statistics.median(ours_ms):.0f} ms,"
      f" ratio {ratio:.2f} (best {min(ours_ms) / min(curl_ms):.2f}), peak growth {growth:.1f} MB,"
      f" thread stopped in {max(values('stop_ms')):.0f} ms")
sys.exit(ratio > 1.1 or growth > 12)
PY
}
compare /file
compare /redirected
