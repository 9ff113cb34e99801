#!/bin/sh
# Ten megabytes with no line end, then a line of 1000 characters and a short one.
head -c 10485760 /dev/zero | tr '\0' 'a'
printf '\n'
head -c 1000 /dev/zero | tr '\0' 'b'
printf '\nfin\n'
read -r l
