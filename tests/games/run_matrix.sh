#!/bin/sh
# Runs the game matrix as two shards side by side; fails when either shard fails. With WM_GAMES
# set (a game or two checked alone) it runs as one.
if [ -n "$WM_GAMES" ]; then exec "$1"; fi
WM_MATRIX_SHARD=0/2 "$1" & first=$!
WM_MATRIX_SHARD=1/2 "$1"; second=$?
wait "$first"; first=$?
[ "$first" -eq 0 ] && [ "$second" -eq 0 ]
