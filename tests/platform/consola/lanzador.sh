#!/bin/sh
# A launcher that leaves a child behind which ignores SIGTERM and would outlive it.
sh -c 'trap "" TERM HUP INT; exec sleep 1000' </dev/null &
echo "hijo $!"
wait
