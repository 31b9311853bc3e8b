# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# What the built programs are hardened with, read from the programs themselves. Sourced by check,
# with the root of the tree as the working directory.

# holds_words FILE WORDS OPTIONS...: readelf with these options tells the words of the file.
holds_words() {
    local file=$1 words=$2
    shift 2
    readelf -W "$@" "$file" 2>/dev/null | grep -qE -- "$words"
}

# One program: what is missing is told, and makes the status 1.
hardened() {
    local file=$1 status=0
    require() {
        "${@:2}" || {
            echo "$file: $1" >&2
            status=1
        }
    }
    require "is no position-independent program" holds_words "$file" 'Type:.*DYN' -h
    require "has no read-only relocations" holds_words "$file" 'GNU_RELRO' -l
    require "binds late" holds_words "$file" 'BIND_NOW|FLAGS.*NOW' -d
    require "has an executable stack" holds_words "$file" 'GNU_STACK.* RW ' -l
    require "has no stack protector" holds_words "$file" '__stack_chk_fail' -s --dyn-syms
    require "has no fortified calls" holds_words "$file" '_chk(@|$| )' -s --dyn-syms
    if [ "$(uname -m)" = x86_64 ]; then
        require "has no control-flow protection" holds_words "$file" 'IBT, SHSTK' -n
    fi
    if grep -qaF "$PWD" "$file"; then
        echo "$file: names the folder in which it was built" >&2
        status=1
    fi
    return "$status"
}
