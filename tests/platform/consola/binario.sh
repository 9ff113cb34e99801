#!/bin/sh
printf 'a\000b\001\377\n'
printf 'despues\n'
read -r l
