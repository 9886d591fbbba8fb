# SPDX-License-Identifier: Apache-2.0
# The Windows half of tools/package-check.

# A file's resources hold their texts in the system's wide letters.
has_version() { strings --encoding=l "$1" | grep -A1 -x FileVersion | grep -qxF "$2"; }

check_resources() { # folder
    local file
    for file in "$1"/{module_audio,sal,style_manager}.dll "$1"/*.exe; do
        [ "$(basename "$file")" != uninstall.exe ] || continue
        has_version "$file" "$version" || fail "$(basename "$file") has no version $version"
        [[ $file != *.exe ]] || grep -q PerMonitorV2 "$file" || fail "$(basename "$file") has no manifest"
    done
}

# Imports that are neither in the folder nor the system's; the loader itself knows the names that begin so.
check_imports() { # folder
    local file name missing=''
    is_there() { [[ $2 == api-ms-win-* ]] || [ -f "$1/$2" ] || [ -f "$system/$2" ] || [ -f "$system/${2,,}" ]; }
    for file in "$1"/*.dll "$1"/*.exe "$1"/*/*.dll; do
        for name in $(x86_64-w64-mingw32-objdump -p "$file" | sed -n 's/.*DLL Name: *//p'); do
            is_there "$1" "$name" || missing+=" $name"
        done
    done
    [ -z "$missing" ] || fail "these libraries are missing:$missing"
}

prefix_files() { (cd "$WINEPREFIX/drive_c" && find . | grep -vE '^./windows/(temp|Installer)|/Temp/' | LC_ALL=C sort); }
registry() { wineserver --wait && grep -ihE '^\[.*(tamrex|diagnostics)' "$WINEPREFIX"/*.reg; }

run_programs() { # folder
    cd "$work"
    "$here/tools/virtual-sound-card" run --sink Speakers -- "$here/tools/package-check" --inside list \
        wine "$1/TamrexDiagnosticsCLI.exe" || exit 1
    wineserver --kill || true # Wine keeps the display that it was first used with
    "$here/tools/virtual-sound-card" run --sink Speakers -- "$here/tools/package-check" --inside run \
        xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" wine "$1/TamrexDiagnostics.exe" || exit 1
    wineserver --kill || true
}

# Under Wine it can prove some things, and must find nothing wrong.
check_field_check() { # folder with the unpacked zip
    local program=$packages/field-check.exe results=$work/results
    [ -f "$program" ] || fail "there is no field check"
    cp "$program" "$setup" "$1"
    cd "$work"
    "$here/tools/virtual-sound-card" run --sink Speakers --source Mic -- xvfb-run --auto-servernum \
        --server-args="-screen 0 1280x1024x24" timeout 600 wine "$1/field-check.exe" --nobody --results "Z:$results" >"$log" 2>&1 ||
        fail "the field check ended with $?"
    wineserver --kill || true
    cmake "-DREPORT=$results/field-check.json" -P "$here/tools/field-check/read_report.cmake" >"$log" 2>&1 ||
        fail "the field check's report cannot be read"
    [ "$(grep -cE '^[a-z-]+: (proved|not possible here)\.' "$log")" -eq 9 ] || fail "the field check has other findings"
    for name in com-on-worker-threads planted-library installer; do
        grep -q "^$name: proved" "$log" || fail "the field check does not prove $name"
    done
    head -c 8 "$results/screen.png" | grep -aq PNG || fail "the field check took no picture"
    cat "$log"
}

check_packages() {
    needs wine
    needs xvfb-run
    local setup zip folder before after registered name
    setup=$(ls "$packages"/TamrexDiagnostics-*-setup.exe) zip=$(ls "$packages"/TamrexDiagnostics-*.zip)
    version=$(basename "$setup" | cut -d- -f2)
    export WINEPREFIX=$work/prefix WINEDEBUG=-all
    unset WINEPATH
    DISPLAY='' wine wineboot --init >"$log" 2>&1 || fail "Wine does not start"
    wineserver --wait
    system=$WINEPREFIX/drive_c/windows/system32

    # The zip, from a folder with blanks and letters of another script.
    folder="$work/Zip 音"
    mkdir "$folder"
    (cd "$folder" && cmake -E tar xf "$zip") || fail "the zip cannot be unpacked"
    folder=$(ls -d "$folder"/*)
    for name in graphical-host.md report.schema.json; do
        [ -s "$folder/doc/$name" ] || fail "the zip lacks $name"
    done
    check_resources "$folder"
    check_imports "$folder"
    run_programs "$folder"
    say "windows: the zip runs"
    local unpacked=$folder

    before=$(prefix_files)
    registered=$(registry || true)
    folder="$WINEPREFIX/drive_c/Program Files/Tamrex/TamrexDiagnostics"
    # Wine calls itself Windows 7, which is too old.
    timeout 300 wine "$setup" /S >"$log" 2>&1 && fail "the installer takes any Windows"
    [ ! -e "$folder" ] || fail "the installer refused and installed"
    DISPLAY='' wine winecfg -v win10 >"$log" 2>&1 || fail "Wine does not become Windows 10"
    timeout 300 wine "$setup" /S >"$log" 2>&1 || fail "the installer ended with $?"
    wineserver --wait
    [ -f "$folder/TamrexDiagnostics.exe" ] || fail "nothing was installed"
    has_version "$setup" "$version" || fail "the installer has no version"
    registry >"$log" || fail "the installation is not registered"
    check_resources "$folder"
    run_programs "$folder"
    say "windows: the installed programs run"

    timeout 300 wine "$folder/uninstall.exe" /S >"$log" 2>&1 || fail "the uninstaller ended with $?"
    wineserver --wait # it goes on by a copy of itself
    after=$(prefix_files)
    # The folder of the user's own settings is all that may stay.
    added "$before" "$after" | grep -v '/AppData/Local\(/Tamrex\|$\)' >"$log" || true
    [ ! -s "$log" ] || fail "the uninstaller left files"
    [ "$(registry || true)" = "$registered" ] || fail "the uninstaller left entries in the registry: $(registry)"
    check_field_check "$(dirname "$unpacked")"
}
