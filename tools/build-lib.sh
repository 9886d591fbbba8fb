# SPDX-License-Identifier: Apache-2.0
# What ./run and ./test share; sourced by them from the project's root.

say() { printf '%s\n' "$*" >&2; }

# Builds one preset, quiet unless it fails; what there is to say goes to standard error.
build_preset() { # preset [target]
    local preset=$1 log="build/$1.log"
    mkdir -p build
    [ -f "build/$preset/build.ninja" ] || say "Configuring $preset …"
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        say "The configuration of $preset failed (its log is above)."
        return 1
    fi
    local pending
    pending=$(ninja -C "build/$preset" -n ${2:+"$2"} 2>/dev/null | grep -c '^\[' || true)
    [ "${pending:-0}" -le 3 ] || say "Building $preset ($pending steps) …"
    if ! cmake --build --preset "$preset" ${2:+--target "$2"} >"$log" 2>&1; then
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
