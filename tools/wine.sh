# To be sourced: Windows programs under wine, in a prefix of their own.

# Creates the prefix if there is none, and starts its server. One folder in the prefix is also the network
# share \\kestrivane\tests, and an empty one is drive Y:. Drive X: can't be read.
start_wine() { # folder for the prefix
    mkdir -p "$1"
    WINEPREFIX=$(cd "$1" && pwd)/wine
    # Keeps wine from adding entries to the desktop's menu and from asking to install Mono and Gecko.
    export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
    # Wine 10 crashes if TMPDIR is set.
    unset TMPDIR
    # With an ASCII locale, wine can't create files with other names.
    export LC_ALL=C.UTF-8
    if [[ ! -e $WINEPREFIX/system.reg ]]; then
        # Runs without a display, and ends the server, which would also start later programs without one.
        DISPLAY= wineboot -i >/dev/null 2>&1
        wineserver -k -w
    fi
    mkdir -p "$WINEPREFIX/dosdevices/unc/kestrivane" "$WINEPREFIX/share"
    ln -sfn "$WINEPREFIX/share" "$WINEPREFIX/dosdevices/unc/kestrivane/tests"
    mkdir -p "$WINEPREFIX/empty"
    ln -sfn "$WINEPREFIX/empty" "$WINEPREFIX/dosdevices/y:"
    ln -sfn "$WINEPREFIX/none" "$WINEPREFIX/dosdevices/x:"
    wineserver -p || true # one may run already
}

# Ends the server and removes the folder that it leaves behind, which a file of the prefix names.
stop_wine() {
    local name=${WINEPREFIX:-}/wineserver
    wineserver -k -w 2>/dev/null || true
    [[ ! -s $name ]] || rm -rf "/tmp/$(basename "$(<"$name")")" "$name"
}
