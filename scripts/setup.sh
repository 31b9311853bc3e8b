# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Shared by run, test and check: what has to be installed, and how the program is built and tested.
# Sourced by them with the root of the tree as the working directory.

# shellcheck disable=SC2034  # Read by the scripts that source this file.
build_packages=(cmake ninja-build g++ ccache python3 libfmt-dev libsqlitecpp-dev libsqlite3-dev
    libgtest-dev libbenchmark-dev qt6-base-dev libqt6opengl6-dev qt6-svg-dev qt6-charts-dev
    qt6-tools-dev qt6-documentation-tools libqt6sql6-sqlite qt6-webengine-dev
    libharfbuzz-dev fonts-inter fonts-dejavu-core poppler-utils)

say() { printf '\n== %s\n' "$*"; }

# Installs those of the named Debian packages that are missing; does nothing when none is.
install_packages() {
    local missing=() package root=()
    for package in "$@"; do
        dpkg-query -W -f '${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' ||
            missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing: ${missing[*]}" >&2
            echo "Run this as root once, or install sudo, so that they can be installed." >&2
            exit 1
        }
        root=(sudo)
    fi
    say "Installing ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# Configures and builds one preset: build_preset release [TARGET...]
build_preset() {
    local preset=$1
    shift
    say "Building ($preset)"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset" ${1:+--target "$@"}
}

# Runs the tests of a preset that has been built, windows unseen, and tells the results. Its status
# is that of the tests.
run_tests() {
    local preset=$1 status=0
    rm -f "build/$preset/test-results.xml"
    QT_QPA_PLATFORM=offscreen ctest --preset "$preset" --parallel "$(nproc)" \
        --output-junit "$PWD/build/$preset/test-results.xml" || status=$?
    test_results "$preset" || status=1
    return "$status"
}

# The results of a preset's last run in one line: "1129 passed, 0 failed".
test_results() {
    [ -f "build/$1/test-results.xml" ] || {
        echo "no tests were run"
        return 1
    }
    awk '
        function count(name) {
            match($0, name "=\"[0-9]+\"")
            return substr($0, RSTART + length(name) + 2, RLENGTH - length(name) - 3)
        }
        /tests="/ { tests = count("tests") }
        /failures="/ { failed = count("failures") }
        /skipped="/ { skipped = count("skipped") }
        /<testcase / { exit }
        END {
            if (tests == 0) {
                print "no tests were run"
                exit 1
            }
            more = skipped > 0 ? ", " skipped " skipped" : ""
            printf "%d passed, %d failed%s\n", tests - failed - skipped, failed, more
        }' "build/$1/test-results.xml"
}
