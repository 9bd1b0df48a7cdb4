# shellcheck shell=bash
# Qt for Windows as static libraries, from Debian's own source package in the version that is installed here: its
# moc, rcc and uic are the ones that serve the cross build. The result is kept in the user's cache folder, for all
# clones; build/windows/qt is a link to it.

# shellcheck disable=SC2034 # packaging/windows installs them
qt_packages=(build-essential cmake ninja-build qt6-base-dev g++-mingw-w64-x86-64-posix dpkg-dev)

# What the program uses: Core, Gui, Widgets, PrintSupport and, for the tests, Test. Zlib, FreeType, HarfBuzz, PCRE2
# and PNG come from Qt's own copies. Debian's package lacks the header that tablets need.
qt_options=(
    -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_SHARED_LIBS=OFF
    -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_BENCHMARKS=OFF -DQT_GENERATE_SBOM=OFF
    -DFEATURE_pkg_config=OFF -DFEATURE_tabletevent=OFF
    -DFEATURE_sql=OFF -DFEATURE_network=OFF -DFEATURE_dbus=OFF -DFEATURE_xml=OFF -DFEATURE_concurrent=OFF
    -DINPUT_opengl=no -DFEATURE_vulkan=OFF -DFEATURE_icu=OFF -DFEATURE_zstd=OFF -DFEATURE_glib=OFF
    -DFEATURE_system_zlib=OFF -DFEATURE_system_freetype=OFF -DFEATURE_system_harfbuzz=OFF
    -DFEATURE_system_pcre2=OFF -DFEATURE_system_png=OFF -DFEATURE_system_doubleconversion=OFF
)

qt_version() { dpkg-query -W -f='${source:Version}' qt6-base-dev; }

# Where the Qt that fits this machine is, with its sources and, while it is built, its work.
qt_home() { echo "$(cache_folder)/qt-windows-$(qt_version)"; }

# What a finished Qt was built from; a change of any of it builds Qt anew.
qt_recipe() {
    printf '%s\n' "$(qt_version)"
    x86_64-w64-mingw32-g++-posix -dumpversion
    printf '%s\n' "${qt_options[@]}"
    cat packaging/cross/toolchain.cmake
}

qt_is_there() { qt_recipe | cmp -s - "$(qt_home)/qt/recipe"; }

# apt-get with source packages switched on, by a copy of the machine's own list of package sources in a private
# folder: the machine's lists stay as they are.
apt_for_sources() {
    apt-get -qq -o Dir::Etc::sourcelist=/dev/null -o Dir::Etc::sourceparts="$apt_folder/parts" \
        -o Dir::State::lists="$apt_folder/lists" -o Dir::Cache::srcpkgcache= -o Dir::Cache::pkgcache= \
        -o APT::Sandbox::User= -o Acquire::Retries=3 "$@"
}

copy_package_sources() {
    local file
    mkdir -p "$apt_folder/parts" "$apt_folder/lists/partial"
    cp /etc/apt/sources.list.d/*.sources "$apt_folder/parts" 2>/dev/null || true
    cp /etc/apt/sources.list /etc/apt/sources.list.d/*.list "$apt_folder/parts" 2>/dev/null || true
    for file in "$apt_folder"/parts/*; do
        sed -i -E 's/^Types:.*/Types: deb-src/; s/^deb-src[[:space:]].*//; s/^deb[[:space:]]/deb-src /' "$file"
    done
}

# Debian's source package of that version, as it is: it is also what has to be handed on with the program.
fetch_qt() { # FOLDER
    local apt_folder=$1/work/apt version
    version=$(qt_version)
    say "fetching the sources of Qt, version $version"
    copy_package_sources
    apt_for_sources update
    rm -rf "$1/sources" "$1/work/sources"
    mkdir -p "$1/sources"
    (cd "$1/sources" && apt_for_sources --download-only source "qt6-base=$version")
    : >"$1/sources/complete"
}

unpack_qt() { # FOLDER
    [[ ! -d $1/work/sources ]] || return 0
    mkdir -p "$1/work"
    rm -rf "$1/work/half"
    dpkg-source --no-check -q --extract "$1"/sources/*.dsc "$1/work/half" >/dev/null
    mv "$1/work/half" "$1/work/sources"
}

# Qt remembers where the toolchain file is, so a copy that stays is beside it.
configure_qt() { # FOLDER
    local host_cmake
    host_cmake=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake
    cp packaging/cross/toolchain.cmake "$1/toolchain.cmake"
    cmake -S "$1/work/sources" -B "$1/work/build" "${qt_options[@]}" \
        -DCMAKE_TOOLCHAIN_FILE="$1/toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$1/qt" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host_cmake"
}

# Builds Qt unless it is there already. A build that was broken off goes on where it ended.
provide_qt() {
    local folder
    folder=$(qt_home)
    mkdir -p build/windows
    ln -sfn "$folder/qt" build/windows/qt
    if qt_is_there; then
        say "Qt for Windows is in $folder already"
        return
    fi
    say "building Qt for Windows in $folder: about two hours of one processor and 3 GB of disk, once; 160 MB of" \
        "them stay until you delete that folder"
    [[ -f $folder/sources/complete ]] || fetch_qt "$folder"
    unpack_qt "$folder"
    configure_qt "$folder"
    cmake --build "$folder/work/build" --parallel "$(nproc)"
    rm -rf "$folder/qt"
    cmake --install "$folder/work/build" >/dev/null
    qt_recipe >"$folder/qt/recipe"
    rm -rf "$folder/work"
}
