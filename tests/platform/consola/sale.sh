#!/bin/sh
# Last words without a line end, then gone.
printf 'adios'
exit 7
