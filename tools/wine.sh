# To be sourced: Windows programs under wine, in a prefix of their own.

# Makes the prefix where there is none, and starts its server. A folder in it also stands as what
# another machine shares: \\kestrivane\tests, and an empty one as drive Y:.
start_wine() { # folder for the prefix
    mkdir -p "$1"
    WINEPREFIX=$(cd "$1" && pwd)/wine
    # It would put the programs into the desktop's menu, and ask for what runs other programs.
    export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
    # Wine 10 crashes where it is set.
    unset TMPDIR
    # Where the locale is of ASCII alone, it makes no file of another name.
    export LC_ALL=C.UTF-8
    if [[ ! -e $WINEPREFIX/system.reg ]]; then
        # Without a display; its server would keep others from one.
        DISPLAY= wineboot -i >/dev/null 2>&1
        wineserver -k -w
    fi
    mkdir -p "$WINEPREFIX/dosdevices/unc/kestrivane" "$WINEPREFIX/share"
    ln -sfn "$WINEPREFIX/share" "$WINEPREFIX/dosdevices/unc/kestrivane/tests"
    mkdir -p "$WINEPREFIX/empty"
    ln -sfn "$WINEPREFIX/empty" "$WINEPREFIX/dosdevices/y:"
    wineserver -p || true # one may run already
}

# Its server leaves a folder behind, which a file of the prefix names.
stop_wine() {
    local name=${WINEPREFIX:-}/wineserver
    wineserver -k -w 2>/dev/null || true
    [[ ! -s $name ]] || rm -rf "/tmp/$(basename "$(<"$name")")" "$name"
}
