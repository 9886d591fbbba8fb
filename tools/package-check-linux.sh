# SPDX-License-Identifier: Apache-2.0
# The Linux half of tools/package-check.

# What running them takes that no package asks for: a sound server and a display.
readonly extras=pulseaudio,pulseaudio-utils,xvfb,xauth,procps,util-linux

base_root() { # archive of a clean Debian 12, made once
    [ ! -f "$1" ] || return 0
    mkdir -p "$(dirname "$1")"
    mmdebstrap --variant=minbase --mode=root --include="$extras" bookworm "$1.new.tar" >"$log" 2>&1 || fail "there is no clean root"
    mv "$1.new.tar" "$1"
}

in_root() {
    chroot "$work/root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root DEBIAN_FRONTEND=noninteractive "$@"
}
as_user() { # command: by an ordinary user with nothing in his environment
    in_root runuser -u person -- env HOME=/home/person XDG_RUNTIME_DIR= "$@"
}
install_packages() { in_root apt-get -q -y install --no-install-recommends "$@" >"$log" 2>&1; }

# Without what apt and dpkg keep for themselves.
files_in_root() {
    (cd "$work/root" && find . -xdev -not -path './proc/*' -not -path './tmp/*' -not -path './var/cache/*' \
        -not -path './var/log/*' -not -path './var/lib/apt/*' -not -path './var/lib/dpkg/*' -not -path './var/tmp/*' | LC_ALL=C sort)
}

check_packages() {
    [ "$(id -u)" -eq 0 ] || skip "only root may enter a root of its own"
    needs lintian
    needs mmdebstrap
    local archive=${XDG_CACHE_HOME:-$HOME/.cache}/module-audio/package-root.tar before after depends name
    local linux=$here/packaging/linux
    appstreamcli validate --no-net "$linux/com.tamrex.diagnostics.metainfo.xml" >"$log" 2>&1 || fail "the metadata are wrong"
    desktop-file-validate "$linux/tamrex-diagnostics.desktop" >"$log" 2>&1 || fail "the desktop file is wrong"
    lintian --fail-on error "$packages"/*.deb >"$log" 2>&1 || fail "lintian finds errors"
    say "linux: $(grep -c '^W:' "$log" || true) warnings of lintian, no error"

    base_root "$archive"
    mkdir "$work/root"
    tar -C "$work/root" -xf "$archive" --exclude='./dev/*'
    mkdir -p "$work/root/dev/shm"
    mount --bind /dev "$work/root/dev" && mount --bind /proc "$work/root/proc" || skip "nothing may be mounted here"
    cp -L /etc/resolv.conf "$work/root/etc/resolv.conf"
    in_root useradd --create-home person
    mkdir "$work/root/packages"
    cp "$packages"/*.deb "$here"/tools/{virtual-sound-card,package-check,package-check-linux.sh} "$work/root/packages"
    in_root apt-get -q update >"$log" 2>&1 || fail "the clean root has no package lists"

    # What the packages depend on stays; they themselves must leave nothing.
    depends=$(for name in tamrex-diagnostics module-audio; do dpkg-deb --field "$packages/$name"_*.deb Depends; done)
    depends=$(tr ',' '\n' <<<"$depends" | sed -E 's/ *([^ ]+).*/\1/' | grep -v '^module-audio' | sort -u)
    # shellcheck disable=SC2086
    install_packages $depends || fail "the dependencies cannot be installed"
    before=$(files_in_root)
    # shellcheck disable=SC2046
    install_packages $(cd "$packages" && printf '/packages/%s ' *.deb) || fail "the packages cannot be installed"
    for name in graphical-host.md.gz report.schema.json; do
        as_user test -s "/usr/share/doc/tamrex-diagnostics/$name" || fail "the package of the host lacks $name"
    done
    as_user TamrexDiagnosticsCLI --version >"$log" 2>&1 || fail "the program does not start"
    as_user /packages/virtual-sound-card run --sink Speakers -- /packages/package-check --inside list TamrexDiagnosticsCLI ||
        fail "the installed command-line program does not work"
    as_user /packages/virtual-sound-card run --sink Speakers -- /packages/package-check --inside run \
        xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" TamrexDiagnostics ||
        fail "the installed host does not work"
    say "linux: the installed programs run"

    in_root apt-get -q -y purge tamrex-diagnostics module-audio module-audio-clips module-audio-dev >"$log" 2>&1 ||
        fail "the packages cannot be removed"
    after=$(files_in_root)
    # Settings and the guardian's note are the user's own.
    added "$before" "$after" | grep -v '^./home/person/\.' >"$log" || true
    [ ! -s "$log" ] || fail "the packages left files"
    in_root dpkg --audit >"$log" 2>&1 && [ ! -s "$log" ] || fail "dpkg finds something wrong"
}
