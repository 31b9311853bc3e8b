# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# Proofs that take long and are not run with every change. Sourced by check, with the root of the
# tree as the working directory. What fails leaves its trace in build/long.

# The proofs draw other numbers each time; a seed that is given repeats them.
seed=${VARNHOLT_SEED:-$(date +%s)}
# Seconds for each fuzzing program.
fuzz_seconds=${VARNHOLT_FUZZ_SECONDS:-600}
# Wrong values that each byte of a file is given in turn, 255 for all there are.
damage_values=${VARNHOLT_DAMAGE:-8}
# Random users whose sessions both programs have to repeat.
random_users=${VARNHOLT_RANDOM_USERS:-40}

monkey_at_length() {
    build_preset asan varnholt-monkey varnholt-monkey-windows
    say "A random user presses 100,000 times and undoes and redoes 100,000 steps under the sanitizers, seed $seed"
    build/asan/bin/varnholt-monkey --seed "$seed" --presses 100000 --undone 100000 \
        --trace build/long/monkey.vscript
    say "Another one presses the widgets of the real windows 100,000 times"
    QT_QPA_PLATFORM=offscreen build/asan/bin/varnholt-monkey-windows --seed "$seed" \
        --presses 100000 --trace build/long/monkey-windows.vscript
}

# Both programs read every kind of file, cut at every byte and with every byte changed: as released,
# with their time and memory, and under the sanitizers.
damage_at_length() {
    build_preset release test_damage test_catalogue
    say "Damaged files in the released programs, $damage_values values a byte"
    VARNHOLT_DAMAGE=$damage_values build/release/bin/test_damage --gtest_brief=1 \
        --gtest_output="xml:$PWD/build/long/damage.xml"
    say "Every value of every byte of the catalogue's files"
    VARNHOLT_DAMAGE=255 build/release/bin/test_catalogue --gtest_brief=1 \
        --gtest_filter='DamagedCatalogue.*'
    build_preset asan test_damage
    say "Damaged files under the sanitizers"
    VARNHOLT_DAMAGE=1 build/asan/bin/test_damage --gtest_brief=1
}

kills_at_length() {
    build_preset release test_persistence
    say "Ten thousand saves of each kind of design are killed"
    build/release/bin/test_persistence --gtest_repeat=10 --gtest_brief=1 \
        --gtest_filter='*SavingLosesNothing.WhenTheProgramIsKilledAtAnyMomentOfAThousandSaves/*'
    say "A thousand programs are killed in the midst of typing"
    VARNHOLT_KILLS=1000 build/release/bin/test_persistence --gtest_brief=1 \
        --gtest_filter='RandomEditing.*'
}

opinions_at_length() {
    build_preset asan test_design
    say "Ten thousand second opinions on random designs under the sanitizers, a hundred of them on large fields"
    VARNHOLT_OPINIONS=10000 build/asan/bin/test_design --gtest_brief=1 \
        --gtest_filter='RandomOpinions.*'
}

what_ifs_at_length() {
    build_preset asan test_design
    say "What If and a search for fields for a hundred thousand random inputs under the sanitizers"
    VARNHOLT_WHAT_IFS=100000 build/asan/bin/test_design --gtest_brief=1 \
        --gtest_filter='RandomWhatIfs.*'
}

# What a fuzzing program starts from, and its options: fuzz_examples NAME
fuzz_examples() {
    case $1 in
        pump_list | series_file) echo resources/pumps tests/files ;;
        zone_file) echo tests/files examples ;;
        simulation_file) echo examples tests/scripts/imports/zones ;;
        load_table) echo examples ;;
        project_file | horizontal_file | surface_water_file) echo tests/files/projects examples ;;
        recovery_record) echo tests/files ;;
        fields) echo fuzz/corpus/fields ;;
        script) echo tests/scripts -dict=fuzz/fuzz_script.dict ;;
    esac
}

fuzz() {
    local name=$1 found=build/long/corpus/$1 examples
    say "Fuzzing for $fuzz_seconds seconds: $name"
    mkdir -p "$found"
    read -r -a examples < <(fuzz_examples "$name")
    TMPDIR=$PWD/build/long build/fuzz/bin/"fuzz_$name" -max_total_time="$fuzz_seconds" \
        -artifact_prefix=build/long/ -close_fd_mask=1 -print_final_stats=1 \
        "$found" "${examples[@]}" 2>"build/long/$name.log" || {
        tail -n 40 "build/long/$name.log" >&2
        return 1
    }
    grep 'stat::number_of_executed_units' "build/long/$name.log"
}

fuzzing_at_length() {
    local sources=(fuzz/fuzz_*.cpp) programs
    programs=("${sources[@]##*/}")
    programs=("${programs[@]%.cpp}")
    build_preset fuzz "${programs[@]}"
    local program
    for program in "${programs[@]}"; do fuzz "${program#fuzz_}"; done
    rm -rf build/long/fuzz-*
}

# work_session PROGRAM [OPTION]: the session in a program folder of its own. The transcript goes to
# build/long/PROGRAM.txt, with the exit status as its last line.
work_session() {
    local script=build/long/session.vscript options status=0
    read -r -a options < <(head -n 1 "$script")
    rm -rf build/long/home
    XDG_DATA_HOME=$PWD/build/long/home QT_QPA_PLATFORM=offscreen \
        build/release/bin/"$1" "${@:2}" "$script" "${options[@]:1}" \
        >"build/long/$1.txt" 2>&1 </dev/null || status=$?
    echo "exit $status" >>"build/long/$1.txt"
}

# repeat_session SEED: what a random user did is written down as a script, which both programs work.
repeat_session() {
    build/release/bin/varnholt-monkey --presses 400 --seed "$1" \
        --trace build/long/session.vscript >/dev/null || return
    work_session varnholt-script
    work_session varnholt --script
    diff build/long/varnholt-script.txt build/long/varnholt.txt &&
        [ "$(tail -n 1 build/long/varnholt.txt)" = "exit 0" ]
}

random_users_at_length() {
    build_preset release varnholt varnholt-script varnholt-monkey
    say "$random_users random users in both programs, from seed $seed"
    local user
    for ((user = 0; user < random_users; ++user)); do
        repeat_session $((seed + user)) || {
            echo "The user of seed $((seed + user)) finds the programs different, or failing." >&2
            return 1
        }
    done
}

long_proofs() {
    mkdir -p build/long
    monkey_at_length
    damage_at_length
    kills_at_length
    opinions_at_length
    what_ifs_at_length
    fuzzing_at_length
    random_users_at_length
}
