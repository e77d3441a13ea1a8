#!/usr/bin/env bash
# Checks on a bare Debian system what a newcomer does. Clones HEAD into a folder with a blank and runs
# README's two commands there as a user with sudo. Then makes the archives on Debian 12 and plays a game
# with each: with the archive with Qt on a system without Qt, with the plain one beside the release's own
# Qt. With a COMMAND it only runs that in the clone.
# Needs root. Only its own processes see what it mounts, so nothing stays mounted afterwards. Bare systems,
# packages and archives are kept in the cache folder for the next run, and so is the log.
# Usage: fresh_machine.sh bookworm|trixie [COMMAND...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

release=${1:-}
[[ $release == bookworm || $release == trixie ]] ||
    { echo "Usage: tools/fresh_machine.sh bookworm|trixie [COMMAND...]" >&2 && exit 2; }
((EUID == 0)) || { echo "Must be run by root, since it creates and enters a system" >&2 && exit 1; }
cache=${XDG_CACHE_HOME:-$HOME/.cache}/kestrivane-ui-fresh
commit=$(git rev-parse HEAD)
log=$cache/$release.log

if [[ -z ${FRESH_MACHINE:-} ]]; then
    mkdir -p "$cache"
    : >"$log"
    tools/install.sh fresh display demo
    work=$(mktemp -d -p /var/tmp fresh.XXXXXX)
    trap 'rm -rf --one-file-system "$work"' EXIT
    FRESH_MACHINE=$work unshare --mount --pid --fork --kill-child --mount-proc "$0" "$@" <&0 &
    machine=$!
    trap 'kill -KILL "$machine"; exit 1' INT TERM
    wait "$machine"
    exit
fi
systems=$FRESH_MACHINE

exec 3>&2 # for messages, even where standard error goes to the log
give_up() {
    printf '%s\n' "FAILED: $*" "The end of $log:" "$(tail -n 30 "$log")" >&3
    exit 1
}

# The mirror and the proxy that this machine's own apt uses.
mirror=$(apt-get indextargets --format '$(ORIGIN) $(REPO_URI)' 'Created-By: Packages' |
    sed -n 's/^Debian \(.*\/debian\/\)$/\1/p' | head -n 1)
[[ -n $mirror ]] || give_up "apt knows no mirror of Debian here"
proxy=$(apt-config shell proxy Acquire::http::Proxy)
eval "$proxy"
[[ -z ${proxy:-} ]] || export http_proxy=$proxy

# Creates a bare system with a user who may use sudo without a password.
new_system() { # release, name
    system=$systems/$2
    mkdir -p "$system" "$cache/packages-$1"
    if [[ ! -e $cache/$1.tar ]]; then
        echo "Making a bare $1"
        debootstrap --variant=minbase --include=sudo,ca-certificates "$1" "$system" "$mirror" \
            >>"$log" 2>&1 || give_up "debootstrap of $1"
        tar -cf "$cache/$1.tar.new" -C "$system" --one-file-system .
        mv "$cache/$1.tar.new" "$cache/$1.tar"
    else
        tar -xf "$cache/$1.tar" -C "$system"
    fi
    cp -L /etc/resolv.conf "$system/etc/resolv.conf"
    echo "127.0.0.1 localhost $(uname -n)" >"$system/etc/hosts"
    apt-config dump | { grep -E '^Acquire::(https?::|Retries)' || true; } \
        >"$system/etc/apt/apt.conf.d/60machine"
    mount -t proc proc "$system/proc"
    mount --bind /dev "$system/dev"
    mount --bind /dev/pts "$system/dev/pts"
    mount -t tmpfs tmpfs "$system/dev/shm"
    mount --bind "$cache/packages-$1" "$system/var/cache/apt/archives"
    chroot "$system" useradd --create-home --shell /bin/bash user
    echo "user ALL=(ALL) NOPASSWD: ALL" >"$system/etc/sudoers.d/user"
}

# Runs a command as the user, in the environment of a fresh login.
as_user() { # folder, command...
    chroot --userspec=user:user "$system" env -i HOME=/home/user USER=user LANG=C.UTF-8 \
        PATH=/usr/local/bin:/usr/bin:/bin bash -c 'cd "$1" && shift && exec "$@"' _ "$@"
}

install_packages() {
    as_user / sudo apt-get update >>"$log" 2>&1 && as_user / sudo env DEBIAN_FRONTEND=noninteractive \
        apt-get install --yes --no-install-recommends "$@" >>"$log" 2>&1 || give_up "apt-get install $*"
}

clone="/home/user/Kestrivane UI"
clone_head() {
    git clone --quiet --no-hardlinks . "$system$clone" 2>>"$log" &&
        git -C "$system$clone" checkout --quiet --detach "$commit" &&
        chroot "$system" chown -R user:user "$clone" || give_up "git clone"
}

timed() { # what, command...
    local start=$SECONDS what=$1
    shift
    printf '%s\n' "== $what" >>"$log"
    "$@" >>"$log" 2>&1 </dev/null || give_up "$what"
    echo "$what: passed, $((SECONDS - start)) s"
}

# The archives of this commit and a stand-in emulator, made on Debian 12 and kept for other runs.
archives=$cache/$commit
make_archives() {
    [[ ! -e $archives ]] || return 0
    if [[ $release != bookworm ]]; then
        new_system bookworm maker
        clone_head
    fi
    timed "Archives made on bookworm" as_user "$clone" bash -ec '
        tools/install.sh build package
        cmake --preset release -DBUILD_TESTING=OFF
        cmake --build --preset release
        cd build && cpack'
    rm -rf "$cache"/[0-9a-f]*[0-9a-f]/
    mkdir "$archives.new"
    cp "$system$clone"/build/{*.tar.gz,standin/Kestrivane.exe} "$archives.new/"
    mv "$archives.new" "$archives"
}

# The display runs on this machine. The program, the emulator and their libraries are those of the system.
. tools/front_end.sh
fail() { give_up "$*; window in focus: $(xdotool getwindowfocus getwindowname 2>&1)"; }
start() { # folder in the system
    chroot --userspec=user:user "$system" env -i HOME=/home/user LANG=C.UTF-8 DISPLAY="$DISPLAY" \
        QT_QPA_PLATFORM=xcb PATH=/usr/bin:/bin setsid "$1/KestrivaneUI" >>"$log" 2>&1 </dev/null &
    front_end=$!
}

play_with() { # archive
    local app=/home/user/emulator
    mkdir -p "$system$app/ROMs"
    tar -xzf "$1" -C "$system$app"
    cp "$archives/Kestrivane.exe" "$system$app/"
    write_archive "$system$app" 22 clean
    chroot "$system" chown -R user:user "$app"
    XDG_CONFIG_HOME=$system/home/user/.config
    start_to_main_window "$app"
    play
    expect_main_window 60
    press Escape
    expect_end 0
    expect_counted "1,2[2-9]"
}

try_archives() {
    local needed # what README says that the archive with Qt needs
    needed=$(sed -n 's/^| Linux without Qt 6 |[^|]*| `\([^`]*\)`.*/\1/p' README.md)
    make_archives
    mkdir "$work/display"
    start_display "$work/display" || give_up "no virtual display"
    new_system "$release" without
    install_packages $needed fonts-dejavu-core
    compgen -G "$system/usr/lib/*/libQt6*" >/dev/null && give_up "the bare system already has Qt"
    timed "Archive with Qt, made on bookworm, played on a $release without Qt" \
        play_with "$archives"/*-with-Qt.tar.gz
    new_system "$release" with
    install_packages libqt6widgets6
    timed "Plain archive, made on bookworm, played on $release" play_with "$archives"/*-Linux.tar.gz
}

new_system "$release" newcomer
clone_head
if (($# > 1)); then
    as_user "$clone" "${@:2}"
    exit
fi
echo "A bare $release, commit ${commit:0:10}, log $log"
for script in ./demo.sh ./test.sh; do
    timed "$script" as_user "$clone" "$script"
    left=$(ls -A "$system/tmp" | { grep -vx '\.X11-unix' || true; })
    [[ -z $left ]] || give_up "$script left in /tmp: $left"
done
tail -n 4 "$log"
try_archives
echo "A bare $release: all passed"
