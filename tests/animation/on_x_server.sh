#!/bin/sh
# on_x_server.sh WIDTHxHEIGHT PROGRAM [ARGUMENTS]: runs a program on a virtual screen of that size.
set -eu
size=$1
shift
exec env QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 ${size}x24 -nolisten tcp" "$@"
