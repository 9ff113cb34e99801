#!/bin/sh
# Writes on its standard error only, then a line on its output.
echo 'warning: on stderr' >&2
echo 'ok'
read -r l
