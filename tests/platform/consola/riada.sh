#!/bin/sh
# A hundred thousand lines as fast as they can go.
seq 1 100000
read -r l
