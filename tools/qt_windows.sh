#!/usr/bin/env bash
# Builds Qt for Windows, static, with what this program and its tests need, into a folder that
# outlives the build folders: from the source package of Debian's own Qt, or from a changed source of
# the same version. Does nothing if the folder has it already; otherwise takes about 30 minutes of
# processor time.
# Usage: qt_windows.sh FOLDER [SOURCE]
set -euo pipefail
toolchain=$(cd "$(dirname "${BASH_SOURCE[0]}")/../cmake" && pwd)/windows.cmake
mkdir -p "$1"
cache=$(cd "$1" && pwd)
version=$(dpkg-query -W -f '${source:Version}' qt6-base-dev)
# Raise the number when this script builds something else.
built="$version, build 2"
[[ -n ${2:-} || $(cat "$cache/version" 2>/dev/null) != "$built" ]] || exit 0

work=$cache/work
source=${2:-$work/source}
# Qt's libraries store this folder as their place, but are found in any other one too.
prefix=/qt
rm -rf "$work" "$cache/version"
mkdir -p "$work"

# Uses package lists of its own, because those of the system may lack source packages.
fetch_source() {
    apt-get indextargets --format 'deb-src $(REPO_URI) $(RELEASE) $(COMPONENT) # $(ORIGIN)' \
        'Created-By: Packages' | grep '# Debian$' | sort -u >sources.list
    local options=(-qq -o "Dir::Etc::SourceList=$work/sources.list" -o Dir::Etc::SourceParts=-
        -o "Dir::State::Lists=$work/lists" -o "Dir::Cache=$work" -o APT::Sandbox::User=)
    mkdir -p lists/partial archives/partial
    apt-get "${options[@]}" update
    apt-get "${options[@]}" source --download-only "qt6-base=$version"
    dpkg-source --no-check -x qt6-base_*.dsc source >/dev/null
}
if [[ -z ${2:-} ]]; then
    echo "Qt $version for Windows: fetching the source"
    (cd "$work" && fetch_source) >"$work/log" 2>&1 || { cat "$work/log" && exit 1; }
fi

# Features that neither the program nor its tests use. The linker would not drop those that other parts
# of Qt refer to.
unused="concurrent dbus glib gif icu network printsupport sql system_zlib vulkan xml
    commandlineparser concatenatetablesproxymodel hijricalendar jalalicalendar mimetype sharedmemory
    systemsemaphore timezone transposeproxymodel
    filesystemmodel imageformat_ppm imageformat_xbm movie pdf picture systemtrayicon
    textmarkdownreader textmarkdownwriter textodfwriter undocommand
    calendarwidget colordialog columnview commandlinkbutton datawidgetmapper dial dockwidget
    errormessage filedialog fontcombobox fontdialog formlayout graphicsview inputdialog
    keysequenceedit lcdnumber mdiarea progressdialog scroller splashscreen syntaxhighlighter
    tablewidget toolbox undoview wizard"
# These need headers that Debian's compiler or source package lacks.
missing="direct2d1_1 tabletevent"
# This source includes a header of a feature that is switched off, without using it.
sed -i '/#include <qinputdialog.h>/d' "$source/src/plugins/styles/windowsvista/qwindowsvistastyle_p_p.h"
features=()
for feature in $unused $missing; do features+=("-DFEATURE_$feature=OFF"); done
echo "Qt $version for Windows: building, some 30 minutes of processor time"
cmake -S "$source" -B "$work/build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX="$prefix" -DBUILD_SHARED_LIBS=OFF \
    -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$source=qt" -DCMAKE_C_FLAGS="-ffile-prefix-map=$source=qt" \
    -DFEATURE_static_runtime=ON -DINPUT_opengl=no "${features[@]}" -DQT_BUILD_EXAMPLES=OFF \
    -DQT_BUILD_TESTS=OFF >>"$work/log" 2>&1 || { tail -n 40 "$work/log" && exit 1; }
if [[ -t 1 ]]; then
    NINJA_STATUS='%p of Qt for Windows ' ninja -C "$work/build"
else
    ninja -C "$work/build" >>"$work/log" 2>&1 || { tail -n 40 "$work/log" && exit 1; }
fi
rm -rf "$cache/qt" "$cache/source"
DESTDIR=$work/installed cmake --install "$work/build" >>"$work/log"
mv "$work/installed$prefix" "$cache/qt"

# The licences that must be passed on with the program.
{
    printf '%s\n' "Qt $version, as Debian's source package qt6-base has it, and what it contains." ""
    parts=(double-conversion freetype harfbuzz-ng libjpeg libpng pcre2 tinycbor zlib)
    files=("$source"/LICENSES/{LGPL-3.0-only,GPL-3.0-only}.txt)
    for part in "${parts[@]}"; do
        files+=("$source/src/3rdparty/$part"/*{LICEN,licen,COPYING}*)
    done
    files+=(/usr/share/doc/{mingw-w64-x86-64-dev,gcc-mingw-w64-base}/copyright)
    for file in "${files[@]}"; do
        [[ -f $file ]] || continue
        printf '\n======== %s\n\n' "${file#"$source"/}"
        cat "$file"
    done
} >"$cache/qt/licences.txt"
mkdir "$cache/source"
[[ -n ${2:-} ]] || mv "$work"/qt6-base_* "$cache/source"
rm -rf "$work"
echo "$built" >"$cache/version"
