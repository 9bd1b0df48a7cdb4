# shellcheck shell=bash disable=SC2034
# Qt for Windows as static libraries, from Debian's own source package in the version that is installed here: its
# moc, rcc and uic are the ones that serve the cross build. The result is kept in build/windows/qt.

qt_packages=(build-essential cmake ninja-build qt6-base-dev g++-mingw-w64-x86-64-posix dpkg-dev)
qt_folder=build/windows/qt
qt_sources=build/windows/qt-sources
qt_work=build/windows/qt-work

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

# What a finished Qt was built from; a change of any of it builds Qt anew.
qt_recipe() {
    printf '%s\n' "$(qt_version)"
    x86_64-w64-mingw32-g++-posix -dumpversion
    printf '%s\n' "${qt_options[@]}"
    cat packaging/cross/toolchain.cmake
}

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
fetch_qt() { # VERSION
    local apt_folder=$PWD/$qt_work/apt
    say "fetching the sources of Qt, version $1"
    copy_package_sources
    apt_for_sources update
    rm -rf "$qt_sources" "$qt_work/sources"
    mkdir -p "$qt_sources"
    (cd "$qt_sources" && apt_for_sources --download-only source "qt6-base=$1")
    printf '%s\n' "$1" >"$qt_sources/version"
}

unpack_qt() {
    [[ ! -d $qt_work/sources ]] || return 0
    mkdir -p "$qt_work"
    rm -rf "$qt_work/half"
    dpkg-source --no-check -q --extract "$qt_sources"/*.dsc "$qt_work/half" >/dev/null
    mv "$qt_work/half" "$qt_work/sources"
}

configure_qt() {
    local host_cmake
    host_cmake=/usr/lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)/cmake
    cmake -S "$qt_work/sources" -B "$qt_work/build" "${qt_options[@]}" \
        -DCMAKE_TOOLCHAIN_FILE="$PWD/packaging/cross/toolchain.cmake" -DCMAKE_INSTALL_PREFIX="$PWD/$qt_folder" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host_cmake"
}

# Builds Qt unless it is there already. A build that was broken off goes on where it ended.
provide_qt() {
    local version
    if qt_recipe | cmp -s - "$qt_folder/recipe"; then
        say "Qt for Windows is in $qt_folder already"
        return
    fi
    version=$(qt_version)
    say "building Qt for Windows: about two hours of one processor and 3 GB of disk, once; 160 MB of them stay"
    [[ -f $qt_sources/version && $(<"$qt_sources/version") == "$version" ]] || fetch_qt "$version"
    unpack_qt
    configure_qt
    cmake --build "$qt_work/build" --parallel "$(nproc)"
    rm -rf "$qt_folder"
    cmake --install "$qt_work/build" >/dev/null
    qt_recipe >"$qt_folder/recipe"
    rm -rf "$qt_work"
}
