# SPDX-License-Identifier: Apache-2.0
# What ./run and ./test share; sourced by them from the project's root, under `set -euo pipefail`.

say() { printf '%s\n' "$*" >&2 || true; } # a closed stream is no reason to stop

# Passes a build's output on to a log and says on standard error how far a long one is.
show_progress() { # preset log
    awk -v preset="$1" -v log_file="$2" '
        { print > log_file }
        match($0, /^\[[0-9]+\/[0-9]+\]/) {
            split(substr($0, 2, RLENGTH - 2), step, "/")
            if (step[2] < 10) next
            quarter = int(4 * step[1] / step[2])
            if (!started++) printf "Building %s (%d steps) …\n", preset, step[2] > "/dev/stderr"
            else if (quarter > shown) printf "  %s: %d %%\n", preset, 25 * quarter > "/dev/stderr"
            shown = quarter
        }'
}

# Builds one preset, quiet but for its progress unless it fails; what there is to say goes to standard error.
build_preset() { # preset, targets if they are to be others than usual
    local preset=$1 log="build/$1.log"
    if ! mkdir -p build || ! : >>"$log"; then
        say "Cannot build here: the folder $(pwd)/build cannot be written."
        return 1
    fi
    # Two builds in one tree would spoil each other.
    exec 8>"build/$preset.lock"
    flock --nonblock 8 || { say "Waiting for another build of $preset …"; flock 8; }
    build_locked_preset "$preset" "$log" "${@:2}" 8>&-
    local code=$?
    exec 8>&-
    return "$code"
}

build_locked_preset() { # preset log targets…
    local preset=$1 log=$2
    local targets=("${@:3}")
    [ -f "build/$preset/build.ninja" ] || say "Configuring $preset …"
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        say "The configuration of $preset failed (its log is above)."
        return 1
    fi
    if ! cmake --build --preset "$preset" ${targets[@]+--target "${targets[@]}"} 2>&1 | show_progress "$preset" "$log"; then
        grep -vE '^\[[0-9]+/[0-9]+\] (Building|Automatic|Linking|Generating)' "$log" | tail -n 120 >&2
        say "The build of $preset failed."
        return 1
    fi
}

# Puts the runnable bundle of a preset into dist/<preset>.
install_bundle() { # preset
    cmake --install "build/$1" >"build/$1.install.log" 2>&1 || { cat "build/$1.install.log" >&2; return 1; }
}

# Whether a sound server answers within a moment.
sound_server_answers() { timeout 3 pactl info >/dev/null 2>&1; }
