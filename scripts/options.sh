#!/bin/sh
# options.sh SCRIPT OPTIONS [ARGUMENT...]: refuses arguments that a script doesn't have, in a line that names those that
# it has. A word in capitals among OPTIONS stands for whatever doesn't begin with a dash.
script=$1 options=$2
shift 2
for given; do
    case $given in
    -*" "*) ;;
    -*) case " $options " in *" $given "*) continue ;; esac ;;
    *) case $options in *[A-Z]*) continue ;; esac ;;
    esac
    echo "$script: no option $given; there is: ${options:-none}" >&2
    exit 2
done
