# shellcheck shell=bash
# The icon of the program for Windows, and the package that a teacher gets.

package_packages=(librsvg2-bin icoutils zip)
package=

# The smallest picture has a drawing of its own.
make_icon() {
    local icon=build/windows/gradeloom.ico folder=build/windows/icons size drawing images=()
    [[ ! $icon -nt packaging/icons/gradeloom.svg || ! $icon -nt packaging/icons/gradeloom-16.svg ]] || return 0
    mkdir -p "$folder"
    for size in 16 24 32 48 64 128 256; do
        drawing=gradeloom
        ((size > 16)) || drawing=gradeloom-16
        rsvg-convert --width "$size" --height "$size" --output "$folder/$size.png" "packaging/icons/$drawing.svg"
        images+=("$folder/$size.png")
    done
    icotool --create --output "$icon" "${images[@]:0:6}" --raw "${images[6]}"
}

# The program's licence, those of what is linked into it, and where the sources of Qt are.
pack_licences() {
    local folder=$package/licences doc=/usr/share/doc
    mkdir -p "$folder"
    cp LICENSE "$package/LICENSE.txt"
    cp $doc/qt6-base-dev/copyright "$folder/Qt.txt"
    cp $doc/gcc-mingw-w64-base/copyright "$folder/GCC.txt"
    cp $doc/mingw-w64-common/copyright "$folder/MinGW-w64.txt"
    for licence in LGPL-3 GPL-3 GPL-2; do
        cp "/usr/share/common-licenses/$licence" "$folder/$licence.txt"
    done
    sed "s/@QT@/$(qt_version)/g" packaging/cross/read-me.txt >"$package/READ-ME.txt"
    find "$package" -name '*.txt' -exec sed -i 's/$/\r/' {} +
}

pack() {
    package=build/windows/gradeloom-$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/windows/program/CMakeCache.txt)
    rm -rf "$package" "$package.zip"
    mkdir -p "$package"
    x86_64-w64-mingw32-strip -o "$package/gradeloom.exe" build/windows/program/gradeloom.exe
    pack_licences
    (cd build/windows && zip -q -X -r "${package##*/}.zip" "${package##*/}")
    say "packed $package.zip"
}
