# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# What the built programs are hardened with, read from the programs themselves. Sourced by check,
# with the root of the tree as the working directory.

# What is read to its end: a reader that leaves early would end the teller, and that counts as failed.
has_line() { grep "$@" >/dev/null; }

# holds_words FILE WORDS OPTIONS...: readelf with these options tells the words of the file.
holds_words() {
    local file=$1 words=$2
    shift 2
    readelf -W "$@" "$file" 2>/dev/null | has_line -E -- "$words"
}

# always_with BUILD OPTION: every source of the programs in this build is compiled with the option.
always_with() {
    ! grep '"command".* -c .*/src/' "$1/compile_commands.json" | has_line -vF -- "$2"
}

# protects_jumps FILE: the functions of the file begin with the mark that jumps have to land on.
protects_jumps() {
    [ "$(objdump -d --no-show-raw-insn "$1" | grep -c endbr64)" -gt 1000 ]
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
    # A call whose bounds the compiler can prove needs no check, and the system's own start-up code
    # may lack the mark of a protected program: the commands tell the one, the code the other.
    require "is compiled without fortified calls" always_with "$(dirname "$file")/.." -D_FORTIFY_SOURCE=2
    if [ "$(uname -m)" = x86_64 ]; then
        require "has no control-flow protection" protects_jumps "$file"
    fi
    if grep -qaF "$PWD" "$file"; then
        echo "$file: names the folder in which it was built" >&2
        status=1
    fi
    return "$status"
}
