#!/bin/sh
# CR LF and LF line ends, and a line whose end comes only after a line from us.
printf 'uno\r\ndos\ntres\r\ncua'
read -r l
printf 'tro\n'
read -r l
