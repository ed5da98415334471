#!/bin/sh
# inspectRelease_test.sh SOURCES FOLDER COMPILER: inspectRelease.sh finds out when files are compiled
# without optimization, and so without fortified functions.
here=$(dirname "$0")
if said=$("$here/inspectRelease.sh" "$@" -DCMAKE_CXX_FLAGS_RELEASE=-O0 2>&1); then
    echo "it had nothing to say" >&2
    exit 1
fi
case $said in
    'compiled without -O[23]: '*'/quorvane/'*) ;;
    *)
        echo "it said: $said" >&2
        exit 1
        ;;
esac
